#pragma once

#include <optional>
#include <vector>

#include "bild/Flaechenbild.h"
#include "bild/Geometrie.h"
#include "bild/Ternaergeometrie.h"

/// The surface of a ternary diagram, seen from one side.
namespace zerna {

/// A grid with all that its pictures have in common.
struct Ternaerinhalt {
    /// `alloy` is the composition that is entered; it becomes `current` if it lies in the triangle.
    Ternaerinhalt(Ternaergitter values, const Anteile3& alloy);

    Ternaergitter gitter;
    Wertebereich range;
    std::vector<Gitterdreieck> triangles;
    std::vector<double> ticks; ///< values that are labelled, and where lines run over the surface
    std::optional<Anteile3> current;
};

/// The surface as a picture, with the composition under each of its points.
class Ternaerflaeche {
public:
    /// The picture's size is in logical pixels.
    Ternaerflaeche(
        const Ternaerinhalt& inhalt, const Ansicht& ansicht, double width, double height, double devicePixelRatio);

    const Projektion& projektion() const { return m_projektion; }
    const Flaechenbild& bild() const { return m_bild; }

    /// The composition of the nearest surface under a position in logical pixels; no value beside it.
    std::optional<Anteile3> anteileAt(const Punkt& position) const;

private:
    Projektion m_projektion;
    double m_ratio; // device pixels per logical pixel
    Flaechenbild m_bild; // in device pixels
};

} // namespace zerna
