#include <algorithm>
#include <limits>
#include <span>
#include <tuple>
#include <utility>

#include "core/Datei.h"
#include "core/Kuerzung.h"
#include "dokument/Diagrammjson.h"
#include "dokument/Dokumentdatei.h"
#include "dokument/Dokumentjson.h"
#include "dokument/Feldleser.h"
#include "dokument/Fremdes.h"
#include "dokument/Kurvenjson.h"
#include "dokument/Messkurvenjson.h"
#include "dokument/Worte.h"

namespace zerna {

namespace {

std::string dichtewahlIn(Feldleser& leser, const Json& object)
{
    std::string wahl = leser.text(object, "wahl", LaengstesFeld);
    const auto known = dichtearten();
    if (wahl != AndereWahl && std::ranges::find(known, wahl) == known.end())
        leser.ablehnen(leser.feld(object, "wahl"), zitiert(wahl) + " ist hier nicht bekannt");
    return wahl;
}

/// A value chosen from the table stands in the file as text and as number, which must be the same.
void checkGewaehlt(Feldleser& leser, const Json& object, std::string_view key, const std::string& text, bool isSame)
{
    if (!isSame)
        leser.ablehnen(leser.feld(object, key),
            "Das passt nicht zum Text " + zitiert(text) + R"(; für einen eigenen Wert "wahl" auf "<andere>" setzen)");
}

/// A typed density that can be read is the one in force, whatever the file says besides.
void readDichte(Feldleser& leser, const Json& json, Rohzeile& zeile)
{
    zeile.dichtewahl = dichtewahlIn(leser, json);
    zeile.dichte = leser.text(json, "text", LaengstesFeld);
    zeile.dichteInKraft = leser.wert(json, "wert");
    const Eingabefeld typed = zahlenfeld(zeile.dichte);
    if (zeile.dichtewahl != AndereWahl)
        checkGewaehlt(leser, json, "wert", zeile.dichte, typed.wert == zeile.dichteInKraft);
    else if (!typed.fehler)
        zeile.dichteInKraft = typed.wert;
}

/// The same for the valence. What a formula came to in the file is kept to be compared with what it comes to here.
void readValenz(
    Feldleser& leser, const Json& json, Rohzeile& zeile, float& valenzwert, const ElementCollection& elements)
{
    zeile.valenzwahl = codeFor(leser, json, "wahl", Valenzworte);
    zeile.valenz = leser.text(json, "text", LaengstesFeld);
    zeile.valenzInKraft = leser.text(json, "inKraft", LaengstesFeld);
    valenzwert = leser.wert(json, "wert");
    if (leser.fehler())
        return;
    const Eingabefeld typed = valenzfeld(zeile.valenz, elements);
    if (zeile.valenzwahl != ValenzAndere) {
        const float inKraft = valenzfeld(zeile.valenzInKraft, elements).wert;
        checkGewaehlt(leser, json, "inKraft", zeile.valenz, typed.wert == inKraft);
        checkGewaehlt(leser, json, "wert", zeile.valenz, typed.wert == valenzwert);
    } else if (!typed.fehler) {
        const bool isFormula = !typed.echo.empty();
        if (!isFormula || zeile.valenz != zeile.valenzInKraft)
            valenzwert = typed.wert;
        zeile.valenzInKraft = zeile.valenz;
    }
}

/// Rows of a file, one after the other.
void readZeile(
    Feldleser& leser, const Json& json, Dateilegierung& legierung, std::size_t row, const ElementCollection& elements)
{
    Rohzeile& zeile = legierung.roh.zeilen.at(row);
    if (!json.is_object())
        leser.ablehnen(json, "Eine Zeile muss ein Objekt sein");
    zeile.element = leser.textOderNull(json, "element", LaengstesFeld);
    zeile.prozent = leser.text(json, "prozent", LaengstesFeld);
    if (zeile.element.empty())
        return;
    readDichte(leser, leser.objekt(json, "dichte"), zeile);
    readValenz(leser, leser.objekt(json, "valenz"), zeile, legierung.valenzen.at(row), elements);
    if (json.contains(Atommassenschluessel))
        legierung.atommassen.at(row) = leser.wert(json, Atommassenschluessel);
}

/// A file's alloy knows that rows may have an atomic mass, whether this one writes it or not.
Json mitAtommassen(Json legierung)
{
    for (Json& zeile : legierung["zeilen"])
        zeile.emplace(Atommassenschluessel, nullptr);
    return legierung;
}

/// Rows of the same element share density and valence, so what a file says of it must be the same in each.
void checkGleiche(Feldleser& leser, const Json& zeilen, std::span<const Rohzeile> read)
{
    const auto values = [](const Rohzeile& zeile) {
        return std::tie(
            zeile.dichtewahl, zeile.dichte, zeile.dichteInKraft, zeile.valenzwahl, zeile.valenz, zeile.valenzInKraft);
    };
    for (std::size_t i = 0; i < zeilen.size() && !leser.fehler(); ++i) {
        const auto first = std::ranges::find(read, read[i].element, &Rohzeile::element);
        if (values(*first) != values(read[i]))
            leser.ablehnen(zeilen.at(i),
                "Die Zeilen von " + zitiert(read[i].element) + " müssen dieselbe Dichte und Valenz haben");
    }
}

/// The rows that a file leaves out hold what they hold at the start.
Dateilegierung readLegierung(Feldleser& leser, const Json& json, const ElementCollection& elements)
{
    Dateilegierung legierung{Eingabe(elements).roh(), {}, {}};
    const Json& zeilen = leser.liste(json, "zeilen", 1, MaxKomponenten);
    for (std::size_t i = 0; i < zeilen.size() && !leser.fehler(); ++i)
        readZeile(leser, zeilen.at(i), legierung, i, elements);
    checkGleiche(leser, zeilen, legierung.roh.zeilen);
    legierung.roh.anzahl = leser.ganzzahl(json, "anzahl", 1, std::max(1, static_cast<int>(zeilen.size())));
    legierung.roh.einheit = codeFor(leser, json, "einheit", Einheitenworte);
    legierung.roh.quelle = codeFor(leser, json, "getipptIn", Einheitenworte);
    legierung.roh.rest = leser.text(json, "rest", LaengstesFeld);
    legierung.roh.nachgeschlagen = leser.textOderNull(json, "nachgeschlagen", LaengstesFeld);
    return legierung;
}

Wiegedaten readWiegen(Feldleser& leser, const Json& json)
{
    Wiegedaten wiegen;
    wiegen.gewuenscht = leser.text(json, "gewuenscht", LaengstesFeld);
    const Json& gewogen = leser.liste(json, "gewogen", 0, MaxKomponenten);
    for (std::size_t i = 0; i < gewogen.size(); ++i)
        wiegen.gewogen.at(i) = leser.text(gewogen.at(i), LaengstesFeld);
    wiegen.verlust = leser.text(json, "verlust", LaengstesFeld);
    if (leser.feld(json, "bezug").is_null())
        return wiegen;
    const Json& bezug = leser.objekt(json, "bezug");
    const int zeile = leser.ganzzahl(bezug, "zeile", 1, MaxKomponenten) - 1;
    const double masse = leser.zahl(bezug, "masse", 0, std::numeric_limits<float>::max());
    wiegen.bezug = Wiegebezug{zeile, static_cast<float>(masse)};
    return wiegen;
}

/// Reads a document from its JSON value, part by part.
class Dokumentleser {
public:
    Dokumentleser(const Jsontext& json, const ElementCollection& elements)
        : m_json(json)
        , m_elements(elements)
        , m_leser(json)
    {
    }

