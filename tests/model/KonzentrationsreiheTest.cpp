#include "model/Konzentrationsreihe.h"

#include <algorithm>

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

/// 50 at% A (10 cm³/mol, valence 3), 30 at% B (20 cm³/mol, valence 1), 20 at% C (25 cm³/mol, valence 2,5).
struct KonzentrationsreiheTest : FilesTest {
    KonzentrationsreiheTest()
    {
        for (const Legierungskomponente& row :
            {Legierungskomponente{{}, 50, 2.7F, 3}, {{}, 30, 3, 1}, {{}, 20, 2, 2.5F}}) {
            const auto element = std::make_shared<clsElement>(files, boxes);
            element->setMasse(std::array{27.0F, 60.0F, 50.0F}.at(alloy.size()));
            alloy.push_back({element, row.prozent, row.dichte, row.valenz});
        }
    }

    Reihe series(int variable, int groesse) { return konzentrationsreihe(calc, alloy, variable, groesse); }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 3;
    clsCalc calc{elements, count, parser};
    std::vector<Legierungskomponente> alloy;
};

TEST_F(KonzentrationsreiheTest, OtherComponentsShareTheRestAsEntered)
{
    // Intended: at 0 at% A the others still have the 30 and 20 at% that were entered, not 60 and 40. Particles per nm³
    // are 602,2142 over the volume: 11, 10,6 and 10 cm³/mol.
    for (const auto& [step, particles] : {std::pair(0U, 54.74675), {40U, 56.81266}, {100U, 60.22142}})
        EXPECT_NEAR(series(0, 1).at(step), particles, 1e-5);
    calc.setTeilchenzahldichte(5e28F);
    EXPECT_FLOAT_EQ(series(2, 0).at(100), 2.5) << "another component along the axis";
    EXPECT_NEAR(series(0, 8).at(40), 7.61564, 1e-3) << "Fermi energy, from the textbook formula";
    EXPECT_FLOAT_EQ(calc.Teilchenzahldichte(), 50) << "the calculator keeps the alloy";
}

TEST_F(KonzentrationsreiheTest, FaultsReachTheCaller)
{
    struct Row {
        const char* name;
        int variable, groesse, error;
    };
    for (const auto& [name, variable, groesse, error] : {
             Row{"before the first component", -1, 0, 9},
             {"behind the last component", 3, 0, 9},
             {"the density has a rule of its own", 0, 3, 5},
             {"no such quantity", 0, 11, 5},
         })
        EXPECT_EQ(errorNumber([this, v = variable, g = groesse] { series(v, g); }), error) << name;
    for (const auto& [dichte, error] : {std::pair(0.0F, 11), {Unbekannt, 5}, {1e-39F, 6}, {3.0F, 0}}) {
        alloy[1].dichte = dichte;
        EXPECT_EQ(errorNumber([this] { series(0, 0); }), error) << dichte;
    }
    alloy[2].valenz = Unbekannt;
    EXPECT_EQ(errorNumber([this] { series(0, 0); }), 5);
}

TEST_F(KonzentrationsreiheTest, DensityRuleSharesTheRestInEqualParts)
{
    for (const auto& [step, value] : {std::pair(0U, 6.5F), {40U, 4.7F}, {100U, 2.0F}}) // 4,7 = 0,8 + 0,3·4 + 0,3·9
        EXPECT_FLOAT_EQ(dichtereihe(std::array{2.0F, 4.0F, 9.0F}, 0).at(step), value);
    EXPECT_EQ(errorNumber([] { dichtereihe(std::array{2.0F}, 0); }), 11);
}

TEST_F(KonzentrationsreiheTest, FileHasALinePerStepAndLeavesGapsOut)
{
    Reihe reihe{};
    reihe.at(10) = Unbekannt;
    reihe.at(99) = -1.4667e-29F;
    EXPECT_EQ(
        reihendatei("Fe", "e/nm³", reihe, 33), "Fe [at%]\te/nm³\r\n0\t0\r\n33\t0\r\n66\t0\r\n99\t-1.4667E-29\r\n");
    for (const auto& [typed, lines] : {std::pair("1", 101), {" 3 ", 35}, {"10", 11}, {"2147483646", 2}, {"0,5", 1},
             {"-1", 1}, {"100,5", 3}, {"abc", 101}, {"", 101}, {"1e30", 101}, {"1e999", 101}})
        EXPECT_EQ(std::ranges::count(reihendatei("Fe", "e/a", reihe, schrittweite(typed)), '\n'), lines) << typed;
}

} // namespace zerna
