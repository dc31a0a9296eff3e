#include "core/clsElement.h"

#include <array>
#include <limits>
#include <span>

#include "core/Fehlermeldung.h"

namespace zerna {

namespace {

constexpr std::string_view Klasse = "Klassenmodul clsElement";

constexpr std::array<int, 7> SlotsS{0, 1, 3, 5, 8, 11, 15};
constexpr std::array<int, 5> SlotsP{2, 4, 7, 10, 14};
constexpr std::array<int, 4> SlotsD{6, 9, 13, 17};
constexpr std::array<int, 2> SlotsF{12, 16};
constexpr std::array<std::span<const int>, 4> SlotsOfOrbital{SlotsS, SlotsP, SlotsD, SlotsF};

constexpr std::array<std::string_view, 4> OrbitalLabels{"s-Elektronen", "p-Elektronen", "d-Elektronen", "f-Elektronen"};

bool isOrbital(int orbital) { return orbital >= 0 && orbital <= 3; }

std::size_t checkedSlot(int index)
{
    if (index < 0 || index > 17)
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return static_cast<std::size_t>(index);
}

} // namespace

clsElement::clsElement(Dateinummern& files, MessageBoxes& boxes)
    : m_files(files)
    , m_boxes(boxes)
{
}

void clsElement::Daten_Lesen()
{
    reporting(m_boxes, "Daten_Lesen", Klasse, [&] { readElementRecord(m_files.at(m_dateinummer), m_record); });
}

void clsElement::Daten_Speichern()
{
    reporting(
        m_boxes, "Daten_Speichern", Klasse, [&] { m_files.at(m_dateinummer).write(elementRecordBytes(m_record)); });
}

std::uint8_t clsElement::Elektronen(int index) const { return m_record.Elektronen.at(checkedSlot(index)); }

void clsElement::setElektronen(int index, std::uint8_t count) { m_record.Elektronen.at(checkedSlot(index)) = count; }

std::uint8_t clsElement::Orbital_L_Elektronen(int orbital) const
{
    if (!isOrbital(orbital))
        return 0;
    int sum = 0;
    for (const int slot : SlotsOfOrbital.at(static_cast<std::size_t>(orbital)))
        sum += Elektronen(slot);
    if (sum > std::numeric_limits<std::uint8_t>::max())
        throw Laufzeitfehler(Fehler::Ueberlauf);
    return static_cast<std::uint8_t>(sum);
}

std::string_view OrbitalLabel(int orbital)
{
    return isOrbital(orbital) ? OrbitalLabels.at(static_cast<std::size_t>(orbital)) : std::string_view();
}

} // namespace zerna
