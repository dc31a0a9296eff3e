#include "ui/diagram/Striche.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>

#include <algorithm>

#include "bild/Achsen.h"

namespace zerna {

namespace {

/// Far outside every picture; the painter's fixed-point arithmetic takes no larger coordinates.
constexpr double FarAway = 30000;

QPolygonF pixelCentres(const Strichzug& strich, const Abbildung& abbildung)
{
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(strich.points.size()));
    for (const auto& [x, y] : strich.points)
        polygon << QPointF(std::clamp(abbildung.column(x), -FarAway, FarAway) + 0.5,
            std::clamp(abbildung.row(y), -FarAway, FarAway) + 0.5);
    return polygon;
}

} // namespace

void paintStriche(QPainter& painter, const std::vector<Strichzug>& striche, const Abbildung& abbildung)
{
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Strichzug& strich : striche) {
        const QPolygonF polygon = pixelCentres(strich, abbildung);
        painter.setPen(QPen(colourOf(strich.colour), Kurvenbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (polygon.size() == 1)
            painter.drawPoint(polygon.front());
        else
            painter.drawPolyline(polygon);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace zerna
