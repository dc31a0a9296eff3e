#pragma once

#include <string>
#include <vector>

#include "model/reihen/PSEReihe.h"

namespace zerna {

/// One element in a diagram over the elements.
struct Diagrammelement {
    std::string symbol;
    std::string name;
    std::string luecke; ///< why it has no value; empty if it has one
    std::string kristallineLuecke; ///< the same of the second series
    bool inLegierung = false;
};

/// A property over all elements with what is said beside its curve.
struct Elementdiagramm {
    std::string titel; ///< of the whole picture: quantity and unit
    std::string untertitel; ///< which state of the elements the values rest on; empty for tabulated values
    std::string einheit; ///< of the values, as read-outs name it
    PSEReihe reihe;
    PSEReihe kristallin; ///< at the crystalline density; without values where the property does not rest on a density
    std::vector<Diagrammelement> elemente; ///< in the order of the series

    bool hatKristallin() const { return !kristallin.y.empty(); }
};

/// `legierung` are the symbols of the alloy's components.
Elementdiagramm elementdiagramm(const ElementCollection& elements, const clsCalc& calc, int groesse,
    const std::vector<std::string>& legierung = {});

/// The elements without a value as a table with heading: symbol, name, what is missing; tabs and CR LF. Empty if all
/// have one. Both series count if the crystalline one is shown.
std::string lueckentabelle(const Elementdiagramm& diagramm, bool mitKristallin);

/// The values as they are copied: those of a property file and, if shown, the crystalline ones in a column of their
/// own, which is empty where that value is missing.
std::string elementtabelle(const Elementdiagramm& diagramm, bool mitKristallin);

} // namespace zerna
