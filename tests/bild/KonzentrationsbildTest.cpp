#include "bild/Konzentrationsbild.h"

#include <algorithm>

#include "bild/Konzentrationstexte.h"
#include "bild/Kurvenablesung.h"
#include "bild/Kurventabelle.h"
#include "model/EingabeFixture.h"
#include "model/dokument/Varianten.h"

namespace zerna {

/// Al60Cu40 over aluminium.
struct KonzentrationsbildTest : EingabeFixture {
    KonzentrationsbildTest() { eingabe.setProzent(0, "60"); }

    Konzentrationsbild bild(int groesse, const Vergleichskurven& vergleich = {})
    {
        wahl.groesse = groesse;
        return konzentrationsbild(calc, eingabe, wahl, schalter, vergleich);
    }

    static const Kurve* find(const Kurvenbild& bild, std::string_view name)
    {
        const auto found = std::ranges::find_if(bild.kurven, [&](const Kurve& k) { return k.name.starts_with(name); });
        return found == bild.kurven.end() ? nullptr : &*found;
    }

    static std::string names(const Kurvenbild& bild)
    {
        std::string all;
        for (const Kurve& kurve : bild.kurven)
            all += kurve.name + '|';
        return all;
    }

    Diagrammwahl wahl;
    Kurvenschalter schalter;
};

TEST_F(KonzentrationsbildTest, TheAlloyIsAPointThroughWhichTheMixtureLeads)
{
    const Kurvenbild fermi = bild(8).bild;
    EXPECT_EQ(fermi.titel, "Fermienergie [eV] über at% Al");
    EXPECT_EQ(fermi.untertitel, "Al60Cu40 – Al: 2,377 g/cm³, z = 3; Cu: 7,997 g/cm³, z = 1");
    EXPECT_EQ(names(fermi), "Anteile wie eingetragen|Mischungsreihe (Summe 100 %)|Al60Cu40: 9,4835 eV|");
    EXPECT_NEAR(fermi.kurven[0].punkte[60].y, 10.113, 1e-3);
    EXPECT_NEAR(fermi.kurven[1].punkte[60].y, fermi.kurven[2].punkte[0].y, 1e-4);
    EXPECT_EQ(fermi.kurven[1].linie, Linienart::Gestrichelt);
    EXPECT_EQ(fermi.kurven[2].punkte[0].x, 60);
    ASSERT_EQ(fermi.hinweise.size(), 1U);
    EXPECT_EQ(fermi.hinweise[0],
        "Die Kurve führt nicht durch die Legierung: Weil Al mit 60 at% eingetragen ist, ergeben ihre Anteile nicht "
        "überall 100 %.");
    schalter.mischungsreihe = true;
    const Konzentrationsbild mixture = bild(8);
    EXPECT_EQ(names(mixture.bild), "Mischungsreihe (Summe 100 %)|Al60Cu40: 9,4835 eV|");
    EXPECT_NEAR(mixture.reihe[60], 9.4835, 1e-4);
    EXPECT_TRUE(mixture.bild.hinweise.empty());
}

TEST_F(KonzentrationsbildTest, ACurveThroughTheAlloyStandsAlone)
{
    eingabe.setProzent(0, "0");
    EXPECT_EQ(names(bild(8).bild), "Mischungsreihe (Summe 100 %)|Al0Cu100: 6,5303 eV|");
    eingabe.setProzent(0, "-20"); // no place on the axis
    EXPECT_EQ(names(bild(8).bild), "Anteile wie eingetragen|Mischungsreihe (Summe 100 %)|");
}

/// Zinc takes away what copper adds: without aluminium nothing would be left to share.
TEST_F(KonzentrationsbildTest, ThePointIsTheAlloysOwnWhereTheMixtureIsAnother)
{
    eingabe.setAnzahl(3);
    eingabe.waehleElement(2, "Zn");
    eingabe.setProzent(0, "100");
    eingabe.setProzent(1, "20");
    const Kurvenbild valenz = bild(0).bild;
    EXPECT_EQ(valenz.kurven[1].punkte[100].y, 3);
    EXPECT_NEAR(valenz.kurven[2].punkte[0].y, 3 + 0.2 * 1 - 0.2 * 2, 1e-6);
    EXPECT_TRUE(valenz.hinweise.back().starts_with("Die Mischungsreihe führt nicht")) << valenz.hinweise.back();
}

TEST_F(KonzentrationsbildTest, DensitiesAndVolumesSayWhatTheyAre)
{
    EXPECT_EQ(bild(4).bild.titel, "Atomvolumen [nm³] (Zahl in m³) über at% Al");
    EXPECT_EQ(bild(4).bild.y.einheit, "nm³ (Zahl in m³)");
    EXPECT_TRUE(bild(4).bild.kurven.back().name.ends_with("·10⁻²⁹ m³")) << bild(4).bild.kurven.back().name;
    EXPECT_EQ(bild(GroesseDichte).bild.hinweise[0],
        "Die Kurve mittelt die Dichten über die at%, die Mischungsreihe teilt Masse durch Volumen.");
    eingabe.waehleElement(1, "At");
    EXPECT_EQ(legierungstext(eingabe), "Al60At40 – Al: 2,377 g/cm³, z = 3; At: Dichte unbekannt, z = 7")
        << "as pictures of measured curves say it";
    eingabe.waehleElement(1, "Cu");
    schalter.mischungsreihe = true;
    EXPECT_EQ(bild(GroesseDichte).bild.hinweise[0],
        "Das Ergebnis mittelt die Dichten über die at%, die Mischungsreihe teilt Masse durch Volumen.");
}

TEST_F(KonzentrationsbildTest, TheGivenCurveIsThereWithoutWhatNeedsMore)
{
    elements.Item("Cu")->setMasse(Unbekannt);
    wahl.zweiteGroesse = 8;
    const Kurvenbild dichte = bild(GroesseDichte).bild;
    EXPECT_EQ(names(dichte), "Dichten über at% gemittelt|Al60Cu40: 4,625 g/cm³|");
    EXPECT_EQ(dichte.hinweise.at(0), "Fermienergie hat hier keine Werte.");
}

/// Copper leaves 1,2 electrons to an aluminium of 40 at%, but the mixture begins at 3.
TEST_F(KonzentrationsbildTest, TheRangeIsThatOfTheEndsUnlessAllIsWanted)
{
    eingabe.setProzent(0, "40");
    wahl.komponente = 1;
    const Konzentrationsbild given = bild(0);
    EXPECT_NEAR(given.bild.y.bereich.min, 0.94, 1e-6) << "Intended: whatever lies between";
    EXPECT_NEAR(given.bild.y.bereich.max, 1.26, 1e-6);
    EXPECT_TRUE(given.laeuftHinaus);
    schalter.ganzeKurve = true;
    const Konzentrationsbild whole = bild(0);
    EXPECT_NEAR(whole.bild.y.bereich.min, 0.85, 1e-6);
    EXPECT_NEAR(whole.bild.y.bereich.max, 3.15, 1e-6);
    EXPECT_FALSE(whole.laeuftHinaus);
}

TEST_F(KonzentrationsbildTest, OtherCurvesAreDrawnWhereTheyHaveTheQuantity)
{
    const GehalteneKurve kept = gehalteneKurve(bild(8), eingabe, wahl, schalter);
    const std::array curves{kept, gehalteneKurve(bild(0), eingabe, wahl, schalter)};
    Vergleich vergleich;
    eingabe.waehleElement(0, "Zn");
    merken(vergleich, eingabe); // has no aluminium
    eingabe.waehleElement(0, "Al");
    eingabe.setProzent(0, "10");
    merken(vergleich, eingabe);
    eingabe.waehleDichte(1, AndereWahl); // 0
    vergleich.varianten.push_back({"ohne Dichte", eingabe, {}});
    eingabe.waehleDichte(1, "kristallin");
    const Kurvenbild both = bild(8, {curves, vergleich.varianten}).bild;
    ASSERT_TRUE(find(both, "Al60Cu40 über Al"));
    EXPECT_EQ(find(both, "Al60Cu40 über Al")->punkte[60].y, kept.werte[60]);
    EXPECT_TRUE(find(both, "Al10Cu90"));
    EXPECT_EQ(both.bildschirmhinweise[0], "Eine festgehaltene Kurve zeigt eine andere Größe und ist verborgen.");
    EXPECT_EQ(both.bildschirmhinweise[1], "2 Varianten sind nicht gezeichnet.");

    wahl.zweiteGroesse = 0;
    const Kurvenbild second = bild(8, {curves, {}}).bild;
    ASSERT_TRUE(second.rechts);
    EXPECT_EQ(second.rechts->titel, "Valenz [e/a]");
    EXPECT_EQ(std::ranges::count_if(second.kurven, &Kurve::rechts), 2) << names(second);
    for (const Kurve& kurve : second.kurven) {
        const bool isGiven = &kurve == second.kurven.data() || kurve.name.starts_with("Valenz");
        EXPECT_EQ(kurve.reihe == second.kurven.front().reihe, isGiven) << kurve.name;
        const Bereich range = second.rechts->bereich;
        EXPECT_TRUE(!kurve.rechts || (kurve.punkte[50].y > range.min && kurve.punkte[50].y < range.max)) << kurve.name;
    }
    EXPECT_FALSE(bild(0).bild.rechts) << "the same quantity twice";
}

TEST_F(KonzentrationsbildTest, EachCurveSaysItsOwnComponent)
{
    std::array curves{gehalteneKurve(bild(8), eingabe, wahl, schalter)};
    EXPECT_EQ(bild(8, {curves, {}}).bild.x.titel, "at% Al");
    curves[0].symbol = "Mg";
    const Kurvenbild both = bild(8, {curves, {}}).bild;
    EXPECT_TRUE(ablesung(both, {2, 10, 1}, {0, 100}).starts_with("Al60Cu40 über Mg: 10,00 at% Mg - "));
    EXPECT_TRUE(ablesung(both, {0, 10, 1}, {0, 100}).starts_with("Anteile wie eingetragen: 10,00 at% Al - "));
    EXPECT_EQ(both.x.titel, "at%");
    const Tabelle table = kurventabelle(both, Dezimaltrenner::Komma);
    EXPECT_EQ(table.spalten[0].name, "at%");
    EXPECT_EQ(table.spalten[1].name, "Anteile wie eingetragen (at% Al) [eV]");
    EXPECT_EQ(table.spalten[3].name, "Al60Cu40 über Mg [eV]");
    EXPECT_EQ(bild(0, {curves, {}}).bild.x.titel, "at% Al") << "the kept curve is hidden";
}

} // namespace zerna
