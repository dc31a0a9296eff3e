#include "cli/Elementbefehle.h"

#include "cli/Argumente.h"
#include "cli/Befehl.h"
#include "cli/Umgebung.h"
#include "core/ElementCsv.h"
#include "core/Elementdatei.h"
#include "core/Kuerzung.h"
#include "model/rechnung/Groessennamen.h"

namespace zerna {

namespace {

struct Kennzahlen {
    void define(CLI::App& befehl) { form.define(befehl); }

    void run(Umgebung&) const
    {
        const Tabelle tabelle = groessenverzeichnis();
        put(form.text(tabelle), {});
    }

    Tabellenform form;
};

struct Auflisten {
    void define(CLI::App& befehl) { form.define(befehl); }

    void run(Umgebung& umgebung) const
    {
        umgebung.load();
        Tabelle tabelle{{{"symbol"}, {"name"}, {"oz", true}}, {}};
        for (const auto& element : umgebung.kern().elements())
            tabelle.zeilen.push_back({element->symbol(), element->Name(), std::to_string(element->OZ())});
        put(form.text(tabelle), {});
    }

    Tabellenform form;
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
            throw Datenfehler("Datei " + zitierteDatei(csv) + ": " + error.what());
        } catch (const Laufzeitfehler& error) {
            throw Datenfehler("Datei " + zitierteDatei(dat) + ": " + error.what());
        }
    }

    std::string csv;
    std::string dat;
};

} // namespace

void defineElementbefehle(CLI::App& app, Umgebung& umgebung)
{
    addBefehl<Kennzahlen>(app, umgebung, "kennzahlen", "Alle Größen mit Kennzahl, Namen und Einheit");
    addGruppe(app, umgebung, "elemente", "Elementdaten zeigen und umwandeln", [&umgebung](CLI::App& elemente) {
        addBefehl<Auflisten>(elemente, umgebung, "auflisten", "Symbole, Namen und Ordnungszahlen");
        addBefehl<Exportieren>(elemente, umgebung, "exportieren", "Elementdaten als CSV-Tabelle");
        addBefehl<Importieren>(elemente, umgebung, "importieren", "Elementdatei aus einer CSV-Tabelle");
    });
}

} // namespace zerna
