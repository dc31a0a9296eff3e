#include "ui/diagram/Kurvenmaler.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

#include "bild/Ausduennung.h"
#include "bild/Layoutunterschied.h"
#include "ui/diagram/Linienmaler.h"
#include "ui/diagram/Schriftmessung.h"
#include "ui/platform/Abdeckung.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr double PixelCentre = 0.5; // a line through the middle of a pixel is as sharp as the pixel
constexpr double SignSize = 3.5; // from the middle to the edge, for a line of 1.5

QFont fontOf(const QFont& font, const Schrift& schrift)
{
    QFont result = font;
    if (schrift.grad != 1) {
        if (font.pixelSize() > 0)
            result.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * schrift.grad)));
        else
            result.setPointSizeF(std::max(1.0, font.pointSizeF() * schrift.grad));
    }
    if (schrift.fett)
        result.setBold(true);
    return result;
}

/// A curve's colour in the style; without colours one of the same lightness, never too light for white paper.
QColor colourIn(const Farbe& farbe, const Bildstil& stil)
{
    constexpr double Lightest = 0.18; // relative luminance: 4.5 to 1 on white
    if (!stil.grau)
        return toQt(farbe);
    constexpr double Gamma = 2.2;
    const auto grey = static_cast<int>(std::lround(255 * std::pow(std::min(Lightest, leuchtdichte(farbe)), 1 / Gamma)));
    return {grey, grey, grey};
}

QPen penOf(const Kurve& kurve, const Bildstil& stil)
{
    QPen pen(colourIn(kurve.farbe, stil), stil.linienbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    const auto dashes = [&](const QList<qreal>& pattern) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern(pattern); // in widths of the line
    };
    switch (kurve.linie) {
    case Linienart::Keine:
        pen.setStyle(Qt::NoPen);
        break;
    case Linienart::Durchgezogen:
        break;
    case Linienart::Gestrichelt:
        dashes({5, 3});
        break;
    case Linienart::Gepunktet:
        dashes({1.2, 2.2});
        break;
    case Linienart::Strichpunkt:
        dashes({6, 2.5, 1.2, 2.5});
        break;
    case Linienart::StrichZweipunkt:
        dashes({6, 2, 1.2, 2, 1.2, 2});
        break;
    }
    return pen;
}

QPainterPath signPath(Punktzeichen zeichen, double size)
{
    QPainterPath path;
    switch (zeichen) {
    case Punktzeichen::Keines:
        break;
    case Punktzeichen::Kreis:
        path.addEllipse(QPointF(0, 0), size, size);
        break;
    case Punktzeichen::Quadrat:
        path.addRect(-0.9 * size, -0.9 * size, 1.8 * size, 1.8 * size);
        break;
    case Punktzeichen::Dreieck:
        path.addPolygon(QPolygonF({{0, -1.2 * size}, {1.1 * size, 0.8 * size}, {-1.1 * size, 0.8 * size}}));
        path.closeSubpath();
        break;
    case Punktzeichen::Raute:
        path.addPolygon(QPolygonF({{0, -1.3 * size}, {1.3 * size, 0}, {0, 1.3 * size}, {-1.3 * size, 0}}));
        path.closeSubpath();
        break;
    }
    return path;
}

void paintSigns(QPainter& painter, const Kurve& kurve, const QPolygonF& middles, const Bildstil& stil)
{
    if (kurve.zeichen == Punktzeichen::Keines)
        return;
    const QPainterPath sign =
        signPath(kurve.zeichen, SignSize * std::sqrt(stil.linienbreite / Bildstil().linienbreite));
    painter.setPen(QPen(Qt::white, 1)); // apart from the line that it stands on
    painter.setBrush(colourIn(kurve.farbe, stil));
    for (const QPointF& middle : middles)
        painter.drawPath(sign.translated(middle));
}

void paintCurve(QPainter& painter, const Kurve& kurve, const Kurvenbahn& bahn, const Bildstil& stil)
{
    painter.setPen(penOf(kurve, stil));
    painter.setBrush(Qt::NoBrush);
    for (const QPolygonF& linie : bahn.linien) {
        if (linie.size() == 1)
            painter.drawPoint(linie.front());
        else
            painter.drawPolyline(linie);
    }
    paintSigns(painter, kurve, bahn.zeichen, stil);
}

