#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/reihen/Mischungsreihe.h"

/// A free-electron quantity of an alloy over the at% of one of its components.
namespace zerna {

/// Unit text of quantity `groesse` over compositions; empty for any other code.
std::string_view reiheneinheit(int groesse);

/// The quantity that is read from the calculator at each composition. Error 5 for the density, which has a rule of its
/// own, and for a code without a quantity over compositions.
const Groesse& gerechneteReihengroesse(int groesse);

/// The series of quantity `groesse` (any over compositions but the density) for component `variable`. The others keep
/// their entered proportions and share what is left. The calculator is not changed; its constants and formulas are
/// used. A point that cannot be computed is Unbekannt; errors of the components reach the caller, error 5 for another
/// quantity.
Reihe konzentrationsreihe(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, int variable, int groesse);

/// The density (g/cm³) of the given series at x at% of component `variable`, from the densities of all components.
/// Intended: the other components share what is left in equal parts, not in their entered proportions. A single
/// component is a division by zero, an unknown density error 5.
float dichtewert(std::span<const float> dichten, int variable, double x);

/// Its values at 0, 1, … 100.
Reihe dichtereihe(std::span<const float> dichten, int variable);

/// The content of a series file: header with symbol and unit, then a line per `schritt` at%, CR LF. Values that are
/// unknown are left out; a step of 0 or less gives the header only.
std::string reihendatei(std::string_view symbol, std::string_view einheit, const Reihe& reihe, int schritt);

/// The step width that a typed text means: rounded to a whole number, halves to even; 1 for a text that is no number.
int schrittweite(std::string_view text);

} // namespace zerna
