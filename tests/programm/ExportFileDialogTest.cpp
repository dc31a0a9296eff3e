#include "programm/ExportFileDialog.h"

#include "support/FakeServices.h"
#include "support/FilesTest.h"

namespace zerna {

struct ExportFileDialogTest : FilesTest {
    std::string ask(const std::string& name, int type)
    {
        dialog.answer = {(folder / name).string(), type};
        filterIndex = 7;
        return ExportFileDialog(dialog, boxes, filterIndex, "Titel", arten);
    }

    const std::vector<Exportart> arten{{"Text", "*.dat", ".dat", {}, true}, {"Bild", "", ".png", {}}};
    KeptCurrentFolder kept;
    FakeSaveDialog dialog;
    int filterIndex = 7;
};

TEST_F(ExportFileDialogTest, AnswersNameAndKindAndEntersTheFolder)
{
    const std::tuple<const char*, int, const char*, int> rows[] = {
        {"werte", 1, "werte.dat", 1}, {"werte.DAT", 1, "werte.DAT.dat", 1}, {"bild.PNG", 1, "bild.PNG", 2}};
    for (const auto& [typed, type, name, kind] : rows) {
        SCOPED_TRACE(typed);
        std::filesystem::current_path("/");
        EXPECT_EQ(ask(typed, type), name);
        EXPECT_EQ(filterIndex, kind);
        EXPECT_EQ(std::filesystem::current_path(), folder.path());
        EXPECT_EQ(dialog.offered, "Titel|Text|*.dat|Bild|");
    }
    EXPECT_TRUE(boxes.shown.empty() && dialog.offeredAgain.empty());
}

TEST_F(ExportFileDialogTest, RefusedNameIsOfferedAgain)
{
    dialog.next = {(folder / "b").string(), 2};
    EXPECT_EQ(ask("Al/Cu", 1), "b.png");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_NE(boxes.shown.front().text.find("keinen Ordner \"Al\""), std::string::npos);
    writeBytes(folder / "alt.dat", "");
    EXPECT_EQ(ask("alt", 1), "") << "the file is to stay, and no other name is given";
    EXPECT_EQ(dialog.asked, std::vector<std::string>{"alt.dat"});
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(dialog.offeredAgain, (std::vector{(folder / "Al/Cu").string() + "|1", (folder / "alt").string() + "|1"}));
}

TEST_F(ExportFileDialogTest, LeavesEverythingAsItWasOnCancel)
{
    const auto before = std::filesystem::current_path();
    EXPECT_EQ(ExportFileDialog(dialog, boxes, filterIndex, "Titel", arten), "");
    EXPECT_EQ(ask("fehlt/a.dat", 1), "") << "the folder has disappeared";
    EXPECT_EQ(ask("a", 0), "") << "no kind";
    EXPECT_EQ(ask("a", 3), "") << "no such kind";
    EXPECT_EQ(filterIndex, 7);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

} // namespace zerna
