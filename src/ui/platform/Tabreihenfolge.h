#pragma once

#include <QWidget>

#include <span>

namespace zerna {

/// Makes the tab key visit the widgets in this order; the first, which takes the focus, keeps its place among the
/// others of the window. One that takes no focus at the moment does not part those beside it.
inline void setTabReihenfolge(std::span<QWidget* const> widgets)
{
    QWidget* previous = nullptr;
    for (QWidget* const widget : widgets) {
        if (previous != nullptr)
            QWidget::setTabOrder(previous, widget);
        if (widget->focusPolicy() != Qt::NoFocus)
            previous = widget;
    }
}

} // namespace zerna
