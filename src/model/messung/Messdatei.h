#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/messung/Messkurve.h"

namespace zerna {

/// What became of a file of measured points.
struct Messlesung {
    std::optional<Messkurve> kurve;
    std::string grund; ///< why there is no curve, with the line it is about: "Zeile 7: … ."; empty if there is one
};

/// Reads a text of two columns (Messzeilen) in any encoding (textAusBytes). Empty lines do not count, nor do lines that
/// begin with # ; % ' ! or //, what follows a # , and the heading above the first point. Falling x are turned round;
/// otherwise x must rise from point to point. What the curve is follows from its heading and its name, and where these
/// say nothing its unit from where its maximum lies. More than `hoechstens` points are
/// refused.
Messlesung liesMesskurve(std::string_view bytes, std::string_view name, std::size_t hoechstens = MeisteMesspunkte);

} // namespace zerna
