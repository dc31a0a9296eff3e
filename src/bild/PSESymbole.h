#pragma once

#include "bild/PSEGeometrie.h"

namespace zerna {

/// Marks the alloy's components on the curves and puts the elements' symbols beside their points: first those of the
/// alloy, then maxima and minima, then the others, the sharper bends first. What would cover a curve or another symbol
/// is left out.
void layOutSymbole(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Textmasse& masse);

} // namespace zerna
