#include "ui/picker/Elementzelle.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

#include "ui/picker/Zelltexte.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr double Radius = 3;

void paintShadow(QPainter& painter, const QRectF& area)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawRoundedRect(area, Radius, Radius);
}

void paintHatching(QPainter& painter, const QRectF& area, const QColor& colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(colour, Qt::BDiagPattern));
    painter.drawRoundedRect(area, Radius, Radius);
}

/// Looked for once for all neighbours of one ground: that is much of what painting a cell costs.
QColor eckfarbe(const QColor& ground, const QColor& text)
{
    struct Gefunden {
        QColor ground;
        QColor text;
        QColor farbe;
    };
    static thread_local Gefunden last;
    if (last.ground != ground || last.text != text)
        last = {ground, text, zeichenfarbe(ground, text)};
    return last.farbe;
}

void paintEckzeichen(QPainter& painter, const QRectF& area, Gruppenzeichen zeichen, const QColor& colour)
{
    constexpr double Margin = 4;
    const double size = std::clamp(area.width() * 0.12, 3.0, 8.0);
    paintZeichen(painter, {area.right() - size - Margin, area.top() + Margin, size, size}, zeichen, colour);
}

/// A number with a true minus sign; a power of ten stays "-8,2E-11", for which alone a cell has room.
QString zellform(std::string_view text)
{
    const QString shown = toQt(text);
    return shown.contains(QLatin1Char('E')) ? shown : QString(shown).replace(QLatin1Char('-'), QChar(0x2212));
}

/// Text, on a plate where hatching has to be kept away from it.
void drawText(QPainter& painter, const QRectF& area, int flags, const QString& text, const std::optional<QColor>& plate)
{
    if (plate)
        painter.fillRect(painter.boundingRect(area, flags, text).adjusted(-1, 0, 1, 0), *plate);
    painter.drawText(area, flags, text);
}

/// Atomic number and symbol; below them value, name or mass where there is room.
void paintTexte(QPainter& painter, const QRectF& area, const Elementzelle& zelle, const Zellstil& stil,
    const std::optional<QColor>& plate)
{
    const clsElement& element = zelle.element;
    const Schriftgroessen groessen = schriftgroessen(area.width(), area.height());
    const QFont smallFont = withPixelSize(stil.font, groessen.klein);
    painter.setFont(smallFont);
    drawText(painter, area.adjusted(4, 2, -2, 0), Qt::AlignLeft | Qt::AlignTop, QString::number(element.OZ()), plate);
    QFont symbolFont = withPixelSize(stil.font, groessen.symbol);
    symbolFont.setBold(true);
    painter.setFont(symbolFont);
    const QString symbol =
        QFontMetricsF(symbolFont).elidedText(toQt(element.symbol()), Qt::ElideRight, area.width() - 4);
    const double above = groessen.klein * 0.6;
    drawText(painter, area.adjusted(2, above, -2, groessen.dritteZeile ? -groessen.klein : 0), Qt::AlignCenter, symbol,
        plate);
    if (!groessen.dritteZeile)
        return;
    painter.setFont(smallFont);
    const Textbreite breite = [metrics = QFontMetricsF(smallFont)](
                                  std::string_view text) { return metrics.horizontalAdvance(zellform(text)); };
    const std::string text =
        zelle.wert ? zellwert(*zelle.wert, area.width(), breite) : dritteZeile(element, stil.namen);
    const QString below = zellform(text);
    if (passt(breite(text), area.width()))
        drawText(painter, area.adjusted(2, 0, -2, -3), Qt::AlignHCenter | Qt::AlignBottom, below, plate);
}

} // namespace

void paintZelle(QPainter& painter, const QRectF& area, const Elementzelle& zelle, const Zellstil& stil)
{
    constexpr double Lift = 2;
    QRectF cell = area.adjusted(Zellabstand, Zellabstand, -Zellabstand, -Zellabstand);
    if (zelle.isHovered) {
        paintShadow(painter, cell.translated(1, Lift));
        cell.translate(0, -Lift);
    }
    const auto& [farbe, zeichen, fehlt] = zelle.fuellung;
    const QColor ground = farbe ? toQt(*farbe) : stil.palette.color(QPalette::Button);
    const QColor text = fehlt ? stil.palette.color(QPalette::ButtonText) : textOn(ground);
    paintGrund(painter, cell, ground, istDunkel(stil.palette));
    if (fehlt)
        paintHatching(painter, cell, linienfarbe(ground, text));
    double marked = 0; // of the upper edge
    if (!zelle.komponenten.empty()) {
        const QFont font = withPixelSize(stil.font, schriftgroessen(cell.width(), cell.height()).klein);
        marked = 2 + paintKomponenten(painter, cell.topRight() + QPointF(-2, 2), toQt(zelle.komponenten), text, font);
    }
    if (zeichen)
        paintEckzeichen(painter, cell.translated(-marked, 0), *zeichen, eckfarbe(ground, text));
    painter.setPen(text);
    paintTexte(painter, cell, zelle, stil, fehlt ? std::optional(ground) : std::nullopt);
    if (zelle.isSelected) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(stil.palette.color(stil.hasFocus ? QPalette::Highlight : QPalette::WindowText), 3));
        painter.drawRoundedRect(cell, Radius, Radius);
    }
}

void paintGrund(QPainter& painter, const QRectF& area, const QColor& colour, bool aufDunklem)
{
    painter.setPen(QPen(aufDunklem ? colour.lighter(150) : colour.darker(130), 1));
    painter.setBrush(colour);
    painter.drawRoundedRect(area, Radius, Radius);
}

void paintZeichen(QPainter& painter, const QRectF& area, Gruppenzeichen zeichen, const QColor& colour)
{
    const QPointF top(area.center().x(), area.top());
    QPainterPath path;
    switch (zeichen) {
    case Gruppenzeichen::Kreis:
        path.addEllipse(area);
        break;
    case Gruppenzeichen::Quadrat:
        path.addRect(area);
        break;
    case Gruppenzeichen::Dreieck:
        path.addPolygon(QPolygonF{area.bottomLeft(), area.bottomRight(), top});
        break;
    case Gruppenzeichen::Raute:
        path.addPolygon(QPolygonF{top, QPointF(area.right(), area.center().y()),
            QPointF(area.center().x(), area.bottom()), QPointF(area.left(), area.center().y())});
        break;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(path);
}

double paintKomponenten(
    QPainter& painter, const QPointF& corner, const QString& komponenten, const QColor& plate, const QFont& font)
{
    const QFontMetricsF metrics(font);
    const double height = metrics.height() + 1;
    const double width = std::max(height, metrics.horizontalAdvance(komponenten) + height / 2);
    const QRectF area(corner.x() - width - 1, corner.y() + 1, width, height);
    painter.setPen(Qt::NoPen);
    painter.setBrush(plate);
    painter.drawRoundedRect(area, height / 2, height / 2);
    painter.setPen(textOn(plate));
    painter.setFont(font);
    painter.drawText(area, Qt::AlignCenter, komponenten);
    return width + 1;
}

QFont withPixelSize(QFont font, double pixels)
{
    font.setPixelSize(std::max(1, static_cast<int>(pixels)));
    return font;
}

} // namespace zerna
