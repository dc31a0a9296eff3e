#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/ElementCollection.h"
#include "model/eingabe/Anteilseinheit.h"
#include "model/eingabe/Eingabefeld.h"
#include "model/eingabe/Legierung.h"

namespace zerna {

/// One component of an alloy that is written as a formula.
struct Formelkomponente {
    std::shared_ptr<clsElement> element;
    std::size_t stelle = 0; ///< character of the text where the symbol begins, from 1
    std::string menge; ///< the amount as typed, in plain digits; empty where none is typed
    double prozent = 0; ///< of the formula's unit
};

/// An alloy that was written as a formula: "Al60Cu40", "Cu2MgAl", "Zr55 Cu30 Al10 Ni5", "Al-4Cu-1Mg wt%",
/// "Fe 18Cr 8Ni wt%".
///
/// Amounts stand behind their elements or in front of them. In front of them, or with a unit, one element may go
/// without an amount and takes the rest to 100 %; behind them without a unit, an amount that is not there is 1. Amounts
/// that have no rest and do not sum to 100 are parts, which are scaled to 100 %. Decimals have a comma or a point; a
/// unit is written like at%, wt%, Gew.-% or Ma%; blanks, a dash, a comma or a semicolon
/// part what would run together. What formeltext writes is read, too.
class Legierungsformel {
public:
    std::span<const Formelkomponente> komponenten() const { return std::span(m_komponenten).first(m_anzahl); }
    Anteilseinheit einheit() const { return m_einheit; }

    /// Whether the percentages are not what was typed, but scaled to a sum of 100.
    bool istUmgerechnet() const { return m_umgerechnet; }

    /// The percentage of a component (from 0) as a text for an input field: as typed if it was, with a comma otherwise.
    std::string prozenttext(std::size_t komponente) const;

    /// How it was understood, for showing: "Al 66,66667  Cu 33,33333  at%".
    std::string text() const;

private:
    friend class Formelleser;

    std::array<Formelkomponente, MaxKomponenten> m_komponenten;
    std::size_t m_anzahl = 0;
    Anteilseinheit m_einheit = Anteilseinheit::Atom;
    bool m_umgerechnet = false;
};

/// What is said about an alloy whose amounts were scaled.
inline constexpr std::string_view UmgerechnetHinweis = "Mengen auf 100 % umgerechnet";

struct Formellesung {
    Legierungsformel formel; ///< as far as it was read if there is an error
    std::optional<Eingabefehler> fehler; ///< names the character
};

/// Reads a formula of one to five different elements, its amounts in `einheit` if it names none. Never throws, whatever
/// the text.
Formellesung legierungsformel(
    std::string_view text, const ElementCollection& elements, Anteilseinheit einheit = Anteilseinheit::Atom);

} // namespace zerna
