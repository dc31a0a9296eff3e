#pragma once

#include <span>
#include <string_view>

namespace zerna {

/// Where a value was found, in which state it holds and what is to be said about it; the latter two may be empty. For
/// a missing value only the remark: why it is missing.
struct Quelle {
    std::string_view quelle;
    std::string_view zustand;
    std::string_view bemerkung;
};

/// The source of one cell of the shipped element table.
struct Zellquelle {
    std::string_view symbol;
    std::string_view spalte; ///< name of the column, see Elementspalten.h
    std::string_view wert; ///< that the source is for, as in the CSV table; empty for a missing one
    const Quelle* quelle = nullptr;
};

/// All cells of the shipped table. Made from data/elemente.csv and data/quellen.csv by the build.
extern const std::span<const Zellquelle> Zellquellen;

} // namespace zerna
