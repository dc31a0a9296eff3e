#include "model/eingabe/Komposition.h"

#include "core/Unbekannt.h"
#include "model/eingabe/Eingabefeld.h"
#include "support/FilesTest.h"

namespace zerna {

using KompositionTest = FilesTest;

TEST_F(KompositionTest, ChoicesOfARow)
{
    clsElement element(files, boxes);
    element.setDichte_Amorph(Unbekannt);
    element.setDichte_Fluessig(2.5F);
    element.setDichte_Kristallin(3);
    element.setValenz(4);
    element.setElektronen(1, 2); // 2s
    element.setElektronen(6, 7); // 3d
    EXPECT_EQ(dichteauswahl(element), (std::vector<std::string_view>{"flüssig", "kristallin", "<andere>"}));
    for (const auto& [choice, dichte] : {std::pair("flüssig", 2.5F), {"kristallin", 3.0F}, {"<andere>", 0.0F}})
        EXPECT_EQ(dichteFor(element, choice), dichte) << choice;
    std::string choices;
    for (const Valenzeintrag& eintrag : valenzauswahl(element))
        choices.append(eintrag.text).append("=").append(feldtext(valenzFor(element, eintrag.code))).append(" ");
    EXPECT_EQ(choices, "Standard=4 s-Elektronen=2 d-Elektronen=7 <andere>=0 ");

    element.setElektronen(9, 250); // damaged: more d electrons than a record's byte can hold
    element.setDichte_Fluessig(Unbekannt);
    element.setDichte_Kristallin(Unbekannt);
    EXPECT_EQ(valenzauswahl(element).size(), 3U);
    EXPECT_EQ(dichteauswahl(element).size(), 1U);
    EXPECT_EQ(feldtext(element.Dichte_Amorph()), "<unbekannt>");
}

TEST_F(KompositionTest, ComponentCountWrapsAndSurvivesDamagedSettings)
{
    for (const auto& [count, step, next] : {std::tuple(4, 1, 5), {5, 1, 1}, {1, -1, 5}, {2, -1, 1}, {0, 1, 1}})
        EXPECT_EQ(naechsteKomponentenzahl(count, step), next) << count;
    for (const auto& [setting, count] : {std::pair("0", 0), {"4", 4}, {"5", 5}, {"6", 2}, {"", 2}, {"abc", 2},
             {"-3", 2}, {"99", 2}, {"04", 2}, {"4 ", 2}, {"/", 2}})
        EXPECT_EQ(gespeicherteKomponentenzahl(setting), count) << setting;
}

} // namespace zerna
