#include "bild/Kurvenansicht.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zerna {

namespace {

constexpr double Gap = std::numeric_limits<double>::quiet_NaN();

/// Two quantities over the at% of Al, the first one with a gap from 40 to 60, and the alloy as a sign.
Kurvenbild zweiGroessen()
{
    Kurvenbild bild;
    bild.x = {"", {0, 100}, "at% Al"};
    bild.y = {"", {-10, 10}, "eV"};
    bild.rechts = Achse{"", {0, 4}, "g/cm³"};
    bild.kurven = {{"EF", {{0, -5}, {20, 0}, {40, 5}, {50, Gap}, {60, 5}, {100, 5}}, {}},
        {"Dichte (rechte Achse)", {{0, 1}, {100, 3}}, {}}, {"Legierung", {{30, 9}}, {}}};
    bild.kurven[1].rechts = true;
    bild.kurven[2].linie = Linienart::Keine;
    bild.kurven[2].zeichen = Punktzeichen::Kreis;
    return bild;
}

Textmasse masse(const Schrift&)
{
    return {[](std::string_view text) { return 7.0 * static_cast<double>(text.size()); }, 16};
}

Kurvenlayout layoutOf(const Kurvenbild& bild, const Kurvenansicht& ansicht = {})
{
    return layOut(bild, 600, 400, {}, masse, ansicht.ausschnitt());
}

} // namespace

TEST(KurvenablesungTest, TheNearestCurveIsReadOutWithItsValueThere)
{
    const Kurvenbild bild = zweiGroessen();
    const Kurvenlayout layout = layoutOf(bild);
    const struct {
        const char* name;
        double x, y; // of the mouse, on the left axis
        const char* text;
    } rows[] = {
        {"between points", 10, -1, "EF: 10,00 at% Al - -2,5 E+00 eV; Dichte: 1,2 g/cm³"},
        {"0 is a value", 20, 2, "EF: 20,00 at% Al - 0 eV; Dichte: 1,4 g/cm³"},
        {"the other quantity", 80, 3, "Dichte: 80,00 at% Al - 2,6 g/cm³; EF: 5 eV"},
        {"a gap", 50, 5, "Dichte: 50,00 at% Al - 2 g/cm³"},
        {"a sign close by", 30.5, 8.8, "Legierung: 30,00 at% Al - 9 eV; Dichte: 1,6 g/cm³"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto punkt = punktBei(bild, layout, layout.links.punkt(row.x, row.y));
        ASSERT_TRUE(punkt);
        EXPECT_EQ(ablesung(bild, *punkt, {0, 100}), row.text);
    }
    Kurvenbild single = bild;
    single.kurven[0].reihe = 1;
    EXPECT_EQ(ablesung(single, {0, 20, 0}, {0, 100}), "EF: 20,00 at% Al - 0 eV") << "the density is another series'";
    single.rechts.reset();
    single.kurven.resize(1);
    const auto inGap = punktBei(single, layout, layout.links.punkt(50, 5));
    EXPECT_EQ(ablesung(single, inGap.value(), {0, 100}), "50,00 at% Al - unbekannt");
    EXPECT_EQ(ablesung(single, {0, 20.12345, 0}, {20, 20.1}), "20,1235 at% Al - 0 eV") << "as many decimals as pixels";
}

TEST(KurvenansichtTest, CrosshairStepsOverGapsChangesCurvesAndTheViewFollows)
{
    const Kurvenbild bild = zweiGroessen();
    Kurvenansicht ansicht;
    const auto x = [&] { return ansicht.kreuz()->x; };
    ansicht.gehe(bild, layoutOf(bild), 1);
    EXPECT_EQ(x(), 0) << "without a crosshair to the first point";
    ansicht.gehe(bild, layoutOf(bild), 3);
    EXPECT_EQ(x(), 60) << "over the gap";
    ansicht.gehe(bild, layoutOf(bild), -1);
    EXPECT_EQ(x(), 40);
    ansicht.wechsle(bild, layoutOf(bild), 1);
    EXPECT_EQ(std::pair(ansicht.kreuz()->kurve, ansicht.kreuz()->y), std::pair(std::size_t(1), 1.8));
    ansicht.wechsle(bild, layoutOf(bild), 1);
    EXPECT_EQ(std::pair(ansicht.kreuz()->kurve, x()), std::pair(std::size_t(2), 30.0)) << "its only point";
    ansicht.wechsle(bild, layoutOf(bild), 1);
    EXPECT_EQ(std::pair(ansicht.kreuz()->kurve, x()), std::pair(std::size_t(0), 30.0));
    ansicht.zoome(bild, layoutOf(bild), {0, 0}, 5);
    ansicht.geheAnsEnde(bild, layoutOf(bild, ansicht), true);
    EXPECT_EQ(x(), 20) << "the last point that is shown";
    ansicht.gehe(bild, layoutOf(bild, ansicht), 1);
    EXPECT_NEAR(ansicht.ausschnitt()->x.max, 40, 1e-9);
    for (int i = 0; i < 100; ++i)
        ansicht.zoome(bild, layoutOf(bild, ansicht), {100, 100}, 10);
    EXPECT_FALSE(layoutOf(bild, ansicht).kerntexte.empty()) << "there is a limit";
}

TEST(KurvenansichtTest, ZoomedOutAgainIsNotZoomed)
{
    Kurvenbild bild = zweiGroessen();
    for (int i = 1; i < 200; ++i) {
        bild.x.bereich = {0.1 * i, 0.1 * i + 1.0 / i};
        bild.y.bereich = {-1.0 / i, 0.7 * i};
        Kurvenansicht ansicht;
        ansicht.zoome(bild, layoutOf(bild), {10, 10}, 1);
        EXPECT_TRUE(ansicht.ausschnitt());
        ansicht.zoome(bild, layoutOf(bild, ansicht), {200, 100}, -3);
        EXPECT_FALSE(ansicht.ausschnitt()) << i;
    }
}

TEST(KurvenansichtTest, APictureWithoutRoomOrCurvesIsLeftAlone)
{
    const Kurvenbild bild = zweiGroessen();
    const Kurvenlayout none = layOut(bild, 20, 10, {}, masse, {});
    Kurvenansicht ansicht;
    ansicht.zoome(bild, none, {5, 5}, 1);
    EXPECT_FALSE(ansicht.zoomeAuf(bild, none, {0, 0}, {20, 10}) || ansicht.ausschnitt());
    EXPECT_FALSE(ansicht.gehe(Kurvenbild(), none, 1)) << "no crosshair";
}

TEST(KurvenansichtTest, WhatIsShownStaysWhileItMeetsTheAxes)
{
    Kurvenbild bild = zweiGroessen();
    Kurvenansicht ansicht;
    ansicht.zoomeAuf(bild, layoutOf(bild), {0, 0}, {270, 185});
    const auto before = ansicht.ausschnitt();
    ASSERT_TRUE(before);
    bild.kurven[0].punkte[0].y = -6;
    ansicht.passeAn(bild);
    EXPECT_EQ(ansicht.ausschnitt(), before);
    bild.y.bereich = {100, 200};
    ansicht.passeAn(bild);
    EXPECT_FALSE(ansicht.ausschnitt());
}

} // namespace zerna
