#include "parser/Formelfunktionen.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/CheckedArithmetic.h"

namespace zerna {

namespace {

double arcsine(double x) { return std::atan(quotient(x, squareRoot(1 - x * x))); }

double hyperbolicTangent(double x)
{
    return quotient(exponential(x) - exponential(-x), exponential(-x) + exponential(x));
}

double hyperbolicCotangent(double x)
{
    return quotient(exponential(x) + exponential(-x), exponential(x) - exponential(-x));
}

constexpr std::array<Formelfunktion, Funktionenzahl> Funktionen{{
    {"ln", 1, [](double x, double) { return logarithm(x); }},
    {"sin", 1, [](double x, double) { return std::sin(x); }},
    {"cos", 1, [](double x, double) { return std::cos(x); }},
    {"atan", 1, [](double x, double) { return std::atan(x); }},
    {"abs", 1, [](double x, double) { return std::abs(x); }},
    {"sqrt", 1, [](double x, double) { return squareRoot(x); }},
    {"log", 2, [](double x, double y) { return quotient(logarithm(x), logarithm(y)); }},
    {"lg", 1, [](double x, double) { return logarithm(x) / std::log(10.0); }},
    {"ld", 1, [](double x, double) { return logarithm(x) / std::log(2.0); }},
    {"exp", 1, [](double x, double) { return exponential(x); }},
    {"tan", 1, [](double x, double) { return quotient(std::sin(x), std::cos(x)); }},
    {"root3", 1, [](double x, double) { return power(x, 1.0 / 3.0); }},
    {"root", 2, [](double x, double y) { return power(x, quotient(1, y)); }},
    {"pow", 2, [](double x, double y) { return power(x, y); }},
    {"deg", 1, [](double x, double) { return x * 180 / KonstantePi; }},
    {"rad", 1, [](double x, double) { return KonstantePi * x / 180; }},
    {"pow2", 1, [](double x, double) { return power(x, 2); }},
    {"arcsin", 1, [](double x, double) { return arcsine(x); }},
    // Intended: 0 for every argument; the second exponential has no minus sign.
    {"sinh", 1, [](double x, double) { return (exponential(x) - exponential(x)) / 2; }},
    // Intended: minus the arc sine; no pi/2 is added.
    {"arccos", 1, [](double x, double) { return arcsine(-x); }},
    {"cosh", 1, [](double x, double) { return (exponential(x) + exponential(-x)) / 2; }},
    {"tanh", 1, [](double x, double) { return hyperbolicTangent(x); }},
    {"cot", 1, [](double x, double) { return quotient(std::cos(x), std::sin(x)); }},
    {"coth", 1, [](double x, double) { return hyperbolicCotangent(x); }},
    {"arsinh", 1, [](double x, double) { return logarithm(x + squareRoot(power(x, 2) + 1)); }},
    {"arcosh", 1, [](double x, double) { return logarithm(x + squareRoot(power(x, 2) - 1)); }},
    {"artanh", 1, [](double x, double) { return 0.5 * logarithm(quotient(x + 1, 1 - x)); }},
    {"arcoth", 1, [](double x, double) { return 0.5 * logarithm(quotient(x + 1, x - 1)); }},
    {"hex", 1, nullptr},
}};

} // namespace

const Formelfunktion& formelfunktion(int index) { return Funktionen.at(static_cast<std::size_t>(index)); }

const Formelfunktion* findFunction(std::string_view name)
{
    const auto* const found = std::ranges::find(Funktionen, name, &Formelfunktion::name);
    return found == Funktionen.end() ? nullptr : found;
}

} // namespace zerna
