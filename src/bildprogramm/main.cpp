#include <QGuiApplication>
#include <QLocale>

#include "bildprogramm/Bildbefehl.h"
#include "cli/Befehlszeile.h"

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // there need not be a display
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // of the toolkit, in English
    int count = 1; // the arguments are the command's
    const QGuiApplication application(count, argv);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return zerna::runCommandLine(argc, argv, zerna::defineBildbefehl);
}
