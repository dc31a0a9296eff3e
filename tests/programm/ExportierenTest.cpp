#include "programm/Exportieren.h"

#include "support/FakeServices.h"
#include "support/FilesTest.h"

namespace zerna {

/// Offers a text that tests set, and one that cannot be made. What the dialog offers is recorded in stunde.txt.
struct ExportierenTest : FilesTest {
    bool save(const std::string& typed, int type)
    {
        dialog.answer = {(folder / typed).string(), type};
        return exportieren(boxes, dialog, Exporttitel, arten);
    }

    std::string contentOf(const std::string& name) const { return bytesOf(folder / name); }

    std::optional<std::string> text = "5 g/cm³\r\n";
    int made = 0;
    const std::vector<Exportart> arten{datDatei([this] { return ++made, text; }),
        friedelminima([]() -> std::string { throw Laufzeitfehler(Fehler::Ueberlauf); })};
    KeptCurrentFolder kept;
    FakeSaveDialog dialog;
};

TEST_F(ExportierenTest, NothingIsWrittenWhereTheUserGivesUp)
{
    EXPECT_FALSE(exportieren(boxes, dialog, Exporttitel, arten)) << "the dialog is cancelled";
    for (const int type : {0, 3})
        EXPECT_FALSE(save("a", type)) << "no such kind";
    writeBytes(folder / "a.dat", "alt");
    EXPECT_FALSE(save("a", 1)) << "the added extension would hit another file";
    EXPECT_EQ(dialog.asked, std::vector<std::string>{"a.dat"});
    EXPECT_EQ(made, 0);
    EXPECT_NE(std::filesystem::current_path(), folder.path());
    dialog.replace = true;
    text.reset();
    EXPECT_FALSE(save("a", 1)) << "a question on the way to the bytes is cancelled";
    EXPECT_EQ(contentOf("a.dat"), "alt");
    EXPECT_TRUE(boxes.shown.empty());
    text = "5 g/cm³\r\n";
    EXPECT_TRUE(save("a", 1));
    EXPECT_EQ(contentOf("a.dat"), "5 g/cm\xB3\r\n");
    EXPECT_EQ(std::filesystem::current_path(), folder.path());
}

TEST_F(ExportierenTest, AfterAFailureTheDialogComesAgain)
{
    dialog.next = {(folder / "Mg/Zn").string(), 1};
    EXPECT_FALSE(save("Al/Cu", 1)) << "no such folders";
    EXPECT_EQ(
        dialog.offeredAgain, (std::vector{(folder / "Al/Cu").string() + "|1", (folder / "Mg/Zn").string() + "|1"}));
    EXPECT_EQ(boxes.shown.size(), 2U);
    text = "";
    EXPECT_FALSE(save("a", 1));
    EXPECT_EQ(boxes.shown.at(2).text, "Es gibt nichts zu speichern: Für diese Dateiart ist kein Wert bekannt.");
    EXPECT_EQ(dialog.offeredAgain.size(), 3U) << "another kind may have values";
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ExportierenTest, BytesThatCannotBeMadeAreSaidAndLeaveNoFile)
{
    EXPECT_FALSE(save("b", 2)) << "the bytes cannot be made";
    EXPECT_FALSE(std::filesystem::exists(folder / "b.fri"));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0],
        (RecordingBoxes::Box{
            Icon::Exclamation, "Zerna", "Die Datei \"b.fri\" konnte nicht gespeichert werden:\r\nÜberlauf."}));
}

} // namespace zerna
