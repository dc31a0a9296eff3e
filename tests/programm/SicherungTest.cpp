#include "programm/Sicherung.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include "support/FilesTest.h"

namespace zerna {

struct SicherungTest : FilesTest {
    const std::filesystem::path ordner = folder / "neu" / "ä b";

    /// A run in a process of its own that keeps these bytes and is then killed.
    void runAndKill(const std::string& bytes) const
    {
        const pid_t run = fork();
        if (run == 0) {
            Sicherung sicherung(ordner);
            sicherung.schreibe([] { return "zuvor"; });
            sicherung.schreibe([bytes] { return bytes; });
            sicherung.warte();
            raise(SIGKILL);
        }
        int status = 0;
        waitpid(run, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    std::ptrdiff_t files() const { return std::distance(std::filesystem::directory_iterator(ordner), {}); }
};

TEST_F(SicherungTest, AKilledRunLeavesItsLastStateAndOneThatEndsLeavesNothing)
{
    runAndKill("eins");
    {
        const Sicherung next(ordner);
        EXPECT_EQ(next.hinterlassen(), "eins");
    }
    EXPECT_EQ(files(), 0);
    EXPECT_EQ(Sicherung(ordner).hinterlassen(), std::nullopt);
}

TEST_F(SicherungTest, RunsAtTheSameTimeHavePlacesOfTheirOwn)
{
    Sicherung first(ordner);
    first.schreibe([] { return "lebt"; });
    first.warte();
    runAndKill("tot");
    Sicherung second(ordner);
    EXPECT_EQ(second.hinterlassen(), "tot");
    const Sicherung third(ordner);
    EXPECT_EQ(third.hinterlassen(), std::nullopt);
    second.lasseLiegen(); // a later run gets it
    second.schreibe([] { return "anders"; });
    second.warte();
    EXPECT_FALSE(second.nimmFehler().has_value());
    second.schreibe([]() -> std::string { throw std::bad_alloc(); });
    second.warte();
    EXPECT_TRUE(second.nimmFehler().has_value()) << "the run goes on";
    EXPECT_EQ(Sicherung(ordner).hinterlassen(), "tot");
}

TEST_F(SicherungTest, WhatCannotBeReadNowIsNotWrittenOver)
{
    std::filesystem::create_directories(ordner / "sitzung-0.zerna");
    Sicherung run(ordner);
    EXPECT_EQ(run.hinterlassen(), std::nullopt);
    run.schreibe([] { return "eins"; });
    run.warte();
    EXPECT_FALSE(run.nimmFehler().has_value());
    EXPECT_EQ(bytesOf(ordner / "sitzung-1.zerna"), "eins");
}

TEST_F(SicherungTest, AFolderThatCannotBeWrittenIsToldOnceAndCostsNothingElse)
{
    writeBytes(folder / "datei", "");
    Sicherung sicherung(folder / "datei");
    EXPECT_EQ(sicherung.hinterlassen(), std::nullopt);
    sicherung.schreibe([] { return "x"; });
    sicherung.warte();
    EXPECT_TRUE(sicherung.nimmFehler().has_value());
    EXPECT_FALSE(sicherung.nimmFehler().has_value());
}

} // namespace zerna
