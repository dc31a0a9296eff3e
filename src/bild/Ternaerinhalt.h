#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bild/Ternaerlinie.h"

namespace zerna {

/// Two neighbouring points of a grid, with the triangles on both sides by their number.
struct Gitterkante {
    std::size_t from = 0;
    std::size_t to = 0;
    std::size_t triangle = 0;
    std::optional<std::size_t> other; ///< none at the rim of the surface
};

/// A grid with all that its pictures have in common.
struct Ternaerinhalt {
    explicit Ternaerinhalt(Ternaergitter values);

    Ternaergitter gitter;
    Wertebereich range;
    std::vector<Gitterdreieck> triangles;
    std::vector<Gitterkante> kanten; ///< of the triangles
    std::vector<double> ticks; ///< values that are labelled, and where lines run over the surface
    std::vector<std::vector<Ternaerlinie>> hoehenlinien; ///< of the ticks
};

/// What a picture shows beside the surface.
struct Ternaerbeiwerk {
    std::string titel;
    std::string untertitel;
    std::optional<Anteile3> legierung; ///< marked on the surface
    std::optional<float> ziel; ///< marked on the colour bar
    std::vector<Ternaerlinie> ziellinien;

    bool operator==(const Ternaerbeiwerk&) const = default;
};

} // namespace zerna
