#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/rechnung/clsCalc.h"

namespace zerna {

/// What a quantity is made of. It is unknown while one of the values that its base stands for is.
enum class Grundlage {
    Keine,
    Valenz, ///< z
    Teilchen, ///< N
    Elektronen, ///< z and N
    Fermienergie, ///< with Elektronen
    Kf2, ///< with Elektronen
    Wellenlaenge, ///< of Friedel, with Kf2
};

/// A quantity of an alloy or an element: all that is said of it anywhere. Who shows quantities takes them from this one
/// table and keeps only an order of its own.
struct Groesse {
    int kennzahl = -1; ///< code by which lists, series and command line know it; -1 for none
    int zeile = -1; ///< its result line; -1 if it is not among the results
    std::string_view name = {}; ///< in lists
    std::string_view beschriftung = {}; ///< of the result line, with colon
    std::string_view einheit = {}; ///< of the result
    std::string_view reiheneinheit = {}; ///< over compositions; empty if it is not shown there
    std::string_view elementtitel = {}; ///< over the elements, with unit; empty if it is not shown there
    float (*formel)(const clsCalc&) = nullptr; ///< read through wert(); null for a property of the element itself
    float (*elementwert)(const clsElement&) = nullptr; ///< may throw; null for what is computed
    Grundlage grundlage = Grundlage::Keine;
    bool tippbar = false; ///< its result can be typed; the line itself then holds the unit only

    bool ueberLegierungen() const { return !reiheneinheit.empty(); }
    bool ueberElementen() const { return !elementtitel.empty(); }

    /// The result line's caption without the colon.
    std::string_view bezeichnung() const { return beschriftung.substr(0, beschriftung.size() - 1); }
};

/// Code of the density, whose series has a rule of its own.
inline constexpr int GroesseDichte = 3;

/// Result lines that something is made of.
inline constexpr int Valenzzeile = 0;
inline constexpr int Teilchenzeile = 1;
inline constexpr int Dichtezeile = 2;
inline constexpr int Kf2Zeile = 8;
inline constexpr int Wellenlaengenzeile = 9;

/// Result line of the Friedel-minimum read-out; its value is the first minimum.
inline constexpr int Friedelzeile = 10;

/// The quantity as it may be shown, printed and saved: Unbekannt while something that it is made of is unknown or it
/// cannot be computed. The calculator's own members go on with the marker as if it were a number.
float wert(const Groesse& groesse, const clsCalc& calc);

/// All quantities: the result lines in their order, then the others.
std::span<const Groesse> groessen();

/// The result lines in their order.
std::span<const Groesse> ergebniszeilen();

/// The quantity of result line `zeile`; error 9 if there is none.
const Groesse& ergebniszeile(int zeile);

/// The quantity of a code; null if there is none.
const Groesse* findGroesse(int kennzahl);

/// The quantity over compositions of a code; null if there is none.
const Groesse* findReihengroesse(int kennzahl);

/// The same where there has to be one; error 5 if there is none.
const Groesse& reihengroesse(int kennzahl);

/// The codes of the quantities over compositions as a text: "0 bis 10", or "0 bis 3, 7" if there are gaps.
std::string reihenkennzahlen();

} // namespace zerna
