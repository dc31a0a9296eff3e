#include "model/eingabe/Legierungsformel.h"

#include <gtest/gtest.h>

#include "model/EingabeFixture.h"
#include "model/eingabe/Formeleingabe.h"
#include "model/eingabe/Formeltext.h"

namespace zerna {

namespace {

struct LegierungsformelTest : EingabeFixture {
    Formellesung lies(std::string_view text) const { return legierungsformel(text, elements); }

    /// "Al 60 Cu 40", behind it the unit in mass and what was scaled.
    std::string gelesen(std::string_view text) const
    {
        const auto [formel, fehler] = lies(text);
        if (fehler)
            return fehler->text();
        std::string result;
        for (std::size_t i = 0; i < formel.komponenten().size(); ++i)
            result += (i == 0 ? "" : " ") + formel.komponenten()[i].element->symbol() + " " + formel.prozenttext(i);
        result += formel.einheit() == Anteilseinheit::Masse ? " Masse" : "";
        return result + (formel.istUmgerechnet() ? " umgerechnet" : "");
    }
};

TEST_F(LegierungsformelTest, FormulasAreReadAsTheyAreWritten)
{
    const std::pair<const char*, const char*> rows[] = {
        {"Al60Cu40", "Al 60 Cu 40"},
        {"  Al60 - Cu40\n", "Al 60 Cu 40"},
        {"Al 60 Cu 40", "Al 60 Cu 40"},
        {"60 Al, 40 Cu", "Al 60 Cu 40"},
        {"60Al40Cu", "Al 60 Cu 40"},
        {"Zr55 Cu30 Al10 Ni5", "Zr 55 Cu 30 Al 10 Ni 5"},
        {"Al60,5Cu39.50", "Al 60,5 Cu 39.50"},
        {"Al.5Cu99.5", "Al .5 Cu 99.5"},
        {"Al", "Al 100"},
        // Parts
        {"Cu2MgAl", "Cu 50 Mg 25 Al 25 umgerechnet"},
        {"Al2Cu", "Al 66,66667 Cu 33,33333 umgerechnet"},
        {"CoCrFeNi", "Co 25 Cr 25 Fe 25 Ni 25 umgerechnet"},
        {"Al33,3Cu33,3Mg33,3", "Al 33,33333 Cu 33,33333 Mg 33,33333 umgerechnet"},
        {"Al60,1Cu20,2Mg19,7", "Al 60,1 Cu 20,2 Mg 19,7"}, // a sum of 100 only in decimals
        {"Al97,12856Cu1,736448Mg1,134996", "Al 97,12856 Cu 1,736448 Mg 1,134996"}, // as it was written out
        // One element takes the rest
        {"Al-4Cu-1Mg wt%", "Al 95 Cu 4 Mg 1 Masse"},
        {"Al–4,4Cu–1.5Mg", "Al 94,1 Cu 4,4 Mg 1.5"},
        {"Fe 18Cr 8Ni wt%", "Fe 74 Cr 18 Ni 8 Masse"},
        {"18Cr-8Ni-Fe (Gew.-%)", "Cr 18 Ni 8 Fe 74 Masse"},
        {"Ti - 6Al - 4V, Ma%", "Ti 90 Al 6 V 4 Masse"},
        {"Al-4wt%Cu-1wt%Mg", "Al 95 Cu 4 Mg 1 Masse"},
        {"Al 4Cu1Mg", "Al 95 Cu 4 Mg 1"},
        {"Al60Cu at%", "Al 60 Cu 40"},
        {"Al-100Cu", "Al 0 Cu 100"},
        // Units
        {"Al60Cu40 at %", "Al 60 Cu 40"},
        {"At-%: Al60Cu40", "Unerwartetes Zeichen \":\" (Zeichen 5)"},
        {"[AT.-%] Al60Cu40", "Al 60 Cu 40"},
        {"Al 60 at% Cu 40 at%", "Al 60 Cu 40"},
        {"Al60Cu40 Atomprozent", "Al 60 Cu 40"},
        {"Al60Cu40 Mol-%", "Al 60 Cu 40"},
        {"Al60Cu40 m%", "Al 60 Cu 40 Masse"},
        {"Al60Cu40 Massenprozent", "Al 60 Cu 40 Masse"},
        {"Al60Cu40 Masse-%", "Al 60 Cu 40 Masse"},
        {"At60Cu40", "At 60 Cu 40"},
        // As it is printed
        {"Al₆₀Cu₃₉,₅Mg₀.₅", "Al 60 Cu 39,5 Mg 0.5"},
        {"Al$_{60}$Cu$_{39{,}5}$Mg$_{0.5}$", "Al 60 Cu 39,5 Mg 0.5"},
        {"Cu_2MgAl", "Cu 50 Mg 25 Al 25 umgerechnet"},
    };
    for (const auto& [text, expected] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(gelesen(text), expected);
    }
}

TEST_F(LegierungsformelTest, ErrorsNameTheCharacter)
{
    const std::pair<const char*, const char*> rows[] = {
        {"", "Es ist kein Element angegeben. Zum Beispiel Al60Cu40 schreiben."},
        {"60", "Es ist kein Element angegeben (Zeichen 3). Zum Beispiel Al60Cu40 schreiben."},
        {"Al60Xx40", "Element \"Xx\" ist nicht bekannt (Zeichen 5). Meinten Sie Xe?"},
        {"Al60Kupfer40", "Element \"Kupfer\" ist nicht bekannt (Zeichen 5). Meinten Sie Cu?"},
        {"al60cu40", "Element \"al\" ist nicht bekannt (Zeichen 1). Groß und klein wie in Al schreiben."},
        {"AL60", "Element \"A\" ist nicht bekannt (Zeichen 1). Groß und klein wie in Al schreiben."},
        {"Al₆₀Cu₄₀Qq", "Element \"Qq\" ist nicht bekannt (Zeichen 9)"}, // characters, not bytes
        {"Al60Al40", "Al steht zweimal in der Legierung (Zeichen 5)"},
        {"AlCuMgZnFeNi", "Eine Legierung hat höchstens fünf Komponenten (Zeichen 11)"},
        {"Al-60Cu-50Mg", "Die Mengen der anderen ergeben mehr als 100 % (Zeichen 1)"},
        {"Al0Cu0", "Alle Mengen sind 0 (Zeichen 1)"},
        {"Al -4Cu", "Eine Menge kann nicht negativ sein (Zeichen 4)"},
        {"-4Cu", "Eine Menge kann nicht negativ sein (Zeichen 1)"},
        {"Al60Cu-40", "Eine Menge kann nicht negativ sein (Zeichen 7)"},
        {"Al123456789012345678901", "Die Zahl hat zu viele Ziffern (Zeichen 3)"},
        {"Al60 40Cu", "Zwei Mengen hintereinander (Zeichen 6)"},
        {"Al1.234,5Cu", "Zwei Mengen hintereinander (Zeichen 9)"},
        {"Al 2 Cu",
            "Zu welchem Element die Menge gehört, ist nicht zu erkennen (Zeichen 4). Menge und Element "
            "zusammenschreiben."},
        {"Al60 Cu 30 Mg",
            "Zu welchem Element die Menge gehört, ist nicht zu erkennen (Zeichen 9). Menge und Element "
            "zusammenschreiben."},
        {"Al4Cu 1Mg", "Mengen stehen teils vor, teils hinter ihrem Element (Zeichen 7)"},
        {"Fe 18Cr 8", "Mengen stehen teils vor, teils hinter ihrem Element (Zeichen 9)"},
        {"Al 4Cu Mg", "Für Mg fehlt die Menge (Zeichen 8). Nur ein Element kann den Rest bis 100 % nehmen."},
        {"AlCu wt%", "Für Cu fehlt die Menge (Zeichen 3). Nur ein Element kann den Rest bis 100 % nehmen."},
        {"Al60Cu40 %", "Prozent wovon, ist nicht zu erkennen (Zeichen 10). At% oder wt% schreiben."},
        {"Al60Cu40 vol%", "Einheit \"vol%\" ist nicht bekannt (Zeichen 10). At% oder wt% schreiben."},
        {"Al60at%Cu40wt%", "Zwei verschiedene Einheiten (Zeichen 12)"},
        {"Al60Cu40 (wt%", "Unerwartetes Zeichen \"(\" (Zeichen 10)"},
        {"Al₊Cu", "Unerwartetes Zeichen \"₊\" (Zeichen 3)"},
        {"(Al2Cu)50", "Unerwartetes Zeichen \"(\" (Zeichen 1)"},
        {"Al60Cu40-", "Unerwartetes Zeichen \"-\" (Zeichen 9)"},
        {"Al--4Cu", "Unerwartetes Zeichen \"-\" (Zeichen 4)"},
        {"-Al", "Unerwartetes Zeichen \"-\" (Zeichen 1)"},
        {"Al$_{60Cu", "Unerwartetes Zeichen \"$\" (Zeichen 3)"},
        {"Al60\xFF", "Unerwartetes Zeichen \"\xFF\" (Zeichen 5)"},
    };
    for (const auto& [text, expected] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(gelesen(text), expected);
    }
}

TEST_F(LegierungsformelTest, WhatIsWrittenIsReadBack)
{
    const struct {
        const char* prozent;
        std::array<const char*, 3> texts;
    } rows[]{
        {"60", {"Al60Cu40", "Al₆₀Cu₄₀", "Al$_{60}$Cu$_{40}$"}},
        {"60.50", {"Al60,5Cu39,5", "Al₆₀,₅Cu₃₉,₅", "Al$_{60{,}5}$Cu$_{39{,}5}$"}},
        {"0", {"Al0Cu100", "Al₀Cu₁₀₀", "Al$_{0}$Cu$_{100}$"}},
        {"1E-5", {"Al0,00001Cu99,99999", "Al₀,₀₀₀₀₁Cu₉₉,₉₉₉₉₉", "Al$_{0{,}00001}$Cu$_{99{,}99999}$"}},
        {"120", {"", "", ""}},
        {"1x", {"", "", ""}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.prozent);
        eingabe.setProzent(0, row.prozent);
        for (std::size_t i = 0; i < row.texts.size(); ++i) {
            EXPECT_EQ(formeltext(eingabe, static_cast<Formelschrift>(i)), row.texts.at(i));
            if (*row.texts.at(i) != '\0') {
                EXPECT_FALSE(lies(row.texts.at(i)).formel.istUmgerechnet());
                EXPECT_EQ(gelesen(row.texts.at(i)), gelesen(row.texts.front()));
            }
        }
    }
    EXPECT_EQ(formeltext(eingabe, Formelschrift::Einfach, Dezimaltrenner::Punkt), "");
    eingabe.setProzent(0, "60,5");
    EXPECT_EQ(formeltext(eingabe, Formelschrift::LaTeX, Dezimaltrenner::Punkt), "Al$_{60.5}$Cu$_{39.5}$");
    eingabe.waehleElement(1, "Al");
    EXPECT_EQ(formeltext(eingabe, Formelschrift::Einfach), "");
}

TEST_F(LegierungsformelTest, EnteringKeepsWhatWasChosenForAnElement)
{
    dichte(0, "3")(eingabe);
    eingabe.waehleDichte(1, "flüssig");
    valenz(1, "5/2")(eingabe);
    const struct {
        const char* text;
        Aenderung aenderung;
        const char* zeilen;
    } rows[]{
        {"Al60.50Cu39.5", {.anteil = true}, "Al 60,5 <andere> 3, Cu 39,5 flüssig 5/2"},
        {"Cu60Al40", {.element = true, .anteil = true, .dichte = true, .valenz = true},
            "Cu 60 flüssig 5/2, Al 40 <andere> 3"},
        {"Cu", {.anzahl = true, .anteil = true}, "Cu 100 flüssig 5/2"},
        {"Cu2Mg", {.anzahl = true, .element = true, .anteil = true, .dichte = true, .valenz = true},
            "Cu 66,66667 flüssig 5/2, Mg 33,33333 flüssig 2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(setLegierung(eingabe, lies(row.text).formel), row.aenderung);
        std::string zeilen;
        for (const Komponentenzeile& zeile : eingabe.komponentenzeilen())
            zeilen += (zeilen.empty() ? "" : ", ") + zeile.symbol + " " + zeile.prozent + " " + zeile.dichtewahl + " "
                + zeile.valenz;
        EXPECT_EQ(zeilen, row.zeilen);
    }
    setLegierung(eingabe, lies("Al60.50Cu39.50").formel);
    EXPECT_EQ(eingabe.zeile(0).prozent.text, "60.50"); // as typed
    dichte(0, "2,7")(eingabe);
    eingabe.setDichte(0, "2,7x");
    setLegierung(eingabe, lies("Cu40Al60").formel);
    EXPECT_EQ(eingabe.zeile(1).dichte.text, "2,7x");
    EXPECT_EQ(eingabe.zeile(1).inKraft.dichte, 2.7F); // goes on
}

} // namespace

} // namespace zerna
