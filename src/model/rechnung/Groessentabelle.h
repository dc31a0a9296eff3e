#pragma once

#include <span>

#include "core/Zahlentext.h"
#include "model/rechnung/Tabelle.h"
#include "model/rechnung/clsCalc.h"

namespace zerna {

/// What becomes of quantities without a value: no line, or one without a number.
enum class Unbekanntes { Weglassen, Leer };

/// All quantities of the alloy: name, shortest text of the single, unit. The Friedel minimum is the first one.
Tabelle groessentabelle(const clsCalc& calc, Unbekanntes unbekanntes = Unbekanntes::Weglassen);

/// The same with the textbook's value and its unit in the lines that depart from it. `komponenten` are those of the
/// alloy.
Tabelle lehrbuchtabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten,
    Dezimaltrenner trenner = Dezimaltrenner::Punkt, Unbekanntes unbekanntes = Unbekanntes::Weglassen);

} // namespace zerna
