#include "model/rechnung/Groessen.h"

#include <algorithm>
#include <array>
#include <set>

#include "core/CheckedArithmetic.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

namespace {

/// Particles per cm³; Unbekannt without a density or a mass.
float teilchendichte(float dichte, const clsElement& element)
{
    const bool unknown = istUnbekannt(dichte) || istUnbekannt(element.Masse());
    return unknown ? Unbekannt : toSingle(AvogadroProMol * quotient(dichte, element.Masse()));
}

/// (a - b) / b in percent; Unbekannt if one is.
float unterschied(float a, float b)
{
    return istUnbekannt(a) || istUnbekannt(b) ? Unbekannt : toSingle(quotient(static_cast<double>(a) - b, b) * 100);
}

using Rechner = const clsCalc&;
using Element = const clsElement&;

constexpr std::array Groessentabelle{
    Groesse{.kennzahl = 0,
        .zeile = 0,
        .name = "Valenz",
        .beschriftung = "mittlere Valenz:",
        .einheit = "e/a",
        .reiheneinheit = "e/a",
        .elementtitel = "Valenz",
        .formel = [](Rechner c) { return c.Valenz(); },
        .grundlage = Grundlage::Valenz,
        .tippbar = true},
    Groesse{.kennzahl = 1,
        .zeile = 1,
        .name = "Teilchenzahldichte",
        .beschriftung = "mittlere Teilchenzahldichte:",
        .einheit = "1/nm³",
        .reiheneinheit = "1/nm³",
        .formel = [](Rechner c) { return c.Teilchenzahldichte(); },
        .grundlage = Grundlage::Teilchen,
        .tippbar = true},
    Groesse{.kennzahl = GroesseDichte,
        .zeile = 2,
        .name = "Dichte",
        .beschriftung = "mittlere Dichte:",
        .einheit = "g/cm³",
        .reiheneinheit = "g/cm³",
        .formel = [](Rechner c) { return c.Dichte(); }},
    // Intended: nm³ over compositions and elements, although the value itself is in m³ everywhere.
    Groesse{.kennzahl = 4,
        .zeile = 3,
        .name = "Atomvolumen",
        .beschriftung = "mittleres Atomvolumen:",
        .einheit = "m³",
        .reiheneinheit = "nm³",
        .elementtitel = "Atomvolumen [nm³]",
        .formel = [](Rechner c) { return c.Atomvolumen(); },
        .grundlage = Grundlage::Teilchen},
    Groesse{.kennzahl = 5,
        .zeile = 4,
        .name = "Hall-Koeffizient",
        .beschriftung = "Hall - Koeffizient:",
        .einheit = "m³/As",
        .reiheneinheit = "m³/As",
        .elementtitel = "Hall-Koeffizient [m³/As]",
        .formel = [](Rechner c) { return c.HallKoeffizient(); },
        .grundlage = Grundlage::Elektronen},
    Groesse{.kennzahl = 6,
        .zeile = 5,
        .name = "Thermokraft",
        .beschriftung = "Thermokraft:",
        .einheit = "V/K²",
        .reiheneinheit = "V/K²",
        .elementtitel = "Thermokraft [V/K²]",
        .formel = [](Rechner c) { return c.Thermokraft(); },
        .grundlage = Grundlage::Elektronen},
    Groesse{.kennzahl = 7,
        .zeile = 6,
        .name = "Plasmonenenergie",
        .beschriftung = "Plasmonenenergie:",
        .einheit = "eV",
        .reiheneinheit = "eV",
        .elementtitel = "Plasmonenenergie [eV]",
        .formel = [](Rechner c) { return c.Plasmonenenergie(); },
        .grundlage = Grundlage::Elektronen},
    Groesse{.kennzahl = 8,
        .zeile = 7,
        .name = "Fermienergie",
        .beschriftung = "Fermienergie:",
        .einheit = "eV",
        .reiheneinheit = "eV",
        .elementtitel = "Fermienergie [eV]",
        .formel = [](Rechner c) { return c.Fermienergie(); },
        .grundlage = Grundlage::Elektronen},
    Groesse{.kennzahl = 9,
        .zeile = 8,
        .name = "2 Kf",
        .beschriftung = "2 kF:",
        .einheit = "1/nm",
        .reiheneinheit = "1/nm",
        .elementtitel = "2 Kf [1/nm]",
        .formel = [](Rechner c) { return c.Kf_2(); },
        .grundlage = Grundlage::Kf2,
        .tippbar = true},
    Groesse{.kennzahl = 10,
        .zeile = 9,
        .name = "Friedel-Wellenlänge",
        .beschriftung = "Friedelwellenlänge:",
        .einheit = "nm",
        .reiheneinheit = "nm",
        .elementtitel = "Friedel-Wellenlänge [nm]",
        .formel = [](Rechner c) { return c.Friedelwellenlaenge(); },
        .grundlage = Grundlage::Kf2},
    Groesse{.zeile = Friedelzeile,
        .beschriftung = "Friedelminima:",
        .einheit = "nm",
        .formel = [](Rechner c) { return c.Friedelminima(0); },
        .grundlage = Grundlage::Wellenlaenge},
    Groesse{.kennzahl = 2,
        .zeile = 11,
        .name = "Elektronendichte",
        .beschriftung = "mittlere Elektronendichte:",
        .einheit = "e/nm³",
        .reiheneinheit = "e/nm³",
        .elementtitel = "Elektronendichte [e/nm³]",
        .formel = [](Rechner c) { return c.Elektrondichte(); },
        .grundlage = Grundlage::Elektronen},
    Groesse{.zeile = 13, // there is no line 12
        .beschriftung = "Raumausfüllung:",
        .einheit = "%",
        .formel = [](Rechner c) { return toSingle(c.Raumausfuellung() * 100.0); },
        .grundlage = Grundlage::Wellenlaenge},
    Groesse{.zeile = 14,
        .beschriftung = "D(EF):",
        .einheit = "states/eV atom",
        .formel = [](Rechner c) { return c.D_EF(); },
        .grundlage = Grundlage::Fermienergie},
    Groesse{.zeile = 15,
        .beschriftung = "Fermitemperatur:",
        .einheit = "K",
        .formel = [](Rechner c) { return c.Fermitemperatur(); },
        .grundlage = Grundlage::Fermienergie},
    Groesse{.zeile = 16,
        .beschriftung = "m. Energie/Elektron:",
        .einheit = "eV",
        .formel = [](Rechner c) { return c.Energie_Elektron(); },
        .grundlage = Grundlage::Fermienergie},
    Groesse{.zeile = 17,
        .beschriftung = "Energie El-System:",
        .einheit = "eV/nm³",
        .formel = [](Rechner c) { return c.Energie_El_System(); },
        .grundlage = Grundlage::Fermienergie},
    Groesse{.zeile = 18,
        .beschriftung = "Kompressionsmodul:",
        .einheit = "N/m²",
        .formel = [](Rechner c) { return c.Kompressionsmodul(); },
        .grundlage = Grundlage::Fermienergie},
    Groesse{.kennzahl = 11,
        .name = "Schmelztemperatur",
        .elementtitel = "Schmelztemperatur [K]",
        .elementwert = [](Element e) { return e.Schmelztemperatur(); }},
    Groesse{.kennzahl = 12,
        .name = "Siedetemperatur",
        .elementtitel = "Siedetemperatur [K]",
        .elementwert = [](Element e) { return e.Siedetemperatur(); }},
    Groesse{.kennzahl = 13,
        .name = "Dichte (flüssige)",
        .elementtitel = "flüssige Dichte [g/cm³]",
        .elementwert = [](Element e) { return e.Dichte_Fluessig(); }},
    Groesse{.kennzahl = 14,
        .name = "Dichte (kristalline)",
        .elementtitel = "kristalline Dichte [g/cm³]",
        .elementwert = [](Element e) { return e.Dichte_Kristallin(); }},
    Groesse{.kennzahl = 15,
        .name = "Masse",
        .elementtitel = "Masse [amu]",
        .elementwert = [](Element e) { return e.Masse(); }},
    Groesse{.kennzahl = 16,
        .name = "Atomradius",
        .elementtitel = "Atomradius [pm]",
        .elementwert = [](Element e) { return e.Atomradius(); }},
    Groesse{.kennzahl = 17,
        .name = "erste Ionisierungsenergie",
        .elementtitel = "erste Ionisierungsenergie [eV]",
        .elementwert = [](Element e) { return e.Ionisierungsenergie(); }},
    // Intended: the title is spelled like this.
    Groesse{.kennzahl = 18,
        .name = "Elektronegativität",
        .elementtitel = "Elektrononegativität",
        .elementwert = [](Element e) { return e.Elektronegativitaet(); }},
    Groesse{.kennzahl = 19,
        .name = "Teilchenzahldichte (flüssig)",
        .elementtitel = "Teilchenzahldichte (flüssig) [1/cm³]",
        .elementwert = [](Element e) { return teilchendichte(e.Dichte_Fluessig(), e); }},
    Groesse{.kennzahl = 20,
        .name = "Teilchenzahldichte (kristallin)",
        .elementtitel = "Teilchenzahldichte (kristallin) [1/cm³]",
        .elementwert = [](Element e) { return teilchendichte(e.Dichte_Kristallin(), e); }},
    Groesse{.kennzahl = 21,
        .name = "Teilchenzahldichte (kristallin - flüssig)",
        .elementtitel = "Teilchenzahldichte (kristallin - flüssig) [%]",
        .elementwert =
            [](Element e) {
                return unterschied(teilchendichte(e.Dichte_Kristallin(), e), teilchendichte(e.Dichte_Fluessig(), e));
            }},
    Groesse{.kennzahl = 22,
        .name = "Dichte (kristallin - flüssig)",
        .elementtitel = "flüssige Dichte (kristallin - flüssig) [%]",
        .elementwert = [](Element e) { return unterschied(e.Dichte_Kristallin(), e.Dichte_Fluessig()); }},
};

bool istBekannt(Grundlage grundlage, const clsCalc& calc)
{
    const bool hasElectrons = !istUnbekannt(calc.Valenz()) && calc.hatTeilchenzahldichte();
    switch (grundlage) {
    case Grundlage::Keine:
        return true;
    case Grundlage::Valenz:
        return !istUnbekannt(calc.Valenz());
    case Grundlage::Teilchen:
        return calc.hatTeilchenzahldichte();
    case Grundlage::Elektronen:
        return hasElectrons;
    case Grundlage::Fermienergie:
        return hasElectrons && !istUnbekannt(calc.Fermienergie());
    case Grundlage::Kf2:
        return hasElectrons && !istUnbekannt(calc.Kf_2());
    case Grundlage::Wellenlaenge:
        return istBekannt(Grundlage::Kf2, calc) && !istUnbekannt(calc.Friedelwellenlaenge());
    }
    return false;
}

constexpr std::size_t Ergebniszeilenzahl =
    std::ranges::count_if(Groessentabelle, [](const Groesse& g) { return g.zeile >= 0; });
static_assert(std::ranges::is_sorted(
    std::span(Groessentabelle).first<Ergebniszeilenzahl>(), std::ranges::less_equal(), &Groesse::zeile));

} // namespace

