#include "dokument/Dokumentdatei.h"

#include <cstdlib>

#include <gmock/gmock.h>

#include "core/Datei.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Groessen.h"
#include "support/RechnerTest.h"
#include "support/Zufallsdokument.h"

namespace zerna {
namespace {

struct DokumentdateiTest : RechnerTest {
    DokumentdateiTest()
    {
        addElements();
        Eingabe& eingabe = dokument.eingabe;
        eingabe.setAnzahl(2);
        eingabe.waehleElement(0, "Al");
        eingabe.waehleElement(1, "Cu");
        eingabe.waehleValenz(0, ValenzAndere);
        eingabe.setValenz(0, "z_Cu+1");
        const Variante variante{"Probe 1", eingabe, {}};
        dokument.vergleich = Vergleich{{variante}, 0};
    }

    Lesung read(const std::string& text) const { return lies(text, elements); }

    /// The document's file with the first occurrence of a text replaced.
    std::string with(const std::string& before, const std::string& after) const
    {
        std::string text = schreibe(dokument);
        const std::size_t place = text.find(before);
        EXPECT_NE(place, std::string::npos) << before;
        return text.replace(place, before.size(), after);
    }

    std::vector<std::string> differences(const Lesung& lesung) const
    {
        std::vector<std::string> lines;
        for (const Tabellenunterschied& unterschied : lesung.unterschiede)
            lines.push_back(unterschiedstext(unterschied, *lesung.dokument));
        return lines;
    }

