#include "model/reihen/Elementdiagramm.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "core/Zahlentext.h"
#include "model/reihen/Elementluecken.h"

namespace zerna {

namespace {

constexpr int GroesseAtomvolumen = 4;

/// The "[eV]" at the end of a title with unit; empty without one.
std::string_view bracketed(std::string_view titel)
{
    const std::size_t start = titel.rfind('[');
    return start == std::string_view::npos ? std::string_view() : titel.substr(start);
}

/// Intended: the axis calls the atomic volume nm³, and the read-out names the unit that its number has.
std::string unitOf(const Groesse& groesse)
{
    const std::string_view unit = bracketed(groesse.elementtitel);
    if (!groesse.einheit.empty())
        return std::string(groesse.einheit);
    return unit.empty() ? std::string() : std::string(unit.substr(1, unit.size() - 2));
}

std::string titleOf(const Groesse& groesse)
{
    const std::string_view unit = bracketed(groesse.elementtitel);
    std::string titel = std::string(groesse.name) + (unit.empty() ? "" : " " + std::string(unit)) + " der Elemente";
    if (groesse.kennzahl == GroesseAtomvolumen)
        titel += " (Zahl in m³)";
    return titel;
}

std::string singleOrNothing(float value)
{
    return istUnbekannt(value) ? std::string() : textOfSingle(value, Dezimaltrenner::Punkt);
}

} // namespace

Elementdiagramm elementdiagramm(
    const ElementCollection& elements, const clsCalc& calc, int groesse, const std::vector<std::string>& legierung)
{
    Elementdiagramm diagramm{
        {}, {}, {}, pseReihe(elements, calc, groesse), kristallineReihe(elements, calc, groesse), {}};
    if (const Groesse* const eigenschaft = findGroesse(groesse); eigenschaft != nullptr && istPSEGroesse(groesse)) {
        diagramm.titel = titleOf(*eigenschaft);
        diagramm.einheit = unitOf(*eigenschaft);
        diagramm.untertitel = eigenschaft->elementwert == nullptr ? "flüssige Dichte" : "";
    }
    std::size_t i = 0;
    for (const auto& element : elements) {
        Diagrammelement eintrag{element->symbol(), element->Name(), {}, {},
            std::ranges::find(legierung, element->symbol()) != legierung.end()};
        if (istUnbekannt(diagramm.reihe.y[i]))
            eintrag.luecke = elementluecke(groesse, *element);
        if (diagramm.hatKristallin() && istUnbekannt(diagramm.kristallin.y[i]))
            eintrag.kristallineLuecke = elementluecke(groesse, *element, Elementdichte::Kristallin);
        diagramm.elemente.push_back(std::move(eintrag));
        ++i;
    }
    return diagramm;
}

std::string lueckentabelle(const Elementdiagramm& diagramm, bool mitKristallin)
{
    std::string text;
    const auto add = [&](const Diagrammelement& element, const std::string& grund) {
        if (!grund.empty())
            text += element.symbol + "\t" + element.name + "\t" + grund + "\r\n";
    };
    for (const Diagrammelement& element : diagramm.elemente) {
        add(element, element.luecke);
        if (mitKristallin && element.kristallineLuecke != element.luecke)
            add(element, element.kristallineLuecke);
    }
    return text.empty() ? text : "Symbol\tName\t" + diagramm.reihe.titel + "\r\n" + text;
}

std::string elementtabelle(const Elementdiagramm& diagramm, bool mitKristallin)
{
    if (!mitKristallin || !diagramm.hatKristallin())
        return psedatei(diagramm.reihe);
    std::string text = "OZ\t" + diagramm.reihe.titel + "\tkristallin\r\n";
    for (std::size_t i = 0; i < diagramm.reihe.x.size(); ++i) {
        const float wert = diagramm.reihe.y[i];
        const float kristallin = diagramm.kristallin.y[i];
        if (!istUnbekannt(wert) || !istUnbekannt(kristallin))
            text += textOfSingle(diagramm.reihe.x[i], Dezimaltrenner::Punkt) + "\t" + singleOrNothing(wert) + "\t"
                + singleOrNothing(kristallin) + "\r\n";
    }
    return text;
}

} // namespace zerna
