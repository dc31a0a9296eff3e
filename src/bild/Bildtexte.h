#pragma once

#include <string>

#include "model/eingabe/Eingabe.h"
#include "model/reihen/Diagrammwahl.h"

namespace zerna {

/// What a file with a picture says about it, beside showing it. Empty: nothing.
struct Bildtexte {
    std::string titel; ///< quantity and axis
    std::string beschreibung; ///< the alloy
};

/// The texts for the chosen diagram of a complete alloy.
Bildtexte bildtexte(const Eingabe& eingabe, const Diagrammwahl& wahl);

} // namespace zerna