    Dokument dokument{elements};
};

TEST_F(DokumentdateiTest, ReadsWhatItWrote)
{
    constexpr int Documents = 1000;
    constexpr int Checked = 100; // against the schema
    Zufallsdokument zufall(elements, 1);
    for (int i = 0; i < Documents; ++i) {
        SCOPED_TRACE(i);
        const Dokument written = zufall.naechstes();
        const std::string text = schreibe(written);
        const Lesung lesung = read(text);
        ASSERT_TRUE(lesung.dokument) << lesung.fehler.text() << text;
        ASSERT_EQ(*lesung.dokument, written) << text;
        ASSERT_EQ(schreibe(*lesung.dokument), text);
        ASSERT_TRUE(lesung.unterschiede.empty()) << differences(lesung).front();
        EXPECT_EQ(lesung.nurLesen, "");
        if (i < Checked)
            writeBytes(folder / std::to_string(i), text);
    }
    const std::string check = ZERNA_SCHEMA_CHECK " '" + folder.path().string() + "'";
    EXPECT_EQ(std::system(check.c_str()), 0) << "a file is not as docs/zerna.schema.json says";
}

TEST_F(DokumentdateiTest, SaysWhereAndWhyAFileIsBroken)
{
    struct Row {
        std::string before;
        std::string after;
        const char* error;
    };
    const std::vector<Row> rows{
        {"\"version\": 1,", "\"version\": 1", "Zeile 4, Spalte 5: Das ist kein gültiges JSON."},
        {"\"version\": 1,", "\"version\": 1,,", "Zeile 3, Spalte 18: Das ist kein gültiges JSON."},
        {"\"version\": 1,", "\"version\": +1,", "Zeile 3, Spalte 16: Das ist kein gültiges JSON."},
        {"Zerna-Legierung", "Legierung",
            "Zeile 1, Spalte 1: Das ist keine Zerna-Datei: Die Angabe \"format\": \"Zerna-Legierung\" fehlt."},
        {"\"titel\": \"\"", "\"titel\": 7", "Zeile 4, Spalte 14: \"titel\" muss ein Text sein."},
        {"\"titel\": \"\"", "\"titel\": \"\\ud800\"",
            "Zeile 4, Spalte 21: Die Ersatzdarstellung eines Zeichens (\\u…) ist unvollständig."},
        {"\"titel\": \"\"", "\"titel\": \"ö\xC3\"", "Zeile 4, Spalte 17: Hier steht kein gültiges UTF-8."},
        {"\"titel\": \"\"", "\"titel\": \"" + std::string(32768, 'x') + "\"",
            "Zeile 4, Spalte 14: Der Text hat mehr als 32767 Zeichen."},
        {"\"titel\": \"\"", "\"ü\": 1, \"ü\": 2, \"titel\": \"\"",
            "Zeile 4, Spalte 13: Der Schlüssel \"ü\" kommt zweimal vor."},
        {"\"bemerkung\": \"\",", "", "Zeile 1, Spalte 1: Hier fehlt die Angabe \"bemerkung\"."},
        {"\"anzahl\": 2", "\"anzahl\": 6", "Zeile 7, Spalte 19: \"anzahl\" muss eine ganze Zahl von 1 bis 5 sein."},
        {"\"anzahl\": 2", "\"anzahl\": 2.5", "Zeile 7, Spalte 19: \"anzahl\" muss eine ganze Zahl von 1 bis 5 sein."},
        {"\"anzahl\": 2", "\"anzahl\": 18446744073709551615",
            "Zeile 7, Spalte 19: \"anzahl\" muss eine ganze Zahl von 1 bis 5 sein."},
        {"\"anzahl\": 2", "\"anzahl\": 1e999", "Zeile 7, Spalte 23: Die Zahl ist zu groß."},
        {"\"wahl\": \"flüssig\"", "\"wahl\": \"fest\"", "Zeile 15, Spalte 29: \"fest\" ist hier nicht bekannt."},
        {"\"wahl\": \"Standard\"", "\"wahl\": \"g\"", "Zeile 35, Spalte 29: \"g\" ist hier nicht bekannt."},
        {"\"wert\": ", "\"wert\": 1e39, \"x\":",
            "Zeile 17, Spalte 29: \"wert\" muss eine Zahl von "
            "-3,40282346638529E+38 bis 3,40282346638529E+38 sein."},
        {"\"text\": \"7,997\"", "\"text\": \"2,7\"",
            "Zeile 32, Spalte 29: Das passt nicht zum Text \"2,7\"; für einen eigenen Wert \"wahl\" auf \"<andere>\" "
            "setzen."},
        {"\"inKraft\": \"1\"", "\"inKraft\": \"7\"",
            "Zeile 37, Spalte 32: Das passt nicht zum Text \"1\"; für einen eigenen Wert \"wahl\" auf \"<andere>\" "
            "setzen."},
        {"\"inKraft\": \"1\",\n                    \"wert\": 1", "\"inKraft\": \"1\", \"wert\": 2",
            "Zeile 37, Spalte 45: Das passt nicht zum Text \"1\"; für einen eigenen Wert \"wahl\" auf \"<andere>\" "
            "setzen."},
        {"\"bezug\": null", "\"bezug\": {\"zeile\": 1, \"masse\": null}",
            "Zeile 73, Spalte 40: \"masse\" muss eine Zahl von 0 bis 3,40282346638529E+38 sein."},
        {"\"bezug\": null", "\"bezug\": {\"zeile\": 1, \"masse\": -1}",
            "Zeile 73, Spalte 40: \"masse\" muss eine Zahl von 0 bis 3,40282346638529E+38 sein."},
        {"\"groesse\": 0", "\"groesse\": 99", "Zeile 77, Spalte 20: Eine Größe mit dieser Kennzahl gibt es nicht."},
        {"\"zoom\": 1.0", "\"zoom\": 1e9", "Zeile 83, Spalte 21: \"zoom\" muss eine Zahl von 0,5 bis 3 sein."},
        {"\"zoom\": 1.0", "\"zoom\": " + std::string(100, '['),
            "Zeile 83, Spalte 82: Die Datei ist zu tief verschachtelt."},
        {"\"referenz\": 1", "\"referenz\": 2",
            "Zeile 88, Spalte 21: \"referenz\" muss eine ganze Zahl von 1 bis 1 sein."},
        {"\"version\": 1,\n    \"titel\": \"\"", "\"version\": 2,\n    \"titel\": []",
            "Zeile 4, Spalte 14: \"titel\" muss ein Text sein; die Datei stammt von einer neueren Version von Zerna."},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.after);
        const Lesung lesung = read(with(row.before, row.after));
        EXPECT_FALSE(lesung.dokument);
        EXPECT_EQ(lesung.fehler.text(), row.error);
    }
    const std::string whole = schreibe(dokument);
    for (std::size_t length = 0; length < whole.size() - 2; length += 3)
        ASSERT_FALSE(read(whole.substr(0, length)).dokument) << length;
}

TEST_F(DokumentdateiTest, ComputesWithTheTextsThatItShows)
{
    Eingabe& eingabe = dokument.eingabe;
    eingabe.waehleDichte(0, AndereWahl);
    eingabe.setDichte(0, "9,9");
    struct Row {
        std::string before, after, dichte, valenz, shown;
        std::array<float, 4> values; // density and valence of the first row, at% of both
    };
    const std::vector<Row> rows{
        {"\"wert\": 9.9", "\"wert\": 2.7", "9,9", "2", "50", {9.9F, 2, 50, 50}},
        {"\"wert\": 9.9", "\"wert\": null", "9,9", "2", "50", {9.9F, 2, 50, 50}},
        {"\"text\": \"9,9\"", "\"text\": \"9,9 g\"", "9,9 g", "2", "50", {9.9F, 2, 50, 50}},
        {"\"inKraft\": \"2\"", "\"inKraft\": \"7\"", "9,9", "2", "50", {9.9F, 2, 50, 50}},
        {"\"text\": \"2\"", "\"text\": \"3\"", "9,9", "3", "50", {9.9F, 3, 50, 50}},
        {"\"text\": \"2\"", "\"text\": \"z_Cu*4\"", "9,9", "z_Cu*4", "50", {9.9F, 4, 50, 50}},
        {"\"prozent\": \"50\"", "\"prozent\": \"10\"", "9,9", "2", "90", {9.9F, 2, 10, 90}},
        {"\"prozent\": \"50\"", "\"prozent\": \"x\"", "9,9", "2", "50", {9.9F, 2, Unbekannt, 50}},
        {"\"rest\": \"50\"", "\"rest\": \"7\"", "9,9", "2", "50", {9.9F, 2, 50, 50}},
    };
    eingabe.setValenz(0, "2");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.after);
        const Lesung lesung = read(with(row.before, row.after));
        ASSERT_TRUE(lesung.dokument) << lesung.fehler.text();
        EXPECT_THAT(differences(lesung), testing::IsEmpty());
        const Eingabe& got = lesung.dokument->eingabe;
        EXPECT_EQ(got.zeile(0).dichte.text, row.dichte);
        EXPECT_EQ(got.zeile(0).valenz.text, row.valenz);
        EXPECT_EQ(got.zeile(1).prozent.text, row.shown);
        const Legierung alloy = got.legierung().value();
        const auto& all = alloy.komponenten();
        EXPECT_THAT((std::array{all[0].dichte, all[0].valenz, all[0].prozent, all[1].prozent}),
            testing::ElementsAreArray(row.values));
        const std::string written = schreibe(*lesung.dokument);
        EXPECT_EQ(schreibe(*read(written).dokument), written);
    }
    EXPECT_EQ(read(with("\"element\": \"Cu\"", "\"element\": \"Al\"")).fehler.text(),
        "Zeile 26, Spalte 13: Die Zeilen von \"Al\" müssen dieselbe Dichte und Valenz haben.");
    eingabe.setProzent(1, "7"); // does not count, but is still being typed
    EXPECT_EQ(*read(schreibe(dokument)).dokument, dokument);
}

