#include "cli/Suche.h"

#include <algorithm>
#include <iostream>

#include "cli/Umgebung.h"
#include "core/Kuerzung.h"
#include "model/Anteilssuche.h"
#include "model/Drittelement.h"
#include "model/Konzentrationsreihe.h"
#include "model/Tabelle.h"

namespace zerna {

namespace {

float zahl(const std::string& option, const std::string& text)
{
    const Eingabefeld feld = zahlenfeld(text);
    if (feld.fehler)
        throw Aufruffehler(option + " " + gekuerzt(text) + ": keine gültige Zahl");
    return feld.wert;
}

std::string inFile(float value) { return textOfSingle(value, Dezimaltrenner::Punkt); }

/// Without a sum there is no ratio to be kept.
void requireSum(std::span<const Legierungskomponente> alloy)
{
    double sum = 0;
    for (const Legierungskomponente& komponente : alloy)
        sum += komponente.prozent;
    if (sum == 0)
        throw Aufruffehler(
            "Die Anteile ergeben zusammen 0 at%, neben einem weiteren Element haben sie kein Verhältnis");
}

/// A row would not tell which of them it means.
void requireDistinct(std::span<const Legierungskomponente> alloy)
{
    for (const Legierungskomponente& komponente : alloy) {
        if (std::ranges::count(alloy, komponente.element, &Legierungskomponente::element) > 1)
            throw Aufruffehler("Element " + zitiert(komponente.element->symbol())
                + " steht mehrmals in der Legierung, erwartet wird eine Komponente je Element");
    }
}

/// A column per component, then the value with its unit.
Tabelle answersAsTable(const clsCalc& calc, std::span<const Legierungskomponente> alloy, const Anteilsfrage& frage,
    const Zielantwort& antwort)
{
    Tabelle tabelle;
    for (const Legierungskomponente& komponente : alloy)
        tabelle.spalten.push_back({komponente.element->symbol(), true});
    tabelle.spalten.insert(tabelle.spalten.end(), {{"wert", true}, {"einheit"}});
    for (const Loesung& loesung : antwort.loesungen) {
        std::vector<std::string>& zeile = tabelle.zeilen.emplace_back();
        const auto parts = zusammensetzung(calc, alloy, frage, loesung.prozent);
        for (std::size_t j = 0; j < alloy.size(); ++j)
            zeile.push_back(anteiltext(parts.at(j), Dezimaltrenner::Punkt));
        zeile.insert(zeile.end(), {inFile(loesung.wert), std::string(reiheneinheit(frage.groesse))});
    }
    return tabelle;
}

/// As the file of a series has it: at% of each component, then the value below its unit.
std::string answersAsText(Tabelle tabelle, std::string_view einheit)
{
    for (Tabelle::Spalte& spalte : tabelle.spalten)
        spalte.name += " [at%]";
    tabelle.spalten.pop_back();
    tabelle.spalten.back().name = einheit;
    for (std::vector<std::string>& zeile : tabelle.zeilen)
        zeile.pop_back();
    return alsText(mitKopf(std::move(tabelle)));
}

} // namespace

void Suche::define(CLI::App& befehl)
{
    groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
    befehl.add_option("--ziel", ziel, "gesuchter Wert")->required()->option_text("ZAHL");
    befehl.add_option("--variabel", variabel, "Komponente, deren Anteil gesucht wird")->option_text("SYMBOL");
    befehl.add_flag("--mischungsreihe", mischungsreihe,
        "Die anderen Komponenten behalten ihr Verhältnis und teilen sich den ganzen Rest (Summe 100 %)");
    befehl
        .add_option("--dritte", dritte, "Statt eines Anteils: welches weitere Element, mit so vielen at%, kommt nahe?")
        ->option_text("ATPROZENT");
    form.define(befehl);
    komponenten.define(befehl);
    ausgabe.define(befehl);
}

void Suche::run(Umgebung& umgebung) const
{
    const int kennzahl = reihenkennzahl(groesse);
    const float wanted = zahl("--ziel", ziel);
    if (dritte.empty())
        return searchPart(umgebung, kennzahl, wanted);
    if (!variabel.empty() || mischungsreihe)
        throw Aufruffehler("--variabel und --mischungsreihe gibt es nicht mit --dritte");
    rankElements(umgebung, kennzahl, wanted);
}

void Suche::searchPart(Umgebung& umgebung, int kennzahl, float wanted) const
{
    if (variabel.empty())
        throw Aufruffehler("Es fehlt das Argument --variabel oder --dritte (Hilfe: zerna-cli --hilfe)");
    umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
    const clsCalc& calc = umgebung.kern().calc();
    const auto alloy = umgebung.kern().komponenten();
    if (alloy.size() == 1)
        throw Aufruffehler("Ein Anteil lässt sich erst ab zwei Komponenten suchen");
    const std::size_t index = indexOfVariable(variabel, umgebung.kern().elements(), alloy);
    requireDistinct(alloy);
    const Anteilsfrage frage{.groesse = kennzahl,
        .ziel = wanted,
        .komponente = static_cast<int>(index),
        .art = mischungsreihe ? Reihenart::Summe100 : Reihenart::Gegeben};
    const Zielantwort antwort = sucheAnteil(calc, alloy, frage);
    const std::string satz = antwortsatz(antwort, frage, alloy[index].element->symbol());
    if (!satz.empty() && !antwort.ueberall)
        throw Datenfehler(satz);
    if (!satz.empty())
        std::cerr << "zerna-cli: " << satz << '\n';
    const Tabelle tabelle = answersAsTable(calc, alloy, frage, antwort);
    put(form.json ? alsJson(tabelle) : answersAsText(tabelle, reiheneinheit(kennzahl)), ausgabe.datei);
}

void Suche::rankElements(Umgebung& umgebung, int kennzahl, float wanted) const
{
    const float prozent = zahl("--dritte", dritte);
    if (prozent <= 0 || prozent >= 100)
        throw Aufruffehler("--dritte " + gekuerzt(dritte) + ": erwartet wird eine Zahl zwischen 0 und 100");
    umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
    const auto alloy = umgebung.kern().komponenten();
    if (alloy.size() == MaxKomponenten)
        throw Aufruffehler("Zu fünf Komponenten gibt es keine weitere");
    constexpr int SureDigits = 4; // of a difference of two singles
    requireSum(alloy);
    const Groesse& gesucht = *findReihengroesse(kennzahl);
    const Rangliste liste =
        drittelemente(umgebung.kern().calc(), umgebung.kern().elements(), alloy, prozent, gesucht, wanted);
    Tabelle tabelle{{{"element"}, {"wert", true}, {"einheit"}, {"abweichung", true}}, {}};
    for (const Drittelement& rang : liste.elemente)
        tabelle.zeilen.push_back({rang.element->symbol(), inFile(rang.wert), std::string(gesucht.reiheneinheit),
            textWithDigits(rang.abweichung, SureDigits, Dezimaltrenner::Punkt)});
    put(form.json ? alsJson(tabelle) : alsText(tabelle), ausgabe.datei);
    if (!liste.ohneDaten.empty())
        std::cerr << "zerna-cli: " << ohneDatenSatz(liste) << '\n';
}

} // namespace zerna
