#pragma once

#include <span>
#include <vector>

#include "model/messung/Messkurve.h"

namespace zerna {

/// The maxima of a measured curve with their heights, from left to right. Noise makes none, nor does a bump below a
/// fiftieth of the curve's range: a maximum rises from both minima beside it by more than noise of that length reaches
/// by chance. The noise is estimated from fourth differences; what is looked through is smoothed by a moving average as
/// wide as a quarter of the strongest maximum.
///
/// The place is the vertex of the parabola through three neighbouring points about the top. So that noise does not
/// shift them, they are those of a fourth-degree polynomial fitted to the measured points within 0.6 half-widths of the
/// top (five points of a coarse curve, which are the measured ones then).
std::vector<Messpunkt> maxima(std::span<const Messpunkt> punkte);

} // namespace zerna
