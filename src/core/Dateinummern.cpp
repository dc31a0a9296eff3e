#include "core/Dateinummern.h"

#include <cstdint>
#include <limits>

namespace zerna {

int Dateinummern::freeNumber() const
{
    int number = 1;
    while (m_open.contains(number))
        ++number;
    return number;
}

void Dateinummern::open(int number, const std::filesystem::path& path, Zugriff zugriff)
{
    m_open.insert_or_assign(number, Datei(path, zugriff));
}

void Dateinummern::openBytes(int number, std::string bytes)
{
    m_open.insert_or_assign(number, Datei::fromBytes(std::move(bytes)));
}

Datei& Dateinummern::at(int number)
{
    using Kurz = std::numeric_limits<std::int16_t>;
    if (number < Kurz::min() || number > Kurz::max())
        throw Laufzeitfehler(Fehler::Ueberlauf);
    const auto found = m_open.find(number);
    if (found == m_open.end())
        throw Laufzeitfehler(Fehler::DateinummerFalsch);
    return found->second;
}

void Dateinummern::close(int number)
{
    if (auto node = m_open.extract(number))
        node.mapped().close();
}

} // namespace zerna
