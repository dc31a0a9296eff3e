#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "bench/Aufbau.h"
#include "bild/PSETafel.h"
#include "ui/picker/Periodentafel.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int Breite = 1600;
constexpr int Hoehe = 1000;

void periodentafel(benchmark::State& state)
{
    const Aufbau aufbau;
    Periodentafel tafel(aufbau.elements);
    tafel.resize(Breite, Hoehe);
    QImage image(tafel.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores)
        tafel.render(&image);
}

/// A filled, framed and rounded rectangle per element with its number, symbol, name and a sign, smooth as the table's
/// own, and nothing else.
void rechtecke(benchmark::State& state)
{
    const Aufbau aufbau;
    const Tafelmassstab scale(Breite, Hoehe);
    QImage image(Breite, Hoehe, QImage::Format_ARGB32_Premultiplied);
    QFont small;
    small.setPixelSize(14);
    QFont large;
    large.setPixelSize(33);
    large.setBold(true);
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const auto& element : aufbau.elements) {
            const Rechteck cell = scale.cell(element->X(), element->Y());
            const QRectF area = QRectF(cell.left, cell.top, cell.width, cell.height).adjusted(1.5, 1.5, -1.5, -1.5);
            painter.setPen(Qt::darkGray);
            painter.setBrush(Qt::lightGray);
            painter.drawRoundedRect(area, 3, 3);
            painter.setPen(Qt::NoPen);
            painter.setBrush(Qt::darkGray);
            painter.drawEllipse(QRectF(area.right() - 12, area.top() + 4, 8, 8));
            painter.setPen(Qt::black);
            painter.setFont(small);
            painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, QString::number(element->OZ()));
            painter.drawText(area, Qt::AlignHCenter | Qt::AlignBottom, toQt(element->Name()));
            painter.setFont(large);
            painter.drawText(area, Qt::AlignCenter, toQt(element->symbol()));
        }
    }
}

} // namespace

void registerPeriodentafelBenchmarks()
{
    benchmark::RegisterBenchmark("Periodentafel/zeichnen", periodentafel);
    benchmark::RegisterBenchmark("Periodentafel/Rechtecke", rechtecke);
}

} // namespace zerna
