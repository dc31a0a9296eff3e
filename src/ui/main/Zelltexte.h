#pragma once

#include <string>

#include "bild/Achsen.h"
#include "core/ElementCollection.h"

/// Which texts stand in a cell of the periodic table and how large they are. Lengths in pixels.
namespace zerna {

struct Schriftgroessen {
    double symbol = 0;
    double klein = 0; ///< of all other texts
    bool dritteZeile = false; ///< there is room below the symbol
};

Schriftgroessen schriftgroessen(double width, double height);

/// Whether a text fits into one line of a cell.
bool passt(double textWidth, double cellWidth);

/// Names are shown only if all of them fit: a mixture of names and masses would look like a mistake.
bool namenPassen(const ElementCollection& elements, double cellWidth, const Textbreite& breite);

/// What stands below the symbol: the name or the mass; empty for an unknown mass.
std::string dritteZeile(const clsElement& element, bool name);

} // namespace zerna
