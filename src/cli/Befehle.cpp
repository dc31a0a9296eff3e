#include "cli/Befehle.h"

#include <algorithm>
#include <iterator>

#include "cli/Argumente.h"
#include "cli/Befehl.h"
#include "cli/Bildoptionen.h"
#include "cli/Elementbefehle.h"
#include "cli/Stapel.h"
#include "cli/Suche.h"
#include "cli/Umgebung.h"
#include "core/Kuerzung.h"
#include "core/Plattform.h"
#include "model/einwaage/Einwaage.h"
#include "model/rechnung/Ergebnisse.h"
#include "model/rechnung/Groessentabelle.h"
#include "model/reihen/Wertetabellen.h"

namespace zerna {

namespace {

struct Formel {
    void define(CLI::App& befehl) { befehl.add_option("text", text, "Formel")->required()->option_text("FORMEL"); }

    void run(Umgebung& umgebung) const
    {
        umgebung.load();
        clsParser& parser = umgebung.kern().parser();
        put(parser.Parse(text) + "\r\n", {});
        if (const auto& error = parser.LastError())
            throw Datenfehler(
                "Formel " + zitiert(text) + ": " + error->Grund + " (Zeichen " + std::to_string(error->Stelle) + ")");
    }

    std::string text;
};

struct Groessenliste {
    void define(CLI::App& befehl)
    {
        form.define(befehl);
        befehl.add_flag("--lehrbuch", lehrbuch, "Wo der Wert vom Lehrbuch abweicht, dahinter dessen Wert und Einheit");
        stapel.define(befehl);
        komponenten.define(befehl)->required(false);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        if (!stapel.gewaehlt)
            return runOne(umgebung);
        if (form.json || lehrbuch || !ausgabe.datei.empty())
            throw Aufruffehler("--json, --lehrbuch und --ausgabe gibt es nicht mit --stapel");
        stapel.run(umgebung, komponenten.texte, komponenten.einheit());
    }

    void runOne(Umgebung& umgebung) const
    {
        stapel.requireUnused();
        if (komponenten.texte.empty())
            throw fehlendesArgument("komponenten");
        umgebung.loadAlloy(komponenten);
        Rechenkern& kern = umgebung.kern();
        const Unbekanntes unbekanntes = form.json ? Unbekanntes::Leer : Unbekanntes::Weglassen;
        const Tabelle tabelle = lehrbuch
            ? lehrbuchtabelle(kern.calc(), kern.komponenten(), Dezimaltrenner::Punkt, unbekanntes)
            : groessentabelle(kern.calc(), unbekanntes);
        put(form.text(tabelle), ausgabe.datei);
    }

