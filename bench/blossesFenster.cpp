// The window that the program's start is compared with.

#include <QApplication>
#include <QLabel>

#include "bench/Verbrauch.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QLabel label(QStringLiteral("Zerna"));
    label.resize(1280, 800);
    label.show();
    zerna::settle();
    const zerna::Verbrauch start;
    zerna::printVerbrauch(start, start);
    return 0;
}
