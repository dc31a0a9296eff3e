#include <array>
#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "model/rechnung/Konstanten.h"
#include "model/reihen/Konzentrationsreihe.h"

namespace zerna {

namespace {

constexpr std::array<float, MaxKomponenten> Prozente{40, 20, 20, 10, 10};

std::vector<Legierungskomponente> komponenten(Aufbau& aufbau)
{
    std::vector<Legierungskomponente> result;
    for (std::size_t i = 0; i < Prozente.size(); ++i)
        result.push_back(aufbau.komponente(i, Prozente.at(i)));
    return result;
}

void reihe(benchmark::State& state)
{
    Aufbau aufbau;
    const auto alloy = komponenten(aufbau);
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(konzentrationsreihe(aufbau.calc, alloy, 0, FermienergieCode));
}

/// The same formulas from ready numbers, without a check anywhere.
Reihe bareSeries(const std::array<Anteil, MaxKomponenten>& teile)
{
    const double factor =
        1.0545716e-34 * 1.0545716e-34 / 2 / 9.109382e-31 * std::pow(3 * Pi * Pi, 2.0 / 3.0) / ElektronvoltInJoule;
    Reihe values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        double valenz = 0;
        float volumen = 0;
        for (std::size_t k = 0; k < teile.size(); ++k) {
            const auto step = static_cast<double>(i);
            const double prozent = k == 0 ? step : static_cast<double>(Prozente[k]) * (100 - step) / 100;
            valenz += prozent * teile[k].valenz;
            volumen = static_cast<float>(volumen + prozent * teile[k].molvolumen);
        }
        const double electrons = valenz / 100 * static_cast<float>(AvogadroProKubikmeter / (volumen / 100.0));
        values[i] = static_cast<float>(factor * std::pow(electrons, 2.0 / 3.0));
    }
    return values;
}

void reiheBloss(benchmark::State& state)
{
    Aufbau aufbau;
    const auto alloy = komponenten(aufbau);
    auto teile = anteile(alloy);
    const Reihe expected = konzentrationsreihe(aufbau.calc, alloy, 0, FermienergieCode);
    if (std::abs(bareSeries(teile)[40] - expected[40]) > 1e-5F * expected[40])
        state.SkipWithError("rechnet anders als die Reihe");
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(teile);
        benchmark::DoNotOptimize(bareSeries(teile));
    }
}

constexpr std::array<float, MaxKomponenten> Dichten{2.7F, 8.96F, 7.14F, 1.738F, 8.908F};

void dichte(benchmark::State& state)
{
    auto dichten = Dichten;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(dichten);
        benchmark::DoNotOptimize(dichtereihe(dichten, 0));
    }
}

/// The same line through ready numbers, without a check and with all that does not change in front of the loop.
void dichteBloss(benchmark::State& state)
{
    auto dichten = Dichten;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(dichten);
        double others = 0;
        for (std::size_t j = 1; j < dichten.size(); ++j)
            others += dichten[j];
        others /= static_cast<double>(dichten.size() - 1);
        Reihe values{};
        for (int i = 0; i <= 100; ++i)
            values[static_cast<std::size_t>(i)] =
                static_cast<float>((static_cast<double>(dichten[0]) * i + others * (100 - i)) / 100);
        benchmark::DoNotOptimize(values);
    }
}

} // namespace

void registerReiheBenchmarks()
{
    benchmark::RegisterBenchmark("Reihe/rechnen", reihe);
    benchmark::RegisterBenchmark("Reihe/bloße Schleife", reiheBloss);
    benchmark::RegisterBenchmark("Dichtereihe/rechnen", dichte);
    benchmark::RegisterBenchmark("Dichtereihe/bloße Schleife", dichteBloss);
}

} // namespace zerna
