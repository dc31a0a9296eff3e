#include <QImage>
#include <QPainter>

#include <cmath>
#include <utility>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bench/Latenz.h"
#include "model/rechnung/Konstanten.h"
#include "ui/diagram/Ternaerdiagramm.h"

namespace zerna {

namespace {

constexpr int Feinste = 10;
constexpr QSize Bildgroesse(1000, 700);

std::vector<Legierungskomponente> komponenten(Aufbau& aufbau)
{
    std::vector<Legierungskomponente> result;
    for (std::size_t i = 0; i < 3; ++i)
        result.push_back(aufbau.komponente(i, 0));
    return result;
}

void gitter(benchmark::State& state)
{
    Aufbau aufbau;
    const auto three = komponenten(aufbau);
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        benchmark::DoNotOptimize(ternaergitter(aufbau.calc, three, FermienergieCode, Feinste));
}

/// The same formulas from ready numbers, without a check anywhere.
void gitterBloss(benchmark::State& state)
{
    Aufbau aufbau;
    const auto teile = anteile(komponenten(aufbau));
    const double factor =
        1.0545716e-34 * 1.0545716e-34 / 2 / 9.109382e-31 * std::pow(3 * Pi * Pi, 2.0 / 3.0) / ElektronvoltInJoule;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        std::vector<float> werte;
        werte.reserve(101 * 102 / 2);
        for (int i = 0; i <= 100; ++i) {
            for (int j = 0; i + j <= 100; ++j) {
                const std::array<int, 3> prozente{i, j, 100 - i - j};
                double valenz = 0;
                float volumen = 0;
                for (std::size_t k = 0; k < 3; ++k) {
                    valenz += prozente[k] * teile[k].valenz;
                    volumen = static_cast<float>(volumen + prozente[k] * teile[k].molvolumen);
                }
                const double electrons = valenz / 100 * static_cast<float>(AvogadroProKubikmeter / (volumen / 100.0));
                werte.push_back(static_cast<float>(factor * std::pow(electrons, 2.0 / 3.0)));
            }
        }
        benchmark::DoNotOptimize(werte);
    }
}

void frames(benchmark::State& state, QSize size)
{
    Aufbau aufbau;
    Ternaerdiagramm diagramm;
    diagramm.setAngaben(ternaerangaben(aufbau.calc, komponenten(aufbau), FermienergieCode, Feinste));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    std::vector<double> milliseconds;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const double start = processorMilliseconds();
        QPainter painter(&image);
        diagramm.setAnsicht(rotated(diagramm.ansicht(), 0, 1));
        diagramm.paint(painter, {size, QFont(), 1});
        painter.end();
        milliseconds.push_back(processorMilliseconds() - start);
    }
    reportLatency(state, std::move(milliseconds));
}

/// The surface's triangles filled one after the other as they come.
void dreiecke(benchmark::State& state)
{
    Aufbau aufbau;
    const Ternaergitter grid = ternaergitter(aufbau.calc, komponenten(aufbau), FermienergieCode, Feinste);
    const auto triangles = triangulate(grid);
    const Wertebereich range = wertebereich(grid.werte);
    QImage image(Bildgroesse, QImage::Format_ARGB32_Premultiplied);
    Ansicht ansicht;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        ansicht = rotated(ansicht, 0, 1);
        const Projektion projektion(ansicht, {0, 0, Bildgroesse.width() - 194.0, Bildgroesse.height() - 68.0});
        std::vector<QPointF> points(grid.werte.size());
        for (int i = 0; i <= grid.n; ++i) {
            for (int j = 0; i + j <= grid.n; ++j) {
                const double z = heightShare(grid.wert(i, j), range) * SurfaceHeight;
                const Bildpunkt p = projektion.project(placeOf({i / 100.0, j / 100.0, (100 - i - j) / 100.0}, z));
                points[grid.position(i, j)] = {p.x, p.y};
            }
        }
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        for (const auto& [corner] : triangles) {
            const Farbe colour = farbskala(heightShare(grid.werte[corner[0]], range));
            painter.setBrush(QColor(colour.red, colour.green, colour.blue));
            const std::array polygon{points[corner[0]], points[corner[1]], points[corner[2]]};
            painter.drawConvexPolygon(polygon.data(), 3);
        }
    }
}

} // namespace

void registerTernaerBenchmarks()
{
    constexpr int FullTurn = 360;
    benchmark::RegisterBenchmark("Ternaergitter/rechnen", gitter);
    benchmark::RegisterBenchmark("Ternaergitter/bloße Schleife", gitterBloss);
    benchmark::RegisterBenchmark("Ternaerdiagramm/drehen", frames, Bildgroesse)->Iterations(FullTurn);
    benchmark::RegisterBenchmark("Ternaerdiagramm/drehen, 2560x1600", frames, QSize(2560, 1600))->Iterations(FullTurn);
    benchmark::RegisterBenchmark("Ternaerdiagramm/Dreiecke", dreiecke)->Iterations(FullTurn);
}

} // namespace zerna
