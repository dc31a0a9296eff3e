#include "ui/main/Hilfe.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QWindow>

#include "ui/hilfe/frmHandbuch.h"
#include "ui/main/Fensterplatz.h"
#include "ui/main/Hilfeziele.h"

namespace zerna {

namespace {

constexpr QSize UsualSize(1000, 760);

/// What the user asks about: the entry of an open menu, else what has the focus, else the window.
const QObject* gefragtes()
{
    if (const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()); menu != nullptr)
        return menu->activeAction() != nullptr ? static_cast<const QObject*>(menu->activeAction()) : menu;
    const QWidget* const focused = QApplication::focusWidget();
    return focused != nullptr ? focused : QApplication::activeWindow();
}

/// An open list or menu would keep keys and mouse from the manual.
void schliessePopups()
{
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        if (popup->isVisible())
            return;
    }
}

} // namespace

Hilfe::Hilfe(QWidget& window, Settings& settings)
    : QObject(&window)
    , m_window(window)
    , m_settings(settings)
{
    qApp->installEventFilter(this);
}

frmHandbuch& Hilfe::fenster()
{
    if (m_fenster == nullptr) {
        m_fenster = new frmHandbuch(m_settings, &m_window);
        m_fenster->setWindowIcon(m_window.windowIcon());
        (new Fensterplatz(*m_fenster, m_settings, "Handbuchplatz"))->einnehmen(UsualSize);
    }
    return *m_fenster;
}

void Hilfe::zeige()
{
    const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const QString ziel = hilfeziel(gefragtes());
    const QString meldung = box != nullptr ? box->text() : QString();
    schliessePopups();
    bringeNachVorn(); // the text is set for the size that the window then has
    if (box != nullptr)
        fenster().zeigeMeldung(meldung);
    else
        fenster().zeigeAbschnitt(ziel);
}

void Hilfe::zeigeAbschnitt(const QString& anker)
{
    bringeNachVorn();
    fenster().zeigeAbschnitt(anker);
}

/// A modal dialog leaves only its own windows usable, so the manual becomes one of these while the dialog is open.
void Hilfe::bringeNachVorn()
{
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget& owner = modal != nullptr ? *modal : m_window;
    fenster().winId(); // makes the native window
    if (fenster().windowHandle()->transientParent() != owner.windowHandle()) {
        fenster().hide();
        fenster().windowHandle()->setTransientParent(owner.windowHandle());
    }
    fenster().show();
    fenster().raise();
    fenster().activateWindow();
}

bool Hilfe::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return QObject::eventFilter(watched, event);
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier)
        return QObject::eventFilter(watched, event);
    const auto* const widget = static_cast<const QWidget*>(watched);
    if (m_fenster == nullptr || widget->window() != m_fenster)
        zeige();
    return true;
}

} // namespace zerna
