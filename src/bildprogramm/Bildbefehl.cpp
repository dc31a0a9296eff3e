#include "bildprogramm/Bildbefehl.h"

#include <QFontDatabase>

#include <algorithm>
#include <iostream>

#include "bildprogramm/Diagrammbau.h"
#include "cli/Befehl.h"
#include "cli/Bildoptionen.h"
#include "cli/Umgebung.h"
#include "core/Kuerzung.h"
#include "dokument/Dokumentdatei.h"
#include "ui/diagram/Bilddatei.h"

namespace zerna {

namespace {

/// What the picture carries: the document that it comes from, else one of the alloy alone. Nothing where its last at%,
/// which a document makes the sum 100 %, would be another.
std::string dokumentVon(Umgebung& umgebung, const Diagrammwahl& wahl)
{
    const Rechenkern& kern = umgebung.kern();
    Dokument dokument = umgebung.dokument().value_or(Dokument(kern.elements()));
    dokument.eingabe = kern.eingabe();
    dokument.diagramm = wahl;
    std::string text = schreibe(dokument);
    const auto read = lies(text, kern.elements()).dokument;
    const auto alloy = read ? read->eingabe.legierung() : std::nullopt;
    if (alloy
        && std::ranges::equal(alloy->komponenten(), kern.komponenten(), {}, &Legierungskomponente::prozent,
            &Legierungskomponente::prozent))
        return text;
    std::cerr << "zerna-cli: Die Anteile ergeben nicht 100 %, das Bild trägt keine Legierung\n";
    return {};
}

struct Bild {
    void define(CLI::App& befehl) { optionen.define(befehl); }

    void run(Umgebung& umgebung) const
    {
        optionen.check();
        const Bildvorgabe vorgabe = optionen.vorgabe();
        if (!optionen.schrift.empty() && !QFontDatabase::hasFamily(toQt(optionen.schrift)))
            throw Datenfehler("--schrift " + gekuerzt(optionen.schrift) + ": Diese Schrift gibt es hier nicht");
        if (optionen.komponenten.texte.empty())
            umgebung.load();
        else
            umgebung.loadAlloy(optionen.komponenten.texte, optionen.komponenten.einheit());
        const auto& file = umgebung.dokument();
        const Diagrammwahl wahl = optionen.wahl(file ? std::optional(file->diagramm) : std::nullopt, umgebung.kern());
        const auto bild = diagramm(umgebung.kern(), wahl);
        if (bild->exportarten({}).empty())
            throw Datenfehler("Das Diagramm hat keinen Wert");
        const auto arten = bildarten(bild->maler(), vorgabe, {}, dokumentVon(umgebung, wahl));
        writeFile(optionen.ziel, arten.at(static_cast<std::size_t>(vorgabe.art)).bytes().value());
    }

    Bildoptionen optionen;
};

} // namespace

void defineBildbefehl(CLI::App& app, Umgebung& umgebung) { addBefehl<Bild>(app, umgebung, Bildname, Bildbeschreibung); }

} // namespace zerna
