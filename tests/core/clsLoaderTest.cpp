#include "core/clsLoader.h"

#include <cstdlib>

#include <sys/time.h>

#include "core/Plattform.h"
#include "support/FilesTest.h"

namespace zerna {

using clsLoaderTest = FilesTest;

TEST_F(clsLoaderTest, TakesItsDateFromTheProgramFileInLocalTime)
{
    const auto program = folder / Programmdatei;
    writeBytes(program, "");
    const timeval times[2]{{0, 0}, {1235894703, 0}}; // 2009-03-01 08:05:03 UTC
    ASSERT_EQ(utimes(program.c_str(), times), 0);
    setenv("TZ", "CET-1", 1);
    tzset();
    clsLoader loader(boxes, folder.path());
    loader.Connect();
    EXPECT_EQ(loader.ApplicationPath(), folder.path().string() + "/");
    EXPECT_EQ(loader.Creation_Date() + " " + loader.Creation_Time(), "1.3.2009 09:05:03");
    EXPECT_TRUE(!loader.IsFileFailed(program.string()) && loader.IsFileFailed(folder.path().string()));

    clsLoader atRoot(boxes, "/"); // where no program lies
    atRoot.Connect();
    EXPECT_EQ(atRoot.ApplicationPath() + atRoot.Creation_Date() + atRoot.Creation_Time(), "/");
    EXPECT_EQ(boxes.shown.at(0).caption + boxes.shown.at(0).text, "Fehler - cApplication ModulDatei nicht gefunden");
    EXPECT_EQ(versionText(1, 2, 17), "1.02.0017");
    EXPECT_TRUE(!atRoot.IsFunctionFailed("libm.so.6", "cos") && atRoot.IsFunctionFailed("libm.so.6", "cosinus"));
}

} // namespace zerna
