#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/clsElement.h"
#include "model/eingabe/Eingabefeld.h"

/// The rules of composition entry: what a row offers, how many rows there are and what the last of them holds.
namespace zerna {

/// Entry of the density and the valence choice for a value that is typed.
inline constexpr std::string_view AndereWahl = "<andere>";

/// Codes of the valence choice; 0 to 3 are the orbital groups s, p, d, f.
inline constexpr int ValenzStandard = 1000;
inline constexpr int ValenzAndere = 1001;

struct Valenzeintrag {
    std::string_view text;
    int code = 0;
};

/// The density choices that an element may have: amorph, flüssig, kristallin.
std::vector<std::string_view> dichtearten();

/// Whether the element has a density for a choice; it always has "<andere>".
bool hatDichte(const clsElement& element, std::string_view choice);

/// The density choices that the element has, in the order amorph, flüssig, kristallin, then "<andere>".
std::vector<std::string_view> dichteauswahl(const clsElement& element);

/// The element's density (g/cm³) for a choice; 0 for "<andere>".
float dichteFor(const clsElement& element, std::string_view choice);

/// The valence choices: "Standard", the occupied orbital groups, "<andere>".
std::vector<Valenzeintrag> valenzauswahl(const clsElement& element);

/// The element's valence for a code; 0 for ValenzAndere.
float valenzFor(const clsElement& element, int code);

/// The component count after one step up (+1) or down (-1).
/// Intended: wraps from 5 to 1 and from 1 to 5.
int naechsteKomponentenzahl(int count, int step);

/// The stored component count, which is one less than the number of rows. Anything but 0 to 5 counts as "2".
int gespeicherteKomponentenzahl(std::string_view setting);

/// The at% of the balance row for the at% of the rows above it: 100 less their sum, its text at most seven significant
/// digits, maybe negative. Error 6 for a sum that no single can hold.
Eingabefeld ausgleich(std::span<const float> prozente);
void readAusgleich(Eingabefeld& feld, std::span<const float> prozente); ///< into a field that keeps its memory

} // namespace zerna
