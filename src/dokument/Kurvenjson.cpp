#include "dokument/Kurvenjson.h"

#include "dokument/Diagrammjson.h"
#include "dokument/Dokumentjson.h"
#include "dokument/Worte.h"

namespace zerna {

Json kurvenjson(const GehalteneKurve& kurve)
{
    Json werte = Json::array();
    for (const float value : kurve.werte)
        werte.push_back(zahl(value));
    return {{"name", kurve.name}, {"element", kurve.symbol}, {"groesse", kurve.groesse},
        {"art", wortFuer(kurve.art, Reihenworte)}, {"werte", std::move(werte)}};
}

GehalteneKurve readKurve(Feldleser& leser, const Json& json)
{
    GehalteneKurve kurve;
    if (!json.is_object())
        leser.ablehnen(json, "Eine Kurve muss ein Objekt sein");
    kurve.name = leser.text(json, "name", LaengstesFeld);
    kurve.symbol = leser.text(json, "element", LaengstesFeld);
    kurve.groesse = readGroesse(leser, json, "groesse");
    kurve.art = codeFor(leser, json, "art", Reihenworte);
    const Json& werte = leser.liste(json, "werte", kurve.werte.size(), kurve.werte.size());
    for (std::size_t i = 0; i < werte.size(); ++i)
        kurve.werte.at(i) = leser.wert(werte.at(i));
    return kurve;
}

} // namespace zerna
