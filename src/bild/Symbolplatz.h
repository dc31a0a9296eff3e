#pragma once

#include <optional>
#include <span>
#include <vector>

#include "bild/Geometrie.h"

/// Room for short texts beside points of a curve.
namespace zerna {

struct Strecke {
    Punkt from;
    Punkt to;
    bool operator==(const Strecke&) const = default;
};

/// A text that wants to stand beside a point.
struct Symbolwunsch {
    Punkt punkt;
    double breite = 0; ///< of the text
    double abstand = 0; ///< from the point to the text's edge
    bool unten = false; ///< rather below the point than above
    bool wichtig = false; ///< rather on a line than not at all
};

/// What texts keep clear of: lines, which run from left to right, and areas of other texts.
struct Hindernisse {
    std::vector<Strecke> lines;
    std::vector<Rechteck> texts;
};

/// The area that each text gets, in the order of the wishes; none where it would leave the field, cover a line or touch
/// another text. All texts are `hoehe` high.
std::vector<std::optional<Rechteck>> platziereSymbole(
    std::span<const Symbolwunsch> wuensche, double hoehe, const Rechteck& feld, Hindernisse hindernisse);

} // namespace zerna
