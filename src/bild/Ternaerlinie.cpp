#include "bild/Ternaerlinie.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <utility>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/reihen/Wertebereich.h"

namespace zerna {

namespace {

/// An edge of the grid whose ends lie on both sides of the value.
struct Kante {
    std::size_t below = 0;
    std::size_t above = 0;
    bool operator==(const Kante&) const = default;
};

struct Kantenhash {
    std::size_t operator()(const Kante& k) const { return k.below * 8191 + k.above; }
};

/// A line through a triangle, from one of its edges to another.
using Abschnitt = std::array<Kante, 2>;

/// Which sections end on an edge: one at the rim, else two.
using Nachbarn = std::unordered_map<Kante, std::vector<std::size_t>, Kantenhash>;

std::vector<Anteile3> compositionsOf(const Ternaergitter& gitter)
{
    std::vector<Anteile3> places(gitter.werte.size());
    const double n = gitter.n;
    for (int i = 0; i <= gitter.n; ++i) {
        for (int j = 0; i + j <= gitter.n; ++j)
            places[gitter.position(i, j)] = {i / n, j / n, (n - i - j) / n};
    }
    return places;
}

template <class IsAbove>
std::vector<Abschnitt> sections(std::span<const Gitterdreieck> triangles, IsAbove&& isAbove)
{
    std::vector<Abschnitt> result;
    for (const auto& [corner] : triangles) {
        Abschnitt section;
        std::size_t count = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            const std::size_t a = corner.at(k);
            const std::size_t b = corner.at((k + 1) % 3);
            if (isAbove(a) != isAbove(b))
                section.at(count++) = isAbove(a) ? Kante{b, a} : Kante{a, b};
        }
        if (count > 0)
            result.push_back(section);
    }
    return result;
}

/// Joins sections to lines, those that begin at the rim first.
std::vector<std::vector<Kante>> joined(const std::vector<Abschnitt>& sections)
{
    Nachbarn neighbours;
    for (std::size_t s = 0; s < sections.size(); ++s) {
        for (const Kante& edge : sections[s])
            neighbours[edge].push_back(s);
    }
    std::vector<bool> isUsed(sections.size());
    std::vector<std::vector<Kante>> lines;
    const auto follow = [&](std::size_t section, Kante from) {
        std::vector<Kante> line{from};
        for (std::optional next = section; next;) {
            isUsed[*next] = true;
            const Abschnitt& edges = sections[*next];
            from = edges[0] == from ? edges[1] : edges[0];
            line.push_back(from);
            const auto& there = neighbours[from];
            const auto free = std::ranges::find_if(there, [&](std::size_t s) { return !isUsed[s]; });
            next = free == there.end() ? std::nullopt : std::optional(*free);
        }
        lines.push_back(std::move(line));
    };
    for (const bool fromRim : {true, false}) {
        for (std::size_t s = 0; s < sections.size(); ++s) {
            for (const Kante& edge : sections[s]) {
                if (!isUsed[s] && (!fromRim || neighbours[edge].size() == 1))
                    follow(s, edge);
            }
        }
    }
    return lines;
}

Anteile3 between(const Anteile3& a, const Anteile3& b, double share)
{
    Anteile3 place{};
    for (std::size_t k = 0; k < place.size(); ++k)
        place.at(k) = a.at(k) + (b.at(k) - a.at(k)) * share;
    return place;
}

/// The share of the way from `below` to `above` at which the quantity reaches the value.
double bisected(const Anteile3& below, const Anteile3& above, float value, double share, const Ternaerwert& quantity)
{
    constexpr int Halvings = 30; // of at most 10 at%
    double low = 0;
    double high = 1;
    for (int i = 0; i < Halvings; ++i) {
        const double middle = (low + high) / 2;
        const float there = quantity(between(below, above, middle));
        if (istUnbekannt(there))
            return share;
        (there < value ? low : high) = middle;
    }
    return (low + high) / 2;
}

bool isSame(const Anteile3& a, const Anteile3& b)
{
    constexpr double Nothing = 1e-9;
    return std::ranges::equal(a, b, [](double x, double y) { return std::abs(x - y) < Nothing; });
}

} // namespace

std::vector<Ternaerlinie> hoehenlinien(
    const Ternaergitter& gitter, std::span<const Gitterdreieck> triangles, float value, const Ternaerwert& quantity)
{
    // The smallest value has points as well as the largest one.
    const Wertebereich range = wertebereich(gitter.werte);
    const bool isSmallest = value <= range.min;
    const auto isAbove = [&](std::size_t point) {
        return isSmallest ? gitter.werte[point] > value : gitter.werte[point] >= value;
    };
    const std::vector<Anteile3> places = compositionsOf(gitter);
    std::vector<Ternaerlinie> lines;
    for (const std::vector<Kante>& edges : joined(sections(triangles, isAbove))) {
        Ternaerlinie line;
        for (const auto& [below, above] : edges) {
            const double low = gitter.werte[below];
            double share = (value - low) / (gitter.werte[above] - low);
            if (quantity && share > 0 && share < 1)
                share = bisected(places[below], places[above], value, share, quantity);
            const Anteile3 place = between(places[below], places[above], share);
            if (line.empty() || !isSame(line.back(), place))
                line.push_back(place);
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string punktetext(const Ternaergitter& gitter, std::span<const Ternaerlinie> linien)
{
    if (linien.empty())
        return {};
    std::string text;
    for (std::size_t k = 0; k < 3; ++k)
        text += gitter.symbole.at(k) + (k < 2 ? " [at%]\t" : " [at%]\r\n");
    for (const Ternaerlinie& linie : linien) {
        for (const Anteile3& place : linie) {
            for (std::size_t k = 0; k < 3; ++k)
                text += fixedText(place.at(k) * 100, 4, Dezimaltrenner::Punkt) + (k < 2 ? "\t" : "\r\n");
        }
    }
    return text;
}

} // namespace zerna
