#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "model/rechnung/Groessen.h"

/// One property of every element over its atomic number.
namespace zerna {

/// x and y have one value per element, in collection order; a missing y is Unbekannt.
struct PSEReihe {
    std::string titel; ///< with unit
    std::vector<float> x; ///< atomic number
    std::vector<float> y;
};

/// The codes of the element properties in the order in which they are offered.
std::span<const int> psegroessen();

/// Whether a code is an element property.
bool istPSEGroesse(int groesse);

/// The density of a pure element that calculated properties rest on.
enum class Elementdichte { Fluessig, Kristallin };

/// Sets the calculator to the pure element at that density; false if it or the mass is missing.
bool reinesElementSetzen(clsCalc& calc, const clsElement& element, Elementdichte dichte = Elementdichte::Fluessig);

/// The property of that code for every element. A code without a property leaves all values 0 and the title as
/// `bisherigerTitel`. The calculator is not changed; its constants and formulas are used.
PSEReihe pseReihe(
    const ElementCollection& elements, const clsCalc& calc, int groesse, std::string_view bisherigerTitel = {});

/// The same with the elements at their crystalline density; empty for a property that is not calculated.
PSEReihe kristallineReihe(const ElementCollection& elements, const clsCalc& calc, int groesse);

/// The same as pseReihe, to be looked up beside the elements' data: the valence is always the tabulated one, which the
/// series has only for elements whose liquid density is known.
PSEReihe tafelreihe(const ElementCollection& elements, const clsCalc& calc, int groesse);

/// The content of a property file: header, then a line per element that has the value, CR LF.
std::string psedatei(const PSEReihe& reihe);

} // namespace zerna
