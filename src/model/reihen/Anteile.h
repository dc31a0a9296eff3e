#pragma once

#include <array>
#include <span>

#include "model/rechnung/clsCalc.h"

/// Stepping a calculator through many compositions of the same components.
namespace zerna {

/// A component whose density and valence text its element holds. The errors of the text reach the caller.
Legierungskomponente gelesen(std::shared_ptr<const clsElement> element, float prozent, clsParser& parser);

/// What compositions need of a component.
struct Anteil {
    double valenz = 0;
    double molvolumen = 0; ///< cm³/mol
};

/// Error 5 for an unknown density, mass or valence, error 11 for a density of 0.
std::array<Anteil, MaxKomponenten> anteile(std::span<const Legierungskomponente> komponenten);

/// Sets the calculator to a composition (at%, one per component).
void setComposition(clsCalc& calc, std::span<const Anteil> anteile, std::span<const double> prozente);

} // namespace zerna
