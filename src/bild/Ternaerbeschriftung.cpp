#include "bild/Ternaerbeschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <utility>

#include "bild/Textablage.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr double EdgeTick = 6;
constexpr double TickGap = 3;
constexpr double Digits = 0.85; // height of digits, in lines
constexpr Anteile3 Mitte{1.0 / 3, 1.0 / 3, 1.0 / 3};

Punkt plus(const Punkt& a, const Punkt& b, double times = 1) { return {a.x + b.x * times, a.y + b.y * times}; }

double lengthOf(const Punkt& p) { return std::hypot(p.x, p.y); }

Punkt unitOf(const Punkt& p)
{
    const double length = lengthOf(p);
    return length > 0 ? Punkt{p.x / length, p.y / length} : Punkt{};
}

double dot(const Punkt& a, const Punkt& b) { return a.x * b.x + a.y * b.y; }

/// How far a box reaches from its middle in a direction.
double reach(double width, double height, const Punkt& direction)
{
    return std::abs(direction.x) * width / 2 + std::abs(direction.y) * height / 2;
}

std::string_view arrowOf(const Punkt& direction)
{
    constexpr std::array<std::string_view, 8> Arrows{"→", "↗", "↑", "↖", "←", "↙", "↓", "↘"};
    constexpr double Eighth = std::numbers::pi / 4;
    const auto eighths = std::lround(std::atan2(-direction.y, direction.x) / Eighth);
    return Arrows.at(static_cast<std::size_t>((eighths + 8) % 8));
}

/// An edge of the triangle as it is seen, from corner `from` to corner `to`.
struct Kante {
    std::size_t from = 0;
    std::size_t to = 0;
    bool steht = false; ///< its labels stand along the surface's rim, since the surface rises before the triangle's
};

class Beschrifter {
public:
    Beschrifter(const Ternaerflaeche& flaeche, const Ternaeraufteilung& parts, const Ternaerbeiwerk& beiwerk,
        const Bildstil& stil, const Ternaermasse& masse)
        : m_flaeche(flaeche)
        , m_inhalt(*flaeche.sicht().inhalt)
        , m_flach(flaeche.sicht().ansicht.flach)
        , m_parts(parts)
        , m_beiwerk(beiwerk)
        , m_stil(stil)
        , m_masse(masse)
        , m_places(parts.bild)
        , m_axisCorner(leftmostCorner())
    {
    }

    Ternaerbeschriftung labels()
    {
        labelCorners();
        if (!m_flach)
            labelAxis();
        for (std::size_t k = 0; k < 3; ++k) {
            Kante wanted = edge(k, (k + 1) % 3);
            if (!labelEdge(wanted) && std::exchange(wanted.steht, false)) // the rim is hidden
                labelEdge(wanted);
        }
        labelLines();
        return std::move(m_result);
    }

private:
    Punkt at(const Anteile3& anteile, double z) const;
    double surfaceHeight(const Anteile3& anteile) const;
    std::size_t leftmostCorner() const;
    Kante edge(std::size_t from, std::size_t to) const;
    Punkt placeOn(const Kante& edge, double share) const;
    Punkt outwards(const Kante& edge, double share) const;
    bool place(const std::string& text, const Rechteck& box, Textrolle rolle, std::size_t component);
    void labelCorners();
    void labelAxis();
    bool labelEdge(const Kante& edge);
    bool nameEdge(const Kante& edge, double numberReach);
    void labelLines();
    void labelLine(const std::vector<Ternaerlinie>& lines, double share, const std::string& text, Textrolle rolle);

    const Ternaerflaeche& m_flaeche;
    const Ternaerinhalt& m_inhalt;
    bool m_flach;
    const Ternaeraufteilung& m_parts;
    const Ternaerbeiwerk& m_beiwerk;
    const Bildstil& m_stil;
    const Ternaermasse& m_masse;
    Textablage m_places;
    std::size_t m_axisCorner; // which the vertical axis stands on: the surface never hides it there
    Ternaerbeschriftung m_result;
};

Punkt Beschrifter::at(const Anteile3& anteile, double z) const
{
    const Bildpunkt p = m_flaeche.sicht().projektion.project(placeOf(anteile, z));
    return {p.x, p.y};
}

double Beschrifter::surfaceHeight(const Anteile3& anteile) const
{
    const auto value = m_flach ? std::nullopt : interpolated(m_inhalt.gitter, anteile);
    return value ? heightShare(*value, m_inhalt.range) * SurfaceHeight : 0;
}

std::size_t Beschrifter::leftmostCorner() const
{
    std::size_t leftmost = 0;
    for (std::size_t k = 1; k < 3; ++k) {
        if (at(along(k, k, 1), 0).x < at(along(leftmost, leftmost, 1), 0).x)
            leftmost = k;
    }
    return leftmost;
}

