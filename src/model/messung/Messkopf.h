#pragma once

#include <optional>
#include <string_view>

#include "model/messung/Messkurve.h"

namespace zerna {

/// What the words above a measurement say about it.
struct Messangabe {
    std::optional<Messart> art;
    std::optional<Messeinheit> einheit;
};

/// Reads a heading: names such as "g(r)", "S(Q)" or "Strukturfaktor", units such as "r / nm" or "K (1/Å)". What comes
/// last, usually the names of the columns, counts.
Messangabe messangabe(std::string_view kopf);

} // namespace zerna
