#include "model/PSEReihe.h"

#include <algorithm>
#include <array>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"

namespace zerna {

namespace {

/// Intended: other last digits than in the concentration series.
constexpr double AvogadroProMol = 6.022136e23;
constexpr double KubikzentimeterProKubikmeter = 1e6;

constexpr std::array<Groesseneintrag, 21> Groessen{{{"Valenz", 0}, {"Teilchenzahldichte (flüssig)", 19},
    {"Teilchenzahldichte (kristallin)", 20}, {"Teilchenzahldichte (kristallin - flüssig)", 21},
    {"Dichte (flüssige)", 13}, {"Dichte (kristalline)", 14}, {"Dichte (kristallin - flüssig)", 22},
    {"Elektronendichte", 2}, {"Masse", 15}, {"Atomradius", 16}, {"Atomvolumen", 4}, {"Schmelztemperatur", 11},
    {"Siedetemperatur", 12}, {"erste Ionisierungsenergie", 17}, {"Elektronegativität", 18}, {"Hall-Koeffizient", 5},
    {"Thermokraft", 6}, {"Plasmonenenergie", 7}, {"Fermienergie", 8}, {"2 Kf", 9}, {"Friedel-Wellenlänge", 10}}};

/// Particles per cm³; Unbekannt without a density.
float teilchendichte(float dichte, const clsElement& element)
{
    return istUnbekannt(dichte) ? Unbekannt : toSingle(AvogadroProMol * quotient(dichte, element.Masse()));
}

/// (a - b) / b in percent; Unbekannt if one is.
float unterschied(float a, float b)
{
    return istUnbekannt(a) || istUnbekannt(b) ? Unbekannt : toSingle(quotient(static_cast<double>(a) - b, b) * 100);
}

using Rechnergroesse = float (clsCalc::*)() const;
using Elementgroesse = float (*)(const clsElement&);

/// Either a quantity of the calculator after the pure-element set-up or a value of the element.
struct Eigenschaft {
    int code = 0;
    std::string_view titel;
    Rechnergroesse ofCalc = nullptr;
    Elementgroesse ofElement = nullptr;
};

constexpr std::array<Eigenschaft, 21> Eigenschaften{{
    {0, "Valenz", &clsCalc::Valenz},
    {2, "Elektronendichte [e/nm³]", &clsCalc::Elektrondichte},
    {4, "Atomvolumen [nm³]", &clsCalc::Atomvolumen}, // the value itself is in m³
    {5, "Hall-Koeffizient [m³/As]", &clsCalc::HallKoeffizient},
    {6, "Thermokraft [V/K²]", &clsCalc::Thermokraft},
    {7, "Plasmonenenergie [eV]", &clsCalc::Plasmonenenergie},
    {8, "Fermienergie [eV]", &clsCalc::Fermienergie},
    {9, "2 Kf [1/nm]", &clsCalc::Kf_2},
    {10, "Friedel-Wellenlänge [nm]", &clsCalc::Friedelwellenlaenge},
    {11, "Schmelztemperatur [K]", nullptr, [](const clsElement& e) { return e.Schmelztemperatur(); }},
    {12, "Siedetemperatur [K]", nullptr, [](const clsElement& e) { return e.Siedetemperatur(); }},
    {13, "flüssige Dichte [g/cm³]", nullptr, [](const clsElement& e) { return e.Dichte_Fluessig(); }},
    {14, "kristalline Dichte [g/cm³]", nullptr, [](const clsElement& e) { return e.Dichte_Kristallin(); }},
    {15, "Masse [amu]", nullptr, [](const clsElement& e) { return e.Masse(); }},
    {16, "Atomradius [pm]", nullptr, [](const clsElement& e) { return e.Atomradius(); }},
    {17, "erste Ionisierungsenergie [eV]", nullptr, [](const clsElement& e) { return e.Ionisierungsenergie(); }},
    // Intended: spelled like this.
    {18, "Elektrononegativität", nullptr, [](const clsElement& e) { return e.Elektronegativitaet(); }},
    {19, "Teilchenzahldichte (flüssig) [1/cm³]", nullptr,
        [](const clsElement& e) { return teilchendichte(e.Dichte_Fluessig(), e); }},
    {20, "Teilchenzahldichte (kristallin) [1/cm³]", nullptr,
        [](const clsElement& e) { return teilchendichte(e.Dichte_Kristallin(), e); }},
    {21, "Teilchenzahldichte (kristallin - flüssig) [%]", nullptr,
        [](const clsElement& e) {
            return unterschied(teilchendichte(e.Dichte_Kristallin(), e), teilchendichte(e.Dichte_Fluessig(), e));
        }},
    {22, "flüssige Dichte (kristallin - flüssig) [%]", nullptr,
        [](const clsElement& e) { return unterschied(e.Dichte_Kristallin(), e.Dichte_Fluessig()); }},
}};

const Eigenschaft* findEigenschaft(int code)
{
    const auto* const found = std::ranges::find(Eigenschaften, code, &Eigenschaft::code);
    return found == Eigenschaften.end() ? nullptr : found;
}

float valueOf(const Eigenschaft& eigenschaft, clsCalc& calc, const clsElement& element)
{
    return orUnbekannt([&] {
        if (eigenschaft.ofElement != nullptr)
            return eigenschaft.ofElement(element);
        return reinesElementSetzen(calc, element) ? (calc.*eigenschaft.ofCalc)() : Unbekannt;
    });
}

} // namespace

std::span<const Groesseneintrag> psegroessen() { return Groessen; }

bool istPSEGroesse(int groesse) { return findEigenschaft(groesse) != nullptr; }

bool reinesElementSetzen(clsCalc& calc, const clsElement& element)
{
    calc.setValenz(element.Valenz());
    if (istUnbekannt(element.Dichte_Fluessig()))
        return false;
    calc.setTeilchenzahldichte(
        toSingle(AvogadroProMol * KubikzentimeterProKubikmeter * quotient(element.Dichte_Fluessig(), element.Masse())));
    return true;
}

PSEReihe pseReihe(const ElementCollection& elements, const clsCalc& calc, int groesse, std::string_view bisherigerTitel)
{
    const auto count = static_cast<std::size_t>(elements.Count());
    PSEReihe reihe{std::string(bisherigerTitel), std::vector<float>(count), std::vector<float>(count)};
    const Eigenschaft* const eigenschaft = findEigenschaft(groesse);
    if (eigenschaft == nullptr)
        return reihe;
    reihe.titel = eigenschaft->titel;
    clsCalc scratch = calc;
    std::size_t i = 0;
    for (const auto& element : elements) {
        reihe.x[i] = element->OZ();
        reihe.y[i] = valueOf(*eigenschaft, scratch, *element);
        ++i;
    }
    return reihe;
}

std::string psedatei(const PSEReihe& reihe)
{
    std::string text = "OZ\t" + reihe.titel + "\r\n";
    for (std::size_t i = 0; i < reihe.x.size(); ++i) {
        if (!istUnbekannt(reihe.y[i]))
            text += textOfSingle(reihe.x[i], Dezimaltrenner::Punkt) + "\t"
                + textOfSingle(reihe.y[i], Dezimaltrenner::Punkt) + "\r\n";
    }
    return text;
}

} // namespace zerna
