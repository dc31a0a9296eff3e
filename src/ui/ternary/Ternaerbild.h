#pragma once

#include <QFont>
#include <QPointF>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include "bild/Ternaerbeschriftung.h"

class QPainter;

namespace zerna {

/// What a picture of a ternary diagram depends on. The size is in logical pixels and not empty, the ratio device pixels
/// per logical one, for the surface.
struct Ternaeraufnahme {
    std::shared_ptr<const Ternaerinhalt> inhalt; ///< not null
    Ternaerbeiwerk beiwerk;
    Ansicht ansicht;
    QSize size;
    QFont font;
    double devicePixelRatio = 1;
    Bildstil stil = {};
    bool operator==(const Ternaeraufnahme&) const = default;
};

/// The ternary diagram as a picture. What has not changed since the last one is used again.
class Ternaerbild {
public:
    void zeige(const Ternaeraufnahme& aufnahme);

    void paint(QPainter& painter) const;

    /// Composition and value of the surface under a position; empty beside it.
    QString positionText(const QPointF& position) const;

    /// Where the surface's point of a composition is, hidden or not; none where it has no value.
    std::optional<QPointF> stelle(const Anteile3& anteile) const;

    const Ternaeraufteilung& aufteilung() const { return m_parts; }
    const Ternaerbeschriftung& beschriftung() const { return m_labels; }

private:
    void paintDiagram(QPainter& painter) const;
    void paintSurface(QPainter& painter) const;
    void paintBase(QPainter& painter) const;
    void paintCurrent(QPainter& painter) const;
    void paintTargetLines(QPainter& painter) const;
    void paintColourBar(QPainter& painter) const;
    void paintTexts(QPainter& painter, const std::vector<Ternaertext>& texts) const;
    QPointF at(const Anteile3& anteile, double z) const;
    double frameWidth() const;
    const Ternaerinhalt& inhalt() const { return *m_aufnahme.inhalt; }
    bool isFlat() const { return m_aufnahme.ansicht.flach; }

    Ternaeraufnahme m_aufnahme;
    Ternaeraufteilung m_parts;
    Ternaerflaeche m_flaeche;
    Ternaerbeschriftung m_labels;
};

} // namespace zerna
