#include "programm/Exportziel.h"

#include "support/FilesTest.h"

namespace zerna {

struct ExportzielTest : FilesTest { };

TEST_F(ExportzielTest, ExtensionIsAppendedOrChoosesTheKind)
{
    const std::vector<Exportart> values{{"", "", ".dat", {}, true}, {"", "", ".fri", {}, true}};
    const std::vector<Exportart> pictures{{"", "", ".png", {}}, {"", "", ".svg", {}}, {"", "", ".bmp", {}, true}};
    const struct {
        const char* name;
        const std::vector<Exportart>& arten;
        const char* typed;
        std::size_t chosen;
        const char* file;
        std::size_t art;
    } rows[] = {
        {"without extension", values, "ä b", 1, "ä b.fri", 1},
        {"with it", values, "werte.dat", 0, "werte.dat", 0},
        {"exact one in capitals", values, "werte.DAT", 0, "werte.DAT.dat", 0},
        {"another exact one", values, "x.fri", 0, "x.fri.dat", 0},
        {"unknown one", pictures, "Al0.5", 0, "Al0.5.png", 0},
        {"capitals", pictures, "bild.PNG", 0, "bild.PNG", 0},
        {"another kind's", pictures, "bild.Svg", 0, "bild.Svg", 1},
        {"exact kind's, another chosen", pictures, "bild.BMP", 1, "bild.BMP", 2},
        {"another kind's, exact one chosen", pictures, "bild.svg", 2, "bild.svg", 1},
        {"quotation marks stay", pictures, "Al \"rein\"", 0, "Al \"rein\".png", 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Exportziel ziel = exportziel(utf8FromPath(folder / row.typed), row.chosen, row.arten);
        EXPECT_EQ(ziel.name, row.file);
        EXPECT_EQ(ziel.art, row.art);
        EXPECT_EQ(ziel.ordner, folder.path());
        EXPECT_EQ(hindernis(ziel), "");
    }
}

TEST_F(ExportzielTest, WhatSpeaksAgainstANameIsSaid)
{
    std::filesystem::create_directory(folder / "ordner.dat");
    writeBytes(folder / "datei", "");
    const std::vector<Exportart> arten{{"", "", ".dat", {}, true}};
    const std::string there = "In \"" + folder.path().string() + "\" gibt es keinen Ordner ";
    const std::string hint = "\r\nEin Schrägstrich trennt Ordner. Als Dateiname geht zum Beispiel\r\n";
    const std::string noName = "Bitte geben Sie einen Dateinamen ein.";
    const std::pair<std::string, std::string> rows[] = {
        {"Al/Cu", there + "\"Al\"." + hint + "\"Al-Cu.dat\"."},
        {"a/b/c.dat", there + "\"a\"." + hint + "\"a-b-c.dat\"."},
        {"neu/", there + "\"neu\"."},
        {"datei/x", "\"datei\" ist kein Ordner."},
        {"", noName},
        {"  ", noName},
        {".", noName},
        {"..", noName},
        {"ordner", "\"ordner.dat\" ist ein Ordner. Bitte wählen Sie einen anderen Dateinamen."},
        {std::string(252, 'x'), "Der Dateiname ist zu lang. Bitte wählen Sie einen kürzeren."},
        {std::string(251, 'x'), ""},
        {"datei", ""},
    };
    for (const auto& [typed, grund] : rows)
        EXPECT_EQ(hindernis(exportziel(folder.path().string() + '/' + typed, 0, arten)), grund) << typed;
    EXPECT_EQ(vorhandenerOrdner(folder / "a/b"), folder.path());
}

} // namespace zerna
