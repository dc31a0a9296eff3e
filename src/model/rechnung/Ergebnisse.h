#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/eingabe/Komponentenzeile.h"
#include "model/rechnung/Groessen.h"
#include "model/rechnung/Tabelle.h"

/// The result lines of an alloy as texts, and what is copied and saved of them.
namespace zerna {

/// The text of one line as shown, and whether its value was known (the text of 0 is empty, too).
struct Ergebnistext {
    std::string text;
    bool known = false;
};

/// By result line; a number that no line has is empty.
using Ergebnistexte = std::vector<Ergebnistext>;

/// Texts of which none is known.
Ergebnistexte keineErgebnisse();

/// Whether at least one line's value is known.
bool istEtwasBekannt(const Ergebnistexte& texte);

/// Formats all lines; those of unknown values are empty. The three editable lines hold their unit, line 10 the first
/// Friedel minimum. Whether all are known.
bool berechneErgebnisse(const clsCalc& calc, Ergebnistexte& texte);

/// The Friedel-minimum read-out "r(n) = " and the radius; n counts from 0. Empty if it is unknown.
std::string friedelanzeige(const clsCalc& calc, float n);

/// The running index of the read-out kept within 0 to 20.
/// Intended: 20 is reached downwards from 0, upwards 0 follows 19.
float friedelindex(float n);

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

/// The radii of the same minima: which quantity, n, radius and unit; no lines if the wavelength is unknown.
Tabelle friedeltabelle(const clsCalc& calc);

/// The number of a shown value as it is copied: up to the first blank, so the mantissa only, with a decimal point.
/// `index` is the line; the text of line 10 and higher loses its first seven characters first.
/// Intended: the seven characters are those of "r(n) = ", and lines above 10 lose them as well.
std::string kopierteZahl(int index, std::string_view text);

/// A shown value without "r(n) = " in front.
std::string wertUndEinheit(std::string_view text);

/// The whole number of a shown value with decimal comma and its exponent after an E: "7,0304 E+5 K" gives "7,0304E+5".
std::string ganzeZahl(std::string_view text, std::string_view unit);

} // namespace zerna
