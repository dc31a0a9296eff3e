#pragma once

#include <QRegion>

#include <vector>

#include "bild/Kurvenlayout.h"
#include "ui/diagram/Kurvenmaler.h"

namespace zerna {

/// What a plot shows, to be compared with what it shows later.
struct Plotinhalt {
    struct Kurvenzug {
        Kurvenaussehen aussehen;
        Kurvenbahn bahn;
        bool operator==(const Kurvenzug&) const = default;
    };
    struct Markenstrich {
        double spalte = 0; ///< from the plot's left edge
        Farbe farbe;
        bool operator==(const Markenstrich&) const = default;
    };

    Rechteck plot;
    std::vector<Kurvenzug> kurven;
    std::vector<Markenstrich> marken;
    std::vector<Textstelle> texte;
};

Plotinhalt plotinhalt(const Kurvenbild& bild, const Kurvenlayout& layout, const std::vector<Kurvenbahn>& bahnen);

/// Where the picture differs between the two; the whole plot where it lies or measures otherwise.
QRegion unterschied(const Plotinhalt& before, const Plotinhalt& now);

} // namespace zerna
