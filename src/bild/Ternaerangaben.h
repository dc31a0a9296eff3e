#pragma once

#include <span>
#include <string>

#include "bild/Ternaerlinie.h"

namespace zerna {

/// What a ternary diagram shows of an alloy.
struct Ternaerangaben {
    Ternaergitter gitter;
    Anteile3 legierung{}; ///< the composition that is entered, shown if it lies in the triangle
    std::string titel; ///< quantity with unit
    std::string untertitel; ///< the components with the densities and valences used
    Ternaerwert groesse; ///< between the grid's points; empty: what the grid says
};

/// The same for a quantity (0 to 10) of three components at resolution 1 to 10. Errors as of ternaergitter.
Ternaerangaben ternaerangaben(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int groesse, int aufloesung);

} // namespace zerna
