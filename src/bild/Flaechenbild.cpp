#include "bild/Flaechenbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zerna {

namespace {

constexpr int ColourSteps = 512;
constexpr float Nothing = -std::numeric_limits<float>::infinity();

/// A value that is linear over the picture: v = base + x·dx + y·dy.
struct Ebene {
    float base = 0;
    float dx = 0;
    float dy = 0;

    float at(float x, float y) const { return base + x * dx + y * dy; }
    float slope() const { return std::hypot(dx, dy); }
};

/// The plane that is 1 at `top` and 0 along the line from `a` to `b`; `area` is twice the triangle's signed area.
Ebene barycentric(const Flaechenecke& a, const Flaechenecke& b, float area)
{
    return {(a.x * b.y - a.y * b.x) / area, (a.y - b.y) / area, (b.x - a.x) / area};
}

Ebene combined(const std::array<Ebene, 3>& weights, float a, float b, float c)
{
    return {weights[0].base * a + weights[1].base * b + weights[2].base * c,
        weights[0].dx * a + weights[1].dx * b + weights[2].dx * c,
        weights[0].dy * a + weights[1].dy * b + weights[2].dy * c};
}

std::uint8_t scaled(std::uint8_t channel, float factor)
{
    return static_cast<std::uint8_t>(std::clamp(static_cast<float>(channel) * factor, 0.0F, 255.0F));
}

/// The colour darkened by a line's opacity.
std::uint32_t packed(const Farbe& colour, float light)
{
    return 0xFF000000U | static_cast<std::uint32_t>(scaled(colour.red, light)) << 16U
        | static_cast<std::uint32_t>(scaled(colour.green, light)) << 8U | scaled(colour.blue, light);
}

/// How much of a line of that width covers a pixel at a distance from its middle.
float coverage(float distance, float width) { return std::clamp(width / 2 + 0.5F - distance, 0.0F, 1.0F); }

} // namespace

Flaechenbild::Flaechenbild(int width, int height)
    : m_width(std::max(0, width))
    , m_height(std::max(0, height))
    , m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    , m_depth(m_pixels.size(), Nothing)
{
    m_colours.reserve(ColourSteps + 1);
    for (int i = 0; i <= ColourSteps; ++i)
        m_colours.push_back(farbskala(static_cast<double>(i) / ColourSteps));
}

bool Flaechenbild::depthAt(int x, int y, float& depth) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return false;
    depth = m_depth[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)];
    return depth != Nothing;
}

void Flaechenbild::fill(const Flaechenecke& a, const Flaechenecke& b, const Flaechenecke& c, const Flaechenstil& stil)
{
    const float area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    constexpr float Invisible = 1e-4F; // seen edge-on; its neighbours cover its pixels
    if (!(std::abs(area) > Invisible))
        return;
    const std::array<Ebene, 3> weights{barycentric(b, c, area), barycentric(c, a, area), barycentric(a, b, area)};
    const Ebene depth = combined(weights, a.depth, b.depth, c.depth);
    const Ebene share = combined(weights, a.share, b.share, c.share);
    const std::array<float, 3> slopes{weights[0].slope(), weights[1].slope(), weights[2].slope()};
    const float shareSlope = share.slope();

    // A pixel belongs to the triangle when its middle does; the tolerance lets neighbours overlap instead of gape.
    constexpr float Tolerance = -1e-3F;
    const int left = std::max(0, static_cast<int>(std::floor(std::min({a.x, b.x, c.x}) - 0.5F)));
    const int right = std::min(m_width - 1, static_cast<int>(std::ceil(std::max({a.x, b.x, c.x}))));
    const int top = std::max(0, static_cast<int>(std::floor(std::min({a.y, b.y, c.y}) - 0.5F)));
    const int bottom = std::min(m_height - 1, static_cast<int>(std::ceil(std::max({a.y, b.y, c.y}))));

    // The steeper the depth, the darker: depth is in sides of the triangle, so it is compared per picture width.
    const float steepness = depth.slope() * static_cast<float>(std::max(m_width, m_height));
    const float light = stil.shaded ? 0.80F + 0.20F / (1 + 0.15F * steepness) : 1.0F;

    const float margin = stil.lineWidth * shareSlope * 2;
    const float lowest = std::min({a.share, b.share, c.share}) - margin;
    const float highest = std::max({a.share, b.share, c.share}) + margin;
    const auto firstLevel = std::ranges::lower_bound(stil.levels, lowest);
    const auto lastLevel = std::upper_bound(firstLevel, stil.levels.end(), highest);
    const bool hasLevels = firstLevel != lastLevel && shareSlope > 0;

    for (int y = top; y <= bottom; ++y) {
        const float py = static_cast<float>(y) + 0.5F;
        const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
        for (int x = left; x <= right; ++x) {
            const float px = static_cast<float>(x) + 0.5F;
            const float w0 = weights[0].at(px, py);
            const float w1 = weights[1].at(px, py);
            const float w2 = weights[2].at(px, py);
            if (w0 < Tolerance || w1 < Tolerance || w2 < Tolerance)
                continue;
            const std::size_t place = row + static_cast<std::size_t>(x);
            const float d = depth.at(px, py);
            if (d <= m_depth[place])
                continue;
            m_depth[place] = d;
            const float s = share.at(px, py);
            float shade = light;
            if (stil.meshOpacity > 0) {
                const float edge = std::min({w0 / slopes[0], w1 / slopes[1], w2 / slopes[2]});
                shade *= 1 - stil.meshOpacity * coverage(edge, stil.lineWidth / 2);
            }
            if (hasLevels) {
                float nearest = std::numeric_limits<float>::max();
                for (auto level = firstLevel; level != lastLevel; ++level)
                    nearest = std::min(nearest, std::abs(s - *level));
                shade *= 1 - stil.isoOpacity * coverage(nearest / shareSlope, stil.lineWidth);
            }
            const auto index = static_cast<std::size_t>(std::clamp(s, 0.0F, 1.0F) * ColourSteps);
            m_pixels[place] = packed(m_colours[index], shade);
        }
    }
}

} // namespace zerna
