#include <array>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/Speicherzaehler.h"
#include "model/Ergebnisse.h"

namespace zerna {

namespace {

std::array<float, MaxKomponenten> prozente(int components, int step)
{
    const auto x = static_cast<float>(step % 41);
    if (components == 2)
        return {60.0F - x, 40.0F + x};
    return {60.0F - x, 20.0F + x, 10.0F, 7.5F, 2.5F};
}

/// One edit without a window: from the composition to the formatted result lines.
void bearbeitung(benchmark::State& state, int components)
{
    constexpr int Vorlauf = 41; // all compositions once, so that every text has found its memory
    Aufbau aufbau;
    aufbau.komponentenzahl = components;
    Ergebnistexte texte;
    int step = 0;
    const auto edit = [&] {
        aufbau.enterAlloy(prozente(components, ++step));
        return berechneErgebnisse(aufbau.calc, texte);
    };
    bool complete = true;
    for (int i = 0; i < Vorlauf; ++i)
        complete = edit() && complete;
    const std::size_t start = speicheranforderungen();
    aufbau.enterAlloy(prozente(components, ++step));
    float values = 0;
    for (const Groesse& zeile : ergebniszeilen())
        values += zeile.wert(aufbau.calc);
    benchmark::DoNotOptimize(values);
    const std::size_t quantities = speicheranforderungen() - start;
    complete = edit() && complete;
    const std::size_t all = speicheranforderungen() - start - quantities;
    if (!complete)
        state.SkipWithError("eine Zeile ließ sich nicht berechnen");
    state.counters["Speicher_Groessen"] = static_cast<double>(quantities);
    state.counters["Speicher_Texte"] = static_cast<double>(all - quantities);
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(edit());
}

} // namespace

void registerBearbeitungBenchmarks()
{
    for (const int components : {2, MaxKomponenten})
        benchmark::RegisterBenchmark(
            components == 2 ? "Bearbeitung/2 Komponenten" : "Bearbeitung/5 Komponenten", bearbeitung, components);
}

} // namespace zerna
