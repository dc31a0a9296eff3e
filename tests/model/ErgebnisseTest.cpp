#include "model/Ergebnisse.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

struct ErgebnisseTest : FilesTest {
    void addElement(int index, const char* symbol, float mass, float density, const char* valence, float percent)
    {
        const auto element = std::make_shared<clsElement>(files, boxes);
        element->setMasse(mass);
        element->setDichte(density);
        element->setValenz_Temp(valence);
        elements.Add(element, symbol);
        calc.Element_Add(index, symbol, percent);
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 2;
    clsCalc calc{elements, count, parser};
    Ergebnistexte texte;
};

/// The whole text and the files are recorded in befehle.txt.
TEST_F(ErgebnisseTest, LinesOfAnAlloyFromTheTextbookFormulas)
{
    addElement(0, "Al", 26.98154F, 2.7F, "3", 60);
    addElement(1, "Cu", 63.546F, 8.96F, "1", 40);
    ASSERT_TRUE(berechneErgebnisse(calc, texte));
    for (const auto& [line, text] : {std::pair(Friedelzeile, "r(n) = 0,23891 nm"), {11, "149,99 e/nm³"},
             {13, "48,678 %"}, {14, "0,32057 states/eV atom"}, {15, "1,1946 E+5 K"}, {16, "6,1765 eV"}})
        EXPECT_EQ(texte.at(static_cast<std::size_t>(line)).text, text);
}

TEST_F(ErgebnisseTest, OfUnknownParticlesOnlyWhatNeedsNoneIsKnown)
{
    calc.setTeilchenzahldichte(Unbekannt);
    calc.setValenz(3);
    texte.assign(keineErgebnisse().size(), {"alt", true});
    EXPECT_FALSE(berechneErgebnisse(calc, texte));
    for (const Groesse& zeile : ergebniszeilen()) {
        const Ergebnistext& ergebnis = texte.at(static_cast<std::size_t>(zeile.zeile));
        EXPECT_EQ(ergebnis.known, zeile.zeile == Valenzzeile || zeile.zeile == 2) << zeile.beschriftung;
        EXPECT_EQ(ergebnis.text, zeile.tippbar ? zeile.einheit : "") << zeile.beschriftung;
    }
    const std::string text = ergebnistext(calc, {}, texte);
    EXPECT_TRUE(text.ends_with("Friedelminima:")) << text;
    EXPECT_EQ(friedeldatei(calc), "");
}

TEST_F(ErgebnisseTest, NoElectronsAreAValueThoughItsTextIsEmpty)
{
    calc.setTeilchenzahldichte(6e28F);
    calc.setValenz(0);
    texte.assign(keineErgebnisse().size(), {"alt", true});
    EXPECT_FALSE(berechneErgebnisse(calc, texte));
    EXPECT_TRUE(texte.at(7).known && texte.at(7).text.empty());
    EXPECT_FALSE(texte.at(4).known) << "Hall coefficient";
}

TEST(Friedelindex, WrapsAtUnequalBounds)
{
    for (const auto& [n, kept] : {std::pair(-1.0F, 20.0F), {0.0F, 0.0F}, {19.0F, 19.0F}, {20.0F, 0.0F}, {21.0F, 0.0F}})
        EXPECT_EQ(friedelindex(n), kept) << n;
}

TEST(Wertkopie, OfShownValues)
{
    struct Row {
        int line;
        std::string_view shown, unit;
        std::string_view copied, number, whole; // "Kopieren", "Zahl kopieren", "Zahl und Einheit kopieren"
    };
    for (const auto& [line, shown, unit, copied, number, whole] : {
             Row{7, "11,65 eV", "eV", "11.65", "11,65", "11,65 eV"},
             {3, "1,4667 E-29 m³", "m³", "1.4667", "1,4667E-29", "1,4667 E-29 m³"},
             {10, "r(n) = 0,23891 nm", "nm", "0.23891", "0,23891", "0,23891 nm"},
             {13, "123,456 %", "%", "", "123,456", "123,456 %"}, // Intended: the copy loses seven characters here too
             {0, "e/a", "e/a", "e/a", "", "e/a"},
             {7, "", "eV", "", "", ""},
         }) {
        SCOPED_TRACE(shown);
        EXPECT_EQ(kopierteZahl(line, shown), copied);
        EXPECT_EQ(ganzeZahl(shown, unit), number);
        EXPECT_EQ(wertUndEinheit(shown), whole);
    }
}

} // namespace zerna
