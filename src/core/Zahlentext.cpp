#include "core/Zahlentext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

/// Room for every number in scientific or fixed notation of up to 17 digits.
using Puffer = std::array<char, 400>;

/// Significant digits (no trailing zeros) and decimal exponent of the first of them.
struct Ziffern {
    bool negative = false;
    std::array<char, 20> digits{};
    std::size_t count = 0;
    int exponent = 0;

    std::string_view view() const { return {digits.data(), count}; }
};

/// Takes a "-d.ddde±xx" text apart.
Ziffern ziffern(std::string_view scientific)
{
    Ziffern result;
    result.negative = scientific.front() == '-';
    if (result.negative)
        scientific.remove_prefix(1);
    const std::size_t e = scientific.find('e');
    result.digits.front() = scientific.front();
    result.count = 1;
    if (e > 1) // behind the point
        result.count += scientific.substr(0, e).copy(result.digits.data() + 1, result.digits.size() - 1, 2);
    while (result.count > 1 && result.digits.at(result.count - 1) == '0')
        --result.count;
    const std::size_t exponent = e + (scientific[e + 1] == '+' ? 2 : 1);
    std::from_chars(scientific.data() + exponent, scientific.data() + scientific.size(), result.exponent);
    if (result.view() == "0")
        result.negative = false;
    return result;
}

template <class Number>
Ziffern shortestDigits(Number value)
{
    Puffer buffer; // written by to_chars
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    return ziffern({buffer.data(), end.ptr});
}

Ziffern roundedDigits(double value, int digits)
{
    Puffer buffer; // written by to_chars
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific, digits - 1);
    return ziffern({buffer.data(), end.ptr});
}

constexpr int Reliable = 15; // digits of a double that are not noise

/// The decimal value of a double: its reliable digits.
Ziffern decimalDigits(double value)
{
    const Ziffern shortest = shortestDigits(value);
    return std::cmp_less_equal(shortest.count, Reliable) ? shortest : roundedDigits(value, Reliable);
}

/// The digits rounded to the first `count` of them, ties away from zero; count may be 0 or less.
Ziffern rounded(Ziffern z, int count)
{
    if (count >= static_cast<int>(z.count))
        return z;
    const bool up = count >= 0 && z.digits.at(static_cast<std::size_t>(count)) >= '5';
    z.count = static_cast<std::size_t>(std::max(count, 0));
    while (z.count > 0 && z.digits.at(z.count - 1) == (up ? '9' : '0'))
        --z.count;
    if (z.count > 0) {
        z.digits.at(z.count - 1) = static_cast<char>(z.digits.at(z.count - 1) + (up ? 1 : 0));
        return z;
    }
    const bool isZero = !up; // else 1 in front of what was dropped
    z.digits.front() = isZero ? '0' : '1';
    z.exponent = isZero ? 0 : z.exponent + 1;
    z.negative = z.negative && !isZero;
    z.count = 1;
    return z;
}

/// The pattern "0.00" with that many decimals.
std::string layOutFixed(const Ziffern& exact, int decimals, Dezimaltrenner trenner)
{
    const Ziffern z = rounded(exact, exact.exponent + 1 + decimals);
    const auto digit = [&z](int power) { // of ten
        const int place = z.exponent - power;
        return place >= 0 && place < static_cast<int>(z.count) ? z.digits.at(static_cast<std::size_t>(place)) : '0';
    };
    std::string text = z.negative ? "-" : "";
    for (int power = std::max(z.exponent, 0); power >= 0; --power)
        text += digit(power);
    if (decimals > 0)
        text += static_cast<char>(trenner);
    for (int power = -1; power >= -decimals; --power)
        text += digit(power);
    return text;
}

