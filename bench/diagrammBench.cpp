#include <QApplication>
#include <QLineEdit>

#include <algorithm>
#include <chrono>
#include <cmath>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/Fenster.h"
#include "bench/Zeichnen.h"
#include "model/Konstanten.h"
#include "model/Konzentrationsreihe.h"

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

void dichteBloss(benchmark::State& state)
{
    auto dichten = Dichten;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(dichten);
        Reihe values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            double sum = static_cast<double>(dichten[0]) * static_cast<double>(i) / 100;
            for (std::size_t j = 1; j < dichten.size(); ++j)
                sum += (100 - static_cast<double>(i)) / static_cast<double>(dichten.size() - 1) / 100 * dichten[j];
            values[i] = static_cast<float>(sum);
        }
        benchmark::DoNotOptimize(values);
    }
}

/// Counts how often a widget is painted.
class Malzaehler : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

/// One key in an at% field until nothing is left to do and everything is painted.
void taste(benchmark::State& state, const QSize& size)
{
    const Fenster fenster;
    auto& field = fenster.find<QLineEdit>("txtProzent_0");
    field.window()->resize(size); // the diagram beside it is in sight
    Malzaehler paintings;
    fenster.find<QWidget>("pic").installEventFilter(&paintings);
    field.setFocus();
    field.setText(QStringLiteral("2"));
    QCoreApplication::processEvents();
    paintings.count = 0;
    int keys = 0;
    std::vector<double> milliseconds;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto start = std::chrono::steady_clock::now();
        const int digit = keys / 2 % 10;
        const bool types = keys++ % 2 == 0;
        if (types)
            press(field, Qt::Key_0 + digit, QString::number(digit));
        else
            press(field, Qt::Key_Backspace, {});
        milliseconds.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    if (paintings.count < keys)
        state.SkipWithError("nicht nach jeder Taste gezeichnet");
    std::ranges::sort(milliseconds);
    state.counters["p50_ms"] = milliseconds[milliseconds.size() / 2];
    state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
}

} // namespace

void registerDiagrammBenchmarks()
{
    constexpr int Tasten = 500;
    benchmark::RegisterBenchmark("Reihe/rechnen", reihe);
    benchmark::RegisterBenchmark("Reihe/bloße Schleife", reiheBloss);
    benchmark::RegisterBenchmark("Dichtereihe/rechnen", dichte);
    benchmark::RegisterBenchmark("Dichtereihe/bloße Schleife", dichteBloss);
    registerZeichenBenchmarks();
    benchmark::RegisterBenchmark("Diagramm/Taste", taste, QSize(1280, 800))->Iterations(Tasten);
    benchmark::RegisterBenchmark("Diagramm/Taste, 2560x1600", taste, QSize(2560, 1600))->Iterations(Tasten);
}

} // namespace zerna
