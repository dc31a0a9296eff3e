#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

#include "Pruefung.h"
#include "core/Laufzeitfehler.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"

using namespace zerna;

namespace {

/// The C library's reading of a decimal number text; numberIn must agree with it.
double otherReading(std::string text)
{
    for (char& c : text) {
        if (c == ',')
            c = '.';
        else if (c == 'd' || c == 'D')
            c = 'e';
    }
    return std::strtod(text.c_str(), nullptr);
}

void readText(const std::string& text)
{
    const bool hexadecimal = trimmed(text).starts_with('&');
    std::optional<double> value;
    try {
        value = numberIn(text);
    } catch (const Laufzeitfehler& error) {
        require(error.Nummer() == 6 && (hexadecimal || std::isinf(otherReading(text))));
    }
    if (value) {
        require(hexadecimal || *value == otherReading(text));
        require(numberIn(textWithDigits(*value, 17)) == *value);
        if (hexadecimal)
            require(doubleFromText("&H" + hexDigits(*value)) == *value);
    }
    const float parsed = ParseValue(text);
    require(std::isfinite(parsed) && (istUnbekannt(parsed) || !std::signbit(parsed)));
}

void writeNumber(float value)
{
    const std::string text = textOfSingle(value);
    const std::string display = FormatValue(value, "eV");
    require(text.empty() == !std::isfinite(value));
    require(display.empty() == (text.empty() || value == 0 || istUnbekannt(value)));
    if (text.empty())
        return;
    require(singleFromText(text) == value && singleFromText(CommaToPoint(text)) == value);
    if (!display.empty()) { // four decimals of the mantissa
        std::string number = display.substr(0, display.rfind(' '));
        std::erase(number, ' ');
        require(std::abs(doubleFromText(number) - value) <= 5.1e-5 * std::abs(static_cast<double>(value)));
    }
}

} // namespace

/// Reads the bytes as a number text, and writes the numbers that their first bytes are.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readText(std::string(data, data + size));
    float value = 0;
    if (size >= sizeof value) {
        std::memcpy(&value, data, sizeof value);
        writeNumber(value);
    }
    return 0;
}
