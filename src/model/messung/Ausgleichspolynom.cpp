#include "model/messung/Ausgleichspolynom.h"

#include <algorithm>

namespace zerna {

Ausgleichspolynom::Ausgleichspolynom(std::span<const Messpunkt> punkte)
    : m_middle((punkte.front().x + punkte.back().x) / 2)
    , m_scale((punkte.back().x - punkte.front().x) / 2)
    , m_count(std::min(Most, punkte.size()))
{
    Matrix matrix{};
    for (const Messpunkt& punkt : punkte) {
        const double t = (punkt.x - m_middle) / m_scale;
        std::array<double, 2 * Most> powers{1};
        for (std::size_t i = 1; i < powers.size(); ++i)
            powers.at(i) = powers.at(i - 1) * t;
        for (std::size_t row = 0; row < m_count; ++row) {
            for (std::size_t column = 0; column < m_count; ++column)
                matrix.at(row).at(column) += powers.at(row + column);
            matrix.at(row).at(m_count) += powers.at(row) * punkt.y;
        }
    }
    solve(matrix);
}

double Ausgleichspolynom::operator()(double x) const
{
    const double t = (x - m_middle) / m_scale;
    double y = 0;
    for (std::size_t i = m_count; i-- > 0;)
        y = y * t + m_coefficients.at(i);
    return y;
}

/// By Gauss and Jordan; no row need be swapped, since the matrix is positive definite.
void Ausgleichspolynom::solve(Matrix& matrix)
{
    for (std::size_t pivot = 0; pivot < m_count; ++pivot) {
        for (std::size_t row = 0; row < m_count; ++row) {
            if (row == pivot)
                continue;
            const double factor = matrix.at(row).at(pivot) / matrix.at(pivot).at(pivot);
            for (std::size_t column = pivot; column <= m_count; ++column)
                matrix.at(row).at(column) -= factor * matrix.at(pivot).at(column);
        }
    }
    for (std::size_t i = 0; i < m_count; ++i)
        m_coefficients.at(i) = matrix.at(i).at(m_count) / matrix.at(i).at(i);
}

} // namespace zerna
