#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/eingabe/Eingabe.h"
#include "model/rechnung/clsCalc.h"

/// What is wrong or odd about an entered alloy, in words for its user.
namespace zerna {

enum class Schwere {
    Bedenken, ///< is computed as it stands
    Fehler, ///< cannot be computed, or what comes of it means nothing
};

/// The controls of a row.
enum class Eingabeort { Element, Prozent, Dichte, Valenz };

struct Befund {
    int zeile = 0;
    Eingabeort ort = Eingabeort::Element;
    Schwere schwere = Schwere::Fehler;
    std::string text = {}; ///< reason and remedy, in sentences

    bool operator==(const Befund&) const = default;
};

/// All there is to say of the rows in use, in their order.
std::vector<Befund> befunde(const Eingabe& eingabe);

/// What there is to say of an alloy whose rows are all right by themselves: its means must be positive.
std::optional<Befund> mittelbefund(const Eingabe& eingabe, const clsCalc& calc);

/// The sum of the parts as it is shown, and what is odd about them; empty if nothing is.
struct Anteilssumme {
    std::string text; ///< "Σ 100 %", with the reason behind it; "Σ ?" while a part has no value
    std::string bedenken;
};
Anteilssumme anteilssumme(const Eingabe& eingabe, std::span<const Befund> alle);

/// The first fault, else the first of the others; null if there are none.
const Befund* wichtigster(std::span<const Befund> alle);

/// "Komponente 1 (Al): at% fehlt. …".
std::string befundtext(const Eingabe& eingabe, const Befund& befund);

/// The same without the remedy, which is the window's.
std::string befundgrund(const Eingabe& eingabe, const Befund& befund);

/// "Al 60, Cu 40 at%".
std::string zusammensetzung(const Eingabe& eingabe);

} // namespace zerna
