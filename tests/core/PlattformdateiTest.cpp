#include "core/Plattformdatei.h"

#include <cerrno>

#include "core/Exportdatei.h"
#include "support/FilesTest.h"
#include "support/Geraet.h"

namespace zerna {

struct PlattformdateiTest : FilesTest {
    PlattformdateiTest() { writeBytes(target, "alt"); }

    int exportTo(const std::filesystem::path& path) const
    {
        return errorNumber([&] { writeExport(path, "neu"); });
    }

    std::ptrdiff_t filesInFolder() const
    {
        return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    }

    const std::filesystem::path target = folder / "ä ß.dat";
};

TEST_F(PlattformdateiTest, WhatIsNoFileIsSaidBeforeItIsOpened)
{
    const std::tuple<std::filesystem::path, int, int> rows[] = {
        {folder.path(), EISDIR, 75}, {makePipe(folder / "pipe"), ENXIO, 75}, {folder / "fehlt" / "a.dat", ENOENT, 76}};
    for (const auto& [path, error, number] : rows) {
        errno = 0;
        EXPECT_EQ(openFile(path, "rb"), nullptr);
        EXPECT_EQ(errno, error) << path;
        EXPECT_EQ(exportTo(path), number) << path;
    }
}

TEST_F(PlattformdateiTest, ANewFileTakesThePlaceOfTheOldOneAndALivingOneIsLeftAlone)
{
    std::FILE* const living = createFile(folder / ".zerna-0.neu", true);
    ASSERT_NE(living, nullptr);
    EXPECT_EQ(createFile(folder / ".zerna-0.neu", true), nullptr);
    EXPECT_EQ(errno, EEXIST);
    writeBytes(folder / ".zerna-3.neu", "tot");
    EXPECT_EQ(exportTo(target), 0);
    EXPECT_EQ(bytesOf(target), "neu");
    EXPECT_EQ(filesInFolder(), 2) << "the dead one is gone";
    discard(folder / ".zerna-0.neu", living);
    EXPECT_EQ(filesInFolder(), 1);
}

#ifdef _WIN32
TEST_F(PlattformdateiTest, ATargetThatAnotherProgramKeepsOpenIsToldAndStaysAsItIs)
{
    std::FILE* const other = createFile(folder / "offen.dat", false); // shared for reading only
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(exportTo(folder / "offen.dat"), 70);
    EXPECT_EQ(filesInFolder(), 2);
    discard(folder / "offen.dat", other);
}
#endif

} // namespace zerna
