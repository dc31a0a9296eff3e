#include "bild/PSEGeometrie.h"

#include <gtest/gtest.h>

#include <numeric>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

/// Elements 1, 2, … with 10 pixels per atomic number and 100 per division, so that (0, 0) is pixel (250, 1100).
PSEBild layOut(std::vector<float> values, double labelHeight = 60)
{
    std::vector<float> numbers(values.size());
    std::iota(numbers.begin(), numbers.end(), 1.0F);
    const auto area = static_cast<int>(numbers.size() + 30) * 10;
    const auto width = [](std::string_view text) { return 6.0 * static_cast<double>(text.size()); };
    return layOutPSE({"Titel", numbers, std::move(values)}, area, 1300, {width, labelHeight});
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
    EXPECT_EQ(bild.curve, (std::vector<std::vector<Punkt>>{{{260, 1100}}, {{280, 700}, {290, 100}}}));
    EXPECT_EQ(nearestElement(bild, 269), 0U) << "in the gap, nearer to the left";
    EXPECT_EQ(nearestElement(bild, 271), 2U) << "in the gap, nearer to the right";
    EXPECT_EQ(nearestElement(bild, 900), 3U) << "right of all";
    // Intended: the first value counts for the range even when it is missing.
    EXPECT_EQ(bereichMitErstemWert({Unbekannt, 7}).min, Unbekannt);
    EXPECT_EQ(layOut({Unbekannt, 7}).curve.size(), 1U);
    EXPECT_FALSE(nearestElement(layOut({5, 5}), 0));
}

TEST(PSEGeometrieTest, EverythingStandsInUserCoordinates)
{
    const PSEBild bild = layOut({0, 1, 2, 3, 10});
    EXPECT_EQ(bild.lines.size(), 14U) << "two axes, the tick at 0, eleven divisions";
    EXPECT_EQ(bild.lines.at(0).to, (Punkt{300, 1100})) << "end of the x axis";
    EXPECT_EQ(bild.lines.at(13).from, (Punkt{220, 100})) << "topmost tick of the y axis";
    EXPECT_EQ(bild.titel.position, (Punkt{10, 1000}));
    EXPECT_EQ(bild.labels.at(0).position, (Punkt{247, 1170})) << "number at 0";
    EXPECT_EQ(bild.labels.at(2).position, (Punkt{60, 1070})) << "lowest label of the y axis";
}

TEST(PSEGeometrieTest, EveryDivisionThatHasRoomIsLabelled)
{
    const struct {
        const char* name;
        std::vector<float> values;
        double height;
        const char* texts;
    } rows[] = {
        {"room for every second", {0, 10}, 120, "0|0|2|4|6|8|10|"},
        {"negative", {-0.375F, 0.375F}, 200, "-4 E-01|-2,4 E-01|-8 E-02|0,08|0,24|0,4|"},
        {"zero despite rounding", {-0.375F, 0.375F}, 500, "-4 E-01|0|0,4|"},
        {"one value", {5, 5}, 60, "0|OZ|5|"},
        {"no value", {}, 60, "0|OZ|0|"},
        {"no single is as low as the range", {Unbekannt, 1}, 400, "-2,5 E+38|-5 E+37|"},
    };
    for (const auto& row : rows) {
        std::string all;
        for (const Schriftzug& label : layOut(row.values, row.height).labels)
            all += label.text + '|';
        EXPECT_EQ(all, row.texts) << row.name;
    }
}

} // namespace zerna
