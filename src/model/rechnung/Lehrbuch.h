#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/eingabe/Legierung.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// A constant as the calculator uses it.
struct Naturkonstante {
    std::string_view zeichen;
    double wert = 0;
    std::string_view einheit;
};

/// How a result is formed, and what textbooks of physics give in its place where the shown number or its label departs
/// from them. In formulas "_x" is an index and "^(…)" a power; n is the density of electrons, N that of particles, x_i
/// at% over 100.
struct Lehrbucheintrag {
    using Rechnung = float (*)(const clsCalc&, std::span<const Legierungskomponente>);

    int zeile = -1; ///< of the results
    std::string_view formel; ///< of the shown number
    std::array<const Naturkonstante*, 4> konstanten{}; ///< null behind the last one
    std::string_view lehrbuchformel = {}; ///< this and what follows is empty where nothing departs
    std::string_view einheit = {}; ///< the usual one
    Rechnung rechnung = nullptr; ///< read through lehrbuchwert(); may throw
    std::string_view grund = {}; ///< why the result departs, for users; empty if it does not
    std::string_view diagrammgrund = {}; ///< the same of the numbers in diagrams
};

/// The entry of a result line; null for a line that has none.
const Lehrbucheintrag* findLehrbuch(int zeile);

/// The entry of a result line whose result departs from the textbook; null if it does not.
const Lehrbucheintrag* abweichungImErgebnis(int zeile);

/// The same of what diagrams show of it.
const Lehrbucheintrag* abweichungImDiagramm(int zeile);

/// The textbook's value of the alloy in the calculator, in the entry's unit; Unbekannt if it has none or something that
/// it is made of is unknown. `komponenten` are those of the alloy.
float lehrbuchwert(
    const Lehrbucheintrag& eintrag, const clsCalc& calc, std::span<const Legierungskomponente> komponenten);

} // namespace zerna
