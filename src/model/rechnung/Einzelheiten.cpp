#include "model/rechnung/Einzelheiten.h"

#include "core/Anzeigetext.h"
#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Groessen.h"

namespace zerna {

namespace {

std::string mitEinheit(const std::string& number, std::string_view unit)
{
    return number.empty() ? "unbekannt" : anzeigetext(number) + ' ' + std::string(unit);
}

void addKonstanten(Einzelheiten& alle, const Lehrbucheintrag& eintrag)
{
    std::string text;
    for (const Naturkonstante* const konstante : eintrag.konstanten) {
        if (konstante != nullptr)
            text.append(text.empty() ? "" : ", ")
                .append(konstante->zeichen)
                .append(" = ")
                .append(mitEinheit(textOfDouble(konstante->wert), konstante->einheit));
    }
    if (!text.empty())
        alle.zeilen.push_back({"Konstanten", std::move(text)});
}

/// The textbook's value with five digits, which is what results are shown with.
std::string lehrbuchtext(
    const Lehrbucheintrag& eintrag, const clsCalc* calc, std::span<const Legierungskomponente> komponenten)
{
    const float value = calc == nullptr ? Unbekannt : lehrbuchwert(eintrag, *calc, komponenten);
    return mitEinheit(istUnbekannt(value) ? "" : textWithDigits(value, 5), eintrag.einheit);
}

} // namespace

Einzelheiten einzelheiten(int zeile, const clsCalc* calc, std::span<const Legierungskomponente> komponenten)
{
    const Groesse& groesse = ergebniszeile(zeile);
    const float value = calc == nullptr ? Unbekannt : wert(groesse, *calc);
    Einzelheiten alle{std::string(groesse.bezeichnung()), {}};
    alle.zeilen.push_back({"Wert", mitEinheit(istUnbekannt(value) ? "" : textOfSingle(value), groesse.einheit)});
    const Lehrbucheintrag* const eintrag = findLehrbuch(zeile);
    if (eintrag == nullptr)
        return alle;
    alle.zeilen.push_back({"Formel", std::string(eintrag->formel)});
    if (!eintrag->grund.empty()) {
        alle.zeilen.push_back({"Lehrbuch", lehrbuchtext(*eintrag, calc, komponenten)});
        alle.zeilen.push_back({"Formel dazu", std::string(eintrag->lehrbuchformel)});
        alle.zeilen.push_back({"Unterschied", std::string(eintrag->grund)});
    }
    addKonstanten(alle, *eintrag);
    return alle;
}

Einzelheiten diagrammeinzelheiten(int zeile, const clsCalc* calc, std::span<const Legierungskomponente> komponenten)
{
    const Lehrbucheintrag* const eintrag = abweichungImDiagramm(zeile);
    if (eintrag == nullptr)
        return {};
    Einzelheiten alle{std::string(ergebniszeile(zeile).name) + " im Diagramm", {}};
    alle.zeilen.push_back({"Unterschied", std::string(eintrag->diagrammgrund)});
    alle.zeilen.push_back({"Lehrbuch", lehrbuchtext(*eintrag, calc, komponenten) + " (Legierung der Ergebnisse)"});
    alle.zeilen.push_back({"Formel dazu", std::string(eintrag->lehrbuchformel)});
    addKonstanten(alle, *eintrag);
    return alle;
}

} // namespace zerna
