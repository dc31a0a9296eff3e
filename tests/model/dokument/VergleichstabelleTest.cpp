#include "model/dokument/Vergleichstabelle.h"

#include "model/EingabeFixture.h"
#include "model/dokument/Varianten.h"

namespace zerna {

struct VergleichstabelleTest : EingabeFixture {
    /// Aluminium with half and with a quarter of copper, and one of magnesium without a valence.
    VergleichstabelleTest()
    {
        for (const Schritt& step : {prozent(0, "50"), prozent(0, "75,05")}) {
            step(eingabe);
            merken(vergleich, eingabe);
        }
        element(1, "Mg")(eingabe);
        valenz(1, "0/0")(eingabe);
        merken(vergleich, eingabe);
        tabelle.setze(vergleich, calc);
    }

    /// "shown / shown / shown | copied / copied / copied" of a line.
    std::string zeile(std::string_view name, Vergleichsart art) const
    {
        std::size_t row = 0;
        while (tabelle.zeilen().at(row).name != name)
            ++row;
        std::string shown, copied;
        for (std::size_t i = 0; i < tabelle.spaltenzahl(); ++i) {
            shown += (i == 0 ? "" : " / ") + tabelle.anzeige(row, i, art);
            copied += (i == 0 ? "" : " / ") + tabelle.zahl(row, i, art);
        }
        return shown + " | " + copied;
    }

    static bool beginntMit(const std::string& text, std::string_view head) { return text.starts_with(head); }

