#pragma once

#include <vector>

#include "bild/Kurvenlayout.h"

namespace zerna {

/// Where two layouts on one canvas differ beside the plot: the places of what only one of them has.
struct Layoutunterschied {
    std::vector<Rechteck> rand; ///< around `kern`
    std::vector<Rechteck> kern;
};

Layoutunterschied unterschied(const Kurvenlayout& before, const Kurvenlayout& now);

/// From the middle of the largest sign of a curve to its edge, with the line's; pixels.
inline constexpr double Zeichenraum = 8;

/// Where a sample is painted, its sign included.
Rechteck platz(const Linienprobe& probe);

} // namespace zerna
