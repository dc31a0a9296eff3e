#include "model/suche/Anteilsuebernahme.h"

#include <random>

#include "model/EingabeFixture.h"
#include "model/suche/Anteilssuche.h"
#include "model/suche/Drittelement.h"

namespace zerna {

using AnteilsuebernahmeTest = EingabeFixture;

/// What the results show of a quantity.
static float ergebnis(const clsCalc& calc, const Eingabe& eingabe, int groesse)
{
    clsCalc scratch = calc;
    scratch.Legierung_Setzen(eingabe.legierung()->komponenten());
    return wert(*findReihengroesse(groesse), scratch);
}

TEST_F(AnteilsuebernahmeTest, TheAlloyThenHasTheWantedValue)
{
    eingabe.setAnzahl(3);
    eingabe.waehleElement(2, "Mg");
    eingabe.setProzent(0, "31,7");
    eingabe.setProzent(1, "22,2");
    for (const Anteilseinheit einheit : {Anteilseinheit::Atom, Anteilseinheit::Masse}) {
        eingabe.setEinheit(einheit);
        const Legierung legierung = *eingabe.legierung();
        for (int variable = 0; variable < 3; ++variable) {
            for (const auto& [groesse, ziel] : {std::pair(8, 9.5F), {5, -5e-11F}, {10, 0.21F}}) {
                const Anteilsfrage frage{groesse, ziel, variable, Reihenart::Summe100};
                const Zielantwort antwort = sucheAnteil(calc, legierung.komponenten(), frage);
                for (const Loesung& loesung : antwort.loesungen) {
                    const auto parts = zusammensetzung(calc, legierung.komponenten(), frage, loesung.prozent);
                    ASSERT_TRUE(istUebernehmbar(parts));
                    const Eingabe taken = mitAnteilen(eingabe, parts);
                    EXPECT_NEAR(ergebnis(calc, taken, groesse), ziel, 1e-6 * std::abs(ziel));
                    EXPECT_EQ(taken.einheit(), einheit);
                }
            }
        }
    }
}

TEST_F(AnteilsuebernahmeTest, SaysWhatIsToBeKnownBefore)
{
    const auto says = [](int groesse, Reihenart art, std::array<double, 2> parts) {
        return uebernahmesatz({groesse, 0, 0, art}, parts).substr(0, 66);
    };
    EXPECT_EQ(says(8, Reihenart::Summe100, {20, 80}), "");
    EXPECT_EQ(says(8, Reihenart::Gegeben, {20, 79.99997}), "") << "the balance row leaves them as they are";
    EXPECT_EQ(
        says(8, Reihenart::Gegeben, {20, 32}), "Hier ergeben die Anteile der gegebenen Reihe zusammen 52,00 at%, d");
    EXPECT_EQ(says(3, Reihenart::Gegeben, {20, 80}), "");
    EXPECT_EQ(
        says(3, Reihenart::Summe100, {20, 80}), "Gesucht ist die Dichte der Mischung (Masse durch Volumen). Die Erg");
}

TEST_F(AnteilsuebernahmeTest, AnElementGetsARowAsTheRankingHasIt)
{
    eingabe.setProzent(0, "60");
    const Legierung legierung = *eingabe.legierung();
    const Groesse& energie = *findReihengroesse(8);
    const auto best = drittelemente(calc, elements, legierung.komponenten(), 7.5, energie, 9.4).elemente.front();
    const Eingabe taken = mitElement(eingabe, best.element->symbol(), 7.5);
    ASSERT_EQ(taken.anzahl(), 3);
    EXPECT_EQ(taken.prozentInKraft(0).text, "55,5");
    EXPECT_EQ(taken.prozentInKraft(1).text, "37");
    EXPECT_EQ(taken.prozentInKraft(2).text, "7,5");
    EXPECT_FLOAT_EQ(ergebnis(calc, taken, 8), best.wert);
    std::mt19937 random(7);
    for (int i = 0; i < 100; ++i) {
        eingabe.setProzent(0, textWithDigits(std::uniform_real_distribution<float>(0, 100)(random), 7));
        for (const float prozent : {10.0F, 7.5F, 40.0F, 75.0F})
            EXPECT_EQ(mitElement(eingabe, "Mg", prozent).prozentInKraft(2).wert, prozent)
                << eingabe.prozentInKraft(0).text;
    }
    eingabe.setAnzahl(5);
    for (int row = 2; row < 5; ++row)
        eingabe.waehleElement(row, "Mg");
    EXPECT_EQ(errorNumber([&] { mitElement(eingabe, "Zn", 1); }), 9);
}

} // namespace zerna
