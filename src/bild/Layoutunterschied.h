#pragma once

#include <vector>

#include "bild/Kurvenlayout.h"

namespace zerna {

/// Where two layouts on one canvas differ beside the plot: the places of what only one of them has, and of the samples
/// in the legend, whose curves may look otherwise.
struct Layoutunterschied {
    std::vector<Rechteck> rand; ///< around `kern`
    std::vector<Rechteck> kern;
};

Layoutunterschied unterschied(const Kurvenlayout& before, const Kurvenlayout& now);

} // namespace zerna
