#include "core/clsFileHandler.h"

#include "support/FilesTest.h"

namespace zerna {

struct clsFileHandlerTest : FilesTest {
    const std::string path = (folder / "ä.dat").string();
    clsFileHandler handler{files, boxes};
};

TEST_F(clsFileHandlerTest, WritesAndReadsLines)
{
    ASSERT_TRUE(handler.OpenFile(path, 0));
    handler.WriteLine("Maß\t1.5");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(path), "Ma\xDF\t1.5\r\n");
    writeBytes(path, "Ma\xDF\r\nzwei\n\rdrei");
    ASSERT_TRUE(handler.OpenFile(std::nullopt, 1)); // the stored name
    for (const char* const line : {"Maß", "zwei", "", "drei", ""}) // nothing behind the end
        EXPECT_EQ(handler.ReadLine(), line);
    EXPECT_TRUE(handler.FileEnd());
}

TEST_F(clsFileHandlerTest, SaysWhyAFileIsNotOpened)
{
    struct Row {
        std::string path;
        int modus;
        const char* message;
    };
    const Row rows[] = {
        {"", 1, ""},
        {path, 3, ""},
        {path, 1, "Datei nicht gefunden"},
        {path + "/a.dat", 0, "Pfad nicht gefunden"},
        {folder.path(), 1, "Fehler beim Zugriff auf Pfad/Datei"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.message);
        EXPECT_FALSE(handler.OpenFile(row.path, row.modus) || handler.FileEnd() || std::filesystem::exists(path));
        EXPECT_EQ(boxes.shown.empty() ? "" : boxes.shown.back().text, row.message);
    }
    EXPECT_EQ(boxes.shown.back().caption, "FileHandler - Öffnen");
    // It still counts the file as open and writes to whatever has that number.
    files.open(handler.FileHandle(), path, Zugriff::Ausgabe);
    handler.WriteLine("x");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(path), "x\r\n");
}

TEST_F(clsFileHandlerTest, ASecondFileClosesTheFirstAndCanBeReadAndWrittenAnywhere)
{
    writeBytes(path, "abcdef");
    ASSERT_TRUE(handler.OpenFile("/dev/full", 0));
    handler.WriteLine("x");
    ASSERT_TRUE(handler.OpenFile(path, 2));
    EXPECT_EQ(boxes.shown, std::vector<RecordingBoxes::Box>({{Icon::Exclamation, "FileHandler", "Datenträger voll"}}));
    Datei& file = files.at(1);
    EXPECT_EQ(file.readText(2), "ab");
    file.write("XY");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(path), "abXYef");
}

} // namespace zerna
