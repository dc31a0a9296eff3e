#include "bildprogramm/Bildprogramm.h"

#include <QGuiApplication>
#include <QLocale>

#include "bildprogramm/Bildbefehl.h"
#include "cli/Befehlszeile.h"
#include "core/Konsole.h"
#include "ui/platform/Bildschriften.h"

namespace zerna {

int runBildprogramm(int argc, char** argv)
{
#ifndef Q_OS_WIN // where every session has the platform's fonts, and the window's platform needs no display
    qputenv("QT_QPA_PLATFORM", "offscreen"); // there need not be a display
#endif
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // of the toolkit, in English
    Konsole konsole(argc, argv);
    int count = 1; // the arguments are the command's
    const QGuiApplication application(count, konsole.argv());
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ladeBildschriften();
    return runCommandLine(konsole.argc(), konsole.argv(), defineBildbefehl);
}

} // namespace zerna
