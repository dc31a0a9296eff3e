#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "bild/Ternaergeometrie.h"

/// Where a quantity over three components has a given value.
namespace zerna {

/// The quantity itself at a composition; Unbekannt where it has no value. Shares, not at%.
using Ternaerwert = std::function<float(const Anteile3&)>;

/// Compositions along a line, each on an edge of the grid; a closed line ends where it begins.
using Ternaerlinie = std::vector<Anteile3>;

/// The lines along which a surface of these triangles has the value. Given the quantity itself, each point is moved
/// along its edge of the grid to where that has the value. A corner that alone has the value is a line of one point;
/// where a whole triangle has it there is none.
std::vector<Ternaerlinie> hoehenlinien(const Ternaergitter& gitter, std::span<const Gitterdreieck> triangles,
    float value, const Ternaerwert& quantity = {});

/// The points as a table: symbols, then a line per point, at% with four decimals, tabs, CR LF; empty without points.
std::string punktetext(const Ternaergitter& gitter, std::span<const Ternaerlinie> linien);

} // namespace zerna
