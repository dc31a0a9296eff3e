#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "model/clsCalc.h"

/// The result lines of an alloy: what they are called, how they are formatted, and the texts made of them.
namespace zerna {

/// One result line.
struct Ergebniszeile {
    int index = 0; ///< 0 to 18; there is no line 12
    std::string_view caption; ///< with colon
    std::string_view unit;
    float (*value)(const clsCalc&) = nullptr; ///< may throw
    bool editable = false; ///< shown in a field of its own; the line itself then holds the unit only
};

/// Index of the first free line position; lines are 0 to 11 and 13 to 18.
inline constexpr std::size_t Ergebnispositionen = 19;

/// Line of the Friedel-minimum read-out; its value is the first minimum.
inline constexpr int Friedelzeile = 10;

/// All 18 lines in the order of their index.
std::span<const Ergebniszeile> ergebniszeilen();

/// The text of one line as shown, and whether its value was known (the text of 0 is empty, too).
struct Ergebnistext {
    std::string text;
    bool known = false;
};

/// By line index.
using Ergebnistexte = std::array<Ergebnistext, Ergebnispositionen>;

/// Formats all lines. From the first line that cannot be computed on all value lines are empty, the Friedel read-out
/// too, and false is returned; an alloy that could not be computed has no lines at all. The three editable lines hold
/// their unit, line 10 the first Friedel minimum.
bool berechneErgebnisse(const clsCalc& calc, Ergebnistexte& texte);

/// The Friedel-minimum read-out "r(n) = " and the radius; n counts from 0.
std::string friedelanzeige(const clsCalc& calc, float n);

/// The running index of the read-out kept within 0 to 20.
/// Intended: 20 is reached downwards from 0, upwards 0 follows 19.
float friedelindex(float n);

/// A component as the results text names it, all texts as shown.
struct Komponentenzeile {
    std::string symbol;
    std::string prozent;
    std::string dichtewahl;
    std::string dichte;
    std::string valenzwahl;
    std::string valenz;
};

/// The text for the clipboard: CR LF between lines. Lines of unknown values are left out.
/// Intended: every Friedel line carries the Friedel wavelength, n counts from 0, and editable lines are their bare
/// unit.
std::string ergebnistext(
    const clsCalc& calc, std::span<const Komponentenzeile> komponenten, const Ergebnistexte& texte);

/// The content (UTF-8) of a results file: CR LF after each line, captions in front of the values, and the radii of
/// the first eleven Friedel minima.
std::string ergebnisdatei(
    const clsCalc& calc, std::span<const Komponentenzeile> komponenten, const Ergebnistexte& texte);

/// The content of a Friedel-minimum file for a plotting program: for each of the first eleven minima a vertical mark
/// from height 50 to 55 and a break line, 33 lines; nothing if the Friedel wavelength is unknown.
std::string friedeldatei(const clsCalc& calc);

/// The number of a shown value as it is copied: up to the first blank, so the mantissa only, with a decimal point.
/// `index` is the line; the text of line 10 and higher loses its first seven characters first.
/// Intended: the seven characters are those of "r(n) = ", and lines above 10 lose them as well.
std::string kopierteZahl(int index, std::string_view text);

/// A shown value without "r(n) = " in front.
std::string wertUndEinheit(std::string_view text);

/// The whole number of a shown value with decimal comma and its exponent after an E: "7,0304 E+5 K" gives "7,0304E+5".
std::string ganzeZahl(std::string_view text, std::string_view unit);

} // namespace zerna
