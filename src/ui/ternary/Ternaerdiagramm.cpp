#include "ui/ternary/Ternaerdiagramm.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

#include "core/Zahlentext.h"
#include "model/Werttext.h"
#include "ui/platform/QtText.h"

namespace zerna {

namespace {

constexpr double BarSpace = 120; // for the colour bar and its labels, on the right
constexpr double LabelSpace = 34; // around the diagram
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

} // namespace

void Ternaerdiagramm::setGitter(Ternaergitter gitter, const Anteile3& current)
{
    m_gitter = std::move(gitter);
    m_range = wertebereich(m_gitter);
    m_triangles = triangulate(m_gitter);
    m_ticks = m_range.known ? axisTicks(m_range) : std::vector<double>();
    const bool inside = std::ranges::all_of(current, [](double share) { return share >= 0 && share <= 1; });
    m_current = inside ? std::optional(current) : std::nullopt;
    m_dirty = true;
}

void Ternaerdiagramm::reset()
{
    const bool flach = m_ansicht.flach;
    m_ansicht = {};
    m_ansicht.flach = flach;
}

QRectF Ternaerdiagramm::plotRect(const QSize& size) const
{
    const QPointF origin = plotOrigin();
    return {origin,
        QSizeF(std::max(1.0, size.width() - origin.x() - BarSpace), std::max(1.0, size.height() - 2 * LabelSpace))};
}

/// The vertical axis wants room for its labels on the left.
QPointF Ternaerdiagramm::plotOrigin() const
{
    constexpr double AxisSpace = 40;
    return {m_ansicht.flach ? LabelSpace : LabelSpace + AxisSpace, LabelSpace};
}

Flaechenstil Ternaerdiagramm::style(double devicePixelRatio) const
{
    // The mesh fades out where its lines would run together.
    constexpr double Faintest = 4;
    constexpr double Clearest = 16;
    const double cell = m_projektion.scale() / std::max(1, m_gitter.n);
    Flaechenstil stil;
    stil.meshOpacity = static_cast<float>(0.4 * std::clamp((cell - Faintest) / (Clearest - Faintest), 0.0, 1.0));
    stil.lineWidth = static_cast<float>(1.2 * devicePixelRatio);
    stil.shaded = !m_ansicht.flach;
    for (const double tick : m_ticks)
        stil.levels.push_back(static_cast<float>(heightShare(tick, m_range)));
    if (m_ticks.size() < 2)
        stil.levels.clear();
    return stil;
}

void Ternaerdiagramm::renderSurface(const QSize& size, double devicePixelRatio)
{
    if (!m_dirty && m_bild && m_shown == m_ansicht && m_shownSize == size && m_ratio == devicePixelRatio)
        return;
    m_shown = m_ansicht;
    m_shownSize = size;
    m_ratio = devicePixelRatio;
    m_dirty = false;
    const Flaechenstil stil = style(devicePixelRatio);
    std::vector<Flaechenecke> corners(m_gitter.werte.size());
    for (int i = 0; i <= m_gitter.n; ++i) {
        for (int j = 0; i + j <= m_gitter.n; ++j) {
            const std::size_t place = m_gitter.position(i, j);
            const double share = heightShare(m_gitter.werte[place], m_range);
            const double n = m_gitter.n;
            const Bildpunkt p = m_projektion.project(
                placeOf({i / n, j / n, (n - i - j) / n}, m_ansicht.flach ? 0 : share * SurfaceHeight));
            corners[place] = {static_cast<float>(p.x * devicePixelRatio), static_cast<float>(p.y * devicePixelRatio),
                static_cast<float>(p.depth), static_cast<float>(share)};
        }
    }
    m_bild.emplace(
        static_cast<int>(size.width() * devicePixelRatio), static_cast<int>(size.height() * devicePixelRatio));
    for (const Gitterdreieck& triangle : m_triangles)
        m_bild->fill(corners[triangle.corner[0]], corners[triangle.corner[1]], corners[triangle.corner[2]], stil);
}

void Ternaerdiagramm::paint(QPainter& painter, const QSize& size, const QFont& font, double devicePixelRatio)
{
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    if (m_gitter.n == 0 || size.isEmpty())
        return;
    const QRectF plot = plotRect(size);
    m_projektion = Projektion(m_ansicht, plot.width(), plot.height());
    renderSurface(plot.size().toSize(), devicePixelRatio);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.translate(plot.topLeft());
    const bool fromBelow = !m_ansicht.flach && m_ansicht.tilt < 0;
    const bool hidesEdges = !fromBelow && !m_ansicht.flach; // the surface then stands before some of them
    if (!fromBelow)
        paintBase(painter);
    if (hidesEdges)
        paintEdges(painter);
    const QImage image(reinterpret_cast<const uchar*>(m_bild->pixels().data()), m_bild->width(), m_bild->height(),
        QImage::Format_ARGB32_Premultiplied);
    painter.drawImage(QRectF(QPointF(0, 0), plot.size().toSize()), image);
    if (fromBelow || m_ansicht.flach)
        paintBase(painter);
    paintCurrent(painter);
    paintCorners(painter);
    if (!hidesEdges)
        paintEdges(painter);
    if (!m_ansicht.flach)
        paintAxis(painter);
    painter.restore();
    paintColourBar(painter, size);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QPointF Ternaerdiagramm::at(const Anteile3& anteile, double z) const
{
    const Bildpunkt p = m_projektion.project(placeOf(anteile, z));
    return {p.x, p.y};
}

/// A point moved away from the middle of the base, as seen on the picture.
QPointF Ternaerdiagramm::outwards(const QPointF& from, double distance) const
{
    const QPointF middle = at({1.0 / 3, 1.0 / 3, 1.0 / 3}, 0);
    const QPointF direction = from - middle;
    const double length = std::hypot(direction.x(), direction.y());
    return length > 0 ? from + direction * (distance / length) : from;
}

void Ternaerdiagramm::paintBase(QPainter& painter) const
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

void Ternaerdiagramm::paintText(QPainter& painter, const QPointF& centre, const QString& text) const
{
    const QRectF box = QFontMetricsF(painter.font()).boundingRect(text);
    QRectF place(QPointF(0, 0), box.size() + QSizeF(2, 0));
    place.moveCenter(centre);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
}

void Ternaerdiagramm::paintCorners(QPainter& painter) const
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
        paintText(painter, outwards(at(along(k, k, 1), 0), Distance) + shift, toQt(m_gitter.symbole.at(k)));
    }
    painter.setFont(plain);
}

