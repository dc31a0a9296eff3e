#include <gmock/gmock.h>

#include "core/Datei.h"
#include "programm/DateienFixture.h"
#include "support/Traegerbilder.h"
#include "traeger/Png.h"

namespace zerna {

using testing::HasSubstr;

struct DokumentverwaltungTest : DateienFixture {
    void enter(const char* prozent) { programm.Eingabe().setProzent(0, prozent); }
    std::string entered() { return programm.Eingabe().zeile(0).prozent.text; }

    /// Saves under a new name.
    bool saveAs(const std::string& name)
    {
        save.answer = save.next = {{(folder / name).string(), 1}};
        save.replace = true;
        const bool isSaved = dateien.speichereUnter();
        save.next.reset();
        return isSaved;
    }

    Dokument stored(const std::string& name)
    {
        return lies(bytesOf(folder / name), programm.ElementCollection()).dokument.value();
    }
};

TEST_F(DokumentverwaltungTest, KnowsItsFileAndWhetherItIsChanged)
{
    EXPECT_EQ(dateien.name(), "");
    enter("60");
    EXPECT_FALSE(dateien.istGeaendert()) << "without a file";
    EXPECT_FALSE(dateien.speichere()) << "cancelled";
    save.answer = {utf8FromPath(folder / "Größe"), 1};
    ASSERT_TRUE(dateien.speichere());
    EXPECT_EQ(dateien.name(), "Größe.zerna");
    EXPECT_EQ(stored("Größe.zerna"), programm.Dokument());
    enter("61");
    EXPECT_TRUE(dateien.istGeaendert());
    enter("60");
    EXPECT_FALSE(dateien.istGeaendert());
    enter("62");
    ASSERT_TRUE(dateien.speichere());
    EXPECT_EQ(stored("Größe.zerna"), programm.Dokument());
    ASSERT_TRUE(dateien.neu());
    EXPECT_EQ(dateien.name() + entered(), "50");
    EXPECT_EQ(programm.Eingabe().zeile(1).element->symbol(), "Cu");
    open.answer = utf8FromPath(folder / "Größe.zerna");
    ASSERT_TRUE(dateien.oeffne());
    EXPECT_EQ(dateien.name() + entered(), "Größe.zerna62");
    EXPECT_THAT(boxes.asked, testing::IsEmpty());
}

TEST_F(DokumentverwaltungTest, AsksBeforeChangesOfAnOpenFileGo)
{
    for (const auto& [answer, goes, in] : {std::tuple(std::size_t{0}, true, "70"), {1, true, "60"}, {2, false, "60"}}) {
        enter("60");
        ASSERT_TRUE(saveAs("a.zerna"));
        enter("70");
        boxes.way = answer;
        EXPECT_EQ(dateien.neu(), goes);
        EXPECT_EQ(entered(), goes ? "50" : "70");
        EXPECT_EQ(stored("a.zerna").eingabe.zeile(0).prozent.text, in);
        EXPECT_EQ(boxes.asked.back(),
            "Zerna: Die Legierung \"a.zerna\" ist geändert. Sollen die Änderungen gespeichert werden? "
            "[&Speichern|&Verwerfen|&Abbrechen]");
    }
    boxes.way = 1;
    ASSERT_TRUE(dateien.neu());
    enter("33");
    boxes.way = 2;
    EXPECT_FALSE(dateien.neu());
    EXPECT_TRUE(boxes.asked.back().starts_with("Zerna: Die jetzige Legierung steht in keiner Datei."));
    ASSERT_TRUE(saveAs("a.zerna"));
    enter("71");
    EXPECT_FALSE(dateien.oeffne() || dateien.oeffne(folder / "a.zerna") || dateien.darfSchliessen());
    boxes.way = 1;
    EXPECT_TRUE(dateien.darfSchliessen());
    EXPECT_FALSE(dateien.istGeaendert()) << "what was discarded does not come back with the next start";
}

TEST_F(DokumentverwaltungTest, RefusesWhatIsNoDocumentAndChangesNothing)
{
    enter("60");
    ASSERT_TRUE(saveAs("a.zerna"));
    writeBytes(folder / "b.zerna", "{\n  \"format\": }");
    const Dokument before = programm.Dokument();
    for (const auto& [name, reason] : {std::tuple("b.zerna", "Zeile 2, Spalte 13: Das ist kein gültiges JSON."),
             {"fehlt.zerna", "Datei nicht gefunden."}}) {
        EXPECT_FALSE(dateien.oeffne(folder / name));
        EXPECT_EQ(boxes.shown.back().text,
            "Die Datei \"" + std::string(name) + "\" konnte nicht geöffnet werden:\r\n" + reason);
        EXPECT_EQ(programm.Dokument(), before);
        EXPECT_EQ(dateien.name(), "a.zerna");
    }
    std::filesystem::remove(folder / "a.zerna");
    EXPECT_FALSE(dateien.oeffne(folder / "a.zerna"));
    EXPECT_THAT(boxes.shown.back().text, HasSubstr("nicht mehr in der Liste"));
    EXPECT_THAT(dateien.zuletzt(), testing::IsEmpty());
}

TEST_F(DokumentverwaltungTest, WritesOverNoPictureAndNoNewerFile)
{
    std::string newer = schreibe(programm.Dokument());
    const std::string picture = pngMitDokument(Pngbild, newer);
    newer.replace(newer.find(": 1"), 3, ": 2");
    for (const auto& [name, bytes, messages] : {std::tuple("a.png", picture, 0), {"b.zerna", newer, 1}}) {
        boxes.shown.clear();
        writeBytes(folder / name, bytes);
        ASSERT_TRUE(dateien.oeffne(folder / name));
        EXPECT_EQ(boxes.shown.size(), static_cast<std::size_t>(messages));
        save.next = {{(folder / "c").string(), 1}};
        ASSERT_TRUE(dateien.speichere());
        EXPECT_EQ(dateien.name(), "c.zerna");
        EXPECT_EQ(bytesOf(folder / name), bytes);
        save.replace = true; // c.zerna is there now
    }
    EXPECT_THAT(save.offeredAgain.front(), testing::EndsWith("a.zerna|1"));
    EXPECT_THAT(save.offeredAgain.back(), testing::EndsWith("b (Kopie).zerna|1"));
    EXPECT_TRUE(dateien.speichere()) << "the new file is no longer read-only";
}

TEST_F(DokumentverwaltungTest, ARestoredDocumentDoesNotGoOverWhatOthersHaveSavedSince)
{
    ASSERT_TRUE(saveAs("a.zerna"));
    OffeneDatei datei = dateien.offen();
    enter("60");
    datei.stand -= 1;
    dateien.setzeFort(datei);
    EXPECT_TRUE(dateien.istGeaendert());
    boxes.answer = false;
    EXPECT_FALSE(dateien.speichere());
    EXPECT_EQ(boxes.asked.size(), 1U);
    std::filesystem::remove(folder / "a.zerna");
    dateien.setzeFort(datei);
    save.next = {{(folder / "b").string(), 1}};
    EXPECT_TRUE(dateien.speichere()) << "under a name that is asked for";
    EXPECT_EQ(dateien.name(), "b.zerna");
}

TEST_F(DokumentverwaltungTest, LetsTheUserDecideAboutOtherValues)
{
    programm.Dokument().vergleich = Vergleich{std::vector<Variante>(13, {"v", programm.Eingabe(), {}}), 0};
    ASSERT_TRUE(saveAs("a.zerna"));
    elements.Item("Cu")->setValenz(2);
    for (const auto& [answer, valenz, changed] :
        {std::tuple(std::size_t{0}, 1.0F, false), {1, 2, true}, {2, 2, false}}) {
        boxes.way = answer;
        EXPECT_EQ(dateien.oeffne(folder / "a.zerna"), answer < 2);
        EXPECT_EQ(programm.Eingabe().zeile(1).inKraft.valenz, valenz);
        EXPECT_EQ(dateien.istGeaendert(), changed);
        if (answer == 1) {
            EXPECT_THAT(boxes.asked.back(), HasSubstr("Zeile 2: Valenz (Standard) von Cu: 1 in der Datei, 2 hier"));
            EXPECT_THAT(boxes.asked.back(), HasSubstr("\r\nund 2 weitere\r\n")) << "twelve are named";
        }
        boxes.way = 1; // drops changes
        ASSERT_TRUE(dateien.neu());
    }
}

TEST_F(DokumentverwaltungTest, AsksBeforeItGoesOverWhatAnotherProgramHasWritten)
{
    ASSERT_TRUE(saveAs("a.zerna"));
    enter("70");
    writeBytes(folder / "a.zerna", "another program's");
    std::filesystem::last_write_time(
        folder / "a.zerna", std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    boxes.answer = false;
    EXPECT_FALSE(dateien.speichere());
    EXPECT_EQ(bytesOf(folder / "a.zerna"), "another program's");
}

TEST_F(DokumentverwaltungTest, RemembersTheFilesOfLast)
{
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(saveAs(std::to_string(i)));
    ASSERT_TRUE(dateien.oeffne(folder / "5.zerna"));
    std::string names;
    for (const std::string& file : dateien.zuletzt())
        names += std::filesystem::path(file).stem().string();
    EXPECT_EQ(names, "59876432");
}

} // namespace zerna
