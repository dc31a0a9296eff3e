#include "support/Stoerung.h"

#include <gmock/gmock.h>

#include "programm/DateienFixture.h"
#include "programm/Exportieren.h"
#include "programm/Messkurvenoeffnung.h"
#include "programm/Sicherung.h"
#include "support/Stoerprobe.h"

namespace zerna {

/// Files that are written without a window.
struct StoerungTest : DateienFixture {
    StoerungTest() { std::filesystem::create_directory(ziel.parent_path()); }

    /// What boxes have shown since the last call.
    std::string said()
    {
        std::string text;
        for (const auto& box : std::exchange(boxes.shown, {}))
            text += box.text;
        return text;
    }

    const std::filesystem::path ziel = folder / "Ordner" / "ä b.dat";
};

TEST_F(StoerungTest, Legierungen)
{
    save.replace = true;
    const std::filesystem::path datei = ziel.string() + ".zerna";
    save.answer = {{datei.string(), 1}};
    const auto saveAs = [this] {
        save.next = dateien.name().empty() ? std::nullopt : save.answer; // the first one has a suggestion then
        return dateien.speichereUnter() ? "" : said();
    };
    for (const bool verlinkt : {false, true}) {
        SCOPED_TRACE(verlinkt);
        Stoerprobe{datei, saveAs, "alt", false, verlinkt}.laufe();
    }
    Stoerprobe{datei, [this] { return dateien.speichere() ? "" : said(); }}.laufe();
}

TEST_F(StoerungTest, WhatCouldNotBeSavedIsStillChangedAndTheDialogComes)
{
    save.answer = {{ziel.string(), 1}};
    ASSERT_TRUE(dateien.speichereUnter());
    programm.Eingabe().waehleElement(0, "Fe");
    const Stoerung stoerung(ziel.parent_path(), Stoerung::Art::Voll, 1);
    EXPECT_FALSE(dateien.speichere());
    EXPECT_TRUE(dateien.istGeaendert());
    EXPECT_EQ(save.offeredAgain.size(), 1U);
    EXPECT_THAT(said(), testing::HasSubstr("konnte nicht gespeichert werden:\r\nDatenträger voll"));
}

TEST_F(StoerungTest, BytesAreMadeOnceHoweverOftenTheDialogComes)
{
    int made = 0;
    const std::vector<Exportart> arten{datDatei([&made] { return ++made, std::string("x"); })};
    save.answer = save.next = {{ziel.string(), 1}};
    const Stoerung stoerung(ziel.parent_path(), Stoerung::Art::Voll, 1);
    EXPECT_FALSE(exportieren(boxes, save, Exporttitel, arten));
    EXPECT_EQ(save.offeredAgain.size(), 2U);
    EXPECT_EQ(made, 1);
}

TEST_F(StoerungTest, Exporte)
{
    save.answer = {{ziel.string(), 1}};
    save.replace = true;
    const std::vector<Exportart> arten{datDatei([] { return std::string(100000, 'x'); })};
    for (const std::string frueher : {"alt", ""}) {
        SCOPED_TRACE(frueher);
        Stoerprobe{ziel, [&] { return exportieren(boxes, save, Exporttitel, arten) ? "" : said(); }, frueher}.laufe();
    }
}

TEST_F(StoerungTest, Elementtabelle)
{
    const auto start = [this] {
        boxes.shown.clear();
        Programm first(boxes, settings, ziel.parent_path());
        first.start([]() -> Hauptfenster& { throw Laufzeitfehler(Fehler::ObjektNichtFestgelegt); });
        const auto loader = std::ranges::find(boxes.shown, "Zerna - Loader", &RecordingBoxes::Box::caption);
        return loader == boxes.shown.end() ? "" : loader->text;
    };
    Stoerprobe{ziel.parent_path() / "elemente.dat", start, ""}.laufe();
}

TEST_F(StoerungTest, Sicherungen)
{
    const auto keep = [this] {
        Sicherung sicherung(ziel.parent_path());
        sicherung.schreibe([] { return "neu"; });
        sicherung.warte();
        const auto fehler = sicherung.nimmFehler();
        return fehler ? fehler->what() + ziel.filename().string() : std::string();
    };
    for (const Stoerung::Art art : Stoerung::Arten) {
        std::string was = "?";
        for (int call = 1; !was.empty(); ++call) {
            std::string said;
            {
                const Stoerung stoerung(ziel.parent_path(), art, call);
                said = keep();
                was = Stoerung::was();
            }
            SCOPED_TRACE("disturbance " + std::to_string(static_cast<int>(art)) + ", " + was + ": " + said);
            EXPECT_TRUE(!was.empty() || said.empty());
            EXPECT_EQ(keep(), "");
            EXPECT_TRUE(std::filesystem::is_empty(ziel.parent_path()));
        }
    }
}

/// Reading says which file and why, and changes nothing.
TEST_F(StoerungTest, Lesen)
{
    save.answer = {{(folder / "Ordner" / "a.zerna").string(), 1}};
    ASSERT_TRUE(dateien.speichereUnter());
    const Dokument before = programm.Dokument();
    const std::filesystem::path messung = folder / "Ordner" / "m.txt";
    writeBytes(messung, "1 2\n2 3\n3 4\n4 5\n");
    for (const Stoerung::Art art : {Stoerung::Art::Einmal, Stoerung::Art::Verschwunden}) {
        std::string was = "?";
        for (int call = 1; !was.empty(); ++call) {
            bool isOpened = false;
            {
                const Stoerung stoerung(folder / "Ordner", art, call);
                isOpened = dateien.oeffne(folder / "Ordner" / "a.zerna");
                was = Stoerung::was();
            }
            const std::string text = said();
            SCOPED_TRACE(was + ": " + text);
            EXPECT_EQ(isOpened, text.empty());
            EXPECT_THAT(
                text, testing::ContainsRegex(isOpened ? "" : "\"a.zerna\".*verweigert|E/A-Fehler|nicht gefunden"));
            EXPECT_EQ(programm.Dokument(), before);
            const Stoerung stoerung(folder / "Ordner", art, call);
            const Messkurvenoeffnung messkurven = oeffneMesskurven({}, {messung});
            EXPECT_EQ(messkurven.neue == 1, messkurven.grund.empty()) << messkurven.grund;
        }
    }
}

} // namespace zerna
