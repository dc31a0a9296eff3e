// Compares whole processes, run in turns: one call of zerna-cli with the smallest C++ program, and a list of alloys on
// standard input with the bare formulas for the same alloys. Prints medians of the ratios of neighbours.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include <fcntl.h>
#include <linux/perf_event.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bench/Aufbau.h"
#include "bench/BloesseLegierung.h"

namespace zerna {

namespace {

const std::string Programme = ZERNA_BENCH_PROGRAMS; // folder

/// What a process took. Instructions are those outside the kernel; 0 where nobody may count them.
struct Aufwand {
    double nanoseconds = 0;
    double instructions = 0;
};

/// Counts from the moment on at which the process becomes another program; -1 where that is not allowed.
int openCounter(pid_t process)
{
    perf_event_attr attributes{};
    attributes.type = PERF_TYPE_HARDWARE;
    attributes.size = sizeof attributes;
    attributes.config = PERF_COUNT_HW_INSTRUCTIONS;
    attributes.disabled = 1;
    attributes.enable_on_exec = 1;
    attributes.exclude_kernel = 1;
    return static_cast<int>(syscall(SYS_perf_event_open, &attributes, process, -1, -1, 0));
}

/// Becomes a program with that standard input once the other end of the pipe says so; its output goes nowhere.
[[noreturn]] void become(const std::vector<std::string>& call, const char* input, int start)
{
    char go = 0;
    const bool isReady = read(start, &go, 1) == 1;
    const int in = open(input, O_RDONLY);
    const int out = open("/dev/null", O_WRONLY);
    std::vector<char*> arguments;
    for (const std::string& argument : call)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    if (isReady && dup2(in, STDIN_FILENO) >= 0 && dup2(out, STDOUT_FILENO) >= 0)
        execv(arguments.front(), arguments.data());
    _exit(127);
}

/// Runs a program of the folder to its end.
Aufwand run(std::vector<std::string> call, const char* input = "/dev/null")
{
    call.front() = Programme + "/" + call.front();
    std::array<int, 2> start{};
    if (pipe(start.data()) != 0)
        return {};
    const pid_t process = fork();
    if (process == 0)
        become(call, input, start[0]);
    const int counter = openCounter(process);
    const bool isStarted = write(start[1], "", 1) == 1;
    int status = 0;
    rusage usage{};
    wait4(process, &status, 0, &usage);
    if (!isStarted || status != 0)
        std::printf("%s ließ sich nicht ausführen\n", call.front().c_str());
    std::uint64_t instructions = 0;
    if (counter < 0 || read(counter, &instructions, sizeof instructions) != sizeof instructions)
        instructions = 0;
    for (const int file : {start[0], start[1], counter})
        close(file);
    const auto nanoseconds = [](const timeval& t) {
        return 1e9 * static_cast<double>(t.tv_sec) + 1e3 * static_cast<double>(t.tv_usec);
    };
    return {nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime), static_cast<double>(instructions)};
}

double median(std::vector<double> values)
{
    std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
    return values.empty() ? 0 : values[values.size() / 2];
}

/// Prints a ratio with its aim, 0 for none.
void print(const char* text, double ratio, double most)
{
    const char* const verdict = most == 0 ? "(ohne Ziel)" : ratio <= most ? "erreicht" : "VERFEHLT";
    std::printf("  %-48s %7.2f", text, ratio);
    if (most > 0)
        std::printf("   <= %g", most);
    std::printf("  %s\n", verdict);
}

void compareCalls()
{
    constexpr int Pairs = 200;
    std::vector<double> instructions;
    std::vector<double> times;
    std::vector<double> linkedIn;
    for (int i = 0; i < Pairs; ++i) {
        const Aufwand call = run({"zerna-cli", "groessen", "Al60Cu40"});
        const Aufwand hallo = run({"zerna_hallo"});
        const Aufwand other = run({"zerna_hallo_eingebunden"});
        times.push_back(call.nanoseconds / hallo.nanoseconds);
        if (call.instructions > 0) {
            instructions.push_back(call.instructions / hallo.instructions);
            linkedIn.push_back(call.instructions / other.instructions);
        }
    }
    std::puts("Ein Aufruf (groessen Al60Cu40) : C++ hello world");
    if (!instructions.empty()) {
        print("Befehle", median(instructions), 1);
        print("Befehle; hello world mit eingebundener Bibliothek", median(linkedIn), 0);
    }
    print("CPU-Zeit", median(times), instructions.empty() ? 1 : 0);
}

/// A list of alloys, and the at% in it.
struct Liste {
    static constexpr int Zeilen = 50000;

    Liste()
    {
        for (int i = 0; i < Zeilen; ++i) {
            const std::array<float, 3> p{static_cast<float>(i % 997) / 20, static_cast<float>(i % 401) / 10, 0};
            prozente.push_back({p[0], p[1], 100 - p[0] - p[1]});
            for (std::size_t k = 0; k < 3; ++k)
                text.append(k == 0 ? "" : " ")
                    .append(Aufbau::Symbole.at(k))
                    .append("=")
                    .append(textOfSingle(prozente.back().at(k), Dezimaltrenner::Punkt));
            text += '\n';
        }
    }

    std::vector<std::array<float, 3>> prozente;
    std::string text;
};

double bareFormulas(const Liste& liste, BloesseLegierung& bare)
{
    const std::clock_t begin = std::clock();
    volatile float sink = 0;
    for (const auto& prozente : liste.prozente) {
        for (std::size_t k = 0; k < prozente.size(); ++k)
            bare.setProzent(k, prozente.at(k));
        bare.recalculate();
        for (const float value : bare.quantities())
            sink = value;
    }
    static_cast<void>(sink);
    return 1e9 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

void compareLists()
{
    constexpr int Pairs = 15;
    const Liste liste;
    std::array<char, 32> name{"/tmp/zerna_bench_XXXXXX"};
    const int file = mkstemp(name.data());
    if (file < 0 || write(file, liste.text.data(), liste.text.size()) != static_cast<ssize_t>(liste.text.size()))
        return;
    Aufbau aufbau;
    BloesseLegierung bare(aufbau, 3);
    std::vector<double> ratios;
    for (int i = 0; i < Pairs; ++i) {
        const double whole = run({"zerna-cli", "groessen", "--stapel"}, name.data()).nanoseconds;
        ratios.push_back(whole / bareFormulas(liste, bare));
    }
    close(file);
    unlink(name.data());
    std::printf("%d Legierungen auf der Standardeingabe, alle Größen gedruckt : bloße Formeln\n", Liste::Zeilen);
    print("CPU-Zeit", median(ratios), 30);
}

} // namespace

} // namespace zerna

int main()
{
    zerna::compareCalls();
    zerna::compareLists();
}
