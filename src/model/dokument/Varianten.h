#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/dokument/Dokument.h"
#include "model/rechnung/clsCalc.h"

/// What is done with the kept alloys. Positions count from 0; one that there is not is error 9, and nothing is changed.
namespace zerna {

/// Hands an alloy to the calculator. Why it cannot be computed or what comes of it means nothing, as sentences with the
/// remedy; empty if all is well.
std::string berechne(const Eingabe& eingabe, clsCalc& calc);

/// Why an alloy cannot be kept, as sentences; empty if nothing speaks against it. `calc` is left as it is.
std::string merkhindernis(const Vergleich& vergleich, const Eingabe& eingabe, const clsCalc& calc);

/// Keeps an alloy behind the others, named after its composition; error 9 if there are MaxVarianten. Its position.
std::size_t merken(Vergleich& vergleich, const Eingabe& eingabe);

/// Gives another name, in one line and unlike the others: "Probe" that there is already becomes "Probe (2)". A name
/// that is empty becomes that of the composition.
void umbenennen(Vergleich& vergleich, std::size_t position, std::string_view name);

/// Moves an alloy to another position. The reference stays the same alloy.
void verschieben(Vergleich& vergleich, std::size_t von, std::size_t nach);

/// Removes an alloy. The reference stays the same alloy; if it is the one that goes, the first one takes its place.
void loeschen(Vergleich& vergleich, std::size_t position);

void setzeReferenz(Vergleich& vergleich, std::size_t position);

/// A name without line ends and other control characters, blanks at its ends, and what is longer than 60 characters.
std::string einzeilig(std::string_view name);

} // namespace zerna
