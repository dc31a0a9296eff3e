#pragma once

#include <string>

#include "model/reihen/Mischungsreihe.h"

namespace zerna {

/// A curve of a concentration diagram that was kept to be drawn beside others. It follows no later change.
struct GehalteneKurve {
    std::string name; ///< the alloy
    std::string symbol; ///< of the component along the axis
    int groesse = 0;
    Reihenart art = Reihenart::Gegeben;
    Reihe werte{};
    std::string fremd = {}; ///< keys of a newer program's file, as the text of a JSON object; empty for none

    bool operator==(const GehalteneKurve&) const = default;
};

inline constexpr std::size_t MaxKurven = 6;

} // namespace zerna
