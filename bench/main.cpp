// Runs the benchmarks and prints at the end what they say in relation to each other. Only ratios from one and the same
// run mean anything: times differ from machine to machine and from hour to hour.

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "model/rechnung/Groessen.h"

#ifdef ZERNA_WINDOW
#include <QApplication>
#endif

namespace zerna {

void registerParserBenchmarks();
void registerLegierungBenchmarks();
void registerElementdateiBenchmarks();
void registerBearbeitungBenchmarks();
void registerEinwaageBenchmarks();
void registerStapelBenchmarks();
void registerReiheBenchmarks();
void registerPeriodentafelBenchmarks();
void registerTernaerBenchmarks();
void registerDiagrammBenchmarks();
void registerFensterBenchmarks();

namespace {

/// Time of `first` over time of `second`, and the aim; without an aim it is only reported.
struct Verhaeltnis {
    const char* text;
    const char* first;
    const char* second;
    enum { Mindestens, Hoechstens, OhneZiel } art;
    double ziel;
};

constexpr auto Mindestens = Verhaeltnis::Mindestens;
constexpr auto Hoechstens = Verhaeltnis::Hoechstens;
constexpr auto OhneZiel = Verhaeltnis::OhneZiel;

constexpr std::array Verhaeltnisse{
    Verhaeltnis{"muParser : Formel \"3/2\"", "muParser/3/2", "Formel/3/2", Mindestens, 10},
    Verhaeltnis{"muParser : Formel \"2*e-1\"", "muParser/2*e-1", "Formel/2*e-1", Mindestens, 10},
    Verhaeltnis{"muParser : Formel \"sqrt(4)+pow(2;3)\"", "muParser/sqrt(4)+pow(2;3)", "Formel/sqrt(4)+pow(2;3)",
        Mindestens, 10},
    Verhaeltnis{"muParser : Formel \"z_Cu\"", "muParser/z_Cu", "Formel/z_Cu", Mindestens, 10},
    Verhaeltnis{"Formel \"3/2\" : Abstieg+to_chars", "Formel/3/2", "Abstieg/3/2", Hoechstens, 2},
    Verhaeltnis{"Formel \"2*e-1\" : Abstieg+to_chars", "Formel/2*e-1", "Abstieg/2*e-1", Hoechstens, 2},
    Verhaeltnis{"Formel \"sqrt(4)+pow(2;3)\" : Abstieg+to_chars", "Formel/sqrt(4)+pow(2;3)", "Abstieg/sqrt(4)+pow(2;3)",
        Hoechstens, 2},
    Verhaeltnis{"Formel \"z_Cu\" : Abstieg+to_chars", "Formel/z_Cu", "Abstieg/z_Cu", Hoechstens, 2},
    Verhaeltnis{"Zahl \"3\" : from_chars+to_chars", "Zahl/3", "from_chars+to_chars/3", Hoechstens, 1.3},
    Verhaeltnis{"Zahl \"1,5\" : from_chars+to_chars", "Zahl/1,5", "from_chars+to_chars/1,5", Hoechstens, 1.3},
    Verhaeltnis{"Zahl \"63,546\" : from_chars+to_chars", "Zahl/63,546", "from_chars+to_chars/63,546", Hoechstens, 1.3},
    Verhaeltnis{"Legierung, Zahlen : bloße Schleife", "Legierung/Zahlen", "Legierung/bloße Schleife", Hoechstens, 3},
    Verhaeltnis{"Legierung, Formeln : Zahlen", "Legierung/Formeln", "Legierung/Zahlen", Hoechstens, 1.1},
    Verhaeltnis{"Legierung auf einmal : Schleife, einmal", "Legierung/auf einmal", "Legierung/Schleife, einmal",
        Hoechstens, 1.5},
    Verhaeltnis{
        "Legierung auf einmal : enge Schleife", "Legierung/auf einmal", "Legierung/enge Schleife", Hoechstens, 4},
    Verhaeltnis{
        "Bearbeitung bis zu den Größen : Formeln", "Bearbeitung/Größen", "Bearbeitung/bloße Formeln", Hoechstens, 1.5},
    Verhaeltnis{"Stapel, Zeile zu Zeile : bloße Formeln", "Stapel/Zeilen", "Stapel/bloße Formeln", Hoechstens, 30},
    Verhaeltnis{"Elemente laden : lesen und kopieren", "Elementdatei/laden", "Elementdatei/kopieren", Hoechstens, 1.7},
    Verhaeltnis{"Periodentafel : 103 Rechtecke", "Periodentafel/zeichnen", "Periodentafel/Rechtecke", Hoechstens, 1.2},
    Verhaeltnis{
        "Ternärgitter : bloße Schleife", "Ternaergitter/rechnen", "Ternaergitter/bloße Schleife", Hoechstens, 2.5},
    Verhaeltnis{"Ternärdiagramm : Dreiecke füllen", "Ternaerdiagramm/drehen", "Ternaerdiagramm/Dreiecke", OhneZiel, 0},
    Verhaeltnis{"Reihe : bloße Schleife", "Reihe/rechnen", "Reihe/bloße Schleife", Hoechstens, 2.5},
    Verhaeltnis{"Dichtereihe : bloße Schleife", "Dichtereihe/rechnen", "Dichtereihe/bloße Schleife", Hoechstens, 1.5},
    Verhaeltnis{"Diagramm : bloßes Zeichnen", "Diagramm/neu zeichnen", "Diagramm/nur zeichnen", Hoechstens, 1.1},
    Verhaeltnis{"Pfeiltaste, Element : im bloßen Feld", "Taste/Element", "Taste/bloßes Feld", Hoechstens, 15},
    Verhaeltnis{"Pfeiltaste, PSE : im bloßen Feld", "Taste/Periodensystem", "Taste/bloßes Feld", Hoechstens, 8},
    Verhaeltnis{"at%-Taste, ternär : 2 D", "Taste/at%, ternär", "Taste/at%, 2 D", Hoechstens, 1},
    Verhaeltnis{"at%-Taste, 2560x1600 : 1280x800", "Diagramm/Taste, 2560x1600", "Diagramm/Taste", Hoechstens, 1.3},
};

/// CPU seconds below which a repetition says more about reading the clock than about what was measured.
constexpr double KuerzesteMessung = 0.0005;

/// Prints the medians only and keeps CPU time (ns) and counters of each.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    MedianReporter()
        : ConsoleReporter(OO_None)
    {
    }

