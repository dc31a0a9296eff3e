#pragma once

#include <optional>
#include <vector>

#include "bild/Ternaeraufteilung.h"
#include "bild/Ternaerflaeche.h"

/// The labels of a ternary diagram as seen from one side. None is cut off, lies over another or is hidden by the
/// surface; who matters more gets the room.
namespace zerna {

struct Ternaerbeschriftung {
    std::vector<Ternaertext> texte; ///< corners, at% along the edges, vertical axis, lines of equal value
    std::vector<Strich> striche; ///< of the labels
    std::optional<Strich> achse; ///< the vertical axis; the flat diagram has none
};

Ternaerbeschriftung ternaerbeschriftung(const Ternaerflaeche& flaeche, const Ternaeraufteilung& aufteilung,
    const Ternaerbeiwerk& beiwerk, const Bildstil& stil, const Ternaermasse& masse);

/// The composition with a share of the way from corner `from` to corner `to`.
Anteile3 along(std::size_t from, std::size_t to, double share);

} // namespace zerna
