#include "bild/Kurvenstreifen.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zerna {

Kurvenstreifen::Kurvenstreifen(const Rechteck& plot)
    : m_plot(plot)
{
    constexpr double Usual = 100; // pixels
    constexpr int Most = 8; // more cost more to keep apart than they leave out
    const int count = std::clamp(static_cast<int>(plot.width / Usual), 1, Most);
    for (int i = 0; i < count; ++i)
        m_streifen.push_back({{std::floor(plot.width * i / count), std::floor(plot.width * (i + 1) / count)}});
}

void Kurvenstreifen::add(const Punkt& from, const Punkt& to, double around)
{
    const auto [left, right] = from.x <= to.x ? std::pair(from, to) : std::pair(to, from);
    for (Streifen& streifen : m_streifen) {
        const double first = std::max(left.x, streifen.spalten.min - around);
        const double last = std::min(right.x, streifen.spalten.max + around);
        if (first > last)
            continue;
        const bool isUpright = left.x == right.x;
        const double slope = isUpright ? 0 : (right.y - left.y) / (right.x - left.x);
        const double y = isUpright ? left.y : left.y + (first - left.x) * slope;
        const double end = isUpright ? right.y : left.y + (last - left.x) * slope;
        const double top = std::min(y, end) - around;
        const double bottom = std::max(y, end) + around;
        const bool isFirst = streifen.bottom < streifen.top;
        streifen.top = isFirst ? top : std::min(streifen.top, top);
        streifen.bottom = isFirst ? bottom : std::max(streifen.bottom, bottom);
    }
}

std::vector<Rechteck> Kurvenstreifen::bereiche() const
{
    std::vector<Rechteck> result;
    for (const auto& [spalten, highest, lowest] : m_streifen) {
        const double top = std::max(std::floor(highest), 0.0);
        const double bottom = std::min(std::ceil(lowest), m_plot.height);
        if (top < bottom)
            result.push_back({m_plot.left + spalten.min, m_plot.top + top, spalten.max - spalten.min, bottom - top});
    }
    return result;
}

} // namespace zerna
