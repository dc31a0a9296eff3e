#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/rechnung/Groessen.h"
#include "model/rechnung/Tabelle.h"

/// Quantities by what someone types: code or name.
namespace zerna {

/// Which quantities are meant: those of results, over compositions, or of the elements.
enum class Groessenart { Ergebnis, Legierung, Element };

/// Whether there is the quantity there.
bool gibtEs(const Groesse& groesse, Groessenart art);

/// The quantity of a code or a name, that of lists or of result line and diagram, without regard to case, umlauts,
/// blanks and signs: "2kF", "mittlere dichte", "friedelwellenlaenge". Null if there is none.
const Groesse* findeGroesse(std::string_view text, Groessenart art);

/// The name that is easily typed in a shell: "friedel-wellenlaenge".
std::string eingabename(const Groesse& groesse);

/// The typed names of all quantities of a kind, in the order of their codes.
std::vector<std::string> eingabenamen(Groessenart art);

/// Its unit; that over the elements for a property of the element itself, empty for a mere number.
std::string_view einheitVon(const Groesse& groesse);

/// All quantities that can be named: code, typed name, name, unit, and where they are (the kinds, with commas).
Tabelle groessenverzeichnis();

} // namespace zerna
