#pragma once

#include <array>
#include <numbers>
#include <optional>
#include <vector>

#include "bild/Geometrie.h"
#include "model/reihen/Diagrammwahl.h"
#include "model/reihen/Ternaergitter.h"
#include "model/reihen/Wertebereich.h"

/// Geometry of the ternary diagram. The base is an equilateral triangle of side 1 in the plane z = 0, centred on the
/// origin; the surface stands above it, its heights from 0 to SurfaceHeight.
namespace zerna {

/// Height of the surface between the grid's smallest and largest value, in sides of the triangle.
inline constexpr double SurfaceHeight = 0.6;

/// Height of the triangle, in its sides.
inline constexpr double TriangleHeight = std::numbers::sqrt3 / 2;

struct Raumpunkt {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// A point on the picture in pixels; a larger depth is nearer to the viewer.
struct Bildpunkt {
    double x = 0;
    double y = 0;
    double depth = 0;
};

/// The view after tilting and turning; the tilt stays within its limits, the turn within -180 to 180.
Ansicht rotated(Ansicht ansicht, double tilt, double turn);

/// The view after zooming by a factor, within its limits.
Ansicht zoomed(Ansicht ansicht, double factor);

/// Orthographic projection of the diagram onto a picture, and back.
class Projektion {
public:
    Projektion() = default;

    /// Unzoomed, the diagram fits into that part of the picture however it is turned; its size changes with the tilt
    /// alone.
    Projektion(const Ansicht& ansicht, const Rechteck& part);

    Bildpunkt project(const Raumpunkt& point) const;
    Raumpunkt unproject(const Bildpunkt& point) const;
    double scale() const { return m_scale; } ///< pixels per side of the triangle
    bool operator==(const Projektion&) const = default;

private:
    double m_centreX = 0;
    double m_centreY = 0;
    double m_scale = 1;
    double m_sinTilt = 0;
    double m_cosTilt = 1;
    double m_sinTurn = 0;
    double m_cosTurn = 1;
    double m_middle = 0; // height of the centre of rotation
};

/// Shares of the three components, sum 1.
using Anteile3 = std::array<double, 3>;

/// The place of a composition, at a height.
Raumpunkt placeOf(const Anteile3& anteile, double z);

/// The composition at a place; no value outside the triangle.
std::optional<Anteile3> compositionAt(const Raumpunkt& place);

/// Height of a value in a range, as a share of SurfaceHeight; 0.5 for an empty range.
double heightShare(double value, const Wertebereich& range);

/// Indices of a grid's points that form a triangle.
struct Gitterdreieck {
    std::array<std::size_t, 3> corner{};
};

/// The triangles of the surface, all the same way round; those with a missing value are left out.
std::vector<Gitterdreieck> triangulate(const Ternaergitter& gitter);

/// Whether the shares have a place in the triangle: none is negative, and they sum up to 1.
bool istZusammensetzung(const Anteile3& anteile);

/// The value of the surface at a composition, interpolated between the grid's points; no value beside a hole.
std::optional<double> interpolated(const Ternaergitter& gitter, const Anteile3& anteile);

/// Rounded values within a range, five to ten of them; a single one for an empty range.
std::vector<double> axisTicks(const Wertebereich& range);

} // namespace zerna
