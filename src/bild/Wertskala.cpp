#include "bild/Wertskala.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

/// The logarithm of the size, rising with the value.
double logarithm(float wert)
{
    const double size = std::log(std::abs(static_cast<double>(wert)));
    return wert < 0 ? -size : size;
}

double between(double value, double first, double last)
{
    return last > first ? (value - first) / (last - first) : 0.5;
}

} // namespace

std::string_view skalenhinweis(Skalenart art)
{
    switch (art) {
    case Skalenart::Logarithmisch:
        return "logarithmisch";
    case Skalenart::Rang:
        return "nach Rang";
    case Skalenart::Linear:
        break;
    }
    return {};
}

Wertskala::Wertskala(std::span<const float> werte)
{
    std::ranges::copy_if(werte, std::back_inserter(m_sortiert), [](float wert) { return !istUnbekannt(wert); });
    std::ranges::sort(m_sortiert);
    const bool haveOneSign = kleinster() > 0 || groesster() < 0;
    for (const Skalenart art : {Skalenart::Linear, Skalenart::Logarithmisch, Skalenart::Rang}) {
        m_art = art;
        if ((art != Skalenart::Logarithmisch || haveOneSign) && isSpread())
            break;
    }
}

/// Whether the middle half of the values takes a fair share of the scale. A few different values, such as valences, can
/// be told apart on any scale.
bool Wertskala::isSpread() const
{
    constexpr std::size_t Few = 8; // different values
    constexpr double FairShare = 0.16;
    std::vector<float> different;
    std::ranges::unique_copy(m_sortiert, std::back_inserter(different));
    if (different.size() <= Few || m_art == Skalenart::Rang)
        return true;
    const std::size_t quarter = m_sortiert.size() / 4;
    return position(m_sortiert[3 * quarter]) - position(m_sortiert[quarter]) >= FairShare;
}

double Wertskala::position(float wert) const
{
    switch (m_art) {
    case Skalenart::Logarithmisch:
        return between(logarithm(wert), logarithm(kleinster()), logarithm(groesster()));
    case Skalenart::Rang:
        return between(rank(wert), rank(kleinster()), rank(groesster()));
    case Skalenart::Linear:
        break;
    }
    return between(wert, kleinster(), groesster());
}

/// The middle of the places that equal values take.
double Wertskala::rank(float wert) const
{
    const auto [first, last] = std::equal_range(m_sortiert.begin(), m_sortiert.end(), wert);
    return static_cast<double>((first - m_sortiert.begin()) + (last - m_sortiert.begin())) / 2;
}

float Wertskala::mitte() const
{
    if (m_sortiert.empty())
        return 0;
    return *std::ranges::min_element(m_sortiert, {}, [this](float wert) { return std::abs(position(wert) - 0.5); });
}

} // namespace zerna
