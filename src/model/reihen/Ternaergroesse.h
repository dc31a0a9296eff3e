#pragma once

#include <array>
#include <span>

#include "model/reihen/Konzentrationsreihe.h"

namespace zerna {

/// A quantity over the compositions of three components. It works on a calculator of its own; for the density it is the
/// at%-weighted mean.
class Ternaergroesse {
public:
    /// Three components and a quantity over compositions, error 5 for another one. Errors of the components' densities
    /// and valences reach the caller.
    Ternaergroesse(clsCalc calc, std::span<const Legierungskomponente> komponenten, int groesse);

    /// The value at a composition in at%; Unbekannt where it cannot be computed.
    float wert(const std::array<double, 3>& prozente);

private:
    float meanDensity(const std::array<double, 3>& prozente) const;

    clsCalc m_calc;
    std::array<Anteil, 3> m_anteile;
    std::array<float, 3> m_dichten{}; // g/cm³
    const Groesse* m_groesse = nullptr; // null for the density
};

} // namespace zerna
