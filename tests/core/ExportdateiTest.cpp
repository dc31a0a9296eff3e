#include "core/Exportdatei.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/Datei.h"
#include "support/FilesTest.h"

namespace zerna {

struct ExportdateiTest : FilesTest {
    ExportdateiTest() { writeBytes(target, "alt"); }

    int exportTo(const std::filesystem::path& path) const
    {
        return errorNumber([&] { writeExport(path, "neuer Text\r\n"); });
    }

    /// The same as another user, in a process of its own.
    int exportToAsNobody(const std::filesystem::path& path) const
    {
        if (fork() == 0)
            _exit(setuid(65534) != 0 ? 1 : exportTo(path));
        int status = -1;
        wait(&status);
        return WEXITSTATUS(status);
    }

    std::ptrdiff_t filesInFolder() const
    {
        return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    }

    const std::filesystem::path target = folder / "ä b.dat";
};

TEST_F(ExportdateiTest, KeepsLinksFurtherNamesAndRights)
{
    std::filesystem::create_symlink(target.filename(), folder / "link.dat");
    std::filesystem::create_hard_link(target, folder / "zweiter Name");
    chmod(target.c_str(), 0640);
    EXPECT_EQ(exportTo(folder / "link.dat"), 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.dat"));
    EXPECT_EQ(bytesOf(folder / "zweiter Name"), "neuer Text\r\n");
    std::filesystem::remove(folder / "zweiter Name");
    writeBytes(target, "alt");
    EXPECT_EQ(exportTo(folder / "link.dat"), 0);
    struct stat file { };
    ASSERT_EQ(stat(target.c_str(), &file), 0);
    EXPECT_EQ(file.st_mode & 07777U, 0640U);
    std::filesystem::create_symlink("noch nicht", folder / "leer.dat");
    EXPECT_EQ(exportTo(folder / "leer.dat"), 0);
    EXPECT_EQ(bytesOf(folder / "noch nicht"), "neuer Text\r\n");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "leer.dat"));
    std::filesystem::create_symlink("kreis", folder / "kreis");
    EXPECT_EQ(exportTo(folder / "kreis"), 75);
}

TEST_F(ExportdateiTest, KeepsAnOwnerToWhomNoFileCanBeGiven)
{
    if (getuid() != 0)
        GTEST_SKIP() << "takes two users";
    chmod(target.c_str(), 0666);
    chmod(folder.path().c_str(), 0777);
    EXPECT_EQ(exportToAsNobody(target), 0);
    struct stat file { };
    ASSERT_EQ(stat(target.c_str(), &file), 0);
    EXPECT_EQ(file.st_uid, 0U);
    EXPECT_EQ(bytesOf(target), "neuer Text\r\n");
    chmod(target.c_str(), 0444);
    EXPECT_EQ(exportToAsNobody(target), 70);
    chmod(folder.path().c_str(), 0755);
    EXPECT_EQ(exportToAsNobody(folder / "neu.dat"), 70);
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(ExportdateiTest, SaysAtOnceWhyATargetCannotBeWritten)
{
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::pair<std::filesystem::path, int> rows[] = {{folder.path(), 75}, {folder / "pipe", 75}, {"/dev/null", 75},
        {folder / "fehlt/a.dat", 76}, {target / "a.dat", 76}, {"/proc/a.dat", 70}, {"", 52}};
    for (const auto& [path, number] : rows)
        EXPECT_EQ(exportTo(path), number) << path;
}

TEST_F(ExportdateiTest, ManyWritersInOneFolderKeepTheirFilesApart)
{
    constexpr int Writers = 6;
    constexpr int Files = 240;
    const auto contentOf = [](int file) { return std::string(3000U + 17U * file, static_cast<char>('a' + file % 26)); };
    for (int writer = 0; writer < Writers; ++writer) {
        if (fork() == 0) {
            for (int file = writer; file < Files; file += Writers)
                writeExport(folder / std::to_string(file), contentOf(file));
            _exit(0);
        }
    }
    while (wait(nullptr) > 0) { }
    for (int file = 0; file < Files; ++file)
        EXPECT_EQ(bytesOf(folder / std::to_string(file)), contentOf(file)) << file;
    EXPECT_EQ(filesInFolder(), Files + 1);
}

TEST_F(ExportdateiTest, ClearsWhatAKilledRunHasLeftAndNothingElse)
{
    const int living = open((folder / ".zerna-0.neu").c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(living, LOCK_EX), 0);
    writeBytes(folder / ".zerna-3.neu", "tot");
    writeBytes(folder / ".zerna-3.dat", "lebt");
    EXPECT_EQ(exportTo(target), 0);
    EXPECT_TRUE(std::filesystem::exists(folder / ".zerna-0.neu"));
    EXPECT_EQ(filesInFolder(), 3);
    close(living);
    EXPECT_EQ(exportTo(target), 0);
    EXPECT_EQ(filesInFolder(), 2);
}

} // namespace zerna
