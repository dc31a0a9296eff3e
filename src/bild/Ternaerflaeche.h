#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "bild/Bildstil.h"
#include "bild/Flaechenbild.h"
#include "bild/Ternaerinhalt.h"

/// The surface of a ternary diagram, seen from one side.
namespace zerna {

/// What is seen of a grid, and where.
struct Flaechensicht {
    std::shared_ptr<const Ternaerinhalt> inhalt; ///< not null
    Ansicht ansicht;
    Projektion projektion;
    Rechteck bild; ///< where the surface may be, logical pixels
    double ratio = 1; ///< device pixels per logical one
    bool grau = false;
    double linienbreite = Bildstil().linienbreite;

    bool operator==(const Flaechensicht&) const = default;
};

/// The surface as a picture, with the composition under each of its points. It is rendered when it is seen otherwise
/// than before, in the same memory. Positions are logical pixels.
class Ternaerflaeche {
public:
    void zeige(const Flaechensicht& sicht);

    const Flaechensicht& sicht() const { return m_sicht; }
    const Flaechenbild& bild() const { return m_bild; } ///< in device pixels
    Rechteck platz() const; ///< of that picture

    /// The composition of the nearest surface under a position; no value beside it.
    std::optional<Anteile3> anteileAt(const Punkt& position) const;

    /// Whether the surface lies under some part of a box.
    bool istBedeckt(const Rechteck& box) const;

    /// Whether no part of the surface hides a point on it.
    bool istSichtbar(const Bildpunkt& punkt) const;

private:
    void placeCorners();
    void findTriangleSides();
    void fillTriangles();
    bool depthAt(double x, double y, float& depth) const;

    Flaechensicht m_sicht;
    int m_left = 0; // of the picture, device pixels
    int m_top = 0;
    Flaechenbild m_bild;
    std::vector<Flaechenecke> m_corners; // by the grid's points
    std::vector<bool> m_isLeft; // by triangles: which way round their corners are seen
};

} // namespace zerna
