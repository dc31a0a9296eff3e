#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/Datei.h"

namespace zerna {

/// Electrons per subshell outside the noble-gas core, in filling order: 1s 2s 2p 3s 3p 4s 3d 4p 5s 4d 5p 6s 4f 5d 6p 7s
/// 5f 6d.
using Elektronenzahlen = std::array<std::uint8_t, 18>;

/// The tabulated data of one chemical element; Elementspalten.h lists the fields. A number may be Unbekannt.
struct ElementRecord {
    std::uint8_t X = 0; ///< column (group) in the periodic table, 1 to 18
    std::uint8_t Y = 0; ///< row in the drawn periodic table
    std::string symbol;
    std::string Name; ///< German
    std::int16_t OZ = 0; ///< atomic number
    float Masse = 0; ///< amu
    float Schmelztemperatur = 0; ///< K
    float Siedetemperatur = 0; ///< K
    float Valenz = 0; ///< free electrons per atom
    float Dichte_Fluessig = 0; ///< g/cm³
    float Dichte_Kristallin = 0; ///< g/cm³
    float Dichte_Amorph = 0; ///< g/cm³
    float Atomradius = 0; ///< pm
    float Ionisierungsenergie = 0; ///< eV
    float Elektronegativitaet = 0;
    std::string Elektronenkonfiguration; ///< display text such as "[He] (2)s2p2"
    Elektronenzahlen Elektronen{};
    std::string EGK; ///< group of elements: H main group, N transition metal, L lanthanide, A actinide

    bool operator==(const ElementRecord&) const = default;
};

/// Reads a record at the file's position: little-endian, no padding, texts as 16-bit length and Windows-1252 bytes.
/// The texts are cleared first; on error 62 the fields read so far stay. A number that is not finite is no
/// tabulated value and is read as Unbekannt.
void readElementRecord(Datei& file, ElementRecord& record);

/// A record in the same layout. Error 6 for a text of more than 65535 bytes.
std::string elementRecordBytes(const ElementRecord& record);

} // namespace zerna