    Lesung lies()
    {
        Lesung lesung;
        Dokument dokument(m_elements);
        const Json& root = m_json.wert();
        readKopf(root, dokument);
        dokument.eingabe = eingabe(m_leser.objekt(root, "legierung"), std::nullopt);
        dokument.wiegen = readWiegen(m_leser, m_leser.objekt(root, "einwaage"));
        dokument.diagramm =
            passendeWahl(readDiagramm(m_leser, m_leser.objekt(root, "diagramm")), dokument.eingabe.anzahl());
        dokument.vergleich = vergleich(m_leser.objekt(root, "vergleich"));
        if (root.contains("kurven"))
            dokument.kurven = kurven(m_leser.liste(root, "kurven", 0, MaxKurven));
        dokument.messkurven = messkurven(root);
        dokument.fremd = fremdes(root, [&] {
            Json known = dokumentjson(dokument);
            for (const std::string_view key : WahlfreieDiagrammangaben)
                known["diagramm"].emplace(key, nullptr);
            known["legierung"] = mitAtommassen(known["legierung"]);
            known["kurven"] = nullptr; // each has its own
            known.emplace(Messkurvenschluessel, nullptr);
            return known;
        });
        if (m_leser.fehler()) {
            lesung.fehler = *m_leser.fehler();
            if (m_version > Dateiversion)
                lesung.fehler.grund += "; die Datei stammt von einer neueren Version von Zerna";
            return lesung;
        }
        lesung.nurLesen = nurLesen();
        lesung.unterschiede = std::move(m_unterschiede);
        lesung.dokument = std::move(dokument);
        return lesung;
    }

private:
    void readKopf(const Json& root, Dokument& dokument)
    {
        const auto kennung = root.is_object() ? root.find("format") : root.end();
        if (kennung == root.end() || *kennung != Dateikennung)
            m_leser.ablehnen(root, R"(Das ist keine Zerna-Datei: Die Angabe "format": "Zerna-Legierung" fehlt)");
        m_version = m_leser.ganzzahl(root, "version", 1, std::numeric_limits<int>::max());
        dokument.titel = m_leser.text(root, "titel", LaengstesFeld);
        dokument.bemerkung = m_leser.text(root, "bemerkung", LaengsteBemerkung);
    }

