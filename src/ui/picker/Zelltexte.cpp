#include "ui/picker/Zelltexte.h"

#include <algorithm>
#include <cmath>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Werttext.h"

namespace zerna {

namespace {

constexpr int MostDigits = 5;

} // namespace

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
    if (name)
        return element.Name();
    return istUnbekannt(element.Masse()) ? std::string() : textWithDigits(element.Masse(), MostDigits);
}

std::string tafelzahl(float wert)
{
    constexpr float Smallest = 1e-3F;
    constexpr float Largest = 1e6F;
    const float size = std::abs(wert);
    const bool isPlain = size >= Smallest && size < Largest;
    return isPlain ? textWithDigits(wert, MostDigits) : werttext(wert);
}

std::string zellwert(float wert, double cellWidth, const Textbreite& breite)
{
    constexpr int Least = 2;
    if (istUnbekannt(wert))
        return "?";
    for (int digits = MostDigits; digits >= Least; --digits) {
        if (std::string text = textWithDigits(wert, digits); passt(breite(text), cellWidth))
            return text;
    }
    return {};
}

} // namespace zerna
