#include <algorithm>
#include <functional>

#include "core/Unbekannt.h"
#include "model/reihen/PSEReihe.h"
#include "model/reihen/Ternaergitter.h"
#include "model/reihen/Wertebereich.h"
#include "support/RechnerTest.h"

namespace zerna {

/// A, B and C: liquid 200, crystalline 300 atoms per nm³, valence 2; of B no liquid density is known. The values
/// themselves are guarded by ModellTest and the transcripts.
struct ReihenTest : RechnerTest {
    ReihenTest()
    {
        ElementRecord record;
        record.Masse = 6.022136F;
        record.Valenz = 2;
        record.Dichte_Kristallin = 3;
        for (const char* const symbol : {"A", "B", "C"}) {
            record.symbol = symbol;
            ++record.OZ;
            record.Dichte_Fluessig = record.OZ == 2 ? Unbekannt : 2;
            addElement(record);
            alloy.push_back({elements.Item(symbol), 100.0F / 3, 2, 2});
        }
    }

    Reihe series(int variable, int groesse) { return konzentrationsreihe(calc, alloy, variable, groesse); }
    Ternaergitter grid(int groesse, int aufloesung = 1) { return ternaergitter(calc, alloy, groesse, aufloesung); }

    std::vector<Legierungskomponente> alloy;
};

TEST_F(ReihenTest, FaultsReachTheCaller)
{
    for (const auto& [name, action, error] : {
             std::tuple("before the first component", std::function<void()>([&] { series(-1, 0); }), 9),
             {"behind the last component", [&] { series(3, 0); }, 9},
             {"the density has a rule of its own", [&] { series(0, GroesseDichte); }, 5},
             {"no such quantity", [&] { series(0, 11); }, 5},
             {"too large a volume", [&] { alloy[1].dichte = 1e-39F, series(0, 0); }, 6},
             {"no such quantity above the triangle", [&] { grid(11); }, 5},
             {"no resolution", [&] { grid(0, 0); }, 5},
             {"too fine a resolution", [&] { grid(0, 11); }, 5},
             {"two components", [&] { ternaergitter(calc, std::span(alloy).first(2), 0, 1); }, 5},
             {"the density of no component",
                 [] {
                     dichtereihe(std::array{2.0F, 3.0F}, 2);
                 },
                 9},
             {"an unknown density",
                 [] {
                     dichtereihe(std::array{2.0F, Unbekannt}, 0);
                 },
                 5},
             {"nothing to share the rest with", [] { dichtereihe(std::array{2.0F}, 0); }, 11},
         })
        EXPECT_EQ(errorNumber(action), error) << name;
}

TEST_F(ReihenTest, TheDensitySeriesIsTheDensityAtEachPercent)
{
    const std::array dichten{2.7F, 8.96F, 7.134F, 0.1F, 1e38F};
    for (std::size_t size = 2; size <= dichten.size(); ++size) {
        for (int variable = 0; variable < static_cast<int>(size); ++variable) {
            const auto some = std::span(dichten).first(size);
            const Reihe reihe = dichtereihe(some, variable);
            for (int i = 0; i <= 100; ++i)
                ASSERT_EQ(reihe.at(static_cast<std::size_t>(i)), dichtewert(some, variable, i)) << size << ' ' << i;
        }
    }
}

TEST_F(ReihenTest, FaultsOfAComponentReachTheCaller)
{
    for (const auto& [dichte, valenz, error] :
        {std::tuple(0.0F, 3.0F, 11), {Unbekannt, 3, 5}, {2.7F, Unbekannt, 5}, {2.7F, 3, 0}}) {
        alloy[0].dichte = dichte;
        alloy[0].valenz = valenz;
        EXPECT_EQ(errorNumber([this] { series(1, 0); }), error) << dichte;
        EXPECT_EQ(errorNumber([this] { grid(0); }), error) << dichte;
        EXPECT_EQ(errorNumber([this] { grid(GroesseDichte); }), error) << dichte;
    }
}

TEST_F(ReihenTest, WhatCannotBeComputedIsAGap)
{
    alloy[2].valenz = 0;
    const std::vector<float> hall = grid(5).werte;
    EXPECT_TRUE(istUnbekannt(hall[0]));
    EXPECT_EQ(std::count(hall.begin(), hall.end(), Unbekannt), 1);
    EXPECT_LT(wertebereich(hall).max, 0);
    EXPECT_EQ(ternaerdatei({2, {"A", "B", "C"}, "eV", {-1.5F, Unbekannt, 2e-7F, 3, 1e20F, Unbekannt}}),
        "A [at%]\tB [at%]\tC [at%]\teV\r\n0\t0\t100\t-1.5\r\n0\t100\t0\t2E-7\r\n50\t0\t50\t3\r\n50\t50\t0\t1E+20\r\n");
    Reihe reihe{};
    reihe.at(10) = Unbekannt;
    for (const auto& [typed, lines] : {std::pair("10", 11), {"2147483646", 2}, {"-1", 1}, {"1e30", 101}, {"abc", 101}})
        EXPECT_EQ(std::ranges::count(reihendatei("Fe", "e/a", reihe, schrittweite(typed)), '\n'), lines) << typed;
}

TEST_F(ReihenTest, OverTheElements)
{
    elements.Item("A")->setMasse(0);
    EXPECT_EQ(psedatei(pseReihe(elements, calc, 20)),
        "OZ\tTeilchenzahldichte (kristallin) [1/cm³]\r\n2\t3E+23\r\n3\t3E+23\r\n");
    EXPECT_EQ(pseReihe(elements, calc, 18).titel, "Elektrononegativität"); // Intended: so
    // Intended: 6,022136e23, not the 6,022142e23 of the concentration series.
    EXPECT_FLOAT_EQ(pseReihe(elements, calc, 19).y.at(2), 2e23F);
    EXPECT_TRUE(istUnbekannt(pseReihe(elements, calc, 0).y.at(1))) << "B has no liquid density";
    EXPECT_EQ(tafelreihe(elements, calc, 0).y, std::vector({2.F, 2.F, 2.F}));
}

} // namespace zerna
