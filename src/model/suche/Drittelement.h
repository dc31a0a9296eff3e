#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/ElementCollection.h"
#include "model/rechnung/Groessen.h"

/// Which further element brings an alloy nearest to a wanted value.
namespace zerna {

struct Drittelement {
    std::shared_ptr<const clsElement> element;
    float wert = 0; ///< of the quantity with so much of it in the alloy
    double abweichung = 0; ///< from the wanted value
};

struct Rangliste {
    std::vector<Drittelement> elemente; ///< nearest first, equally near ones in the order of the table
    std::vector<std::string> ohneDaten; ///< symbols of those with which the quantity cannot be computed
};

/// The components with their parts scaled to `prozent` at% in all, their ratio kept. Error 11 if they sum up to 0.
std::vector<Legierungskomponente> aufProzent(std::span<const Legierungskomponente> komponenten, double prozent);

/// Each element of the table that is not among the components, added at `prozent` at% with the density and the valence
/// that a fresh row would have; the others keep their ratio and sum up to the rest. Error 9 if there is no room for
/// another component, error 11 for parts that sum up to 0. The calculator is not changed.
Rangliste drittelemente(const clsCalc& calc, const ElementCollection& elements,
    std::span<const Legierungskomponente> komponenten, double prozent, const Groesse& groesse, double ziel);

/// Which elements are not in the list, "Nicht in der Liste, weil Daten fehlen: 2 Elemente (At, Fr)"; empty if all are.
std::string ohneDatenSatz(const Rangliste& rangliste);

} // namespace zerna
