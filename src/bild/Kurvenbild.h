#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bild/Achsen.h"
#include "bild/Farbskala.h"
#include "bild/Geometrie.h"

/// A diagram of curves over one axis as a value: what is drawn, not how. Texts are UTF-8 and shown as they stand.
namespace zerna {

enum class Linienart { Keine, Durchgezogen, Gestrichelt, Gepunktet, Strichpunkt, StrichZweipunkt };
enum class Punktzeichen { Keines, Kreis, Quadrat, Dreieck, Raute };

/// Behind the name of a curve on the right axis in the legend.
inline constexpr std::string_view RechteAchse = " (rechte Achse)";

/// How one of several curves looks.
struct Kurvenaussehen {
    Farbe farbe;
    Linienart linie = Linienart::Durchgezogen;
    Punktzeichen zeichen = Punktzeichen::Kreis; ///< for curves that show their points
    bool operator==(const Kurvenaussehen&) const = default;
};

/// A line through points, signs at them, or both.
struct Kurve {
    std::string name; ///< in the legend; empty: not listed there
    std::vector<Punkt> punkte; ///< data units, x ascending; a y that is NaN is a gap
    Farbe farbe;
    Linienart linie = Linienart::Durchgezogen;
    Punktzeichen zeichen = Punktzeichen::Keines;
    bool rechts = false; ///< measured on the right axis
    int reihe = 0; ///< curves of one series are read out together
    std::string einheit = {}; ///< of x where it is not that of the axis: "at% Mg"

    Kurvenaussehen aussehen() const { return {farbe, linie, zeichen}; }
};

/// A line across the plot at one value of x, such as 2kF over a structure factor or an answer of the search.
struct Linienmarke {
    double x = 0; ///< data units
    std::string text; ///< beside it
    Farbe farbe;
};

struct Achse {
    std::string titel; ///< quantity with unit
    Bereich bereich; ///< data units
    std::string einheit = {}; ///< behind a value that is read out: "eV", "at% Al"
    bool rund = false; ///< ticks at round values in every style, not ten equal divisions

    bool operator==(const Achse&) const = default;
};

struct Kurvenbild {
    std::string titel; ///< quantity with unit and component along the axis
    std::string untertitel; ///< the alloy with densities and valences used
    Achse x;
    Achse y;
    std::optional<Achse> rechts; ///< a second quantity
    std::vector<Kurve> kurven; ///< drawn in this order
    std::vector<Linienmarke> marken;
    std::vector<std::string> hinweise; ///< lines under the picture, with the legend
    std::vector<std::string> bildschirmhinweise; ///< more of them that leave the screen with no picture
};

} // namespace zerna
