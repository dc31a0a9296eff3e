#pragma once

#include "model/rechnung/Tabelle.h"
#include "model/suche/Anteilssuche.h"
#include "model/suche/Drittelement.h"

/// What a search has found as tables for screen and files.
namespace zerna {

/// A line per answer: the at% of each component below "Al [at%]", then the value below its unit.
Tabelle loesungstabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten,
    const Anteilsfrage& frage, const Zielantwort& antwort, Dezimaltrenner trenner);

/// A line per element, the nearest first: its symbol, the value, the unit and the deviation from the wanted value.
Tabelle rangtabelle(const Rangliste& rangliste, const Groesse& groesse, Dezimaltrenner trenner);

} // namespace zerna
