#include "bild/PSEGeometrie.h"

#include <gtest/gtest.h>

#include <numeric>
#include <tuple>

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
    const std::pair<Bereich, Bereich> rows[] = {{{0.25, 17.5}, {0, 20}}, {{22, 41}, {20, 50}}, {{95, 105}, {90, 110}},
        {{-20.5, -9}, {-25, -5}}, {{9, 20.5}, {5, 25}}, {{125, 1750}, {0, 2000}}, {{5, 5}, {5, 5}}};
    for (const auto& [range, rounded] : rows) {
        EXPECT_EQ(gerundeterBereich(range).min, rounded.min) << range.min;
        EXPECT_EQ(gerundeterBereich(range).max, rounded.max) << range.min;
    }
}

TEST(PSEGeometrieTest, MissingValuesBreakTheCurve)
{
    const PSEBild bild = layOut({0, Unbekannt, 4, 10, Unbekannt});
    EXPECT_EQ(bild.curve, (std::vector<std::vector<Punkt>>{{{260, 1100}}, {{280, 700}, {290, 100}}}));
    for (const auto& [x, element] : {std::pair(0.0, 0U), {269.0, 0U}, {271.0, 2U}, {286.0, 3U}, {900.0, 3U}})
        EXPECT_EQ(nearestElement(bild, x), element) << x;
    // Intended: the first value counts for the range even when it is missing.
    EXPECT_EQ(bereichMitErstemWert({Unbekannt, 7}).min, Unbekannt);
    EXPECT_EQ(layOut({Unbekannt, 7}).curve.size(), 1U);
    EXPECT_FALSE(nearestElement(layOut({5, 5}), 0));
}

TEST(PSEGeometrieTest, EverythingStandsInUserCoordinates)
{
    const PSEBild bild = layOut({0, 1, 2, 3, 10});
    EXPECT_EQ(bild.lines.size(), 14U) << "two axes, the tick at 0, eleven divisions";
    const std::pair<Punkt, Punkt> rows[] = {{bild.lines.at(0).to, {300, 1100}}, {bild.lines.at(1).to, {250, 1150}},
        {bild.lines.at(2).to, {250, 100}}, {bild.lines.at(13).from, {220, 100}}, {bild.titel.position, {10, 1000}},
        {bild.labels.at(0).position, {247, 1170}}, {bild.labels.at(1).position, {250, 1230}},
        {bild.labels.at(2).position, {60, 1070}}};
    for (const auto& [point, expected] : rows)
        EXPECT_EQ(std::pair(point.x, point.y), std::pair(expected.x, expected.y));
}

TEST(PSEGeometrieTest, EveryDivisionThatHasRoomIsLabelled)
{
    const std::tuple<std::vector<float>, double, const char*> rows[] = {{{0, 10}, 60, "0|OZ|0|1|2|3|4|5|6|7|8|9|10|"},
        {{0, 10}, 120, "0|0|2|4|6|8|10|"}, {{-0.375F, 0.375F}, 200, "-4 E-01|-2,4 E-01|-8 E-02|0,08|0,24|0,4|"},
        {{-0.375F, 0.375F}, 500, "-4 E-01|0|0,4|"}, {{5, 5}, 60, "0|OZ|5|"}, {{0, 0}, 60, "0|OZ|0|"},
        {{}, 60, "0|OZ|0|"}, {{Unbekannt, 1}, 400, "-2,5 E+38|-5 E+37|"}}; // no single is as low as the range
    for (const auto& [values, height, texts] : rows) {
        std::string all;
        for (const Schriftzug& label : layOut(values, height).labels)
            all += label.text + '|';
        EXPECT_EQ(all, texts);
    }
}

} // namespace zerna