/// Plain digits while -5 < exponent < 15, otherwise mantissa, "E", sign and exponent.
std::string layOut(const Ziffern& z, Dezimaltrenner trenner)
{
    const char separator = static_cast<char>(trenner);
    std::string text;
    if (z.negative)
        text += '-';
    const std::string_view digits = z.view();
    if (z.exponent <= -5 || z.exponent >= 15) {
        text += digits.front();
        if (digits.size() > 1) {
            text += separator;
            text += digits.substr(1);
        }
        text += z.exponent < 0 ? "E-" : "E+";
        text += std::to_string(std::abs(z.exponent));
        return text;
    }
    if (z.exponent < 0) {
        text += '0';
        text += separator;
        text.append(static_cast<std::size_t>(-z.exponent - 1), '0');
        text += digits;
        return text;
    }
    const auto whole = static_cast<std::size_t>(z.exponent) + 1;
    text += digits.substr(0, whole);
    if (digits.size() < whole)
        text.append(whole - digits.size(), '0');
    if (digits.size() > whole) {
        text += separator;
        text += digits.substr(whole);
    }
    return text;
}

/// The limit is below 2^63, so that a whole number of 64 bits tells, which is faster than rounding.
bool isWholeBelow(double value, double limit)
{
    return std::abs(value) < limit && value == static_cast<double>(static_cast<std::int64_t>(value));
}

/// The text of a whole number below 1e15: the usual valences, several times faster than by way of digits and exponent.
std::string wholeText(double value)
{
    std::array<char, 16> buffer; // written by to_chars
    const auto whole = static_cast<std::int64_t>(value);
    return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole).ptr};
}

constexpr double FirstPlain = 1e-4;
constexpr double FirstWithExponent = 1e15;

/// The shortest text of a number that is in plain digits, FirstPlain or more and below 1e15, and not whole, behind a
/// text.
template <class Number>
void appendShortestPlain(std::string& text, Number value, Dezimaltrenner trenner)
{
    std::array<char, 32> buffer; // written by to_chars
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
    *std::find(buffer.data(), end, '.') = static_cast<char>(trenner);
    text.append(buffer.data(), end);
}

} // namespace

std::string textOfSingle(float value, Dezimaltrenner trenner)
{
    std::string text;
    appendSingle(text, value, trenner);
    return text;
}

void appendSingle(std::string& text, float value, Dezimaltrenner trenner)
{
    constexpr float FirstGap = 16777216; // from here on the shortest text of a whole number may be another number's
    const float amount = std::abs(value);
    if (isWholeBelow(value, FirstGap))
        text += wholeText(value);
    else if (amount >= FirstPlain && amount < FirstGap)
        appendShortestPlain(text, value, trenner);
    else if (std::isfinite(value))
        text += layOut(shortestDigits(value), trenner);
}

void appendDouble(std::string& text, double value, Dezimaltrenner trenner)
{
    const double amount = std::abs(value);
    if (isWholeBelow(value, FirstWithExponent))
        text += wholeText(value);
    else if (amount >= FirstPlain && amount < FirstWithExponent)
        appendShortestPlain(text, value, trenner);
    else if (std::isfinite(value))
        text += layOut(shortestDigits(value), trenner);
}

std::string textOfDouble(double value, Dezimaltrenner trenner)
{
    if (isWholeBelow(value, FirstWithExponent))
        return wholeText(value);
    if (!std::isfinite(value))
        return {};
    // Nearly every number that someone types or reads: its shortest text has no more digits than are reliable.
    if (std::abs(value) >= FirstPlain && std::abs(value) < FirstWithExponent) {
        constexpr std::size_t DigitsAndSeparator = 16;
        std::string text;
        appendShortestPlain(text, value, trenner);
        if (text.size() <= DigitsAndSeparator)
            return text;
    }
    return layOut(decimalDigits(value), trenner);
}

std::string textWithDigits(double value, int digits, Dezimaltrenner trenner)
{
    if (!std::isfinite(value))
        return {};
    const Ziffern all = digits > Reliable ? shortestDigits(value) : decimalDigits(value);
    return layOut(rounded(all, digits), trenner);
}

std::string textWithDigits(float value, int digits, Dezimaltrenner trenner)
{
    return std::isfinite(value) ? layOut(rounded(shortestDigits(value), digits), trenner) : std::string();
}

std::string fixedText(double value, int decimals, Dezimaltrenner trenner)
{
    return std::isfinite(value) ? layOutFixed(decimalDigits(value), decimals, trenner) : std::string();
}

