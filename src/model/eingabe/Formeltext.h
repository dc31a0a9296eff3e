#pragma once

#include <string>

#include "core/Zahlentext.h"
#include "model/eingabe/Eingabe.h"

namespace zerna {

/// How a formula is written for copying.
enum class Formelschrift {
    Einfach, ///< Al60Cu40
    Tiefgestellt, ///< Al₆₀Cu₄₀
    LaTeX, ///< Al$_{60}$Cu$_{40}$, a decimal comma in braces
};

/// The entered alloy as a formula in at%, without needless digits; legierungsformel reads it back. Empty while a row
/// has no element or no readable at% of 0 or more, or an element stands in two rows.
std::string formeltext(const Eingabe& eingabe, Formelschrift schrift, Dezimaltrenner trenner = Dezimaltrenner::Komma);

} // namespace zerna
