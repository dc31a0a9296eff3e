#include "cli/Befehle.h"

#include <algorithm>
#include <memory>

#include "cli/Argumente.h"
#include "cli/Umgebung.h"
#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "model/Einwaage.h"
#include "model/Ergebnisse.h"
#include "model/Groessentabelle.h"
#include "model/Konzentrationsreihe.h"
#include "model/PSEReihe.h"
#include "model/Ternaergitter.h"

namespace zerna {

namespace {

CLI::App& addBefehl(CLI::App& parent, const char* name, const char* beschreibung)
{
    CLI::App* const befehl = parent.add_subcommand(name, beschreibung);
    befehl->option_defaults()->group("Optionen");
    befehl->group("Befehle");
    return *befehl;
}

/// Makes the command carry out `run(Umgebung&)` of its options, which live as long as it.
template <class Optionen>
void onCall(CLI::App& befehl, Umgebung& umgebung, std::shared_ptr<Optionen> optionen)
{
    befehl.callback([&umgebung, optionen = std::move(optionen)] { optionen->run(umgebung); });
}

struct Formel {
    void run(Umgebung& umgebung) const
    {
        umgebung.load();
        clsParser& parser = umgebung.kern().parser();
        put(parser.Parse(text) + "\r\n", {});
        if (const auto& error = parser.LastError())
            throw Datenfehler(
                "Formel \"" + text + "\": " + error->Grund + " (Zeichen " + std::to_string(error->Stelle) + ")");
    }

    std::string text;
};

void defineFormel(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "formel", "Wert einer Formel");
    auto o = std::make_shared<Formel>();
    befehl.add_option("text", o->text, "Formel")->required()->option_text("FORMEL");
    onCall(befehl, umgebung, o);
}

struct Groessenliste {
    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten.texte);
        const Tabelle tabelle = groessentabelle(umgebung.kern().calc());
        put(form.json ? alsJson(tabelle) : alsText(tabelle), ausgabe.datei);
    }

    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineGroessen(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "groessen", "Größen einer Legierung als Tabelle");
    auto o = std::make_shared<Groessenliste>();
    o->form.define(befehl);
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

struct Text {
    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten.texte);
        const clsCalc& calc = umgebung.kern().calc();
        const std::vector<Komponentenzeile> zeilen = umgebung.kern().eingabe().komponentenzeilen();
        Ergebnistexte texte;
        berechneErgebnisse(calc, texte);
        const bool toFile = !ausgabe.datei.empty();
        put(toFile ? ergebnisdatei(calc, zeilen, texte) : ergebnistext(calc, zeilen, texte) + "\r\n", ausgabe.datei);
    }

    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineText(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "text", "Ergebnistext einer Legierung");
    auto o = std::make_shared<Text>();
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

/// The code of a quantity over compositions.
int reihenkennzahl(const Ganzzahl& groesse)
{
    const int kennzahl = groesse.wert();
    if (findReihengroesse(kennzahl) == nullptr)
        throw Aufruffehler("--groesse " + std::to_string(kennzahl) + ": erwartet wird 0 bis "
            + std::to_string(letzteReihenkennzahl()));
    return kennzahl;
}

struct Konzentration {
    void run(Umgebung& umgebung) const
    {
        const int kennzahl = reihenkennzahl(groesse);
        const int step = schritt.wert();
        umgebung.loadAlloy(komponenten.texte);
        const auto alloy = umgebung.kern().komponenten();
        const std::size_t variable = indexOfVariable(umgebung.kern().elements(), alloy);
        const int index = static_cast<int>(variable);
        const Reihe werte = kennzahl == GroesseDichte
            ? dichtereihe(dichten(alloy), index)
            : konzentrationsreihe(umgebung.kern().calc(), alloy, index, kennzahl);
        put(reihendatei(alloy[variable].element->symbol(), reiheneinheit(kennzahl), werte, step), ausgabe.datei);
    }

    std::size_t indexOfVariable(const ElementCollection& elements, std::span<const Legierungskomponente> alloy) const
    {
        const auto wanted = elements.find(variabel, true);
        const auto found = std::ranges::find(alloy, wanted, &Legierungskomponente::element);
        if (!wanted || found == alloy.end())
            throw Aufruffehler("--variabel " + variabel + ": keine Komponente der Legierung");
        return static_cast<std::size_t>(found - alloy.begin());
    }

    static std::vector<float> dichten(std::span<const Legierungskomponente> alloy)
    {
        std::vector<float> result;
        std::ranges::transform(alloy, std::back_inserter(result), &Legierungskomponente::dichte);
        return result;
    }

    std::string variabel;
    Ganzzahl schritt{{}, "1"};
    Ganzzahl groesse;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineReihe(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "reihe", "Größe über den at% einer Komponente");
    auto o = std::make_shared<Konzentration>();
    befehl.add_option("--variabel", o->variabel, "Komponente entlang der Achse")->required()->option_text("SYMBOL");
    o->schritt.define(befehl, "--schritt", "Schrittweite in at%");
    o->groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

struct PSE {
    void run(Umgebung& umgebung) const
    {
        const int kennzahl = groesse.wert();
        if (!istPSEGroesse(kennzahl))
            throw Aufruffehler("--groesse " + std::to_string(kennzahl) + ": keine Eigenschaft der Elemente");
        umgebung.load();
        put(psedatei(pseReihe(umgebung.kern().elements(), umgebung.kern().calc(), kennzahl)), ausgabe.datei);
    }

