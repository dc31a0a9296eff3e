#include "model/eingabe/Formeltext.h"

#include <string_view>

namespace zerna {

namespace {

/// A formula has no exponents; what is that small has a dozen decimals.
std::string menge(float prozent, Dezimaltrenner trenner)
{
    std::string text = textWithDigits(prozent, 7, trenner);
    if (text.find('E') == std::string::npos)
        return text;
    text = fixedText(prozent, 12, trenner);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with(static_cast<char>(trenner)))
        text.pop_back();
    return text;
}

std::string tiefgestellt(std::string_view digits)
{
    std::string text;
    for (const char c : digits) {
        const bool isDigit = c >= '0' && c <= '9';
        text += isDigit ? std::string("\xE2\x82") + static_cast<char>('\x80' + (c - '0')) : std::string(1, c);
    }
    return text;
}

std::string geschrieben(const std::string& menge, Formelschrift schrift)
{
    switch (schrift) {
    case Formelschrift::Einfach:
        return menge;
    case Formelschrift::Tiefgestellt:
        return tiefgestellt(menge);
    case Formelschrift::LaTeX:
        break;
    }
    const std::size_t comma = menge.find(',');
    const std::string inMathMode =
        comma == std::string::npos ? menge : menge.substr(0, comma) + "{,}" + menge.substr(comma + 1);
    return "$_{" + inMathMode + "}$";
}

bool standsAbove(const Eingabe& eingabe, int zeile)
{
    for (int i = 0; i < zeile; ++i) {
        if (eingabe.zeile(i).element == eingabe.zeile(zeile).element)
            return true;
    }
    return false;
}

} // namespace

std::string formeltext(const Eingabe& eingabe, Formelschrift schrift, Dezimaltrenner trenner)
{
    constexpr float Most = 1e6F; // far beyond what a balance leaves positive
    std::string text;
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const auto& element = eingabe.zeile(i).element;
        const Eingabefeld& prozent = eingabe.prozentInKraft(i);
        if (!element || prozent.fehler || prozent.wert < 0 || prozent.wert > Most || standsAbove(eingabe, i))
            return {};
        text += element->symbol() + geschrieben(menge(prozent.wert, trenner), schrift);
    }
    return text;
}

} // namespace zerna
