#include "cli/Bildoptionen.h"

#include <algorithm>
#include <span>
#include <utility>

#include "core/Kuerzung.h"
#include "core/Zahlentext.h"
#include "model/reihen/Ternaergitter.h"
#include "programm/Rechenkern.h"

namespace zerna {

namespace {

struct Artname {
    const char* name;
    Diagrammtyp typ;
};

constexpr std::array<Artname, 4> Arten{{{"konzentration", Diagrammtyp::Konzentration},
    {"ternaer", Diagrammtyp::Ternaer}, {"elemente", Diagrammtyp::PSE}, {"messkurve", Diagrammtyp::Messkurve}}};

/// Options for bildmasse().
constexpr std::array<const char*, 5> Massnamen{"--breite", "--hoehe", "--schriftgroesse", "--linie", "--aufloesung"};

constexpr std::array<std::pair<const char*, Bildart>, 3> Endungen{
    {{".png", Bildart::PNG}, {".svg", Bildart::SVG}, {".pdf", Bildart::PDF}}};

const char* nameOf(Diagrammtyp typ) { return std::ranges::find(Arten, typ, &Artname::typ)->name; }

/// The kind of file that a name means.
Bildart bildart(const std::string& ziel)
{
    for (const auto& [endung, art] : Endungen) {
        if (lowerCase(ziel).ends_with(endung))
            return art;
    }
    throw unerwartet("--ziel", ziel, "eine Datei *.png, *.svg oder *.pdf");
}

} // namespace

void Bildoptionen::define(CLI::App& befehl)
{
    befehl.add_option("--ziel", ziel, "Datei, die geschrieben wird: *.png, *.svg oder *.pdf")
        ->required()
        ->option_text("DATEI");
    befehl
        .add_option(
            "--art", art, "konzentration, ternaer, elemente oder messkurve; sonst die der Datei oder konzentration")
        ->option_text("ART");
    groesse.define(befehl, "--groesse", "Name oder Kennzahl der Größe, nötig ohne Datei");
    befehl.add_option("--variabel", variabel, "Komponente entlang der Achse, sonst die erste")->option_text("SYMBOL");
    befehl.add_flag("--mischungsreihe", schalter.mischungsreihe, "Nur die Kurve, auf der die Summe 100 % ist");
    befehl.add_flag("--ganze-kurve", schalter.ganzeKurve, "Achse für alle Werte der Kurve");
    zweite.define(befehl, "--zweite-groesse", "Zweite Größe, Achse rechts");
    befehl.add_flag("--varianten", varianten, "Auch die in der Datei gemerkten Legierungen");
    befehl.add_flag("--kristallin", kristallin, "Elemente: auch mit der kristallinen Dichte");
    befehl.add_flag("--ohne-symbole", ohneSymbole, "Elemente: ohne Symbole an den Punkten");
    befehl.add_flag("--flach", flach, "Ternäres Diagramm von oben");
    schritte.define(befehl, "--schritte", "Auflösung des ternären Diagramms, 1 bis 10");
    for (std::size_t i = 0; i < Massnamen.size(); ++i) {
        const Bildmass& mass = bildmasse()[i];
        befehl
            .add_option(Massnamen.at(i), masse.at(i),
                std::string(mass.name) + " in " + std::string(mass.einheit) + ", voreingestellt "
                    + textOfDouble(Bildvorgabe().*mass.wert))
            ->option_text("ZAHL");
    }
    befehl.add_option("--schrift", schrift, "Schrift, voreingestellt " + Bildvorgabe().schrift)->option_text("NAME");
    befehl.add_option("--dezimal", dezimal, "komma oder punkt an den Achsen")->option_text("ZEICHEN");
    befehl.add_flag("--grau", grau, "Graustufen statt Farben");
    befehl.add_flag("--ohne-titel", ohneTitel, "Ohne Größe und Legierung über dem Bild");
    befehl.add_flag("--ohne-legende", ohneLegende, "Ohne Legende");
    befehl.add_flag("--gegebene-teilung", gegebeneTeilung, "Teilung der Achsen wie auf dem Schirm statt runder Werte");
    komponenten.define(befehl)->required(false);
}

Bildvorgabe Bildoptionen::vorgabe() const
{
    Bildvorgabe result{.grau = grau, .titel = !ohneTitel, .legende = !ohneLegende, .rundeTeilung = !gegebeneTeilung};
    for (std::size_t i = 0; i < masse.size(); ++i) {
        const Bildmass& mass = bildmasse()[i];
        if (masse.at(i).empty())
            continue;
        const auto value = masszahl(mass, masse.at(i));
        if (!value)
            throw Aufruffehler(std::string(Massnamen.at(i)) + " " + gekuerzt(masse.at(i)) + ": " + erwartung(mass));
        result.*mass.wert = *value;
    }
    if (const std::string grund = zuGross(result); !grund.empty())
        throw Aufruffehler(grund);
    if (!schrift.empty())
        result.schrift = schrift;
    if (!dezimal.empty() && dezimal != "komma" && dezimal != "punkt")
        throw unerwartet("--dezimal", dezimal, "komma oder punkt");
    result.dezimal = dezimal == "punkt" ? Dezimaltrenner::Punkt : Dezimaltrenner::Komma;
    result.art = bildart(ziel);
    return result;
}

std::optional<Diagrammtyp> Bildoptionen::typ() const
{
    if (art.empty())
        return std::nullopt;
    const auto* const found = std::ranges::find(Arten, art, &Artname::name);
    if (found == Arten.end())
        throw unerwartet("--art", art, "konzentration, ternaer, elemente oder messkurve");
    return found->typ;
}

/// Throws for an option that a kind of diagram does not have.
void Bildoptionen::checkOptions(Diagrammtyp chosen) const
{
    const auto require = [chosen](bool isGiven, const char* option, Diagrammtyp needed) {
        if (isGiven && chosen != needed)
            throw Aufruffehler(std::string(option) + " gibt es nur mit --art " + nameOf(needed));
    };
    require(!variabel.empty(), "--variabel", Diagrammtyp::Konzentration);
    require(schalter.mischungsreihe, "--mischungsreihe", Diagrammtyp::Konzentration);
    require(schalter.ganzeKurve, "--ganze-kurve", Diagrammtyp::Konzentration);
    require(!zweite.text.empty(), "--zweite-groesse", Diagrammtyp::Konzentration);
    require(varianten, "--varianten", Diagrammtyp::Konzentration);
    require(kristallin, "--kristallin", Diagrammtyp::PSE);
    require(ohneSymbole, "--ohne-symbole", Diagrammtyp::PSE);
    require(flach, "--flach", Diagrammtyp::Ternaer);
    require(!schritte.text.empty(), "--schritte", Diagrammtyp::Ternaer);
    if (!groesse.text.empty() && chosen == Diagrammtyp::Messkurve)
        throw Aufruffehler("--groesse gibt es bei --art messkurve nicht");
}

void Bildoptionen::check() const
{
    vorgabe();
    if (const auto chosen = typ())
        checkOptions(*chosen);
    if (komponenten.texte.empty() && typ() != Diagrammtyp::PSE)
        throw fehlendesArgument("komponenten");
    if (!groesse.text.empty())
        groesse.check(typ() == Diagrammtyp::PSE ? Groessenart::Element : Groessenart::Legierung);
}

Diagrammwahl Bildoptionen::wahl(const std::optional<Dokument>& file, const Rechenkern& kern) const
{
    Diagrammwahl result = file ? file->diagramm : Diagrammwahl{.aufloesung = FeinsteAufloesung, .ansicht = {}};
    const auto chosen = typ();
    const bool isOther = chosen && chosen != result.typ;
    if (chosen)
        wechsleTyp(result, *chosen);
    checkOptions(result.typ);
    if (result.typ == Diagrammtyp::Messkurve)
        return result;
    const bool isPSE = result.typ == Diagrammtyp::PSE;
    if (!groesse.text.empty())
        result.groesse = groesse.kennzahl(isPSE ? Groessenart::Element : Groessenart::Legierung);
    else if (!file || isOther)
        throw fehlendesArgument("--groesse");
    if (varianten && (!file || file->vergleich->varianten.empty()))
        throw Aufruffehler("--varianten gibt es nur mit einer Datei, in der Legierungen gemerkt sind");
    choose(result, kern);
    return isPSE ? result : passendeWahl(result, kern.eingabe().anzahl());
}

/// Takes what only one kind of diagram has; its options are those of the kind.
void Bildoptionen::choose(Diagrammwahl& result, const Rechenkern& kern) const
{
    if (result.typ == Diagrammtyp::Ternaer)
        requireTernaer(kern.komponenten().size());
    if (!variabel.empty())
        result.komponente = static_cast<int>(indexOfVariable(variabel, kern.elements(), kern.komponenten()));
    if (!zweite.text.empty())
        result.zweiteGroesse = zweite.kennzahl(Groessenart::Legierung);
    if (!zweite.text.empty() && result.zweiteGroesse == result.groesse)
        throw unerwartet(zweite.name, zweite.text, "eine andere als die erste");
    if (!schritte.text.empty())
        result.aufloesung = schritte.wert(1, FeinsteAufloesung);
    result.varianten = result.varianten || varianten;
    result.ansicht.flach = result.ansicht.flach || flach;
}

} // namespace zerna
