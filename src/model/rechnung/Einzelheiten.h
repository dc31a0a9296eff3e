#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/rechnung/Lehrbuch.h"

namespace zerna {

/// What is said of one result beyond its line: what it is made of and what textbooks give in its place. Texts have a
/// true minus and powers of ten; "_x" in formulas is an index, "^(…)" a power.
struct Einzelheiten {
    struct Zeile {
        std::string_view titel;
        std::string text;
    };

    std::string groesse;
    std::vector<Zeile> zeilen;
};

/// Of a result line. `calc` is null while the line has no result; `komponenten` are those of the alloy in it.
Einzelheiten einzelheiten(int zeile, const clsCalc* calc, std::span<const Legierungskomponente> komponenten);

/// Of what diagrams show of a result line's quantity. Empty if it is what the textbook gives.
Einzelheiten diagrammeinzelheiten(int zeile, const clsCalc* calc, std::span<const Legierungskomponente> komponenten);

} // namespace zerna
