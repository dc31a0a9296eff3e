#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/Elementspalten.h"

namespace zerna {

/// Where a value was found, in which state it holds and what is to be said about it; the latter two may be empty. For
/// a missing value only the remark: why it is missing.
struct Quelle {
    std::string_view quelle;
    std::string_view zustand;
    std::string_view bemerkung;
};

/// The sources of one element's values in the shipped table.
struct Zeilenquelle {
    std::string_view symbol;
    std::string_view
        werte; ///< that the sources are for: as in the CSV table, a tab behind each; missing ones are empty
    std::array<std::uint8_t, Elementspalten.size()> quellen; ///< of each value, its place in Quellen
};

/// All sources, and the elements of the shipped table. Made from data/elemente.csv and data/quellen.csv by the build.
extern const std::span<const Quelle> Quellen;
extern const std::span<const Zeilenquelle> Quellzeilen;

} // namespace zerna
