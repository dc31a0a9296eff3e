#include "model/reihen/PSEReihe.h"

#include <algorithm>
#include <array>

#include "core/CheckedArithmetic.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Konstanten.h"

namespace zerna {

namespace {

constexpr double KubikzentimeterProKubikmeter = 1e6;

constexpr std::array Reihenfolge{0, 19, 20, 21, 13, 14, 22, 2, 15, 16, 4, 11, 12, 17, 18, 5, 6, 7, 8, 9, 10};

const Groesse* findEigenschaft(int kennzahl)
{
    const Groesse* const groesse = findGroesse(kennzahl);
    return groesse != nullptr && groesse->ueberElementen() ? groesse : nullptr;
}

/// A value of the element itself, or one of the calculator after the pure-element set-up.
float valueOf(const Groesse& groesse, clsCalc& calc, const clsElement& element, Elementdichte dichte)
{
    return orUnbekannt([&] {
        if (groesse.elementwert != nullptr)
            return groesse.elementwert(element);
        return reinesElementSetzen(calc, element, dichte) ? wert(groesse, calc) : Unbekannt;
    });
}

void fill(PSEReihe& reihe, const ElementCollection& elements, clsCalc calc, const Groesse& groesse,
    Elementdichte dichte = Elementdichte::Fluessig)
{
    reihe.titel = groesse.elementtitel;
    std::size_t i = 0;
    for (const auto& element : elements) {
        reihe.x[i] = element->OZ();
        reihe.y[i] = valueOf(groesse, calc, *element, dichte);
        ++i;
    }
}

} // namespace

std::span<const int> psegroessen() { return Reihenfolge; }

bool istPSEGroesse(int groesse) { return findEigenschaft(groesse) != nullptr; }

bool reinesElementSetzen(clsCalc& calc, const clsElement& element, Elementdichte dichte)
{
    calc.setValenz(element.Valenz());
    const float value = dichte == Elementdichte::Fluessig ? element.Dichte_Fluessig() : element.Dichte_Kristallin();
    if (istUnbekannt(value) || istUnbekannt(element.Masse()))
        return false;
    calc.setTeilchenzahldichte(
        toSingle(AvogadroProMol * KubikzentimeterProKubikmeter * quotient(value, element.Masse())));
    return true;
}

PSEReihe pseReihe(const ElementCollection& elements, const clsCalc& calc, int groesse, std::string_view bisherigerTitel)
{
    const auto count = static_cast<std::size_t>(elements.Count());
    PSEReihe reihe{std::string(bisherigerTitel), std::vector<float>(count), std::vector<float>(count)};
    if (const Groesse* const eigenschaft = findEigenschaft(groesse))
        fill(reihe, elements, calc, *eigenschaft);
    return reihe;
}

PSEReihe kristallineReihe(const ElementCollection& elements, const clsCalc& calc, int groesse)
{
    const Groesse* const eigenschaft = findEigenschaft(groesse);
    if (eigenschaft == nullptr || eigenschaft->elementwert != nullptr)
        return {};
    const auto count = static_cast<std::size_t>(elements.Count());
    PSEReihe reihe{{}, std::vector<float>(count), std::vector<float>(count)};
    fill(reihe, elements, calc, *eigenschaft, Elementdichte::Kristallin);
    return reihe;
}

PSEReihe tafelreihe(const ElementCollection& elements, const clsCalc& calc, int groesse)
{
    constexpr int Valenz = 0;
    PSEReihe reihe = pseReihe(elements, calc, groesse);
    if (groesse == Valenz)
        std::ranges::transform(elements, reihe.y.begin(), [](const auto& element) { return element->Valenz(); });
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