TEST_F(DokumentdateiTest, ReadsADiagramThatCanBeShown)
{
    using enum Diagrammtyp;
    const auto wahl = [](Diagrammtyp typ, int groesse, int komponente, std::optional<int> andere = {}) {
        return Diagrammwahl{
            .typ = typ, .groesse = groesse, .andereGroesse = andere, .komponente = komponente, .aufloesung = 7};
    };
    const auto zweite = [](Diagrammwahl both, int groesse) {
        both.zweiteGroesse = groesse;
        return both;
    };
    struct Row {
        int rows;
        Diagrammwahl written, read;
    };
    const std::vector<Row> rows{
        {2, wahl(Ternaer, 5, 1), wahl(Konzentration, 5, 1)},
        {3, wahl(Ternaer, 5, 2), wahl(Ternaer, 5, 2)},
        {2, wahl(Konzentration, 5, 2), wahl(Konzentration, 5, 0)},
        {2, wahl(Konzentration, 11, 1), wahl(Konzentration, 0, 1)},
        {2, wahl(PSE, 11, 1), wahl(PSE, 11, 1)},
        {2, wahl(PSE, GroesseDichte, 1), wahl(PSE, 0, 1)},
        {2, wahl(PSE, 11, 1, GroesseDichte), wahl(PSE, 11, 1, GroesseDichte)},
        {2, wahl(PSE, 11, 1, 12), wahl(PSE, 11, 1)},
        {2, wahl(Konzentration, 5, 1, 11), wahl(Konzentration, 5, 1, 11)},
        {2, wahl(Konzentration, 5, 1, GroesseDichte), wahl(Konzentration, 5, 1)},
        {2, zweite(wahl(Konzentration, 5, 1), GroesseDichte), zweite(wahl(Konzentration, 5, 1), GroesseDichte)},
        {2, zweite(wahl(Konzentration, 5, 1), 11), wahl(Konzentration, 5, 1)},
    };
    for (const Row& row : rows) {
        dokument.eingabe.setAnzahl(row.rows);
        dokument.diagramm = row.written;
        const Dokument again = *read(schreibe(dokument)).dokument;
        EXPECT_EQ(again.diagramm, row.read) << schreibe(dokument);
        EXPECT_EQ(*again.fremd, "");
    }
}

