#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "bild/Achsenteilung.h"
#include "bild/Bildstil.h"
#include "bild/Kurvenbild.h"

namespace zerna {

struct Textstelle {
    std::string text; ///< lines are separated by '\n'
    Rechteck box;
    Schrift schrift;
    bool senkrecht = false; ///< reads upwards
    bool operator==(const Textstelle&) const = default;
};

/// The line of a curve in the legend.
struct Linienprobe {
    std::size_t kurve = 0; ///< its index
    double left = 0;
    double right = 0;
    double row = 0;
    Kurvenaussehen aussehen = {};
    bool operator==(const Linienprobe&) const = default;
};

/// What stands above and below the axes of a diagram of curves: title, alloy and the titles of the upright axes above,
/// the title of the lower axis, the legend and the notes below.
struct Randstreifen {
    Rechteck kern; ///< what is left for the axes, in whole pixels
    std::vector<Textstelle> texte;
    std::optional<Textstelle> xTitel; ///< of the lower axis, beside `texte`
    std::vector<Linienprobe> legende;
};

/// Strips for which there is no room are left out, so that most of the height stays with the axes (in a figure nearly
/// two fifths of it with the plot): the notes go first, then the alloy, the titles of upright axes, the legend, the
/// title of the lower axis, the title.
Randstreifen randstreifen(const Kurvenbild& bild, const Bereich& x, double width, double height, const Bildstil& stil,
    const Schriftmasse& masse);

} // namespace zerna