Kante Beschrifter::edge(std::size_t from, std::size_t to) const
{
    const auto depthOf = [this](const Anteile3& anteile) {
        return m_flaeche.sicht().projektion.project(placeOf(anteile, 0)).depth;
    };
    const bool isBehind = depthOf(along(from, to, 0.5)) < depthOf(Mitte);
    const Ansicht& ansicht = m_flaeche.sicht().ansicht;
    return {from, to, !m_flach && isBehind == (ansicht.tilt >= 0)};
}

Punkt Beschrifter::placeOn(const Kante& edge, double share) const
{
    const Anteile3 anteile = along(edge.from, edge.to, share);
    return at(anteile, edge.steht ? surfaceHeight(anteile) : 0);
}

/// At right angles to the edge, away from the surface.
Punkt Beschrifter::outwards(const Kante& edge, double share) const
{
    constexpr double Step = 0.02;
    const Punkt way = unitOf(plus(placeOn(edge, share + Step), placeOn(edge, share - Step), -1));
    const Punkt normal{-way.y, way.x};
    const Punkt downwards{0, 1e-3}; // decides where the triangle is seen from its side
    const Punkt away = plus(plus(placeOn(edge, share), at(Mitte, 0), -1), downwards);
    const bool isOutward = edge.steht ? normal.y < 0 : dot(normal, away) > 0;
    return isOutward ? normal : Punkt{-normal.x, -normal.y};
}

bool Beschrifter::place(const std::string& text, const Rechteck& box, Textrolle rolle, std::size_t component)
{
    if (m_flaeche.istBedeckt(box) || !m_places.belege(box))
        return false;
    m_result.texte.push_back({text, box, rolle, component});
    return true;
}

/// The symbols stand outside the corners, those behind the surface above it.
void Beschrifter::labelCorners()
{
    constexpr double Distance = 8;
    const Punkt centre = at(Mitte, 0);
    for (std::size_t k = 0; k < 3; ++k) {
        const Anteile3 corner = along(k, k, 1);
        const Punkt base = at(corner, 0);
        const Punkt outward = unitOf(plus(base, centre, -1));
        const bool isBehind = !m_flach && outward.y < 0 && k != m_axisCorner;
        const Punkt from = isBehind ? at(corner, surfaceHeight(corner)) : base;
        const Punkt first = !m_flach && k == m_axisCorner ? Punkt{0, 1} : isBehind ? Punkt{0, -1} : outward;
        const std::string& symbol = m_inhalt.gitter.symbole.at(k);
        const double width = m_masse.ecke.width(symbol);
        const double height = Digits * m_masse.ecke.height;
        for (const Punkt& direction : {first, Punkt{0, 1}, Punkt{0, -1}, Punkt{1, 0}, Punkt{-1, 0}}) {
            const Punkt middle = plus(from, direction, Distance + reach(width, height, direction));
            if (place(symbol, boxAround(middle, width, height), Textrolle::Ecke, k))
                break;
        }
    }
}

void Beschrifter::labelAxis()
{
    const Anteile3 corner = along(m_axisCorner, m_axisCorner, 1);
    const Punkt bottom = at(corner, 0);
    const Punkt top = at(corner, SurfaceHeight);
    m_result.achse = Strich{bottom, top};
    const double line = Digits * m_masse.text.height;
    const double length = bottom.y - top.y;
    const Textbreite& width = m_masse.text.width;
    constexpr double Shortest = 3; // lines
    if (length < Shortest * line || !m_inhalt.range.known)
        return;
    const std::string unit = m_parts.skala.einheit(m_inhalt.gitter.einheit);
    const double unitWidth = width(unit);
    const double left = std::max(m_parts.bild.left + TickGap, top.x - unitWidth / 2);
    if (!unit.empty())
        place(
            unit, {left, top.y - line / 2 - m_masse.text.height, unitWidth, m_masse.text.height}, Textrolle::Achse, 0);
    const auto isLabelled = beschriftete(m_inhalt.ticks, length, line, m_inhalt.range);
    for (std::size_t i = 0; i < m_inhalt.ticks.size(); ++i) {
        const Punkt tick = at(corner, heightShare(m_inhalt.ticks[i], m_inhalt.range) * SurfaceHeight);
        const Punkt end{tick.x - EdgeTick, tick.y};
        m_result.striche.push_back({tick, end});
        const std::string& text = m_parts.skala.texte[i];
        const double textWidth = width(text);
        if (isLabelled[i])
            place(text, {end.x - TickGap - textWidth, tick.y - line / 2, textWidth, line}, Textrolle::Achse, 0);
    }
}

