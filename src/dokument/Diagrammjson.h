#pragma once

#include <array>
#include <string_view>

#include "dokument/Feldleser.h"
#include "model/reihen/Diagrammwahl.h"

/// The choice of the diagram in a file.
namespace zerna {

/// Keys of what is chosen only sometimes; a choice without it does not have the key.
inline constexpr std::array<std::string_view, 3> WahlfreieDiagrammangaben{
    "andereGroesse", "zweiteGroesse", "varianten"};

Json diagrammjson(const Diagrammwahl& wahl);

/// The code of a quantity; one that there is not is refused.
int readGroesse(Feldleser& leser, const Json& json, std::string_view key);

Diagrammwahl readDiagramm(Feldleser& leser, const Json& json);

} // namespace zerna
