#include "core/Zahlentext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "core/CheckedArithmetic.h"

namespace zerna {

namespace {

enum class Lesung { Zahl, KeineZahl, ZuGross };

/// "&H" digits as a 32-bit two's complement number.
Lesung readHexNumber(std::string_view text, double& value)
{
    if (text.size() < 3 || text[0] != '&' || (text[1] != 'H' && text[1] != 'h'))
        return Lesung::KeineZahl;
    std::uint32_t bits = 0;
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), bits, 16);
    if (error == std::errc::result_out_of_range)
        return Lesung::ZuGross;
    if (error != std::errc() || end != text.data() + text.size())
        return Lesung::KeineZahl;
    value = static_cast<std::int32_t>(bits);
    return Lesung::Zahl;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// A decimal text on its way into the form that from_chars reads: no plus sign, a point, an "e".
class Dezimaltext {
public:
    explicit Dezimaltext(std::string_view text)
        : m_text(text)
    {
        if (text.size() > m_buffer.size()) {
            m_longText.resize(text.size());
            m_target = m_longText.data();
        }
    }

    Dezimaltext(const Dezimaltext&) = delete;
    Dezimaltext& operator=(const Dezimaltext&) = delete;

    /// Valid as long as the object; empty if the text is no number.
    std::string_view normalised()
    {
        if (m_text.front() == '-')
            put('-');
        if (m_text.front() == '-' || m_text.front() == '+')
            ++m_next;
        if (!takeMantissa() || (m_next < m_text.size() && !takeExponent()))
            return {};
        return {m_target, m_length};
    }

private:
    void put(char c) { m_target[m_length++] = c; }

    bool takeMantissa()
    {
        bool digits = false;
        bool separator = false;
        for (; m_next < m_text.size(); ++m_next) {
            const char c = m_text[m_next];
            if (isDigit(c)) {
                digits = true;
                put(c);
            } else if ((c == ',' || c == '.') && !separator) {
                separator = true;
                put('.');
            } else {
                break;
            }
        }
        return digits;
    }

    /// Takes the whole rest.
    bool takeExponent()
    {
        if (std::string_view("eEdD").find(m_text[m_next++]) == std::string_view::npos)
            return false;
        put('e');
        if (m_next < m_text.size() && (m_text[m_next] == '-' || m_text[m_next] == '+'))
            put(m_text[m_next++]);
        const std::size_t firstDigit = m_next;
        while (m_next < m_text.size() && isDigit(m_text[m_next]))
            put(m_text[m_next++]);
        return m_next > firstDigit && m_next == m_text.size();
    }

    std::string_view m_text;
    std::size_t m_next = 0;
    std::array<char, 400> m_buffer; // where an ordinary text goes
    std::string m_longText; // where any other goes
    char* m_target = m_buffer.data(); // one of the two
    std::size_t m_length = 0;
};

/// Whether a decimal number that no double can hold is too small (then it is 0) rather than too large.
bool isTooSmall(std::string_view number)
{
    const std::size_t e = std::min(number.find('e'), number.size());
    const std::string_view mantissa = number.substr(0, e);
    const std::size_t firstDigit = mantissa.find_first_of("123456789");
    if (firstDigit == std::string_view::npos)
        return true;
    int exponent = 0;
    if (e < number.size()) {
        const bool negative = number[e + 1] == '-';
        const std::size_t digits = e + (negative || number[e + 1] == '+' ? 2 : 1);
        const auto read = std::from_chars(number.data() + digits, number.data() + number.size(), exponent);
        if (read.ec == std::errc::result_out_of_range)
            return negative;
        exponent = negative ? -exponent : exponent;
    }
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    return static_cast<std::int64_t>(point) - static_cast<std::int64_t>(firstDigit) + exponent < 0;
}

/// Leaves the value alone unless the text is a number.
Lesung read(std::string_view text, double& value)
{
    text = trimmed(text);
    if (text.empty())
        return Lesung::KeineZahl;
    if (text.front() == '&')
        return readHexNumber(text, value);
    if (readPlainNumber(text, value))
        return Lesung::Zahl;
    Dezimaltext decimal(text);
    const std::string_view number = decimal.normalised();
    if (number.empty())
        return Lesung::KeineZahl;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return Lesung::Zahl;
    if (!isTooSmall(number))
        return Lesung::ZuGross;
    value = 0;
    return Lesung::Zahl;
}

} // namespace

// It rounds as exactly as the long way: a double holds so many digits and the power of ten, so only the quotient
// rounds.
bool readPlainNumber(std::string_view text, double& value)
{
    constexpr std::array PowersOfTen{
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t ExactDigits = PowersOfTen.size() - 1;
    if (text.size() > ExactDigits + 1)
        return false;
    std::int64_t whole = 0;
    std::size_t separator = text.size(); // where it stands
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isDigit(text[i]))
            whole = 10 * whole + (text[i] - '0');
        else if ((text[i] == ',' || text[i] == '.') && separator == text.size())
            separator = i;
        else
            return false;
    }
    const bool hasSeparator = separator < text.size();
    const std::size_t digits = text.size() - (hasSeparator ? 1 : 0);
    if (digits == 0 || digits > ExactDigits)
        return false;
    value = static_cast<double>(whole);
    if (hasSeparator)
        value /= PowersOfTen.at(digits - separator);
    return true;
}

bool readNumber(std::string_view text, double& value)
{
    const Lesung lesung = read(text, value);
    if (lesung == Lesung::ZuGross)
        throw Laufzeitfehler(Fehler::Ueberlauf);
    return lesung == Lesung::Zahl;
}

bool readSingle(std::string_view text, float& value)
{
    double number = 0;
    if (read(text, number) != Lesung::Zahl)
        return false;
    const auto single = static_cast<float>(number);
    if (!std::isfinite(single))
        return false;
    value = single;
    return true;
}

double doubleFromText(std::string_view text)
{
    double value = 0;
    if (!readNumber(text, value))
        throw Laufzeitfehler(Fehler::TypenUnvertraeglich);
    return value;
}

float singleFromText(std::string_view text) { return toSingle(doubleFromText(text)); }

float ParseValue(std::string_view text)
{
    std::string digits(text);
    if (!digits.starts_with('.'))
        digits.insert(0, "0");
    // A text that begins with a sign never reaches this point without its "0", so signs need no rule of their own.
    digits = ReplaceText(digits, ".", LocaleText(LocaleMonetaryDecimal));
    return orUnbekannt([&] { return singleFromText(digits); });
}

} // namespace zerna
