#include "ui/platform/QtSettingsStore.h"

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace zerna {

/// The test program keeps settings in a folder of its own, see QtMain.cpp.
struct QtSettingsStoreTest : testing::Test {
    static std::filesystem::path file(const std::string& application)
    {
        return std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / application / (application + ".conf");
    }

    QtSettingsStore store;
};

TEST_F(QtSettingsStoreTest, TextsComeBackAsTheyWere)
{
    struct Row {
        const char* key;
        const char* value;
    };
    const Row rows[]{
        {"Element_0", "Al"},
        {"Schlüssel", "Größe ≥ 1 Ω"},
        {"Leer", ""},
        {"Ziffern", "007"},
        {"Trenner", "a, b; \"c\" = @d\\e\r\n"},
    };
    for (const Row& row : rows)
        store.setValue("Rundreise", "Settings", row.key, row.value);
    for (const Row& row : rows)
        EXPECT_EQ(QtSettingsStore().value("Rundreise", "Settings", row.key), row.value) << row.key;
    EXPECT_EQ(bytesOf(file("Rundreise")).substr(0, 24), "[Settings]\nElement_0=Al\n");
}

TEST_F(QtSettingsStoreTest, OnlyTheAskedForKeyAnswers)
{
    store.setValue("Schluessel", "Settings", "Komponenten", "3");
    store.setValue("Schluessel", "Settings", "Komponenten", "4");
    EXPECT_EQ(store.value("Schluessel", "Settings", "Komponenten"), "4");
    EXPECT_EQ(store.value("Schluessel", "Settings", "Element_0"), "") << "absent key";
    EXPECT_EQ(store.value("Schluessel", "Fenster", "Komponenten"), "") << "another section";
    EXPECT_EQ(store.value("Anderes", "Settings", "Komponenten"), "") << "another program";
}

TEST_F(QtSettingsStoreTest, StoreThatCannotBeWrittenStaysEmpty)
{
    writeBytes(file("Gesperrt").parent_path(), "a file where the folder would be");
    store.setValue("Gesperrt", "Settings", "Element_0", "Al");
    EXPECT_EQ(store.value("Gesperrt", "Settings", "Element_0"), "");
}

} // namespace zerna
