#include "ui/diagram/Linienmaler.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zerna {

namespace {

constexpr double Beside = 4; // pixels, more than a pen with its joints and caps reaches

/// Whether the line may go on straight there as far as the next edge of a pixel.
bool isGentle(const QLineF& before, const QLineF& after)
{
    constexpr double Unseen = 0.05; // pixels
    constexpr double ToNextEdge = 0.5;
    if (before.dx() < Beside || after.dx() < Beside) // also where it is upright
        return false;
    const double first = before.dy() / before.dx();
    const double second = after.dy() / after.dx();
    return std::abs(second - first) * ToNextEdge <= Unseen * std::hypot(1, std::min(std::abs(first), std::abs(second)));
}

/// The same line with points near its ends, whose caps are no straight lines.
QPolygonF withShortEnds(const QPolygonF& linie)
{
    QPolygonF result = linie;
    const QLineF first(linie[0], linie[1]);
    const QLineF last(linie[linie.size() - 2], linie.back());
    if (last.dx() > 3 * Beside)
        result.insert(result.size() - 1, last.pointAt(1 - Beside / last.dx()));
    if (first.dx() > 3 * Beside)
        result.insert(1, first.pointAt(Beside / first.dx()));
    return result;
}

/// Paints a line part by part.
class Linienmaler {
public:
    Linienmaler(QPainter& painter, QPen pen, const QRectF& area)
        : m_painter(painter)
        , m_pen(std::move(pen))
        , m_cap(m_pen.capStyle())
        , m_area(area)
    {
        if (m_pen.style() == Qt::CustomDashLine) {
            const QList<qreal> pattern = m_pen.dashPattern();
            m_period = std::accumulate(pattern.begin(), pattern.end(), 0.0);
        }
    }

    /// The next part, which an edge of pixels divides from those beside it.
    void paint(QPolygonF part, bool isFirst, bool isLast)
    {
        const double left = isFirst ? m_area.left() : std::round(part.front().x());
        const double right = isLast ? m_area.right() : std::round(part.back().x());
        const double length = lengthOf(part);
        const QLineF begin(part[0], part[1]);
        const QLineF end(part.back(), part[part.size() - 2]);
        if (!isFirst)
            part.front() = begin.pointAt(-Beside / begin.length());
        if (!isLast)
            part.back() = end.pointAt(-Beside / end.length());
        const bool isStraight = part.size() == 2 && !isFirst && !isLast;
        setPen(isFirst ? m_before : m_before - Beside, isStraight);
        m_before += length;
        m_painter.setClipRect(QRectF(left, m_area.top(), right - left, m_area.height()));
        if (isStraight)
            m_painter.drawLine(part.front(), part.back());
        else
            m_painter.drawPolyline(part);
    }

private:
    static double lengthOf(const QPolygonF& part)
    {
        double sum = 0;
        for (qsizetype i = 1; i < part.size(); ++i)
            sum += QLineF(part[i - 1], part[i]).length();
        return sum;
    }

    /// Dashes go on from part to part. A round cap would need an outline, even where it is not seen.
    void setPen(double before, bool isStraight)
    {
        m_pen.setCapStyle(isStraight ? Qt::FlatCap : m_cap);
        if (m_period > 0) {
            const double offset = before / m_pen.widthF();
            m_pen.setDashOffset(offset - m_period * std::floor(offset / m_period));
        }
        m_painter.setPen(m_pen);
    }

    QPainter& m_painter;
    QPen m_pen;
    Qt::PenCapStyle m_cap;
    QRectF m_area;
    double m_period = 0; // of dashes, in widths of the pen
    double m_before = 0; // what the line measures up to the next part
};

} // namespace

void paintLinie(QPainter& painter, const QPolygonF& linie, QPen pen, const QRectF& area)
{
    const QPolygonF points = withShortEnds(linie);
    Linienmaler maler(painter, std::move(pen), area);
    qsizetype begin = 0;
    for (qsizetype i = 1; i < points.size(); ++i) {
        const bool isLast = i + 1 == points.size();
        if (!isLast && !isGentle({points[i - 1], points[i]}, {points[i], points[i + 1]}))
            continue;
        maler.paint(points.mid(begin, i - begin + 1), begin == 0, isLast);
        begin = i;
    }
    painter.setClipRect(area);
}

} // namespace zerna
