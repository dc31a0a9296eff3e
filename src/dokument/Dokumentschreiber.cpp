#include <algorithm>
#include <cmath>

#include "core/Datei.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "dokument/Diagrammjson.h"
#include "dokument/Dokumentdatei.h"
#include "dokument/Dokumentjson.h"
#include "dokument/Fremdes.h"
#include "dokument/Kurvenjson.h"
#include "dokument/Messkurvenjson.h"
#include "dokument/Worte.h"

namespace zerna {

namespace {

Json textOderNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

Json zeilenjson(const Rohzeile& zeile, float valenz)
{
    Json json{
        {"element", textOderNull(zeile.element)}, {"prozent", zeile.prozent}, {"dichte", nullptr}, {"valenz", nullptr}};
    if (zeile.element.empty())
        return json;
    json["dichte"] = {{"wahl", zeile.dichtewahl}, {"text", zeile.dichte}, {"wert", zahl(zeile.dichteInKraft)}};
    json["valenz"] = {{"wahl", wortFuer(zeile.valenzwahl, Valenzworte)}, {"text", zeile.valenz},
        {"inKraft", zeile.valenzInKraft}, {"wert", zahl(valenz)}};
    return json;
}

Json legierungsjson(const Eingabe& eingabe)
{
    const Rohlegierung roh = eingabe.roh();
    Json zeilen = Json::array();
    for (int i = 0; i < MaxKomponenten; ++i) {
        const Eingabe::Zeile& zeile = eingabe.zeile(i);
        zeilen.push_back(zeilenjson(roh.zeilen.at(static_cast<std::size_t>(i)), zeile.inKraft.valenz));
        if (roh.quelle == Anteilseinheit::Masse && zeile.element)
            zeilen.back()[Atommassenschluessel] = zahl(zeile.element->Masse());
    }
    return {{"anzahl", roh.anzahl}, {"einheit", wortFuer(roh.einheit, Einheitenworte)},
        {"getipptIn", wortFuer(roh.quelle, Einheitenworte)}, {"zeilen", std::move(zeilen)}, {"rest", roh.rest},
        {"nachgeschlagen", textOderNull(roh.nachgeschlagen)}};
}

Json wiegejson(const Wiegedaten& wiegen)
{
    Json json{{"gewuenscht", wiegen.gewuenscht}, {"gewogen", wiegen.gewogen}, {"verlust", wiegen.verlust},
        {"bezug", nullptr}};
    if (wiegen.bezug)
        json["bezug"] = {{"zeile", wiegen.bezug->komponente + 1}, {"masse", zahl(wiegen.bezug->masse)}};
    return json;
}

/// Entries with what is foreign in each.
template <class Eintrag>
Json liste(const std::vector<Eintrag>& eintraege, Json (*inhalt)(const Eintrag&))
{
    Json liste = Json::array();
    for (const Eintrag& eintrag : eintraege) {
        Json json = inhalt(eintrag);
        fuegeEin(json, fremdesAus(eintrag.fremd));
        liste.push_back(std::move(json));
    }
    return liste;
}

} // namespace

Json zahl(float wert)
{
    const bool isNumber = std::isfinite(wert) && !istUnbekannt(wert);
    return isNumber ? Json(doubleFromText(textOfSingle(wert))) : Json();
}

Json variantenjson(const Variante& variante)
{
    return {{"name", variante.name}, {"legierung", legierungsjson(variante.eingabe)}};
}

Json dokumentjson(const Dokument& dokument)
{
    const std::size_t referenz = std::clamp<std::size_t>(
        dokument.vergleich->referenz + 1, 1, std::max<std::size_t>(1, dokument.vergleich->varianten.size()));
    return {{"format", Dateikennung}, {"version", Dateiversion}, {"titel", dokument.titel},
        {"bemerkung", *dokument.bemerkung}, {"legierung", legierungsjson(dokument.eingabe)},
        {"einwaage", wiegejson(dokument.wiegen)}, {"diagramm", diagrammjson(dokument.diagramm)},
        {"vergleich", {{"referenz", referenz}, {"varianten", nullptr}}}};
}

std::function<std::string()> schreibeSpaeter(const Dokument& dokument)
{
    Json json = dokumentjson(dokument);
    fuegeEin(json, fremdesAus(*dokument.fremd));
    json["vergleich"]["varianten"] = liste(dokument.vergleich->varianten, &variantenjson);
    if (!dokument.kurven->empty())
        json["kurven"] = liste(*dokument.kurven, &kurvenjson);
    return [json = std::move(json), kurven = dokument.messkurven]() mutable {
        if (!kurven->empty())
            json[Messkurvenschluessel] = messkurvenliste(*kurven);
        const auto text = [&](int indent) {
            return json.dump(indent, ' ', false, Json::error_handler_t::replace) + '\n';
        };
        std::string indented = text(4);
        return indented.size() <= GroessteDatei ? indented : text(-1);
    };
}

std::string schreibe(const Dokument& dokument) { return schreibeSpaeter(dokument)(); }

} // namespace zerna
