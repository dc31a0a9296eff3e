#include <QApplication>
#include <QLineEdit>

#include <cmath>
#include <utility>

#include <benchmark/benchmark.h>

#include "bench/Fenster.h"
#include "bench/Latenz.h"
#include "bench/Zeichnen.h"

namespace zerna {

namespace {

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
        const double start = processorMilliseconds();
        const int digit = keys / 2 % 10;
        const bool types = keys++ % 2 == 0;
        if (types)
            press(field, Qt::Key_0 + digit, QString::number(digit));
        else
            press(field, Qt::Key_Backspace, {});
        milliseconds.push_back(processorMilliseconds() - start);
    }
    if (paintings.count < keys)
        state.SkipWithError("nicht nach jeder Taste gezeichnet");
    reportLatency(state, std::move(milliseconds));
}

} // namespace

void registerDiagrammBenchmarks()
{
    constexpr int Tasten = 500;
    registerZeichenBenchmarks();
    benchmark::RegisterBenchmark("Diagramm/Taste", taste, QSize(1280, 800))->Iterations(Tasten);
    benchmark::RegisterBenchmark("Diagramm/Taste, 2560x1600", taste, QSize(2560, 1600))->Iterations(Tasten);
}

} // namespace zerna
