#pragma once

#include <QPolygonF>
#include <QRegion>

#include <optional>
#include <vector>

#include "bild/Kurvenlayout.h"
#include "ui/diagram/Leinwand.h"

class QPainter;

/// Painting of a diagram of curves on the screen, into image files and on paper.
namespace zerna {

/// A curve on the plot, from its corner.
struct Kurvenbahn {
    std::vector<QPolygonF> linien;
    QPolygonF zeichen; ///< middles of the signs
    bool operator==(const Kurvenbahn&) const = default;
};

/// A diagram that is ready to be painted on one canvas.
struct Kurvenzeichnung {
    Kurvenlayout layout;
    std::vector<Kurvenbahn> bahnen; ///< of all curves
};

/// How texts measure on a canvas.
Schriftmasse schriftmasse(const QFont& font);

/// Lays a diagram out; the whole of it or a part.
Kurvenlayout kurvenlayout(
    const Kurvenbild& bild, const Leinwand& leinwand, const std::optional<Ausschnitt>& ausschnitt);

/// How lines are painted: for files and paper through all points; on the screen so that they look the same, which is
/// quicker.
enum class Linien { DurchAllePunkte, WieZuSehen };

/// All curves on the plot.
std::vector<Kurvenbahn> kurvenbahnen(
    const Kurvenbild& bild, const Kurvenlayout& layout, Linien linien = Linien::DurchAllePunkte);

/// Both.
Kurvenzeichnung kurvenzeichnung(
    const Kurvenbild& bild, const Leinwand& leinwand, const std::optional<Ausschnitt>& ausschnitt = {});

/// The pixels that a text or a stroke of the layout may take, some around its box included.
QRect gemalteFlaeche(const Rechteck& box);

/// What is to be painted of a picture, at least; none for all.
using Bildteil = std::optional<QRegion>;

/// Paint on that canvas what stands around the axes, the axes beside the plot, the plot.
void paintRand(QPainter& painter, const Kurvenbild& bild, const Kurvenlayout& layout, const Leinwand& leinwand,
    const Bildteil& teil = {});
void paintAchsen(QPainter& painter, const Kurvenlayout& layout, const Leinwand& leinwand, const Bildteil& teil = {});
void paintPlot(QPainter& painter, const Kurvenbild& bild, const Kurvenlayout& layout,
    const std::vector<Kurvenbahn>& bahnen, const Leinwand& leinwand, Linien linien = Linien::DurchAllePunkte);

/// Paints all parts.
void paintKurven(QPainter& painter, const Kurvenbild& bild, const Kurvenzeichnung& zeichnung, const Leinwand& leinwand);
void paintKurven(QPainter& painter, const Kurvenbild& bild, const Leinwand& leinwand);

} // namespace zerna
