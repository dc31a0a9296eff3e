#pragma once

#include <span>

#include "bild/Kurvenbild.h"
#include "model/dokument/Dokument.h"

namespace zerna {

/// How concentration diagrams are drawn, whatever the document.
struct Kurvenschalter {
    bool mischungsreihe = false; ///< the true mixture is the curve, not the given series
    bool ganzeKurve = false; ///< the y range holds all values, not those at the two ends alone

    bool operator==(const Kurvenschalter&) const = default;
};

/// Curves that stand beside that of the alloy.
struct Vergleichskurven {
    std::span<const GehalteneKurve> gehaltene = {};
    std::span<const Variante> varianten = {}; ///< computed for the component along the axis
};

/// The concentration diagram of an alloy with all that is said in it: the curve itself, the alloy as a point at its own
/// value, the mixture where the curve does not lead through it, what it is compared with, and why curves differ.
struct Konzentrationsbild {
    Reihe reihe{}; ///< the curve itself, which is what is saved
    Kurvenbild bild; ///< the curve itself comes first
    bool laeuftHinaus = false; ///< a curve leaves the y range
};

/// The diagram of a complete alloy for the quantity and the row of the choice. `calc` is not changed; its constants and
/// formulas are used. Errors of the components and of an empty y range reach the caller, error 5 for a curve without
/// any value.
/// Intended: without `ganzeKurve` the y range comes from the two ends of the curve, so curves may leave it in between.
Konzentrationsbild konzentrationsbild(const clsCalc& calc, const Eingabe& eingabe, const Diagrammwahl& wahl,
    const Kurvenschalter& schalter, const Vergleichskurven& vergleich = {});

/// The curve that is kept of it.
GehalteneKurve gehalteneKurve(
    const Konzentrationsbild& bild, const Eingabe& eingabe, const Diagrammwahl& wahl, const Kurvenschalter& schalter);

} // namespace zerna
