#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/ElementCollection.h"
#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Eingabefeld.h"
#include "model/eingabe/Legierung.h"
#include "model/eingabe/Legierungsformel.h"

/// Components as they are written on a command line or in a list. Nothing here throws for a text that is wrong: the
/// reason is the answer, in German, and empty if there is none.
namespace zerna {

/// A component taken apart: SYMBOL=ATPERCENT[:dichte=…][:valenz=…].
struct Komponentenangabe {
    std::string text; ///< as written, for messages
    std::string symbol;
    std::string prozent; ///< a number, as written
    std::string dichte; ///< a number, "amorph", "fluessig" or "kristallin"; empty: the first known of these
    std::string valenz; ///< "s", "p", "d", "f" or a formula; empty: the element's valence
};

/// What a component chooses.
struct Komponentenwahl {
    std::shared_ptr<clsElement> element;
    std::string_view dichtewahl; ///< one of dichteauswahl()
    float dichte = 0; ///< g/cm³
    int valenzwahl = 0; ///< code of the valence choice; the formula of ValenzAndere is still to be read
};

/// Takes a component text apart; its at% may be any text.
std::string liesAngabe(std::string_view text, Komponentenangabe& angabe);

/// Looks up what it names; each choice is there once the reason is empty.
std::string liesWahl(const ElementCollection& elements, const Komponentenangabe& angabe, Komponentenwahl& wahl);

/// The valence of a component, and why it has none.
Eingabefeld valenzfeld(const ElementCollection& elements, const Komponentenangabe& angabe, const Komponentenwahl& wahl);
std::string valenzgrund(const Eingabefeld& valenz);

std::string prozentgrund(std::string_view prozent, Anteilseinheit einheit = Anteilseinheit::Atom);

/// The components of an alloy that is written as a formula, in its unit; why a text is none.
std::vector<Komponentenangabe> angabenAus(const Legierungsformel& formel);
std::string formelgrund(std::string_view text, const Eingabefehler& fehler);

/// A reason with the component in front that it is about.
std::string komponentengrund(std::string_view text, std::string_view grund);

/// Why there is no alloy of so many components.
std::string anzahlgrund(std::size_t anzahl);

/// What is said of an element whose components were given different densities or valences.
std::string mehrfachhinweis(std::string_view symbol);

/// Why the calculator has no values for an alloy; the texts are those of its components.
std::string rechengrund(std::span<const Legierungskomponente> komponenten, std::span<const std::string_view> texte);

} // namespace zerna
