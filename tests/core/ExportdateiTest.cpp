#include "core/Exportdatei.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "core/Datei.h"
#include "support/FilesTest.h"
#include "support/FullDisk.h"

namespace zerna {

namespace {

constexpr int Dateien = 40;

std::string contentOf(int writer, int file)
{
    return std::string(static_cast<std::size_t>(3000 + 700 * writer + file), static_cast<char>('a' + writer));
}

std::string nameOf(int writer, int file) { return std::to_string(writer) + "-" + std::to_string(file); }

void writeMany(const std::filesystem::path& folder, int writer)
{
    for (int file = 0; file < Dateien; ++file)
        writeExport(folder / nameOf(writer, file), contentOf(writer, file));
}

/// Runs an action in a process of its own, which may become another user; its exit status.
template <class Action>
int inChild(Action&& action)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(action());
    int status = -1;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

} // namespace

struct ExportdateiTest : FilesTest {
    ExportdateiTest() { writeBytes(target, "alt"); }

    int exportTo(const std::filesystem::path& path) const
    {
        return errorNumber([&] { writeExport(path, "neuer Text\r\n"); });
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
    EXPECT_EQ(inChild([&] { return setuid(65534) != 0 ? 1 : exportTo(target); }), 0);
    struct stat file { };
    ASSERT_EQ(stat(target.c_str(), &file), 0);
    EXPECT_EQ(file.st_uid, 0U);
    EXPECT_EQ(bytesOf(target), "neuer Text\r\n");
    chmod(target.c_str(), 0444);
    EXPECT_EQ(inChild([&] { return setuid(65534) != 0 ? 1 : exportTo(target); }), 70);
    chmod(folder.path().c_str(), 0755);
    EXPECT_EQ(inChild([&] { return setuid(65534) != 0 ? 1 : exportTo(folder / "neu.dat"); }), 70);
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(ExportdateiTest, AFailedWriteLeavesTheOldFileAndNothingElse)
{
    const FullDisk disk(10);
    EXPECT_EQ(exportTo(target), 61);
    EXPECT_EQ(bytesOf(target), "alt");
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
    std::vector<pid_t> children;
    for (int pair = 0; pair < 3; ++pair) {
        children.push_back(fork());
        if (children.back() == 0) {
            std::thread other([&] { writeMany(folder.path(), 2 * pair); });
            writeMany(folder.path(), 2 * pair + 1);
            other.join();
            _exit(0);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    for (int i = 0; i < 6 * Dateien; ++i)
        EXPECT_EQ(bytesOf(folder / nameOf(i / Dateien, i % Dateien)), contentOf(i / Dateien, i % Dateien)) << i;
    EXPECT_EQ(filesInFolder(), 6 * Dateien + 1);
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
