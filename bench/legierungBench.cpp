#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/BloesseLegierung.h"

namespace zerna {

namespace {

constexpr std::array<std::string_view, MaxKomponenten> Zahlentexte{"3", "1", "2", "2", "0,6"};
constexpr std::array<std::string_view, MaxKomponenten> Formeltexte{"6/2", "2*e-4,4", "sqrt(4)", "pow(2;1)", "z_Ni"};

/// The compositions that the loops go through, so that no result can be reused.
std::array<float, MaxKomponenten> prozente(int step)
{
    const auto x = static_cast<float>(step % 41);
    return {60.0F - x, 20.0F + x, 10.0F, 7.5F, 2.5F};
}

BloesseLegierung::Groessen quantitiesOf(const clsCalc& calc)
{
    return {calc.Valenz(), calc.Teilchenzahldichte(), calc.Dichte(), calc.Atomvolumen(), calc.HallKoeffizient(),
        calc.Thermokraft(), calc.Plasmonenenergie(), calc.Fermienergie(), calc.Kf_2(), calc.Friedelwellenlaenge(),
        calc.Friedelminima(0), calc.Elektrondichte(), calc.Raumausfuellung(), calc.D_EF(), calc.Fermitemperatur(),
        calc.Energie_Elektron(), calc.Energie_El_System(), calc.Kompressionsmodul()};
}

/// Both must compute the same, or the comparison says nothing.
bool agree(const BloesseLegierung::Groessen& a, const BloesseLegierung::Groessen& b)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!(std::abs(a.at(i) - b.at(i)) <= 1e-6F * std::abs(b.at(i))))
            return false;
    }
    return true;
}

void legierung(benchmark::State& state, const std::array<std::string_view, MaxKomponenten>& valenztexte)
{
    Aufbau aufbau;
    aufbau.setValenztexte(valenztexte);
    BloesseLegierung bare(aufbau);
    for (std::size_t i = 0; i < valenztexte.size(); ++i)
        bare.setProzent(i, prozente(0).at(i));
    bare.recalculate();
    aufbau.enterAlloy(prozente(0));
    if (!agree(quantitiesOf(aufbau.calc), bare.quantities())) {
        state.SkipWithError("rechnet anders als die bloße Schleife");
        return;
    }
    int step = 0;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        aufbau.enterAlloy(prozente(++step));
        benchmark::DoNotOptimize(quantitiesOf(aufbau.calc));
    }
}

/// All components at once, their numbers read.
void legierungAufEinmal(benchmark::State& state)
{
    Aufbau aufbau;
    aufbau.setValenztexte(Zahlentexte);
    std::vector<Legierungskomponente> alloy;
    for (std::size_t i = 0; i < Zahlentexte.size(); ++i)
        alloy.push_back(aufbau.komponente(i, 0));
    int step = 0;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto p = prozente(++step);
        for (std::size_t i = 0; i < p.size(); ++i)
            alloy[i].prozent = p[i];
        aufbau.calc.Legierung_Setzen(alloy);
        benchmark::DoNotOptimize(quantitiesOf(aufbau.calc));
    }
}

/// An alloy in ready numbers and its composition at each step.
struct BloesseFolge {
    BloesseFolge() { aufbau.setValenztexte(Zahlentexte); }

    Aufbau aufbau;
    BloesseLegierung bare{aufbau};
    int step = 0;
};

/// Recalculates after each component, as the calculator must while they are added one by one.
void nachJeder(benchmark::State& state)
{
    BloesseFolge folge;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto p = prozente(++folge.step);
        for (std::size_t i = 0; i < p.size(); ++i) {
            folge.bare.setProzent(i, p[i]);
            folge.bare.recalculate();
            benchmark::DoNotOptimize(folge.bare);
        }
        benchmark::DoNotOptimize(folge.bare.quantities());
    }
}

/// Recalculates once, each quantity by its formula.
void einmal(benchmark::State& state)
{
    BloesseFolge folge;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto p = prozente(++folge.step);
        for (std::size_t i = 0; i < p.size(); ++i)
            folge.bare.setProzent(i, p[i]);
        folge.bare.recalculate();
        benchmark::DoNotOptimize(folge.bare.quantities());
    }
}

/// Recalculates once and computes what several quantities share once.
void eng(benchmark::State& state)
{
    BloesseFolge folge;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto p = prozente(++folge.step);
        for (std::size_t i = 0; i < p.size(); ++i)
            folge.bare.setProzent(i, p[i]);
        folge.bare.recalculateBasis();
        benchmark::DoNotOptimize(folge.bare.tightQuantities());
    }
    folge.bare.recalculate();
    if (!agree(folge.bare.tightQuantities(), folge.bare.quantities()))
        state.SkipWithError("rechnet anders als Größe für Größe");
}

} // namespace

void registerLegierungBenchmarks()
{
    benchmark::RegisterBenchmark("Legierung/Zahlen", legierung, Zahlentexte);
    benchmark::RegisterBenchmark("Legierung/Formeln", legierung, Formeltexte);
    benchmark::RegisterBenchmark("Legierung/auf einmal", legierungAufEinmal);
    benchmark::RegisterBenchmark("Legierung/bloße Schleife", nachJeder);
    benchmark::RegisterBenchmark("Legierung/Schleife, einmal", einmal);
    benchmark::RegisterBenchmark("Legierung/enge Schleife", eng);
}

} // namespace zerna
