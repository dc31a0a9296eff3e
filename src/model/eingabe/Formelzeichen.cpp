#include "model/eingabe/Formelzeichen.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zerna {

namespace {

using namespace std::string_view_literals;

constexpr std::size_t LongestAmount = 20; // digits and separator; no amount of an alloy needs more
constexpr std::size_t LongestUnit = 20; // letters

constexpr std::array Blanks{" "sv, "\t"sv, "\r"sv, "\n"sv, "\u00a0"sv, "\u2009"sv, "\u202f"sv};
constexpr std::array Dashes{"-"sv, "\u2013"sv, "\u2212"sv, "\u2010"sv, "\u2011"sv};
constexpr std::array Commas{","sv, ";"sv};

constexpr std::array<std::pair<std::string_view, Anteilseinheit>, 13> Einheiten{{
    {"at", Anteilseinheit::Atom},
    {"atom", Anteilseinheit::Atom},
    {"mol", Anteilseinheit::Atom},
    {"wt", Anteilseinheit::Masse},
    {"w", Anteilseinheit::Masse},
    {"weight", Anteilseinheit::Masse},
    {"gew", Anteilseinheit::Masse},
    {"gewichts", Anteilseinheit::Masse},
    {"m", Anteilseinheit::Masse},
    {"ma", Anteilseinheit::Masse},
    {"mass", Anteilseinheit::Masse},
    {"masse", Anteilseinheit::Masse},
    {"massen", Anteilseinheit::Masse},
}};

constexpr bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool isLower(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool take(std::string_view& rest, std::string_view word)
{
    if (!rest.starts_with(word))
        return false;
    rest.remove_prefix(word.size());
    return true;
}

void skipBlanks(std::string_view& rest)
{
    std::size_t length = 0;
    while (trennzeichen(rest, length) == Trennzeichen::Leerraum)
        rest.remove_prefix(length);
}

/// Takes a digit or a subscript digit; 0 if there is none.
char takeDigit(std::string_view& rest)
{
    if (!rest.empty() && isDigit(rest.front())) {
        const char digit = rest.front();
        rest.remove_prefix(1);
        return digit;
    }
    if (rest.size() < 3 || !rest.starts_with("\xE2\x82") || (static_cast<unsigned char>(rest[2]) & 0xF0U) != 0x80)
        return 0;
    const char digit = static_cast<char>('0' + (rest[2] - '\x80'));
    if (!isDigit(digit)) // subscript signs
        return 0;
    rest.remove_prefix(3);
    return digit;
}

/// Takes a decimal comma or point with the digit behind it; in LaTeX's braces the comma has braces of its own.
bool takeDecimal(std::string_view& rest, bool inBraces, std::string& number)
{
    std::string_view behind = rest;
    char separator = ',';
    if (take(behind, "."))
        separator = '.';
    else if (!(inBraces && take(behind, "{,}")) && !take(behind, ","))
        return false;
    const char digit = takeDigit(behind);
    if (digit == 0)
        return false;
    rest = behind;
    (number += separator) += digit;
    return true;
}

/// Takes the digits; false if there are none.
bool takeNumber(std::string_view& rest, bool inBraces, Mengenwort& wort)
{
    bool hasDecimals = rest.starts_with('.') && takeDecimal(rest, inBraces, wort.text);
    for (;;) {
        if (const char digit = takeDigit(rest); digit != 0)
            wort.text += digit;
        else if (hasDecimals || wort.text.empty() || !takeDecimal(rest, inBraces, wort.text))
            break;
        else
            hasDecimals = true;
        if (wort.text.size() > LongestAmount) {
            wort.zuLang = true;
            wort.text.resize(1);
        }
    }
    return !wort.text.empty();
}

} // namespace

Trennzeichen trennzeichen(std::string_view text, std::size_t& length)
{
    const auto begins = [&](std::string_view word) { return text.starts_with(word) && (length = word.size(), true); };
    if (text.empty() || isUpper(text.front()) || isLower(text.front()) || isDigit(text.front()))
        return Trennzeichen::Keins;
    if (std::ranges::any_of(Blanks, begins))
        return Trennzeichen::Leerraum;
    if (std::ranges::any_of(Dashes, begins))
        return Trennzeichen::Strich;
    return std::ranges::any_of(Commas, begins) ? Trennzeichen::Komma : Trennzeichen::Keins;
}

Mengenwort mengenwort(std::string_view text)
{
    std::string_view rest = text;
    const bool dollar = take(rest, "$_");
    const bool lowered = dollar || take(rest, "_");
    const bool braces = lowered && take(rest, "{");
    Mengenwort wort;
    if (!takeNumber(rest, braces, wort) || (braces && !take(rest, "}")) || (dollar && !take(rest, "$")))
        return {};
    if (wort.zuLang)
        wort.text.clear();
    wort.length = text.size() - rest.size();
    return wort;
}

Einheitswort einheitswort(std::string_view text)
{
    std::string_view rest = text;
    const std::string_view close = take(rest, "(") ? ")" : take(rest, "[") ? "]" : "";
    const std::string_view letters = buchstaben(rest);
    if (letters.empty() || letters.size() > LongestUnit)
        return {};
    rest.remove_prefix(letters.size());
    std::string word(letters);
    std::ranges::transform(
        word, word.begin(), [](char c) { return isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c; });
    if (word.ends_with("prozent")) {
        word.resize(word.size() - "prozent"sv.size());
    } else {
        take(rest, ".");
        skipBlanks(rest);
        take(rest, "-");
        skipBlanks(rest);
        if (!take(rest, "%"))
            return {};
    }
    if (!take(rest, close))
        return {};
    const auto* const found = std::ranges::find(Einheiten, word, [](const auto& entry) { return entry.first; });
    return {found == Einheiten.end() ? std::nullopt : std::optional(found->second), text.size() - rest.size()};
}

std::string_view buchstaben(std::string_view text)
{
    const auto* const end = std::ranges::find_if_not(text, [](char c) { return isUpper(c) || isLower(c); });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::string_view symbolwort(std::string_view text)
{
    if (text.empty() || !isUpper(text.front()))
        return {};
    const auto* const end = std::find_if_not(text.begin() + 1, text.end(), isLower);
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

} // namespace zerna
