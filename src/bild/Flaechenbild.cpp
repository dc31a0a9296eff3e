#include "bild/Flaechenbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace zerna {

namespace {

constexpr int ColourSteps = 512;
constexpr float Nothing = -std::numeric_limits<float>::infinity();
constexpr float FullLight = 256;

/// A value that is linear over the picture, v = base + x·dx + y·dy, x and y measured from a triangle's first corner.
struct Ebene {
    float base = 0;
    float dx = 0;
    float dy = 0;

    float at(float x, float y) const { return base + x * dx + y * dy; }
    float slope() const { return std::hypot(dx, dy); }
};

using Ecken = std::array<Flaechenecke, 3>;

/// The planes that are 1 at one corner and 0 along the opposite side; `area` is twice the triangle's signed area.
std::array<Ebene, 3> barycentric(const Ecken& e, float area)
{
    const float ux = (e[1].x - e[0].x) / area;
    const float uy = (e[1].y - e[0].y) / area;
    const float vx = (e[2].x - e[0].x) / area;
    const float vy = (e[2].y - e[0].y) / area;
    return {Ebene{1, uy - vy, vx - ux}, Ebene{0, vy, -vx}, Ebene{0, -uy, ux}};
}

Ebene combined(const std::array<Ebene, 3>& weights, float a, float b, float c)
{
    return {weights[0].base * a + weights[1].base * b + weights[2].base * c,
        weights[0].dx * a + weights[1].dx * b + weights[2].dx * c,
        weights[0].dy * a + weights[1].dy * b + weights[2].dy * c};
}

using Farbtafel = std::array<std::uint32_t, ColourSteps + 1>;

Farbtafel makeTable(bool grau)
{
    Farbtafel table;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const Farbe c = flaechenfarbe(static_cast<double>(i) / ColourSteps, grau);
        table.at(i) =
            0xFF000000U | static_cast<std::uint32_t>(c.red) << 16U | static_cast<std::uint32_t>(c.green) << 8U | c.blue;
    }
    return table;
}

/// The opaque pixels of the shares, made once for all pictures.
const Farbtafel& colourTable(bool grau)
{
    static const std::array tables{makeTable(false), makeTable(true)};
    return tables.at(grau ? 1 : 0);
}

std::uint32_t colourOf(const Farbtafel& table, float share)
{
    return table[static_cast<std::size_t>(std::clamp(share, 0.0F, 1.0F) * ColourSteps)];
}

/// All channels times factor/256.
std::uint32_t times(std::uint32_t pixel, std::uint32_t factor)
{
    const std::uint32_t even = (pixel & 0x00FF00FFU) * factor >> 8U & 0x00FF00FFU;
    const std::uint32_t odd = (pixel >> 8U & 0x00FF00FFU) * factor & 0xFF00FF00U;
    return even | odd;
}

/// An opaque pixel under a light of 0 to FullLight.
std::uint32_t lit(std::uint32_t pixel, float light)
{
    return times(pixel, static_cast<std::uint32_t>(light)) | 0xFF000000U;
}

/// How much of a line of that width covers a pixel at a distance from its middle.
float coverage(float distance, float width) { return std::clamp(width / 2 + 0.5F - distance, 0.0F, 1.0F); }

/// All that is the same for every pixel of a triangle.
struct Dreieck {
    std::array<Ebene, 3> weights; // barycentric
    std::array<float, 3> distances{}; // of a corner from the opposite side, pixels
    Ebene depth;
    Ebene share;
    float shareSlope = 0;
    float light = FullLight;
    std::span<const float> levels; // whose lines may run over it
};

/// The steeper the depth, the darker.
float lightOf(const Ebene& depth, const Flaechenstil& stil)
{
    const float steepness = depth.slope() * stil.pixelsPerSide;
    return stil.shaded ? FullLight * (0.80F + 0.20F / (1 + 0.2F * steepness)) : FullLight;
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
Dreieck dreieckOf(const Ecken& e, float area, const Flaechenstil& stil)
{
    Dreieck d;
    d.weights = barycentric(e, area);
    d.depth = combined(d.weights, e[0].depth, e[1].depth, e[2].depth);
    d.share = combined(d.weights, e[0].share, e[1].share, e[2].share);
    d.shareSlope = d.share.slope();
    d.light = lightOf(d.depth, stil);
    d.levels = levelsOver(e, d.shareSlope, stil);
    if (stil.meshOpacity > 0)
        std::ranges::transform(
            d.weights, d.distances.begin(), [](const Ebene& weight) { return 1 / std::max(weight.slope(), 1e-9F); });
    return d;
}

/// The light of a place, less where a line runs over it.
float lightAt(const Dreieck& d, float x, float y, float share, const Flaechenstil& stil)
{
    float light = d.light;
    if (stil.meshOpacity > 0) {
        const float edge = std::min({d.weights[0].at(x, y) * d.distances[0], d.weights[1].at(x, y) * d.distances[1],
            d.weights[2].at(x, y) * d.distances[2]});
        light *= 1 - stil.meshOpacity * coverage(edge, stil.lineWidth / 2);
    }
    if (!d.levels.empty()) {
        float nearest = std::numeric_limits<float>::max();
        for (const float level : d.levels)
            nearest = std::min(nearest, std::abs(share - level));
        light *= 1 - stil.isoOpacity * coverage(nearest / d.shareSlope, stil.lineWidth);
    }
    return light;
}

/// Pixels from the first to the last; none if the last comes before the first.
struct Pixelstrecke {
    int first = 0;
    int last = -1;
};

/// The pixels whose middles lie between two places, within 0 to size - 1.
Pixelstrecke pixelsBetween(float from, float to, int size)
{
    const auto limit = static_cast<float>(size);
    return {static_cast<int>(std::ceil(std::clamp(from - 0.5F, 0.0F, limit))),
        static_cast<int>(std::floor(std::clamp(to - 0.5F, -1.0F, limit - 1)))};
}

/// The part of a row at that height above the first corner that belongs to the triangle, from the corner. A pixel
/// belongs to the triangle when its middle does; the tolerance lets neighbours overlap instead of gape.
std::array<float, 2> spanOf(const Dreieck& d, float y)
{
    constexpr float Tolerance = 1e-3F;
    float from = -std::numeric_limits<float>::max();
    float to = std::numeric_limits<float>::max();
    for (const Ebene& weight : d.weights) {
        const float rest = weight.base + y * weight.dy + Tolerance;
        if (weight.dx > 0)
            from = std::max(from, -rest / weight.dx);
        else if (weight.dx < 0)
            to = std::min(to, -rest / weight.dx);
        else if (rest < 0)
            return {1, 0};
    }
    return {from, to};
}

} // namespace

