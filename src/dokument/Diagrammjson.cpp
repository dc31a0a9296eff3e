#include "dokument/Diagrammjson.h"

#include <limits>

#include "dokument/Worte.h"
#include "model/rechnung/Groessen.h"
#include "model/reihen/Ternaergitter.h"

namespace zerna {

int readGroesse(Feldleser& leser, const Json& json, std::string_view key)
{
    const int groesse = leser.ganzzahl(json, key, 0, std::numeric_limits<int>::max());
    if (findGroesse(groesse) == nullptr)
        leser.ablehnen(leser.feld(json, key), "Eine Größe mit dieser Kennzahl gibt es nicht");
    return groesse;
}

Json diagrammjson(const Diagrammwahl& wahl)
{
    const Ansicht& ansicht = wahl.ansicht;
    Json json{{"art", wortFuer(wahl.typ, Diagrammworte)}, {"groesse", wahl.groesse}, {"zeile", wahl.komponente + 1},
        {"aufloesung", wahl.aufloesung},
        {"ansicht",
            {{"neigung", ansicht.tilt}, {"drehung", ansicht.turn}, {"zoom", ansicht.zoom}, {"flach", ansicht.flach}}}};
    if (wahl.andereGroesse)
        json["andereGroesse"] = *wahl.andereGroesse;
    if (wahl.zweiteGroesse)
        json["zweiteGroesse"] = *wahl.zweiteGroesse;
    if (wahl.varianten)
        json["varianten"] = true;
    return json;
}

Diagrammwahl readDiagramm(Feldleser& leser, const Json& json)
{
    Diagrammwahl wahl;
    wahl.typ = codeFor(leser, json, "art", Diagrammworte);
    wahl.groesse = readGroesse(leser, json, "groesse");
    if (json.contains("andereGroesse"))
        wahl.andereGroesse = readGroesse(leser, json, "andereGroesse");
    if (json.contains("zweiteGroesse"))
        wahl.zweiteGroesse = readGroesse(leser, json, "zweiteGroesse");
    wahl.varianten = json.contains("varianten") && leser.schalter(json, "varianten");
    wahl.komponente = leser.ganzzahl(json, "zeile", 1, MaxKomponenten) - 1;
    wahl.aufloesung = leser.ganzzahl(json, "aufloesung", 1, FeinsteAufloesung);
    const Json& ansicht = leser.objekt(json, "ansicht");
    wahl.ansicht.tilt = leser.zahl(ansicht, "neigung", -90, 90);
    wahl.ansicht.turn = leser.zahl(ansicht, "drehung", -180, 180);
    wahl.ansicht.zoom = leser.zahl(ansicht, "zoom", 0.5, 3);
    wahl.ansicht.flach = leser.schalter(ansicht, "flach");
    return wahl;
}

} // namespace zerna
