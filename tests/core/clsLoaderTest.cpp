#include "core/clsLoader.h"

#include <chrono>
#include <cstdlib>
#include <ctime>

#include "core/Plattform.h"
#include "support/FilesTest.h"

namespace zerna {

using clsLoaderTest = FilesTest;

#ifdef _WIN32
constexpr const char* Library = "msvcrt.dll";

void useTimeZone(const char* zone)
{
    _putenv_s("TZ", zone);
    _tzset();
}
#else
constexpr const char* Library = "libm.so.6";

void useTimeZone(const char* zone)
{
    setenv("TZ", zone, 1);
    tzset();
}
#endif

TEST_F(clsLoaderTest, TakesItsDateFromTheProgramFileInLocalTime)
{
    const auto program = folder / Programmdatei;
    writeBytes(program, "");
    const std::chrono::sys_seconds time(std::chrono::seconds(1235894703)); // 2009-03-01 08:05:03 UTC
    std::filesystem::last_write_time(program, std::chrono::file_clock::from_sys(time));
    useTimeZone("CET-1");
    clsLoader loader(boxes, folder.path());
    loader.Connect();
    EXPECT_EQ(loader.ApplicationPath(), (folder / "").string());
    EXPECT_EQ(loader.Creation_Date() + " " + loader.Creation_Time(), "1.3.2009 09:05:03");
    EXPECT_TRUE(!loader.IsFileFailed(program.string()) && loader.IsFileFailed(folder.path().string()));

    clsLoader atRoot(boxes, "/"); // where no program lies
    atRoot.Connect();
    EXPECT_EQ(atRoot.ApplicationPath() + atRoot.Creation_Date() + atRoot.Creation_Time(), "/");
    EXPECT_EQ(boxes.shown.at(0).caption + boxes.shown.at(0).text, "Fehler - cApplication ModulDatei nicht gefunden");
    EXPECT_EQ(versionText(1, 2, 17), "1.02.0017");
    EXPECT_TRUE(!atRoot.IsFunctionFailed(Library, "cos") && atRoot.IsFunctionFailed(Library, "cosinus"));
}

} // namespace zerna
