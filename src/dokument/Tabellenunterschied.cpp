#include "dokument/Tabellenunterschied.h"

#include <algorithm>
#include <utility>

#include "core/Kuerzung.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "dokument/Worte.h"
#include "model/eingabe/Komposition.h"
#include "model/eingabe/Massenprozent.h"

namespace zerna {

namespace {

using Wert = Tabellenunterschied::Wert;

/// As converted parts are shown.
std::string anteilstext(float wert)
{
    constexpr int Digits = 7;
    return textWithDigits(wert, Digits);
}

/// The choice itself, or the element's first one if the table does not offer it.
std::string offeredDichte(const clsElement& element, const std::string& wahl)
{
    return hatDichte(element, wahl) ? wahl : std::string(dichteauswahl(element).front());
}

int offeredValenz(const clsElement& element, int wahl)
{
    const auto choices = valenzauswahl(element);
    return std::ranges::count(choices, wahl, &Valenzeintrag::code) > 0 ? wahl : ValenzStandard;
}

std::optional<Tabellenunterschied> dichteunterschied(const Rohzeile& zeile, const clsElement& element)
{
    if (zeile.dichtewahl == AndereWahl)
        return std::nullopt;
    const std::string offered = offeredDichte(element, zeile.dichtewahl);
    const float hier = dichteFor(element, offered);
    const float datei = zahlenfeld(zeile.dichte).wert;
    if (offered == zeile.dichtewahl && datei == hier)
        return std::nullopt;
    return Tabellenunterschied{{}, 0, zeile.element, Wert::Dichte, zeile.dichtewahl, datei, hier};
}

/// A typed valence may be a formula that takes valences from the table.
std::optional<Tabellenunterschied> valenzunterschied(
    const Rohzeile& zeile, float valenz, const clsElement& element, const ElementCollection& elements)
{
    const bool isTyped = zeile.valenzwahl == ValenzAndere;
    const int offered = offeredValenz(element, zeile.valenzwahl);
    const float hier = isTyped ? valenzfeld(zeile.valenzInKraft, elements).wert : valenzFor(element, offered);
    const float datei = isTyped ? valenz : valenzfeld(zeile.valenz, elements).wert;
    if (offered == zeile.valenzwahl && datei == hier)
        return std::nullopt;
    const std::string wahl = isTyped ? zeile.valenzInKraft : std::string(wortFuer(zeile.valenzwahl, Valenzworte));
    return Tabellenunterschied{{}, 0, zeile.element, Wert::Valenz, wahl, datei, hier};
}

/// The at% of each row, if mass % come to others here; nothing where they come to none.
std::vector<Tabellenunterschied> anteilsunterschiede(const Dateilegierung& legierung, const ElementCollection& elements)
{
    if (legierung.roh.quelle != Anteilseinheit::Masse)
        return {};
    const Eingabe here = Eingabe::aus(elements, legierung.roh);
    std::vector<double> anteile;
    std::vector<float> massen;
    bool differs = false;
    for (int i = 0; i < here.anzahl(); ++i) {
        const auto& element = here.zeile(i).element;
        if (!element || here.anteilInKraft(i).fehler)
            return {};
        anteile.push_back(here.anteilInKraft(i).wert);
        massen.push_back(legierung.atommassen.at(static_cast<std::size_t>(i)).value_or(element->Masse()));
        differs |= massen.back() != element->Masse();
    }
    std::vector<Tabellenunterschied> found;
    for (int i = 0; differs && i < here.anzahl(); ++i) {
        const auto datei = static_cast<float>(atomprozente(anteile, massen).at(static_cast<std::size_t>(i)));
        found.push_back({{}, i, here.zeile(i).element->symbol(), Wert::Anteil, {}, datei, here.prozentInKraft(i).wert});
    }
    return found;
}

/// The file's at% become the typed ones; the last row takes what they leave.
void behalteAnteil(Eingabe& eingabe, const Tabellenunterschied& unterschied)
{
    eingabe.setEinheit(Anteilseinheit::Atom);
    if (unterschied.zeile + 1 < eingabe.anzahl())
        eingabe.setProzent(unterschied.zeile, anteilstext(unterschied.datei));
}

void behalte(Rohzeile& zeile, const Tabellenunterschied& unterschied)
{
    if (unterschied.was == Wert::Dichte) {
        zeile.dichtewahl = AndereWahl;
    } else {
        zeile.valenzwahl = ValenzAndere;
        zeile.valenz = zeile.valenzInKraft = feldtext(unterschied.datei);
    }
}

void uebernimm(Rohzeile& zeile, const Tabellenunterschied& unterschied, const ElementCollection& elements)
{
    const auto& element = elements.find(unterschied.element);
    if (unterschied.was == Wert::Dichte) {
        zeile.dichtewahl = offeredDichte(*element, zeile.dichtewahl);
        zeile.dichte = feldtext(unterschied.hier);
        zeile.dichteInKraft = unterschied.hier;
    } else if (zeile.valenzwahl != ValenzAndere) { // a typed formula has been computed with this table already
        zeile.valenzwahl = offeredValenz(*element, zeile.valenzwahl);
        zeile.valenz = zeile.valenzInKraft = feldtext(unterschied.hier);
    }
}

void decide(Dokument& dokument, std::span<const Tabellenunterschied> unterschiede, const ElementCollection& elements,
    bool behaelt)
{
    Vergleich vergleich = *dokument.vergleich;
    for (const Tabellenunterschied& unterschied : unterschiede) {
        Eingabe& eingabe =
            unterschied.variante ? vergleich.varianten.at(*unterschied.variante).eingabe : dokument.eingabe;
        if (unterschied.was == Wert::Anteil) {
            if (behaelt)
                behalteAnteil(eingabe, unterschied);
            continue;
        }
        Rohlegierung roh = eingabe.roh();
        Rohzeile& zeile = roh.zeilen.at(static_cast<std::size_t>(unterschied.zeile));
        if (behaelt)
            behalte(zeile, unterschied);
        else
            uebernimm(zeile, unterschied, elements);
        eingabe = Eingabe::aus(elements, roh);
    }
    dokument.vergleich = std::move(vergleich);
}

} // namespace

std::vector<Tabellenunterschied> unterschiede(
    const Dateilegierung& legierung, const ElementCollection& elements, std::optional<std::size_t> variante)
{
    std::vector<Tabellenunterschied> found;
    const auto add = [&](std::optional<Tabellenunterschied> unterschied, std::size_t zeile) {
        if (!unterschied)
            return;
        unterschied->variante = variante;
        unterschied->zeile = static_cast<int>(zeile);
        found.push_back(*std::move(unterschied));
    };
    for (std::size_t i = 0; i < legierung.roh.zeilen.size(); ++i) {
        const Rohzeile& zeile = legierung.roh.zeilen.at(i);
        const auto& element = elements.find(zeile.element);
        if (!element)
            continue;
        add(dichteunterschied(zeile, *element), i);
        add(valenzunterschied(zeile, legierung.valenzen.at(i), *element, elements), i);
    }
    for (Tabellenunterschied& unterschied : anteilsunterschiede(legierung, elements))
        add(unterschied, static_cast<std::size_t>(unterschied.zeile));
    return found;
}

std::string unterschiedstext(const Tabellenunterschied& unterschied, const Dokument& dokument)
{
    const bool isAnteil = unterschied.was == Wert::Anteil;
    const auto shown = [isAnteil](float value) {
        return istUnbekannt(value) ? "kein Wert" : isAnteil ? anteilstext(value) : feldtext(value);
    };
    const std::string ort = unterschied.variante
        ? "Variante " + zitiert(dokument.vergleich->varianten.at(*unterschied.variante).name) + ", Zeile "
        : "Zeile ";
    const std::string was = isAnteil
        ? "at%"
        : (unterschied.was == Wert::Dichte ? "Dichte (" : "Valenz (") + gekuerzt(unterschied.wahl) + ")";
    return ort + std::to_string(unterschied.zeile + 1) + ": " + was + " von " + unterschied.element + ": "
        + shown(unterschied.datei) + " in der Datei, " + shown(unterschied.hier) + " hier"
        + (isAnteil ? " (andere Atommassen)" : "");
}

void behalteDateiwerte(
    Dokument& dokument, std::span<const Tabellenunterschied> unterschiede, const ElementCollection& elements)
{
    decide(dokument, unterschiede, elements, true);
}

void uebernehmeTabelle(
    Dokument& dokument, std::span<const Tabellenunterschied> unterschiede, const ElementCollection& elements)
{
    decide(dokument, unterschiede, elements, false);
}

} // namespace zerna
