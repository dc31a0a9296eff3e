#include "model/rechnung/Ergebnislage.h"

namespace zerna {

bool Ergebnislage::istFehler() const
{
    if (!getippt.empty())
        return !tippfehler.empty();
    return befund && befund->schwere == Schwere::Fehler;
}

std::string Ergebnislage::text() const
{
    if (!tippfehler.empty())
        return tippfehler + " Zurück zur Zusammensetzung.";
    if (!getippt.empty())
        return getippt + ": eingetippt, gilt bis zur nächsten Änderung. Zurück zur Zusammensetzung.";
    if (gehoertZu.empty())
        return befundtext;
    return befundtext + " Die Ergebnisse gehören zu " + gehoertZu + ".";
}

bool Ergebnislage::zaehlt(const Groesse& groesse) const
{
    const bool followsKf2 = groesse.grundlage == Grundlage::Kf2 || groesse.grundlage == Grundlage::Wellenlaenge;
    return !istFehler() && (!kf2Getippt || followsKf2);
}

std::string Ergebnislage::kopierfrage() const { return istFehler() ? text() : std::string(); }

std::string Ergebnislage::speicherfrage() const
{
    if (getippt.empty() || istFehler())
        return kopierfrage();
    return "Die Ergebnisse gehören nicht zu den Komponenten, die mit ihnen gespeichert werden.\r\nEingetippt: "
        + getippt + '.';
}

Ergebnislage ergebnislage(const Eingabe& eingabe, const Eingabe& gerechnet, const clsCalc& calc)
{
    const std::vector<Befund> alle = befunde(eingabe);
    Ergebnislage lage;
    if (const Befund* const found = wichtigster(alle))
        lage.befund = *found;
    if (!eingabe.istVollstaendig())
        lage.gehoertZu = gerechnet.istVollstaendig() ? zusammensetzung(gerechnet) : ""; // else there are no results
    else if (!lage.istFehler()) {
        if (const auto mittel = mittelbefund(eingabe, calc)) {
            lage.befund = mittel;
            const bool hasParticles = wert(ergebniszeile(Teilchenzeile), calc) > 0;
            const int density = hasParticles ? Dichtezeile : Teilchenzeile;
            lage.mittelzeile = mittel->ort == Eingabeort::Valenz ? Valenzzeile : density;
        }
    }
    if (lage.befund)
        lage.befundtext = befundtext(eingabe, *lage.befund);
    return lage;
}

} // namespace zerna
