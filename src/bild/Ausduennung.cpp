#include "bild/Ausduennung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

namespace zerna {

namespace {

constexpr double Outside = 16; // pixels beyond the plot where lines are cut: wider than a pen with its cap

/// The points between the plot's edges and their neighbours on both sides.
std::span<const Punkt> visiblePart(std::span<const Punkt> punkte, const Abbildung& abbildung, double width)
{
    const auto first = std::ranges::lower_bound(punkte, abbildung.x(-Outside), {}, &Punkt::x);
    const auto last = std::ranges::upper_bound(first, punkte.end(), abbildung.x(width + Outside), {}, &Punkt::x);
    return {first == punkte.begin() ? first : first - 1, last == punkte.end() ? last : last + 1};
}

/// The points of a column that make its picture, in their order.
void appendColumn(std::vector<Punkt>& line, std::span<const Punkt> column)
{
    constexpr std::size_t Few = 4;
    if (column.size() <= Few) {
        line.insert(line.end(), column.begin(), column.end());
        return;
    }
    const auto [lowest, highest] = std::ranges::minmax_element(column, {}, &Punkt::y);
    line.push_back(column.front());
    line.push_back(lowest < highest ? *lowest : *highest);
    line.push_back(lowest < highest ? *highest : *lowest);
    line.push_back(column.back());
}

/// The lines between gaps in pixels, thinned out.
Linienzuege thinned(std::span<const Punkt> punkte, const Abbildung& abbildung)
{
    Linienzuege lines(1);
    std::vector<Punkt> column;
    const auto finish = [&] {
        appendColumn(lines.back(), column);
        column.clear();
    };
    for (const auto& [x, y] : punkte) {
        const Punkt pixel = abbildung.punkt(x, y);
        const bool isGap = !std::isfinite(pixel.y);
        if (isGap || (!column.empty() && std::floor(pixel.x) != std::floor(column.front().x)))
            finish();
        if (!isGap)
            column.push_back(pixel);
        else if (!lines.back().empty())
            lines.emplace_back();
    }
    finish();
    return lines;
}

/// The part of a line in a rectangle; none if it lies outside.
std::optional<std::array<Punkt, 2>> cut(const Punkt& from, const Punkt& to, const Rechteck& area)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double begin = 0; // parts of the line
    double end = 1;
    const auto clip = [&](double way, double room) {
        if (way == 0)
            return room >= 0;
        (way < 0 ? begin : end) = way < 0 ? std::max(begin, room / way) : std::min(end, room / way);
        return begin <= end;
    };
    if (!clip(-dx, from.x - area.left) || !clip(dx, area.left + area.width - from.x) || !clip(-dy, from.y - area.top)
        || !clip(dy, area.top + area.height - from.y))
        return std::nullopt;
    const auto at = [&](double part) { return Punkt{from.x + part * dx, from.y + part * dy}; };
    return std::array{begin == 0 ? from : at(begin), end == 1 ? to : at(end)};
}

bool contains(const Rechteck& area, const Punkt& punkt)
{
    return punkt.x >= area.left && punkt.x <= area.left + area.width && punkt.y >= area.top
        && punkt.y <= area.top + area.height;
}

void appendCut(Linienzuege& result, const std::vector<Punkt>& line, const Rechteck& area)
{
    if (line.size() == 1 && contains(area, line.front()))
        result.push_back(line);
    bool goesOn = false;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const auto part = cut(line[i - 1], line[i], area);
        if (part && !goesOn)
            result.push_back({part->front()});
        if (part)
            result.back().push_back(part->back());
        goesOn = part && part->back() == line[i];
    }
}

} // namespace

Linienzuege sichtbareZuege(std::span<const Punkt> punkte, const Abbildung& abbildung, double width, double height)
{
    const Rechteck area{-Outside, -Outside, width + 2 * Outside, height + 2 * Outside};
    Linienzuege result;
    for (const std::vector<Punkt>& line : thinned(visiblePart(punkte, abbildung, width), abbildung))
        appendCut(result, line, area);
    return result;
}

std::vector<Punkt> begradigt(std::span<const Punkt> line, double tolerance)
{
    constexpr double Any = std::numeric_limits<double>::infinity();
    std::vector<Punkt> result;
    double flattest = -Any; // slopes from the last point kept that pass all points since
    double steepest = Any;
    const auto keep = [&](const Punkt& punkt) {
        result.push_back(punkt);
        flattest = -Any;
        steepest = Any;
    };
    const auto slopeTo = [&](const Punkt& punkt, double beside) {
        return (punkt.y + beside - result.back().y) / (punkt.x - result.back().x);
    };
    for (std::size_t i = 0; i < line.size(); ++i) {
        const Punkt& punkt = line[i];
        const auto isAhead = [&] { return !result.empty() && punkt.x > result.back().x; };
        const bool fits = isAhead() && slopeTo(punkt, 0) >= flattest && slopeTo(punkt, 0) <= steepest;
        if (i > 0 && !fits && result.back() != line[i - 1])
            keep(line[i - 1]);
        if (!isAhead()) {
            keep(punkt);
            continue;
        }
        flattest = std::max(flattest, slopeTo(punkt, -tolerance));
        steepest = std::min(steepest, slopeTo(punkt, tolerance));
    }
    if (!line.empty() && result.back() != line.back())
        result.push_back(line.back());
    return result;
}

std::vector<Punkt> sichtbarePunkte(
    std::span<const Punkt> punkte, const Abbildung& abbildung, double width, double height)
{
    const Rechteck area{-Outside, -Outside, width + 2 * Outside, height + 2 * Outside};
    std::vector<Punkt> result;
    for (const auto& [x, y] : visiblePart(punkte, abbildung, width)) {
        const Punkt pixel = abbildung.punkt(x, y);
        const bool isNew = result.empty() || std::hypot(pixel.x - result.back().x, pixel.y - result.back().y) >= 1;
        if (std::isfinite(pixel.y) && isNew && contains(area, pixel))
            result.push_back(pixel);
    }
    return result;
}

} // namespace zerna