    Ausgabe ausgabe;
    Ganzzahl groesse;
};

void definePSE(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "pse", "Größe über der Ordnungszahl");
    auto o = std::make_shared<PSE>();
    o->ausgabe.define(befehl);
    o->groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
    onCall(befehl, umgebung, o);
}

struct Ternaer {
    void run(Umgebung& umgebung) const
    {
        const int kennzahl = reihenkennzahl(groesse);
        const int resolution = aufloesung.wert();
        if (resolution < 1 || resolution > FeinsteAufloesung)
            throw Aufruffehler("--aufloesung " + std::to_string(resolution) + ": erwartet wird 1 bis "
                + std::to_string(FeinsteAufloesung));
        if (komponenten.texte.size() != 3)
            throw Aufruffehler("Ein ternäres Diagramm hat drei Komponenten, angegeben sind "
                + std::to_string(komponenten.texte.size()));
        umgebung.loadAlloy(komponenten.texte);
        put(ternaerdatei(ternaergitter(umgebung.kern().calc(), umgebung.kern().komponenten(), kennzahl, resolution)),
            ausgabe.datei);
    }

    Ganzzahl aufloesung;
    Ganzzahl groesse;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineTernaer(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "ternaer", "Größe über allen Zusammensetzungen dreier Komponenten");
    auto o = std::make_shared<Ternaer>();
    o->aufloesung.define(befehl, "--aufloesung", "Auflösung, 1 bis 10")->required();
    o->groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

struct Wiegen {
    void run(Umgebung& umgebung) const
    {
        const Eingabefeld gesamt = zahlenfeld(masse);
        if (gesamt.fehler)
            throw Aufruffehler("--masse " + masse + ": keine gültige Zahl");
        umgebung.loadAlloy(komponenten.texte);
        const clsCalc& calc = umgebung.kern().calc();
        if (calc.Element_Prozente(0) == 0)
            throw Datenfehler(
                "Komponente \"" + komponenten.texte.front() + "\": hat 0 at% und ist der Bezug der Rechnung");
        const Tabelle tabelle = wiegetabelle(calc, umgebung.kern().eingabe().anzahl(), gesamt.wert);
        put(form.json ? alsJson(tabelle) : alsText(tabelle), ausgabe.datei);
    }

    std::string masse;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineWiegen(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "wiegen", "Sollmassen für eine Gesamtmasse");
    auto o = std::make_shared<Wiegen>();
    befehl.add_option("--masse", o->masse, "Gesamtmasse in mg")->required()->option_text("ZAHL");
    o->form.define(befehl);
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

struct Friedel {
    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten.texte);
        put(friedeldatei(umgebung.kern().calc()), ausgabe.datei);
    }

    Komponenten komponenten;
    Ausgabe ausgabe;
};

void defineFriedel(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& befehl = addBefehl(app, "friedel", "Friedelminima als Datei für Zeichenprogramme");
    auto o = std::make_shared<Friedel>();
    o->komponenten.define(befehl);
    o->ausgabe.define(befehl);
    onCall(befehl, umgebung, o);
}

struct Exportieren {
    void run(Umgebung& umgebung) const
    {
        umgebung.load();
        std::vector<ElementRecord> records;
        for (const auto& element : umgebung.kern().elements())
            records.push_back(element->record());
        writeFile(csv, writeElementCsv(records));
    }

    std::string csv;
};

struct Importieren {
    void run(Umgebung&) const
    {
        try {
            saveElements(pathFromUtf8(dat), readElementCsv(readFile(csv)));
        } catch (const Tabellenfehler& error) {
            throw Datenfehler("Datei \"" + csv + "\": " + error.what());
        } catch (const Laufzeitfehler& error) {
            throw Datenfehler("Datei \"" + dat + "\": " + error.what());
        }
    }

    std::string csv;
    std::string dat;
};

void defineElemente(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& elemente = *app.add_subcommand("elemente", "Elementdaten umwandeln");
    elemente.group("Befehle");
    elemente.require_subcommand(1);
    CLI::App& exportieren = addBefehl(elemente, "exportieren", "Elementdaten als CSV-Tabelle");
    auto e = std::make_shared<Exportieren>();
    exportieren.add_option("csv", e->csv, "Zieldatei")->required()->option_text("CSV");
    onCall(exportieren, umgebung, e);
    CLI::App& importieren = addBefehl(elemente, "importieren", "Elementdatei aus einer CSV-Tabelle");
    auto i = std::make_shared<Importieren>();
    importieren.add_option("csv", i->csv, "Tabelle")->required()->option_text("CSV");
    importieren.add_option("dat", i->dat, "Zieldatei")->required()->option_text("DAT");
    onCall(importieren, umgebung, i);
}

} // namespace

void defineBefehle(CLI::App& app, Umgebung& umgebung)
{
    app.option_defaults()->group("Optionen");
    app.add_option("--daten", umgebung.daten, "Elementdatei statt elemente.dat neben dem Programm")
        ->option_text("DATEI");
    app.require_subcommand(1);
    defineFormel(app, umgebung);
    defineGroessen(app, umgebung);
    defineText(app, umgebung);
    defineReihe(app, umgebung);
    definePSE(app, umgebung);
    defineTernaer(app, umgebung);
    defineWiegen(app, umgebung);
    defineFriedel(app, umgebung);
    defineElemente(app, umgebung);
}

} // namespace zerna
