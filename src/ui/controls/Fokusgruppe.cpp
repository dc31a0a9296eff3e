#include "ui/controls/Fokusgruppe.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace zerna {

Fokusgruppe::Fokusgruppe(QObject* parent, Spalten spalten, QWidget* halt)
    : QObject(parent)
    , m_spalten(std::move(spalten))
{
    for (const auto& spalte : m_spalten) {
        for (QWidget* const widget : spalte)
            widget->installEventFilter(this);
    }
    setHalt(halt);
}

/// All can be clicked and moved to; the tab key stops at one.
void Fokusgruppe::setHalt(QObject* halt)
{
    for (const auto& spalte : m_spalten) {
        for (QWidget* const widget : spalte)
            widget->setFocusPolicy(widget == halt ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

/// The widget that a key leads to; null for any other key and at the margins.
QWidget* Fokusgruppe::reachedBy(int key, const QObject* from) const
{
    for (std::size_t column = 0; column < m_spalten.size(); ++column) {
        const auto& spalte = m_spalten[column];
        const auto found = std::ranges::find(spalte, from);
        if (found == spalte.end())
            continue;
        const auto beside = [&](std::size_t other) {
            const auto& widgets = m_spalten[other];
            return widgets[std::min(static_cast<std::size_t>(found - spalte.begin()), widgets.size() - 1)];
        };
        switch (key) {
        case Qt::Key_Up:
            return found == spalte.begin() ? nullptr : *(found - 1);
        case Qt::Key_Down:
            return found + 1 == spalte.end() ? nullptr : *(found + 1);
        case Qt::Key_Left:
            return column == 0 ? nullptr : beside(column - 1);
        case Qt::Key_Right:
            return column + 1 == m_spalten.size() ? nullptr : beside(column + 1);
        case Qt::Key_Home:
            return m_spalten.front().front();
        case Qt::Key_End:
            return m_spalten.back().back();
        default:
            return nullptr;
        }
    }
    return nullptr;
}

bool Fokusgruppe::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        setHalt(watched);
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    QWidget* const next = reachedBy(static_cast<QKeyEvent*>(event)->key(), watched);
    if (next == nullptr)
        return QObject::eventFilter(watched, event);
    next->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace zerna
