#pragma once

#include <string>

#include "bild/Ternaergeometrie.h"

/// Reading a ternary diagram, at any composition and from point to point of its grid.
namespace zerna {

/// A point of the grid: i/n of the first and j/n of the second component.
struct Ternaerkreuz {
    int i = 0;
    int j = 0;
    bool operator==(const Ternaerkreuz&) const = default;
};

Anteile3 anteileBei(const Ternaergitter& gitter, const Ternaerkreuz& kreuz);

/// The point of the grid that is nearest to a composition.
Ternaerkreuz kreuzBei(const Ternaergitter& gitter, const Anteile3& anteile);

/// The neighbour to the right (more of the second component in place of the first) or to the left, then above (more of
/// the third, in place of the first while there is some) or below; the same point at an edge.
Ternaerkreuz nachbar(const Ternaergitter& gitter, Ternaerkreuz kreuz, int nachRechts, int nachOben);

/// "Al 50,0 at%  Cu 30,0 at%  Mg 20,0 at%  -  9,1 eV".
std::string ternaerablesung(const Ternaergitter& gitter, const Anteile3& anteile, float wert);

} // namespace zerna
