#pragma once

#include <string>

#include "model/reihen/PSEReihe.h"

namespace zerna {

/// Why an element has no value of the property of that code, in words: which data it lacks ("flüssige Dichte
/// unbekannt", "flüssige Dichte und Masse unbekannt") or, if it lacks none, what stands in the way of computing ("bei
/// Valenz 0 nicht berechenbar"). The density is the one that calculated properties rest on.
std::string elementluecke(int groesse, const clsElement& element, Elementdichte dichte = Elementdichte::Fluessig);

} // namespace zerna
