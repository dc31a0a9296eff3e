#include "bild/Messkurvenbild.h"

#include <gmock/gmock.h>

#include "support/RechnerTest.h"

namespace zerna {

struct MesskurvenbildTest : RechnerTest {
    MesskurvenbildTest()
    {
        calc.setBasis(6.02e28F, 3);
        const std::vector<Messpunkt> punkte{{1, 0}, {2, 3}, {3, 1}, {4, 1.5}, {6, 1}};
        auswertung.setKurven(std::vector<Messkurve>{{"a", Messart::Paarverteilung, Messeinheit::Angstroem, punkte},
            {"b", Messart::Strukturfaktor, Messeinheit::Angstroem, punkte},
            {"c", Messart::Paarverteilung, Messeinheit::Nanometer, punkte}});
    }

    Messauswertung auswertung;
};

TEST_F(MesskurvenbildTest, DrawsTheCurvesOfOneKindInNmWithTheirMaxima)
{
    const Kurvenbild g = messkurvenbild(auswertung, Messart::Paarverteilung);
    EXPECT_EQ(g.x.titel + g.y.titel, "r in nmg(r)");
    EXPECT_EQ(g.x.bereich, (Bereich{0.1, 6}));
    EXPECT_NEAR(g.y.bereich.min, -0.15, 1e-9);
    EXPECT_NEAR(g.y.bereich.max, 3.15, 1e-9);
    ASSERT_EQ(g.kurven.size(), 4U);
    EXPECT_EQ(g.kurven[0].name + g.kurven[2].name, "ac");
    EXPECT_EQ(g.kurven[0].punkte.back(), (Punkt{6 * 0.1, 1}));
    EXPECT_EQ(g.kurven[1].linie, Linienart::Keine);
    EXPECT_EQ(g.kurven[1].punkte.size(), 2U);
    EXPECT_NE(g.kurven[0].farbe, g.kurven[2].farbe);
    EXPECT_EQ(messkurvenwerte(g).substr(0, 20), "# a\r\n0.1\t0\r\n0.2\t3\r\n0");

    const Kurvenbild s = messkurvenbild(auswertung, Messart::Strukturfaktor);
    EXPECT_EQ(s.x.titel, "K in 1/nm");
    EXPECT_EQ(s.x.bereich, (Bereich{10, 60}));
    EXPECT_EQ(messkurvenwerte(s), "10\t0\r\n20\t3\r\n30\t1\r\n40\t1.5\r\n60\t1\r\n");
    EXPECT_TRUE(messkurvenbild(Messauswertung(), Messart::Paarverteilung).kurven.empty());
}

TEST_F(MesskurvenbildTest, MarksWhatFollowsOfTheAlloyOrSaysThatItIsUnknown)
{
    const auto marks = [&](Messart art) {
        std::string text;
        const Messbeiwerk beiwerk = messbeiwerk(calc, art, {0, 0.5}, "Al");
        for (const Linienmarke& marke : beiwerk.marken)
            text += marke.text + "=" + fixedText(marke.x, 3) + " ";
        for (const std::string& hinweis : beiwerk.hinweise)
            text += hinweis;
        return text;
    };
    EXPECT_EQ(marks(Messart::Paarverteilung), "r(1)=0,225 r(2)=0,404 ");
    EXPECT_EQ(marks(Messart::Strukturfaktor), "2 kF=34,974 ");
    calc.setBasis(Unbekannt, 3);
    EXPECT_EQ(marks(Messart::Paarverteilung), "Die Friedelminima der Legierung sind unbekannt oder liegen außerhalb.");
    EXPECT_EQ(marks(Messart::Strukturfaktor), "2 kF der Legierung ist unbekannt.");
}

} // namespace zerna
