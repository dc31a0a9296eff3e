#include "model/reihen/Wertetabellen.h"

#include "core/Zahlentext.h"
#include "model/rechnung/Groessennamen.h"

namespace zerna {

namespace {

std::string number(float value)
{
    return istUnbekannt(value) ? std::string() : textOfSingle(value, Dezimaltrenner::Punkt);
}

} // namespace

Tabelle reihentabelle(const std::string& symbol, const Groesse& groesse, const Reihe& reihe, int schritt)
{
    Tabelle tabelle{{{"name"}, {symbol, true}, {"wert", true}, {"einheit"}}, {}};
    const std::string name(groesse.bezeichnung());
    for (std::size_t i = 0; i < reihe.size(); i += static_cast<std::size_t>(schritt))
        tabelle.zeilen.push_back({name, std::to_string(i), number(reihe.at(i)), std::string(groesse.einheit)});
    return tabelle;
}

Tabelle psetabelle(const ElementCollection& elements, const Groesse& groesse, const PSEReihe& reihe)
{
    Tabelle tabelle{{{"name"}, {"element"}, {"oz", true}, {"wert", true}, {"einheit"}}, {}};
    for (std::size_t i = 0; const auto& element : elements) {
        tabelle.zeilen.push_back({std::string(groesse.name), element->symbol(), number(reihe.x.at(i)),
            number(reihe.y.at(i)), std::string(einheitVon(groesse))});
        ++i;
    }
    return tabelle;
}

Tabelle ternaertabelle(const Groesse& groesse, const Ternaergitter& gitter)
{
    Tabelle tabelle{{{"name"}}, {}};
    for (const std::string& symbol : gitter.symbole)
        tabelle.spalten.push_back({symbol, true});
    tabelle.spalten.insert(tabelle.spalten.end(), {{"wert", true}, {"einheit"}});
    const auto prozent = [&gitter](int part) { return number(static_cast<float>(100.0 * part / gitter.n)); };
    for (int i = 0; i <= gitter.n; ++i) {
        for (int j = 0; i + j <= gitter.n; ++j)
            tabelle.zeilen.push_back({std::string(groesse.bezeichnung()), prozent(i), prozent(j),
                prozent(gitter.n - i - j), number(gitter.wert(i, j)), std::string(groesse.einheit)});
    }
    return tabelle;
}

} // namespace zerna
