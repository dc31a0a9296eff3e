#include "ui/platform/Ansage.h"

#include <QWidget>

#include <chrono>
#include <utility>

#include "ui/platform/Durchsage.h"

namespace zerna {

namespace {

using namespace std::chrono_literals;
constexpr auto Pause = 400ms; // longer than between two letters of a text

} // namespace

Ansage::Ansage(QWidget* widget, QAccessible::Event event)
    : QObject(widget)
    , m_widget(widget)
    , m_event(event)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &Ansage::sage);
}

void Ansage::merke()
{
    if (QAccessible::isActive())
        m_pause.start(Pause);
}

void Ansage::sage()
{
    if (!m_widget->isVisible())
        return;
    if (m_event == QAccessible::Alert)
        return sageSofort(*m_widget);
    QAccessibleInterface* const read = QAccessible::queryAccessibleInterface(m_widget);
    if (read == nullptr)
        return;
    const QString now = read->text(QAccessible::Value);
    const QString before = std::exchange(m_gesagt, now);
    if (read->textInterface() != nullptr) {
        QAccessibleTextUpdateEvent changed(m_widget, 0, before, now);
        QAccessible::updateAccessibility(&changed);
    } else {
        QAccessibleValueChangeEvent changed(m_widget, now);
        QAccessible::updateAccessibility(&changed);
    }
}

/// Not every platform hands alerts on; all of them tell that something is shown.
void sageSofort(QWidget& message)
{
    if (!QAccessible::isActive())
        return;
    auto* spoken = message.findChild<Durchsage*>(QString(), Qt::FindDirectChildrenOnly);
    if (spoken == nullptr)
        spoken = new Durchsage(&message);
    const auto tell = [](QObject* object, QAccessible::Event type) {
        QAccessibleEvent event(object, type);
        QAccessible::updateAccessibility(&event);
    };
    tell(spoken, QAccessible::NameChanged);
    tell(spoken, QAccessible::ObjectShow);
    tell(&message, QAccessible::Alert);
}

} // namespace zerna
