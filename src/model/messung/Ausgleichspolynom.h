#pragma once

#include <array>
#include <span>

#include "model/messung/Messkurve.h"

namespace zerna {

/// A polynomial of the fourth degree, or of a lower one where there are less than five points, with the least sum of
/// squared deviations from them.
class Ausgleichspolynom {
public:
    /// At least two points with x ascending.
    explicit Ausgleichspolynom(std::span<const Messpunkt> punkte);

    double operator()(double x) const;

private:
    static constexpr std::size_t Most = 5;
    using Matrix = std::array<std::array<double, Most + 1>, Most>;

    void solve(Matrix& matrix);

    double m_middle;
    double m_scale; // half the length
    std::size_t m_count; // of coefficients
    std::array<double, Most> m_coefficients{}; // of powers of (x - m_middle) / m_scale
};

} // namespace zerna
