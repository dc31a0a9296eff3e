#pragma once

#include <array>
#include <span>

#include "model/rechnung/Groessen.h"
#include "model/reihen/Anteile.h"

namespace zerna {

/// 101 values, index = at% of the variable component.
using Reihe = std::array<float, 101>;

/// What the other components have while the variable one has x at%.
enum class Reihenart {
    /// Each has its entered at% times (100 − x)/100. The sum is 100 % only if the variable one was entered with 0 at%,
    /// so the series does not lead through the alloy itself. The density is shared in equal parts.
    Gegeben,
    /// They keep their ratio and share the whole rest (in equal parts if all are 0): the sum is 100 % everywhere, and
    /// the series leads through the alloy. The density is that of the masses over that of the volumes.
    Summe100,
};

/// A quantity over mixtures of an alloy's components: the at% of one of them, the variable one, runs from 0 to 100.
/// The calculator that it is made with is not changed; its constants and formulas are used.
class Mischungsreihe {
public:
    /// Error 9 for a row outside, error 5 for a code without a quantity over compositions and for an unknown value of a
    /// component that the quantity needs, error 11 for a division by zero: a density of 0, the given density of a
    /// single component.
    Mischungsreihe(const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int variable, int groesse,
        Reihenart art);

    /// The quantity at x at% of the variable component; Unbekannt where it has none.
    float wert(double x) const;

    /// The composition at x, one at% per component.
    std::array<double, MaxKomponenten> prozente(double x) const;

    /// The values at 0, 1, … 100. One that cannot be formed is Unbekannt, but an overflow of a composition reaches the
    /// caller.
    Reihe reihe() const;

private:
    float berechnet(double x) const;
    float dichte(double x) const;

    mutable clsCalc m_calc; // holds the composition asked for last
    const Groesse* m_groesse;
    std::size_t m_anzahl;
    std::size_t m_variable;
    Reihenart m_art;
    std::array<double, MaxKomponenten> m_faktoren{}; // at% of the others at x = 0
    std::array<float, MaxKomponenten> m_dichten{}; // g/cm³
    std::array<double, MaxKomponenten> m_massen{}; // g/mol
    std::array<Anteil, MaxKomponenten> m_anteile; // not of the density
};

} // namespace zerna
