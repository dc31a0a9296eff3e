#pragma once

#include <QWidget>

#include <span>

namespace zerna {

/// Makes the tab key visit the widgets in this order; the first keeps its place among the others of the window.
inline void setTabReihenfolge(std::span<QWidget* const> widgets)
{
    for (std::size_t i = 1; i < widgets.size(); ++i)
        QWidget::setTabOrder(widgets[i - 1], widgets[i]);
}

} // namespace zerna
