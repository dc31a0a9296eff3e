#pragma once

#include <cmath>
#include <concepts>

#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"

/// Floating-point arithmetic that raises run-time errors instead of giving inf or NaN, so that formulas read like
/// formulas. All functions take and give doubles; toSingle rounds where a value is stored or returned.
namespace zerna {

/// The value itself; error 6 if it is no finite number.
inline double checked(double value)
{
    if (!std::isfinite(value))
        throw Laufzeitfehler(Fehler::Ueberlauf);
    return value;
}

/// The value rounded to single precision; error 6 if it is too large for a single or no number.
inline float toSingle(double value)
{
    const auto rounded = static_cast<float>(value);
    if (!std::isfinite(rounded))
        throw Laufzeitfehler(Fehler::Ueberlauf);
    return rounded;
}

/// a / b; error 11 for a division by zero, error 6 for 0 / 0 and overflow.
inline double quotient(double a, double b)
{
    if (b == 0)
        throw Laufzeitfehler(a == 0 ? Fehler::Ueberlauf : Fehler::DivisionDurchNull);
    return checked(a / b);
}

/// base to the power exponent; error 5 for a negative base with a fractional exponent and for 0 to a negative
/// power, error 6 for overflow.
inline double power(double base, double exponent)
{
    const bool outside = (base < 0 && exponent != std::trunc(exponent)) || (base == 0 && exponent < 0);
    if (outside)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return checked(std::pow(base, exponent));
}

/// The natural logarithm; error 5 unless the value is positive.
inline double logarithm(double value)
{
    if (!(value > 0))
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return checked(std::log(value));
}

/// The square root; error 5 for a negative value.
inline double squareRoot(double value)
{
    if (value < 0)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return checked(std::sqrt(value));
}

/// e to the power value (the true exponential); error 6 for overflow.
inline double exponential(double value) { return checked(std::exp(value)); }

/// The formula's value, or `fallback` if it meets a run-time error.
template <std::invocable Formula>
float valueOr(float fallback, Formula&& formula)
{
    try {
        return formula();
    } catch (const Laufzeitfehler&) {
        return fallback;
    }
}

/// The formula's value, or the unknown-value marker if it meets a run-time error.
template <std::invocable Formula>
float orUnbekannt(Formula&& formula)
{
    return valueOr(Unbekannt, formula);
}

} // namespace zerna
