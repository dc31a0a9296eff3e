#include "ui/diagram/PSEDiagramm.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/Werttext.h"
#include "ui/diagram/Bildausgabe.h"
#include "ui/diagram/Striche.h"
#include "ui/platform/Farben.h"

namespace zerna {

namespace {

QPointF toPoint(const Punkt& p) { return {std::round(p.x) + 0.5, std::round(p.y) + 0.5}; }

void paintTitle(QPainter& painter, const Schriftzug& titel, QFont font)
{
    constexpr int Pixels = 12;
    font.setPixelSize(Pixels);
    painter.setFont(font);
    painter.save();
    painter.translate(titel.position.x, titel.position.y);
    painter.rotate(-90);
    painter.drawText(QPointF(0, QFontMetricsF(font).ascent()), toQt(titel.text));
    painter.restore();
}

void paintCurve(QPainter& painter, const std::vector<std::vector<Punkt>>& curve)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colourOf(Blau), Kurvenbreite, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const std::vector<Punkt>& piece : curve) {
        QPolygonF polygon;
        for (const Punkt& p : piece)
            polygon << toPoint(p);
        if (polygon.size() == 1)
            painter.fillRect(QRectF(polygon.front() - QPointF(1.5, 1.5), QSizeF(3, 3)), colourOf(Blau));
        else
            painter.drawPolyline(polygon);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

PSEDiagramm::PSEDiagramm(PSEReihe reihe, std::vector<std::string> symbole)
    : m_reihe(std::move(reihe))
    , m_symbole(std::move(symbole))
{
}

const PSEDiagramm::Layout& PSEDiagramm::layout(const Leinwand& leinwand) const
{
    return m_layout.get(leinwand, [&] { return layOut(leinwand); });
}

/// The labels' font gets smaller where they would not fit.
PSEDiagramm::Layout PSEDiagramm::layOut(const Leinwand& leinwand) const
{
    const auto laidOut = [&](const QFont& font) {
        return Layout{layOutPSE(m_reihe, leinwand.size.width(), leinwand.size.height(), textmasse(font)), font};
    };
    Layout layout = laidOut(leinwand.font);
    const PSEBild& bild = layout.bild;
    if (bild.widestLabel <= bild.labelRoom || bild.labelRoom <= 0)
        return layout;
    QFont smaller = leinwand.font;
    smaller.setPointSizeF(std::max(1.0, smaller.pointSizeF() * bild.labelRoom / bild.widestLabel));
    return laidOut(smaller);
}

void PSEDiagramm::paint(QPainter& painter, const Leinwand& leinwand) const
{
    const auto& [bild, labelFont] = layout(leinwand);
    painter.fillRect(QRect(QPoint(0, 0), leinwand.size), Qt::white);
    painter.setPen(QPen(Qt::black, 1));
    for (const Strecke& line : bild.lines)
        painter.drawLine(toPoint(line.from), toPoint(line.to));
    painter.setFont(labelFont);
    const double ascent = QFontMetricsF(labelFont).ascent();
    for (const Schriftzug& label : bild.labels)
        painter.drawText(QPointF(label.position.x, label.position.y + ascent), toQt(label.text));
    paintTitle(painter, bild.titel, leinwand.font);
    paintCurve(painter, bild.curve);
}

void PSEDiagramm::paintCursor(QPainter& painter, const Leinwand& leinwand) const
{
    constexpr double Radius = 4;
    if (m_cursor < 0)
        return;
    const auto& point = layout(leinwand).bild.points.at(static_cast<std::size_t>(m_cursor));
    if (!point)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Cursorfarbe, 2));
    painter.drawEllipse(toPoint(*point), Radius, Radius);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

std::string PSEDiagramm::values() const { return psedatei(m_reihe); }

std::vector<Exportart> PSEDiagramm::exportarten(const Leinwand& leinwand) const
{
    if (!istEinerBekannt(m_reihe.y))
        return {};
    return {datDatei([this] { return values(); }), bitmap(maler(), leinwand)};
}

QString PSEDiagramm::positionText(const QPointF& position, const Leinwand& leinwand) const
{
    const auto element = nearestElement(layout(leinwand).bild, position.x());
    return element ? elementText(*element) : QString();
}

QString PSEDiagramm::elementText(std::size_t element) const
{
    return QStringLiteral("%1   OZ %2   %3")
        .arg(toQt(m_symbole.at(element)), toQt(textOfSingle(m_reihe.x.at(element))),
            toQt(werttext(m_reihe.y.at(element))));
}

QString PSEDiagramm::cursorText() const
{
    return m_cursor < 0 ? QString() : elementText(static_cast<std::size_t>(m_cursor));
}

bool PSEDiagramm::keyPressed(int key, const Leinwand& leinwand)
{
    const PSEBild& bild = layout(leinwand).bild;
    switch (key) {
    case Qt::Key_Left:
        moveCursor(m_cursor - 1, -1, bild);
        return true;
    case Qt::Key_Right:
        moveCursor(m_cursor + 1, 1, bild);
        return true;
    case Qt::Key_Home:
        moveCursor(0, 1, bild);
        return true;
    case Qt::Key_End:
        moveCursor(static_cast<int>(bild.points.size()) - 1, -1, bild);
        return true;
    default:
        return false;
    }
}

/// Moves the cursor to the first element in that direction that has a value; it stays where there is none.
void PSEDiagramm::moveCursor(int from, int step, const PSEBild& bild)
{
    const auto count = static_cast<int>(bild.points.size());
    int next = from;
    while (next >= 0 && next < count && !bild.points.at(static_cast<std::size_t>(next)))
        next += step;
    if (next >= 0 && next < count)
        m_cursor = next;
}

void PSEDiagramm::clearCursor() { m_cursor = -1; }

} // namespace zerna
