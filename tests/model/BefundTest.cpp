#include "core/ElementCsv.h"
#include "model/Ergebnislage.h"
#include "support/FilesTest.h"

namespace zerna {

/// Aluminium and copper, 50 at% each, computed; then the alloy is edited.
struct BefundTest : FilesTest {
    BefundTest()
    {
        for (const ElementRecord& record : readElementCsv(bytesOf(ZERNA_DATA_DIR "/elemente.csv"))) {
            elements.Add(std::make_shared<clsElement>(files, boxes), record.symbol);
            elements.Item(record.symbol)->setRecord(record);
        }
        eingabe.setAnzahl(2);
        eingabe.waehleElement(0, "Al");
        eingabe.waehleElement(1, "Cu");
    }

    void edit(Eingabeort ort, int zeile, const char* text)
    {
        if (ort == Eingabeort::Element) {
            eingabe.waehleElement(zeile, text);
        } else if (ort == Eingabeort::Prozent) {
            eingabe.setProzent(zeile, text);
        } else if (ort == Eingabeort::Dichte) {
            eingabe.waehleDichte(zeile, AndereWahl);
            eingabe.setDichte(zeile, text);
        } else {
            eingabe.waehleValenz(zeile, ValenzAndere);
            eingabe.setValenz(zeile, text);
        }
    }

    /// As the window hands an alloy over.
    Ergebnislage lage()
    {
        if (eingabe.istVollstaendig()) {
            gerechnet = eingabe;
            calc.Legierung_Setzen(Legierung(eingabe.legierung().value()).komponenten());
        }
        return ergebnislage(eingabe, gerechnet, calc);
    }

    ElementCollection elements;
    clsParser parser{elements, boxes};
    int count = 2;
    clsCalc calc{elements, count, parser};
    Eingabe eingabe{elements};
    Eingabe gerechnet{elements};
};

TEST_F(BefundTest, EachFaultIsNamedWithItsPlaceAndWhatItMeansForTheResults)
{
    using enum Eingabeort;
    struct Row {
        Eingabeort ort;
        int zeile;
        const char* text;
        const char* expected; // the beginning of the line
        bool fehler;
    };
    const Eingabe healthy = eingabe;
    for (const auto& [ort, zeile, text, expected, fehler] :
        {
            Row{Prozent, 0, "60", "", false},
            {Prozent, 0, "", "Komponente 1 (Al): at% fehlt. Die Ergebnisse gehören zu Al 50, Cu 50 at%.", true},
            {Prozent, 0, "6x", "Komponente 1 (Al): at%: Keine gültige Zahl (Typen unverträglich). Die Ergebnisse",
                true},
            {Prozent, 0, "120",
                "Komponente 1 (Al): Mehr als 100 at%. Ohne die letzte Komponente ergeben sie zusammen 120 at%.", false},
            {Prozent, 0, "-5", "Komponente 1 (Al): Weniger als 0 at%.", false},
            {Prozent, 1, "7", "Komponente 2 (Cu): Hier steht der Rest", false},
            {Dichte, 1, "0", "Komponente 2 (Cu): Die Dichte ist 0. ", true},
            {Dichte, 1, "-1", "Komponente 2 (Cu): Die Dichte ist negativ. ", true},
            {Dichte, 1, "", "Komponente 2 (Cu): Dichte fehlt. Eine Zahl eintragen. Gerechnet wird mit 0 g/cm³.", true},
            {Dichte, 1, "<unbekannt>", "Komponente 2 (Cu): Die Dichte ist nicht bekannt.", true},
            {Valenz, 0, "1e39", "Komponente 1 (Al): Valenz: Der Wert ist zu groß", true},
            {Valenz, 0, "10^39", "Komponente 1 (Al): Valenz: Der Wert ist zu groß", true},
            {Valenz, 0, "<unbekannt>", "Komponente 1 (Al): Die Valenz ist nicht bekannt.", true},
            {Valenz, 0, "0-3", "Komponente 1 (Al): Die mittlere Valenz ist nicht positiv (-1 e/a)", true},
            {Element, 0, "At", "Komponente 1 (At): Die Dichte ist 0. ", true},
        }) {
        SCOPED_TRACE(text);
        eingabe = healthy;
        EXPECT_EQ(lage().text(), "");
        edit(ort, zeile, text);
        const Ergebnislage state = lage();
        EXPECT_EQ(state.text().substr(0, std::string_view(expected).size()), expected);
        EXPECT_EQ(state.text().empty(), *expected == '\0');
        EXPECT_EQ(state.istFehler(), fehler);
        EXPECT_EQ(state.kopierfrage().empty() && state.speicherfrage().empty(), !fehler);
        EXPECT_EQ(state.zaehlt(ergebniszeile(7)), !fehler);
        EXPECT_TRUE(
            !state.befund || (state.befund->zeile == zeile && state.befund->ort == (ort == Element ? Dichte : ort)));
    }
    eingabe = healthy;
    eingabe.setAnzahl(3);
    EXPECT_EQ(wichtigster(befunde(eingabe))->ort, Element) << "a row without one";
}

TEST_F(BefundTest, TypedValuesAreSaidToBeTyped)
{
    Ergebnislage state = lage();
    state.getippt = "2 kF";
    state.kf2Getippt = true;
    EXPECT_EQ(state.text(), "2 kF: eingetippt, gilt bis zur nächsten Änderung. Zurück zur Zusammensetzung.");
    EXPECT_TRUE(state.kopierfrage().empty());
    EXPECT_TRUE(state.speicherfrage().ends_with("Eingetippt: 2 kF.")) << state.speicherfrage();
    for (const Groesse& zeile : ergebniszeilen()) {
        const bool follows = zeile.zeile >= 8 && zeile.zeile <= 13 && zeile.zeile != 11;
        EXPECT_EQ(state.zaehlt(zeile), follows) << zeile.beschriftung;
    }
    state.tippfehler = "2 kF fehlt.";
    EXPECT_TRUE(state.istFehler() && !state.kopierfrage().empty());
}

} // namespace zerna
