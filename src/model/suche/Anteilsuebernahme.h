#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/eingabe/Eingabe.h"
#include "model/suche/Anteilssuche.h"

/// Entering what a search has found.
namespace zerna {

/// Whether at% sum up to 100, so that the balance row leaves them as they are.
bool istUebernehmbar(std::span<const double> prozente);

/// What is to be said before an answer is taken over: that it cannot be, or that the results will show another value.
/// Empty for nothing.
std::string uebernahmesatz(const Anteilsfrage& frage, std::span<const double> prozente);

/// The alloy with these at%, one per row in use. The unit in which parts are typed stays.
Eingabe mitAnteilen(Eingabe eingabe, std::span<const double> prozente);

/// The alloy with another element at `prozent` at% in a row of its own, the last one; the others keep their ratio
/// but for the rounding, which the greatest of them takes.
/// Error 9 without room for a row, error 11 for at% that sum up to 0. The alloy has to be complete.
Eingabe mitElement(Eingabe eingabe, std::string_view key, double prozent);

} // namespace zerna
