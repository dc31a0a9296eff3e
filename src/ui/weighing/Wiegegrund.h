#pragma once

#include <QString>

#include <span>

#include "core/Laufzeitfehler.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// Why there are no target masses, in terms of the alloy where that is to blame.
QString sollGrund(const clsCalc& calc, int komponentenzahl, const Laufzeitfehler& fehler);

/// Why the masses weighed, in mg, give no at%.
QString istGrund(const clsCalc& calc, std::span<const float> massen, const Laufzeitfehler& fehler);

} // namespace zerna
