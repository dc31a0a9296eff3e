#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "core/Laufzeitfehler.h"
#include "core/MessageBoxes.h"

namespace zerna {

/// The text "Error N (description) in procedure P of M" of a trapped error; `module` is for example
/// "Klassenmodul clsElement" or "Benutzersteuerelement conWiegen".
inline std::string errorText(const Laufzeitfehler& error, std::string_view procedure, std::string_view module)
{
    return "Error " + std::to_string(error.Nummer()) + " (" + error.what() + ") in procedure " + std::string(procedure)
        + " of " + std::string(module);
}

/// Runs a public action: a run-time error is shown once and goes no further.
template <std::invocable Action>
void reporting(MessageBoxes& boxes, std::string_view procedure, std::string_view module, Action&& action)
{
    try {
        action();
    } catch (const Laufzeitfehler& error) {
        boxes.show(Icon::None, Programmtitel, errorText(error, procedure, module));
    }
}

} // namespace zerna
