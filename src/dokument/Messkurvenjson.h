#pragma once

#include <vector>

#include "dokument/Feldleser.h"
#include "model/messung/Messkurve.h"

/// The measured curves of a document as JSON. A curve's coordinates are two texts of numbers with blanks between them:
/// as lists they would be more values than a file may have.
namespace zerna {

/// The key of the curves in a document; it is there only if there are any.
inline constexpr const char* Messkurvenschluessel = "messkurven";

/// A curve without its points: null stands in the place of each text.
Json messkurvenjson(const Messkurve& kurve);

/// All curves, with what is foreign in them.
Json messkurvenliste(const std::vector<Messkurve>& kurven);

/// Reads a curve, without what is foreign in it.
Messkurve liesMesskurve(Feldleser& leser, const Json& json);

} // namespace zerna
