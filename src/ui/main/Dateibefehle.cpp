#include "ui/main/Dateibefehle.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <algorithm>

#include "programm/Messkurvenoeffnung.h"
#include "ui/controls/Menue.h"
#include "ui/main/Titeldialog.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// A file's name as a menu entry.
QString dateieintrag(int number, const QString& file)
{
    return QStringLiteral("&%1  %2").arg(number).arg(menuetext(QFileInfo(file).fileName()));
}

bool isDrop(const QEvent& event)
{
    return event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove || event.type() == QEvent::Drop;
}

} // namespace

Dateibefehle::Dateibefehle(Programm& programm, Dialoge dialoge, QWidget& window)
    : QObject(&window)
    , m_programm(programm)
    , m_dateien(programm, dialoge.save, dialoge.open)
    , m_window(window)
    , m_ohneDatei(window.windowTitle())
{
    window.setAcceptDrops(true);
    qApp->installEventFilter(this); // a field would take the name of a dropped file as text
}

void Dateibefehle::addBefehle(Menue& menue)
{
    using enum Menue::Abschnitt;
    menue.add(Dateien,
        {.text = QStringLiteral("&Neu"),
            .name = "mnuNeu",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_N)},
            .tun = [this] { zeigeErsetztes(m_dateien.neu()); }});
    menue.add(Dateien,
        {.text = QStringLiteral("Ö&ffnen ..."),
            .name = "mnuOeffnen",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_O)},
            .tun = [this] { zeigeErsetztes(m_dateien.oeffne()); }});
    QMenu* const recent = menue.addUntermenue(Dateien, QStringLiteral("&Zuletzt geöffnet"));
    recent->setObjectName(QStringLiteral("mnuZuletzt"));
    recent->setToolTipsVisible(true);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillZuletzt(*recent); });
    addSpeichern(menue);
}

void Dateibefehle::addSpeichern(Menue& menue)
{
    using enum Menue::Abschnitt;
    menue.add(Dateien,
        {.text = QStringLiteral("&Speichern"),
            .name = "mnuSpeichern",
            .tasten = {QKeySequence(Qt::CTRL | Qt::Key_S)},
            .tun = [this] { zeigeGespeichertes(m_dateien.speichere()); }});
    menue.add(Dateien,
        {.text = QStringLiteral("Speichern &unter ..."),
            .name = "mnuSpeichernUnter",
            .tasten = {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
            .tun = [this] { zeigeGespeichertes(m_dateien.speichereUnter()); }});
    menue.add(Dateien,
        {.text = QStringLiteral("&Titel und Bemerkung ..."), .name = "mnuTitel", .tun = [this] { editTitel(); }});
}

void Dateibefehle::fillZuletzt(QMenu& menu)
{
    menu.clear();
    int number = 0;
    for (const std::string& file : m_dateien.zuletzt()) {
        const QString path = toQt(file);
        QAction* const action = menu.addAction(dateieintrag(++number, path));
        action->setToolTip(path);
        connect(action, &QAction::triggered, this, [this, path] { oeffne(path); });
    }
    if (number == 0)
        menu.addAction(QStringLiteral("Noch keine Datei"))->setEnabled(false);
}

void Dateibefehle::oeffne(const QString& file)
{
    if (m_programm.StartupDone()) // else the window is locked
        zeigeErsetztes(m_dateien.oeffne(pathFromUtf8(fromQt(file))));
}

void Dateibefehle::oeffneArgumente(const QStringList& argumente)
{
    if (argumente.isEmpty())
        return;
    const QString& first = argumente.constFirst();
    if (argumente.size() > 1)
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Zerna öffnet eine Datei auf einmal; im Aufruf stehen " + std::to_string(argumente.size())
                + ".\r\nAufruf: zerna [DATEI]");
    else if (first.startsWith(QLatin1Char('-')))
        m_programm.boxes().show(Icon::Exclamation, Programmtitel,
            "Die Option \"" + fromQt(first) + "\" gibt es nicht.\r\nAufruf: zerna [DATEI]");
    else if (!m_dateien.istGeaendert() || !istOffen(pathFromUtf8(fromQt(first))))
        oeffne(first); // else what was restored is newer than the file
}

bool Dateibefehle::istOffen(const std::filesystem::path& datei) const
{
    std::error_code ignored;
    return std::filesystem::equivalent(datei, pathFromUtf8(m_dateien.offen().name), ignored);
}

void Dateibefehle::setzeFort(const OffeneDatei& datei)
{
    if (!datei.name.empty())
        m_dateien.setzeFort(datei);
    zeigeErsetztes(true);
}

void Dateibefehle::zeigeErsetztes(bool istErsetzt)
{
    if (istErsetzt)
        emit ersetzt();
    zeigeTitel(); // saving may have come before a cancel
}

void Dateibefehle::zeigeGespeichertes(bool istGespeichert)
{
    if (istGespeichert)
        emit gespeichert();
    zeigeTitel();
}

void Dateibefehle::zeigeTitel()
{
    const QString name = toQt(m_dateien.name());
    m_window.setWindowTitle(name.isEmpty() ? m_ohneDatei
                                           : QString(name).replace(QLatin1String("[*]"), QLatin1String("[*][*]"))
                + QStringLiteral("[*] – ") + m_ohneDatei);
    m_window.setWindowModified(m_dateien.istGeaendert());
}

void Dateibefehle::editTitel()
{
    zerna::Dokument& dokument = m_programm.Dokument();
    Titeldialog dialog(dokument.titel, *dokument.bemerkung, &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dokument.titel = dialog.titel();
    dokument.bemerkung = dialog.bemerkung();
    emit geschehen({.name = QStringLiteral("Titel und Bemerkung")});
}

bool Dateibefehle::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = isDrop(*event) ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget == nullptr || widget->window() != &m_window)
        return QObject::eventFilter(watched, event);
    auto& drop = *static_cast<QDropEvent*>(event);
    if (!drop.mimeData()->hasUrls())
        return QObject::eventFilter(watched, event);
    drop.setDropAction(Qt::CopyAction); // moving would let the other program remove its file
    drop.accept();
    if (event->type() == QEvent::Drop)
        droppe(*drop.mimeData());
    return true;
}

/// Later, so that the program the file comes from need not wait for an answer.
void Dateibefehle::droppe(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls())
        files << (url.isLocalFile() ? url.toLocalFile() : url.toString());
    if (files.isEmpty()) // an empty list
        return;
    QTimer::singleShot(0, this, [this, files] {
        m_window.activateWindow();
        const bool areMeasured = std::ranges::all_of(
            files, [](const QString& file) { return istMesskurvendatei(pathFromUtf8(fromQt(file))); });
        if (areMeasured)
            emit messkurvenGezogen(files);
        else if (files.size() == 1)
            oeffne(files.constFirst());
        else
            m_programm.boxes().show(
                Icon::Exclamation, Programmtitel, "Zerna öffnet eine Datei auf einmal. Bitte nur eine hierher ziehen.");
    });
}

} // namespace zerna
