#pragma once

#include <QPaintEngine>
#include <QPainter>

namespace zerna {

/// Covers what has been painted beside an area that it was clipped to: the toolkit's SVG files know no clipping.
inline void deckeRandAb(QPainter& painter, const QRectF& area, const QSizeF& canvas)
{
    if (painter.paintEngine()->type() != QPaintEngine::SVG)
        return;
    const QRectF whole(QPointF(0, 0), canvas);
    painter.fillRect(QRectF(whole.topLeft(), QPointF(whole.right(), area.top())), Qt::white);
    painter.fillRect(QRectF(QPointF(whole.left(), area.bottom()), whole.bottomRight()), Qt::white);
    painter.fillRect(QRectF(whole.topLeft(), QPointF(area.left(), whole.bottom())), Qt::white);
    painter.fillRect(QRectF(QPointF(area.right(), whole.top()), whole.bottomRight()), Qt::white);
}

} // namespace zerna
