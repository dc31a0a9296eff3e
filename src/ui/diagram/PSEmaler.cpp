#include "ui/diagram/PSEmaler.h"

#include <QPainter>

#include <algorithm>
#include <iterator>

#include "bild/Kurvenfarben.h"
#include "ui/diagram/Schriftmessung.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

/// The colours of a picture.
struct Farben {
    explicit Farben(const Bildstil& stil)
        : kurve(stil.grau ? QColor(Qt::black) : toQt(kurvenaussehen(0).farbe))
        , kristallin(stil.grau ? QColor(Qt::darkGray) : toQt(kurvenaussehen(1).farbe))
        , legierung(stil.grau ? QColor(Qt::black) : Legierungsfarbe)
    {
    }

    QColor kurve;
    QColor kristallin;
    QColor legierung;
};

QFont scaled(QFont font, double factor)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * factor)));
    else
        font.setPointSizeF(std::max(1.0, font.pointSizeF() * factor));
    return font;
}

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

QPen curvePen(const QColor& colour, double width, bool dashed)
{
    QPen pen(colour, width, Qt::SolidLine, dashed ? Qt::FlatCap : Qt::RoundCap, Qt::RoundJoin);
    if (dashed)
        pen.setDashPattern({5, 3}); // in widths of the line, as all diagrams have it
    return pen;
}

void paintTexts(QPainter& painter, const std::vector<Schriftzug>& texts, double ascent)
{
    for (const Schriftzug& text : texts)
        painter.drawText(QPointF(text.position.x, text.position.y + ascent), toQt(text.text));
}

void paintAxisTitle(QPainter& painter, const PSELayout& layout)
{
    const PSEBild& bild = layout.bild;
    const QFont font = scaled(layout.labelFont, bild.achsentitelGroesse);
    painter.setFont(font);
    painter.save();
    painter.translate(std::round(bild.achsentitel.position.x), std::round(bild.achsentitel.position.y));
    painter.rotate(-90);
    painter.drawText(QPointF(0, std::round(QFontMetricsF(font).ascent())), toQt(bild.achsentitel.text));
    painter.restore();
}

void paintCurve(QPainter& painter, const PSEKurve& kurve, const QPen& pen, Punktlage punktlage)
{
    constexpr double HalfPoint = 1.5;
    const auto place = [&](const Punkt& p) {
        return punktlage == Punktlage::GanzePixel ? pixelCentre(p) : QPointF(p.x + 0.5, p.y + 0.5);
    };
    painter.setPen(pen);
    for (const std::vector<Punkt>& piece : kurve.stuecke) {
        QPolygonF polygon;
        std::ranges::transform(piece, std::back_inserter(polygon), place);
        if (polygon.size() == 1)
            painter.fillRect(
                QRectF(polygon.front() - QPointF(HalfPoint, HalfPoint), 2 * QSizeF(HalfPoint, HalfPoint)), pen.color());
        else
            painter.drawPolyline(polygon);
    }
}

void paintLegend(QPainter& painter, const PSEBild& bild, const Farben& farben, double width)
{
    constexpr double Radius = 4;
    for (const Legendeneintrag& eintrag : bild.legende) {
        const QPointF from(eintrag.muster.from.x, eintrag.muster.from.y);
        const QPointF to(eintrag.muster.to.x, eintrag.muster.to.y);
        const bool dashed = eintrag.zeichen == Legendenzeichen::Gestrichelt;
        if (eintrag.zeichen == Legendenzeichen::Legierung) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(farben.legierung);
            painter.drawEllipse((from + to) / 2, Radius, Radius);
            painter.setBrush(Qt::NoBrush);
        } else {
            painter.setPen(curvePen(dashed ? farben.kristallin : farben.kurve, width, dashed));
            painter.drawLine(from, to);
        }
    }
}

void paintLegierung(QPainter& painter, const std::vector<Punkt>& points, const QColor& colour)
{
    constexpr double Radius = 4;
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(colour);
    for (const Punkt& p : points)
        painter.drawEllipse(QPointF(p.x + 0.5, p.y + 0.5), Radius, Radius);
    painter.setBrush(Qt::NoBrush);
}

void paintAllTexts(QPainter& painter, const PSELayout& layout, const Farben& farben)
{
    const PSEBild& bild = layout.bild;
    const double ascent = QFontMetricsF(layout.labelFont).ascent();
    painter.setPen(Qt::black);
    painter.setFont(bold(layout.labelFont));
    paintTexts(painter, {bild.titel}, ascent);
    painter.setFont(layout.labelFont);
    for (const Legendeneintrag& eintrag : bild.legende)
        paintTexts(painter, {eintrag.text}, ascent);
    paintTexts(painter, bild.labels, ascent);
    painter.setPen(Teilungsfarbe);
    paintTexts(painter, bild.symbole, ascent);
    painter.setPen(farben.legierung);
    paintTexts(painter, bild.legierungssymbole, ascent);
    painter.setPen(Qt::black);
    paintAxisTitle(painter, layout);
}

} // namespace

PSELayout layOutPSE(const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Leinwand& leinwand)
{
    constexpr double Smallest = 0.7;
    const auto laidOut = [&](const QFont& font) {
        return PSELayout{layOutPSE(diagramm, ansicht, leinwand.stil, leinwand.size.width(), leinwand.size.height(),
                             textmasse(font), textmasse(bold(font)).width),
            font};
    };
    PSELayout layout = laidOut(leinwand.font);
    const PSEBild& bild = layout.bild;
    if (bild.widestLabel <= bild.labelRoom || bild.labelRoom <= 0)
        return layout;
    return laidOut(scaled(leinwand.font, std::max(Smallest, bild.labelRoom / bild.widestLabel)));
}

void paintPSE(QPainter& painter, const PSELayout& layout, const Leinwand& leinwand, Punktlage punktlage)
{
    const PSEBild& bild = layout.bild;
    const Farben farben(leinwand.stil);
    const double width = leinwand.stil.linienbreite;
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    painter.setPen(QPen(Qt::black, 1));
    for (const Strecke& line : bild.lines)
        painter.drawLine(pixelCentre(line.from), pixelCentre(line.to));
    painter.setRenderHint(QPainter::Antialiasing);
    paintCurve(painter, bild.kristallin, curvePen(farben.kristallin, width, true), punktlage);
    paintCurve(painter, bild.kurve, curvePen(farben.kurve, width, false), punktlage);
    paintLegend(painter, bild, farben, width);
    paintLegierung(painter, bild.legierung, farben.legierung);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintAllTexts(painter, layout, farben);
}

} // namespace zerna
