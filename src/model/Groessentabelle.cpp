#include "model/Groessentabelle.h"

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/Ergebnisse.h"

namespace zerna {

Tabelle groessentabelle(const clsCalc& calc)
{
    Tabelle tabelle{{{"name"}, {"wert", true}, {"einheit"}}, {}};
    for (const Ergebniszeile& zeile : ergebniszeilen()) {
        const float value = orUnbekannt([&] { return zeile.value(calc); });
        if (istUnbekannt(value))
            continue;
        const std::string_view name = zeile.caption.substr(0, zeile.caption.size() - 1);
        tabelle.zeilen.push_back(
            {std::string(name), textOfSingle(value, Dezimaltrenner::Punkt), std::string(zeile.unit)});
    }
    return tabelle;
}

} // namespace zerna
