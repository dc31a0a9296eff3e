#include "model/rechnung/Groessentabelle.h"

#include "core/CheckedArithmetic.h"
#include "model/rechnung/Groessen.h"
#include "model/rechnung/Lehrbuch.h"

namespace zerna {

namespace {

/// Name, number and unit of a line; nothing if it is to be left out.
std::vector<std::string> groessenzeile(
    const Groesse& zeile, const clsCalc& calc, Dezimaltrenner trenner, Unbekanntes unbekanntes)
{
    const float value = wert(zeile, calc);
    const bool isKnown = !istUnbekannt(value);
    if (!isKnown && unbekanntes == Unbekanntes::Weglassen)
        return {};
    return {std::string(zeile.bezeichnung()), isKnown ? textOfSingle(value, trenner) : std::string(),
        std::string(zeile.einheit)};
}

} // namespace

Tabelle groessentabelle(const clsCalc& calc, Unbekanntes unbekanntes)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}}, {}};
    for (const Groesse& zeile : ergebniszeilen()) {
        if (auto zellen = groessenzeile(zeile, calc, Dezimaltrenner::Punkt, unbekanntes); !zellen.empty())
            tabelle.zeilen.push_back(std::move(zellen));
    }
    return tabelle;
}

Tabelle lehrbuchtabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten, Dezimaltrenner trenner,
    Unbekanntes unbekanntes)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}, {"lehrbuch", true}, {"lehrbucheinheit"}}, {}};
    for (const Groesse& zeile : ergebniszeilen()) {
        auto zellen = groessenzeile(zeile, calc, trenner, unbekanntes);
        if (zellen.empty())
            continue;
        if (const Lehrbucheintrag* const eintrag = abweichungImErgebnis(zeile.zeile)) {
            const float value = lehrbuchwert(*eintrag, calc, komponenten);
            if (!istUnbekannt(value))
                zellen.insert(zellen.end(), {textOfSingle(value, trenner), std::string(eintrag->einheit)});
        }
        tabelle.zeilen.push_back(std::move(zellen));
    }
    return tabelle;
}

} // namespace zerna
