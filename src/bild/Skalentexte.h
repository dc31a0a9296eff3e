#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/Zahlentext.h"

namespace zerna {

/// Labels of a scale's values that have as many decimals as tell them apart and share a power of ten: -4e-11 and
/// -3.5e-11 are "−4,0" and "−3,5" with "10⁻¹¹".
struct Skalentexte {
    std::vector<std::string> texte; ///< one per value
    std::string faktor; ///< empty for 1
    int zehner = 0; ///< its power of ten

    /// What stands at the scale's end: "10⁻¹¹ m³/As" or "eV".
    std::string einheit(const std::string& unit) const;
    /// Another value with that factor, in five digits.
    std::string text(double wert, Dezimaltrenner trenner) const;
};

/// The labels of ascending, evenly spaced values.
Skalentexte skalentexte(std::span<const double> werte, Dezimaltrenner trenner);

} // namespace zerna
