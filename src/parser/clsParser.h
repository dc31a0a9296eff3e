#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "core/MessageBoxes.h"

namespace zerna {

/// What was wrong with a formula.
struct Formelfehler {
    int Nummer = 0; ///< of the run-time error
    std::string Grund; ///< in German, for the user
    std::size_t Stelle = 0; ///< character of the formula, from 1
};

/// Evaluates short arithmetic formulas such as "3/2", "sqrt(4)+pow(2;3)" or "z_Cu" (the valence of an element).
///
/// Operators + - * / ^ (all left-associative, so 2^3^2 is 64; no signs: -3 is an error, 0-3 is not), parentheses,
/// functions of arguments separated by ";", the constants pi and e, numbers with comma or point, exponents and "&H".
class clsParser {
public:
    /// One operand with the operator in front of it; the first of an expression has none.
    struct Term {
        char op = 0;
        double value = 0;
        std::size_t position = 0; ///< of the operator
    };

    clsParser(const ElementCollection& elements, MessageBoxes& boxes);

    /// The value of the last Parse: "Standard" as plain text, "Scientific" as "0,00E+00"; empty for any other format.
    std::string FormatLastResult(std::string_view format) const;

    /// The formula's value as text, 15 significant digits with decimal comma; "0x" and hexadecimal digits when the
    /// function hex was used. An empty formula is 0. Any error makes it "0", see LastError. An unknown function is
    /// shown in a message box and counts as 0 in the formula.
    std::string Parse(std::string_view formula);

    /// The name of function `index`, 0 to FunctionCount - 1; empty for any other.
    std::string_view FunctionName(int index) const;
    int FunctionCount() const;

    /// The first error of the last Parse, an unknown function included.
    const std::optional<Formelfehler>& LastError() const { return m_lastError; }

private:
    const ElementCollection& m_elements;
    MessageBoxes& m_boxes;
    double m_lastResult = 0;
    bool m_hexadecimal = false;
    std::optional<Formelfehler> m_lastError;
    std::vector<Term> m_terms; // working memory of the evaluation, kept between calls
};

/// The formula with its blanks removed.
/// Intended: the first of two adjacent blanks hides the second, which stays, and the last character is not examined.
std::string removeBlanks(std::string_view formula);

} // namespace zerna
