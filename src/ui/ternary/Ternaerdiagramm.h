#pragma once

#include <QFont>
#include <QImage>
#include <QString>

#include <optional>

#include "bild/Flaechenbild.h"
#include "bild/Ternaergeometrie.h"

class QPainter;

namespace zerna {

/// The ternary diagram: grid, view and painting. Its owner forwards what the user does and repaints.
class Ternaerdiagramm {
public:
    /// Replaces the grid; the view stays. `current` is the alloy's own composition, shown if it lies in the triangle.
    void setGitter(Ternaergitter gitter, const Anteile3& current);
    const Ternaergitter& gitter() const { return m_gitter; }

    const Ansicht& ansicht() const { return m_ansicht; }
    void setAnsicht(const Ansicht& ansicht) { m_ansicht = ansicht; }

    /// Back to the first view; flat stays flat.
    void reset();

    /// Paints the diagram as it looks at a size in logical pixels, with that many device pixels per logical one.
    void paint(QPainter& painter, const QSize& size, const QFont& font, double devicePixelRatio);

    /// Composition and value of the surface under a position of the picture painted last; empty beside it.
    QString positionText(const QPointF& position) const;

private:
    QRectF plotRect(const QSize& size) const;
    void renderSurface(const QSize& size, double devicePixelRatio);
    Flaechenstil style(double devicePixelRatio) const;
    void paintBase(QPainter& painter) const;
    void paintCorners(QPainter& painter) const;
    void paintEdges(QPainter& painter) const;
    void paintAxis(QPainter& painter) const;
    void paintCurrent(QPainter& painter) const;
    void paintColourBar(QPainter& painter, const QSize& size) const;
    void paintText(QPainter& painter, const QPointF& centre, const QString& text) const;
    QPointF at(const Anteile3& anteile, double z) const;
    std::size_t axisCorner() const;
    QPointF plotOrigin() const;
    QPointF outwards(const QPointF& from, double distance) const;
    QString tickText(double value) const;

    Ternaergitter m_gitter;
    Wertebereich m_range;
    std::vector<Gitterdreieck> m_triangles;
    std::vector<double> m_ticks;
    std::optional<Anteile3> m_current;
    Ansicht m_ansicht;
    Projektion m_projektion; // of the picture painted last
    std::optional<Flaechenbild> m_bild; // in device pixels
    double m_ratio = 1; // device pixels per logical pixel in it
    Ansicht m_shown; // view and size of the rendered surface
    QSize m_shownSize;
    bool m_dirty = true;
};

} // namespace zerna
