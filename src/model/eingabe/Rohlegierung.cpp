#include "model/eingabe/Rohlegierung.h"

#include "core/Unbekannt.h"
#include "model/eingabe/Eingabe.h"

namespace zerna {

namespace {

/// What a kept density came to: "<unbekannt>" is the table's, unless it was typed.
Eingabefeld dichtefeld(const Rohzeile& roh)
{
    const bool isChosen = roh.dichtewahl != AndereWahl && roh.dichte == UnbekannterWert;
    return isChosen ? Eingabefeld{feldtext(Unbekannt), Unbekannt} : zahlenfeld(roh.dichte);
}

Eingabe::Zeile zeileAus(const ElementCollection& elements, const Rohzeile& roh)
{
    Eingabe::Zeile zeile;
    zeile.prozent = zahlenfeld(roh.prozent);
    zeile.element = elements.find(roh.element);
    if (!zeile.element)
        return zeile;
    zeile.dichtewahl = roh.dichtewahl;
    zeile.dichte = dichtefeld(roh);
    zeile.valenzwahl = roh.valenzwahl;
    zeile.valenz = valenzfeld(roh.valenz, elements);
    zeile.inKraft = {roh.dichteInKraft, roh.valenzInKraft, valenzfeld(roh.valenzInKraft, elements).wert};
    return zeile;
}

} // namespace

Eingabe Eingabe::aus(const ElementCollection& elements, const Rohlegierung& roh)
{
    Eingabe eingabe(elements);
    eingabe.setAnzahl(roh.anzahl);
    for (std::size_t i = 0; i < roh.zeilen.size(); ++i)
        eingabe.m_zeilen.at(i) = zeileAus(elements, roh.zeilen.at(i));
    eingabe.takeRest(roh.rest);
    eingabe.m_nachgeschlagen.element = elements.find(roh.nachgeschlagen);
    eingabe.m_einheit = roh.einheit;
    eingabe.m_quelle = roh.quelle;
    eingabe.convert();
    return eingabe;
}

Rohlegierung Eingabe::roh() const
{
    Rohlegierung roh{m_anzahl, {}, m_rest.text, m_nachgeschlagen.element ? m_nachgeschlagen.element->symbol() : "",
        m_einheit, m_quelle};
    for (std::size_t i = 0; i < m_zeilen.size(); ++i) {
        const Zeile& row = m_zeilen.at(i);
        roh.zeilen.at(i) = {row.element ? row.element->symbol() : "", row.prozent.text, row.dichtewahl, row.dichte.text,
            row.valenzwahl, row.valenz.text, row.inKraft.dichte, row.inKraft.valenztext};
    }
    return roh;
}

} // namespace zerna