    Eingabe eingabe(const Json& json, std::optional<std::size_t> variante)
    {
        const Dateilegierung legierung = readLegierung(m_leser, json, m_elements);
        if (m_leser.fehler())
            return Eingabe(m_elements);
        std::ranges::move(zerna::unterschiede(legierung, m_elements, variante), std::back_inserter(m_unterschiede));
        for (const Rohzeile& zeile : legierung.roh.zeilen) {
            const bool isMissing = !zeile.element.empty() && !m_elements.find(zeile.element);
            if (isMissing && std::ranges::count(m_missing, zeile.element) == 0)
                m_missing.push_back(zeile.element);
        }
        return Eingabe::aus(m_elements, legierung.roh);
    }

    Vergleich vergleich(const Json& json)
    {
        Vergleich vergleich;
        const Json& varianten = m_leser.liste(json, "varianten", 0, MaxVarianten);
        for (std::size_t i = 0; i < varianten.size() && !m_leser.fehler(); ++i) {
            if (!varianten.at(i).is_object())
                m_leser.ablehnen(varianten.at(i), "Eine Variante muss ein Objekt sein");
            std::string name = m_leser.text(varianten.at(i), "name", LaengstesFeld);
            Variante variante{std::move(name), eingabe(m_leser.objekt(varianten.at(i), "legierung"), i), {}};
            variante.fremd = fremdes(varianten.at(i), [&] {
                Json known = variantenjson(variante);
                known["legierung"] = mitAtommassen(known["legierung"]);
                return known;
            });
            vergleich.varianten.push_back(std::move(variante));
        }
        const int most = std::max(1, static_cast<int>(varianten.size()));
        vergleich.referenz = static_cast<std::size_t>(m_leser.ganzzahl(json, "referenz", 1, most)) - 1;
        return vergleich;
    }

    std::vector<GehalteneKurve> kurven(const Json& liste)
    {
        std::vector<GehalteneKurve> kurven;
        for (std::size_t i = 0; i < liste.size() && !m_leser.fehler(); ++i) {
            GehalteneKurve kurve = readKurve(m_leser, liste.at(i));
            kurve.fremd = fremdes(liste.at(i), [&] { return kurvenjson(kurve); });
            kurven.push_back(std::move(kurve));
        }
        return kurven;
    }

    std::vector<Messkurve> messkurven(const Json& root)
    {
        std::vector<Messkurve> kurven;
        if (m_leser.fehler() || !root.contains(Messkurvenschluessel))
            return kurven;
        const Json& liste = m_leser.liste(root, Messkurvenschluessel, 0, MeisteMesskurven);
        for (std::size_t i = 0; i < liste.size() && !m_leser.fehler(); ++i) {
            Messkurve kurve = liesMesskurve(m_leser, liste.at(i));
            kurve.fremd = fremdes(liste.at(i), [&] { return messkurvenjson(kurve); });
            kurven.push_back(std::move(kurve));
            if (messpunktzahl(kurven) > MeisteMesspunkte)
                m_leser.ablehnen(liste.at(i), "Das sind zusammen zu viele Messpunkte");
        }
        return kurven;
    }

    /// The keys of a value that the program does not know, as long as all of them together are not too many.
    template <class Known>
    std::string fremdes(const Json& value, Known known)
    {
        std::string text = m_leser.fehler() ? "" : fremdtext(value, known());
        m_fremdes += text.size();
        if (m_fremdes > MeistFremdes)
            m_leser.ablehnen(value, "Hier stehen mehr als 1 MB Angaben, die Zerna nicht kennt");
        return text;
    }

    std::string nurLesen() const
    {
        std::string reason;
        if (m_version > Dateiversion)
            reason = "Die Datei stammt von einer neueren Version von Zerna. Was diese Version nicht kennt, wird nicht "
                     "gezeigt.";
        if (m_missing.empty())
            return reason;
        std::string symbols;
        for (const std::string& symbol : m_missing)
            symbols += (symbols.empty() ? "" : ", ") + gekuerzt(symbol);
        return reason + (reason.empty() ? "" : " ") + "Die Elementtabelle kennt nicht: " + gekuerzt(symbols, 255)
            + ". Die Zeilen damit sind leer.";
    }

    const Jsontext& m_json;
    const ElementCollection& m_elements;
    Feldleser m_leser;
    int m_version = Dateiversion;
    std::size_t m_fremdes = 0; // bytes
    std::vector<Tabellenunterschied> m_unterschiede;
    std::vector<std::string> m_missing; // elements
};

} // namespace

Lesung lies(std::string_view text, const ElementCollection& elements)
{
    Lesung lesung;
    if (text.size() > GroessteDatei) {
        lesung.fehler.grund = "Die Datei ist größer als 64 MB";
        return lesung;
    }
    const Jsontext json(text);
    if (json.fehler()) {
        lesung.fehler = *json.fehler();
        return lesung;
    }
    return Dokumentleser(json, elements).lies();
}

} // namespace zerna
