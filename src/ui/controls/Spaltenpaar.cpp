#include "ui/controls/Spaltenpaar.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QEvent>

#include <algorithm>

namespace zerna {

void Spaltenpaar::setSpalten(QWidget* left, QWidget* right, const QMargins& margins, int spacing)
{
    m_columns = new QBoxLayout(QBoxLayout::LeftToRight, this);
    m_columns->setContentsMargins(margins);
    m_columns->setSpacing(spacing);
    m_columns->addWidget(left);
    m_columns->addWidget(right, 1);
}

QSize Spaltenpaar::sizeHint() const { return least(true); }

/// As high as they stand now, but narrow enough for them to change.
QSize Spaltenpaar::minimumSizeHint() const
{
    const bool beside = m_columns->direction() == QBoxLayout::LeftToRight;
    return {least(false).width(), least(beside).height()};
}

QSize Spaltenpaar::least(bool beside) const
{
    const QMargins margins = m_columns->contentsMargins();
    QSize size;
    for (int i = 0; i < m_columns->count(); ++i) {
        const QLayoutItem* const item = m_columns->itemAt(i);
        if (item->isEmpty())
            continue;
        const QSize needed = item->minimumSize();
        const int gap = size.isEmpty() ? 0 : m_columns->spacing();
        size = beside ? QSize(size.width() + gap + needed.width(), std::max(size.height(), needed.height()))
                      : QSize(std::max(size.width(), needed.width()), size.height() + gap + needed.height());
    }
    return size.grownBy(margins);
}

void Spaltenpaar::place()
{
    const bool beside = width() >= least(true).width();
    const auto direction = beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (direction == m_columns->direction())
        return;
    m_columns->setDirection(direction);
    m_columns->activate();
    updateGeometry();
    if (parentWidget() != nullptr) { // at once: what scrolls to the focus in between would take the old places
        QEvent request(QEvent::LayoutRequest);
        QCoreApplication::sendEvent(parentWidget(), &request);
    }
}

bool Spaltenpaar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest && m_columns != nullptr)
        place();
    return QWidget::event(event);
}

void Spaltenpaar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

/// The size that place() brings about while a hidden pair is about to be shown comes without an event.
void Spaltenpaar::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_columns->setGeometry(contentsRect());
}

} // namespace zerna
