#pragma once

#include <optional>
#include <vector>

#include "bild/Bildstil.h"
#include "bild/Kurvenbild.h"
#include "bild/Randstreifen.h"

/// Where everything of a diagram of curves stands. Lengths are logical pixels of the whole picture.
namespace zerna {

/// The part of the axes that is looked at.
struct Ausschnitt {
    Bereich x;
    Bereich y;
    Bereich rechts;
    bool operator==(const Ausschnitt&) const = default;
};

/// The whole of the axes; an empty range is widened so that there is something to look at.
Ausschnitt ganzerAusschnitt(const Kurvenbild& bild);

/// The strips around and the inside: `kern` holds the plot with the labels of its left and lower axis and keeps the
/// given measures (plot at left 60, 30 below); a style with round ticks has measures that follow from its labels.
struct Kurvenlayout {
    Rechteck kern; ///< in whole pixels, as the plot
    Rechteck plot;
    Ausschnitt ausschnitt;
    Abbildung links; ///< from the plot's corner
    Abbildung rechts;
    std::vector<Textstelle> texte; ///< around `kern`
    std::vector<Textstelle> kerntexte; ///< in `kern`, beside the plot
    std::vector<Textstelle> markentexte; ///< on the plot
    std::vector<Rechteck> striche; ///< ticks and lines of the right axis
    std::vector<Rechteck> kernstriche; ///< of the left and the lower one
    std::vector<Linienprobe> legende;

    bool istLeer() const { return plot.width <= 0 || plot.height <= 0; }
};

/// Lays a picture out. Strips for which there is no room are left out, the least important first: legend and notes
/// stay longest beside the title. `ausschnitt` is what is looked at if it is not the whole.
Kurvenlayout layOut(const Kurvenbild& bild, double width, double height, const Bildstil& stil,
    const Schriftmasse& masse, const std::optional<Ausschnitt>& ausschnitt = {});

} // namespace zerna
