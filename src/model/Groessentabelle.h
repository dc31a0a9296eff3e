#pragma once

#include <span>

#include "core/Zahlentext.h"
#include "model/Tabelle.h"
#include "model/clsCalc.h"

namespace zerna {

/// All quantities of the alloy: name, shortest text of the single, unit. Unknown values are left out. The Friedel
/// minimum is the first one.
Tabelle groessentabelle(const clsCalc& calc);

/// The same with the textbook's value and its unit in the lines that depart from it. `komponenten` are those of the
/// alloy.
Tabelle lehrbuchtabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten,
    Dezimaltrenner trenner = Dezimaltrenner::Punkt);

} // namespace zerna
