#include "model/rechnung/Befund.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

namespace {

constexpr std::string_view DichteEintragen =
    " Eine andere wählen oder unter <andere> eine Zahl größer als 0 eintragen.";

/// Reason and remedy for a field without a value.
std::string fehltext(std::string_view name, const Eingabefeld& feld)
{
    if (feld.text.empty())
        return std::string(name) + " fehlt. Eine Zahl eintragen.";
    return std::string(name) + ": " + feld.fehler->text();
}

std::string summentext(const Eingabe& eingabe)
{
    double sum = 0;
    for (int i = 0; i < eingabe.anzahl() - 1; ++i)
        sum += eingabe.zeile(i).prozent.wert;
    return "Ohne die letzte Komponente ergeben sie zusammen " + textWithDigits(sum, 7) + " "
        + std::string(einheitenname(eingabe.quelle())) + ".";
}

void addProzent(std::vector<Befund>& alle, const Eingabe& eingabe, int zeile)
{
    const Eingabefeld& anteil = eingabe.anteilInKraft(zeile);
    const std::string einheit(einheitenname(eingabe.quelle()));
    const auto add = [&](Schwere schwere, std::string text) {
        alle.push_back({zeile, Eingabeort::Prozent, schwere, std::move(text)});
    };
    const auto isFaulty = [&](int i) { return eingabe.zeile(i).prozent.fehler.has_value(); };
    if (anteil.fehler)
        return add(Schwere::Fehler, fehltext(einheit, anteil));
    if (eingabe.zeile(zeile).prozent.text != anteil.text)
        return add(Schwere::Bedenken, "Hier steht der Rest auf 100 " + einheit + "; was eingetippt wird, zählt nicht.");
    for (int i = 0; i < eingabe.anzahl() - 1; ++i) {
        if (isFaulty(i))
            return; // the rest belongs to other parts
    }
    if (const auto& fehler = eingabe.prozentInKraft(zeile).fehler) {
        if (!fehler->abhilfe.empty())
            add(Schwere::Fehler, fehler->text());
        return;
    }
    if (anteil.wert < 0)
        add(Schwere::Bedenken, "Weniger als 0 " + einheit + ". " + summentext(eingabe));
    else if (anteil.wert > 100)
        add(Schwere::Bedenken, "Mehr als 100 " + einheit + ". " + summentext(eingabe));
}

void addDichte(std::vector<Befund>& alle, const Eingabe::Zeile& row, int zeile)
{
    const auto add = [&](std::string text) {
        alle.push_back({zeile, Eingabeort::Dichte, Schwere::Fehler, std::move(text)});
    };
    const Eingabefeld& dichte = row.dichte;
    if (dichte.istUnbekannterWert())
        add("Die Dichte ist nicht bekannt." + std::string(DichteEintragen));
    else if (dichte.fehler)
        add(fehltext("Dichte", dichte) + " Gerechnet wird mit " + feldtext(row.inKraft.dichte) + " g/cm³.");
    else if (dichte.wert <= 0)
        add((dichte.wert < 0 ? "Die Dichte ist negativ." : "Die Dichte ist 0.") + std::string(DichteEintragen));
}

void addValenz(std::vector<Befund>& alle, const Eingabefeld& valenz, int zeile)
{
    if (valenz.istUnbekannterWert())
        alle.push_back({zeile, Eingabeort::Valenz, Schwere::Fehler,
            "Die Valenz ist nicht bekannt. Unter <andere> eine Zahl oder Formel eintragen."});
    else if (valenz.fehler)
        alle.push_back({zeile, Eingabeort::Valenz, Schwere::Fehler, fehltext("Valenz", valenz)});
}

/// The row to look at for a mean valence that is not positive.
int firstWithoutElectrons(const Eingabe& eingabe)
{
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        if (!(eingabe.zeile(i).inKraft.valenz > 0))
            return i;
    }
    return 0;
}

} // namespace

