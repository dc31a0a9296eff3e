#include "model/reihen/Diagrammwahl.h"

#include "model/rechnung/Groessen.h"
#include "model/reihen/PSEReihe.h"

namespace zerna {

namespace {

bool istListengroesse(int groesse, bool isPSE)
{
    return isPSE ? istPSEGroesse(groesse) : findReihengroesse(groesse) != nullptr;
}

} // namespace

void wechsleTyp(Diagrammwahl& wahl, Diagrammtyp typ)
{
    if ((wahl.typ == Diagrammtyp::PSE) != (typ == Diagrammtyp::PSE)) {
        const int left = wahl.groesse;
        wahl.groesse = wahl.andereGroesse.value_or(left);
        wahl.andereGroesse = left;
    }
    wahl.typ = typ;
}

Diagrammwahl passendeWahl(Diagrammwahl wahl, int anzahl)
{
    constexpr int Dreistoff = 3; // rows of a ternary diagram
    if (wahl.typ == Diagrammtyp::Ternaer && anzahl != Dreistoff)
        wahl.typ = Diagrammtyp::Konzentration;
    const bool isPSE = wahl.typ == Diagrammtyp::PSE;
    if (wahl.andereGroesse && !istListengroesse(*wahl.andereGroesse, !isPSE))
        wahl.andereGroesse.reset();
    if (wahl.zweiteGroesse && !istListengroesse(*wahl.zweiteGroesse, false))
        wahl.zweiteGroesse.reset();
    if (!istListengroesse(wahl.groesse, isPSE))
        wahl.groesse = isPSE ? psegroessen().front() : 0;
    if (wahl.komponente >= anzahl)
        wahl.komponente = 0;
    return wahl;
}

} // namespace zerna
