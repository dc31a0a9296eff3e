// Prints how often the program reads a number, calculates and computes a diagram for one key and at its start. A
// program of its own: the counters stand in the way of the calls that the benchmarks time.

#include <QLineEdit>
#include <cstdio>

#include "bench/Fenster.h"
#include "support/Zaehlwerk.h"

namespace zerna {

namespace {

/// Prints a count with its aim and tells whether it is kept.
bool print(const char* text, int count, int most)
{
    const bool reached = count <= most;
    std::printf("  %-24s %3d   <= %d  %s\n", text, count, most, reached ? "erreicht" : "VERFEHLT");
    return reached;
}

bool printStart(const Zaehlwerk& start)
{
    std::puts("Start mit fünf Zeilen, bis das Fenster erscheint");
    const bool calculations = print("Rechnungen", start.rechnungen, 2);
    return print("Diagramme", start.diagramme, 1) && calculations;
}

bool printKey(const char* name, const Zaehlwerk& key)
{
    std::printf("Taste in %s, fünf Zeilen\n", name);
    const bool numbers = print("gelesene Zahlen", key.zahlen, 6);
    const bool calculations = print("Rechnungen", key.rechnungen, 1);
    return print("Diagramme", key.diagramme, 1) && numbers && calculations;
}

bool measure()
{
    const Zaehlwerk before = zaehlwerk();
    const Fenster fenster; // draws once more: another quantity is chosen in it
    Zaehlwerk start = zaehlwerk() - before;
    --start.diagramme;
    bool reached = printStart(start);
    for (const char* const name : {"txtProzent_0", "txtDichte_1", "txtValenz_1"}) {
        auto& field = fenster.find<QLineEdit>(name);
        field.setEnabled(true);
        field.setFocus();
        const Zaehlwerk unpressed = zaehlwerk();
        press(field, Qt::Key_5, QStringLiteral("5"));
        reached = printKey(name, zaehlwerk() - unpressed) && reached;
    }
    return reached;
}

} // namespace

} // namespace zerna

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return zerna::measure() ? 0 : 1;
}
