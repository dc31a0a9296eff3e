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

/// A value beside the table: five digits, as in the cells; powers of ten as in the results.
std::string tafelzahl(float wert);

/// A value with as many digits, five at most and two at least, as fit into a cell; "?" for an unknown one and nothing
/// where not even two fit.
std::string zellwert(float wert, double cellWidth, const Textbreite& breite);

} // namespace zerna
