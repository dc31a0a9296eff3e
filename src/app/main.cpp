#include <QDir>
#include <QLocale>
#include <QStandardPaths>
#include <QTranslator>

#include <exception>
#include <memory>

#ifndef _WIN32
#include "bildprogramm/Bildprogramm.h"
#endif
#include "core/Plattform.h"
#include "core/Speicherbedarf.h"
#include "programm/Programm.h"
#include "ui/main/Sitzung.h"
#include "ui/main/frmMain.h"
#include "ui/platform/Anwendung.h"
#include "ui/platform/Bildschriften.h"
#include "ui/platform/Lesbarkeit.h"
#include "ui/platform/QtInputBox.h"
#include "ui/platform/QtMessageBoxes.h"
#include "ui/platform/QtOpenFileDialog.h"
#include "ui/platform/QtSaveFileDialog.h"
#include "ui/platform/QtSettingsStore.h"
#include "ui/platform/QtText.h"

namespace {

/// The user's own folder for what outlasts a run.
std::filesystem::path sessionFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return zerna::pathFromUtf8(zerna::fromQt(folder)) / zerna::clsLoader::ApplicationName();
}

void speakGerman()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* const german = new QTranslator(qApp);
    if (german->load(QStringLiteral(":/qtbase_de.qm")))
        QCoreApplication::installTranslator(german);
}

/// Dialogs begin in the current folder. Windows starts a program in the program's own, where nobody looks for files.
void leaveProgramFolder()
{
#ifdef Q_OS_WIN
    const QDir programFolder(QCoreApplication::applicationDirPath());
    if (QDir::current() == programFolder && QCoreApplication::arguments().size() == 1) // files may be named from here
        QDir::setCurrent(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
#endif
}

int run(zerna::Programm& programm, zerna::frmMain& window)
{
    if (!programm.StartupDone()) // the window is locked, and what a killed run has left waits for a better start
        return QApplication::exec();
    zerna::Sitzung session(programm, sessionFolder(), [&window] { return window.offeneDatei(); });
    QObject::connect(&window.verlauf().stapel(), &QUndoStack::indexChanged, &session, &zerna::Sitzung::geaendert);
    QObject::connect(&window, &zerna::frmMain::begonnen, &session, &zerna::Sitzung::geaendert);
    QObject::connect(&window, &zerna::frmMain::schliesst, &session, &zerna::Sitzung::ende);
    if (const auto last = session.beginn())
        window.setzeFort(*last);
    window.oeffneArgumente(QCoreApplication::arguments().mid(1));
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
#ifndef Q_OS_WIN // where a program with a window has no console
    if (std::filesystem::path(argv[0]).filename() == zerna::Bildprogramm)
        return zerna::runBildprogramm(argc, argv);
#endif
    zerna::surviveFileSizeLimit();
    zerna::spareMemory();
    zerna::QtMessageBoxes boxes;
#ifndef Q_OS_WIN
    // The platform's own dialogs would speak the platform's language; the toolkit's speak German like the program. On
    // Windows they are what users know, with their places and recent folders.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
#endif
    const zerna::Anwendung application(argc, argv, boxes);
    QApplication::setStyle(new zerna::LesbarerStil);
    zerna::ladeBildschriften();
    speakGerman();
    leaveProgramFolder();

    zerna::QtSettingsStore settings;
    zerna::QtSaveFileDialog saveDialog;
    zerna::QtInputBox inputBox;
    zerna::QtOpenFileDialog openDialog;
    zerna::Programm programm(boxes, settings, zerna::executableFolder());
    std::unique_ptr<zerna::frmMain> window;
    const auto createWindow = [&]() -> zerna::Hauptfenster& {
        window = std::make_unique<zerna::frmMain>(programm, zerna::Dialoge{saveDialog, inputBox, openDialog});
        return *window;
    };
    try {
        if (!programm.start(createWindow))
            return 1;
        return run(programm, *window);
    } catch (const std::exception& error) { // of the start: later ones the application shows
        zerna::showUnexpected(boxes, error, "Das Programm wird beendet.");
        return 1;
    }
}