TEST_F(DokumentdateiTest, KeepsCurvesAndRefusesOthers)
{
    EXPECT_THAT(schreibe(dokument), testing::Not(testing::HasSubstr("kurven")));
    dokument.kurven = std::vector<GehalteneKurve>(2, {"Al60Cu40", "Al", 8, Reihenart::Summe100, {1.5F, Unbekannt}});
    const std::string text = schreibe(dokument);
    const auto grund = [&](const std::string& old, const std::string& broken) {
        std::string file = text;
        return read(file.replace(file.find(old), old.size(), broken)).fehler.grund;
    };
    EXPECT_EQ(grund("1.5,", ""), "\"werte\" muss eine Liste von 101 Einträgen sein");
    EXPECT_EQ(grund("1.5", "1e39"), "Hier muss eine Zahl oder null stehen");
    EXPECT_EQ(grund("Summe 100", "Summe"), "\"Summe\" ist hier nicht bekannt");
    dokument.kurven = std::vector<GehalteneKurve>(7, dokument.kurven->front());
    EXPECT_EQ(read(schreibe(dokument)).fehler.grund, "\"kurven\" muss eine Liste von 0 bis 6 Einträgen sein");
}

TEST_F(DokumentdateiTest, KeepsWhatANewerProgramLeft)
{
    const std::string text = with("\"version\": 1", "\"version\": 2");
    EXPECT_THAT(read(text).nurLesen, testing::StartsWith("Die Datei stammt von einer neueren Version"));

    std::string foreign = text;
    int keys = 0;
    for (const char* const place :
        {"\"element\": ", "\"text\": ", "\"verlust\": ", "\"zoom\": ", "\"name\": ", "\"titel\": "}) {
        const std::size_t last = foreign.rfind(place);
        foreign.insert(last, "\"neu" + std::to_string(++keys) + "\": {\"a\": [1.5, \"ü\"]}, ");
    }
    const Lesung lesung = read(foreign);
    ASSERT_TRUE(lesung.dokument) << lesung.fehler.text();
    const std::string written = schreibe(*lesung.dokument);
    for (int key = 1; key <= keys; ++key)
        EXPECT_THAT(written, testing::HasSubstr("\"neu" + std::to_string(key) + "\": {"));
    EXPECT_EQ(schreibe(*read(written).dokument), written);
}

