#pragma once

#include "model/eingabe/Eingabe.h"
#include "model/eingabe/Legierungsformel.h"

namespace zerna {

/// Enters an alloy that was read from a formula, all in one: the number of rows, the elements and the parts, those
/// above the balance row as they were typed. An element that was there keeps its density and its valence, in another
/// row too.
Aenderung setLegierung(Eingabe& eingabe, const Legierungsformel& formel);

} // namespace zerna
