#pragma once

#include <QColor>

#include <cstdint>
#include <utility>
#include <vector>

#include "bild/Farbskala.h"

class QPainter;
class QSize;

namespace zerna {

class Abbildung;

/// A colour as a 32-bit value with red in the low byte.
inline QColor colourOf(std::uint32_t rgb)
{
    return {static_cast<int>(rgb & 0xFFU), static_cast<int>(rgb >> 8U & 0xFFU), static_cast<int>(rgb >> 16U & 0xFFU)};
}

/// The curve colour of all diagrams.
inline constexpr std::uint32_t Blau = 0xFF0000;
inline constexpr Farbe Kurvenblau{0, 0, 255};

/// Points of a line in data units; a single point is one pixel.
struct Strichzug {
    std::uint32_t colour = Blau;
    std::vector<std::pair<float, float>> points;
};

/// Where the points of strokes go: into the middles of whole pixels, so that each of these pixels has the full colour,
/// or between them, so that lines have no kinks.
enum class Raster { Pixel, Keines };

/// Paints the strokes as antialiased lines of 1.5 pixels.
void paintStriche(QPainter& painter, const std::vector<Strichzug>& striche, const Abbildung& abbildung, Raster raster);

/// A pen of that width for lines through the middles of pixels.
inline constexpr double Kurvenbreite = 1.5;

} // namespace zerna
