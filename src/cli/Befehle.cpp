#include "cli/Befehle.h"

#include <algorithm>
#include <iterator>

#include "cli/Argumente.h"
#include "cli/Befehl.h"
#include "cli/Bildoptionen.h"
#include "cli/Stapel.h"
#include "cli/Suche.h"
#include "cli/Umgebung.h"
#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "core/Kuerzung.h"
#include "core/Plattform.h"
#include "model/Einwaage.h"
#include "model/Ergebnisse.h"
#include "model/Groessentabelle.h"
#include "model/Konzentrationsreihe.h"
#include "model/PSEReihe.h"
#include "model/Ternaergitter.h"

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
            throw Aufruffehler("Es fehlt das Argument komponenten (Hilfe: zerna-cli --hilfe)");
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        umgebung.nenneBefund();
        Rechenkern& kern = umgebung.kern();
        const Tabelle tabelle =
            lehrbuch ? lehrbuchtabelle(kern.calc(), kern.komponenten()) : groessentabelle(kern.calc());
        put(form.json ? alsJson(tabelle) : alsText(tabelle), ausgabe.datei);
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
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        umgebung.nenneBefund();
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
        groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = reihenkennzahl(groesse);
        const int step = schritt.wert();
        if (step < 1 || step > 100)
            throw Aufruffehler("--schritt " + std::to_string(step) + ": erwartet wird 1 bis 100");
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        const auto alloy = umgebung.kern().komponenten();
        const std::size_t variable = indexOfVariable(variabel, umgebung.kern().elements(), alloy);
        const int index = static_cast<int>(variable);
        const Reihe werte = kennzahl == GroesseDichte
            ? dichtereihe(dichten(alloy), index)
            : konzentrationsreihe(umgebung.kern().calc(), alloy, index, kennzahl);
        put(reihendatei(alloy[variable].element->symbol(), reiheneinheit(kennzahl), werte, step), ausgabe.datei);
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

struct PSE {
    void define(CLI::App& befehl)
    {
        ausgabe.define(befehl);
        groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = elementkennzahl(groesse);
        umgebung.load();
        put(psedatei(pseReihe(umgebung.kern().elements(), umgebung.kern().calc(), kennzahl)), ausgabe.datei);
    }

    Ausgabe ausgabe;
    Ganzzahl groesse;
};

struct Ternaer {
    void define(CLI::App& befehl)
    {
        aufloesung.define(befehl, "--aufloesung", "Auflösung, 1 bis 10")->required();
        groesse.define(befehl, "--groesse", "Kennzahl der Größe")->required();
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const int kennzahl = reihenkennzahl(groesse);
        const int resolution = gitteraufloesung(aufloesung);
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        requireTernaer(umgebung.kern().komponenten().size());
        put(ternaerdatei(ternaergitter(umgebung.kern().calc(), umgebung.kern().komponenten(), kennzahl, resolution)),
            ausgabe.datei);
    }

    Ganzzahl aufloesung;
    Ganzzahl groesse;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct Wiegen {
    void define(CLI::App& befehl)
    {
        befehl.add_option("--masse", masse, "Gesamtmasse in mg")->required()->option_text("ZAHL");
        form.define(befehl);
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        const Eingabefeld gesamt = zahlenfeld(masse);
        if (gesamt.fehler)
            throw Aufruffehler("--masse " + gekuerzt(masse) + ": keine gültige Zahl");
        if (gesamt.wert <= 0)
            throw Aufruffehler("--masse " + gekuerzt(masse) + ": erwartet wird eine Zahl größer als 0");
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        const clsCalc& calc = umgebung.kern().calc();
        const int anzahl = umgebung.kern().eingabe().anzahl();
        if (const auto hindernis = sollmassenHindernis(calc, anzahl)) {
            const std::string symbol = calc.Element_Symbol(hindernis->komponente);
            throw Datenfehler("Komponente " + zitiert(symbol) + ": " + hindernis->grund);
        }
        const Tabelle tabelle = wiegetabelle(calc, anzahl, gesamt.wert);
        put(form.json ? alsJson(tabelle) : alsText(tabelle), ausgabe.datei);
    }

    std::string masse;
    Tabellenform form;
    Komponenten komponenten;
    Ausgabe ausgabe;
};

struct Friedel {
    void define(CLI::App& befehl)
    {
        komponenten.define(befehl);
        ausgabe.define(befehl);
    }

    void run(Umgebung& umgebung) const
    {
        umgebung.loadAlloy(komponenten.texte, komponenten.einheit());
        const std::string datei = friedeldatei(umgebung.kern().calc());
        if (datei.empty()) {
            umgebung.nenneBefund();
            throw Datenfehler("Mit diesen Werten hat die Legierung keine Friedelminima");
        }
        put(datei, ausgabe.datei);
    }

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
            + " fehlt neben zerna-cli. Bilder gibt es nur, wo Zerna mit seinem Fenster gebaut wurde");
    }

    Bildoptionen optionen;
};

struct Exportieren {
    void define(CLI::App& befehl) { befehl.add_option("csv", csv, "Zieldatei")->required()->option_text("CSV"); }

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
    void define(CLI::App& befehl)
    {
        befehl.add_option("csv", csv, "Tabelle")->required()->option_text("CSV");
        befehl.add_option("dat", dat, "Zieldatei")->required()->option_text("DAT");
    }

    void run(Umgebung&) const
    {
        try {
            saveElements(pathFromUtf8(dat), readElementCsv(readFile(csv)));
        } catch (const Tabellenfehler& error) {
            throw Datenfehler("Datei " + zitiert(csv, Dateinamenlaenge) + ": " + error.what());
        } catch (const Laufzeitfehler& error) {
            throw Datenfehler("Datei " + zitiert(dat, Dateinamenlaenge) + ": " + error.what());
        }
    }

    std::string csv;
    std::string dat;
};

void addElemente(CLI::App& app, Umgebung& umgebung)
{
    CLI::App& elemente = *app.add_subcommand("elemente", "Elementdaten umwandeln");
    elemente.group("Befehle");
    elemente.require_subcommand(1);
    addBefehl<Exportieren>(elemente, umgebung, "exportieren", "Elementdaten als CSV-Tabelle");
    addBefehl<Importieren>(elemente, umgebung, "importieren", "Elementdatei aus einer CSV-Tabelle");
}

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
    addElemente(app, umgebung);
}

} // namespace zerna
