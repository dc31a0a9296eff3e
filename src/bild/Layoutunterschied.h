#pragma once

#include <vector>

#include "bild/Kurvenlayout.h"

namespace zerna {

/// Where two layouts on one canvas differ beside the plot: the places of what only one of them has.
struct Layoutunterschied {
    std::vector<Rechteck> rand; ///< around `kern`
    std::vector<Rechteck> kern;
};

/// Where a sample is painted, its sign included.
Rechteck platz(const Linienprobe& probe);

Layoutunterschied unterschied(const Kurvenlayout& before, const Kurvenlayout& now);

} // namespace zerna
