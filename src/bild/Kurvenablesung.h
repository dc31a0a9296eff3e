#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "bild/Kurvenlayout.h"

/// What the curves of a picture say at a place.
namespace zerna {

/// A place on a curve; y is NaN in a gap.
struct Kurvenpunkt {
    std::size_t kurve = 0; ///< its index
    double x = 0;
    double y = 0;
};

/// The value of a curve at x, on the line between its points; NaN in a gap and outside. The points ascend in x.
double wertBei(std::span<const Punkt> punkte, double x);

/// The place that a position on the plot means: the value of the nearest line at that x, or a sign close by.
std::optional<Kurvenpunkt> punktBei(const Kurvenbild& bild, const Kurvenlayout& layout, const Punkt& position);

/// "42,50 at% Al - 9,48 eV" with the units of the axes or of the curve; with several named curves its name comes first,
/// and the value of a second quantity of the same series follows.
std::string ablesung(const Kurvenbild& bild, const Kurvenpunkt& punkt, const Bereich& x);

/// Where a step along a curve leads: `steps` points on, each at least a pixel away and not in a gap.
Kurvenpunkt naechsterPunkt(const Kurvenbild& bild, const Kurvenpunkt& from, int steps, double pixel);

/// The first or the last point of a curve in a range; none if there is none.
std::optional<Kurvenpunkt> randpunkt(const Kurvenbild& bild, std::size_t kurve, const Bereich& x, bool last);

} // namespace zerna
