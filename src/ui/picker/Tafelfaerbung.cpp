#include "ui/picker/Tafelfaerbung.h"

#include <algorithm>
#include <array>

#include "core/Unbekannt.h"
#include "ui/picker/Zelltexte.h"

namespace zerna {

namespace {

constexpr std::array<Elementgruppe, 4> Gruppen{{
    {"H", "Hauptgruppen", {0xCF, 0xE2, 0xF7}, {0x24, 0x47, 0x6E}, Gruppenzeichen::Kreis},
    {"N", "Nebengruppen", {0xFB, 0xE3, 0xBC}, {0x6B, 0x4A, 0x14}, Gruppenzeichen::Quadrat},
    {"L", "Lanthanoide", {0xCF, 0xEB, 0xD2}, {0x20, 0x56, 0x2B}, Gruppenzeichen::Dreieck},
    {"A", "Actinoide", {0xF3, 0xD3, 0xE6}, {0x6A, 0x25, 0x50}, Gruppenzeichen::Raute},
}};

/// Null for a record of no known group.
const Elementgruppe* findGruppe(const clsElement& element)
{
    const auto* const gruppe = std::ranges::find(Gruppen, element.EGK(), &Elementgruppe::egk);
    return gruppe == Gruppen.end() ? nullptr : gruppe;
}

} // namespace

std::span<const Elementgruppe> elementgruppen() { return Gruppen; }

Tafelfaerbung::Tafelfaerbung(const PSEReihe& reihe)
    : m_titel(reihe.titel)
    , m_werte(reihe.y)
    , m_skala(m_werte)
{
}

Zellfuellung Tafelfaerbung::fuellung(const clsElement& element, std::size_t index, bool aufDunklem) const
{
    if (nachGruppe()) {
        const auto* const gruppe = findGruppe(element);
        return gruppe == nullptr ? Zellfuellung{} : Zellfuellung{gruppe->farbe(aufDunklem), gruppe->zeichen};
    }
    const float wert = m_werte.at(index);
    if (istUnbekannt(wert))
        return {.fehlt = true};
    return {farbskala(m_skala.position(wert))};
}

std::optional<float> Tafelfaerbung::wert(std::size_t index) const
{
    return nachGruppe() ? std::nullopt : std::optional(m_werte.at(index));
}

std::string Tafelfaerbung::beschreibung(const clsElement& element, std::size_t index) const
{
    if (!nachGruppe())
        return m_titel + ": " + (istUnbekannt(m_werte.at(index)) ? "unbekannt" : tafelzahl(m_werte.at(index)));
    const auto* const gruppe = findGruppe(element);
    return gruppe == nullptr ? std::string() : std::string(gruppe->name);
}

} // namespace zerna
