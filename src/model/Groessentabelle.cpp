#include "model/Groessentabelle.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/Groessen.h"

namespace zerna {

Tabelle groessentabelle(const clsCalc& calc)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}}, {}};
    for (const Groesse& zeile : ergebniszeilen()) {
        const float value = orUnbekannt([&] { return zeile.wert(calc); });
        if (istUnbekannt(value))
            continue;
        tabelle.zeilen.push_back(
            {std::string(zeile.bezeichnung()), textOfSingle(value, Dezimaltrenner::Punkt), std::string(zeile.einheit)});
    }
    return tabelle;
}

} // namespace zerna
