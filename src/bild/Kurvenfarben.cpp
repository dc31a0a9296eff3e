#include "bild/Kurvenfarben.h"

#include <array>

namespace zerna {

namespace {

using enum Linienart;
using enum Punktzeichen;

constexpr std::array<Kurvenaussehen, Kurvenfarben> Aussehen{{
    {{0, 0, 255}, Durchgezogen, Kreis},
    {{200, 80, 0}, Strichpunkt, Quadrat},
    {{0, 125, 90}, Gepunktet, Dreieck},
    {{190, 90, 150}, StrichZweipunkt, Raute},
    {{120, 60, 20}, Strichpunkt, Raute},
    {{0, 0, 0}, Gepunktet, Kreis},
    {{90, 80, 0}, StrichZweipunkt, Dreieck},
    {{40, 140, 200}, Gestrichelt, Quadrat},
}};

} // namespace

Kurvenaussehen kurvenaussehen(std::size_t index) { return Aussehen.at(index % Aussehen.size()); }

} // namespace zerna
