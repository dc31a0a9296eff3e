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

QPolygonF pixelCentres(const Strichzug& strich, const Abbildung& abbildung, Raster raster)
{
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(strich.points.size()));
    for (const auto& [x, y] : strich.points) {
        const Punkt place =
            raster == Raster::Pixel ? Punkt{abbildung.column(x), abbildung.row(y)} : abbildung.punkt(x, y);
        polygon << QPointF(std::clamp(place.x, -FarAway, FarAway) + 0.5, std::clamp(place.y, -FarAway, FarAway) + 0.5);
    }
    return polygon;
}

} // namespace

void paintStriche(QPainter& painter, const std::vector<Strichzug>& striche, const Abbildung& abbildung, Raster raster)
{
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Strichzug& strich : striche) {
        const QPolygonF polygon = pixelCentres(strich, abbildung, raster);
        painter.setPen(QPen(colourOf(strich.colour), Kurvenbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (polygon.size() == 1)
            painter.drawPoint(polygon.front());
        else
            painter.drawPolyline(polygon);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace zerna
