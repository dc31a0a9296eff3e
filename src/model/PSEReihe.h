#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "model/clsCalc.h"

/// One property of every element over its atomic number.
namespace zerna {

/// Codes of element properties run from 0 to this; 1 and 3 have none.
inline constexpr int LetztePSEGroesse = 22;

/// x and y have one value per element, in collection order; a missing y is Unbekannt.
struct PSEReihe {
    std::string titel; ///< with unit
    std::vector<float> x; ///< atomic number
    std::vector<float> y;
};

/// A quantity with the code that lists and series know it by.
struct Groesseneintrag {
    std::string_view text;
    int code = 0;
};

/// The properties in the order in which they are offered.
std::span<const Groesseneintrag> psegroessen();

/// Whether a code is an element property.
bool istPSEGroesse(int groesse);

/// Sets the calculator to the pure element at its liquid density; false if that is missing.
bool reinesElementSetzen(clsCalc& calc, const clsElement& element);

/// The property of that code for every element. A code without a property leaves all values 0 and the title as
/// `bisherigerTitel`. The calculator is not changed; its constants and formulas are used.
PSEReihe pseReihe(
    const ElementCollection& elements, const clsCalc& calc, int groesse, std::string_view bisherigerTitel = {});

/// The content of a property file: header, then a line per element that has the value, CR LF.
std::string psedatei(const PSEReihe& reihe);

} // namespace zerna
