#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "bild/Farbskala.h"

namespace zerna {

/// A corner of the surface on the picture, in device pixels.
struct Flaechenecke {
    float x = 0;
    float y = 0;
    float depth = 0; ///< larger is nearer
    float share = 0; ///< height of its value, 0 to 1
};

/// How a surface is drawn.
struct Flaechenstil {
    float meshOpacity = 0; ///< of the lines along the grid, 0 to 1
    float isoOpacity = 0.75F; ///< of the lines at the levels
    float lineWidth = 1; ///< device pixels
    std::vector<float> levels; ///< shares at which iso-lines run, ascending
    bool shaded = true; ///< darker where the surface is seen at a sharp angle
    bool grau = false; ///< without colours
    float pixelsPerSide = 1000; ///< of the diagram, to which depths are relative
};

/// The colour of a share of the height, from dark to light.
Farbe flaechenfarbe(double share, bool grau);

/// A picture of triangles with a depth buffer, so that what is hidden is right from every side. Neighbouring triangles
/// leave no cracks.
class Flaechenbild {
public:
    Flaechenbild() = default;
    Flaechenbild(int width, int height) { beginne(width, height); }

    /// Begins an empty picture in the memory of the last one.
    void beginne(int width, int height);

    /// Adds one triangle.
    void fill(const Flaechenecke& a, const Flaechenecke& b, const Flaechenecke& c, const Flaechenstil& stil);

    /// Smooths the edge from a to b, where the surface ends as seen: a fading seam on the side away from `inside`. All
    /// triangles come before.
    void seam(const Flaechenecke& a, const Flaechenecke& b, const Flaechenecke& inside, const Flaechenstil& stil);

    int width() const { return m_width; }
    int height() const { return m_height; }

    /// Rows of premultiplied pixels 0xAARRGGBB; 0 where there is no surface.
    std::span<const std::uint32_t> pixels() const { return m_pixels; }

    /// Depth of the nearest surface at a pixel; false where there is none.
    bool depthAt(int x, int y, float& depth) const;

private:
    std::size_t placeOf(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;
    std::vector<float> m_depth;
};

} // namespace zerna
