#include "model/suche/Drittelement.h"

#include <algorithm>
#include <cmath>

#include "core/CheckedArithmetic.h"
#include "model/eingabe/Komposition.h"

namespace zerna {

std::vector<Legierungskomponente> aufProzent(std::span<const Legierungskomponente> komponenten, double prozent)
{
    double sum = 0;
    for (const Legierungskomponente& komponente : komponenten)
        sum += komponente.prozent;
    const double factor = quotient(prozent, sum);
    std::vector<Legierungskomponente> result(komponenten.begin(), komponenten.end());
    for (Legierungskomponente& komponente : result)
        komponente.prozent = toSingle(komponente.prozent * factor);
    return result;
}

Rangliste drittelemente(const clsCalc& calc, const ElementCollection& elements,
    std::span<const Legierungskomponente> komponenten, double prozent, const Groesse& groesse, double ziel)
{
    std::vector<Legierungskomponente> alloy = aufProzent(komponenten, 100 - prozent);
    alloy.emplace_back();
    clsCalc scratch = calc;
    Rangliste rangliste;
    for (const auto& element : elements) {
        if (std::ranges::find(komponenten, element, &Legierungskomponente::element) != komponenten.end())
            continue;
        const std::string_view dichtewahl = dichteauswahl(*element).front();
        alloy.back() = {
            element, toSingle(prozent), dichteFor(*element, dichtewahl), valenzFor(*element, ValenzStandard)};
        scratch.Legierung_Setzen(alloy);
        const float value = wert(groesse, scratch);
        if (istUnbekannt(value) || istUnbekannt(scratch.Valenz()))
            rangliste.ohneDaten.push_back(element->symbol());
        else
            rangliste.elemente.push_back({element, value, value - ziel});
    }
    std::ranges::stable_sort(
        rangliste.elemente, {}, [](const Drittelement& rang) { return std::abs(rang.abweichung); });
    return rangliste;
}

std::string ohneDatenSatz(const Rangliste& rangliste)
{
    std::string symbols;
    for (const std::string& symbol : rangliste.ohneDaten)
        symbols += (symbols.empty() ? "" : ", ") + symbol;
    const std::size_t count = rangliste.ohneDaten.size();
    if (count == 0)
        return {};
    return "Nicht in der Liste, weil Daten fehlen: " + std::to_string(count)
        + (count == 1 ? " Element (" : " Elemente (") + symbols + ")";
}

} // namespace zerna