std::vector<Befund> befunde(const Eingabe& eingabe)
{
    std::vector<Befund> alle;
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const Eingabe::Zeile& row = eingabe.zeile(i);
        if (!row.element)
            alle.push_back(
                {i, Eingabeort::Element, Schwere::Fehler, "Es ist kein Element gewählt. Eines aus der Liste wählen."});
        else if (istUnbekannt(row.element->Masse()))
            alle.push_back({i, Eingabeort::Element, Schwere::Fehler,
                "Die Masse des Elements ist nicht bekannt. Ein anderes wählen."});
        addProzent(alle, eingabe, i);
        if (!row.element)
            continue;
        addDichte(alle, row, i);
        addValenz(alle, row.valenz, i);
    }
    return alle;
}

std::optional<Befund> mittelbefund(const Eingabe& eingabe, const clsCalc& calc)
{
    const float valenz = wert(ergebniszeile(Valenzzeile), calc);
    const float teilchen = wert(ergebniszeile(Teilchenzeile), calc);
    const std::string anteile(einheitenname(eingabe.einheit()));
    if (istUnbekannt(valenz))
        return Befund{.text = "Die Legierung lässt sich mit diesen Werten nicht berechnen."};
    if (istUnbekannt(teilchen))
        return Befund{
            .ort = Eingabeort::Prozent, .text = "Zusammen haben die Komponenten kein Volumen. " + anteile + " ändern."};
    if (teilchen <= 0)
        return Befund{.ort = Eingabeort::Prozent,
            .text = "Die mittlere Teilchenzahldichte ist nicht positiv (" + textOfSingle(teilchen) + " 1/nm³). "
                + anteile + " oder Dichten ändern."};
    if (const float dichte = wert(ergebniszeile(Dichtezeile), calc); dichte <= 0)
        return Befund{.ort = Eingabeort::Prozent,
            .text = "Die mittlere Dichte ist nicht positiv (" + textOfSingle(dichte) + " g/cm³). " + anteile
                + " oder Dichten ändern."};
    if (valenz > 0)
        return std::nullopt;
    return Befund{.zeile = firstWithoutElectrons(eingabe),
        .ort = Eingabeort::Valenz,
        .text = "Die mittlere Valenz ist nicht positiv (" + textOfSingle(valenz)
            + " e/a), es gibt keine Leitungselektronen. Valenzen prüfen."};
}

Anteilssumme anteilssumme(const Eingabe& eingabe, std::span<const Befund> alle)
{
    double sum = 0;
    for (int i = 0; i < eingabe.anzahl(); ++i) {
        const Eingabefeld& anteil = eingabe.anteilInKraft(i);
        if (anteil.fehler)
            return {"Σ ?", {}};
        sum += anteil.wert;
    }
    constexpr int Digits = 6; // singles do not add up to 100 in more
    const std::string text = "Σ " + textWithDigits(sum, Digits) + " %";
    for (const Befund& befund : alle) {
        const float wert = eingabe.anteilInKraft(befund.zeile).wert;
        const bool isPart = befund.ort == Eingabeort::Prozent && befund.schwere == Schwere::Bedenken;
        if (isPart && (wert < 0 || wert > 100))
            return {text + ": " + befund.text.substr(0, befund.text.find(". ")), befund.text};
    }
    return {text, {}};
}

const Befund* wichtigster(std::span<const Befund> alle)
{
    const auto fault = std::ranges::find(alle, Schwere::Fehler, &Befund::schwere);
    if (fault != alle.end())
        return &*fault;
    return alle.empty() ? nullptr : &alle.front();
}

std::string befundtext(const Eingabe& eingabe, const Befund& befund)
{
    const auto& element = eingabe.zeile(befund.zeile).element;
    return "Komponente " + std::to_string(befund.zeile + 1) + (element ? " (" + element->symbol() + ")" : "") + ": "
        + befund.text;
}

std::string befundgrund(const Eingabe& eingabe, const Befund& befund)
{
    const std::string text = befundtext(eingabe, befund);
    const std::size_t end = text.find(". ");
    return end == std::string::npos ? text : text.substr(0, end + 1);
}

std::string zusammensetzung(const Eingabe& eingabe)
{
    std::string text;
    for (const Komponentenzeile& k : eingabe.komponentenzeilen())
        text.append(text.empty() ? "" : ", ").append(k.symbol).append(" ").append(k.prozent);
    return text.empty() ? text : text + " at%";
}

} // namespace zerna
