#include "programm/ExportFileDialog.h"

#include "support/FakeServices.h"
#include "support/FilesTest.h"

namespace zerna {

struct ExportFileDialogTest : FilesTest {
    std::string ask(const std::string& name, int type, bool isDiagram = false, bool is3D = false)
    {
        dialog.answer = {(folder / name).string(), type};
        filterIndex = 7;
        return ExportFileDialog(dialog, filterIndex, isDiagram, is3D);
    }

    KeptCurrentFolder kept;
    FakeSaveDialog dialog;
    int filterIndex = 7;
};

TEST_F(ExportFileDialogTest, AddsTheExtensionOfTheTypeAndEntersTheFolder)
{
    const std::tuple<const char*, int, bool, bool, const char*> rows[] = {
        {"werte.DAT", 1, false, false, "werte.DAT.dat"}, // Intended: case counts
        {"x.fri", 1, false, false, "x.fri.dat"},
        {"x.fri", 2, false, false, "x.fri"},
        {"ä b.dat", 2, false, false, "ä b.dat.fri"},
        {"bild", 2, true, false, "bild.bmp"},
        {"x.3dd", 1, true, false, "x.3dd.dat"},
        {"werte.dat", 1, true, true, "werte.dat.3dd"},
    };
    for (const auto& [typed, type, isDiagram, is3D, name] : rows) {
        SCOPED_TRACE(typed);
        std::filesystem::current_path("/");
        EXPECT_EQ(ask(typed, type, isDiagram, is3D), name);
        EXPECT_EQ(filterIndex, type);
        EXPECT_EQ(std::filesystem::current_path(), folder.path());
    }
}

TEST_F(ExportFileDialogTest, OffersTheTypesOfTheExport)
{
    const std::string title = "Daten exportieren ...";
    for (const auto& [isDiagram, is3D, types] :
        {std::tuple(false, false, "|DAT-File (*.dat)|*.dat|Friedelminima (*.fri)|*.fri"),
            {true, false, "|DAT-File (*.dat)|*.dat|Bitmap (*.bmp)|"},
            {true, true, "|Daten 3D (*.3dd)|*.3dd|Bitmap (*.bmp)|"}}) {
        ask("a", 1, isDiagram, is3D);
        EXPECT_EQ(dialog.offered, title + types);
    }
}

TEST_F(ExportFileDialogTest, LeavesEverythingAsItWasOnCancel)
{
    const auto before = std::filesystem::current_path();
    EXPECT_EQ(ExportFileDialog(dialog, filterIndex, false, false), "");
    EXPECT_EQ(ask("fehlt/a.dat", 1), "") << "the folder has disappeared";
    EXPECT_EQ(filterIndex, 7);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(ExportFileDialogTest, AsksBeforeTheAddedExtensionHitsAnotherFile)
{
    writeBytes(folder / "alt.dat", "alt");
    EXPECT_EQ(ask("alt.dat", 1), "alt.dat"); // the dialog itself has asked
    EXPECT_TRUE(dialog.asked.empty());
    EXPECT_EQ(ask("alt", 1), "");
    EXPECT_EQ(filterIndex, 7);
    dialog.replace = true;
    EXPECT_EQ(ask("alt", 1), "alt.dat");
    EXPECT_EQ(dialog.asked, (std::vector<std::string>{"alt.dat", "alt.dat"}));
}

} // namespace zerna
