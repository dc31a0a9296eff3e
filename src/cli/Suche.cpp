#include "cli/Suche.h"

#include <algorithm>

#include "cli/Umgebung.h"
#include "core/Kuerzung.h"
#include "model/suche/Suchtabelle.h"

namespace zerna {

namespace {

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

/// For JSON: keys that do not depend on the quantity.
Tabelle withKeys(Tabelle tabelle, std::span<const Legierungskomponente> alloy, std::string_view einheit)
{
    for (std::size_t j = 0; j < alloy.size(); ++j)
        tabelle.spalten.at(j).name = alloy[j].element->symbol();
    tabelle.spalten.back().name = "wert";
    tabelle.spalten.push_back({"einheit"});
    for (std::vector<std::string>& zeile : tabelle.zeilen)
        zeile.emplace_back(einheit);
    return tabelle;
}

} // namespace

void Suche::define(CLI::App& befehl)
{
    groesse.define(befehl, "--groesse", Groessenhilfe)->required();
    ziel.define(befehl, "--ziel", "gesuchter Wert")->required();
    befehl.add_option("--variabel", variabel, "Komponente, deren Anteil gesucht wird")->option_text("SYMBOL");
    befehl.add_flag("--mischungsreihe", mischungsreihe,
        "Die anderen Komponenten behalten ihr Verhältnis und teilen sich den ganzen Rest (Summe 100 %)");
    dritte.define(befehl, "--dritte", "Statt eines Anteils: welches weitere Element, mit so vielen at%, kommt nahe?")
        ->option_text("ATPROZENT");
    form.define(befehl);
    komponenten.define(befehl);
    ausgabe.define(befehl);
}

void Suche::run(Umgebung& umgebung) const
{
    const int kennzahl = groesse.kennzahl(Groessenart::Legierung);
    const float wanted = ziel.wert();
    if (dritte.text.empty())
        return searchPart(umgebung, kennzahl, wanted);
    if (!variabel.empty() || mischungsreihe)
        throw Aufruffehler("--variabel und --mischungsreihe gibt es nicht mit --dritte");
    rankElements(umgebung, kennzahl, wanted);
}

void Suche::searchPart(Umgebung& umgebung, int kennzahl, float wanted) const
{
    if (variabel.empty())
        throw fehlendesArgument("--variabel oder --dritte");
    umgebung.loadAlloy(komponenten);
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
        melde(satz);
    const Tabelle tabelle = loesungstabelle(calc, alloy, frage, antwort, Dezimaltrenner::Punkt);
    put(form.json ? alsJson(withKeys(tabelle, alloy, findReihengroesse(kennzahl)->einheit)) : alsText(mitKopf(tabelle)),
        ausgabe.datei);
}

void Suche::rankElements(Umgebung& umgebung, int kennzahl, float wanted) const
{
    const float prozent = dritte.wert();
    if (prozent <= 0 || prozent >= 100)
        throw unerwartet(dritte.name, dritte.text, "eine Zahl zwischen 0 und 100");
    umgebung.loadAlloy(komponenten);
    const auto alloy = umgebung.kern().komponenten();
    if (alloy.size() == MaxKomponenten)
        throw Aufruffehler("Zu fünf Komponenten gibt es keine weitere");
    requireSum(alloy);
    const Groesse& gesucht = *findReihengroesse(kennzahl);
    const Rangliste liste =
        drittelemente(umgebung.kern().calc(), umgebung.kern().elements(), alloy, prozent, gesucht, wanted);
    const Tabelle tabelle = rangtabelle(liste, gesucht, Dezimaltrenner::Punkt);
    put(form.text(tabelle), ausgabe.datei);
    if (!liste.ohneDaten.empty())
        melde(ohneDatenSatz(liste));
}

} // namespace zerna
