#pragma once

#include "model/Tabelle.h"
#include "model/clsCalc.h"

namespace zerna {

/// All quantities of the alloy: name, shortest text of the single, unit. Unknown values are left out. The Friedel
/// minimum is the first one.
Tabelle groessentabelle(const clsCalc& calc);

} // namespace zerna