    struct Median {
        double nanoseconds = 0;
        std::map<std::string, double> counters;
    };

    void ReportRuns(const std::vector<Run>& runs) override
    {
        std::vector<Run> shown;
        for (const Run& run : runs) {
            m_failed = m_failed || run.error_occurred;
            if (run.run_type == Run::RT_Iteration && run.cpu_accumulated_time < KuerzesteMessung)
                m_tooShort.insert(run.run_name.function_name);
            const bool isMedian = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (isMedian || run.error_occurred)
                shown.push_back(run);
            if (!isMedian)
                continue;
            Median& median = m_medians[run.run_name.function_name];
            median.nanoseconds = run.GetAdjustedCPUTime();
            for (const auto& [name, counter] : run.counters)
                median.counters[name] = counter.value;
        }
        ConsoleReporter::ReportRuns(shown);
    }

    const std::map<std::string, Median>& medians() const { return m_medians; }
    bool failed() const { return m_failed; }

    /// Hands out the names of what was measured too shortly and forgets them.
    std::set<std::string> takeTooShort() { return std::exchange(m_tooShort, {}); }

private:
    std::map<std::string, Median> m_medians;
    std::set<std::string> m_tooShort;
    bool m_failed = false;
};

/// The text filled up to the width of the table's first column; counts characters, not bytes.
std::string column(std::string text)
{
    constexpr std::ptrdiff_t Breite = 44;
    const auto length =
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80; });
    return text.append(static_cast<std::size_t>(std::max<std::ptrdiff_t>(Breite - length, 0)), ' ');
}

const char* verdict(bool reached) { return reached ? "erreicht" : "VERFEHLT"; }

void printRatio(const Verhaeltnis& v, const MedianReporter& reporter)
{
    const auto first = reporter.medians().find(v.first);
    const auto second = reporter.medians().find(v.second);
    if (first == reporter.medians().end() || second == reporter.medians().end())
        return; // left out by --benchmark_filter
    const double ratio = first->second.nanoseconds / second->second.nanoseconds;
    std::printf("%s %7.2f", column(v.text).c_str(), ratio);
    if (v.art == OhneZiel)
        std::puts("        (ohne Ziel)");
    else if (v.art == Mindestens)
        std::printf("   >= %2.0f  %s\n", v.ziel, verdict(ratio >= v.ziel));
    else
        std::printf("   <= %2.3g  %s\n", v.ziel, verdict(ratio <= v.ziel));
}

