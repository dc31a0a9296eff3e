#include "bild/PSEGeometrie.h"

#include <algorithm>
#include <cmath>

#include "core/Unbekannt.h"
#include "model/Werttext.h"

namespace zerna {

namespace {

constexpr int Divisions = 10;

/// User coordinates: x in atomic numbers from -25 to the element count + 5, y in tenths of the range from 11 to -2.
class Massstab {
public:
    Massstab(std::size_t elements, int width, int height)
        : m_xScale(width / (static_cast<double>(elements) + 5 - Left))
        , m_yScale(height / (Top - Bottom))
    {
    }

    Punkt at(double x, double y) const { return {(x - Left) * m_xScale, (Top - y) * m_yScale}; }
    double xScale() const { return m_xScale; }

private:
    static constexpr double Left = -25;
    static constexpr double Top = 11;
    static constexpr double Bottom = -2;

    double m_xScale;
    double m_yScale;
};

/// The label of a division, empty for what is no number to show; `step` tells what is only a rounding error beside 0.
std::string divisionLabel(double value, double step)
{
    constexpr double RoundingError = 1e-9;
    const bool isZero = std::abs(value) < RoundingError * step;
    return werttext(isZero ? 0 : static_cast<float>(value));
}

/// The area is `height` pixels high; what does not fit into it is left out.
void layOutXAxis(PSEBild& bild, const Massstab& scale, int elements, int height, const Textmasse& masse)
{
    constexpr double TickBottom = -0.5;
    constexpr double LabelTop = -0.7;
    bild.lines.push_back({scale.at(0, 0), scale.at(elements, 0)});
    double lastEnd = 0;
    for (int i = 0; i <= elements; i += 10) {
        bild.lines.push_back({scale.at(i, 0), scale.at(i, TickBottom)});
        const std::string label = std::to_string(i);
        const double width = masse.width(label);
        const Punkt position{scale.at(i, 0).x - width / 2, scale.at(i, LabelTop).y};
        if (position.x >= lastEnd && position.y + masse.height <= height) {
            lastEnd = position.x + width + 2;
            bild.labels.push_back({position, label});
        }
    }
    Punkt caption = scale.at(elements - 5, -1.2);
    caption.y = std::max(caption.y, scale.at(0, LabelTop).y + masse.height); // below the numbers, however low the area
    if (caption.y + masse.height <= height)
        bild.labels.push_back({caption, "OZ"});
}

void layOutYAxis(PSEBild& bild, const Massstab& scale, const Bereich& range, const Textmasse& masse)
{
    constexpr double TickLeft = -3;
    constexpr double LabelLeft = -19;
    bild.labelRoom = (TickLeft - LabelLeft) * scale.xScale();
    bild.lines.push_back({scale.at(0, 0), scale.at(0, Divisions)});
    const double step = (range.max - range.min) / Divisions;
    double lastTop = scale.at(0, 0).y + masse.height;
    for (int k = 0; k <= Divisions; ++k) {
        const Punkt tick = scale.at(TickLeft, k);
        bild.lines.push_back({tick, scale.at(0, k)});
        const Punkt position{scale.at(LabelLeft, k).x, tick.y - masse.height / 2};
        const std::string label = divisionLabel(range.min + k * step, step);
        const bool hasRoom = position.y + masse.height <= lastTop && (k == 0 || step > 0);
        if (!hasRoom || label.empty())
            continue;
        lastTop = position.y;
        bild.labels.push_back({position, label});
        bild.widestLabel = std::max(bild.widestLabel, masse.width(label));
    }
}

void layOutCurve(PSEBild& bild, const Massstab& scale, const PSEReihe& reihe, const Bereich& range)
{
    bool gap = true;
    for (std::size_t i = 0; i < reihe.y.size(); ++i) {
        if (istUnbekannt(reihe.y[i])) {
            bild.points.emplace_back();
            gap = true;
            continue;
        }
        const Punkt point = scale.at(reihe.x[i], (reihe.y[i] - range.min) * Divisions / (range.max - range.min));
        bild.points.emplace_back(point);
        if (gap)
            bild.curve.emplace_back();
        bild.curve.back().push_back(point);
        gap = false;
    }
}

} // namespace

Bereich bereichMitErstemWert(const std::vector<float>& values)
{
    if (values.empty())
        return {};
    Bereich range{values.front(), values.front()};
    for (const float value : values) {
        if (!istUnbekannt(value)) {
            range.min = std::min<double>(range.min, value);
            range.max = std::max<double>(range.max, value);
        }
    }
    return range;
}

Bereich gerundeterBereich(const Bereich& range)
{
    const double width = range.max - range.min;
    if (!(width > 0))
        return range;
    const auto widened = [&](double step) {
        return Bereich{std::floor(range.min / step) * step, std::ceil(range.max / step) * step};
    };
    constexpr double SmallestShare = 0.4;
    const double step = std::pow(10.0, std::floor(std::log10(width)));
    const Bereich coarse = widened(step);
    return width < SmallestShare * (coarse.max - coarse.min) ? widened(step / 2) : coarse;
}

PSEBild layOutPSE(const PSEReihe& reihe, int width, int height, const Textmasse& masse)
{
    PSEBild bild;
    const auto elements = static_cast<int>(reihe.x.size());
    const Massstab scale(reihe.x.size(), width, height);
    const Bereich range = gerundeterBereich(bereichMitErstemWert(reihe.y));
    layOutXAxis(bild, scale, elements, height, masse);
    layOutYAxis(bild, scale, range, masse);
    bild.titel = {scale.at(-24, 1), reihe.titel};
    if (range.max > range.min)
        layOutCurve(bild, scale, reihe, range);
    return bild;
}

std::optional<std::size_t> nearestElement(const PSEBild& bild, double x)
{
    std::optional<std::size_t> nearest;
    double distance = 0;
    for (std::size_t i = 0; i < bild.points.size(); ++i) {
        if (!bild.points[i])
            continue;
        const double here = std::abs(bild.points[i]->x - x);
        if (!nearest || here < distance) {
            nearest = i;
            distance = here;
        }
    }
    return nearest;
}

} // namespace zerna
