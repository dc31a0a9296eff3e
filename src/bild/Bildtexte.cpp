#include "bild/Bildtexte.h"

#include "bild/Konzentrationstexte.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

Bildtexte bildtexte(const Eingabe& eingabe, const Diagrammwahl& wahl)
{
    const Groesse* const groesse = findGroesse(wahl.groesse);
    if (groesse == nullptr)
        return {};
    switch (wahl.typ) {
    case Diagrammtyp::PSE:
        return {std::string(groesse->elementtitel) + " über der Ordnungszahl", {}};
    case Diagrammtyp::Ternaer:
        return {groessentitel(*groesse) + " über allen Zusammensetzungen", legierungstext(eingabe)};
    case Diagrammtyp::Messkurve:
        return {"Messkurven", legierungstext(eingabe)};
    case Diagrammtyp::Konzentration:
        break;
    }
    const auto& element = eingabe.zeile(wahl.komponente).element;
    return {groessentitel(*groesse) + (element ? " über at% " + element->symbol() : ""), legierungstext(eingabe)};
}

} // namespace zerna
