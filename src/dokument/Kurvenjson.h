#pragma once

#include <vector>

#include "dokument/Feldleser.h"
#include "model/reihen/GehalteneKurve.h"

/// Kept curves in a file, without what is foreign.
namespace zerna {

Json kurvenjson(const GehalteneKurve& kurve);
GehalteneKurve readKurve(Feldleser& leser, const Json& json);

} // namespace zerna
