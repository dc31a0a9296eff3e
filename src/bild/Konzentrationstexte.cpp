#include "bild/Konzentrationstexte.h"

#include <vector>

#include "core/Anzeigetext.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/eingabe/Formeltext.h"

namespace zerna {

namespace {

constexpr int Stellen = 6; // of numbers that are read, not computed with

std::string prozenttext(const Eingabe& eingabe, int zeile)
{
    return textWithDigits(eingabe.prozentInKraft(zeile).wert, Stellen);
}

/// "z = 3", "Dichte unbekannt" or the like.
std::string angabe(std::string_view vor, float wert, std::string_view einheit, std::string_view ohneWert)
{
    if (istUnbekannt(wert))
        return std::string(ohneWert);
    return std::string(vor) + anzeigetext(textWithDigits(wert, Stellen)) + std::string(einheit);
}

bool istErsteMit(const Eingabe& eingabe, int zeile)
{
    for (int i = 0; i < zeile; ++i) {
        if (eingabe.zeile(i).element == eingabe.zeile(zeile).element)
            return false;
    }
    return true;
}

/// Intended: the unit over compositions is not always that of the number, which is said behind it.
std::string zahleinheit(const Groesse& groesse)
{
    return groesse.einheit == groesse.reiheneinheit ? "" : " (Zahl in " + std::string(groesse.einheit) + ")";
}

} // namespace

std::string groessentitel(const Groesse& groesse)
{
    return std::string(groesse.name) + " [" + std::string(groesse.reiheneinheit) + "]" + zahleinheit(groesse);
}

std::string ableseeinheit(const Groesse& groesse) { return std::string(groesse.reiheneinheit) + zahleinheit(groesse); }

std::string legierungsname(const Eingabe& eingabe)
{
    std::string name = formeltext(eingabe, Formelschrift::Einfach);
    if (!name.empty())
        return name;
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const auto& element = eingabe.zeile(i).element;
        name += (i == 0 ? "" : ", ") + (element ? element->symbol() : std::string("?")) + ' ' + prozenttext(eingabe, i);
    }
    return name + " at%";
}

std::string komponententext(const std::string& symbol, float dichte, float valenz)
{
    return symbol + ": " + angabe("", dichte == 0 ? Unbekannt : dichte, " g/cm³", "Dichte unbekannt") + ", "
        + angabe("z = ", valenz, "", "z unbekannt");
}

std::string legierungstext(const Eingabe& eingabe)
{
    std::string text = legierungsname(eingabe);
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const Eingabe::Zeile& zeile = eingabe.zeile(i);
        if (!zeile.element || !istErsteMit(eingabe, i))
            continue;
        text += (i == 0 ? " – " : "; ")
            + komponententext(zeile.element->symbol(), zeile.inKraft.dichte, zeile.inKraft.valenz);
    }
    return text;
}

std::string reihenname(const Groesse& groesse, Reihenart art)
{
    if (art == Reihenart::Summe100)
        return "Mischungsreihe (Summe 100 %)";
    return groesse.kennzahl == GroesseDichte ? "Dichten über at% gemittelt" : "Anteile wie eingetragen";
}

std::string kurvenname(const GehalteneKurve& kurve)
{
    return kurve.name + " über " + kurve.symbol + (kurve.art == Reihenart::Summe100 ? ", Summe 100 %" : "");
}

std::string abweichungsgrund(const Groesse& groesse, const Eingabe& eingabe, int variable, Reihenart art)
{
    if (groesse.kennzahl == GroesseDichte) {
        const std::string wer = art == Reihenart::Summe100 ? "Das Ergebnis" : "Die Kurve";
        return wer + " mittelt die Dichten über die at%, die Mischungsreihe teilt Masse durch Volumen.";
    }
    return "Die Kurve führt nicht durch die Legierung: Weil " + eingabe.zeile(variable).element->symbol() + " mit "
        + prozenttext(eingabe, variable) + " at% eingetragen ist, ergeben ihre Anteile nicht überall 100 %.";
}

} // namespace zerna
