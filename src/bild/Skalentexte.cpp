#include "bild/Skalentexte.h"

#include <algorithm>
#include <cmath>

#include "core/Anzeigetext.h"

namespace zerna {

namespace {

/// The power of ten that values of that size share; 0 for sizes that are read easily without.
int exponentOf(double largest)
{
    constexpr int Smallest = -2;
    constexpr int Largest = 4;
    if (!(largest > 0))
        return 0;
    constexpr double RoundingError = 1e-9;
    const int exponent = static_cast<int>(std::floor(std::log10(largest) + RoundingError));
    return exponent >= Smallest && exponent <= Largest ? 0 : exponent;
}

/// The fewest decimals that show a step in full.
int decimalsOf(double step)
{
    constexpr int Most = 9;
    constexpr double RoundingError = 1e-4;
    for (int decimals = 0; decimals < Most; ++decimals) {
        const double scaled = step * std::pow(10, decimals);
        if (scaled >= 1 - RoundingError && std::abs(scaled - std::round(scaled)) < RoundingError)
            return decimals;
    }
    return Most;
}

} // namespace

std::string Skalentexte::einheit(const std::string& unit) const
{
    return faktor + (faktor.empty() || unit.empty() ? "" : " ") + unit;
}

std::string Skalentexte::text(double wert, Dezimaltrenner trenner) const
{
    constexpr int Digits = 5;
    return anzeigetext(textWithDigits(wert / std::pow(10, zehner), Digits, trenner));
}

Skalentexte skalentexte(std::span<const double> werte, Dezimaltrenner trenner)
{
    Skalentexte result;
    if (werte.empty())
        return result;
    result.zehner = exponentOf(std::max(std::abs(werte.front()), std::abs(werte.back())));
    if (result.zehner != 0) {
        const std::string exponent = (result.zehner < 0 ? "" : "+") + std::to_string(result.zehner);
        result.faktor = anzeigetext("1 E" + exponent).substr(std::string("1·").size()); // of "1·10⁻¹¹"
    }
    const double unit = std::pow(10, result.zehner);
    const int decimals = werte.size() < 2 ? 0 : decimalsOf((werte[1] - werte[0]) / unit);
    for (const double wert : werte)
        result.texte.push_back(
            werte.size() < 2 ? result.text(wert, trenner) : anzeigetext(fixedText(wert / unit, decimals, trenner)));
    return result;
}

} // namespace zerna
