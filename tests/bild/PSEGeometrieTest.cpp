#include "bild/PSEGeometrie.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "bild/Textumbruch.h"
#include "core/Unbekannt.h"

namespace zerna {

namespace {

/// Elements 1, 2, … with 10 pixels per atomic number and 100 per division, so that (0, 0) is pixel (250, 1100).
Elementdiagramm diagramm(std::vector<float> values)
{
    Elementdiagramm diagramm;
    diagramm.reihe.titel = "Größe [eV]";
    for (std::size_t i = 0; i < values.size(); ++i) {
        diagramm.reihe.x.push_back(static_cast<float>(i + 1));
        diagramm.elemente.push_back(
            {.symbol = std::string(1, static_cast<char>('A' + i)), .name = {}, .luecke = {}, .kristallineLuecke = {}});
    }
    diagramm.reihe.y = std::move(values);
    return diagramm;
}

PSEBild layOut(const Elementdiagramm& diagramm, const PSEAnsicht& ansicht, double labelHeight = 60,
    const Bildstil& stil = {}, int height = 1300)
{
    const auto area = static_cast<int>(diagramm.reihe.x.size() + 30) * 10;
    const auto width = [](std::string_view text) {
        return 6.0 * static_cast<double>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
    };
    return layOutPSE(diagramm, ansicht, stil, area, height, {width, labelHeight}, width);
}

PSEBild layOut(std::vector<float> values, double labelHeight = 60)
{
    return layOut(diagramm(std::move(values)), {}, labelHeight);
}

std::string textsOf(const std::vector<Schriftzug>& texts)
{
    std::string all;
    for (const Schriftzug& text : texts)
        all += text.text + '|';
    return all;
}

/// Three elements at both densities, the second one in the alloy.
Elementdiagramm both()
{
    Elementdiagramm both = diagramm({0, 5, 10});
    both.titel = "Größe [eV] der Elemente";
    both.kristallin = {{}, both.reihe.x, {0, 8, 20}};
    both.elemente[1].inLegierung = true;
    return both;
}

} // namespace

TEST(PSEGeometrieTest, RangesAreRoundedOutwards)
{
    EXPECT_EQ(gerundeterBereich({0.25, 17.5}), (Bereich{0, 20})) << "to tens";
    EXPECT_EQ(gerundeterBereich({95, 105}), (Bereich{90, 110})) << "exactly ten wide";
    EXPECT_EQ(gerundeterBereich({-20.5, -9}), (Bereich{-25, -5})) << "to halves of it";
}

TEST(PSEGeometrieTest, MissingValuesBreakTheCurve)
{
    const PSEBild bild = layOut({0, Unbekannt, 4, 10, Unbekannt});
    EXPECT_EQ(bild.kurve.stuecke, (std::vector<std::vector<Punkt>>{{{260, 1100}}, {{280, 700}, {290, 100}}}));
    EXPECT_EQ(nearestElement(bild, 274), 1U) << "the gap can be pointed at";
    EXPECT_EQ(nearestElement(bild, 900), 4U) << "right of all";
    // Intended: the first value counts for the range even when it is missing.
    EXPECT_EQ(bereichMitErstemWert({Unbekannt, 7}).min, Unbekannt);
    EXPECT_EQ(layOut({Unbekannt, 7}).kurve.stuecke.size(), 1U);
    EXPECT_FALSE(nearestElement(layOut({}), 0));
}

TEST(PSEGeometrieTest, WideLabelsMoveTheScale)
{
    const Elementdiagramm narrow = diagramm({0, 1});
    const auto width = [](std::string_view text) { return 60.0 * static_cast<double>(text.size()); };
    const PSEBild bild = layOutPSE(narrow, {}, {}, 200, 1300, {width, 10}, width);
    EXPECT_EQ(bild.feld.left, 50) << "but not for ever";
    EXPECT_LT(bild.labelRoom, bild.widestLabel);
    EXPECT_EQ(layOut(narrow, {}).feld.left, 0) << "the given scale";
}

TEST(PSEGeometrieTest, TitleAndLegendTakeStripsWhereThereIsHeight)
{
    const struct {
        const char* name;
        Bildstil stil;
        int height;
        double top;
        std::size_t entries;
    } rows[] = {{"room for all", {}, 500, 24 + 24 * 2, 3}, {"no title", {.titel = false}, 500, 24 * 2, 3},
        {"no legend", {.legende = false}, 500, 24, 0}, {"too low", {}, 200, 0, 0}};
    for (const auto& row : rows) {
        const PSEBild bild = layOut(both(), {.kristallin = true}, 20, row.stil, row.height);
        EXPECT_EQ(std::tuple(bild.feld.top, bild.legende.size()), std::tuple(row.top, row.entries)) << row.name;
        EXPECT_EQ(bild.feld.top + bild.feld.height, row.height) << row.name;
    }
}

TEST(PSEGeometrieTest, BothDensitiesAndTheAlloyAreShown)
{
    const PSEBild bild = layOut(both(), {.kristallin = true}, 20);
    EXPECT_EQ(bild.kristallin.punkte.at(2)->y, bild.lines.back().from.y) << "both series count for the range";
    EXPECT_EQ(bild.legierung.size(), 2U);
    EXPECT_EQ(textsOf(bild.legierungssymbole), "B|");
    EXPECT_EQ(textsOf(bild.symbole), "C|A|");
    EXPECT_EQ(textsOf(layOut(both(), {.symbole = false}, 20).symbole), "");
}

TEST(PSEGeometrieTest, EveryDivisionThatHasRoomIsLabelled)
{
    const struct {
        const char* name;
        std::vector<float> values;
        double height;
        const char* texts;
        Bildstil stil = {};
    } rows[] = {
        {"room for every second", {0, 10}, 120, "0|OZ|0|2|4|6|8|10|"},
        {"negative", {-0.375F, 0.375F}, 200, "0|OZ|−4·10⁻¹|−2,4·10⁻¹|−8·10⁻²|0,08|0,24|0,4|"},
        {"zero despite rounding, the topmost has no room", {-0.375F, 0.375F}, 500, "−4·10⁻¹|0|"},
        {"one value", {5, 5}, 60, "0|OZ|5|"},
        {"no value", {}, 60, "0|OZ|0|"},
        {"no single is as low as the range", {Unbekannt, 1}, 400, "−2,5·10³⁸|−5·10³⁷|"},
        {"round values", {0, 7.5F}, 20, "0|OZ|0|1|2|3|4|5|6|7|8|", {.rundeTeilung = true}},
        {"fewer large letters", {0, 7500}, 100, "0|OZ|0|2000|4000|6000|8000|", {.rundeTeilung = true}},
        {"point", {0, 1}, 200, "0|OZ|0|0.2|0.4|0.6|0.8|1|", {.dezimal = Dezimaltrenner::Punkt}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(textsOf(layOut(diagramm(row.values), {}, row.height, row.stil).labels), row.texts) << row.name;
}

TEST(PSEGeometrieTest, LongTextsKeepTheirUnit)
{
    Elementdiagramm large = diagramm({0, 75000});
    large.einheit = "meV"; // what the numbers are in counts where the title is not the given one
    EXPECT_EQ(layOut(large, {}, 20, {.rundeTeilung = true}).achsentitel.text, "Größe [10⁴ meV]");
    EXPECT_EQ(layOut(large, {}, 20).achsentitel.text, "Größe [eV]");

    const auto width = [](std::string_view text) { return static_cast<double>(text.size()); };
    EXPECT_EQ(gekuerztMitEinheit("Dichte [g/cm³]", 20, width), "Dichte [g/cm³]");
    EXPECT_EQ(gekuerztMitEinheit("Größendichte [eV]", 12, width), "Grö… [eV]");
    EXPECT_EQ(gekuerztMitEinheit("Dichte [eV]", 5, width), "");
    EXPECT_EQ(gekuerztMitEinheit("Volumen [l] (Zahl in m)", 22, width), "Vol… [l] (Zahl in m)");
}

TEST(PSEGeometrieTest, SymbolsCoverNoLineAndNoOtherSymbol)
{
    const Rechteck field{0, 0, 100, 100};
    const std::vector<Symbolwunsch> wishes{{{50, 50}, 20, 3, false}, {{55, 50}, 20, 3, false}, {{2, 50}, 20, 3, false},
        {{50, 5}, 20, 3, true}, {{52, 72}, 90, 3, true}, {{52, 72}, 90, 3, true, true}};
    const std::vector<Strecke> lines{{{0, 42}, {30, 42}}, {{0, 80}, {100, 80}}, {{0, 64}, {100, 64}}};
    const auto places = platziereSymbole(wishes, 10, field, {lines, {}});
    const auto isAt = [&](std::size_t i, double left, double top) {
        return places.at(i) && places.at(i)->left == left && places.at(i)->top == top;
    };
    EXPECT_TRUE(isAt(0, 40, 37)) << "above";
    EXPECT_TRUE(isAt(1, 45, 53)) << "below, where the first is not";
    EXPECT_TRUE(isAt(2, 5, 45)) << "neither beyond the edge nor on the line";
    EXPECT_TRUE(isAt(3, 40, 8)) << "below, as it rather is";
    EXPECT_FALSE(places.at(4)) << "no room";
    EXPECT_TRUE(isAt(5, 7, 75)) << "important enough to be on a line";
}

} // namespace zerna
