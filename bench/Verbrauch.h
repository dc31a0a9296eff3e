#pragma once

#include <QCoreApplication>

#include <sys/resource.h>

#include <cstdio>
#include <fstream>
#include <string>

/// What a process has taken, for programs that are compared as processes.
namespace zerna {

/// As it stands when the value is made.
struct Verbrauch {
    double milliseconds = processorTime();
    double megabytes = memory();

    /// Of the program and, on its behalf, of the system.
    static double processorTime()
    {
        rusage used{};
        getrusage(RUSAGE_SELF, &used);
        const auto of = [](const timeval& time) {
            return 1e3 * static_cast<double>(time.tv_sec) + 1e-3 * static_cast<double>(time.tv_usec);
        };
        return of(used.ru_utime) + of(used.ru_stime);
    }

    static double memory()
    {
        std::ifstream status("/proc/self/status");
        std::string word;
        while (status >> word && word != "VmRSS:") { }
        double kilobytes = 0;
        status >> kilobytes;
        return kilobytes / 1024;
    }
};

/// Until nothing is left to do and everything is painted.
inline void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

/// Time and memory when the window was there, and memory in the end.
inline void printVerbrauch(const Verbrauch& start, const Verbrauch& end)
{
    std::printf("%g %g %g\n", start.milliseconds, start.megabytes, end.megabytes);
}

} // namespace zerna
