#include <QGuiApplication>
#include <QLocale>

#include "bildprogramm/Bildbefehl.h"
#include "cli/Befehlszeile.h"
#include "core/Konsole.h"
#include "ui/platform/Bildschriften.h"

int main(int argc, char** argv)
{
#ifndef Q_OS_WIN // where every session has the platform's fonts, and the window's platform needs no display
    qputenv("QT_QPA_PLATFORM", "offscreen"); // there need not be a display
#endif
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // of the toolkit, in English
    zerna::Konsole konsole(argc, argv);
    int count = 1; // the arguments are the command's
    const QGuiApplication application(count, konsole.argv());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    zerna::ladeBildschriften();
    return zerna::runCommandLine(konsole.argc(), konsole.argv(), zerna::defineBildbefehl);
}
