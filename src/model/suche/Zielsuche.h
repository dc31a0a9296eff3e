#pragma once

#include <functional>
#include <optional>
#include <vector>

/// At which at% of a component a quantity has a wanted value.
namespace zerna {

/// The value of a quantity at so many at% of a component, 0 to 100; Unbekannt where it has none.
using Reihenwert = std::function<float(double prozent)>;

struct Loesung {
    double prozent = 0; ///< at%, the roundest of those that single precision cannot tell apart
    float wert = 0; ///< of the quantity there

    bool operator==(const Loesung&) const = default;
};

struct Zielantwort {
    std::vector<Loesung> loesungen; ///< ascending; none if the value is wanted by all compositions or by none
    bool ueberall = false; ///< every composition has the value
    std::optional<Loesung> naechste; ///< where none has it: the one that comes nearest; none without any value

    bool operator==(const Zielantwort&) const = default;
};

/// All compositions with that value, to 1e-4 at% or as well as single precision tells them apart.
Zielantwort sucheZiel(const Reihenwert& wert, double ziel);

} // namespace zerna
