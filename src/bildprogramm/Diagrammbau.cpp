#include "bildprogramm/Diagrammbau.h"

#include <utility>

#include "bild/Konzentrationstexte.h"
#include "bild/Messkurvenbild.h"
#include "core/Unbekannt.h"
#include "model/reihen/Elementdiagramm.h"
#include "ui/diagram/Kurvendiagramm.h"
#include "ui/diagram/PSEDiagramm.h"
#include "ui/diagram/Ternaerdiagramm.h"

namespace zerna {

namespace {

template <class Werte>
void requireValues(const Werte& werte)
{
    if (!istEinerBekannt(werte))
        throw Datenfehler("Es ist kein Wert bekannt");
}

std::unique_ptr<Diagramm> konzentrationsdiagramm(
    Rechenkern& kern, const Dokument& dokument, const Kurvenschalter& schalter)
{
    if (dokument.eingabe.anzahl() < 2)
        throw Datenfehler("Für ein Konzentrationsdiagramm sind mindestens zwei Komponenten nötig");
    Vergleichskurven vergleich{.gehaltene = *dokument.kurven};
    if (dokument.diagramm.varianten)
        vergleich.varianten = dokument.vergleich->varianten;
    auto result = std::make_unique<Kurvendiagramm>();
    result->setBild(konzentrationsbild(kern.calc(), dokument.eingabe, dokument.diagramm, schalter, vergleich).bild);
    return result;
}

std::unique_ptr<Diagramm> ternaerdiagramm(Rechenkern& kern, const Diagrammwahl& wahl)
{
    Ternaerangaben angaben = ternaerangaben(kern.calc(), kern.komponenten(), wahl.groesse, wahl.aufloesung);
    requireValues(angaben.gitter.werte);
    auto result = std::make_unique<Ternaerdiagramm>();
    result->setAngaben(std::move(angaben));
    result->setAnsicht(wahl.ansicht);
    return result;
}

std::unique_ptr<Diagramm> pseDiagramm(Rechenkern& kern, const Diagrammwahl& wahl, const PSEAnsicht& ansicht)
{
    std::vector<std::string> legierung;
    for (const Legierungskomponente& komponente : kern.komponenten())
        legierung.push_back(komponente.element->symbol());
    Elementdiagramm elemente = elementdiagramm(kern.elements(), kern.calc(), wahl.groesse, legierung);
    requireValues(elemente.reihe.y);
    auto result = std::make_unique<PSEDiagramm>();
    result->setElemente(std::move(elemente));
    result->setAnsicht(ansicht);
    return result;
}

/// The kind of the last curve says which of them are drawn.
std::unique_ptr<Diagramm> messdiagramm(Rechenkern& kern, const Dokument& dokument)
{
    if (dokument.messkurven->empty())
        throw Datenfehler("Die Datei enthält keine Messkurve");
    Messauswertung auswertung;
    auswertung.setKurven(dokument.messkurven);
    const Messart art = dokument.messkurven->back().art;
    Kurvenbild bild = messkurvenbild(auswertung, art);
    Messbeiwerk beiwerk = messbeiwerk(kern.calc(), art, bild.x.bereich, legierungstext(dokument.eingabe));
    bild.untertitel = std::move(beiwerk.untertitel);
    bild.marken = std::move(beiwerk.marken);
    bild.hinweise = std::move(beiwerk.hinweise);
    auto result = std::make_unique<Kurvendiagramm>();
    result->setBild(std::move(bild));
    return result;
}

} // namespace

std::unique_ptr<Diagramm> diagramm(
    Rechenkern& kern, const Dokument& dokument, const Kurvenschalter& schalter, const PSEAnsicht& ansicht)
{
    switch (dokument.diagramm.typ) {
    case Diagrammtyp::Ternaer:
        return ternaerdiagramm(kern, dokument.diagramm);
    case Diagrammtyp::PSE:
        return pseDiagramm(kern, dokument.diagramm, ansicht);
    case Diagrammtyp::Messkurve:
        return messdiagramm(kern, dokument);
    case Diagrammtyp::Konzentration:
        break;
    }
    return konzentrationsdiagramm(kern, dokument, schalter);
}

} // namespace zerna
