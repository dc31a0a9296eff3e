#pragma once

#include <string>
#include <vector>

#include "bild/Achsen.h"
#include "core/Zahlentext.h"

namespace zerna {

/// Round values along an axis: multiples of 1, 2 or 5 times a power of ten, of 2.5 where 2 gives too many and 5 too
/// few.
struct Rundteilung {
    double schritt = 0; ///< 0 for a range without values
    std::vector<double> haupt; ///< values with a label, ascending
    std::vector<double> neben; ///< values between them, ascending
    int zehner = 0; ///< power of ten that all values are better written with; 0 for none
};

/// Five to ten labelled values in a range, or as many as `most` allows.
Rundteilung rundteilung(const Bereich& bereich, int most);

/// The label of a value, the power of ten left out if it stands in the axis title, otherwise with it: "1,5 E-11".
std::string rundtext(double wert, const Rundteilung& teilung, bool zehnerImTitel, Dezimaltrenner trenner);

/// A power of ten as it is read: "10⁻¹¹".
std::string zehnerpotenz(int exponent);

/// An axis title with a power of ten: "R [m³/As]" becomes "R [10⁻¹¹ m³/As]", a title without a unit "R · 10⁻¹¹".
std::string titelMitZehner(const std::string& titel, int exponent);

} // namespace zerna
