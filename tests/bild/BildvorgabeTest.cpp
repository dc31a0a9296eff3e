#include "bild/Bildvorgabe.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "bild/Dezimaltext.h"
#include "bild/Kurvenlayout.h"
#include "support/FakeServices.h"

namespace zerna {

TEST(BildvorgabeTest, NumbersHaveLimitsAndSayThem)
{
    const struct {
        std::size_t mass;
        const char* text;
        std::optional<double> value;
    } rows[] = {
        {0, "85", 85},
        {0, " 85,5 ", 85.5},
        {0, "85.5", 85.5},
        {0, "0", {}},
        {0, "10000", {}},
        {0, "abc", {}},
        {0, "", {}},
        {0, "1e999", {}},
        {0, "nan", {}},
        {1, "20", 20},
        {1, "19,99", {}},
        {2, "8", 8},
        {2, "100", {}},
        {3, "0,1", 0.1},
        {3, "0", {}},
        {4, "1200", 1200},
        {4, "1201", {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(masszahl(bildmasse()[row.mass], row.text), row.value) << row.mass << " " << row.text;
    EXPECT_EQ(erwartung(bildmasse()[0]), "erwartet wird eine Zahl von 20 bis 500 mm");
    EXPECT_EQ(erwartung(bildmasse()[3]), "erwartet wird eine Zahl von 0,1 bis 6 pt");
    Bildvorgabe vorgabe{.breite = 500, .hoehe = 500, .aufloesung = 500};
    EXPECT_EQ(zuGross(vorgabe), "");
    vorgabe.aufloesung = 1200;
    EXPECT_EQ(
        zuGross(vorgabe), "Bei 1200 dpi hätte das Bild 559 Millionen Pixel, höchstens 100 Millionen sind möglich.");
}

TEST(BildvorgabeTest, IsRememberedAndWhatCannotBeUsedIsTheDefault)
{
    FakeSettings store;
    Settings settings(store, "KoltZerna");
    EXPECT_EQ(gemerkteBildvorgabe(settings), Bildvorgabe());
    const Bildvorgabe other{
        85, 60.5, "Serif", 8, 0.75, 600, true, false, false, false, Dezimaltrenner::Punkt, Bildart::PDF};
    merkeBildvorgabe(settings, other);
    EXPECT_EQ(gemerkteBildvorgabe(Settings(store, "KoltZerna")), other);
    for (const char* const key : {"Bild_Breite", "Bild_Schriftgroesse", "Bild_Art", "Bild_Dezimal", "Bild_Titel"})
        store[key] = "?";
    Bildvorgabe read = other;
    read.breite = Bildvorgabe().breite;
    read.schriftgroesse = Bildvorgabe().schriftgroesse;
    read.art = Bildart::PNG;
    read.dezimal = Dezimaltrenner::Komma;
    EXPECT_EQ(gemerkteBildvorgabe(Settings(store, "KoltZerna")), read);
}

TEST(BildvorgabeTest, LengthsBecomePixelsOfTheLayout)
{
    EXPECT_DOUBLE_EQ(pixelAusMillimeter(25.4), 96);
    EXPECT_DOUBLE_EQ(stilNach({.linienbreite = 0.75}).linienbreite, 1);
    EXPECT_TRUE(stilNach({}).rundeTeilung) << "of figures";
    EXPECT_FALSE(Bildstil().rundeTeilung) << "of the screen";
}

TEST(DezimaltextTest, NumbersInTextsGetTheSeparatorAndListsKeepTheirCommas)
{
    EXPECT_EQ(
        mitDezimal("Al60,5Cu: 2,377 g/cm³, z = 3, 1,5", Dezimaltrenner::Punkt), "Al60.5Cu: 2.377 g/cm³, z = 3, 1.5");
    EXPECT_EQ(mitDezimal("0,5", Dezimaltrenner::Komma), "0,5");
    EXPECT_EQ(mitDezimal(",", Dezimaltrenner::Punkt), ",");
    Kurvenbild bild;
    bild.untertitel = "Al: 2,377 g/cm³, z = 3";
    bild.y.bereich = {-1, 1};
    bild.x.bereich = {0, 100};
    const auto masse = [](const Schrift&) {
        return Textmasse{[](std::string_view text) { return 7.0 * static_cast<double>(text.size()); }, 16};
    };
    const auto texte = layOut(bild, 600, 400, {.dezimal = Dezimaltrenner::Punkt}, masse).texte;
    EXPECT_TRUE(
        std::ranges::any_of(texte, [](const Textstelle& stelle) { return stelle.text == "Al: 2.377 g/cm³, z = 3"; }));
}

} // namespace zerna
