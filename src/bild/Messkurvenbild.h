#pragma once

#include "bild/Kurvenbild.h"
#include "model/messung/Messvergleich.h"

/// Measured curves of one kind as a picture. Lengths are in nm and 1/nm.
namespace zerna {

/// The curves with signs at their maxima; what follows of an alloy is not in it.
Kurvenbild messkurvenbild(const Messauswertung& auswertung, Messart art);

/// Its values as lines of x, a tab and y with decimal points and CR LF; several curves have their names above them,
/// behind a "#", and an empty line between them.
std::string messkurvenwerte(const Kurvenbild& bild);

/// What an alloy adds to the picture: it changes while it is being entered.
struct Messbeiwerk {
    std::string untertitel; ///< the alloy
    std::vector<Linienmarke> marken; ///< its Friedel minima, or 2kF
    std::vector<std::string> hinweise;
};

/// `legierung` names the alloy of the calculator; `x` is the axis of the picture.
Messbeiwerk messbeiwerk(const clsCalc& calc, Messart art, const Bereich& x, std::string_view legierung);

} // namespace zerna
