#include "model/suche/Suchtabelle.h"

namespace zerna {

Tabelle loesungstabelle(const clsCalc& calc, std::span<const Legierungskomponente> komponenten,
    const Anteilsfrage& frage, const Zielantwort& antwort, Dezimaltrenner trenner)
{
    Tabelle tabelle;
    for (const Legierungskomponente& komponente : komponenten)
        tabelle.spalten.push_back({komponente.element->symbol() + " [at%]", true});
    tabelle.spalten.push_back({std::string(findReihengroesse(frage.groesse)->einheit), true});
    for (const Loesung& loesung : antwort.loesungen) {
        std::vector<std::string>& zeile = tabelle.zeilen.emplace_back();
        const auto parts = zusammensetzung(calc, komponenten, frage, loesung.prozent);
        for (std::size_t j = 0; j < komponenten.size(); ++j)
            zeile.push_back(anteiltext(parts.at(j), trenner));
        zeile.push_back(textOfSingle(loesung.wert, trenner));
    }
    return tabelle;
}

Tabelle rangtabelle(const Rangliste& rangliste, const Groesse& groesse, Dezimaltrenner trenner)
{
    constexpr int SureDigits = 4; // of a difference of two singles
    Tabelle tabelle{{{"element"}, {"wert", true}, {"einheit"}, {"abweichung", true}}, {}};
    for (const Drittelement& rang : rangliste.elemente)
        tabelle.zeilen.push_back({rang.element->symbol(), textOfSingle(rang.wert, trenner),
            std::string(groesse.einheit), textWithDigits(rang.abweichung, SureDigits, trenner)});
    return tabelle;
}

} // namespace zerna