    bool lehrbuch = false;
    Tabellenform form;
    Stapel stapel;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct Text {
    void define(CLI::App& befehl)
    {
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten);
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

struct Konzentration {
    void define(CLI::App& befehl)
    {
        befehl.add_option("--variabel", variabel, "Komponente entlang der Achse")->required()->option_text("SYMBOL");
        schritt.define(befehl, "--schritt", "Schrittweite in at%, 1 bis 100");
        groesse.define(befehl, "--groesse", Groessenhilfe)->required();
        form.define(befehl);
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = groesse.kennzahl(Groessenart::Legierung);
        const int step = schritt.wert(1, 100);
        umgebung.loadAlloy(komponenten);
        const auto alloy = umgebung.kern().komponenten();
        const std::size_t variable = indexOfVariable(variabel, umgebung.kern().elements(), alloy);
        const int index = static_cast<int>(variable);
        const Reihe werte = kennzahl == GroesseDichte
            ? dichtereihe(dichten(alloy), index)
            : konzentrationsreihe(umgebung.kern().calc(), alloy, index, kennzahl);
        const std::string& symbol = alloy[variable].element->symbol();
        put(form.json ? alsJson(reihentabelle(symbol, *findReihengroesse(kennzahl), werte, step))
                      : reihendatei(symbol, reiheneinheit(kennzahl), werte, step),
            ausgabe.datei);
    }

    static std::vector<float> dichten(std::span<const Legierungskomponente> alloy)
    {
        std::vector<float> result;
        std::ranges::transform(alloy, std::back_inserter(result), &Legierungskomponente::dichte);
        return result;
    }

    std::string variabel;
    Ganzzahl schritt{{}, "1"};
    Groessenangabe groesse;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct PSE {
    void define(CLI::App& befehl)
    {
        ausgabe.define(befehl);
        groesse.define(befehl, "--groesse", Groessenhilfe)->required();
        form.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = groesse.kennzahl(Groessenart::Element);
        umgebung.load();
        const ElementCollection& elements = umgebung.kern().elements();
        const PSEReihe reihe = pseReihe(elements, umgebung.kern().calc(), kennzahl);
        put(form.json ? alsJson(psetabelle(elements, *findGroesse(kennzahl), reihe)) : psedatei(reihe), ausgabe.datei);
    }

    Ausgabe ausgabe;
    Groessenangabe groesse;
    Tabellenform form;
};

struct Ternaer {
    void define(CLI::App& befehl)
    {
        aufloesung.define(befehl, "--aufloesung", "Auflösung, 1 bis 10")->required();
        groesse.define(befehl, "--groesse", Groessenhilfe)->required();
        form.define(befehl);
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = groesse.kennzahl(Groessenart::Legierung);
        const int resolution = aufloesung.wert(1, FeinsteAufloesung);
        umgebung.loadAlloy(komponenten);
        const auto alloy = umgebung.kern().komponenten();
        requireTernaer(alloy.size());
        if (form.json)
            requireDistinct(alloy);
        const Ternaergitter gitter = ternaergitter(umgebung.kern().calc(), alloy, kennzahl, resolution);
        put(form.json ? alsJson(ternaertabelle(*findReihengroesse(kennzahl), gitter)) : ternaerdatei(gitter),
            ausgabe.datei);
    }

    Ganzzahl aufloesung;
    Groessenangabe groesse;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct Wiegen {
    void define(CLI::App& befehl)
    {
        masse.define(befehl, "--masse", "Gesamtmasse in mg")->required();
        form.define(befehl);
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const float gesamt = masse.wert();
        if (gesamt <= 0)
            throw unerwartet(masse.name, masse.text, "eine Zahl größer als 0");
        umgebung.readAlloy(komponenten);
        const clsCalc& calc = umgebung.kern().calc();
        const int anzahl = umgebung.kern().eingabe().anzahl();
        if (const auto hindernis = sollmassenHindernis(calc, anzahl)) {
            const std::string symbol = calc.Element_Symbol(hindernis->komponente);
            throw Datenfehler("Komponente " + zitiert(symbol) + ": " + hindernis->grund);
        }
        umgebung.nenneBefund();
        const Tabelle tabelle = wiegetabelle(calc, anzahl, gesamt);
        put(form.text(tabelle), ausgabe.datei);
    }

    Zahl masse;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct Friedel {
    void define(CLI::App& befehl)
    {
        form.define(befehl);
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten);
        const clsCalc& calc = umgebung.kern().calc();
        const std::string datei = friedeldatei(calc);
        if (datei.empty())
            throw Datenfehler("Mit diesen Werten hat die Legierung keine Friedelminima");
        put(form.json ? alsJson(friedeltabelle(calc)) : datei, ausgabe.datei);
    }

    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

/// Painting wants a toolkit, without which all else starts at once: another program does it.
struct Bild {
    void define(CLI::App& befehl) { optionen.define(befehl); }

    void run(const Umgebung& umgebung) const
    {
        optionen.check();
        runInstead(executableFolder() / Bildprogramm, umgebung.aufruf);
        throw Datenfehler(std::string(Bildprogramm)
            + " fehlt neben zerna-cli. Bilder gibt es nur, wo Zerna mit seinem Fenster gebaut wurde.");
    }

    Bildoptionen optionen;
};

} // namespace

void defineBefehle(CLI::App& app, Umgebung& umgebung)
{
    addBefehl<Formel>(app, umgebung, "formel", "Wert einer Formel");
    addBefehl<Groessenliste>(app, umgebung, "groessen", "Größen einer Legierung als Tabelle");
    addBefehl<Text>(app, umgebung, "text", "Ergebnistext einer Legierung");
    addBefehl<Konzentration>(app, umgebung, "reihe", "Größe über den at% einer Komponente");
    addBefehl<Suche>(app, umgebung, "suche", "Anteil oder weiteres Element zu einem Wert einer Größe");
    addBefehl<PSE>(app, umgebung, "pse", "Größe über der Ordnungszahl");
    addBefehl<Ternaer>(app, umgebung, "ternaer", "Größe über allen Zusammensetzungen dreier Komponenten");
    addBefehl<Wiegen>(app, umgebung, "wiegen", "Sollmassen für eine Gesamtmasse");
    addBefehl<Friedel>(app, umgebung, "friedel", "Friedelminima als Datei für Zeichenprogramme");
    addBefehl<Bild>(app, umgebung, Bildname, Bildbeschreibung);
    defineElementbefehle(app, umgebung);
}

} // namespace zerna
