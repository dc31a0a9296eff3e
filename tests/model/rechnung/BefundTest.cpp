#include "model/EingabeFixture.h"
#include "model/rechnung/Ergebnislage.h"

namespace zerna {

/// The alloy was computed; then it is edited.
struct BefundTest : EingabeFixture {
    /// As the window hands an alloy over.
    Ergebnislage lage()
    {
        if (eingabe.istVollstaendig()) {
            gerechnet = eingabe;
            calc.Legierung_Setzen(Legierung(eingabe.legierung().value()).komponenten());
        }
        return ergebnislage(eingabe, gerechnet, calc);
    }

    Eingabe gerechnet{elements};
};

TEST_F(BefundTest, EachFaultIsNamedWithItsPlaceAndWhatItMeansForTheResults)
{
    using enum Eingabeort;
    const Eingabe healthy = eingabe;
    for (const auto& [schritt, ort, zeile, expected, fehler] :
        {
            std::tuple(prozent(0, "60"), Prozent, 0, "", false),
            {prozent(0, ""), Prozent, 0,
                "Komponente 1 (Al): at% fehlt. Eine Zahl eintragen. Die Ergebnisse gehören zu Al 50, Cu 50 at%.", true},
            {prozent(0, "6x"), Prozent, 0,
                "Komponente 1 (Al): at%: Keine gültige Zahl (Typen unverträglich). Ziffern mit", true},
            {prozent(0, "120"), Prozent, 0,
                "Komponente 1 (Al): Mehr als 100 at%. Ohne die letzte Komponente ergeben sie zusammen 120 at%.", false},
            {prozent(0, "-5"), Prozent, 0, "Komponente 1 (Al): Weniger als 0 at%.", false},
            {prozent(1, "7"), Prozent, 1, "Komponente 2 (Cu): Hier steht der Rest", false},
            {dichte(1, "0"), Dichte, 1, "Komponente 2 (Cu): Die Dichte ist 0. ", true},
            {dichte(1, "-1"), Dichte, 1, "Komponente 2 (Cu): Die Dichte ist negativ. ", true},
            {dichte(1, ""), Dichte, 1,
                "Komponente 2 (Cu): Dichte fehlt. Eine Zahl eintragen. Gerechnet wird mit 0 g/cm³.", true},
            {dichte(1, "<unbekannt>"), Dichte, 1, "Komponente 2 (Cu): Die Dichte ist nicht bekannt.", true},
            {valenz(0, "10^39"), Valenz, 0, "Komponente 1 (Al): Valenz: Der Wert ist zu groß", true},
            {valenz(0, "<unbekannt>"), Valenz, 0, "Komponente 1 (Al): Die Valenz ist nicht bekannt.", true},
            {valenz(0, "0-3"), Valenz, 0, "Komponente 1 (Al): Die mittlere Valenz ist nicht positiv (-1 e/a)", true},
            {element(0, "At"), Dichte, 0, "Komponente 1 (At): Die Dichte ist 0. ", true},
        }) {
        SCOPED_TRACE(expected);
        eingabe = healthy;
        EXPECT_EQ(lage().text(), "");
        schritt(eingabe);
        const Ergebnislage state = lage();
        EXPECT_EQ(state.text().substr(0, std::string_view(expected).size()), expected);
        EXPECT_EQ(state.text().empty(), *expected == '\0');
        EXPECT_EQ(state.istFehler(), fehler);
        EXPECT_EQ(state.kopierfrage().empty() && state.speicherfrage().empty(), !fehler);
        EXPECT_EQ(state.zaehlt(ergebniszeile(7)), !fehler);
        EXPECT_TRUE(!state.befund || (state.befund->zeile == zeile && state.befund->ort == ort));
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
