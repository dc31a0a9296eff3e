#include "dokument/Messkurvenjson.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/Kuerzung.h"
#include "core/Laufzeitfehler.h"
#include "core/Zahlentext.h"
#include "dokument/Dokumentdatei.h"
#include "dokument/Fremdes.h"
#include "dokument/Worte.h"

namespace zerna {

namespace {

std::string koordinaten(const std::vector<Messpunkt>& punkte, double Messpunkt::*koordinate)
{
    std::string text;
    for (const Messpunkt& punkt : punkte) {
        if (!text.empty())
            text += ' ';
        appendDouble(text, punkt.*koordinate, Dezimaltrenner::Punkt);
    }
    return text;
}

bool liesKoordinate(std::string_view text, double& value)
{
    try {
        return readNumber(text, value) && std::abs(value) <= GroessterMesswert;
    } catch (const Laufzeitfehler&) { // larger than any double
        return false;
    }
}

/// Reads the numbers of a text into one coordinate of the points; these become more if need be.
void liesKoordinaten(Feldleser& leser, const Json& object, std::string_view key, std::vector<Messpunkt>& punkte,
    double Messpunkt::*koordinate)
{
    const Json& value = leser.feld(object, key);
    if (!value.is_string()) {
        leser.ablehnen(value, zitiert(key) + " muss ein Text sein");
        return;
    }
    std::string_view text = value.get_ref<const std::string&>();
    std::size_t count = 0;
    while (!text.empty()) {
        const std::string_view number = text.substr(0, text.find(' '));
        if (count == punkte.size())
            punkte.emplace_back();
        if (count == MeisteMesspunkte || !liesKoordinate(number, punkte[count].*koordinate)) {
            leser.ablehnen(value,
                count == MeisteMesspunkte ? "Das sind zu viele Messpunkte" : zitiert(number) + " ist kein Messwert");
            return;
        }
        ++count;
        text.remove_prefix(std::min(number.size() + 1, text.size()));
    }
    if (count != punkte.size() || count < WenigsteMesspunkte)
        leser.ablehnen(value, "\"x\" und \"y\" müssen gleich viele Zahlen haben, mindestens drei");
}

} // namespace

Json messkurvenjson(const Messkurve& kurve)
{
    return {{"name", kurve.name}, {"art", wortFuer(kurve.art, Messworte)},
        {"einheit", wortFuer(kurve.einheit, Messeinheiten)}, {"x", nullptr}, {"y", nullptr}};
}

Json messkurvenliste(const std::vector<Messkurve>& kurven)
{
    Json liste = Json::array();
    for (const Messkurve& kurve : kurven) {
        Json json = messkurvenjson(kurve);
        json["x"] = koordinaten(*kurve.punkte, &Messpunkt::x);
        json["y"] = koordinaten(*kurve.punkte, &Messpunkt::y);
        fuegeEin(json, fremdesAus(kurve.fremd));
        liste.push_back(std::move(json));
    }
    return liste;
}

Messkurve liesMesskurve(Feldleser& leser, const Json& json)
{
    Messkurve kurve;
    if (!json.is_object())
        leser.ablehnen(json, "Eine Messkurve muss ein Objekt sein");
    kurve.name = leser.text(json, "name", LaengstesFeld);
    kurve.art = codeFor(leser, json, "art", Messworte);
    kurve.einheit = codeFor(leser, json, "einheit", Messeinheiten);
    std::vector<Messpunkt> punkte;
    liesKoordinaten(leser, json, "x", punkte, &Messpunkt::x);
    liesKoordinaten(leser, json, "y", punkte, &Messpunkt::y);
    if (!istAufsteigend(punkte))
        leser.ablehnen(leser.feld(json, "x"), "Die Zahlen in \"x\" müssen aufsteigen");
    kurve.punkte = std::move(punkte);
    return kurve;
}

} // namespace zerna
