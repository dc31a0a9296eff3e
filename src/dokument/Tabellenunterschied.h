#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "model/dokument/Dokument.h"

namespace zerna {

/// A density or valence of a file that this machine's table gives otherwise, or the at% that mass % come to with its
/// atomic masses.
struct Tabellenunterschied {
    enum class Wert { Dichte, Valenz, Anteil };

    std::optional<std::size_t> variante; ///< the kept alloy, from 0; none for the alloy itself
    int zeile = 0; ///< from 0
    std::string element; ///< symbol
    Wert was = Wert::Dichte;
    std::string wahl; ///< the choice or formula that means the value; empty for at%
    float datei = 0; ///< Unbekannt if the file has none
    float hier = 0; ///< Unbekannt if the table has none

    bool operator==(const Tabellenunterschied&) const = default;
};

/// An alloy as a file has it.
struct Dateilegierung {
    Rohlegierung roh;
    std::array<float, MaxKomponenten> valenzen{}; ///< that the valence texts in force came to
    std::array<std::optional<float>, MaxKomponenten> atommassen; ///< g/mol, that mass % were converted with, if known
};

/// Where the table differs, by row, density before valence, and then the at% of all rows; `variante` is handed on.
std::vector<Tabellenunterschied> unterschiede(
    const Dateilegierung& legierung, const ElementCollection& elements, std::optional<std::size_t> variante);

/// The difference as a line of a message: "Zeile 2: Dichte (kristallin) von Cu: 8,9 in der Datei, 8,96 hier".
std::string unterschiedstext(const Tabellenunterschied& unterschied, const Dokument& dokument);

/// Makes the file's values typed ones, so that all results are those of the file.
void behalteDateiwerte(
    Dokument& dokument, std::span<const Tabellenunterschied> unterschiede, const ElementCollection& elements);

/// Chooses the table's values anew; where the table has no such choice, its first one.
void uebernehmeTabelle(
    Dokument& dokument, std::span<const Tabellenunterschied> unterschiede, const ElementCollection& elements);

} // namespace zerna
