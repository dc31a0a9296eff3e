#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/Zahlentext.h"
#include "model/eingabe/Eingabefeld.h"
#include "model/reihen/Mischungsreihe.h"
#include "model/suche/Zielsuche.h"

/// The question at which part of one of its components an alloy has a wanted value.
namespace zerna {

struct Anteilsfrage {
    int groesse = 0; ///< code of a quantity over compositions
    float ziel = 0; ///< in the unit of the quantity
    int komponente = 0; ///< whose at% are varied
    Reihenart art = Reihenart::Gegeben;

    bool operator==(const Anteilsfrage&) const = default;
};

/// What a search shows in a diagram of its quantity.
struct Suchmarken {
    int groesse = 0;
    std::optional<float> ziel = {}; ///< none while nothing is looked for
    int komponente = 0; ///< whose at% the answers are
    std::vector<double> prozente = {}; ///< ascending

    bool operator==(const Suchmarken&) const = default;
};

/// Why what was typed is no value to look for; empty if it is.
std::string zielhindernis(const Eingabefeld& ziel);

/// All its answers. Errors of the components and of the question reach the caller, as those of Mischungsreihe do.
Zielantwort sucheAnteil(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, const Anteilsfrage& frage);

/// The composition that an answer means, one at% per component.
/// Intended: that of the given density series has the others in equal parts, which its values are made of.
std::array<double, MaxKomponenten> zusammensetzung(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, const Anteilsfrage& frage, double prozent);

/// At% as it is said: up to six decimals, none that single precision cannot tell.
std::string anteiltext(double prozent, Dezimaltrenner trenner = Dezimaltrenner::Komma);

/// Why there is nothing to list, with the nearest value in the unit of the results: "Keine Zusammensetzung hat 12 eV.
/// Am nächsten kommt …", or that every composition has the value. Empty if there are answers.
std::string antwortsatz(const Zielantwort& antwort, const Anteilsfrage& frage, std::string_view symbol);

} // namespace zerna
