#include "ui/ternary/Ternaerbild.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Zahlentext.h"
#include "model/Werttext.h"
#include "ui/platform/Farben.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr int BarSpace = 120; // for the colour bar and its labels, on the right
constexpr int LabelSpace = 34; // around the diagram
constexpr int GridLines = 10; // a line every 10 at%
const QColor GridColour(190, 190, 190);

/// The composition with a share of the way from corner `from` to corner `to`.
Anteile3 along(std::size_t from, std::size_t to, double share)
{
    Anteile3 anteile{};
    anteile.at(from) = 1 - share;
    anteile.at(to) = share;
    return anteile;
}

/// Where the surface lies; the vertical axis wants room for its labels on the left.
QRect plotRect(const QSize& size, const Ansicht& ansicht)
{
    constexpr int AxisSpace = 40;
    const int left = ansicht.flach ? LabelSpace : LabelSpace + AxisSpace;
    return {left, LabelSpace, std::max(1, size.width() - left - BarSpace), std::max(1, size.height() - 2 * LabelSpace)};
}

void paintText(QPainter& painter, const QPointF& centre, const QString& text)
{
    const QRectF box = QFontMetricsF(painter.font()).boundingRect(text);
    QRectF place(QPointF(0, 0), box.size() + QSizeF(2, 0));
    place.moveCenter(centre);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
}

} // namespace

Ternaerbild::Ternaerbild(std::shared_ptr<const Ternaerinhalt> inhalt, const Ansicht& ansicht, const QSize& size,
    const QFont& font, double devicePixelRatio)
    : m_inhalt(std::move(inhalt))
    , m_ansicht(ansicht)
    , m_size(size)
    , m_font(font)
    , m_plot(plotRect(size, ansicht))
    , m_flaeche(*m_inhalt, ansicht, m_plot.width(), m_plot.height(), devicePixelRatio)
{
}

