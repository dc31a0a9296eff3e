#include "bild/Achsen.h"

#include <algorithm>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr int Divisions = 10;
constexpr double RoundingError = 1e-6; // in divisions, of a single-precision range
constexpr double LeftStrip = 60;
constexpr double BottomStrip = 30;

} // namespace

Rechteck plotArea(int width, int height)
{
    return {LeftStrip, 0, std::max(0.0, width - LeftStrip), std::max(0.0, height - BottomStrip)};
}

std::pair<float, float> endValues(std::span<const float> reihe)
{
    const auto known = [](float value) { return !istUnbekannt(value); };
    const auto first = std::ranges::find_if(reihe, known);
    if (first == reihe.end())
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    const auto last = std::find_if(reihe.rbegin(), reihe.rend(), known);
    return std::minmax(*first, *last);
}

Bereich yBereich(float smallest, float largest)
{
    const float margin = toSingle(largest * 0.05);
    const Bereich range = largest <= 0
        ? Bereich{toSingle(static_cast<double>(smallest) + margin), toSingle(static_cast<double>(largest) - margin)}
        : Bereich{toSingle(static_cast<double>(smallest) - margin), toSingle(static_cast<double>(largest) + margin)};
    if (range.max == range.min)
        throw Laufzeitfehler(Fehler::DivisionDurchNull);
    return range;
}

std::string yLabel(double value)
{
    constexpr double PlainLimit = 7;
    if (value == 0 || std::abs(std::log(std::abs(value))) <= PlainLimit)
        return fixedText(value, 3);
    return scientificText(value, 2, " ", false);
}

std::vector<Achsenmarke> yMarken(const Rechteck& plot, int controlHeight, const Bereich& y, double labelHeight)
{
    constexpr int FullHeight = 300;
    const int stride = controlHeight >= FullHeight ? 1 : 2;
    const double step = (y.max - y.min) / Divisions;
    std::vector<Achsenmarke> marken;
    double lastTop = plot.height + labelHeight; // of the label below
    for (int k = 0; k < Divisions; k += stride) {
        Achsenmarke marke;
        marke.position = plot.height - k * plot.height / Divisions;
        marke.labelStart = marke.position - labelHeight / 2;
        if (marke.labelStart + labelHeight <= lastTop && marke.labelStart >= 0) {
            const double value = step * k + y.min;
            const bool isZero = std::abs(value) < RoundingError * step;
            marke.label = yLabel(isZero ? 0 : value);
            lastTop = marke.labelStart;
        }
        marken.push_back(std::move(marke));
    }
    return marken;
}

std::vector<Achsenmarke> xMarken(const Rechteck& plot, int controlWidth, const Bereich& x, const Textbreite& width)
{
    const double step = (x.max - x.min) / Divisions;
    std::vector<Achsenmarke> marken;
    for (int k = 0; k <= Divisions; ++k) {
        Achsenmarke marke;
        marke.position = plot.width / Divisions * k + plot.left;
        marke.label = fixedText(step * k + x.min, 0);
        const double labelWidth = width(marke.label);
        marke.labelStart = std::min(marke.position - labelWidth / 2, controlWidth - labelWidth);
        marken.push_back(std::move(marke));
    }
    const double lastStart = marken.back().labelStart - LabelGap;
    double lastEnd = 0; // of the label before
    for (std::size_t k = 0; k < marken.size(); ++k) {
        Achsenmarke& marke = marken[k];
        const double end = marke.labelStart + width(marke.label);
        if (marke.labelStart < lastEnd || (k > 0 && k + 1 < marken.size() && end > lastStart))
            marke.label.clear();
        else
            lastEnd = end + LabelGap;
    }
    return marken;
}

double xLabelTop(const Rechteck& plot, double labelHeight) { return plot.height + 1.5 * labelHeight / 2; }

double labelScale(
    const std::vector<Achsenmarke>& yMarken, const Rechteck& plot, const Textbreite& width, double labelHeight)
{
    double widest = 0;
    for (const Achsenmarke& marke : yMarken)
        widest = std::max(widest, width(marke.label));
    const double height = xLabelTop(plot, labelHeight) + labelHeight - plot.height;
    return std::min({1.0, labelRoom(plot) / std::max(widest, 1.0), BottomStrip / height});
}

Abbildung::Abbildung(double width, double height, const Bereich& x, const Bereich& y)
    : m_width(width)
    , m_height(height)
    , m_x(x)
    , m_y(y)
    , m_xScale(quotient(width, x.max - x.min))
    , m_yScale(quotient(height, y.max - y.min))
{
}

double Abbildung::column(double x) const { return std::nearbyint((x - m_x.min) * m_xScale); }

double Abbildung::row(double y) const { return std::nearbyint(m_height - (y - m_y.min) * m_yScale); }

double Abbildung::x(double column) const { return quotient(column, m_width) * (m_x.max - m_x.min) + m_x.min; }

double Abbildung::y(double row) const { return quotient(m_height - row, m_yScale) + m_y.min; }

} // namespace zerna
