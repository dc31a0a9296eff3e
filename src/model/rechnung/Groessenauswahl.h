#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/rechnung/Groessen.h"

namespace zerna {

/// Quantities of an alloy as someone chose them.
struct Groessenauswahl {
    std::vector<const Groesse*> groessen; ///< in the chosen order
    std::string unbekannt; ///< the first entry that is none; empty if all are
};

/// The quantities of a list such as "9,8,D(EF)": codes and names as findeGroesse takes them. An empty list chooses all
/// result lines.
Groessenauswahl groessenauswahl(std::string_view liste);

} // namespace zerna
