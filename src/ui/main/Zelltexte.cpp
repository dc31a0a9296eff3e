#include "ui/main/Zelltexte.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

namespace zerna {

Schriftgroessen schriftgroessen(double width, double height)
{
    constexpr double SmallestThirdLine = 8;
    const double unit = std::min(width, height);
    const double small = std::clamp(unit * 0.2, 6.0, 14.0);
    return {unit * 0.38, small, small >= SmallestThirdLine};
}

bool passt(double textWidth, double cellWidth)
{
    constexpr double Margin = 4; // both together
    return textWidth <= cellWidth - Margin;
}

bool namenPassen(const ElementCollection& elements, double cellWidth, const Textbreite& breite)
{
    return std::ranges::all_of(
        elements, [&](const auto& element) { return passt(breite(element->Name()), cellWidth); });
}

std::string dritteZeile(const clsElement& element, bool name)
{
    constexpr int MassDigits = 5;
    if (name)
        return element.Name();
    return istUnbekannt(element.Masse()) ? std::string() : textWithDigits(element.Masse(), MassDigits);
}

std::string zellwert(float wert, double cellWidth, const Textbreite& breite)
{
    constexpr int Most = 5;
    constexpr int Least = 2;
    if (istUnbekannt(wert))
        return "?";
    for (int digits = Most; digits >= Least; --digits) {
        if (std::string text = textWithDigits(wert, digits); passt(breite(text), cellWidth))
            return text;
    }
    return {};
}

} // namespace zerna
