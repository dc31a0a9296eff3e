#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bild/Achsen.h"
#include "bild/Bildstil.h"
#include "bild/Geometrie.h"

namespace zerna {

/// A font beside the picture's own.
struct Schrift {
    double grad = 1; ///< its size over that of the picture's font
    bool fett = false;
    bool operator==(const Schrift&) const = default;
};

/// How texts measure in it.
using Schriftmasse = std::function<Textmasse(const Schrift&)>;

/// Room that a text takes, which may have several lines.
double breiteOf(std::string_view text, const Textmasse& masse);
double hoeheOf(std::string_view text, const Textmasse& masse);

/// The ticks of one axis with their labels.
struct Achsenteilung {
    std::vector<Achsenmarke> marken; ///< as in Achsen.h, from the plot's top or left edge; labels may have two lines
    std::vector<double> neben; ///< positions of ticks without labels
    Schrift schrift; ///< of the labels
    int zehner = 0; ///< power of ten that the labels are to be multiplied with; 0 for none

    /// The widest label.
    double breite(const Textmasse& masse) const;
};

/// The given ten divisions beside a plot on a control of that height. A label that is too wide for `room` breaks at
/// its blank; only if it still does not fit all labels shrink.
Achsenteilung gegebeneTeilung(
    const Rechteck& plot, double controlHeight, const Bereich& y, double room, const Schriftmasse& masse);

/// How round values are written and how much room there is for them.
struct Rundwunsch {
    Dezimaltrenner trenner = Dezimaltrenner::Komma;
    bool zehnerImTitel = false; ///< labels leave out a common power of ten
    double above = 0; ///< room above the plot for half a label
};

/// Round values up the plot, with as many labels as have room; those too wide for `room` break and shrink as above.
Achsenteilung rundeYTeilung(
    double plotHeight, const Bereich& y, const Rundwunsch& wunsch, double room, const Schriftmasse& masse);

/// Round values along the plot; labels stay left of `right`.
Achsenteilung rundeXTeilung(
    const Rechteck& plot, double right, const Bereich& x, const Rundwunsch& wunsch, const Textmasse& masse);

/// Whether ten equal divisions have whole numbers.
bool hatGanzeZehntel(const Bereich& x);

} // namespace zerna
