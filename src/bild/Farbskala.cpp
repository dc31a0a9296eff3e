#include "bild/Farbskala.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zerna {

namespace {

/// Sixteenths of the scale; the map "viridis" by S. van der Walt and N. Smith (2015, public domain).
constexpr std::array<Farbe, 17> Stufen{{{68, 1, 84}, {72, 24, 106}, {71, 45, 123}, {66, 64, 134}, {59, 82, 139},
    {51, 99, 141}, {44, 114, 142}, {38, 130, 142}, {33, 145, 140}, {31, 160, 136}, {40, 174, 128}, {63, 188, 115},
    {94, 201, 98}, {132, 212, 75}, {173, 220, 48}, {216, 226, 25}, {253, 231, 37}}};

std::uint8_t between(std::uint8_t a, std::uint8_t b, double share)
{
    return static_cast<std::uint8_t>(std::lround(a + (b - a) * share));
}

/// The light of each value of a channel, worked out once: a window asks for it thousands of times at its start.
double linear(std::uint8_t channel)
{
    static const auto light = [] {
        std::array<double, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            const double c = static_cast<double>(i) / 255.0;
            values.at(i) = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    return light[channel];
}

} // namespace

Farbe farbskala(double position)
{
    const double place = std::clamp(position, 0.0, 1.0) * (Stufen.size() - 1);
    const auto lower = std::min(static_cast<std::size_t>(place), Stufen.size() - 2);
    const double share = place - static_cast<double>(lower);
    const Farbe& a = Stufen.at(lower);
    const Farbe& b = Stufen.at(lower + 1);
    return {between(a.red, b.red, share), between(a.green, b.green, share), between(a.blue, b.blue, share)};
}

double leuchtdichte(const Farbe& farbe)
{
    return 0.2126 * linear(farbe.red) + 0.7152 * linear(farbe.green) + 0.0722 * linear(farbe.blue);
}

} // namespace zerna
