#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace zerna {

/// How values spread over a colour scale.
enum class Skalenart { Linear, Logarithmisch, Rang };

/// "", "logarithmisch" or "nach Rang".
std::string_view skalenhinweis(Skalenart art);

/// Places values on a scale from 0 (smallest) to 1 (largest). Evenly as a rule; where a few outliers would push most
/// values together, by the logarithm of their size, or, if they differ in sign or that does not help, by their rank.
class Wertskala {
public:
    Wertskala() = default;

    /// Unknown values are left out.
    explicit Wertskala(std::span<const float> werte);

    Skalenart art() const { return m_art; }

    /// 0.5 if all values are the same.
    double position(float wert) const;

    /// The ends of the scale; 0 if no value is known.
    float kleinster() const { return m_sortiert.empty() ? 0 : m_sortiert.front(); }
    float groesster() const { return m_sortiert.empty() ? 0 : m_sortiert.back(); }

    /// A value in the middle of the scale.
    float mitte() const;

private:
    bool isSpread() const;
    double rank(float wert) const;

    std::vector<float> m_sortiert;
    Skalenart m_art = Skalenart::Linear;
};

} // namespace zerna
