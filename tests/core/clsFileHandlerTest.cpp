#include "core/clsFileHandler.h"

#include "core/Datei.h"
#include "support/FilesTest.h"
#include "support/Geraet.h"

namespace zerna {

struct clsFileHandlerTest : FilesTest {
    const std::filesystem::path file = folder / "ä.dat";
    const std::string path = utf8FromPath(file);
    clsFileHandler handler{files, boxes};
};

TEST_F(clsFileHandlerTest, WritesAndReadsLines)
{
    ASSERT_TRUE(handler.OpenFile(path, 0));
    handler.WriteLine("Maß\t1.5");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(file), "Ma\xDF\t1.5\r\n");
    writeBytes(file, "Ma\xDF\r\nzwei\n\rdrei");
    ASSERT_TRUE(handler.OpenFile(std::nullopt, 1)); // the stored name
    for (const char* const line : {"Maß", "zwei", "", "drei", ""}) // nothing behind the end
        EXPECT_EQ(handler.ReadLine(), line);
    EXPECT_TRUE(handler.FileEnd());
    handler.CloseFile();
    handler.WriteLine("x");
    EXPECT_EQ(handler.ReadLine(), "") << "closed";
}

TEST_F(clsFileHandlerTest, SaysWhyAFileIsNotOpened)
{
    const std::tuple<std::string, int, const char*> rows[] = {{"", 1, ""}, {path, 3, ""},
        {path, 1, "Datei nicht gefunden"}, {path + "/a.dat", 0, "Pfad nicht gefunden"},
        {folder.path().string(), 1, "Fehler beim Zugriff auf Pfad/Datei (das ist ein Ordner)"},
        {makePipe(folder / "pipe").string(), 0, "Fehler beim Zugriff auf Pfad/Datei (das ist keine gewöhnliche Datei)"},
        {Geraet, 2, "Fehler beim Zugriff auf Pfad/Datei (das ist keine gewöhnliche Datei)"}};
    for (const auto& [name, modus, message] : rows) {
        EXPECT_FALSE(handler.OpenFile(name, modus) || handler.FileEnd() || std::filesystem::exists(file)) << name;
        EXPECT_EQ(boxes.shown.empty() ? "" : boxes.shown.back().text, message);
    }
    EXPECT_EQ(boxes.shown.back().caption, "FileHandler - Öffnen");
    // It still counts the file as open and writes to whatever has that number.
    files.open(handler.FileHandle(), file, Zugriff::Ausgabe);
    handler.WriteLine("x");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(file), "x\r\n");
}

TEST_F(clsFileHandlerTest, ASecondFileClosesTheFirstAndCanBeReadAndWrittenAnywhere)
{
    writeBytes(file, "abcdef");
    files.open(1, folder / "fremd.dat", Zugriff::Ausgabe);
    ASSERT_TRUE(handler.OpenFile((folder / "erste.dat").string(), 0));
    handler.WriteLine("x");
    ASSERT_TRUE(handler.OpenFile(path, 2));
    EXPECT_EQ(bytesOf(folder / "erste.dat"), "x\r\n");
    Datei& opened = files.at(handler.FileHandle());
    EXPECT_EQ(opened.readText(2), "ab");
    opened.write("XY");
    handler.CloseFile();
    EXPECT_EQ(bytesOf(file), "abXYef");
}

} // namespace zerna
