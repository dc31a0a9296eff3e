#include "ui/platform/QtSettingsStore.h"

#include <QTest>

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
        QtSettingsStore().setValue("Rundreise", "Settings", key, value); // written at the end of its life
    for (const auto& [key, value] : rows)
        EXPECT_EQ(QtSettingsStore().value("Rundreise", "Settings", key), value) << key;
    EXPECT_EQ(QtSettingsStore().value("Rundreise", "Settings", "Element_1"), "") << "absent key";
    EXPECT_EQ(QtSettingsStore().value("Rundreise", "Fenster", "Element_0"), "") << "another section";
    EXPECT_EQ(QtSettingsStore().value("Anderes", "Settings", "Element_0"), "") << "another program";
}

TEST(QtSettingsStoreTest, OnlyTheUsersOwnStoreCounts)
{
    const std::filesystem::path folder = std::getenv("XDG_CONFIG_HOME");
    std::filesystem::create_directories(folder / "system" / "Fremdes");
    for (const char* const other : {"Fremdes.conf", "system/Fremdes.conf", "system/Fremdes/Fremdes.conf"}) {
        writeBytes(folder / other, "[Settings]\nElement_0=Fe\n"); // of the organisation and of the system
        EXPECT_EQ(QtSettingsStore().value("Fremdes", "Settings", "Element_0"), "") << other;
    }
}

TEST(QtSettingsStoreTest, WhatTheStoreCannotTakeCountsForTheSession)
{
    writeBytes(settingsFile("Sitzung").parent_path(), "a file where the folder would be");
    QtSettingsStore store;
    Settings settings(store, "Sitzung");
    settings.SaveSetting("Element_0", "Al");
    EXPECT_EQ(settings.LoadSetting("Element_0", "H"), "Al");
    EXPECT_EQ(store.value("Sitzung", "Settings", "Element_0"), "");
}

TEST(QtSettingsStoreTest, WritesTogetherWhatWasSetAndNothingThatIsThereAlready)
{
    const auto file = settingsFile("Spaeter");
    QtSettingsStore store(std::chrono::milliseconds(20));
    for (const char* const symbol : {"Al", "Ni", "Cu"})
        store.setValue("Spaeter", "Settings", "Element_0", symbol);
    EXPECT_FALSE(std::filesystem::exists(file)) << "the window's thread writes nothing";
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(file); }));
    EXPECT_EQ(bytesOf(file), "[Settings]\nElement_0=Cu\n");

    writeBytes(file, "[Settings]\nElement_0=Cu\nElement_1=Fe\n# of another hand\n");
    QtSettingsStore().setValue("Spaeter", "Settings", "Element_0", "Cu");
    EXPECT_NE(bytesOf(file).find("another hand"), std::string::npos) << "written again";
    QtSettingsStore().setValue("Spaeter", "Settings", "Element_0", "Pd");
    EXPECT_EQ(bytesOf(file), "[Settings]\nElement_0=Pd\nElement_1=Fe\n") << "two runs' changes go together";
}

} // namespace zerna
