#pragma once

#include <QFont>
#include <QPointF>

#include <cmath>

#include "bild/PSEGeometrie.h"
#include "ui/diagram/Leinwand.h"

class QPainter;

namespace zerna {

/// An element-property diagram laid out for a canvas, with the font that its labels were measured in.
struct PSELayout {
    PSEBild bild;
    QFont labelFont;
};

/// Lays it out; the labels' font gets smaller where they would not fit.
PSELayout layOutPSE(const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Leinwand& leinwand);

enum class Punktlage {
    Genau,
    GanzePixel, ///< as in the bitmap file
};

void paintPSE(QPainter& painter, const PSELayout& layout, const Leinwand& leinwand, Punktlage punktlage);

/// Where lines one pixel wide are sharp.
inline QPointF pixelCentre(const Punkt& p) { return {std::round(p.x) + 0.5, std::round(p.y) + 0.5}; }

} // namespace zerna