/// The same on a plot, quicker.
void paintCurveAsSeen(
    QPainter& painter, const Kurve& kurve, const Kurvenbahn& bahn, const Bildstil& stil, const Rechteck& plot)
{
    const QPen pen = penOf(kurve, stil);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    for (const QPolygonF& linie : bahn.linien) {
        if (linie.size() == 1)
            painter.drawPoint(linie.front());
        else
            paintLinie(painter, linie, pen, QRectF(0, 0, plot.width, plot.height));
    }
    paintSigns(painter, kurve, bahn.zeichen, stil);
}

QPolygonF centred(const std::vector<Punkt>& punkte)
{
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(punkte.size()));
    for (const auto& [x, y] : punkte)
        polygon << QPointF(x + PixelCentre, y + PixelCentre);
    return polygon;
}

Kurvenbahn bahnOf(const Kurve& kurve, const Kurvenlayout& layout, Linien linien)
{
    constexpr double Unseen = 0.1; // pixels
    const Abbildung& abbildung = kurve.rechts ? layout.rechts : layout.links;
    const double width = layout.plot.width;
    const double height = layout.plot.height;
    Kurvenbahn bahn;
    if (kurve.linie != Linienart::Keine)
        for (const std::vector<Punkt>& zug : sichtbareZuege(kurve.punkte, abbildung, width, height))
            bahn.linien.push_back(centred(linien == Linien::WieZuSehen ? begradigt(zug, Unseen) : zug));
    if (kurve.zeichen != Punktzeichen::Keines)
        bahn.zeichen = centred(sichtbarePunkte(kurve.punkte, abbildung, width, height));
    return bahn;
}

QRectF rectOf(const Rechteck& box) { return {box.left, box.top, box.width, box.height}; }

/// Paints a text of one or two lines from the left end of its first base line.
void paintLines(QPainter& painter, QPointF place, const QString& text, double lineHeight)
{
    const qsizetype end = text.indexOf(QLatin1Char('\n'));
    if (end < 0)
        return painter.drawText(place, text);
    painter.drawText(place, text.left(end));
    paintLines(painter, place + QPointF(0, lineHeight), text.mid(end + 1), lineHeight);
}

/// Of the texts at least those in the part that is wanted.
void paintTexts(QPainter& painter, const std::vector<Textstelle>& texte, const QFont& font, const Bildteil& teil = {})
{
    painter.setPen(Qt::black);
    std::optional<Schrift> current;
    double ascent = 0;
    double lineHeight = 0;
    for (const Textstelle& stelle : texte) {
        if (teil && !teil->intersects(gemalteFlaeche(stelle.box)))
            continue;
        if (current != stelle.schrift) {
            current = stelle.schrift;
            painter.setFont(fontOf(font, *current));
            const QFontMetricsF metrics(painter.font());
            ascent = metrics.ascent();
            lineHeight = metrics.height();
        }
        if (!stelle.senkrecht) {
            paintLines(painter, {stelle.box.left, stelle.box.top + ascent}, toQt(stelle.text), lineHeight);
            continue;
        }
        painter.save();
        painter.translate(stelle.box.left + ascent, stelle.box.top + stelle.box.height);
        painter.rotate(-90);
        painter.drawText(QPointF(0, 0), toQt(stelle.text));
        painter.restore();
    }
}

void paintMarks(QPainter& painter, const Kurvenbild& bild, const Kurvenlayout& layout, const Leinwand& leinwand)
{
    for (const Linienmarke& marke : bild.marken) {
        const double column = layout.links.punkt(marke.x, 0).x + PixelCentre;
        if (column < 0 || column > layout.plot.width + 1)
            continue;
        painter.setPen(QPen(colourIn(marke.farbe, leinwand.stil), 1, Qt::DashLine, Qt::FlatCap));
        painter.drawLine(QPointF(column, 0), QPointF(column, layout.plot.height));
    }
}

} // namespace

Schriftmasse schriftmasse(const QFont& font)
{
    return [font](const Schrift& schrift) { return textmasse(fontOf(font, schrift)); };
}

Kurvenlayout kurvenlayout(const Kurvenbild& bild, const Leinwand& leinwand, const std::optional<Ausschnitt>& ausschnitt)
{
    return layOut(
        bild, leinwand.size.width(), leinwand.size.height(), leinwand.stil, schriftmasse(leinwand.font), ausschnitt);
}