std::string fixedText(float value, int decimals, Dezimaltrenner trenner)
{
    return std::isfinite(value) ? layOutFixed(shortestDigits(value), decimals, trenner) : std::string();
}

std::string scientificText(
    double value, int decimals, std::string_view gap, bool optionalDecimals, Dezimaltrenner trenner)
{
    if (!std::isfinite(value))
        return {};
    const Ziffern z = rounded(decimalDigits(value), decimals + 1);
    std::string decimalsText(z.view().substr(1));
    if (!optionalDecimals)
        decimalsText.resize(static_cast<std::size_t>(decimals), '0');
    std::string text = z.negative ? "-" : "";
    text += z.digits.front();
    if (!decimalsText.empty()) {
        text += static_cast<char>(trenner);
        text += decimalsText;
    }
    text += gap;
    text += z.exponent < 0 ? "E-" : "E+";
    if (std::abs(z.exponent) < 10)
        text += '0';
    return text + std::to_string(std::abs(z.exponent));
}

std::string hexDigits(double value)
{
    const double whole = std::trunc(value);
    if (!(whole >= std::numeric_limits<std::int32_t>::min() && whole <= std::numeric_limits<std::int32_t>::max()))
        throw Laufzeitfehler(Fehler::Ueberlauf);
    std::array<char, 8> buffer{};
    const auto bits = static_cast<std::uint32_t>(static_cast<std::int32_t>(whole));
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), bits, 16);
    std::string digits(buffer.data(), end.ptr);
    for (char& c : digits) {
        if (c >= 'a')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return digits;
}

std::string FormatValue(float value, std::string_view unit)
{
    if (istUnbekannt(value) || value == 0 || !std::isfinite(value))
        return {};
    std::string text;
    if (value > 0) {
        // The exponent comes from a floating-point quotient and is kept as it falls out: 1000 has 2, and mantissa 10.
        const double single = value;
        const int e = static_cast<int>(std::floor(std::log(single) / std::log(10.0)));
        const double mantissa = std::floor(single / std::pow(10.0, e) * 1e4 + 0.5) / 1e4;
        if (std::abs(e) <= 3)
            text = textOfDouble(mantissa * std::pow(10.0, e));
        else
            text = textOfDouble(mantissa) + (e < 0 ? " E" : " E+") + std::to_string(e);
    } else {
        text = scientificText(value, 4, " ", true);
    }
    text += ' ';
    text += unit;
    return text;
}

std::string CommaToPoint(std::string_view text)
{
    std::string result(text);
    if (const std::size_t comma = result.find(','); comma != std::string::npos)
        result[comma] = '.';
    return result;
}

std::string LocaleText(int item) { return item == LocaleDecimal || item == LocaleMonetaryDecimal ? "," : ""; }

std::string ReplaceText(
    std::string_view expression, std::string_view find, std::string_view replacement, int start, int count, int compare)
{
    if (find.empty())
        return std::string(expression);
    const std::string text = compare != 0 ? lowerCase(expression) : std::string(expression);
    const std::string wanted = compare != 0 ? lowerCase(find) : std::string(find);
    const std::size_t first = zeichenbeginn(text, static_cast<std::size_t>(std::max(start, 1)) - 1);
    std::string result = text.substr(0, first);
    std::size_t position = first;
    for (; count > 0; --count) {
        const std::size_t hit = text.find(wanted, position);
        if (hit == std::string::npos)
            break;
        result.append(text, position, hit - position);
        result += replacement;
        position = hit + wanted.size();
    }
    return result.append(text, position, std::string::npos);
}

int FindLast(std::string_view text, std::string_view find, std::optional<int> start)
{
    const auto last = static_cast<int>(zeichenzahl(text));
    std::size_t offset = zeichenbeginn(text, static_cast<std::size_t>(std::clamp(start.value_or(last), 0, last)));
    for (int position = std::min(start.value_or(last), last); position > 0; --position) {
        do
            --offset;
        while (offset > 0 && !beginntZeichen(text[offset]));
        if (text.substr(offset).starts_with(find))
            return position;
    }
    return 0;
}

} // namespace zerna
