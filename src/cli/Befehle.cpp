#include "cli/Befehle.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>

#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "core/Exportdatei.h"
#include "core/Plattform.h"
#include "core/Zahlentext.h"
#include "core/Zeichensatz.h"
#include "model/Einwaage.h"
#include "model/Ergebnisse.h"
#include "model/Groessentabelle.h"
#include "model/Konzentrationsreihe.h"
#include "model/PSEReihe.h"
#include "model/Ternaergitter.h"
#include "programm/Rechenkern.h"

namespace zerna {

namespace {

constexpr int Fehlgeschlagen = 1;
constexpr int Aufruf = 2;

/// Messages of the library as lines on standard error.
class StandardErrorBoxes : public MessageBoxes {
public:
    void show(Icon, std::string_view, std::string_view text) override
    {
        std::cerr << ReplaceText(text, "\r\n", " ") << '\n';
    }
};

/// What the options and arguments of all subcommands are read into.
struct Optionen {
    std::string daten;
    std::string ausgabe;
    bool json = false;
    std::vector<std::string> komponenten;
    std::string formel;
    std::string csv;
    std::string dat;
    int groesse = -1;
    std::string variabel;
    int schritt = 1;
    int aufloesung = 5;
    std::string masse;
};

/// Carries out subcommands.
class Befehle {
public:
    explicit Befehle(const Optionen& optionen)
        : m_optionen(optionen)
        , m_kern(m_boxes)
    {
    }

    void formel()
    {
        load();
        const std::string value = m_kern.parser().Parse(m_optionen.formel);
        put(value + "\r\n");
        if (const auto& error = m_kern.parser().LastError())
            throw Datenfehler("Formel \"" + m_optionen.formel + "\": " + error->Grund + " (Zeichen "
                + std::to_string(error->Stelle) + ")");
    }

    void groessen()
    {
        loadAlloy();
        putTable(groessentabelle(m_kern.calc()));
    }

    void text()
    {
        loadAlloy();
        const std::vector<Komponentenzeile> zeilen = m_kern.eingabe().komponentenzeilen();
        Ergebnistexte texte;
        berechneErgebnisse(m_kern.calc(), texte);
        const bool toFile = !m_optionen.ausgabe.empty();
        put(toFile ? ergebnisdatei(m_kern.calc(), zeilen, texte) : ergebnistext(m_kern.calc(), zeilen, texte) + "\r\n");
    }

    void friedel()
    {
        loadAlloy();
        put(friedeldatei(m_kern.calc()));
    }

    void reihe()
    {
        requireReihengroesse();
        loadAlloy();
        const auto komponenten = m_kern.komponenten();
        const int variabel = indexOfVariabel(komponenten);
        const Reihe werte = m_optionen.groesse == GroesseDichte
            ? dichtereihe(dichten(komponenten), variabel)
            : konzentrationsreihe(m_kern.calc(), komponenten, variabel, m_optionen.groesse);
        put(reihendatei(komponenten[static_cast<std::size_t>(variabel)].element->symbol(),
            reiheneinheit(m_optionen.groesse), werte, m_optionen.schritt));
    }

    void pse()
    {
        if (!istPSEGroesse(m_optionen.groesse))
            throw Aufruffehler("--groesse " + std::to_string(m_optionen.groesse) + ": keine Eigenschaft der Elemente");
        load();
        put(psedatei(pseReihe(m_kern.elements(), m_kern.calc(), m_optionen.groesse)));
    }

    void ternaer()
    {
        requireReihengroesse();
        if (m_optionen.aufloesung < 1 || m_optionen.aufloesung > 10)
            throw Aufruffehler("--aufloesung " + std::to_string(m_optionen.aufloesung) + ": erwartet wird 1 bis 10");
        if (m_optionen.komponenten.size() != 3)
            throw Aufruffehler("Ein ternäres Diagramm hat drei Komponenten, angegeben sind "
                + std::to_string(m_optionen.komponenten.size()));
        loadAlloy();
        put(ternaerdatei(
            ternaergitter(m_kern.calc(), m_kern.komponenten(), m_optionen.groesse, m_optionen.aufloesung)));
    }

    void wiegen()
    {
        const float gesamt = wiegezahlArgument();
        loadAlloy();
        const int count = m_kern.eingabe().anzahl();
        if (m_kern.calc().Element_Prozente(0) == 0)
            throw Datenfehler(
                "Komponente \"" + m_optionen.komponenten.front() + "\": hat 0 at% und ist der Bezug der Rechnung");
        putTable(wiegetabelle(m_kern.calc(), count, gesamt));
    }

    void elementeExportieren()
    {
        load();
        std::vector<ElementRecord> records;
        for (const auto& element : m_kern.elements())
            records.push_back(element->record());
        writeExport(pathFromUtf8(m_optionen.csv), writeElementCsv(records));
    }

