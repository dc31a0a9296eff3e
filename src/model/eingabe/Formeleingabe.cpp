#include "model/eingabe/Formeleingabe.h"

namespace zerna {

namespace {

/// The row in use that has the element; null if there is none.
const Eingabe::Zeile* rowOf(const Eingabe& eingabe, const std::shared_ptr<clsElement>& element)
{
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        if (eingabe.zeile(i).element == element)
            return &eingabe.zeile(i);
    }
    return nullptr;
}

} // namespace

Aenderung setLegierung(Eingabe& eingabe, const Legierungsformel& formel)
{
    const Eingabe before = eingabe;
    Aenderung aenderung{.anteil = true};
    const int anzahl = static_cast<int>(formel.komponenten().size());
    aenderung.anzahl = anzahl != before.anzahl();
    eingabe.setAnzahl(anzahl);
    for (int zeile = 0; const Formelkomponente& komponente : formel.komponenten()) {
        if (eingabe.zeile(zeile).element != komponente.element) {
            eingabe.waehleElement(zeile, komponente.element->symbol());
            if (const Eingabe::Zeile* const from = rowOf(before, komponente.element))
                eingabe.setDichteUndValenz(zeile, *from);
            aenderung.element = aenderung.dichte = aenderung.valenz = true;
        }
        ++zeile;
    }
    eingabe.setEinheit(formel.einheit());
    for (int zeile = 0; zeile < anzahl; ++zeile)
        eingabe.setProzentOhneAusgleich(zeile, formel.prozenttext(static_cast<std::size_t>(zeile)));
    eingabe.gleicheAus();
    return aenderung;
}

} // namespace zerna
