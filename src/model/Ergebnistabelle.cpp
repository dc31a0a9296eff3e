#include "model/Ergebnistabelle.h"

#include <utility>

#include "model/Groessentabelle.h"

namespace zerna {

Ergebnistabelle ergebnistabelle(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, Dezimaltrenner trenner)
{
    Tabelle tabelle = lehrbuchtabelle(calc, komponenten, trenner);
    tabelle.spalten = {{"Größe"}, {"Wert", true}, {"Einheit"}, {"Lehrbuch", true}, {"Einheit"}};
    Tabelle mitKopf = tabelle;
    std::vector<std::string> kopf;
    for (const Tabelle::Spalte& spalte : tabelle.spalten)
        kopf.emplace_back(spalte.name);
    mitKopf.zeilen.insert(mitKopf.zeilen.begin(), std::move(kopf));
    return {alsText(mitKopf), alsHtml(tabelle)};
}

} // namespace zerna
