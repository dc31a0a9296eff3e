#include "model/Diagrammwahl.h"

#include "model/Groessen.h"
#include "model/PSEReihe.h"

namespace zerna {

Diagrammwahl passendeWahl(Diagrammwahl wahl, int anzahl)
{
    constexpr int Dreistoff = 3; // rows of a ternary diagram
    if (wahl.typ == Diagrammtyp::Ternaer && anzahl != Dreistoff)
        wahl.typ = Diagrammtyp::Konzentration;
    const bool isPSE = wahl.typ == Diagrammtyp::PSE;
    if (isPSE ? !istPSEGroesse(wahl.groesse) : findReihengroesse(wahl.groesse) == nullptr)
        wahl.groesse = isPSE ? psegroessen().front() : 0;
    if (wahl.komponente >= anzahl)
        wahl.komponente = 0;
    return wahl;
}

} // namespace zerna
