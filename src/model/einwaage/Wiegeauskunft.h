#pragma once

#include <optional>
#include <span>
#include <string>

#include "core/Unbekannt.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// A component on the balance.
struct Wiegung {
    float soll = Unbekannt; ///< target mass in mg; Unbekannt if there is none
    std::optional<float> ist; ///< mg; no value until something was weighed
};

/// The component that the target masses of the others were set to match.
struct Wiegebezug {
    int komponente = 0;
    float masse = 0; ///< in mg, then

    bool operator==(const Wiegebezug&) const = default;
};

/// What is still to be weighed, as a German sentence: "Noch 305,5 mg Cu"; why nothing can be when a target mass is
/// negative. Empty while one is missing. Within the tolerance of the at% nothing is missing. Throws when there are no
/// at% of what was weighed.
std::string wiegestand(
    const clsCalc& calc, std::span<const Wiegung> wiegungen, const std::optional<Wiegebezug>& bezug = std::nullopt);

} // namespace zerna
