#include "model/Groessentabelle.h"

#include "core/CheckedArithmetic.h"
#include "model/Groessen.h"
#include "model/Lehrbuch.h"

namespace zerna {

namespace {

/// Name, number and unit of a line; nothing if the number is unknown.
std::vector<std::string> groessenzeile(const Groesse& zeile, const clsCalc& calc, Dezimaltrenner trenner)
{
    const float value = wert(zeile, calc);
    if (istUnbekannt(value))
        return {};
    return {std::string(zeile.bezeichnung()), textOfSingle(value, trenner), std::string(zeile.einheit)};
}

} // namespace

Tabelle groessentabelle(const clsCalc& calc)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}}, {}};
    for (const Groesse& zeile : ergebniszeilen()) {
        if (auto zellen = groessenzeile(zeile, calc, Dezimaltrenner::Punkt); !zellen.empty())
            tabelle.zeilen.push_back(std::move(zellen));
    }
    return tabelle;
}

Tabelle lehrbuchtabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten, Dezimaltrenner trenner)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}, {"lehrbuch", true}, {"lehrbucheinheit"}}, {}};
    for (const Groesse& zeile : ergebniszeilen()) {
        auto zellen = groessenzeile(zeile, calc, trenner);
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