/// The at% of the component towards which an edge runs, every 20 at%.
void Ternaerdiagramm::paintEdges(QPainter& painter) const
{
    constexpr double Distance = 14;
    constexpr double ShortestEdge = 110; // pixels; below that the labels would overlap
    painter.setPen(QColor(70, 70, 70));
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

QString Ternaerdiagramm::tickText(double value) const
{
    return toQt(werttext(static_cast<float>(value), m_gitter.einheit));
}

/// The corner farthest to the left, where the surface never hides the vertical axis.
std::size_t Ternaerdiagramm::axisCorner() const
{
    std::size_t corner = 0;
    for (std::size_t k = 1; k < 3; ++k) {
        if (at(along(k, k, 1), 0).x() < at(along(corner, corner, 1), 0).x())
            corner = k;
    }
    return corner;
}

void Ternaerdiagramm::paintAxis(QPainter& painter) const
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
    for (const double value : m_ticks) {
        const QPointF tick = at(place, heightShare(value, m_range) * SurfaceHeight);
        painter.drawLine(tick, tick - QPointF(Tick, 0));
        if (std::abs(lastY - tick.y()) < metrics.height())
            continue;
        lastY = tick.y();
        const QString text = tickText(value);
        painter.drawText(tick - QPointF(Tick + 4 + metrics.horizontalAdvance(text), -metrics.ascent() / 2 + 1), text);
    }
}

/// The alloy's own composition: a point on the surface and a line down to the base.
void Ternaerdiagramm::paintCurrent(QPainter& painter) const
{
    constexpr double Radius = 4.5;
    if (!m_current)
        return;
    const auto value = interpolated(m_gitter, *m_current);
    if (!value)
        return;
    const double z = m_ansicht.flach ? 0 : heightShare(*value, m_range) * SurfaceHeight;
    painter.setPen(QPen(QColor(200, 30, 30), 1.2, Qt::DashLine));
    painter.drawLine(at(*m_current, 0), at(*m_current, z));
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(QColor(200, 30, 30));
    painter.drawEllipse(at(*m_current, z), Radius, Radius);
    painter.setBrush(Qt::NoBrush);
}

void Ternaerdiagramm::paintColourBar(QPainter& painter, const QSize& size) const
{
    constexpr double Width = 14;
    constexpr int Stops = 17;
    const QRectF bar(size.width() - BarSpace + 14, LabelSpace, Width, size.height() - 2 * LabelSpace);
    if (bar.height() < 2 * LabelSpace || !m_range.known)
        return;
    QLinearGradient gradient(bar.bottomLeft(), bar.topLeft());
    for (int i = 0; i < Stops; ++i) {
        const Farbe f = farbskala(i / (Stops - 1.0));
        gradient.setColorAt(i / (Stops - 1.0), QColor(f.red, f.green, f.blue));
    }
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(gradient);
    painter.drawRect(bar);
    painter.setBrush(Qt::NoBrush);
    const QFontMetricsF metrics(painter.font());
    for (const double value : m_ticks) {
        const double y = bar.bottom() - heightShare(value, m_range) * bar.height();
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 4, y));
        painter.drawText(QPointF(bar.right() + 7, y + metrics.ascent() / 2 - 1), tickText(value));
    }
}

QString Ternaerdiagramm::positionText(const QPointF& position) const
{
    if (!m_bild)
        return {};
    const QPointF inPlot = position - plotOrigin();
    float depth = 0;
    if (!m_bild->depthAt(static_cast<int>(inPlot.x() * m_ratio), static_cast<int>(inPlot.y() * m_ratio), depth))
        return {};
    const auto anteile = compositionAt(m_projektion.unproject({inPlot.x(), inPlot.y(), depth}));
    const auto value = anteile ? interpolated(m_gitter, *anteile) : std::nullopt;
    if (!value)
        return {};
    std::string text;
    for (std::size_t k = 0; k < 3; ++k)
        text += m_gitter.symbole.at(k) + " " + fixedText(std::max(0.0, anteile->at(k)) * 100, 1) + " at%  ";
    return toQt(text + "-  ") + tickText(*value);
}

} // namespace zerna
