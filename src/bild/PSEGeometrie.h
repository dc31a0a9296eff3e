#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bild/Achsen.h"
#include "bild/Bildstil.h"
#include "bild/Symbolplatz.h"
#include "model/reihen/Elementdiagramm.h"

/// Geometry of the element-property diagram: everything that is painted, as numbers in logical pixels.
namespace zerna {

/// What is shown beside the given curve.
struct PSEAnsicht {
    bool kristallin = false; ///< the same property at the crystalline density
    bool symbole = true; ///< of the elements, where there is room

    bool operator==(const PSEAnsicht&) const = default;
};

/// A text with its top left corner.
struct Schriftzug {
    Punkt position;
    std::string text;
};

/// The curve of a series.
struct PSEKurve {
    std::vector<std::vector<Punkt>> stuecke; ///< between gaps; a piece may be a single point
    std::vector<std::optional<Punkt>> punkte; ///< of each element, none where the value is missing
};

enum class Legendenzeichen { Kurve, Gestrichelt, Legierung };

struct Legendeneintrag {
    Legendenzeichen zeichen{};
    Strecke muster; ///< the sign's line, or the place in the middle of which it is
    Schriftzug text;
};

struct PSEBild {
    Rechteck feld; ///< what the user scale covers: all below title and legend
    Schriftzug titel; ///< of the picture; its text is empty where there is no room
    std::vector<Legendeneintrag> legende;
    std::vector<Strecke> lines; ///< axes and ticks
    std::vector<Schriftzug> labels;
    double labelRoom = 0; ///< width that the labels of the y axis have
    double widestLabel = 0; ///< and the widest of them
    Schriftzug achsentitel; ///< runs upwards from its position
    double achsentitelGroesse = 1; ///< of its font beside that of the labels
    Punkt ursprung; ///< where the axes meet
    std::vector<double> spalten; ///< of each element, in pixels
    PSEKurve kurve;
    PSEKurve kristallin; ///< empty unless shown
    std::vector<Punkt> legierung; ///< points of the alloy's components on the curves
    std::vector<Schriftzug> symbole;
    std::vector<Schriftzug> legierungssymbole;
};

/// The range of the values, not yet rounded.
/// Intended: the first value counts even when it is missing.
Bereich bereichMitErstemWert(const std::vector<float>& values);

/// The range widened to whole multiples of the power of ten not above its width, or of half of that if the values would
/// otherwise fill less than 40 % of the height. An empty range stays as it is.
Bereich gerundeterBereich(const Bereich& range);

/// Lays the diagram out on an area of that size; the number of elements sets the scale. `masse` is of the labels' font,
/// `titelbreite` of the picture's title, which is bold.
/// Without a range the curve is missing and only the lowest division is labelled. Labels that would overlap are left
/// out. The labels of the y axis end beside their ticks; where that takes more room than the scale leaves, it begins
/// further to the right.
PSEBild layOutPSE(const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, const Bildstil& stil, int width,
    int height, const Textmasse& masse, const Textbreite& titelbreite);

/// The element nearest to column `x`; none without elements.
std::optional<std::size_t> nearestElement(const PSEBild& bild, double x);

} // namespace zerna
