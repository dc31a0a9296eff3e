#include "model/suche/Drittelement.h"

#include <algorithm>
#include <cmath>

#include "model/eingabe/Komposition.h"
#include "support/RechnerTest.h"

namespace zerna {

using DrittelementTest = RechnerTest;

TEST_F(DrittelementTest, RanksTheElementsThatMayBeAdded)
{
    addElements();
    const auto component = [&](const char* symbol, float prozent) {
        const auto& element = elements.Item(symbol);
        return Legierungskomponente{
            element, prozent, dichteFor(*element, dichteauswahl(*element).front()), element->Valenz()};
    };
    const std::vector alloy{component("Al", 60), component("Cu", 20)}; // of 80: the ratio is what counts
    const Groesse& energy = *findReihengroesse(8);
    const Rangliste list = drittelemente(calc, elements, alloy, 10, energy, 9.5);
    EXPECT_EQ(list.elemente.size() + list.ohneDaten.size(), static_cast<std::size_t>(elements.Count()) - 2);
    EXPECT_TRUE(
        std::ranges::is_sorted(list.elemente, {}, [](const Drittelement& rang) { return std::abs(rang.abweichung); }));
    EXPECT_NE(std::ranges::find(list.ohneDaten, "At"), list.ohneDaten.end()) << "no density";
    for (const Drittelement& added : {list.elemente.front(), list.elemente.back()}) {
        const std::vector whole{
            component("Al", 67.5), component("Cu", 22.5), component(added.element->symbol().c_str(), 10)};
        calc.Legierung_Setzen(whole);
        EXPECT_FLOAT_EQ(added.wert, calc.Fermienergie()) << added.element->symbol();
        EXPECT_FLOAT_EQ(static_cast<float>(added.abweichung), calc.Fermienergie() - 9.5F);
    }
    EXPECT_EQ(ohneDatenSatz({{}, {"At"}}), "Nicht in der Liste, weil Daten fehlen: 1 Element (At)");
    EXPECT_EQ(ohneDatenSatz({}), "");
    const std::vector five(5, component("Al", 20));
    EXPECT_EQ(errorNumber([&] { drittelemente(calc, elements, five, 10, energy, 9.5); }), 9);
    const std::vector nothing{component("Al", 50), component("Cu", -50)};
    EXPECT_EQ(errorNumber([&] { drittelemente(calc, elements, nothing, 10, energy, 9.5); }), 11);
}

} // namespace zerna
