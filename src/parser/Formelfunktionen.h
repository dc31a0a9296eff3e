#pragma once

#include <string_view>

namespace zerna {

/// Intended: not Euler's number. exp() uses the true one.
inline constexpr double KonstanteE = 2.7718281828459;
inline constexpr double KonstantePi = 3.14159265358979;

/// One function of the formula language. `value` may raise run-time errors 5, 6 and 11.
struct Formelfunktion {
    std::string_view name; ///< lower case
    int arguments = 1;
    double (*value)(double x, double y) = nullptr; ///< null for hex, which changes the form of the result
};

inline constexpr int Funktionenzahl = 29;

/// Function `index`, 0 to Funktionenzahl - 1.
const Formelfunktion& formelfunktion(int index);

/// The function of that name (lower case); null if there is none.
const Formelfunktion* findFunction(std::string_view name);

} // namespace zerna
