#include "core/Exportdatei.h"

#include <unistd.h>

#include "support/FilesTest.h"
#include "support/FullDisk.h"

namespace zerna {

struct ExportdateiTest : FilesTest {
    ExportdateiTest() { writeBytes(target, "alt"); }

    int exportTo(const std::filesystem::path& path) const
    {
        return errorNumber([&] { writeExport(path, "neuer Text\r\n"); });
    }

    const std::filesystem::path target = folder / "ä b.dat";
};

TEST_F(ExportdateiTest, ReplacesTheTargetAlsoThroughALink)
{
    std::filesystem::create_symlink(target, folder / "link.dat");
    EXPECT_EQ(exportTo(folder / "link.dat"), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.dat"));
    EXPECT_EQ(bytesOf(target), "neuer Text\r\n");
}

TEST_F(ExportdateiTest, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    const FullDisk disk(10);
    EXPECT_NE(exportTo(target), 0);
    EXPECT_EQ(bytesOf(target), "alt");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST_F(ExportdateiTest, SaysWhyATargetCannotBeWritten)
{
    EXPECT_EQ(exportTo(folder.path()), 75);
    EXPECT_EQ(exportTo(folder / "fehlt/a.dat"), 76);
    EXPECT_EQ(exportTo("/dev/full"), 61);
    std::filesystem::permissions(target, std::filesystem::perms::owner_read);
    EXPECT_EQ(exportTo(target), access(target.c_str(), W_OK) == 0 ? 0 : 70); // root may write everything
}

} // namespace zerna
