#pragma once

#include <cstdint>

namespace zerna {

struct Farbe {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Farbe&) const = default;
};

/// A perceptually uniform colour scale from dark violet (0) over green to yellow (1) that colour-blind people can read;
/// positions outside 0 to 1 give the end colours.
Farbe farbskala(double position);

/// Relative luminance, 0 (black) to 1 (white).
double leuchtdichte(const Farbe& farbe);

} // namespace zerna
