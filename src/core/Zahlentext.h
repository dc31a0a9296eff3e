#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "core/Zeichensatz.h"

/// Numbers to text and back: the only place that does so. Nothing depends on the environment's locale; the
/// program's locale is German. Texts are UTF-8.
namespace zerna {

/// Decimal comma on the screen, decimal point in files.
enum class Dezimaltrenner : char { Komma = ',', Punkt = '.' };

/// Shortest decimal text that reads back as the same single: plain digits while the decimal exponent e is in
/// -5 < e < 15, otherwise like "1,5E+20" or "1,5E-7". 0.1F gives "0,1"; empty for a value that is no finite number.
std::string textOfSingle(float value, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// The same behind what a text holds already.
void appendSingle(std::string& text, float value, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// Shortest decimal text that reads back as the same double, laid out like the text of a single, behind what a text
/// holds already; nothing for a value that is no finite number.
void appendDouble(std::string& text, double value, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// 15 significant digits without trailing zeros, laid out like the text of a single.
std::string textOfDouble(double value, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// The following round the number as it is written in decimal, a single in its shortest text, a double in 15 digits;
/// ties go away from zero for both signs: 12.125 in "0.00" gives "12,13", 0.285F gives "0,29".

/// At most `digits` significant digits (1 to 15), laid out like the text of a single: (63.300003F, 7) gives "63,3".
std::string textWithDigits(double value, int digits, Dezimaltrenner trenner = Dezimaltrenner::Komma);
std::string textWithDigits(float value, int digits, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// The patterns "0", "0.00", "0.000": a fixed number of decimals, never "-0,00".
std::string fixedText(double value, int decimals, Dezimaltrenner trenner = Dezimaltrenner::Komma);
std::string fixedText(float value, int decimals, Dezimaltrenner trenner = Dezimaltrenner::Komma);
inline std::string fixedText(int value, int decimals) { return fixedText(static_cast<double>(value), decimals); }

/// Scientific patterns with a mantissa of one digit before the decimal separator and a signed exponent of at least
/// two digits: `optionalDecimals` false is "0.00" + gap + "E+00", true is "#.####" + gap + "E+00" (trailing zeros and
/// a dangling separator dropped).
std::string scientificText(double value, int decimals, std::string_view gap, bool optionalDecimals,
    Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// A typed or stored text as a number. Blanks around it are ignored; one decimal separator, comma or point; exponent
/// with e, E, d or D; "&H" and up to eight hexadecimal digits (a 32-bit two's complement number); no digit grouping;
/// the whole text must be used up. So "12.5" and "12,5" are 12.5, "1.234,5" is error 13. Error 6 if it is too large.
double doubleFromText(std::string_view text);
float singleFromText(std::string_view text);

/// As doubleFromText, but false for a text that is no number, which leaves the value alone (a number too large is still
/// error 6).
bool readNumber(std::string_view text, double& value);

/// A number of at most 15 digits, maybe with a separator and nothing else, as nearly all that are typed; false, and the
/// value left alone, for any other text.
bool readPlainNumber(std::string_view text, double& value);

/// The text as a single; false, and the value left alone, for a text that is no number and for a number too large.
bool readSingle(std::string_view text, float& value);

/// What readNumber reads as an optional, which is built where it is used: handing it over costs more than reading a
/// short number.
inline std::optional<double> numberIn(std::string_view text)
{
    double value = 0;
    return readNumber(text, value) ? std::optional(value) : std::nullopt;
}

/// The integer part of the value as upper-case hexadecimal digits, negative ones as 32-bit two's complement.
/// Error 6 outside -2^31 to 2^31 - 1.
std::string hexDigits(double value);

/// Number and unit as the program shows them: four decimals of the mantissa, exponent from 10^4 and to 10^-4 on.
/// FormatValue(123.456F, "K") gives "123,46 K", FormatValue(602.2e21F, "") "6,022 E+23 "; 0 and Unbekannt give "".
/// Negative values always have the form "-5 E+00 V" and the mantissa that their amount has.
std::string FormatValue(float value, std::string_view unit);

/// What was typed into a number field: Unbekannt if it is no number, 0 for an empty text.
/// Intended: every text that does not begin with a point gets a "0" in front, so a leading sign never gives a number.
float ParseValue(std::string_view text);

/// The text with its first comma replaced by a point; other commas stay.
std::string CommaToPoint(std::string_view text);

/// Numbers of the locale items that the program asks for.
inline constexpr int LocaleDecimal = 0x0E;
inline constexpr int LocaleMonetaryDecimal = 0x16;

/// The German locale's text for an item: decimal and monetary decimal separator; empty for any other item.
std::string LocaleText(int item);

/// The expression with occurrences of `find` from the 1-based character position `start` on replaced, at most `count`
/// of them. With `compare` not 0 expression and `find` are lower-cased first, so the result is lower case.
std::string ReplaceText(std::string_view expression, std::string_view find, std::string_view replacement, int start = 1,
    int count = std::numeric_limits<int>::max(), int compare = 0);

/// The last 1-based character position at or before `start` (default: the text's length) where `find` begins; 0 if
/// none.
int FindLast(std::string_view text, std::string_view find, std::optional<int> start = std::nullopt);

/// The text without blanks at its ends.
constexpr std::string_view trimmed(std::string_view text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

} // namespace zerna
