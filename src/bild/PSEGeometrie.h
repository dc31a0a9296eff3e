#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bild/Achsen.h"
#include "model/PSEReihe.h"

/// Geometry of the element-property diagram: everything that is painted, as numbers in logical pixels.
namespace zerna {

struct Strecke {
    Punkt from;
    Punkt to;
};

/// A text with its top left corner.
struct Schriftzug {
    Punkt position;
    std::string text;
};

struct PSEBild {
    std::vector<Strecke> lines; ///< axes and ticks
    std::vector<Schriftzug> labels;
    double labelRoom = 0; ///< width that the labels of the y axis have
    double widestLabel = 0; ///< and the widest of them
    Schriftzug titel; ///< runs upwards from its position
    std::vector<std::vector<Punkt>> curve; ///< pieces between gaps; a piece may be a single point
    std::vector<std::optional<Punkt>> points; ///< of each element, none where the value is missing
};

/// The range of the values, not yet rounded.
/// Intended: the first value counts even when it is missing.
Bereich bereichMitErstemWert(const std::vector<float>& values);

/// The range widened to whole multiples of the power of ten not above its width, or of half of that if the values would
/// otherwise fill less than 40 % of the height. An empty range stays as it is.
Bereich gerundeterBereich(const Bereich& range);

/// Lays the diagram out on an area of that size; the number of elements sets the scale. `masse` is of the labels' font.
/// Without a range the curve is missing and only the lowest division is labelled. Labels that would overlap are left
/// out.
PSEBild layOutPSE(const PSEReihe& reihe, int width, int height, const Textmasse& masse);

/// The element nearest to column `x`; none without values.
std::optional<std::size_t> nearestElement(const PSEBild& bild, double x);

} // namespace zerna
