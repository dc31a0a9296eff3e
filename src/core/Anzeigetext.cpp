#include "core/Anzeigetext.h"

#include <array>

namespace zerna {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The text from i on, never past the end.
char at(std::string_view text, std::size_t i) { return i < text.size() ? text[i] : '\0'; }

bool beginsNumber(std::string_view text, std::size_t i)
{
    constexpr std::string_view Before = " \t(=:|";
    const bool isFree = i == 0 || Before.find(text[i - 1]) != std::string_view::npos;
    return isFree && isDigit(at(text, i + (text[i] == '-' ? 1 : 0)));
}

/// The "E-05" or " E+5" at the beginning of the text; empty if there is none.
std::string_view exponentOf(std::string_view text)
{
    std::size_t i = at(text, 0) == ' ' ? 1 : 0;
    if (at(text, i) != 'E' || (at(text, i + 1) != '+' && at(text, i + 1) != '-') || !isDigit(at(text, i + 2)))
        return {};
    for (i += 2; isDigit(at(text, i)); ++i) { }
    return text.substr(0, i);
}

/// "·10⁻⁵" for "E-05"; nothing for 10⁰.
std::string powerOfTen(std::string_view exponent)
{
    constexpr std::array Raised{"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
    const std::size_t first = exponent.find_first_of("123456789");
    if (first == std::string_view::npos)
        return {};
    std::string text = exponent.find('-') == std::string_view::npos ? "·10" : "·10⁻";
    for (const char digit : exponent.substr(first))
        text += Raised.at(static_cast<std::size_t>(digit - '0'));
    return text;
}

} // namespace

std::string anzeigetext(std::string_view text)
{
    std::string shown;
    for (std::size_t i = 0; i < text.size();) {
        if (!beginsNumber(text, i)) {
            shown += text[i++];
            continue;
        }
        if (text[i] == '-') {
            shown += "−";
            ++i;
        }
        while (isDigit(at(text, i)) || ((at(text, i) == ',' || at(text, i) == '.') && isDigit(at(text, i + 1))))
            shown += text[i++];
        const std::string_view exponent = exponentOf(text.substr(i));
        if (!exponent.empty())
            shown += powerOfTen(exponent);
        i += exponent.size();
    }
    return shown;
}

} // namespace zerna
