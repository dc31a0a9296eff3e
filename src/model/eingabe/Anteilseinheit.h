#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/clsElement.h"
#include "model/eingabe/Eingabefeld.h"

/// The parts of an alloy can be typed as at% or as mass %.
namespace zerna {

enum class Anteilseinheit { Atom, Masse };

constexpr Anteilseinheit andere(Anteilseinheit einheit)
{
    return einheit == Anteilseinheit::Atom ? Anteilseinheit::Masse : Anteilseinheit::Atom;
}

/// "at%" or "Masse %".
std::string_view einheitenname(Anteilseinheit einheit);

/// A component's part and the element it is of; both outlive the value.
struct Anteilsangabe {
    const Eingabefeld* anteil = nullptr;
    const clsElement* element = nullptr; ///< null until one is chosen
};

/// The parts, which are in the other unit, in this one, as fields with a text of at most seven significant digits.
/// Where that is not possible all are empty and say why; those that are to blame say what to do.
std::vector<Eingabefeld> umgerechnet(std::span<const Anteilsangabe> angaben, Anteilseinheit einheit);

} // namespace zerna
