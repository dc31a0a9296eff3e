#include "bild/Ternaerflaeche.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

Flaechenstil styleOf(const Flaechensicht& sicht)
{
    // The mesh fades out where its lines would run together.
    constexpr double Faintest = 4;
    constexpr double Clearest = 16;
    const Ternaerinhalt& inhalt = *sicht.inhalt;
    const double side = sicht.projektion.scale();
    const double cell = side / std::max(1, inhalt.gitter.n);
    const double width = 1.2 * sicht.linienbreite / Bildstil().linienbreite;
    Flaechenstil stil;
    stil.meshOpacity = static_cast<float>(0.4 * std::clamp((cell - Faintest) / (Clearest - Faintest), 0.0, 1.0));
    stil.lineWidth = static_cast<float>(width * sicht.ratio);
    stil.shaded = !sicht.ansicht.flach;
    stil.grau = sicht.grau;
    stil.pixelsPerSide = static_cast<float>(side * sicht.ratio);
    if (inhalt.ticks.size() < 2)
        return stil;
    for (const double tick : inhalt.ticks)
        stil.levels.push_back(static_cast<float>(heightShare(tick, inhalt.range)));
    return stil;
}

} // namespace

void Ternaerflaeche::zeige(const Flaechensicht& sicht)
{
    if (m_sicht == sicht)
        return;
    m_sicht = sicht;
    placeCorners();
    findTriangleSides();
    fillTriangles();
}

/// Projects the grid and makes the picture as large as what is seen of it.
void Ternaerflaeche::placeCorners()
{
    const auto& [inhalt, ansicht, projektion, area, ratio, grau, breite] = m_sicht;
    const Ternaergitter& gitter = inhalt->gitter;
    const double n = gitter.n;
    m_corners.resize(gitter.werte.size());
    std::array box{area.right(), area.left, area.bottom(), area.top}; // left, right, top, bottom
    for (int i = 0; i <= gitter.n; ++i) {
        for (int j = 0; i + j <= gitter.n; ++j) {
            const std::size_t place = gitter.position(i, j);
            const double share = heightShare(gitter.werte[place], inhalt->range);
            const bool isHole = istUnbekannt(gitter.werte[place]);
            const Bildpunkt p = projektion.project(
                placeOf({i / n, j / n, (n - i - j) / n}, ansicht.flach || isHole ? 0 : share * SurfaceHeight));
            m_corners[place] = {static_cast<float>(p.x * ratio), static_cast<float>(p.y * ratio),
                static_cast<float>(p.depth), static_cast<float>(share)};
            box = {std::min(box[0], p.x), std::max(box[1], p.x), std::min(box[2], p.y), std::max(box[3], p.y)};
        }
    }
    constexpr int Seam = 1; // pixels around
    const auto first = [ratio = ratio](double from, double limit) {
        return static_cast<int>(std::max(std::floor(from * ratio) - Seam, std::ceil(limit * ratio)));
    };
    const auto last = [ratio = ratio](double to, double limit) {
        return static_cast<int>(std::min(std::ceil(to * ratio) + Seam, std::floor(limit * ratio)));
    };
    m_left = first(box[0], area.left);
    m_top = first(box[2], area.top);
    m_bild.beginne(last(box[1], area.right()) - m_left, last(box[3], area.bottom()) - m_top);
    for (Flaechenecke& corner : m_corners) {
        corner.x -= static_cast<float>(m_left);
        corner.y -= static_cast<float>(m_top);
    }
}

void Ternaerflaeche::findTriangleSides()
{
    const auto& triangles = m_sicht.inhalt->triangles;
    m_isLeft.resize(triangles.size());
    for (std::size_t t = 0; t < triangles.size(); ++t) {
        const auto& [a, b, c] = triangles[t].corner;
        const Flaechenecke& e = m_corners[a];
        m_isLeft[t] = (m_corners[b].x - e.x) * (m_corners[c].y - e.y) > (m_corners[b].y - e.y) * (m_corners[c].x - e.x);
    }
}

/// As seen, the surface ends at its rim and where it turns away from the viewer.
void Ternaerflaeche::fillTriangles()
{
    const Flaechenstil stil = styleOf(m_sicht);
    const auto& triangles = m_sicht.inhalt->triangles;
    for (const auto& [corner] : triangles)
        m_bild.fill(m_corners[corner[0]], m_corners[corner[1]], m_corners[corner[2]], stil);
    for (const Gitterkante& edge : m_sicht.inhalt->kanten) {
        if (edge.other && m_isLeft[edge.triangle] == m_isLeft[*edge.other])
            continue;
        const auto& corner = triangles[edge.triangle].corner;
        const std::size_t inside =
            *std::ranges::find_if(corner, [&](std::size_t point) { return point != edge.from && point != edge.to; });
        m_bild.seam(m_corners[edge.from], m_corners[edge.to], m_corners[inside], stil);
    }
}

Rechteck Ternaerflaeche::platz() const
{
    const double ratio = m_sicht.ratio;
    return {m_left / ratio, m_top / ratio, m_bild.width() / ratio, m_bild.height() / ratio};
}

bool Ternaerflaeche::depthAt(double x, double y, float& depth) const
{
    const auto column = static_cast<int>(std::floor(x * m_sicht.ratio));
    const auto row = static_cast<int>(std::floor(y * m_sicht.ratio));
    return m_bild.depthAt(column - m_left, row - m_top, depth);
}

std::optional<Anteile3> Ternaerflaeche::anteileAt(const Punkt& position) const
{
    float depth = 0;
    if (!depthAt(position.x, position.y, depth))
        return std::nullopt;
    return compositionAt(m_sicht.projektion.unproject({position.x, position.y, depth}));
}

bool Ternaerflaeche::istBedeckt(const Rechteck& box) const
{
    constexpr int Steps = 4;
    float depth = 0;
    for (int i = 0; i <= Steps; ++i) {
        for (int j = 0; j <= Steps; ++j) {
            if (depthAt(box.left + box.width * i / Steps, box.top + box.height * j / Steps, depth))
                return true;
        }
    }
    return false;
}

bool Ternaerflaeche::istSichtbar(const Bildpunkt& punkt) const
{
    constexpr double Tolerance = 0.01; // sides of the triangle
    const double pixel = 1 / m_sicht.ratio;
    float depth = 0;
    for (const double x : {punkt.x - pixel, punkt.x, punkt.x + pixel}) {
        for (const double y : {punkt.y - pixel, punkt.y, punkt.y + pixel}) {
            if (!depthAt(x, y, depth) || depth <= punkt.depth + Tolerance)
                return true;
        }
    }
    return false;
}

} // namespace zerna