Farbe flaechenfarbe(double share, bool grau)
{
    if (!grau)
        return farbskala(share);
    constexpr double Darkest = 70; // black lines must stand out on it
    constexpr double Lightest = 240;
    const auto grey =
        static_cast<std::uint8_t>(std::lround(Darkest + (Lightest - Darkest) * std::clamp(share, 0.0, 1.0)));
    return {grey, grey, grey};
}

void Flaechenbild::beginne(int width, int height)
{
    constexpr std::size_t Spare = 4; // times as much memory as needed is given back, as after a picture for paper
    m_width = std::max(0, width);
    m_height = std::max(0, height);
    const std::size_t size = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    if (m_pixels.capacity() > Spare * size) {
        m_pixels = {};
        m_depth = {};
    }
    m_pixels.assign(size, 0);
    m_depth.assign(size, Nothing);
}

bool Flaechenbild::depthAt(int x, int y, float& depth) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return false;
    depth = m_depth[placeOf(x, y)];
    return depth != Nothing;
}

void Flaechenbild::fill(const Flaechenecke& a, const Flaechenecke& b, const Flaechenecke& c, const Flaechenstil& stil)
{
    const Ecken corners{a, b, c};
    const float area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    constexpr float Invisible = 1e-4F; // seen edge-on; its neighbours cover its pixels
    if (!(std::abs(area) > Invisible))
        return;
    const Dreieck d = dreieckOf(corners, area, stil);
    const Farbtafel& table = colourTable(stil.grau);
    const bool isPlain = d.levels.empty() && stil.meshOpacity <= 0;
    const Pixelstrecke rows = pixelsBetween(std::min({a.y, b.y, c.y}), std::max({a.y, b.y, c.y}), m_height);
    for (int row = rows.first; row <= rows.last; ++row) {
        const float y = static_cast<float>(row) + 0.5F - a.y;
        const auto [from, to] = spanOf(d, y);
        if (!(from <= to))
            continue;
        const Pixelstrecke columns = pixelsBetween(a.x + from, a.x + to, m_width);
        for (int column = columns.first; column <= columns.last; ++column) {
            const float x = static_cast<float>(column) + 0.5F - a.x;
            const std::size_t place = placeOf(column, row);
            const float depth = d.depth.at(x, y);
            if (depth <= m_depth[place])
                continue;
            m_depth[place] = depth;
            const float share = d.share.at(x, y);
            m_pixels[place] = lit(colourOf(table, share), isPlain ? d.light : lightAt(d, x, y, share, stil));
        }
    }
}

void Flaechenbild::seam(
    const Flaechenecke& a, const Flaechenecke& b, const Flaechenecke& inside, const Flaechenstil& stil)
{
    const float length = std::hypot(b.x - a.x, b.y - a.y);
    if (!(length > 0))
        return;
    const float side = (b.x - a.x) * (inside.y - a.y) - (b.y - a.y) * (inside.x - a.x) > 0 ? -1.0F : 1.0F;
    const float alongX = (b.x - a.x) / length;
    const float alongY = (b.y - a.y) / length;
    const Farbtafel& table = colourTable(stil.grau);
    const Pixelstrecke rows = pixelsBetween(std::min(a.y, b.y) - 1, std::max(a.y, b.y) + 1, m_height);
    const Pixelstrecke columns = pixelsBetween(std::min(a.x, b.x) - 1, std::max(a.x, b.x) + 1, m_width);
    for (int row = rows.first; row <= rows.last; ++row) {
        for (int column = columns.first; column <= columns.last; ++column) {
            const float x = static_cast<float>(column) + 0.5F - a.x;
            const float y = static_cast<float>(row) + 0.5F - a.y;
            const float distance = side * (alongX * y - alongY * x);
            const float along = (x * alongX + y * alongY) / length;
            const std::size_t place = placeOf(column, row);
            const bool isBeside = distance >= 0 && distance < 1 && along >= 0 && along < 1;
            if (!isBeside || a.depth + (b.depth - a.depth) * along <= m_depth[place])
                continue;
            const float opacity = (1 - distance) * FullLight;
            const std::uint32_t colour = colourOf(table, a.share + (b.share - a.share) * along);
            m_pixels[place] = times(colour, static_cast<std::uint32_t>(opacity))
                + times(m_pixels[place], static_cast<std::uint32_t>(FullLight - opacity));
        }
    }
}

} // namespace zerna
