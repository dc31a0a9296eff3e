#pragma once

#include "bild/PSEGeometrie.h"

namespace zerna {

/// Puts title and legend into the strips above the user scale of a picture of that size and leaves it the rest. On a
/// low picture there are none.
void layOutKopf(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Bildstil& stil,
    const Textmasse& masse, const Textbreite& titelbreite);

} // namespace zerna
