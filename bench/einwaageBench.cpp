#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "model/einwaage/Einwaage.h"

namespace zerna {

namespace {

/// What one edit of a weighing computes: all masses, shares and the loss list, as texts.
void einwaage(benchmark::State& state)
{
    Aufbau aufbau;
    aufbau.enterAlloy({60, 20, 10, 7.5F, 2.5F});
    std::array<float, MaxKomponenten> massen{418, 328, 168, 47, 38};
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        massen[0] += 0.001F;
        for (const float masse : sollmassen(aufbau.calc, MaxKomponenten, 1000))
            benchmark::DoNotOptimize(massentext(masse));
        for (const auto& prozente : {gewogeneAtomprozente(aufbau.calc, massen), massenprozente(massen)}) {
            for (const float prozent : prozente)
                benchmark::DoNotOptimize(massentext(prozent));
        }
        benchmark::DoNotOptimize(verlustliste(aufbau.calc, massen, 5));
    }
}

} // namespace

void registerEinwaageBenchmarks() { benchmark::RegisterBenchmark("Einwaage/5 Komponenten", einwaage); }

} // namespace zerna