    void elementeImportieren()
    {
        std::ifstream stream(pathFromUtf8(m_optionen.csv), std::ios::binary);
        if (!stream)
            throw Datenfehler("Datei \"" + m_optionen.csv + "\" kann nicht gelesen werden");
        const std::string content{std::istreambuf_iterator<char>(stream), {}};
        Dateinummern files;
        try {
            saveElements(files, pathFromUtf8(m_optionen.dat), m_boxes, readElementCsv(content));
        } catch (const Tabellenfehler& error) {
            throw Datenfehler("Datei \"" + m_optionen.csv + "\": " + error.what());
        }
    }

private:
    /// The given data file, else the one beside the program, else the built-in table; never writes one.
    void load()
    {
        const std::filesystem::path beside = executableFolder() / Elementdateiname;
        if (!m_optionen.daten.empty())
            m_kern.loadFile(pathFromUtf8(m_optionen.daten));
        else if (std::filesystem::exists(beside))
            m_kern.loadFile(beside);
        else
            m_kern.loadBuiltIn();
    }

    void loadAlloy()
    {
        std::vector<Komponentenangabe> angaben;
        for (const std::string& text : m_optionen.komponenten)
            angaben.push_back(komponentenangabe(text));
        load();
        m_kern.setAlloy(angaben);
    }

    void requireReihengroesse() const
    {
        if (findReihengroesse(m_optionen.groesse) == nullptr)
            throw Aufruffehler("--groesse " + std::to_string(m_optionen.groesse) + ": erwartet wird 0 bis "
                + std::to_string(letzteReihenkennzahl()));
    }

    float wiegezahlArgument() const
    {
        try {
            return singleFromText(m_optionen.masse);
        } catch (const Laufzeitfehler&) {
            throw Aufruffehler("--masse " + m_optionen.masse + ": keine gültige Zahl");
        }
    }

    int indexOfVariabel(std::span<const Legierungskomponente> komponenten) const
    {
        const auto wanted = m_kern.elements().find(m_optionen.variabel, true);
        const auto found = std::ranges::find(komponenten, wanted, &Legierungskomponente::element);
        if (!wanted || found == komponenten.end())
            throw Aufruffehler("--variabel " + m_optionen.variabel + ": keine Komponente der Legierung");
        return static_cast<int>(found - komponenten.begin());
    }

    static std::vector<float> dichten(std::span<const Legierungskomponente> komponenten)
    {
        std::vector<float> result;
        for (const Legierungskomponente& komponente : komponenten)
            result.push_back(komponente.dichte);
        return result;
    }

    void putTable(const Tabelle& tabelle) { put(m_optionen.json ? alsJson(tabelle) : alsText(tabelle)); }

    /// Content with CR LF: to standard output as UTF-8 with LF, to a file as the bytes that the window saves.
    void put(const std::string& content)
    {
        if (m_optionen.ausgabe.empty())
            std::cout << ReplaceText(content, "\r\n", "\n");
        else
            writeExport(pathFromUtf8(m_optionen.ausgabe), toWindows1252(content));
    }

