#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "bild/Achsen.h"
#include "bild/Geometrie.h"

namespace zerna {

/// Lines through points, in pixels from the plot's corner.
using Linienzuege = std::vector<std::vector<Punkt>>;

/// What a painter has to draw of a curve on a plot of that size: the lines between its gaps, cut a little outside the
/// plot. Where several points lie in one column of pixels, only the first, the last, the lowest and the highest stay:
/// the picture is the same, and a million points are as quick as the columns. `punkte` ascend in x.
Linienzuege sichtbareZuege(std::span<const Punkt> punkte, const Abbildung& abbildung, double width, double height);

/// The line without the points beside which it runs anyway: what is left passes all others in a vertical distance of at
/// most `tolerance`. Takes one look at each point.
std::vector<Punkt> begradigt(std::span<const Punkt> line, double tolerance);

/// The points of a curve on the plot, for signs; of those in one pixel only the first.
std::vector<Punkt> sichtbarePunkte(
    std::span<const Punkt> punkte, const Abbildung& abbildung, double width, double height);

} // namespace zerna
