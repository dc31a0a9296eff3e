#include "model/rechnung/Ergebnistabelle.h"

#include "model/rechnung/Groessentabelle.h"

namespace zerna {

Ergebnistabelle ergebnistabelle(
    const clsCalc& calc, std::span<const Legierungskomponente> komponenten, Dezimaltrenner trenner)
{
    Tabelle tabelle = lehrbuchtabelle(calc, komponenten, trenner);
    tabelle.spalten = {{"Größe"}, {"Wert", true}, {"Einheit"}, {"Lehrbuch", true}, {"Einheit"}};
    return {alsText(mitKopf(tabelle)), alsHtml(tabelle)};
}

} // namespace zerna
