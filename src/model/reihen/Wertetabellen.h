#pragma once

#include "model/rechnung/Tabelle.h"
#include "model/reihen/Konzentrationsreihe.h"
#include "model/reihen/PSEReihe.h"
#include "model/reihen/Ternaergitter.h"

/// The values of diagrams as tables whose every line tells which quantity it has, of what, and in which unit. What is
/// unknown has a line, too. The unit is that of the value, which is not always the one that the file's heading names.
namespace zerna {

/// A line per `schritt` at% (1 to 100) of the component.
Tabelle reihentabelle(const std::string& symbol, const Groesse& groesse, const Reihe& reihe, int schritt);

/// A line per element; the series is one of these elements.
Tabelle psetabelle(const ElementCollection& elements, const Groesse& groesse, const PSEReihe& reihe);

/// A line per point of the grid, in the order of its file.
Tabelle ternaertabelle(const Groesse& groesse, const Ternaergitter& gitter);

} // namespace zerna
