#include "bild/Rundteilung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace zerna {

namespace {

constexpr double RoundingError = 1e-9; // in steps

int exponentOf(double value) { return static_cast<int>(std::floor(std::log10(std::abs(value)) + RoundingError)); }

/// The multiples of a step in a range; none where doubles are too coarse to tell them apart.
std::vector<double> multiples(const Bereich& bereich, double step)
{
    constexpr double Distinct = 0x1p52; // steps from 0
    std::vector<double> values;
    const double first = std::ceil(bereich.min / step - RoundingError);
    const double last = std::floor(bereich.max / step + RoundingError);
    if (!(std::max(std::abs(first), std::abs(last)) < Distinct))
        return values;
    for (auto k = static_cast<std::int64_t>(first); k <= static_cast<std::int64_t>(last); ++k)
        values.push_back(static_cast<double>(k) * step);
    return values;
}

/// A step with the number of its parts.
struct Schritt {
    double mantisse;
    int teile;
};

constexpr std::array<Schritt, 4> Schritte{{{1, 5}, {2, 4}, {2.5, 5}, {5, 5}}};
constexpr std::size_t FewestLabels = 5;

} // namespace

Rundteilung rundteilung(const Bereich& bereich, int most)
{
    constexpr int MostLabels = 10;
    constexpr int Powers = 3; // of ten, until a few labels are left
    Rundteilung teilung;
    const double span = bereich.max - bereich.min;
    if (!(span > 0) || !std::isfinite(span))
        return teilung;
    const std::size_t limit = static_cast<std::size_t>(std::clamp(most, 2, MostLabels));
    const int first = exponentOf(span) - 1;
    for (int power = first; power < first + Powers; ++power) {
        for (const auto& [mantisse, teile] : Schritte) {
            const double step = mantisse * std::pow(10.0, power);
            const bool isSpare = mantisse == 2.5 && multiples(bereich, 2 * step).size() >= FewestLabels;
            if (span / step > MostLabels + 1 || isSpare)
                continue;
            if (std::vector<double> values = multiples(bereich, step); values.size() <= limit) {
                const double largest = std::max(std::abs(bereich.min), std::abs(bereich.max));
                const int exponent = exponentOf(largest);
                constexpr int PlainFrom = -2;
                constexpr int PlainTo = 3;
                return {step, std::move(values), multiples(bereich, step / teile),
                    exponent < PlainFrom || exponent > PlainTo ? exponent : 0};
            }
        }
    }
    return teilung;
}

std::string rundtext(double wert, const Rundteilung& teilung, bool zehnerImTitel, Dezimaltrenner trenner)
{
    constexpr int MostDecimals = 12;
    const double exponent = std::log10(teilung.schritt);
    const bool isQuarter = std::abs(exponent - std::floor(exponent) - std::log10(2.5)) < RoundingError;
    const int stepExponent = exponentOf(teilung.schritt) - (isQuarter ? 1 : 0);
    if (std::abs(wert) < RoundingError * teilung.schritt)
        return "0";
    if (teilung.zehner != 0 && !zehnerImTitel)
        return scientificText(wert, std::clamp(exponentOf(wert) - stepExponent, 0, MostDecimals), " ", false, trenner);
    const int decimals = std::clamp(teilung.zehner - stepExponent, 0, MostDecimals);
    return fixedText(wert / std::pow(10.0, teilung.zehner), decimals, trenner);
}

std::string zehnerpotenz(int exponent)
{
    constexpr std::array Raised{"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    std::string text = exponent < 0 ? "10⁻" : "10";
    for (const char digit : std::to_string(std::abs(exponent)))
        text += Raised.at(static_cast<std::size_t>(digit - '0'));
    return text;
}

std::string titelMitZehner(const std::string& titel, int exponent)
{
    if (exponent == 0)
        return titel;
    if (const std::size_t unit = titel.rfind('['); unit != std::string::npos)
        return titel.substr(0, unit + 1) + zehnerpotenz(exponent) + ' ' + titel.substr(unit + 1);
    return titel + (titel.empty() ? "" : " ") + "· " + zehnerpotenz(exponent);
}

} // namespace zerna
