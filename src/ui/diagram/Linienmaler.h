#pragma once

#include <QPen>
#include <QPolygonF>
#include <QRectF>

class QPainter;

namespace zerna {

/// Paints a smoothed line, ascending in x, that looks as from QPainter::drawPolyline in a third of its time: where it
/// hardly bends, each part of it is a straight line in columns of pixels of its own, for which the toolkit needs no
/// outline. `area` is what may be painted on, and the painter's clip afterwards; its pixels must be whole.
void paintLinie(QPainter& painter, const QPolygonF& linie, QPen pen, const QRectF& area);

} // namespace zerna
