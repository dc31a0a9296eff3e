#include "bildprogramm/Bildbefehl.h"

#include <QFontDatabase>

#include <algorithm>

#include "bildprogramm/Diagrammbau.h"
#include "cli/Befehl.h"
#include "cli/Bildoptionen.h"
#include "cli/Umgebung.h"
#include "core/Kuerzung.h"
#include "dokument/Dokumentdatei.h"
#include "ui/diagram/Bilddatei.h"

namespace zerna {

namespace {

/// What the picture carries. Nothing where the document's last at%, which makes the sum 100 %, would not be that of the
/// alloy.
std::string carriedText(const Dokument& dokument, const Rechenkern& kern)
{
    std::string text = schreibe(dokument);
    const auto read = lies(text, kern.elements()).dokument;
    const auto alloy = read ? read->eingabe.legierung() : std::nullopt;
    const auto prozent = &Legierungskomponente::prozent;
    if (alloy && std::ranges::equal(alloy->komponenten(), kern.komponenten(), {}, prozent, prozent))
        return text;
    melde("Die Anteile ergeben nicht 100 %, das Bild trägt keine Legierung");
    return {};
}

struct Bild {
    void define(CLI::App& befehl) { optionen.define(befehl); }

    void run(Umgebung& umgebung) const
    {
        optionen.check();
        const Bildvorgabe vorgabe = optionen.vorgabe();
        if (!optionen.schrift.empty() && !QFontDatabase::hasFamily(toQt(optionen.schrift)))
            throw Aufruffehler("--schrift " + gekuerzt(optionen.schrift) + ": diese Schrift gibt es hier nicht");
        const Dokument dokument = load(umgebung);
        const Rechenkern& kern = umgebung.kern();
        const auto bild =
            diagramm(umgebung.kern(), dokument, optionen.schalter, {optionen.kristallin, !optionen.ohneSymbole});
        const bool hasAlloy = !optionen.komponenten.texte.empty();
        const auto arten = bildarten(bild->maler(), vorgabe, bildtexte(dokument.eingabe, dokument.diagramm),
            hasAlloy ? carriedText(dokument, kern) : std::string());
        writeFile(optionen.ziel, arten.at(static_cast<std::size_t>(vorgabe.art)).bytes().value());
    }

    /// The document that the alloy comes from, else one of the alloy alone, with the chosen diagram.
    Dokument load(Umgebung& umgebung) const
    {
        if (optionen.komponenten.texte.empty())
            umgebung.load();
        else
            umgebung.loadAlloy(optionen.komponenten);
        const Rechenkern& kern = umgebung.kern();
        const auto& file = umgebung.dokument();
        Dokument dokument = file.value_or(Dokument(kern.elements()));
        dokument.eingabe = kern.eingabe();
        dokument.diagramm = optionen.wahl(file, kern);
        return dokument;
    }

    Bildoptionen optionen;
};

} // namespace

void defineBildbefehl(CLI::App& app, Umgebung& umgebung) { addBefehl<Bild>(app, umgebung, Bildname, Bildbeschreibung); }

} // namespace zerna