void Ternaerbild::paint(QPainter& painter) const
{
    painter.fillRect(QRect(QPoint(0, 0), m_size), Qt::white);
    painter.setFont(m_font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.translate(m_plot.topLeft());
    const bool fromBelow = !m_ansicht.flach && m_ansicht.tilt < 0;
    const bool hidesEdges = !fromBelow && !m_ansicht.flach; // the surface then stands before some of them
    if (!fromBelow)
        paintBase(painter);
    if (hidesEdges)
        paintEdges(painter);
    paintSurface(painter);
    if (fromBelow || m_ansicht.flach)
        paintBase(painter);
    paintCurrent(painter);
    paintCorners(painter);
    if (!hidesEdges)
        paintEdges(painter);
    if (!m_ansicht.flach)
        paintAxis(painter);
    painter.restore();
    paintColourBar(painter);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void Ternaerbild::paintSurface(QPainter& painter) const
{
    const Flaechenbild& bild = m_flaeche.bild();
    const QImage image(reinterpret_cast<const uchar*>(bild.pixels().data()), bild.width(), bild.height(),
        QImage::Format_ARGB32_Premultiplied);
    painter.drawImage(QRectF(QPointF(0, 0), m_plot.size()), image);
}

QPointF Ternaerbild::at(const Anteile3& anteile, double z) const
{
    const Bildpunkt p = m_flaeche.projektion().project(placeOf(anteile, z));
    return {p.x, p.y};
}

/// A point moved away from the middle of the base, as seen on the picture.
QPointF Ternaerbild::outwards(const QPointF& from, double distance) const
{
    const QPointF middle = at({1.0 / 3, 1.0 / 3, 1.0 / 3}, 0);
    const QPointF direction = from - middle;
    const double length = std::hypot(direction.x(), direction.y());
    return length > 0 ? from + direction * (distance / length) : from;
}

void Ternaerbild::paintBase(QPainter& painter) const
{
    QColor grid = GridColour;
    if (m_ansicht.flach)
        grid = QColor(0, 0, 0, 60);
    painter.setPen(QPen(grid, 1));
    for (int line = 1; line < GridLines; ++line) {
        const double share = static_cast<double>(line) / GridLines;
        for (std::size_t k = 0; k < 3; ++k) // constant share of component k
            painter.drawLine(at(along((k + 1) % 3, k, share), 0), at(along((k + 2) % 3, k, share), 0));
    }
    painter.setPen(QPen(Qt::black, 1.2));
    for (std::size_t k = 0; k < 3; ++k)
        painter.drawLine(at(along(k, k, 1), 0), at(along((k + 1) % 3, (k + 1) % 3, 1), 0));
}

void Ternaerbild::paintCorners(QPainter& painter) const
{
    constexpr double Distance = 24;
    const QFont plain = painter.font();
    QFont bold = plain;
    bold.setBold(true);
    bold.setPointSizeF(plain.pointSizeF() * 1.3);
    painter.setFont(bold);
    painter.setPen(Qt::black);
    for (std::size_t k = 0; k < 3; ++k) {
        const bool belowAxis = !m_ansicht.flach && k == axisCorner(); // whose labels stand beside it
        const QPointF shift(0, belowAxis ? Distance * 0.7 : 0);
        paintText(painter, outwards(at(along(k, k, 1), 0), Distance) + shift, toQt(m_inhalt->gitter.symbole.at(k)));
    }
    painter.setFont(plain);
}

/// The at% of the component towards which an edge runs, every 20 at%.
void Ternaerbild::paintEdges(QPainter& painter) const
{
    constexpr double Distance = 14;
    constexpr double ShortestEdge = 110; // pixels; below that the labels would overlap
    painter.setPen(Teilungsfarbe);
    for (std::size_t k = 0; k < 3; ++k) {
        const std::size_t to = (k + 1) % 3;
        const QPointF edge = at(along(to, to, 1), 0) - at(along(k, k, 1), 0);
        if (std::hypot(edge.x(), edge.y()) < ShortestEdge)
            continue;
        const QPointF middle = at(along(k, to, 0.5), 0);
        const QPointF shift = outwards(middle, Distance) - middle;
        for (int percent = 20; percent <= 80; percent += 20)
            paintText(painter, at(along(k, to, percent / 100.0), 0) + shift, QString::number(percent));
    }
}

QString Ternaerbild::tickText(double value) const
{
    return toQt(werttext(static_cast<float>(value), m_inhalt->gitter.einheit));
}

/// The corner farthest to the left, where the surface never hides the vertical axis.
std::size_t Ternaerbild::axisCorner() const
{
    std::size_t corner = 0;
    for (std::size_t k = 1; k < 3; ++k) {
        if (at(along(k, k, 1), 0).x() < at(along(corner, corner, 1), 0).x())
            corner = k;
    }
    return corner;
}

void Ternaerbild::paintAxis(QPainter& painter) const
{
    constexpr double Shortest = 60; // pixels for labels that do not overlap
    constexpr double Tick = 6;
    const std::size_t corner = axisCorner();
    const Anteile3 place = along(corner, corner, 1);
    const QPointF bottom = at(place, 0);
    const QPointF top = at(place, SurfaceHeight);
    painter.setPen(QPen(Qt::black, 1.2));
    painter.drawLine(bottom, top);
    if (std::abs(top.y() - bottom.y()) < Shortest)
        return;
    const QFontMetricsF metrics(painter.font());
    double lastY = bottom.y() + 2 * metrics.height();
    for (const double value : m_inhalt->ticks) {
        const QPointF tick = at(place, heightShare(value, m_inhalt->range) * SurfaceHeight);
        painter.drawLine(tick, tick - QPointF(Tick, 0));
        if (std::abs(lastY - tick.y()) < metrics.height())
            continue;
        lastY = tick.y();
        const QString text = tickText(value);
        painter.drawText(tick - QPointF(Tick + 4 + metrics.horizontalAdvance(text), -metrics.ascent() / 2 + 1), text);
    }
}

/// The alloy's own composition: a point on the surface and a line down to the base.
void Ternaerbild::paintCurrent(QPainter& painter) const
{
    constexpr double Radius = 4.5;
    const auto& current = m_inhalt->current;
    const auto value = current ? interpolated(m_inhalt->gitter, *current) : std::nullopt;
    if (!value)
        return;
    const double z = m_ansicht.flach ? 0 : heightShare(*value, m_inhalt->range) * SurfaceHeight;
    painter.setPen(QPen(Legierungsfarbe, 1.2, Qt::DashLine));
    painter.drawLine(at(*current, 0), at(*current, z));
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Legierungsfarbe);
    painter.drawEllipse(at(*current, z), Radius, Radius);
    painter.setBrush(Qt::NoBrush);
}

void Ternaerbild::paintColourBar(QPainter& painter) const
{
    constexpr double Width = 14;
    const QRectF bar(m_size.width() - BarSpace + 14, LabelSpace, Width, m_size.height() - 2 * LabelSpace);
    if (bar.height() < 2 * LabelSpace || !m_inhalt->range.known)
        return;
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(farbverlauf(bar.bottomLeft(), bar.topLeft()));
    painter.drawRect(bar);
    painter.setBrush(Qt::NoBrush);
    const QFontMetricsF metrics(painter.font());
    for (const double value : m_inhalt->ticks) {
        const double y = bar.bottom() - heightShare(value, m_inhalt->range) * bar.height();
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 4, y));
        painter.drawText(QPointF(bar.right() + 7, y + metrics.ascent() / 2 - 1), tickText(value));
    }
}

QString Ternaerbild::positionText(const QPointF& position) const
{
    const QPointF inPlot = position - m_plot.topLeft();
    const auto anteile = m_flaeche.anteileAt({inPlot.x(), inPlot.y()});
    const auto value = anteile ? interpolated(m_inhalt->gitter, *anteile) : std::nullopt;
    if (!value)
        return {};
    std::string text;
    for (std::size_t k = 0; k < 3; ++k)
        text += m_inhalt->gitter.symbole.at(k) + " " + fixedText(std::max(0.0, anteile->at(k)) * 100, 1) + " at%  ";
    return toQt(text + "-  ") + tickText(*value);
}

} // namespace zerna
