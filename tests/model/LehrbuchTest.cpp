#include "model/Lehrbuch.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include "core/CheckedArithmetic.h"
#include "core/ElementCsv.h"
#include "model/Einzelheiten.h"
#include "model/Groessen.h"
#include "support/FilesTest.h"

namespace zerna {

struct LehrbuchTest : FilesTest {
    LehrbuchTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            if (istUnbekannt(record.Dichte_Fluessig) || record.Valenz <= 0)
                continue;
            metals.push_back(std::make_shared<clsElement>(files, boxes));
            metals.back()->setRecord(record);
        }
    }

    /// Hands the metals over with their shares, liquid density and usual valence.
    void setAlloy(const std::map<std::string, float>& shares)
    {
        alloy.clear();
        for (const auto& metal : metals) {
            if (const auto share = shares.find(metal->symbol()); share != shares.end())
                alloy.push_back({metal, share->second, metal->Dichte_Fluessig(), metal->Valenz()});
        }
        ASSERT_EQ(alloy.size(), shares.size());
        calc.Legierung_Setzen(alloy);
    }

    float lehrbuch(int zeile) const { return lehrbuchwert(*findLehrbuch(zeile), calc, alloy); }

    /// `expected` is in the unit of the textbook's value if the line has one.
    void expectLine(int zeile, double expected) const
    {
        const bool marked = abweichungImErgebnis(zeile) != nullptr;
        if (marked || abweichungImDiagramm(zeile) != nullptr) {
            EXPECT_NEAR(lehrbuch(zeile), expected, std::abs(expected) * 1e-5);
        }
        const float shown = wert(ergebniszeile(zeile), calc);
        const double inUnit = zeile == 3 ? expected * 1e-27 : zeile == 18 ? expected * 1e9 : expected;
        if (!marked) { // the plasmon energy has four safe digits
            EXPECT_NEAR(shown, inUnit, std::abs(inUnit) * 1e-4);
        } else if (zeile != 2) { // a pure metal's density is the same by at% and by mass
            EXPECT_GT(std::abs(shown / inUnit - 1), 0.1);
        }
    }

    std::vector<std::shared_ptr<clsElement>> metals;
    std::vector<Legierungskomponente> alloy;
    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 1;
    clsCalc calc{elements, count, parser};
};

/// All quantities from the radius of the Fermi sphere, in SI units with the constants of 2019, then in the units of the
/// textbook values or, where there are none, of the result lines.
std::map<int, double> independently(const std::vector<Legierungskomponente>& alloy)
{
    constexpr double Pi = 3.14159265358979323846;
    constexpr double hBar = 6.62607015e-34 / (2 * Pi);
    constexpr double e = 1.602176634e-19;
    constexpr double kB = 1.380649e-23;
    constexpr double m = 9.1093837015e-31;
    constexpr double atom = 1e-3 / 6.02214076e23; // kg per g/mol
    constexpr double epsilon = 8.8541878128e-12;
    double mass = 0; // of one particle on average, like the two below
    double volume = 0;
    double electrons = 0;
    for (const Legierungskomponente& k : alloy) {
        const double share = k.prozent / 100.0;
        mass += share * k.element->Masse() * atom;
        volume += share * k.element->Masse() * atom / (k.dichte * 1e3);
        electrons += share * k.valenz;
    }
    const double n = electrons / volume;
    const double kF = std::cbrt(3 * Pi * Pi * n);
    const double vF = hBar * kF / m;
    const double fermi = m * vF * vF / 2;
    const double pressure = hBar * hBar * std::pow(kF, 5) / (15 * Pi * Pi * m);
    const double firstMinimum = 1.25 * Pi / kF;
    return {{0, electrons}, {1, 1e-27 / volume}, {2, mass / volume / 1e3}, {3, volume * 1e27}, {4, -1 / (n * e)},
        {5, -std::pow(Pi * kB, 2) / (m * vF * vF * e)}, {6, hBar * std::sqrt(n / epsilon / m)}, {7, fermi / e},
        {8, 2e-9 * kF}, {9, 1e9 * Pi / kF}, {10, 1e9 * firstMinimum}, {11, n * 1e-27},
        {13, 100 * Pi * std::pow(firstMinimum, 3) / (6 * volume)}, {14, volume * m * kF * e / (Pi * Pi * hBar * hBar)},
        {15, fermi / kB}, {16, 1.5 * pressure / n / e}, {17, 1.5 * pressure / e * 1e-27},
        {18, 5.0 / 3.0 * pressure * 1e-9}};
}

