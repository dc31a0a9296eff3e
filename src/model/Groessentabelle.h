#pragma once

#include <string>

#include "model/clsCalc.h"

namespace zerna {

/// All quantities of the alloy as a table for other programs: name, tab, shortest text of the single with a decimal
/// point, tab, unit; CR LF after each line. Unknown values are left out. The Friedel minimum is the first one.
std::string groessentabelle(const clsCalc& calc);

/// The same as a JSON array of objects with "name", "wert" and "einheit".
std::string groessenJson(const clsCalc& calc);

} // namespace zerna
