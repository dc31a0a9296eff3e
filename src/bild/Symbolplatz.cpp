#include "bild/Symbolplatz.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zerna {

namespace {

bool contains(const Rechteck& outer, const Rechteck& r)
{
    return r.left >= outer.left && r.top >= outer.top && r.left + r.width <= outer.left + outer.width
        && r.top + r.height <= outer.top + outer.height;
}

bool touch(const Rechteck& a, const Rechteck& b)
{
    constexpr double Air = 1;
    return a.left < b.left + b.width + Air && b.left < a.left + a.width + Air && a.top < b.top + b.height + Air
        && b.top < a.top + a.height + Air;
}

/// Whether a line runs through an area: part of it is left after cutting off what lies beside the area.
bool crosses(const Strecke& line, const Rechteck& area)
{
    double begin = 0;
    double end = 1;
    const auto cut = [&](double from, double to, double low, double high) {
        const double way = to - from;
        if (way == 0)
            return from >= low && from <= high;
        const auto [first, last] = std::minmax({(low - from) / way, (high - from) / way}); // by value
        begin = std::max(begin, first);
        end = std::min(end, last);
        return begin <= end;
    };
    return cut(line.from.x, line.to.x, area.left, area.left + area.width)
        && cut(line.from.y, line.to.y, area.top, area.top + area.height);
}

/// Where a text may stand around its point, the best place first.
std::array<Rechteck, 6> places(const Symbolwunsch& wunsch, double height)
{
    const Punkt& point = wunsch.punkt;
    const double width = wunsch.breite;
    const double distance = wunsch.abstand;
    const double above = point.y - distance - height;
    const double under = point.y + distance;
    const double near = wunsch.unten ? under : above;
    const double far = wunsch.unten ? above : under;
    const double middle = point.x - width / 2;
    const double right = point.x + distance;
    const double left = point.x - distance - width;
    return {{{middle, near, width, height}, {right, near, width, height}, {left, near, width, height},
        {right, point.y - height / 2, width, height}, {left, point.y - height / 2, width, height},
        {middle, far, width, height}}};
}

} // namespace

std::vector<std::optional<Rechteck>> platziereSymbole(
    std::span<const Symbolwunsch> wuensche, double hoehe, const Rechteck& feld, Hindernisse hindernisse)
{
    std::vector<Strecke>& lines = hindernisse.lines;
    std::vector<Rechteck>& texts = hindernisse.texts;
    std::ranges::sort(lines, {}, [](const Strecke& line) { return line.to.x; });
    const auto hasRoom = [&](const Rechteck& place) {
        return contains(feld, place)
            && std::ranges::none_of(texts, [&](const Rechteck& other) { return touch(place, other); });
    };
    const auto isFree = [&](const Rechteck& place) {
        const auto first = std::ranges::lower_bound(lines, place.left, {}, [](const Strecke& s) { return s.to.x; });
        return hasRoom(place) && std::none_of(first, lines.end(), [&](const Strecke& s) { return crosses(s, place); });
    };
    std::vector<std::optional<Rechteck>> result;
    for (const Symbolwunsch& wunsch : wuensche) {
        const auto candidates = places(wunsch, hoehe);
        const auto* place = std::ranges::find_if(candidates, isFree);
        if (place == candidates.end() && wunsch.wichtig)
            place = std::ranges::find_if(candidates, hasRoom);
        result.push_back(place == candidates.end() ? std::nullopt : std::optional(*place));
        if (result.back())
            texts.push_back(*place);
    }
    return result;
}

} // namespace zerna
