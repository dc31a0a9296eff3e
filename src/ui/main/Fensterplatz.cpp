#include "ui/main/Fensterplatz.h"

#include <QEvent>
#include <QWidget>

#include "ui/controls/Masse.h"

namespace zerna {

namespace {

constexpr int Ruhe = 250; // milliseconds

/// The place moved, and made smaller where it must, so that the room has it all.
QRect moved(QRect place, const QRect& room)
{
    place.setSize(place.size().boundedTo(room.size()));
    place.moveBottomRight({qMin(place.right(), room.right()), qMin(place.bottom(), room.bottom())});
    place.moveTopLeft({qMax(place.left(), room.left()), qMax(place.top(), room.top())});
    return place;
}

} // namespace

Fensterplatz::Fensterplatz(QWidget& window, Settings& settings, const char* key)
    : QObject(&window)
    , m_window(window)
    , m_settings(settings)
    , m_key(key)
{
    m_afterTheLastChange.setSingleShot(true);
    m_afterTheLastChange.setInterval(Ruhe);
    connect(&m_afterTheLastChange, &QTimer::timeout, this, &Fensterplatz::save);
    window.installEventFilter(this);
}

void Fensterplatz::einnehmen(const QSize& usual)
{
    const QByteArray last = QByteArray::fromStdString(m_settings.LoadSetting(m_key, ""));
    const bool isKnown = m_window.restoreGeometry(QByteArray::fromBase64(last));
    const QRect room = fensterraum(m_window);
    if (!isKnown)
        m_window.resize(usual.boundedTo(room.size())); // where, the desktop knows best
    else if (!m_window.isMaximized() && !room.contains(m_window.geometry()))
        m_window.setGeometry(moved(m_window.geometry(), room));
}

/// Intended: nothing is written when the window closes; settings are written when they change.
void Fensterplatz::save()
{
    if (m_window.isVisible())
        m_settings.SaveSetting(m_key, m_window.saveGeometry().toBase64().toStdString());
}

bool Fensterplatz::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool changes = type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange;
    if (changes && m_window.isVisible())
        m_afterTheLastChange.start();
    return QObject::eventFilter(watched, event);
}

} // namespace zerna
