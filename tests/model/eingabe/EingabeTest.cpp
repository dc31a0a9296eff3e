#include "model/EingabeFixture.h"

namespace zerna {

struct EingabeTest : EingabeFixture {
    std::string prozente() const
    {
        std::string all;
        for (int row = 0; row < eingabe.anzahl(); ++row)
            all += eingabe.zeile(row).prozent.text + '|';
        return all;
    }

    /// "at% dichte valenz" of each row as numbers.
    std::string zahlen() const
    {
        const auto legierung = eingabe.legierung();
        std::string all;
        for (const Legierungskomponente& k : legierung ? legierung->komponenten() : std::span<Legierungskomponente>())
            all += feldtext(k.prozent) + ' ' + feldtext(k.dichte) + ' ' + feldtext(k.valenz) + '|';
        return all;
    }
};

TEST_F(EingabeTest, BalanceRowTakesTheRestOnceAllOthersCanBeRead)
{
    for (const auto& [name, schritt, expected, changes, complete] : {
             std::tuple("the rest", prozent(0, "60"), "60|40|", true, true),
             {"not a number", prozent(0, "60x"), "60x|40|", false, false},
             {"empty", prozent(0, ""), "|40|", false, false},
             {"more than all", prozent(0, "120"), "120|-20|", true, true},
             {"a sum beyond a single", prozent(0, "3e38"), "3e38|-3E+38|", true, true},
             {"the balance row itself", prozent(1, "77"), "3e38|77|", false, true},
             {"decimal point", prozent(0, "16.3"), "16.3|83,7|", true, true},
             {"a row more, without an element", anzahl(3), "16.3|83,7|0|", true, false},
             {"the row before it", prozent(1, "20,4"), "16.3|20,4|63,3|", true, false},
             {"all rows", anzahl(5), "16.3|20,4|63,3|0|0|", true, false},
             {"more together than a single holds", prozent(0, "3e38"), "3e38|20,4|63,3|0|-3E+38|", true, false},
             {"nothing is written then", prozent(1, "3e38"), "3e38|3e38|63,3|0|-3E+38|", false, false},
             {"only one of them", prozent(1, "20,4"), "3e38|20,4|63,3|0|-3E+38|", true, false},
             {"a single one", anzahl(1), "100|", true, true},
             {"all rows as they were", anzahl(5), "100|20,4|63,3|0|-83,7|", true, false},
             {"back again", anzahl(2), "100|0|", true, true},
         }) {
        SCOPED_TRACE(name);
        EXPECT_EQ(schritt(eingabe).anteil, changes);
        EXPECT_EQ(prozente(), expected);
        EXPECT_EQ(eingabe.istVollstaendig(), complete);
    }
    eingabe.setProzent(1, "7");
    eingabe.gleicheAus();
    EXPECT_EQ(prozente(), "100|0|");
    EXPECT_EQ(errorNumber([this] { eingabe.setAnzahl(6); }) + errorNumber([this] { eingabe.setAnzahl(0); }), 18);
}

TEST_F(EingabeTest, WhatIsTypedIntoTheBalanceRowOrUnreadableIsNotComputedWith)
{
    eingabe.setProzent(0, "60");
    dichte(1, "8,9")(eingabe);
    eingabe.setDichte(1, "8,9x");
    valenz(1, "")(eingabe);
    for (const char* const typed : {"7", "x", ""}) {
        eingabe.setProzent(1, typed);
        EXPECT_EQ(eingabe.zeile(1).prozent.text, typed);
        EXPECT_TRUE(eingabe.istVollstaendig());
        EXPECT_EQ(zahlen(), "60 2,377 3|40 8,9 0|");
        const Komponentenzeile named = eingabe.komponentenzeilen().at(1);
        EXPECT_EQ(named.prozent + ' ' + named.dichte + ' ' + named.valenz, "40 8,9 ");
    }
    eingabe.setProzentOhneAusgleich(1, "7");
    EXPECT_EQ(zahlen(), "60 2,377 3|7 8,9 0|");
}

TEST_F(EingabeTest, ChoicesAndTextsBecomeNumbers)
{
    for (const auto& [name, schritt, expected] : {
             std::tuple("another kind", Schritt([](Eingabe& e) { return e.waehleDichte(0, "kristallin"); }),
                 "50 2,7 3|50 7,997 1|"),
             {"typed", dichte(0, "2.5"), "50 2,5 3|50 7,997 1|"},
             {"not a number: the last one holds", dichte(0, "9x"), "50 0 3|50 7,997 1|"}, // <andere> began at 0
             {"another element's valence", valenz(0, "z_cu+1"), "50 0 2|50 7,997 1|"},
             {"no formula", valenz(0, "2+1/0"), "50 0 <unbekannt>|50 7,997 1|"},
             {"empty", valenz(0, ""), "50 0 0|50 7,997 1|"},
             {"unreadable at%", prozent(0, "x"), "<unbekannt> 0 0|50 7,997 1|"},
             {"another element begins anew", element(0, "Fe"), "<unbekannt> 7,035 2|50 7,997 1|"},
             {"without a density", element(0, "At"), "<unbekannt> 0 7|50 7,997 1|"},
             {"an unknown key changes nothing", element(0, "Qq"), "<unbekannt> 0 7|50 7,997 1|"},
         }) {
        SCOPED_TRACE(name);
        schritt(eingabe);
        EXPECT_EQ(zahlen(), expected);
    }
    EXPECT_EQ(eingabe.zeile(0).dichtewahl, AndereWahl);
}

TEST_F(EingabeTest, EachTextKnowsItsFaultItsEchoAndItsMessages)
{
    for (const auto& [text, fehler, echo, meldungen] : {
             std::tuple("3", "", "", 0U),
             {"()", "", "0", 0},
             {"ln(0)",
                 "Ungültiger Prozeduraufruf oder ungültiges Argument (Zeichen 1). Wurzel, Logarithmus und Potenz sind "
                 "nicht für jede Zahl festgelegt.",
                 "", 0},
             {"-1", "", "", 0},
             {"&HFF", "", "", 0},
             {"3/2", "", "1,5", 0},
             {"e", "", "2,7718281828459", 0},
             {"", "", "0", 0},
             {"<unbekannt>", "\"<unbekannt>\" ist keine Zahl (Zeichen 1)", "", 0},
             {"foo(1)+bar(2)",
                 "Funktion \"foo\" ist nicht definiert (Zeichen 1). Gibt es zum Beispiel: sqrt, ln, lg, exp, pow, sin, "
                 "cos, abs.",
                 "", 2},
             {"1e999", "Der Wert ist zu groß", "", 0},
             {"10^39", "Der Wert ist zu groß", "", 0},
         }) {
        SCOPED_TRACE(text);
        const Eingabefeld feld = valenzfeld(text, elements);
        EXPECT_EQ(feld.fehler ? feld.fehler->text() : "", fehler);
        EXPECT_EQ(feld.echo, echo);
        EXPECT_EQ(feld.meldungen.size(), meldungen);
    }
    EXPECT_EQ(zahlenfeld("9x").fehler->text(),
        "Keine gültige Zahl (Typen unverträglich). Ziffern mit höchstens einem Komma oder Punkt eintragen, zum "
        "Beispiel "
        "2,7.");
    EXPECT_EQ(zahlenfeld("1e39").fehler->text(), "Keine gültige Zahl (Überlauf). Der Wert ist zu groß.");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(EingabeTest, TypedValuesGoToTheElementLookedUpLast)
{
    eingabe.waehleDichte(0, AndereWahl);
    eingabe.waehleDichte(1, AndereWahl);
    eingabe.setDichte(0, "5"); // Intended: copper was looked up last, whatever the row
    EXPECT_EQ(zahlen(), "50 0 3|50 5 1|");
    EXPECT_EQ(eingabe.zeile(0).dichte.text, "5");
    eingabe.nachschlagen(0);
    eingabe.setDichte(0, "2,7");
    eingabe.setValenz(0, "2");
    EXPECT_EQ(zahlen(), "50 2,7 2|50 5 1|");
    EXPECT_EQ(eingabe.CurrentElement()->symbol(), "Al");
}

TEST_F(EingabeTest, RowsOfOneElementShareItsValues)
{
    eingabe.waehleElement(1, "Al");
    valenz(0, "5/2")(eingabe);
    dichte(1, "2,5")(eingabe);
    EXPECT_EQ(zahlen(), "50 2,5 2,5|50 2,5 2,5|");
    const std::vector<Komponentenzeile> zeilen = eingabe.komponentenzeilen();
    EXPECT_EQ(zeilen.at(0), (Komponentenzeile{"Al", "50", "<andere>", "2,5", "<andere>", "5/2"}));
    EXPECT_EQ(zeilen.at(0), zeilen.at(1));
    eingabe.elementeSetzen();
    EXPECT_EQ(elements.Item("Al")->Dichte(), 2.5F);
    EXPECT_EQ(elements.Item("Al")->Valenz_Temp(), "5/2");
    eingabe.waehleElement(1, "Cu");
    EXPECT_EQ(zahlen(), "50 2,5 2,5|50 7,997 1|") << "each has its own again";
}

TEST_F(EingabeTest, OneDensityKindForAllRowsThatHaveIt)
{
    eingabe.setAnzahl(4);
    eingabe.waehleElement(2, "Se");
    eingabe.waehleElement(3, "Po");
    eingabe.waehleDichte(3, AndereWahl);
    for (const auto& [wahl, wahlen, ohne] : {
             std::tuple("kristallin", "kristallin kristallin kristallin kristallin  ", std::vector<std::string>()),
             {"amorph", "kristallin kristallin amorph kristallin  ", {"Al", "Cu", "Po"}},
             {"flüssig", "flüssig flüssig flüssig kristallin  ", {"Po"}},
         }) {
        EXPECT_TRUE(eingabe.waehleDichteart(wahl).dichte);
        std::string chosen;
        for (int row = 0; row < MaxKomponenten; ++row)
            chosen += eingabe.zeile(row).dichtewahl + ' ';
        EXPECT_EQ(chosen, wahlen);
        EXPECT_EQ(eingabe.ohneDichte(wahl), ohne);
    }
    EXPECT_EQ(eingabe.gemeinsameDichtewahl(), "");
    eingabe.setAnzahl(3);
    EXPECT_EQ(eingabe.gemeinsameDichtewahl(), "flüssig");
}

TEST_F(EingabeTest, FirstObstacleIsNamed)
{
    for (const auto& [name, schritt, zeile, grund] : {
             std::tuple("none", prozent(0, "x"), -1, ""),
             {"density 0", dichte(1, "0,0"), 1, "Dichte für Kupfer ist Null!"},
             {"no density", dichte(1, ""), 1, "Dichte für Kupfer ist unbekannt!"},
             {"not a number", dichte(1, "8,9x"), 1, "Dichte für Kupfer ist keine gültige Zahl!"},
             {"the first row first", valenz(0, "1/0"), 0, "Valenz für Aluminium ist ungültig!"},
             {"unknown", valenz(0, "<unbekannt>"), 0, "Valenz für Aluminium ist unbekannt!"},
             {"mended", element(0, "Al"), 1, "Dichte für Kupfer ist keine gültige Zahl!"},
             {"a row without an element", anzahl(3), 1, "Dichte für Kupfer ist keine gültige Zahl!"},
             {"the last one", element(1, "Cu"), 2, "Es ist nicht für jede Komponente ein Element gewählt!"},
         }) {
        SCOPED_TRACE(name);
        schritt(eingabe);
        const auto hindernis = eingabe.hindernis();
        EXPECT_EQ(hindernis ? hindernis->zeile : -1, zeile);
        EXPECT_EQ(hindernis ? hindernis->grund : "", grund);
    }
    EXPECT_FALSE(eingabe.legierung());
}

} // namespace zerna
