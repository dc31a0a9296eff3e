#include "model/messung/Messvergleich.h"

#include <gmock/gmock.h>

#include "support/Messkurven.h"
#include "support/RechnerTest.h"

namespace zerna {
namespace {

using testing::ElementsAre;
using Zeile = std::vector<std::string>;

/// N = 60,2 1/nm³ and z = 3: 2kF = 34.974 1/nm, λ = 0.17965 nm.
struct MessvergleichTest : RechnerTest {
    MessvergleichTest() { calc.setBasis(6.02e28F, 3); }

    static Messkurve kurve(const char* name, Messart art, Messeinheit einheit, double factor, const Glocke& glocke)
    {
        const Messmodell modell{{glocke, {2 * glocke.middle, glocke.height / 3, glocke.width}}, 0};
        std::vector<Messpunkt> punkte =
            modell.punkte(0, glocke.width / 10, 1 + static_cast<std::size_t>(30 * glocke.middle / glocke.width), 0, 1);
        for (Messpunkt& punkt : punkte)
            punkt.x *= factor;
        return {name, art, einheit, std::move(punkte)};
    }

    Tabelle tabelle(Messart art) const
    {
        return messtabelle(auswertung.vergleich(art, calc), auswertung.kurven(), art, Dezimaltrenner::Komma);
    }

    Messauswertung auswertung;
};

TEST_F(MessvergleichTest, PutsTheNearestMinimumOr2kFBesideEachMaximumInNm)
{
    using enum Messart;
    using enum Messeinheit;
    auswertung.setKurven(std::vector<Messkurve>{
        kurve("nm", Paarverteilung, Nanometer, 1, {0.25, 3, 0.02}),
        kurve("S, Å", Strukturfaktor, Angstroem, 0.1, {30.1, 2, 1}),
        kurve("Å", Paarverteilung, Angstroem, 10, {0.1, 3, 0.008}),
    });
    EXPECT_THAT(tabelle(Paarverteilung).zeilen,
        ElementsAre(Zeile{"nm", "0,25000", "3,000", "1", "0,22457", "+0,02543"},
            Zeile{"nm", "0,50000", "1,000", "3", "0,58388", "-0,08388"},
            Zeile{"Å", "0,10000", "3,000", "1", "0,22457", "-0,12457"},
            Zeile{"Å", "0,20000", "1,000", "1", "0,22457", "-0,02457"}));
    EXPECT_THAT(tabelle(Strukturfaktor).zeilen, ElementsAre(Zeile{"S, Å", "30,100", "2,000", "34,974", "-4,874"}));
    EXPECT_THAT(
        friedelminimaBis(calc, 0.6), ElementsAre(calc.Friedelminima(0), calc.Friedelminima(1), calc.Friedelminima(2)));

    calc.setBasis(Unbekannt, 3);
    EXPECT_EQ(tabelle(Paarverteilung).zeilen.front(), (Zeile{"nm", "0,25000", "3,000", "", "", ""}));
    EXPECT_EQ(tabelle(Strukturfaktor).zeilen.front(), (Zeile{"S, Å", "30,100", "2,000", "", ""}));
    EXPECT_TRUE(friedelminimaBis(calc, 1).empty());
    calc.setBasis(6e37F, 3);
    EXPECT_TRUE(friedelminimaBis(calc, 1).empty()) << "thousands of them";
}

} // namespace
} // namespace zerna
