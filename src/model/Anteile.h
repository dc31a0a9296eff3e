#pragma once

#include <array>
#include <memory>
#include <span>

#include "model/clsCalc.h"

/// Stepping a calculator through many compositions of the same components.
namespace zerna {

/// One component of a series or grid: its element with the working density and valence text, and its entered at%.
struct Reihenkomponente {
    std::shared_ptr<const clsElement> element;
    float prozent = 0;
};

/// What compositions need of a component, read once.
struct Anteil {
    double valenz = 0;
    double molvolumen = 0; ///< cm³/mol
};

/// Reads each component; the valence texts are evaluated. Run-time errors reach the caller.
std::array<Anteil, MaxKomponenten> anteile(clsParser& parser, std::span<const Reihenkomponente> komponenten);

/// Sets the calculator to a composition (at%, one per component).
void setComposition(clsCalc& calc, std::span<const Anteil> anteile, std::span<const double> prozente);

} // namespace zerna