/// The at% of the component towards which the edge runs; whether any has found its place.
bool Beschrifter::labelEdge(const Kante& edge)
{
    constexpr double Shortest = 6; // lines; below that labels would overlap
    constexpr double Longest = 26; // beyond that every tenth at% has one
    const double line = Digits * m_masse.text.height;
    const double length = lengthOf(plus(placeOn(edge, 1), placeOn(edge, 0), -1));
    if (length < Shortest * line)
        return false;
    bool hasLabels = nameEdge(edge, reach(m_masse.text.width("00"), line, outwards(edge, 0.5)));
    const std::size_t third = 3 - edge.from - edge.to;
    const int step = length > Longest * line ? 10 : 20;
    for (int percent = step; percent < 100; percent += step) {
        const double share = percent / 100.0;
        const Punkt from = placeOn(edge, share);
        // In the flat diagram ticks go on with the grid's lines of this component.
        const Punkt direction =
            m_flach ? unitOf(plus(from, at(along(third, edge.to, share), 0), -1)) : outwards(edge, share);
        const std::string text = fixedText(percent, 0);
        const double width = m_masse.text.width(text);
        const Punkt middle = plus(from, direction, EdgeTick + TickGap + reach(width, line, direction));
        if (!place(text, boxAround(middle, width, line), Textrolle::Kante, edge.to))
            continue;
        m_result.striche.push_back({from, plus(from, direction, EdgeTick)});
        hasLabels = true;
    }
    return hasLabels;
}

/// "at% Cu →", outside the numbers.
bool Beschrifter::nameEdge(const Kante& edge, double numberReach)
{
    const double line = m_masse.text.height;
    constexpr std::array Places{0.5, 0.4, 0.6, 0.3, 0.7};
    return std::ranges::any_of(Places, [&](double share) {
        const Punkt way = plus(placeOn(edge, share + 0.1), placeOn(edge, share - 0.1), -1);
        const std::string text = "at% " + m_inhalt.gitter.symbole.at(edge.to) + " " + std::string(arrowOf(way));
        const double width = m_masse.text.width(text);
        const Punkt normal = outwards(edge, share);
        const double distance = EdgeTick + 2 * TickGap + 2 * numberReach + reach(width, line, normal);
        const Punkt middle = plus(placeOn(edge, share), normal, distance);
        return place(text, boxAround(middle, width, line), Textrolle::Kante, edge.to);
    });
}

void Beschrifter::labelLines()
{
    constexpr double AtTheEnds = 0.02; // where lines leave the surface
    constexpr double Point = 14; // pixels that the alloy takes
    const auto height = [this](const Anteile3& anteile) { return surfaceHeight(anteile); };
    if (m_beiwerk.legierung)
        m_places.sperre(boxAround(at(*m_beiwerk.legierung, height(*m_beiwerk.legierung)), Point, Point));
    if (m_beiwerk.ziel && !m_beiwerk.ziellinien.empty())
        labelLine(m_beiwerk.ziellinien, heightShare(*m_beiwerk.ziel, m_inhalt.range),
            m_parts.skala.text(*m_beiwerk.ziel, m_stil.dezimal), Textrolle::Ziel);
    if (m_inhalt.ticks.size() < 2)
        return;
    for (std::size_t i = 0; i < m_inhalt.ticks.size(); ++i) {
        const double share = heightShare(m_inhalt.ticks[i], m_inhalt.range);
        const bool isTarget = m_beiwerk.ziel && static_cast<float>(m_inhalt.ticks[i]) == *m_beiwerk.ziel;
        if (share > AtTheEnds && share < 1 - AtTheEnds && !isTarget)
            labelLine(m_inhalt.hoehenlinien[i], share, m_parts.skala.texte[i], Textrolle::Linie);
    }
}

/// On the longest of the lines, where it is seen with surface on both sides.
void Beschrifter::labelLine(
    const std::vector<Ternaerlinie>& lines, double share, const std::string& text, Textrolle rolle)
{
    constexpr double Frame = 3; // pixels around the text
    const auto longest = std::ranges::max_element(lines, {}, &Ternaerlinie::size);
    if (longest == lines.end())
        return;
    const Textmasse& masse = rolle == Textrolle::Ziel ? m_masse.titel : m_masse.text;
    const double width = masse.width(text) + 2 * Frame;
    const double height = Digits * masse.height + 2;
    const double z = m_flach ? 0 : share * SurfaceHeight;
    for (const double part : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
        const auto index = static_cast<std::size_t>(part * static_cast<double>(longest->size() - 1));
        const Bildpunkt p = m_flaeche.sicht().projektion.project(placeOf((*longest)[index], z));
        const Rechteck box = boxAround({p.x, p.y}, width, height);
        const bool liesOnSurface = m_flaeche.istBedeckt({box.left, box.mitte().y, 0, 0})
            && m_flaeche.istBedeckt({box.right(), box.mitte().y, 0, 0});
        if (liesOnSurface && m_flaeche.istSichtbar(p) && m_places.belege(box)) {
            m_result.texte.push_back({text, box, rolle});
            return;
        }
    }
}

} // namespace

Ternaerbeschriftung ternaerbeschriftung(const Ternaerflaeche& flaeche, const Ternaeraufteilung& aufteilung,
    const Ternaerbeiwerk& beiwerk, const Bildstil& stil, const Ternaermasse& masse)
{
    return Beschrifter(flaeche, aufteilung, beiwerk, stil, masse).labels();
}

Anteile3 along(std::size_t from, std::size_t to, double share)
{
    Anteile3 anteile{};
    anteile.at(from) = 1 - share;
    anteile.at(to) = share;
    return anteile;
}

} // namespace zerna
