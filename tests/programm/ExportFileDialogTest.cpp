#include "programm/ExportFileDialog.h"

#include "support/FakeServices.h"
#include "support/FilesTest.h"

namespace zerna {

struct ExportFileDialogTest : FilesTest {
    std::string ask(const std::string& name, int type)
    {
        dialog.answer = {(folder / name).string(), type};
        filterIndex = 7;
        return ExportFileDialog(dialog, filterIndex, "Titel", arten);
    }

    const std::vector<Exportart> arten{{"Text", "*.dat", ".dat", {}}, {"Bild", "", ".bmp", {}}};
    KeptCurrentFolder kept;
    FakeSaveDialog dialog;
    int filterIndex = 7;
};

TEST_F(ExportFileDialogTest, AddsTheExtensionOfTheKindAndEntersTheFolder)
{
    const struct {
        const char* name;
        const char* typed;
        int type;
        const char* file;
    } rows[] = {
        {"without extension", "werte", 1, "werte.dat"},
        {"with it", "werte.dat", 1, "werte.dat"},
        {"in capitals (intended: case counts)", "werte.DAT", 1, "werte.DAT.dat"},
        {"with another one", "x.bmp", 1, "x.bmp.dat"},
        {"second kind", "bild", 2, "bild.bmp"},
        {"second kind with the first one's", "ä b.dat", 2, "ä b.dat.bmp"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::filesystem::current_path("/");
        EXPECT_EQ(ask(row.typed, row.type), row.file);
        EXPECT_EQ(filterIndex, row.type);
        EXPECT_EQ(std::filesystem::current_path(), folder.path());
        EXPECT_EQ(dialog.offered, "Titel|Text|*.dat|Bild|");
    }
}

TEST_F(ExportFileDialogTest, LeavesEverythingAsItWasOnCancel)
{
    const auto before = std::filesystem::current_path();
    EXPECT_EQ(ExportFileDialog(dialog, filterIndex, "Titel", arten), "");
    EXPECT_EQ(ask("fehlt/a.dat", 1), "") << "the folder has disappeared";
    EXPECT_EQ(ask("a", 0), "") << "no kind";
    EXPECT_EQ(ask("a", 3), "") << "no such kind";
    EXPECT_EQ(filterIndex, 7);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

} // namespace zerna