float wert(const Groesse& groesse, const clsCalc& calc)
{
    return orUnbekannt([&] { return istBekannt(groesse.grundlage, calc) ? groesse.formel(calc) : Unbekannt; });
}

std::span<const Groesse> groessen() { return Groessentabelle; }

std::span<const Groesse> ergebniszeilen() { return groessen().first<Ergebniszeilenzahl>(); }

const Groesse& ergebniszeile(int zeile)
{
    const auto found = std::ranges::find(ergebniszeilen(), zeile, &Groesse::zeile);
    if (found == ergebniszeilen().end())
        throw Laufzeitfehler(Fehler::IndexAusserhalb);
    return *found;
}

const Groesse* findGroesse(int kennzahl)
{
    const auto* const found = std::ranges::find(Groessentabelle, kennzahl, &Groesse::kennzahl);
    return kennzahl < 0 || found == Groessentabelle.end() ? nullptr : found;
}

const Groesse* findReihengroesse(int kennzahl)
{
    const Groesse* const groesse = findGroesse(kennzahl);
    return groesse != nullptr && groesse->ueberLegierungen() ? groesse : nullptr;
}

const Groesse& reihengroesse(int kennzahl)
{
    const Groesse* const found = findReihengroesse(kennzahl);
    if (found == nullptr)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    return *found;
}

std::string reihenkennzahlen()
{
    std::set<int> codes;
    for (const Groesse& groesse : Groessentabelle) {
        if (groesse.ueberLegierungen())
            codes.insert(groesse.kennzahl);
    }
    std::string text;
    for (const int first : codes) {
        if (codes.contains(first - 1))
            continue;
        int last = first;
        while (codes.contains(last + 1))
            ++last;
        text += (text.empty() ? "" : ", ") + std::to_string(first);
        if (last > first)
            text += " bis " + std::to_string(last);
    }
    return text;
}

} // namespace zerna
