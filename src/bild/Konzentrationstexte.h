#pragma once

#include <string>

#include "model/dokument/Dokument.h"

/// What concentration diagrams say in words. Texts are German.
namespace zerna {

/// "Fermienergie [eV]"; where the numbers are in another unit than the given label, it says so.
std::string groessentitel(const Groesse& groesse);

/// What stands behind a value that is read out: "eV", "nm³ (Zahl in m³)".
std::string ableseeinheit(const Groesse& groesse);

/// The alloy in short: "Al60Cu40", or its parts where no formula can be written.
std::string legierungsname(const Eingabe& eingabe);

/// A component with what is computed with: "Al: 2,377 g/cm³, z = 3".
std::string komponententext(const std::string& symbol, float dichte, float valenz);

/// The alloy with densities and valences that are computed with: "Al60Cu40 – Al: 2,37 g/cm³, z = 3; Cu: …".
std::string legierungstext(const Eingabe& eingabe);

/// What kind of series it is, for the legend.
std::string reihenname(const Groesse& groesse, Reihenart art);

/// "Al60Cu40 über Al, Summe 100 %", for a kept curve among others.
std::string kurvenname(const GehalteneKurve& kurve);

/// Why the curve, a series of that kind, does not lead through the alloy.
std::string abweichungsgrund(const Groesse& groesse, const Eingabe& eingabe, int variable, Reihenart art);

} // namespace zerna
