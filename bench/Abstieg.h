#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "parser/Formelfunktionen.h"

namespace zerna {

/// A plain recursive descent through a formula that is known to be right: what reading one costs without reasons,
/// places, German numbers and limits.
class Abstieg {
public:
    /// A name in formulas, such as "z_Cu", and its value.
    using Groesse = std::pair<std::string_view, double>;

    Abstieg(std::string_view formula, Groesse known)
        : m_next(formula.data())
        , m_end(formula.data() + formula.size())
        , m_known(std::move(known))
    {
    }

    double sum()
    {
        double value = product();
        while (m_next < m_end && (*m_next == '+' || *m_next == '-'))
            value = *m_next++ == '+' ? value + product() : value - product();
        return value;
    }

private:
    double product()
    {
        double value = power();
        while (m_next < m_end && (*m_next == '*' || *m_next == '/'))
            value = *m_next++ == '*' ? value * power() : value / power();
        return value;
    }

    double power()
    {
        double value = operand();
        for (; m_next < m_end && *m_next == '^'; value = std::pow(value, operand()))
            ++m_next;
        return value;
    }

    double operand()
    {
        if (*m_next == '(')
            return inParentheses();
        double value = 0;
        if (const auto read = std::from_chars(m_next, m_end, value); read.ec == std::errc()) {
            m_next = read.ptr;
            return value;
        }
        const char* const begin = m_next;
        while (m_next < m_end && (*m_next == '_' || (*m_next >= '0' && *m_next <= 'z')))
            ++m_next;
        return named({begin, static_cast<std::size_t>(m_next - begin)});
    }

    double inParentheses()
    {
        ++m_next;
        const double value = sum();
        ++m_next;
        return value;
    }

    double named(std::string_view name)
    {
        if (name == "e")
            return KonstanteE;
        if (name == "pi")
            return KonstantePi;
        if (name == m_known.first)
            return m_known.second;
        if (name == "sqrt")
            return std::sqrt(inParentheses());
        if (name != "pow")
            return 0;
        ++m_next;
        const double base = sum();
        ++m_next;
        const double exponent = sum();
        ++m_next;
        return std::pow(base, exponent);
    }

    const char* m_next;
    const char* m_end;
    Groesse m_known;
};

/// The formula's value as text.
inline std::string valueByDescent(std::string_view formula, const Abstieg::Groesse& known)
{
    std::array<char, 32> buffer;
    const double value = Abstieg(formula, known).sum();
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

} // namespace zerna
