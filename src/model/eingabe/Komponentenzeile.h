#pragma once

#include <string>

namespace zerna {

/// A component as the results text names it, all texts as written.
struct Komponentenzeile {
    std::string symbol;
    std::string prozent;
    std::string dichtewahl;
    std::string dichte;
    std::string valenzwahl;
    std::string valenz;

    bool operator==(const Komponentenzeile&) const = default;
};

} // namespace zerna
