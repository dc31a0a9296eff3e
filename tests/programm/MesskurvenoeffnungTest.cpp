#include "programm/Messkurvenoeffnung.h"

#include <gmock/gmock.h>

#include "support/FilesTest.h"

namespace zerna {

using MesskurvenoeffnungTest = FilesTest;

TEST_F(MesskurvenoeffnungTest, AddsWhatCanBeReadAndSaysWhyTheRestCannot)
{
    writeBytes(folder / "ä.dat", "1 2\n2 3\n3 4\n");
    writeBytes(folder / "kurz.dat", "1 2\n");
    std::filesystem::create_directory(folder / "ordner.dat");
    const auto oeffnung = oeffneMesskurven(
        {}, {folder / "kurz.dat", folder / "ä.dat", folder / "ordner.dat", folder / "fehlt.dat", folder / "ä.dat"});
    ASSERT_EQ(oeffnung.kurven.size(), 2U);
    EXPECT_EQ(oeffnung.neue, 2U);
    EXPECT_EQ(oeffnung.kurven[0].name, "ä.dat");
    EXPECT_EQ(oeffnung.grund,
        "Die Messkurve \"kurz.dat\" konnte nicht geöffnet werden:\r\nZeile 1: Die Datei hat zu wenige Messpunkte; "
        "gebraucht werden mindestens drei.\r\n\r\n"
        "Die Messkurve \"ordner.dat\" konnte nicht geöffnet werden:\r\nFehler beim Zugriff auf Pfad/Datei (das ist ein "
        "Ordner).\r\n\r\n"
        "Die Messkurve \"fehlt.dat\" konnte nicht geöffnet werden:\r\nDatei nicht gefunden.");

    const auto full =
        oeffneMesskurven(std::vector<Messkurve>(MeisteMesskurven, oeffnung.kurven[0]), {folder / "ä.dat"});
    EXPECT_EQ(full.kurven.size(), MeisteMesskurven);
    EXPECT_THAT(full.grund, testing::EndsWith("Es sind schon 20 Messkurven; bitte erst eine entfernen."));
}

TEST_F(MesskurvenoeffnungTest, TellsMeasuredCurvesFromDocuments)
{
    const std::vector<std::tuple<const char*, std::string, bool>> rows{{"a.dat", "1 2\n", true}, {"b", "r g(r)", true},
        {"c.txt", " {\"format\": 1}", false}, {"d.zerna", "1 2\n", false}, {"e.txt", "", false},
        {"f.txt", std::string("\x89PNG\r\n\x1A\n\0", 9), false}, {"g.txt", std::string("ab\0", 3), false}};
    for (const auto& [name, bytes, expected] : rows) {
        writeBytes(folder / name, bytes);
        EXPECT_EQ(istMesskurvendatei(folder / name), expected) << name;
    }
    EXPECT_FALSE(istMesskurvendatei(folder.path()));
}

} // namespace zerna