TEST_F(DokumentdateiTest, LimitsWhatAFileHolds)
{
    const auto error = [&](const std::string& foreign) {
        return read(with("\"version\"", "\"neu\": " + foreign + ", \"version\"")).fehler.grund;
    };
    std::string values = "[0";
    while (values.size() < MeistFremdes)
        values += ",0";
    EXPECT_EQ(error(values + "]"), "Die Datei hat zu viele Angaben");
    EXPECT_EQ(
        error('"' + std::string(MeistFremdes, 'x') + '"'), "Hier stehen mehr als 1 MB Angaben, die Zerna nicht kennt");
    EXPECT_EQ(error('"' + std::string(MeistFremdes - 100, 'x') + '"'), "");
    EXPECT_EQ(error('"' + std::string(GroessteDatei, 'x') + '"'), "Die Datei ist größer als 64 MB");

    dokument.titel = std::string(LaengstesFeld, 'x');
    dokument.bemerkung = std::string(LaengsteBemerkung, 'x');
    EXPECT_EQ(*read(schreibe(dokument)).dokument, dokument);
    dokument.bemerkung = std::string(GroessteDatei - LaengstesFeld - 4000, 'x');
    EXPECT_LE(schreibe(dokument).size(), GroessteDatei);
}

TEST_F(DokumentdateiTest, RefusesMeasuredCurvesThatAreNone)
{
    dokument.messkurven = std::vector<Messkurve>{
        {"Ni", Messart::Strukturfaktor, Messeinheit::Angstroem, {{{1, 0.1}, {2, 1e-7}, {2.5, -4}}}}};
    const std::vector<std::pair<std::pair<const char*, const char*>, const char*>> rows{
        {{"\"S(K)\"", "\"S(Q)\""}, "\"S(Q)\" ist hier nicht bekannt"},
        {{"\"x\": \"1 2", "\"x\": \"1  2"}, "\"\" ist kein Messwert"},
        {{"\"1 2 2.5\"", "\"1 2 2.5x\""}, "\"2.5x\" ist kein Messwert"},
        {{"\"1 2 2.5\"", "\"1 2 1e31\""}, "\"1e31\" ist kein Messwert"},
        {{"\"1 2 2.5\"", "\"1 2 1e400\""}, "\"1e400\" ist kein Messwert"},
        {{"\"1 2 2.5\"", "[1, 2, 2.5]"}, "\"x\" muss ein Text sein"},
        {{"\"1 2 2.5\"", "\"1 2 2\""}, "Die Zahlen in \"x\" müssen aufsteigen"},
        {{"\"1 2 2.5\"", "\"1 2\""}, "\"x\" und \"y\" müssen gleich viele Zahlen haben, mindestens drei"},
        {{"0.1 1E-7 -4", "0.1 1E-7"}, "\"x\" und \"y\" müssen gleich viele Zahlen haben, mindestens drei"},
        {{"\"messkurven\": [", "\"messkurven\": [7, "}, "Eine Messkurve muss ein Objekt sein"},
    };
    for (const auto& [change, reason] : rows)
        EXPECT_EQ(read(with(change.first, change.second)).fehler.grund, reason);
    EXPECT_EQ(*read(with("\"1 2 2.5\"", "\"1 2 2.50\"")).dokument, dokument);
    dokument.messkurven = std::vector<Messkurve>(MeisteMesskurven + 1, dokument.messkurven->front());
    EXPECT_EQ(read(schreibe(dokument)).fehler.grund, "\"messkurven\" muss eine Liste von 0 bis 20 Einträgen sein");
}

