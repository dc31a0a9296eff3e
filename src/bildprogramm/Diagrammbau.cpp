#include "bildprogramm/Diagrammbau.h"

#include <algorithm>
#include <iterator>

#include "model/Elementdiagramm.h"
#include "model/Konzentrationsreihe.h"
#include "ui/diagram/Konzentrationsdiagramm.h"
#include "ui/diagram/PSEDiagramm.h"
#include "ui/diagram/Ternaerdiagramm.h"

namespace zerna {

namespace {

std::unique_ptr<Diagramm> konzentrationsdiagramm(Rechenkern& kern, const Diagrammwahl& wahl)
{
    const auto alloy = kern.komponenten();
    if (alloy.size() < 2)
        throw Datenfehler("Für ein Konzentrationsdiagramm sind mindestens zwei Komponenten nötig");
    std::vector<float> dichten;
    std::ranges::transform(alloy, std::back_inserter(dichten), &Legierungskomponente::dichte);
    auto result = std::make_unique<Konzentrationsdiagramm>([] { return std::nullopt; });
    result->setSymbol(alloy[static_cast<std::size_t>(wahl.komponente)].element->symbol());
    result->setEinheit(reiheneinheit(wahl.groesse));
    result->zeichneReihe(wahl.groesse == GroesseDichte
            ? dichtereihe(dichten, wahl.komponente)
            : konzentrationsreihe(kern.calc(), alloy, wahl.komponente, wahl.groesse));
    return result;
}

std::unique_ptr<Diagramm> ternaerdiagramm(Rechenkern& kern, const Diagrammwahl& wahl)
{
    auto result = std::make_unique<Ternaerdiagramm>();
    result->setAngaben(ternaerangaben(kern.calc(), kern.komponenten(), wahl.groesse, wahl.aufloesung));
    result->setAnsicht(wahl.ansicht);
    return result;
}

std::unique_ptr<Diagramm> pseDiagramm(Rechenkern& kern, const Diagrammwahl& wahl)
{
    std::vector<std::string> legierung;
    for (const Legierungskomponente& komponente : kern.komponenten())
        legierung.push_back(komponente.element->symbol());
    auto result = std::make_unique<PSEDiagramm>();
    result->setElemente(elementdiagramm(kern.elements(), kern.calc(), wahl.groesse, legierung));
    return result;
}

} // namespace

std::unique_ptr<Diagramm> diagramm(Rechenkern& kern, const Diagrammwahl& wahl)
{
    switch (wahl.typ) {
    case Diagrammtyp::Ternaer:
        return ternaerdiagramm(kern, wahl);
    case Diagrammtyp::PSE:
        return pseDiagramm(kern, wahl);
    case Diagrammtyp::Konzentration:
        break;
    }
    return konzentrationsdiagramm(kern, wahl);
}

} // namespace zerna