std::vector<Kurvenbahn> kurvenbahnen(const Kurvenbild& bild, const Kurvenlayout& layout, Linien linien)
{
    std::vector<Kurvenbahn> bahnen(bild.kurven.size());
    if (!layout.istLeer())
        std::ranges::transform(
            bild.kurven, bahnen.begin(), [&](const Kurve& kurve) { return bahnOf(kurve, layout, linien); });
    return bahnen;
}

Kurvenzeichnung kurvenzeichnung(
    const Kurvenbild& bild, const Leinwand& leinwand, const std::optional<Ausschnitt>& ausschnitt)
{
    Kurvenlayout layout = kurvenlayout(bild, leinwand, ausschnitt);
    std::vector<Kurvenbahn> bahnen = kurvenbahnen(bild, layout);
    return {std::move(layout), std::move(bahnen)};
}

QRect gemalteFlaeche(const Rechteck& box)
{
    constexpr int Beside = 2; // letters may stand out a little
    return rectOf(box).toAlignedRect().adjusted(-Beside, -Beside, Beside, Beside);
}

void paintRand(QPainter& painter, const Kurvenbild& bild, const Kurvenlayout& layout, const Leinwand& leinwand,
    const Bildteil& teil)
{
    for (const Rechteck& strich : layout.striche)
        painter.fillRect(rectOf(strich), Qt::black);
    paintTexts(painter, layout.texte, leinwand.font, teil);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Linienprobe& probe : layout.legende) {
        if (teil && !teil->intersects(gemalteFlaeche(platz(probe))))
            continue;
        const double line = std::floor(probe.row) + PixelCentre;
        Kurvenbahn bahn{{QPolygonF()}, {}};
        bahn.linien.front() << QPointF(probe.left, line) << QPointF(probe.right, line);
        bahn.zeichen << QPointF((probe.left + probe.right) / 2, line);
        paintCurve(painter, bild.kurven.at(probe.kurve), bahn, leinwand.stil);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void paintAchsen(QPainter& painter, const Kurvenlayout& layout, const Leinwand& leinwand, const Bildteil& teil)
{
    for (const Rechteck& strich : layout.kernstriche)
        painter.fillRect(rectOf(strich), Qt::black);
    paintTexts(painter, layout.kerntexte, leinwand.font, teil);
}

void paintPlot(QPainter& painter, const Kurvenbild& bild, const Kurvenlayout& layout,
    const std::vector<Kurvenbahn>& bahnen, const Leinwand& leinwand, Linien linien)
{
    if (layout.istLeer())
        return;
    painter.save();
    painter.setClipRect(rectOf(layout.plot), Qt::IntersectClip);
    painter.translate(layout.plot.left, layout.plot.top);
    painter.setRenderHint(QPainter::Antialiasing);
    paintMarks(painter, bild, layout, leinwand);
    // The edges of parts of a line must be those of pixels.
    const bool asSeen =
        linien == Linien::WieZuSehen && leinwand.devicePixelRatio == std::floor(leinwand.devicePixelRatio);
    for (std::size_t i = 0; i < bild.kurven.size(); ++i) {
        if (asSeen)
            paintCurveAsSeen(painter, bild.kurven[i], bahnen.at(i), leinwand.stil, layout.plot);
        else
            paintCurve(painter, bild.kurven[i], bahnen.at(i), leinwand.stil);
    }
    painter.restore();
    for (const Textstelle& stelle : layout.markentexte)
        painter.fillRect(rectOf(stelle.box), QColor(255, 255, 255, 200));
    paintTexts(painter, layout.markentexte, leinwand.font);
}

void paintKurven(QPainter& painter, const Kurvenbild& bild, const Kurvenzeichnung& zeichnung, const Leinwand& leinwand)
{
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    paintPlot(painter, bild, zeichnung.layout, zeichnung.bahnen, leinwand);
    deckeRandAb(painter, rectOf(zeichnung.layout.plot), leinwand.size);
    paintRand(painter, bild, zeichnung.layout, leinwand);
    paintAchsen(painter, zeichnung.layout, leinwand);
}

void paintKurven(QPainter& painter, const Kurvenbild& bild, const Leinwand& leinwand)
{
    paintKurven(painter, bild, kurvenzeichnung(bild, leinwand), leinwand);
}

} // namespace zerna
