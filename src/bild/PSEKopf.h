#pragma once

#include "bild/PSEGeometrie.h"

namespace zerna {

/// A text as it is where it has to fit into a width: shortened at its end ("Fermien…"), but with the unit in brackets
/// that it ends with.
std::string gekuerztMitEinheit(std::string_view text, double width, const Textbreite& breite);

/// Puts title and legend into the strips above the user scale of a picture of that size and leaves it the rest. On a
/// low picture there are none.
void layOutKopf(PSEBild& bild, const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Bildstil& stil,
    const Textmasse& masse, const Textbreite& titelbreite);

} // namespace zerna
