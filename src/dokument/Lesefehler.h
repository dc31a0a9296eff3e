#pragma once

#include <cstddef>
#include <string>

namespace zerna {

/// Why a file cannot be read, and where; line and column count characters from 1.
struct Lesefehler {
    std::size_t zeile = 1;
    std::size_t spalte = 1;
    std::string grund; ///< in German, a sentence without its full stop

    std::string text() const
    {
        return "Zeile " + std::to_string(zeile) + ", Spalte " + std::to_string(spalte) + ": " + grund + ".";
    }
};

} // namespace zerna
