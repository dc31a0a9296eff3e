#include "model/rechnung/PSEAuskunft.h"

#include <algorithm>
#include <concepts>

#include "core/Elementspalten.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

constexpr auto Zeilenzahl = std::ranges::count_if(Elementspalten, [](const Elementspalte& s) { return s.zeile > 0; });

/// The number's plain text, a blank and the unit; "?" for an unknown one. Without a unit the text ends in the blank.
std::string valueText(float value, std::string_view unit)
{
    return istUnbekannt(value) ? "?" : textOfSingle(value) + " " + std::string(unit);
}

std::string valueText(std::integral auto value, std::string_view) { return std::to_string(value); }
std::string valueText(const std::string& text, std::string_view) { return text; }
std::string valueText(const Elektronenzahlen&, std::string_view) { return {}; } // the text of the configuration tells

} // namespace

std::vector<std::string> elementauskunft(const clsElement& element)
{
    std::vector<std::string> lines(Zeilenzahl);
    forEachSpalte([&](const Elementspalte& spalte, auto field) {
        if (spalte.zeile > 0)
            lines.at(static_cast<std::size_t>(spalte.zeile) - 1) =
                std::string(spalte.titel) + ": " + valueText(element.record().*field, spalte.einheit);
    });
    return lines;
}

} // namespace zerna
