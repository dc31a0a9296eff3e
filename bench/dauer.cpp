// Types in the program's window and resizes it at random, as in a long day, and prints the memory that it holds after a
// tenth and in the end.
//
//     zerna_dauer [EDITS [fest]]    50000 edits without another wish; "fest" leaves the window as large as it is

#include <QApplication>
#include <QLineEdit>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "bench/Fenster.h"
#include "bench/Verbrauch.h"
#include "core/Speicherbedarf.h"

namespace zerna {

namespace {

class Arbeitstag {
public:
    explicit Arbeitstag(bool resizes)
        : m_resizes(resizes)
    {
    }

    void edit()
    {
        constexpr int EditsPerSize = 10;
        const std::string name = "txtProzent_" + std::to_string(between(0, 3));
        auto& field = m_fenster.find<QLineEdit>(name.c_str());
        if (m_resizes && m_edits++ % EditsPerSize == 0)
            field.window()->resize(between(800, 1920), between(600, 1200));
        field.setFocus();
        const int digit = between(0, 9);
        if (field.text().size() > 1)
            press(field, Qt::Key_Backspace);
        else
            press(field, Qt::Key_0 + digit, QString::number(digit));
    }

private:
    int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_random); }

    Fenster m_fenster;
    std::mt19937 m_random{1}; // NOLINT(cert-msc51-cpp): the same day every time
    bool m_resizes;
    int m_edits = 0;
};

/// Whether the program keeps its measure.
bool measure(int edits, bool resizes)
{
    constexpr double Most = 1.1;
    Arbeitstag tag(resizes);
    for (int i = 0; i < edits / 10; ++i)
        tag.edit();
    const double before = Verbrauch::memory();
    for (int i = edits / 10; i < edits; ++i)
        tag.edit();
    const double after = Verbrauch::memory();
    const bool reached = after <= Most * before;
    std::printf("Speicher nach %d Eingaben %.1f MB, nach %d %.1f MB: %.2f   <= %.1f  %s\n", edits / 10, before, edits,
        after, after / before, Most, reached ? "erreicht" : "VERFEHLT");
    return reached;
}

} // namespace

} // namespace zerna

int main(int argc, char** argv)
{
    constexpr int Edits = 50000;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    zerna::spareMemory();
    const QApplication application(argc, argv);
    return zerna::measure(argc > 1 ? std::atoi(argv[1]) : Edits, argc <= 2) ? 0 : 1;
}
