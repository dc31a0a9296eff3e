#include "bild/Kurvenfarben.h"

#include <array>

namespace zerna {

namespace {

using enum Linienart;
using enum Punktzeichen;

constexpr std::array<Kurvenaussehen, Kurvenfarben> Aussehen{{
    {{0, 0, 255}, Durchgezogen, Kreis},
    {{200, 80, 0}, Gestrichelt, Quadrat},
    {{0, 125, 90}, Strichpunkt, Dreieck},
    {{190, 90, 150}, Gepunktet, Raute},
    {{40, 140, 200}, Durchgezogen, Quadrat},
    {{0, 0, 0}, Gestrichelt, Kreis},
    {{120, 60, 20}, Strichpunkt, Raute},
    {{90, 80, 0}, Gepunktet, Dreieck},
}};

} // namespace

Kurvenaussehen kurvenaussehen(std::size_t index) { return Aussehen.at(index % Aussehen.size()); }

} // namespace zerna
