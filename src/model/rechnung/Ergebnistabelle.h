#pragma once

#include <span>
#include <string>

#include "core/Zahlentext.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// The results as a table for other programs, the textbook's values beside those that depart from them: lines of
/// tab-separated cells for spreadsheets, HTML for word processors. Both have a heading and numbers with all digits;
/// unknown values are left out.
struct Ergebnistabelle {
    std::string text;
    std::string html;
};

/// `komponenten` are those of the alloy in the calculator.
Ergebnistabelle ergebnistabelle(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, Dezimaltrenner trenner);

} // namespace zerna