void printEdit(const char* name, const MedianReporter& reporter)
{
    const auto textCount = static_cast<double>(ergebniszeilen().size());
    const auto found = reporter.medians().find(name);
    if (found == reporter.medians().end())
        return;
    const auto& [nanoseconds, counters] = found->second;
    const double quantities = counters.at("Speicher_Groessen");
    const double texts = counters.at("Speicher_Texte");
    std::printf("%s %7.2f µs (ohne Ziel)\n", column(name).c_str(), nanoseconds / 1000);
    std::printf("%s %7.0f   <=  0  %s\n", column("  Speicheranforderungen ohne Texte").c_str(), quantities,
        verdict(quantities == 0));
    std::printf("%s %7.0f   <= %2.0f  %s\n", column("  Speicheranforderungen der Texte").c_str(), texts, textCount,
        verdict(texts <= textCount));
}

/// The benchmark's own time or one of its counters, in milliseconds.
void printTime(const char* name, const char* counter, double ziel, const MedianReporter& reporter)
{
    const auto found = reporter.medians().find(name);
    if (found == reporter.medians().end())
        return;
    const double ms = counter != nullptr ? found->second.counters.at(counter) : found->second.nanoseconds * 1e-6;
    const std::string text = std::string(name) + (counter != nullptr ? std::string(" ").append(counter, 3) : "");
    std::printf("%s %7.2f ms <= %2.0f  %s\n", column(text).c_str(), ms, ziel, verdict(ms <= ziel));
}

void registerBenchmarks()
{
    registerParserBenchmarks();
    registerLegierungBenchmarks();
    registerElementdateiBenchmarks();
    registerBearbeitungBenchmarks();
    registerEinwaageBenchmarks();
    registerStapelBenchmarks();
    registerReiheBenchmarks();
#ifdef ZERNA_WINDOW
    registerPeriodentafelBenchmarks();
    registerTernaerBenchmarks();
    registerDiagrammBenchmarks();
    registerFensterBenchmarks();
#endif
}

/// The expression that chooses these benchmarks and no others.
std::string expressionOf(const std::set<std::string>& names)
{
    std::string result;
    for (const std::string& name : names) {
        result += result.empty() ? "^(" : "|";
        for (const char c : name) {
            if (std::string_view("()*+^.").find(c) != std::string_view::npos)
                result += '\\';
            result += c;
        }
    }
    return result + ")$";
}

/// The search for a number of iterations ends when the wall clock has run five times as long as it should: on a busy
/// machine maybe with the first iteration, and the median is then the time of a clock. Such benchmarks run once more.
/// False if some stay too short.
bool runBenchmarks(MedianReporter& reporter)
{
    benchmark::RunSpecifiedBenchmarks(&reporter);
    auto tooShort = reporter.takeTooShort();
    for (int attempt = 0; attempt < 3 && !tooShort.empty(); ++attempt) {
        benchmark::RunSpecifiedBenchmarks(&reporter, expressionOf(tooShort));
        tooShort = reporter.takeTooShort();
    }
    for (const std::string& name : tooShort)
        std::cerr << "zu kurz gemessen: " << name << "\n";
    return tooShort.empty();
}

void printResults(const MedianReporter& reporter)
{
    std::cout << std::flush;
    std::printf("\n%s gemessen   Ziel\n", column("Verhältnisse der Mediane dieses Laufs").c_str());
    for (const auto& verhaeltnis : Verhaeltnisse)
        printRatio(verhaeltnis, reporter);
    printEdit("Bearbeitung/2 Komponenten", reporter);
    printEdit("Bearbeitung/5 Komponenten", reporter);
    printTime("Diagramm/neu zeichnen", nullptr, 2, reporter);
    printTime("Diagramm/Taste", "p50_ms", 8, reporter);
    printTime("Diagramm/Taste", "p99_ms", 8, reporter);
    printTime("Diagramm/Taste, 2560x1600", "p99_ms", 12, reporter);
    printTime("Ternaerdiagramm/drehen", "p99_ms", 8, reporter);
    printTime("Ternaerdiagramm/drehen, 2560x1600", "p99_ms", 16, reporter);
}

} // namespace

} // namespace zerna

int main(int argc, char** argv)
{
    // Repetitions in mixed order, so that a busy moment of the machine does not fall on one side of a ratio alone. What
    // the user gives comes later and so counts.
    std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=9", "--benchmark_min_time=0.05",
        "--benchmark_enable_random_interleaving=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers;
    std::ranges::transform(arguments, std::back_inserter(pointers), [](std::string& a) { return a.data(); });
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 2;

#ifdef ZERNA_WINDOW
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
#endif
    zerna::registerBenchmarks();
    zerna::MedianReporter reporter;
    const bool longEnough = zerna::runBenchmarks(reporter);
    zerna::printResults(reporter);
    return longEnough && !reporter.failed() ? 0 : 1;
}
