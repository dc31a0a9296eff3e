#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bild/Bildstil.h"
#include "bild/Skalentexte.h"
#include "bild/Ternaerinhalt.h"

/// The parts of a ternary picture: titles, the place of the surface, the colour bar. Lengths are logical pixels.
namespace zerna {

/// How texts measure in the fonts of the picture.
struct Ternaermasse {
    Textmasse text;
    Textmasse titel;
    Textmasse ecke; ///< of the symbols at the corners
};

enum class Textrolle { Titel, Untertitel, Ecke, Kante, Achse, Balken, Linie, Ziel };

/// A text with the box that it takes.
struct Ternaertext {
    std::string text;
    Rechteck box;
    Textrolle rolle = Textrolle::Achse;
    std::size_t komponente = 0; ///< whose at% or symbol it is
};

struct Strich {
    Punkt from;
    Punkt to;
};

/// The scale of the colours: upright from the smallest value below, or lying from the smallest value on the left.
struct Farbbalken {
    Rechteck box;
    bool liegt = false;
    std::vector<Strich> striche; ///< of the labels
    std::optional<Strich> ziel; ///< across the bar

    /// Where a share of the range stands, along the bar.
    double position(double share) const
    {
        return liegt ? box.left + share * box.width : box.bottom() - share * box.height;
    }
};

struct Ternaeraufteilung {
    Rechteck bild; ///< where surface and labels may be
    Rechteck plot; ///< into which the unzoomed diagram fits
    Skalentexte skala; ///< of the ticks
    std::optional<Farbbalken> balken;
    std::vector<Ternaertext> texte; ///< outside `bild`
};

/// What there is no room for is left out.
Ternaeraufteilung ternaeraufteilung(const Ternaerinhalt& inhalt, const Ternaerbeiwerk& beiwerk, bool flach,
    double width, double height, const Bildstil& stil, const Ternaermasse& masse);

/// Which of evenly spaced ticks are labelled if labels take that room along a scale: all, every second one, …, always
/// with those at the roundest values.
std::vector<bool> beschriftete(const std::vector<double>& ticks, double length, double room, const Wertebereich& range);

} // namespace zerna