    Vergleich vergleich;
    Vergleichstabelle tabelle;
};

TEST_F(VergleichstabelleTest, ShowsValuesAndHowTheyDifferFromTheReference)
{
    for (const auto& [line, value, difference, percent] : {
             std::tuple("Anteil Al", "50 / 75,05 / 75,05 | 50 / 75,05 / 75,05",
                 "50 / +25,05 / +25,05 | 50 / 25,05 / 25,05", "50 / +50,1 % / +50,1 % | 50 / 50,1 / 50,1"),
             {"Anteil Mg", "0 / 0 / 24,95 | 0 / 0 / 24,95", "0 / 0 / +24,95 | 0 / 0 / 24,95", "0 /  /  | 0 /  / "},
             {"Fermienergie", "9,1078 / 9,991 /  | 9,107788 / 9,991032 / ",
                 "9,1078 / +0,88324 /  | 9,107788 / 0,883244 / ", "9,1078 / +9,6977 % /  | 9,107788 / 9,6977 / "},
             {"mittlere Dichte", "5,187 / 3,7792 /  | 5,1870003 / 3,77919 / ",
                 "5,187 / −1,4078 /  | 5,1870003 / -1,40781 / ", "5,187 / −27,141 % /  | 5,1870003 / -27,1411 / "},
             {"Hall - Koeffizient", "−5,0001·10⁻¹¹ / −4,3519·10⁻¹¹ /  | -5,0000646E-11 / -4,3519056E-11 / ",
                 "−5,0001·10⁻¹¹ / +6,4816·10⁻¹² /  | -5,0000646E-11 / 6,48159E-12 / ",
                 "−5,0001·10⁻¹¹ / −12,963 % /  | -5,0000646E-11 / -12,963 / "},
             {"Massenanteil Al", "29,80479 / 56,08641 / 76,95464 | 29,804787 / 56,08641 / 76,95464",
                 "29,80479 / +26,28162 / +47,14985 | 29,804787 / 26,28162 / 47,14985",
                 "29,80479 / +88,179 % / +158,2 % | 29,804787 / 88,1792 / 158,1956"},
             {"Dichte Al", "2,377 / 2,377 / 2,377 | 2,377 / 2,377 / 2,377", "2,377 / 0 / 0 | 2,377 / 0 / 0",
                 "2,377 / 0 % / 0 % | 2,377 / 0 / 0"},
             {"Valenz Cu", "1 / 1 /  | 1 / 1 / ", "1 / 0 /  | 1 / 0 / ", "1 / 0 % /  | 1 / 0 / "},
             {"Valenz Mg", " /  /  |  /  / ", " /  /  |  /  / ", " /  /  |  /  / "},
         }) {
        SCOPED_TRACE(line);
        EXPECT_EQ(zeile(line, Vergleichsart::Wert), value);
        EXPECT_EQ(zeile(line, Vergleichsart::Differenz), difference);
        EXPECT_EQ(zeile(line, Vergleichsart::Prozent), percent);
    }
}

TEST_F(VergleichstabelleTest, HasALineForEachQuantityAndElement)
{
    std::string lines;
    for (const Vergleichstabelle::Zeile& line : tabelle.zeilen())
        lines += line.name + (line.istErgebnis ? "*" : "") + '|';
    EXPECT_EQ(tabelle.zeilen().size(), 3 + 18 + 3 * 3);
    EXPECT_EQ(lines.substr(0, 53), "Anteil Al|Anteil Cu|Anteil Mg|mittlere Valenz*|mittle");
    EXPECT_NE(lines.find("Kompressionsmodul*|Massenanteil Al|Massenanteil Cu|Massenanteil Mg|Dichte Al|Dichte "
                         "Cu|Dichte Mg|Valenz Al|"),
        std::string::npos);
    vergleich.varianten.pop_back();
    tabelle.setze(vergleich, calc);
    EXPECT_EQ(tabelle.zeilen().size(), 2 + 18 + 3 * 2);
    tabelle.setze({}, calc);
    EXPECT_TRUE(tabelle.zeilen().empty());
}

TEST_F(VergleichstabelleTest, AColumnFollowsNoLaterChange)
{
    const std::string before = zeile("mittlere Dichte", Vergleichsart::Wert);
    eingabe.zeile(0).element->setDichte(99); // as the next edit does
    setzeReferenz(vergleich, 1);
    umbenennen(vergleich, 0, "alt");
    tabelle.setze(vergleich, calc);
    EXPECT_EQ(zeile("mittlere Dichte", Vergleichsart::Wert), before);
    EXPECT_EQ(zeile("Anteil Cu", Vergleichsart::Differenz).substr(0, 14), "+25,05 / 24,95");
    EXPECT_EQ(tabelle.name(0), "alt");
}

TEST_F(VergleichstabelleTest, SumsTheSharesOfAnElementInSeveralRows)
{
    anzahl(3)(eingabe);
    for (const Schritt& step : {element(1, "Cu"), element(2, "Al"), prozent(0, "33,3"), prozent(1, "33,4")})
        step(eingabe);
    vergleich = {};
    merken(vergleich, eingabe);
    tabelle.setze(vergleich, calc);
    EXPECT_EQ(zeile("Anteil Al", Vergleichsart::Wert), "66,6 | 66,6");
}

TEST_F(VergleichstabelleTest, SaysInEachHeadingWhatTheColumnHolds)
{
    vergleich.varianten.pop_back();
    vergleich.varianten.front().name = "a;\"b\"\t<c&>"; // as a file may hold it
    tabelle.setze(vergleich, calc);
    const auto table = [this](Vergleichsart art) { return tabelle.tabelle(art, Dezimaltrenner::Komma); };
    EXPECT_PRED2(beginntMit, alsText(mitKopf(table(Vergleichsart::Wert))),
        "Größe\tEinheit\ta;\"b\" <c&>\tAl75,05Cu24,95\r\nAnteil Al\tat%\t");
    EXPECT_PRED2(beginntMit, alsCsv(table(Vergleichsart::Differenz)),
        "\xEF\xBB\xBFGröße;Einheit;\"a;\"\"b\"\" <c&>\";\"Al75,05Cu24,95 − a;\"\"b\"\" <c&>\"\r\n"
        "Anteil Al;at%;50;25,05\r\n");
    EXPECT_NE(alsHtml(table(Vergleichsart::Prozent)).find(">Al75,05Cu24,95 gegen a;\"b\" &lt;c&amp;> in %</th>"),
        std::string::npos);
    EXPECT_PRED2(beginntMit, alsJson(table(Vergleichsart::Wert)),
        "[\r\n  {\"Größe\": \"Anteil Al\", \"Einheit\": \"at%\", \"a;\\\"b\\\" <c&>\": 50,");
}

} // namespace zerna