    const Optionen& m_optionen;
    StandardErrorBoxes m_boxes;
    Rechenkern m_kern;
};

using Befehl = void (Befehle::*)();

void addComponents(CLI::App& app, Optionen& optionen)
{
    app.add_option("komponenten", optionen.komponenten,
           "SYMBOL=ATPROZENT[:dichte=ZAHL|amorph|fluessig|kristallin][:valenz=TEXT], eine bis fünf")
        ->required()
        ->option_text("KOMPONENTE ...");
}

void addOutput(CLI::App& app, Optionen& optionen)
{
    app.add_option("--ausgabe", optionen.ausgabe, "Datei, die geschrieben wird, statt der Standardausgabe")
        ->option_text("DATEI");
}

/// Defines the subcommands; the chosen one is left in `chosen`.
void defineCommands(CLI::App& app, Optionen& optionen, Befehl& chosen)
{
    const auto add = [&](CLI::App& parent, const char* name, const char* description, Befehl befehl) {
        CLI::App* const command = parent.add_subcommand(name, description);
        command->callback([&chosen, befehl] { chosen = befehl; });
        command->option_defaults()->group("Optionen");
        command->group("Befehle");
        return command;
    };
    app.option_defaults()->group("Optionen");
    app.add_option("--daten", optionen.daten, "Elementdatei statt elemente.dat neben dem Programm")
        ->option_text("DATEI");
    CLI::App* const formel = add(app, "formel", "Wert einer Formel", &Befehle::formel);
    formel->add_option("text", optionen.formel, "Formel")->required()->option_text("FORMEL");
    CLI::App* const groessen = add(app, "groessen", "Größen einer Legierung als Tabelle", &Befehle::groessen);
    groessen->add_flag("--json", optionen.json, "als JSON");
    CLI::App* const text = add(app, "text", "Ergebnistext einer Legierung", &Befehle::text);
    CLI::App* const reihe = add(app, "reihe", "Größe über den at% einer Komponente", &Befehle::reihe);
    reihe->add_option("--variabel", optionen.variabel, "Komponente entlang der Achse")
        ->required()
        ->option_text("SYMBOL");
    reihe->add_option("--schritt", optionen.schritt, "Schrittweite in at%")->option_text("ZAHL");
    CLI::App* const pse = add(app, "pse", "Größe über der Ordnungszahl", &Befehle::pse);
    addOutput(*pse, optionen);
    CLI::App* const ternaer =
        add(app, "ternaer", "Größe über allen Zusammensetzungen dreier Komponenten", &Befehle::ternaer);
    ternaer->add_option("--aufloesung", optionen.aufloesung, "Auflösung, 1 bis 10")->required()->option_text("ZAHL");
    for (CLI::App* const command : {reihe, pse, ternaer})
        command->add_option("--groesse", optionen.groesse, "Kennzahl der Größe")->required()->option_text("ZAHL");
    CLI::App* const wiegen = add(app, "wiegen", "Sollmassen für eine Gesamtmasse", &Befehle::wiegen);
    wiegen->add_option("--masse", optionen.masse, "Gesamtmasse in mg")->required()->option_text("ZAHL");
    wiegen->add_flag("--json", optionen.json, "als JSON");
    CLI::App* const friedel = add(app, "friedel", "Friedelminima als Datei für Zeichenprogramme", &Befehle::friedel);
    for (CLI::App* const command : {groessen, text, friedel, reihe, ternaer, wiegen}) {
        addComponents(*command, optionen);
        addOutput(*command, optionen);
    }
    CLI::App* const elemente = app.add_subcommand("elemente", "Elementdaten umwandeln");
    elemente->group("Befehle");
    elemente->require_subcommand(1);
    CLI::App* const exportieren =
        add(*elemente, "exportieren", "Elementdaten als CSV-Tabelle", &Befehle::elementeExportieren);
    exportieren->add_option("csv", optionen.csv, "Zieldatei")->required()->option_text("CSV");
    CLI::App* const importieren =
        add(*elemente, "importieren", "Elementdatei aus einer CSV-Tabelle", &Befehle::elementeImportieren);
    importieren->add_option("csv", optionen.csv, "Tabelle")->required()->option_text("CSV");
    importieren->add_option("dat", optionen.dat, "Zieldatei")->required()->option_text("DAT");
    app.require_subcommand(1);
}

void translate(CLI::App& app)
{
    const auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Aufruf");
    formatter->label("OPTIONS", "OPTIONEN");
    formatter->label("SUBCOMMAND", "BEFEHL");
    formatter->label("SUBCOMMANDS", "BEFEHLE");
    formatter->label("Subcommands", "Befehle");
    formatter->label("Options", "Optionen");
    formatter->label("Positionals", "Argumente");
    formatter->label("REQUIRED", "(nötig)");
    app.formatter(formatter);
    app.set_help_flag("-h,--hilfe,--help", "Diese Hilfe zeigen")->group("Optionen");
    for (CLI::App* const command : app.get_subcommands({}))
        translate(*command);
}

/// What is wrong with a call, in German. The library's own text names the argument behind the last ": " or at the
/// beginning.
std::string germanReason(const CLI::App& app, const CLI::ParseError& error)
{
    const std::string text = error.what();
    const std::string argument = text.substr(text.rfind(": ") == std::string::npos ? 0 : text.rfind(": ") + 2);
    const std::string first = text.substr(0, text.find_first_of(": "));
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr && text.find("subcommand") != std::string::npos) {
        const std::vector<std::string> unknown = app.remaining();
        if (unknown.empty())
            return "Es fehlt ein Befehl";
        return (unknown.front().starts_with('-') ? "Unbekanntes Argument " : "Unbekannter Befehl ") + unknown.front();
    }
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
        return "Es fehlt das Argument " + first;
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr)
        return "Unbekanntes Argument " + argument;
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
        return "Falsche Zahl von Werten für " + first;
    return "Ungültiger Wert: " + argument;
}

} // namespace

int runCommandLine(int argc, char** argv)
{
    CLI::App app("Modell freier Elektronen für metallische Legierungen", "zerna-cli");
    Optionen optionen;
    Befehl chosen = nullptr;
    defineCommands(app, optionen, chosen);
    translate(app);
    try {
        app.parse(argc, argv);
        Befehle befehle(optionen);
        (befehle.*chosen)();
        std::cout.flush();
        if (!std::cout)
            throw Datenfehler("Die Standardausgabe kann nicht geschrieben werden");
        return 0;
    } catch (const CLI::CallForHelp&) {
        const auto chosenApps = app.get_subcommands();
        std::cout << (chosenApps.empty() ? app.help() : chosenApps.front()->help("zerna-cli"));
        return 0;
    } catch (const CLI::ParseError& error) {
        std::cerr << "zerna-cli: " << germanReason(app, error) << " (Hilfe: zerna-cli --hilfe)\n";
        return Aufruf;
    } catch (const Aufruffehler& error) {
        std::cerr << "zerna-cli: " << error.what() << '\n';
        return Aufruf;
    } catch (const Datenfehler& error) {
        std::cerr << "zerna-cli: " << error.what() << '\n';
    } catch (const Laufzeitfehler& error) {
        const std::string& file = optionen.ausgabe.empty() ? optionen.csv : optionen.ausgabe;
        std::cerr << "zerna-cli: " << (file.empty() ? "" : "Datei \"" + file + "\": ") << error.what() << '\n';
    }
    return Fehlgeschlagen;
}

} // namespace zerna
