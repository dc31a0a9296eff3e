#include "bild/Ternaerflaeche.h"

#include <algorithm>
#include <utility>

namespace zerna {

namespace {

Flaechenstil styleOf(const Ternaerinhalt& inhalt, const Ansicht& ansicht, double pixelsPerSide, double ratio)
{
    // The mesh fades out where its lines would run together.
    constexpr double Faintest = 4;
    constexpr double Clearest = 16;
    const double cell = pixelsPerSide / std::max(1, inhalt.gitter.n);
    Flaechenstil stil;
    stil.meshOpacity = static_cast<float>(0.4 * std::clamp((cell - Faintest) / (Clearest - Faintest), 0.0, 1.0));
    stil.lineWidth = static_cast<float>(1.2 * ratio);
    stil.shaded = !ansicht.flach;
    if (inhalt.ticks.size() < 2)
        return stil;
    for (const double tick : inhalt.ticks)
        stil.levels.push_back(static_cast<float>(heightShare(tick, inhalt.range)));
    return stil;
}

/// The grid's points on the picture, in device pixels.
std::vector<Flaechenecke> cornersOf(
    const Ternaerinhalt& inhalt, const Ansicht& ansicht, const Projektion& projektion, double ratio)
{
    const Ternaergitter& gitter = inhalt.gitter;
    const double n = gitter.n;
    std::vector<Flaechenecke> corners(gitter.werte.size());
    for (int i = 0; i <= gitter.n; ++i) {
        for (int j = 0; i + j <= gitter.n; ++j) {
            const std::size_t place = gitter.position(i, j);
            const double share = heightShare(gitter.werte[place], inhalt.range);
            const Bildpunkt p =
                projektion.project(placeOf({i / n, j / n, (n - i - j) / n}, ansicht.flach ? 0 : share * SurfaceHeight));
            corners[place] = {static_cast<float>(p.x * ratio), static_cast<float>(p.y * ratio),
                static_cast<float>(p.depth), static_cast<float>(share)};
        }
    }
    return corners;
}

} // namespace

Ternaerinhalt::Ternaerinhalt(Ternaergitter values, const Anteile3& alloy)
    : gitter(std::move(values))
    , range(wertebereich(gitter.werte))
    , triangles(triangulate(gitter))
{
    if (range.known)
        ticks = axisTicks(range);
    if (std::ranges::all_of(alloy, [](double share) { return share >= 0 && share <= 1; }))
        current = alloy;
}

Ternaerflaeche::Ternaerflaeche(
    const Ternaerinhalt& inhalt, const Ansicht& ansicht, double width, double height, double devicePixelRatio)
    : m_projektion(ansicht, width, height)
    , m_ratio(devicePixelRatio)
    , m_bild(static_cast<int>(width * devicePixelRatio), static_cast<int>(height * devicePixelRatio))
{
    const Flaechenstil stil = styleOf(inhalt, ansicht, m_projektion.scale(), m_ratio);
    const std::vector<Flaechenecke> corners = cornersOf(inhalt, ansicht, m_projektion, m_ratio);
    for (const auto& [corner] : inhalt.triangles)
        m_bild.fill(corners[corner[0]], corners[corner[1]], corners[corner[2]], stil);
}

std::optional<Anteile3> Ternaerflaeche::anteileAt(const Punkt& position) const
{
    float depth = 0;
    if (!m_bild.depthAt(static_cast<int>(position.x * m_ratio), static_cast<int>(position.y * m_ratio), depth))
        return std::nullopt;
    return compositionAt(m_projektion.unproject({position.x, position.y, depth}));
}

} // namespace zerna
