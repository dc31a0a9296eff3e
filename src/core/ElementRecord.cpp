#include "core/ElementRecord.h"

#include <bit>
#include <cmath>
#include <limits>
#include <type_traits>

#include "core/Elementspalten.h"
#include "core/Unbekannt.h"
#include "core/Zeichensatz.h"

namespace zerna {

namespace {

static_assert(std::endian::native == std::endian::little, "the element file is little-endian and read as it stands");

template <class Field>
void readField(Datei& file, Field& field)
{
    static_assert(std::is_trivially_copyable_v<Field>);
    file.read(&field, sizeof field);
}

void readField(Datei& file, float& field)
{
    float value = 0;
    file.read(&value, sizeof value);
    field = std::isfinite(value) ? value : Unbekannt;
}

void readField(Datei& file, std::string& field)
{
    Textlaenge length = 0;
    file.read(&length, sizeof length);
    readWindows1252(file.readText(length), field);
}

template <class Field>
void writeField(std::string& target, const Field& field)
{
    static_assert(std::is_trivially_copyable_v<Field>);
    target.append(reinterpret_cast<const char*>(&field), sizeof field);
}

void writeField(std::string& target, const std::string& field)
{
    const std::string bytes = toWindows1252(field);
    if (bytes.size() > std::numeric_limits<Textlaenge>::max())
        throw Laufzeitfehler(Fehler::Ueberlauf);
    writeField(target, static_cast<Textlaenge>(bytes.size()));
    target += bytes;
}

} // namespace

void readElementRecord(Datei& file, ElementRecord& record)
{
    forEachSpalte([&]<class Field>(const Elementspalte&, Field ElementRecord::*field) {
        if constexpr (std::is_same_v<Field, std::string>)
            (record.*field).clear();
    });
    forEachSpalte([&](const Elementspalte&, auto field) { readField(file, record.*field); });
}

std::string elementRecordBytes(const ElementRecord& record)
{
    std::string bytes;
    forEachSpalte([&](const Elementspalte&, auto field) { writeField(bytes, record.*field); });
    return bytes;
}

} // namespace zerna
