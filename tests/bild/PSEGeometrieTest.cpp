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
    const struct {
        const char* name;
        Bereich range, rounded;
    } rows[] = {
        {"to tens", {0.25, 17.5}, {0, 20}},
        {"exactly ten wide", {95, 105}, {90, 110}},
        {"negative, to halves of it", {-20.5, -9}, {-25, -5}},
        {"empty", {5, 5}, {5, 5}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(gerundeterBereich(row.range), row.rounded) << row.name;
}

TEST(PSEGeometrieTest, MissingValuesBreakTheCurve)
{
    const PSEBild bild = layOut({0, Unbekannt, 4, 10, Unbekannt});
    EXPECT_EQ(bild.curve, (std::vector<std::vector<Punkt>>{{{260, 1100}}, {{280, 700}, {290, 100}}}));
    const struct {
        const char* name;
        double x;
        std::size_t element;
    } rows[] = {
        {"in the gap, nearer to the left", 269, 0},
        {"in the gap, nearer to the right", 271, 2},
        {"right of all", 900, 3},
    };
    for (const auto& row : rows)
        EXPECT_EQ(nearestElement(bild, row.x), row.element) << row.name;
    // Intended: the first value counts for the range even when it is missing.
    EXPECT_EQ(bereichMitErstemWert({Unbekannt, 7}).min, Unbekannt);
    EXPECT_EQ(layOut({Unbekannt, 7}).curve.size(), 1U);
    EXPECT_FALSE(nearestElement(layOut({5, 5}), 0));
}

TEST(PSEGeometrieTest, EverythingStandsInUserCoordinates)
{
    const PSEBild bild = layOut({0, 1, 2, 3, 10});
    EXPECT_EQ(bild.lines.size(), 14U) << "two axes, the tick at 0, eleven divisions";
    const struct {
        const char* name;
        Punkt point, expected;
    } rows[] = {
        {"end of the x axis", bild.lines.at(0).to, {300, 1100}},
        {"its topmost tick", bild.lines.at(13).from, {220, 100}},
        {"title", bild.titel.position, {10, 1000}},
        {"number at 0", bild.labels.at(0).position, {247, 1170}},
        {"lowest label of the y axis", bild.labels.at(2).position, {60, 1070}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.point, row.expected) << row.name;
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
