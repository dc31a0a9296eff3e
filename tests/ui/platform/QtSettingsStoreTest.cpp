#include "ui/platform/QtSettingsStore.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace zerna {

/// The test program keeps settings in a folder of its own, see QtMain.cpp.
static std::filesystem::path settingsFile(const std::string& application)
{
    return std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / application / (application + ".conf");
}

TEST(QtSettingsStoreTest, TextsComeBackAsTheyWereAndOnlyTheAskedForKeyAnswers)
{
    const std::pair<const char*, const char*> rows[]{
        {"Element_0", "Al"}, {"Schlüssel", "Größe ≥ 1 Ω"}, {"Ziffern", "007"}, {"Trenner", "a, b; \"c\" = @d\\e\r\n"}};
    for (const auto& [key, value] : rows)
        QtSettingsStore().setValue("Rundreise", "Settings", key, value);
    for (const auto& [key, value] : rows)
        EXPECT_EQ(QtSettingsStore().value("Rundreise", "Settings", key), value) << key;
    EXPECT_EQ(bytesOf(settingsFile("Rundreise")).substr(0, 24), "[Settings]\nElement_0=Al\n");
    EXPECT_EQ(QtSettingsStore().value("Rundreise", "Settings", "Element_1"), "") << "absent key";
    EXPECT_EQ(QtSettingsStore().value("Rundreise", "Fenster", "Element_0"), "") << "another section";
    EXPECT_EQ(QtSettingsStore().value("Anderes", "Settings", "Element_0"), "") << "another program";
}

TEST(QtSettingsStoreTest, StoreThatCannotBeWrittenStaysEmpty)
{
    writeBytes(settingsFile("Gesperrt").parent_path(), "a file where the folder would be");
    QtSettingsStore store;
    store.setValue("Gesperrt", "Settings", "Element_0", "Al");
    EXPECT_EQ(store.value("Gesperrt", "Settings", "Element_0"), "");
}

} // namespace zerna
