#pragma once

#include "core/Zahlentext.h"

namespace zerna {

/// How a diagram is drawn, besides its size and its font. The default is the picture of the screen.
struct Bildstil {
    bool rundeTeilung = false; ///< ticks at round values with minor ticks between them, not ten equal divisions
    Dezimaltrenner dezimal = Dezimaltrenner::Komma; ///< of the labels
    bool grau = false; ///< without colours
    double linienbreite = 1.5; ///< of curves, in logical pixels
    bool titel = true; ///< with quantity, component and alloy above the picture
    bool legende = true;
    bool bildschirm = true; ///< with notes for who is at the screen

    bool operator==(const Bildstil&) const = default;
};

} // namespace zerna
