#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"

namespace zerna {

/// What a value field shows for a missing value.
inline constexpr std::string_view UnbekannterWert = "<unbekannt>";

/// Why an entered text has no value.
struct Eingabefehler {
    std::string grund = {}; ///< in German
    std::size_t stelle = 0; ///< character of the text, from 1; 0 for the whole text
    std::string abhilfe = {}; ///< what to do, as sentences; empty where the reason tells

    /// Reason, place and remedy, as they are shown.
    std::string text() const;
    bool operator==(const Eingabefehler&) const = default;
};

/// One entered text with what it comes to.
struct Eingabefeld {
    std::string text = {};
    float wert = 0; ///< Unbekannt while the text gives none
    std::optional<Eingabefehler> fehler = {};
    std::string echo = {}; ///< what a formula or an empty text comes to; empty for a plain number
    std::vector<std::string> meldungen = {}; ///< what is to be said about unknown functions

    bool istUnbekannterWert() const { return text == UnbekannterWert; }
    bool operator==(const Eingabefeld&) const = default;
};

/// A text that must be a number, as a new field or into one that is there and keeps its memory.
Eingabefeld zahlenfeld(std::string_view text);
void readZahl(Eingabefeld& feld, std::string_view text);

/// A number and its text into such a field.
void writeZahl(Eingabefeld& feld, std::string_view text, float wert);

/// A text that may be a formula. A hexadecimal result is no valence.
Eingabefeld valenzfeld(std::string_view text, const ElementCollection& elements);

/// What a value field shows: the shortest text of the single, or "<unbekannt>".
std::string feldtext(float value);

} // namespace zerna
