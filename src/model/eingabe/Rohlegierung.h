#pragma once

#include <array>
#include <string>

#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Komposition.h"
#include "model/eingabe/Legierung.h"

namespace zerna {

/// A row of an alloy as it is kept: what was typed and chosen, and what is in force for its element.
struct Rohzeile {
    std::string element; ///< symbol; empty until one is chosen
    std::string prozent; ///< its part, text
    std::string dichtewahl; ///< one of dichteauswahl(), empty without an element
    std::string dichte; ///< text
    int valenzwahl = ValenzStandard; ///< code of the valence choice
    std::string valenz; ///< text
    float dichteInKraft = 0; ///< g/cm³
    std::string valenzInKraft; ///< text
};

/// An alloy as it is kept: all that an Eingabe cannot work out again.
struct Rohlegierung {
    int anzahl = 1; ///< rows in use
    std::array<Rohzeile, MaxKomponenten> zeilen;
    std::string rest; ///< part of the balance row; counts while a row above is unreadable
    std::string nachgeschlagen; ///< symbol of the element looked up last; empty for none
    Anteilseinheit einheit = Anteilseinheit::Atom; ///< that parts are typed in
    Anteilseinheit quelle = Anteilseinheit::Atom; ///< that those here were typed in
};

} // namespace zerna
