#include "model/reihen/Mischungsreihe.h"

#include "model/EingabeFixture.h"
#include "model/reihen/Konzentrationsreihe.h"

namespace zerna {

/// Al60Cu40 over aluminium.
struct MischungsreiheTest : EingabeFixture {
    MischungsreiheTest() { eingabe.setProzent(0, "60"); }

    Mischungsreihe series(Reihenart art, int groesse, int variable = 0)
    {
        const Legierung legierung = eingabe.legierung().value();
        return {calc, legierung.komponenten(), variable, groesse, art};
    }

    /// The value of the alloy itself.
    float result(int groesse)
    {
        calc.Legierung_Setzen(eingabe.legierung().value().komponenten());
        return wert(*findReihengroesse(groesse), calc);
    }
};

TEST_F(MischungsreiheTest, OnlyTheMixtureLeadsThroughTheAlloy)
{
    EXPECT_NEAR(result(8), 9.4835, 1e-4);
    EXPECT_NEAR(series(Reihenart::Gegeben, 8).wert(60), 10.113, 1e-3);
    EXPECT_NEAR(series(Reihenart::Gegeben, 0).wert(53.846154), 1.8, 1e-6) << "Intended: not at 40 at%";
    EXPECT_NEAR(series(Reihenart::Summe100, 0).wert(40), 1.8, 1e-6);
    eingabe.setAnzahl(4);
    for (const auto& [row, key, prozent] : {std::tuple(0, "Al", "37,5"), {1, "Cu", "12,25"}, {2, "Ni", "-3"}}) {
        eingabe.waehleElement(row, key);
        eingabe.setProzent(row, prozent);
    }
    eingabe.waehleElement(3, "Si");
    for (const int groesse : {0, 1, 2, 4, 5, 6, 7, 8, 9, 10}) {
        for (int row = 0; row < 4; ++row) {
            const float alloyed = result(groesse);
            const double x = eingabe.prozentInKraft(row).wert;
            EXPECT_NEAR(series(Reihenart::Summe100, groesse, row).wert(x) / alloyed, 1, 1e-6) << groesse << ' ' << row;
        }
    }
    const auto prozente = series(Reihenart::Summe100, 0, 3).prozente(20);
    EXPECT_NEAR(prozente[0] + prozente[1] + prozente[2], 80, 1e-12);
    EXPECT_NEAR(prozente[0] / prozente[1], 37.5 / 12.25, 1e-12);
}

TEST_F(MischungsreiheTest, TheGivenSeriesIsTheSameAtAnyX)
{
    const Legierung legierung = eingabe.legierung().value();
    const Reihe reihe = konzentrationsreihe(calc, legierung.komponenten(), 1, 9);
    const Mischungsreihe given = series(Reihenart::Gegeben, 9, 1);
    for (std::size_t i = 0; i < reihe.size(); ++i)
        EXPECT_EQ(given.wert(static_cast<double>(i)), reihe.at(i)) << i;
    EXPECT_GT(given.wert(40.5), reihe[41]);
    EXPECT_LT(given.wert(40.5), reihe[40]);
}

TEST_F(MischungsreiheTest, OthersOfNothingShareInEqualParts)
{
    eingabe.setAnzahl(3);
    eingabe.waehleElement(2, "Ni");
    eingabe.setProzent(0, "100");
    eingabe.setProzent(1, "0");
    EXPECT_EQ(series(Reihenart::Summe100, 8).prozente(50), (std::array<double, MaxKomponenten>{50, 25, 25}));
    EXPECT_EQ(series(Reihenart::Gegeben, 8).prozente(50), (std::array<double, MaxKomponenten>{50, 0, 0}));
}

TEST_F(MischungsreiheTest, TheDensityOfTheMixtureIsMassOverVolume)
{
    constexpr double Al = 26.98;
    constexpr double Cu = 63.55;
    const double rhoAl = eingabe.zeile(0).dichte.wert;
    const double rhoCu = eingabe.zeile(1).dichte.wert;
    const double expected = (60 * Al + 40 * Cu) / (60 * Al / rhoAl + 40 * Cu / rhoCu);
    EXPECT_NEAR(series(Reihenart::Summe100, GroesseDichte).wert(60), expected, 2e-3);
    EXPECT_NEAR(series(Reihenart::Gegeben, GroesseDichte).wert(60), 0.6 * rhoAl + 0.4 * rhoCu, 1e-5);
}

TEST_F(MischungsreiheTest, WhatIsMissingIsAnError)
{
    eingabe.waehleDichte(0, AndereWahl); // 0
    EXPECT_EQ(errorNumber([&] { series(Reihenart::Summe100, GroesseDichte); }), 11);
    EXPECT_EQ(errorNumber([&] { series(Reihenart::Summe100, 8); }), 11);
    eingabe.setAnzahl(1);
    EXPECT_EQ(errorNumber([&] { series(Reihenart::Gegeben, GroesseDichte); }), 11);
    EXPECT_EQ(errorNumber([&] { series(Reihenart::Summe100, 11); }), 5);
    EXPECT_EQ(errorNumber([&] { series(Reihenart::Summe100, 0, 1); }), 9);
}

} // namespace zerna
