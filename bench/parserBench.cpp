#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <muParser.h>

#include "bench/Abstieg.h"
#include "bench/Aufbau.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

/// A formula and how the other parser spells it.
struct Formel {
    const char* text;
    const char* muParser;
};

constexpr std::array<Formel, 4> Formeln{{
    {"3/2", "3/2"},
    {"2*e-1", "2*e-1"},
    {"sqrt(4)+pow(2;3)", "sqrt(4)+2^3"},
    {"z_Cu", "z_Cu"},
}};

/// Plain numbers as they stand in valence fields; the first of each pair as typed, the second for the library.
struct Zahl {
    const char* name;
    std::string_view getippt;
    std::string_view mitPunkt;
};

constexpr std::array<Zahl, 3> Zahlen{{{"3", "3", "3"}, {"1,5", "1,5", "1.5"}, {"63,546", "63,546", "63.546"}}};

void formel(benchmark::State& state, const char* text)
{
    Aufbau aufbau;
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(aufbau.parser.Parse(text));
    if (aufbau.parser.LastError())
        state.SkipWithError("Fehler in der Formel");
}

void formelMuParser(benchmark::State& state, const char* text)
{
    mu::Parser parser;
    double valence = 1;
    parser.DefineVar("z_Cu", &valence);
    parser.DefineConst("e", 2.7182818284590452);
    const std::string formula = text;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        parser.SetExpr(formula);
        benchmark::DoNotOptimize(parser.Eval());
    }
}

void formelAbstieg(benchmark::State& state, std::string_view text)
{
    Aufbau aufbau;
    const Abstieg::Groesse known{"z_Cu", aufbau.elements.Item("Cu")->Valenz()};
    const std::string value = valueByDescent(text, known);
    if (doubleFromText(value) != doubleFromText(aufbau.parser.Parse(text)))
        state.SkipWithError("rechnet anders als die Formel");
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(text);
        benchmark::DoNotOptimize(valueByDescent(text, known));
    }
}

void zahl(benchmark::State& state, std::string_view text)
{
    Aufbau aufbau;
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(aufbau.parser.Parse(text));
}

void zahlStandardbibliothek(benchmark::State& state, std::string_view text)
{
    std::array<char, 32> buffer{};
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(text);
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr);
        benchmark::ClobberMemory();
    }
}

} // namespace

void registerParserBenchmarks()
{
    using namespace std::string_literals;
    for (const Formel& f : Formeln) {
        benchmark::RegisterBenchmark(("Formel/"s + f.text).c_str(), formel, f.text);
        benchmark::RegisterBenchmark(("muParser/"s + f.text).c_str(), formelMuParser, f.muParser);
        benchmark::RegisterBenchmark(("Abstieg/"s + f.text).c_str(), formelAbstieg, f.text);
    }
    for (const Zahl& z : Zahlen) {
        benchmark::RegisterBenchmark(("Zahl/"s + z.name).c_str(), zahl, z.getippt);
        benchmark::RegisterBenchmark(("from_chars+to_chars/"s + z.name).c_str(), zahlStandardbibliothek, z.mitPunkt);
    }
}

} // namespace zerna