TEST_F(LehrbuchTest, FiftyAlloysAgreeWithTheTextbookAndOnlyMarkedLinesDepart)
{
    std::mt19937 random(1976); // NOLINT: the same alloys each time
    for (std::size_t round = 0; round < 50; ++round) {
        std::map<std::string, float> shares;
        while (shares.size() < 1 + round % MaxKomponenten)
            shares[metals.at(random() % metals.size())->symbol()] = static_cast<float>(random() % 1000 + 1) / 10;
        setAlloy(shares);
        for (const auto& [zeile, expected] : independently(alloy)) {
            SCOPED_TRACE(std::to_string(round) + ", line " + std::to_string(zeile));
            expectLine(zeile, expected);
        }
    }
}

/// The text of a row; empty if there is none.
std::string row(const Einzelheiten& einzelheiten, std::string_view titel)
{
    const auto found = std::ranges::find(einzelheiten.zeilen, titel, &Einzelheiten::Zeile::titel);
    return found == einzelheiten.zeilen.end() ? std::string() : found->text;
}

TEST_F(LehrbuchTest, DetailsOfAluminiumCopper)
{
    setAlloy({{"Al", 60}, {"Cu", 40}});
    for (const auto& [zeile, texts] : {std::pair(2, "4,6250005 g/cm³|4,1653 g/cm³"), {3, "1,6587362·10⁻²⁹ m³|"},
             {5, "−7,728214·10⁻⁹ V/K²|−3,8641·10⁻⁹ V/K²"}, {7, "9,483467 eV|"}, {17, "19,372446 eV/nm³|754,68 eV/nm³"},
             {18, "1,3434812·10⁻¹⁶ N/m²|134,35 GPa"}}) {
        const Einzelheiten alle = einzelheiten(zeile, &calc, alloy);
        EXPECT_EQ(row(alle, "Wert") + '|' + row(alle, "Lehrbuch"), texts);
        EXPECT_EQ(row(alle, "Unterschied").empty(), row(alle, "Lehrbuch").empty()) << zeile;
    }
    for (const auto& [zeile, value] : independently(alloy))
        EXPECT_FALSE(row(einzelheiten(zeile, &calc, alloy), "Formel").empty()) << zeile;
    EXPECT_EQ(row(einzelheiten(5, &calc, alloy), "Konstanten"),
        "k_B = 1,38065·10⁻²³ J/K, e = 1,6021765·10⁻¹⁹ C, ħ = 1,0545716·10⁻³⁴ Js, m = 9,109382·10⁻³¹ kg");
    EXPECT_EQ(row(diagrammeinzelheiten(3, &calc, alloy), "Lehrbuch"), "0,016587 nm³ (Legierung der Ergebnisse)");
    EXPECT_TRUE(diagrammeinzelheiten(7, &calc, alloy).zeilen.empty());
}

TEST_F(LehrbuchTest, WhatIsMadeOfUnknownsIsUnknown)
{
    setAlloy({{"Al", 60}, {"Cu", 40}});
    alloy[1].valenz = Unbekannt;
    calc.Legierung_Setzen(alloy);
    for (const int zeile : {2, 3, 5, 17, 18})
        EXPECT_EQ(lehrbuch(zeile), Unbekannt) << zeile;
    setAlloy({{"Al", 60}, {"Cu", 40}});
    calc.setValenz(Unbekannt);
    for (const int zeile : {5, 17, 18})
        EXPECT_EQ(einzelheiten(zeile, &calc, alloy).zeilen.at(2).text, "unbekannt") << zeile;
}

} // namespace zerna
