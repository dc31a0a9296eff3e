// Starts the program's window and a bare one with a label in turn, each as a process of its own, and prints what the
// program takes of the other: processor time until all is painted and memory, then and after every panel was shown.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "bench/Fenster.h"
#include "bench/Verbrauch.h"
#include "core/Speicherbedarf.h"
#include "ui/platform/Lesbarkeit.h"

namespace zerna {

namespace {

void showAll(const Fenster& fenster)
{
    for (const char* const panel : {"optButton_1_1", "optButton_1_2", "optButton_1_0", "cmdKnopf1_1", "cmdKnopf1_0"}) {
        emit fenster.find<QAbstractButton>(panel).clicked();
        settle();
    }
    for (int i = 0; i < fenster.find<QComboBox>("cmbDiagramm_Typ").count(); ++i) {
        fenster.choose("cmbDiagramm_Typ", i);
        settle();
    }
}

void measureProgram()
{
    const Fenster fenster(3);
    settle();
    const Verbrauch start;
    showAll(fenster);
    printVerbrauch(start, Verbrauch());
}

std::vector<double> measured(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    std::vector<double> numbers;
    for (const QByteArray& word : process.readAllStandardOutput().simplified().split(' '))
        numbers.push_back(word.toDouble());
    numbers.resize(3);
    return numbers;
}

int compare()
{
    constexpr int Pairs = 15;
    struct Zeile {
        const char* text;
        double ziel;
        std::vector<double> ratios;
    };
    std::array<Zeile, 3> rows{{{"Start bis zum ganzen Bild, Prozessorzeit", 1.7, {}},
        {"Speicher nach dem Start", 1.2, {}}, {"Speicher nach allen Bereichen", 1.3, {}}}};
    for (int i = 0; i < Pairs; ++i) {
        const auto program = measured(QCoreApplication::applicationFilePath(), {QStringLiteral("messen")});
        const auto bare = measured(QStringLiteral(ZERNA_BARE_WINDOW), {});
        for (std::size_t k = 0; k < rows.size(); ++k)
            rows.at(k).ratios.push_back(program[k] / bare[k]);
    }
    std::puts("Programm : bloßes Fenster, Mediane der Verhältnisse von Paaren");
    for (auto& [text, ziel, ratios] : rows) {
        std::ranges::sort(ratios);
        const double median = ratios[ratios.size() / 2];
        std::printf("  %-42s %5.2f   <= %.1f  %s\n", text, median, ziel, median <= ziel ? "erreicht" : "VERFEHLT");
    }
    return 0;
}

} // namespace

} // namespace zerna

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    zerna::spareMemory();
    const QApplication application(argc, argv);
    if (argc == 1)
        return zerna::compare();
    QApplication::setStyle(new zerna::LesbarerStil); // as the program does
    zerna::measureProgram();
    return 0;
}
