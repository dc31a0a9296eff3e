#include "model/messung/Messdatei.h"

#include <gmock/gmock.h>

#include "core/Zeichensatz.h"
#include "support/Messkurven.h"

namespace zerna {
namespace {

using testing::ElementsAre;

const std::vector<Messpunkt> Drei{{1.5, 2.3}, {2, 0.5}, {10, -4}};

std::string utf16(std::string_view text, bool littleEndian)
{
    std::string bytes;
    for (const char c : text)
        bytes += littleEndian ? std::string{c, '\0'} : std::string{'\0', c};
    return bytes;
}

TEST(Messdatei, ReadsEveryWayToWriteTwoColumns)
{
    const std::vector<std::pair<const char*, std::string>> rows{
        {"semicolon and comma", "1,5;2,3\n2;0,5\n10;-4\n"},
        {"semicolon and point", "1.5;2.3\n2;0.5\n10;-4"},
        {"comma and point", "1.5,2.3\n2,0.5\n10,-4\n"},
        {"comma and point, whole numbers first", "#\n1.5,2.3\r\n2, .5\r\n10 , -4\r\n"},
        {"blank and comma", "1,5 2,3\n2 0,5\n10 -4\n"},
        {"blanks and point", "   1.5   2.3\n   2.0   0.5  \n  10.0  -4.\n\n\n"},
        {"tab and comma", "1,5\t2,3\n2\t0,5\n10\t-4\n"},
        {"tab and point, more columns", "1.5\t2.3\t9\n2\t0.5\t9,9\n10\t-4\tx\n"},
        {"semicolon and blanks", " 1,5 ; 2,3 ;\n 2 ; 0,5\n 10 ; -4\n"},
        {"exponents", "15E-1 2.3e0\n+2 5D-1\n1e+1 -4\n"},
        {"comments", "# a\n; b\n% c\n' d\n! e\n// f\n1.5 2.3 # first\n# between\n2 0.5\n10 -4\n# end"},
        {"heading and number of points", "Probe 7, 300 K\r\n\r\n3\r\nx y\r\n1.5 2.3\r\n2 0.5\r\n10 -4\r\n"},
        {"quotation marks", "\"r, nm\",\"g\"\n\"1,5\",\"2,3\"\n\"2\",\"0,5\"\n\"10\",\"-4\"\n"},
        {"old line ends", "1,5;2,3\r2;0,5\r10;-4\r"},
        {"falling", "10;-4\n2;0,5\n1,5;2,3\n"},
        {"UTF-8 with a mark",
            "\xEF\xBB\xBF"
            "1,5;2,3\n2;0,5\n10;-4\n"},
        {"Windows-1252", toWindows1252("Länge;Größe\n1,5;2,3\n2;0,5\n10;-4\n")},
        {"UTF-16", "\xFF\xFE" + utf16("1,5\t2,3\r\n2\t0,5\r\n10\t-4\r\n", true)},
        {"UTF-16, high byte first", "\xFE\xFF" + utf16("x\t\n1,5\t2,3\n2\t0,5\n10\t-4\n", false)},
        {"UTF-16 without a mark", utf16("1,5\t2,3\n2\t0,5\n10\t-4\n", true)},
    };
    for (const auto& [name, bytes] : rows) {
        SCOPED_TRACE(name);
        const Messlesung lesung = liesMesskurve(bytes, "x.txt");
        ASSERT_TRUE(lesung.kurve) << lesung.grund;
        EXPECT_EQ(*lesung.kurve->punkte, Drei);
        EXPECT_EQ(lesung.kurve->name, "x.txt");
    }
}

TEST(Messdatei, SaysLineAndReasonOfWhatItCannotRead)
{
    const std::string two = "1,5;2,3\n2;0,5\n";
    const std::vector<std::pair<std::string, const char*>> rows{
        {"", "Die Datei ist leer."},
        {"# r g(r)\n\n", "In der Datei stehen keine zwei Spalten mit Zahlen."},
        {"# x\n1.5\n2.5\n3.5\n", "Zeile 2: Hier steht nur eine Spalte; gebraucht werden zwei."},
        {two + "3\n", "Zeile 3: Hier steht nur eine Spalte; gebraucht werden zwei."},
        {two + "\n3;abc\n", "Zeile 4: \"abc\" ist keine Zahl."},
        {two + "Ende der Messung\n", "Zeile 3: \"Ende der Messung\" ist keine Zahl."},
        {"1;2x\n" + two, "Zeile 1: \"2x\" ist keine Zahl."},
        {two + "1;1\n", "Zeile 3: Die Werte der ersten Spalte steigen zuerst und fallen hier."},
        {"3;1\n2;1\n2,5;1\n", "Zeile 3: Die Werte der ersten Spalte fallen zuerst und steigen hier."},
        {two + "2;1\n", "Zeile 3: Der Wert der ersten Spalte ist derselbe wie im Punkt davor."},
        {"0;NaN\n" + two, "Zeile 1: \"NaN\" ist keine Zahl."},
        {two + "3;-inf\n", "Zeile 3: \"-inf\" ist keine Zahl."},
        {two, "Zeile 2: Die Datei hat zu wenige Messpunkte; gebraucht werden mindestens drei."},
        {"\x7F"
         "ELF\1\0\0\0"
                + std::string(8, '\0') + "\1",
            "Das ist keine Textdatei."},
        {std::string("PK\3\4\0\0", 6), "Das ist keine Textdatei."},
        {two + "3;1\n4;1\n5;1\n",
            "Zeile 5: Für mehr als 4 Messpunkte ist kein Platz; alle Messkurven zusammen dürfen 1200000 haben."},
        {two + "3\t0,7\n", "Zeile 3: Hier stehen andere Trenn- oder Dezimalzeichen als in den Zeilen davor."},
        {two + "3.5;0.7\n", "Zeile 3: Hier stehen andere Trenn- oder Dezimalzeichen als in den Zeilen davor."},
        {two + "1.234,5;7\n", "Zeile 3: \"1.234,5\" ist keine Zahl."},
        {two + "3;1e400\n", "Zeile 3: Die Zahl \"1e400\" ist zu groß."},
        {two + "3;-1e31\n", "Zeile 3: Die Zahl \"-1e31\" ist zu groß."},
        {"# r,g\n1,5,2,3\n2,0,0,5\n3,0,1,0\n",
            "Zeile 2: Ein Komma kann hier vor Nachkommastellen oder zwischen zwei Spalten stehen; Spalten bitte mit "
            "Semikolon oder Tabulator trennen."},
    };
    for (const auto& [bytes, reason] : rows) {
        const Messlesung lesung = liesMesskurve(bytes, "x", 4);
        EXPECT_FALSE(lesung.kurve) << reason;
        EXPECT_EQ(lesung.grund, reason);
    }
}

TEST(Messdatei, KnowsKindAndUnitFromItsHeadingOrItsMaximum)
{
    using enum Messart;
    using enum Messeinheit;
    struct Row {
        const char* name;
        const char* kopf;
        double maximum;
        Messart art;
        Messeinheit einheit;
    };
    const std::vector<Row> rows{
        {"x", "r / nm\tg(r)", 2.5, Paarverteilung, Nanometer},
        {"x", "r (Å); g(r)", 0.25, Paarverteilung, Angstroem},
        {"x", "r [Angstrom] pair distribution function", 0.25, Paarverteilung, Angstroem},
        {"x", "K (1/nm), S(K)", 3, Strukturfaktor, Nanometer},
        {"x", "Q, Å⁻¹\tI", 30, Strukturfaktor, Angstroem},
        {"x", "2theta=5 Q[A^-1] Int", 30, Strukturfaktor, Angstroem},
        {"x", "g(r) aus S(K)\nq (nm^{-1})  S(q)", 3, Strukturfaktor, Nanometer},
        {"Cu-Sn S(K).dat", "Angabe von Hand", 3, Strukturfaktor, Angstroem},
        {"Cu-Sn S(K).dat", "", 30, Strukturfaktor, Nanometer},
        {"x", "", 0.25, Paarverteilung, Nanometer},
        {"x", "Kanal Rate", 2.5, Paarverteilung, Angstroem},
        {"x", "% K  y", 2.5, Strukturfaktor, Angstroem},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.kopf);
        const std::string x = textOfDouble(row.maximum, Dezimaltrenner::Punkt);
        const Messlesung lesung = liesMesskurve(row.kopf + ("\n0 0\n" + x) + " 3\n100 1\n", row.name);
        ASSERT_TRUE(lesung.kurve) << lesung.grund;
        EXPECT_EQ(lesung.kurve->art, row.art);
        EXPECT_EQ(lesung.kurve->einheit, row.einheit);
    }
}

} // namespace
} // namespace zerna
