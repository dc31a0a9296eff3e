#include "bild/Flaechenbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>

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

/// The plane that is 0 along the line from `a` to `b` and 1 at the third corner; `area` is twice the triangle's signed
/// area.
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

/// The colour under a light of 0 to 1, as a pixel.
std::uint32_t packed(const Farbe& colour, float light)
{
    return 0xFF000000U | static_cast<std::uint32_t>(scaled(colour.red, light)) << 16U
        | static_cast<std::uint32_t>(scaled(colour.green, light)) << 8U | scaled(colour.blue, light);
}

/// The colours of the shares, made once for all pictures.
std::span<const Farbe> colourTable()
{
    static const auto table = [] {
        std::array<Farbe, ColourSteps + 1> colours;
        for (std::size_t i = 0; i < colours.size(); ++i)
            colours.at(i) = farbskala(static_cast<double>(i) / ColourSteps);
        return colours;
    }();
    return table;
}

/// How much of a line of that width covers a pixel at a distance from its middle.
float coverage(float distance, float width) { return std::clamp(width / 2 + 0.5F - distance, 0.0F, 1.0F); }

using Ecken = std::array<Flaechenecke, 3>;

/// All that is the same for every pixel of a triangle.
struct Dreieck {
    std::array<Ebene, 3> weights; // barycentric
    std::array<float, 3> slopes{}; // of the weights
    Ebene depth;
    Ebene share;
    float shareSlope = 0;
    float light = 1;
    std::span<const float> levels; // whose lines may run over it
};

/// The first and last pixels that a triangle may touch.
struct Pixelbereich {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
};

Pixelbereich boundsOf(const Ecken& e, int width, int height)
{
    const auto first = [](float smallest) { return std::max(0, static_cast<int>(std::floor(smallest - 0.5F))); };
    const auto last = [](float largest, int size) { return std::min(size - 1, static_cast<int>(std::ceil(largest))); };
    return {first(std::min({e[0].x, e[1].x, e[2].x})), last(std::max({e[0].x, e[1].x, e[2].x}), width),
        first(std::min({e[0].y, e[1].y, e[2].y})), last(std::max({e[0].y, e[1].y, e[2].y}), height)};
}

/// The steeper the depth, the darker: depth is in sides of the triangle, so it is compared per picture width.
float lightOf(const Ebene& depth, int pictureSize)
{
    const float steepness = depth.slope() * static_cast<float>(pictureSize);
    return 0.80F + 0.20F / (1 + 0.15F * steepness);
}

std::span<const float> levelsOver(const Ecken& e, float shareSlope, const Flaechenstil& stil)
{
    const float margin = stil.lineWidth * shareSlope * 2;
    const float lowest = std::min({e[0].share, e[1].share, e[2].share}) - margin;
    const float highest = std::max({e[0].share, e[1].share, e[2].share}) + margin;
    const auto first = std::ranges::lower_bound(stil.levels, lowest);
    const auto last = std::upper_bound(first, stil.levels.end(), highest);
    return shareSlope > 0 ? std::span(first, last) : std::span<const float>();
}

/// `area` is twice the triangle's signed area, not 0.
Dreieck dreieckOf(const Ecken& e, float area, const Flaechenstil& stil, int pictureSize)
{
    const std::array<Ebene, 3> weights{
        barycentric(e[1], e[2], area), barycentric(e[2], e[0], area), barycentric(e[0], e[1], area)};
    const Ebene depth = combined(weights, e[0].depth, e[1].depth, e[2].depth);
    const Ebene share = combined(weights, e[0].share, e[1].share, e[2].share);
    const float shareSlope = share.slope();
    return {weights, {weights[0].slope(), weights[1].slope(), weights[2].slope()}, depth, share, shareSlope,
        stil.shaded ? lightOf(depth, pictureSize) : 1, levelsOver(e, shareSlope, stil)};
}

/// The light of a pixel with these weights and this share, less where a line runs over it.
float shadeOf(const Dreieck& d, const std::array<float, 3>& weights, float share, const Flaechenstil& stil)
{
    float shade = d.light;
    if (stil.meshOpacity > 0) {
        const float edge = std::min({weights[0] / d.slopes[0], weights[1] / d.slopes[1], weights[2] / d.slopes[2]});
        shade *= 1 - stil.meshOpacity * coverage(edge, stil.lineWidth / 2);
    }
    if (!d.levels.empty()) {
        float nearest = std::numeric_limits<float>::max();
        for (const float level : d.levels)
            nearest = std::min(nearest, std::abs(share - level));
        shade *= 1 - stil.isoOpacity * coverage(nearest / d.shareSlope, stil.lineWidth);
    }
    return shade;
}

} // namespace

Flaechenbild::Flaechenbild(int width, int height)
    : m_width(std::max(0, width))
    , m_height(std::max(0, height))
    , m_pixels(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height))
    , m_depth(m_pixels.size(), Nothing)
    , m_colours(colourTable())
{
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
    const Ecken corners{a, b, c};
    const Dreieck d = dreieckOf(corners, area, stil, std::max(m_width, m_height));
    const Pixelbereich bounds = boundsOf(corners, m_width, m_height);
    // A pixel belongs to the triangle when its middle does; the tolerance lets neighbours overlap instead of gape.
    constexpr float Tolerance = -1e-3F;
    for (int y = bounds.top; y <= bounds.bottom; ++y) {
        const float py = static_cast<float>(y) + 0.5F;
        const std::size_t row = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width);
        for (int x = bounds.left; x <= bounds.right; ++x) {
            const float px = static_cast<float>(x) + 0.5F;
            const std::array w{d.weights[0].at(px, py), d.weights[1].at(px, py), d.weights[2].at(px, py)};
            if (w[0] < Tolerance || w[1] < Tolerance || w[2] < Tolerance)
                continue;
            const std::size_t place = row + static_cast<std::size_t>(x);
            const float depth = d.depth.at(px, py);
            if (depth <= m_depth[place])
                continue;
            m_depth[place] = depth;
            const float share = d.share.at(px, py);
            const auto index = static_cast<std::size_t>(std::clamp(share, 0.0F, 1.0F) * ColourSteps);
            m_pixels[place] = packed(m_colours[index], shadeOf(d, w, share, stil));
        }
    }
}

} // namespace zerna
