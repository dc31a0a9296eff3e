#pragma once

#include <QFont>
#include <QRect>
#include <QString>

#include <memory>

#include "bild/Ternaerflaeche.h"

class QPainter;

namespace zerna {

/// The ternary diagram as it looks from one side at one size: rendered once, painted as often as wanted.
class Ternaerbild {
public:
    /// The size is in logical pixels and not empty; the surface has that many device pixels per logical one.
    Ternaerbild(std::shared_ptr<const Ternaerinhalt> inhalt, const Ansicht& ansicht, const QSize& size,
        const QFont& font, double devicePixelRatio);

    void paint(QPainter& painter) const;

    /// Composition and value of the surface under a position; empty beside it.
    QString positionText(const QPointF& position) const;

private:
    void paintSurface(QPainter& painter) const;
    void paintBase(QPainter& painter) const;
    void paintCorners(QPainter& painter) const;
    void paintEdges(QPainter& painter) const;
    void paintAxis(QPainter& painter) const;
    void paintCurrent(QPainter& painter) const;
    void paintColourBar(QPainter& painter) const;
    QPointF at(const Anteile3& anteile, double z) const;
    QPointF outwards(const QPointF& from, double distance) const;
    std::size_t axisCorner() const;
    QString tickText(double value) const;

    std::shared_ptr<const Ternaerinhalt> m_inhalt;
    Ansicht m_ansicht;
    QSize m_size;
    QFont m_font;
    QRect m_plot; // where the surface lies; points of the projection are relative to it
    Ternaerflaeche m_flaeche;
};

} // namespace zerna
