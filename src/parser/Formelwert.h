#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"

namespace zerna {

/// What was wrong with a formula.
struct Formelfehler {
    int Nummer = 0; ///< of the run-time error
    std::string Grund; ///< in German, for the user
    std::size_t Stelle = 0; ///< character of the formula, from 1
};

/// Caption of the messages about formulas.
inline constexpr std::string_view Formelmeldungstitel = "Formelparser";

/// An element whose valence a formula took.
struct Valenzbezug {
    ElementCollection::Element element;
    float valenz = 0;

    /// Whether it would take the same again.
    bool gilt() const { return element->Valenz() == valenz; }
};

/// What a formula comes to.
struct Formelwert {
    std::string text = "0"; ///< 15 significant digits with decimal comma, or "0x" and hexadecimal digits
    double wert = 0;
    bool hexadezimal = false; ///< the function hex was used
    /// The first error. Text and value are 0 then, but an unknown function alone just counts as 0 in the formula.
    std::optional<Formelfehler> fehler;
    std::vector<std::string> meldungen; ///< about the first ten calls of unknown functions, for the user
};

/// The value of a formula such as "3/2", "sqrt(4)+pow(2;3)" or "z_Cu" (the valence of an element); an empty one is 0.
///
/// Operators + - * / ^ (all left-associative, so 2^3^2 is 64; no signs: -3 is an error, 0-3 is not), parentheses,
/// functions of arguments separated by ";", the constants pi and e, numbers with comma or point, exponents and "&H".
/// The elements whose valences it took are added to `bezuege`.
Formelwert formelwert(
    std::string_view formula, const ElementCollection& elements, std::vector<Valenzbezug>* bezuege = nullptr);

/// The formula with its blanks removed.
/// Intended: the first of two adjacent blanks hides the second, which stays, and the last character is not examined.
std::string removeBlanks(std::string_view formula);

} // namespace zerna
