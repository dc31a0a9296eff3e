#include "core/ElementRecord.h"

#include <bit>
#include <cmath>
#include <limits>
#include <type_traits>

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
    std::uint16_t length = 0;
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
    if (bytes.size() > std::numeric_limits<std::uint16_t>::max())
        throw Laufzeitfehler(Fehler::Ueberlauf);
    writeField(target, static_cast<std::uint16_t>(bytes.size()));
    target += bytes;
}

} // namespace

void readElementRecord(Datei& file, ElementRecord& record)
{
    record.symbol.clear();
    record.Name.clear();
    record.Elektronenkonfiguration.clear();
    record.EGK.clear();
    readField(file, record.X);
    readField(file, record.Y);
    readField(file, record.symbol);
    readField(file, record.Name);
    readField(file, record.OZ);
    for (float ElementRecord::*const number : ElementRecordNumbers)
        readField(file, record.*number);
    readField(file, record.Elektronenkonfiguration);
    readField(file, record.Elektronen);
    readField(file, record.EGK);
}

void writeElementRecord(Datei& file, const ElementRecord& record)
{
    std::string bytes;
    writeField(bytes, record.X);
    writeField(bytes, record.Y);
    writeField(bytes, record.symbol);
    writeField(bytes, record.Name);
    writeField(bytes, record.OZ);
    for (float ElementRecord::*const number : ElementRecordNumbers)
        writeField(bytes, record.*number);
    writeField(bytes, record.Elektronenkonfiguration);
    writeField(bytes, record.Elektronen);
    writeField(bytes, record.EGK);
    file.write(bytes);
}

} // namespace zerna
