#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include "bench/Fenster.h"

namespace zerna {

namespace {

constexpr QSize Fenstergroesse(1280, 800); // the diagram beside the fields is in sight

/// Two keys in turn, the second of which takes back what the first has done.
void tasten(
    benchmark::State& state, QWidget& widget, const std::pair<int, QString>& there, const std::pair<int, QString>& back)
{
    widget.window()->resize(Fenstergroesse);
    widget.setFocus();
    QCoreApplication::processEvents();
    bool isBack = false;
    for (auto _ : state) { // NOLINT(clang-analyzer-deadcode.DeadStores)
        const auto& [key, text] = isBack ? back : there;
        press(widget, key, text);
        isBack = !isBack;
    }
}

void imBlossenFeld(benchmark::State& state)
{
    QWidget window;
    auto* const field = new QLineEdit(&window);
    window.show();
    tasten(state, *field, {Qt::Key_5, QStringLiteral("5")}, {Qt::Key_Backspace, {}});
}

void elementMitPfeil(benchmark::State& state)
{
    const Fenster fenster;
    tasten(state, fenster.find<QComboBox>("cmbElement_0"), {Qt::Key_Down, {}}, {Qt::Key_Up, {}});
}

/// In the at% field of three components while a diagram of that type shows.
void imAnteil(benchmark::State& state, const char* typ)
{
    const Fenster fenster(3);
    fenster.choose("cmbDiagramm_Typ", fenster.find<QComboBox>("cmbDiagramm_Typ").findText(QString::fromUtf8(typ)));
    tasten(state, fenster.find<QLineEdit>("txtProzent_0"), {Qt::Key_5, QStringLiteral("5")}, {Qt::Key_Backspace, {}});
}

void imPeriodensystem(benchmark::State& state)
{
    const Fenster fenster;
    emit fenster.find<QAbstractButton>("optButton_1_1").clicked();
    tasten(state, fenster.find<QWidget>("picPSE"), {Qt::Key_Right, {}}, {Qt::Key_Left, {}});
}

} // namespace

void registerFensterBenchmarks()
{
    constexpr int Tasten = 200;
    benchmark::RegisterBenchmark("Taste/bloßes Feld", imBlossenFeld)->Iterations(Tasten);
    benchmark::RegisterBenchmark("Taste/Element", elementMitPfeil)->Iterations(Tasten);
    benchmark::RegisterBenchmark("Taste/at%, 2 D", imAnteil, "2 D")->Iterations(Tasten);
    benchmark::RegisterBenchmark("Taste/at%, ternär", imAnteil, "3 D - ternär")->Iterations(Tasten);
    benchmark::RegisterBenchmark("Taste/Periodensystem", imPeriodensystem)->Iterations(Tasten);
}

} // namespace zerna