TEST_F(DokumentdateiTest, TellsDifferencesToTheTableForKeepingOrTakingOver)
{
    const std::string text = schreibe(dokument);
    const auto alloy = [](const Dokument& read) { return *read.eingabe.legierung(); };
    const Legierung before = alloy(dokument);
    elements.Item("Cu")->setDichte_Fluessig(8.5F);
    elements.Item("Cu")->setValenz(2);
    const Lesung lesung = read(text);
    ASSERT_TRUE(lesung.dokument);
    EXPECT_THAT(differences(lesung),
        testing::ElementsAre("Zeile 1: Valenz (z_Cu+1) von Al: 2 in der Datei, 3 hier",
            "Zeile 2: Dichte (flüssig) von Cu: 7,997 in der Datei, 8,5 hier",
            "Zeile 2: Valenz (Standard) von Cu: 1 in der Datei, 2 hier",
            "Variante \"Probe 1\", Zeile 1: Valenz (z_Cu+1) von Al: 2 in der Datei, 3 hier",
            "Variante \"Probe 1\", Zeile 2: Dichte (flüssig) von Cu: 7,997 in der Datei, 8,5 hier",
            "Variante \"Probe 1\", Zeile 2: Valenz (Standard) von Cu: 1 in der Datei, 2 hier"));

    const auto values = [&](const Dokument& read) {
        std::vector<float> found;
        for (const Eingabe& eingabe : {read.eingabe, read.vergleich->varianten.front().eingabe}) {
            const auto legierung = eingabe.legierung();
            for (const Legierungskomponente& komponente : legierung->komponenten())
                found.insert(found.end(), {komponente.dichte, komponente.valenz});
        }
        return found;
    };
    const float al = before.komponenten().front().dichte;
    Dokument kept = *lesung.dokument;
    behalteDateiwerte(kept, lesung.unterschiede, elements);
    EXPECT_THAT(values(kept), testing::ElementsAre(al, 2, 7.997F, 1, al, 2, 7.997F, 1));
    EXPECT_EQ(kept.eingabe.zeile(1).dichtewahl, AndereWahl);
    EXPECT_TRUE(read(schreibe(kept)).unterschiede.empty());

    Dokument taken = *lesung.dokument;
    uebernehmeTabelle(taken, lesung.unterschiede, elements);
    EXPECT_THAT(values(taken), testing::ElementsAre(al, 3, 8.5F, 2, al, 3, 8.5F, 2));
    EXPECT_EQ(taken.eingabe.zeile(1).dichtewahl, "flüssig");
    EXPECT_TRUE(read(schreibe(taken)).unterschiede.empty());
}

TEST_F(DokumentdateiTest, TellsOfMassPercentThatComeToOtherAtomPercent)
{
    EXPECT_EQ(schreibe(dokument).find("atommasse"), std::string::npos);
    dokument.eingabe.setEinheit(Anteilseinheit::Masse);
    dokument.eingabe.setProzent(0, "29,8");
    const std::string text = schreibe(dokument);
    EXPECT_TRUE(read(text).unterschiede.empty());
    const float before = dokument.eingabe.prozentInKraft(0).wert;
    elements.Item("Cu")->setMasse(2 * elements.Item("Cu")->Masse());
    const Lesung lesung = read(text);
    const float here = lesung.dokument->eingabe.prozentInKraft(0).wert;
    EXPECT_NEAR(before, 50, 0.01);
    EXPECT_NEAR(here, 66.67, 0.01);
    EXPECT_THAT(differences(lesung),
        testing::ElementsAre("Zeile 1: at% von Al: " + textWithDigits(before, 7) + " in der Datei, "
                + textWithDigits(here, 7) + " hier (andere Atommassen)",
            testing::StartsWith("Zeile 2: at% von Cu: 50,0")));
    Dokument kept = *lesung.dokument;
    behalteDateiwerte(kept, lesung.unterschiede, elements);
    EXPECT_FLOAT_EQ(kept.eingabe.prozentInKraft(0).wert, before);
    EXPECT_EQ(kept.eingabe.einheit(), Anteilseinheit::Atom);
    Dokument taken = *lesung.dokument;
    uebernehmeTabelle(taken, lesung.unterschiede, elements);
    EXPECT_EQ(taken, *lesung.dokument);
    EXPECT_TRUE(read(schreibe(taken)).unterschiede.empty());
}

TEST_F(DokumentdateiTest, TellsOfElementsAndChoicesThatTheTableLacks)
{
    const Lesung lesung = read(with("\"element\": \"Cu\"", "\"element\": \"Qx\""));
    ASSERT_TRUE(lesung.dokument);
    EXPECT_EQ(lesung.nurLesen, "Die Elementtabelle kennt nicht: Qx. Die Zeilen damit sind leer.");
    EXPECT_EQ(lesung.dokument->eingabe.zeile(1).element, nullptr);
    EXPECT_EQ(lesung.dokument->eingabe.zeile(1).prozent.text, "50");

    Lesung lacking = read(with("\"wahl\": \"flüssig\"", "\"wahl\": \"amorph\""));
    ASSERT_EQ(lacking.unterschiede.size(), 1U);
    uebernehmeTabelle(*lacking.dokument, lacking.unterschiede, elements);
    EXPECT_EQ(*lacking.dokument, dokument);
}

} // namespace
} // namespace zerna
