#include "bild/Achsen.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

namespace {

double breite(std::string_view text) { return 7.0 * static_cast<double>(text.size()); }

/// The labels in order; "-" for a tick without one.
std::string labels(const std::vector<Achsenmarke>& marken)
{
    std::string all;
    for (const Achsenmarke& marke : marken)
        all += (marke.label.empty() ? "-" : marke.label) + ' ';
    return all;
}

} // namespace

TEST(AchsenTest, EndsOfASeriesAreItsOutermostKnownValues)
{
    const struct {
        const char* name;
        std::vector<float> series;
        std::pair<float, float> ends;
    } rows[] = {
        {"rising", {1, 2, 3}, {1, 3}},
        {"falling", {3, 2, 1}, {1, 3}},
        {"a hill (intended: only the ends count)", {2, 9, 3}, {2, 3}},
        {"unknown ends", {Unbekannt, 3, 9, 2, Unbekannt}, {2, 3}},
        {"a single value", {Unbekannt, 5, Unbekannt}, {5, 5}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(endValues(row.series), row.ends) << row.name;
    EXPECT_EQ(errorNumber([] { endValues(std::vector{Unbekannt}); }), 5);
}

TEST(AchsenTest, RangeHasAMarginOfTheLargestValue)
{
    for (const auto& [smallest, largest, bottom, top] :
        {std::tuple(-20.0F, -10.0F, -20.5, -9.5), {2.0F, 2.0F, 1.9, 2.1}, {-10.0F, -10.0F, -10.5, -9.5},
            {0.0F, 10.0F, -0.5, 10.5}, {-4.0F, 0.0F, -4.0, 0.0}, {-100.0F, 1.0F, -100.05, 1.05}}) {
        EXPECT_NEAR(yBereich(smallest, largest).min, bottom, 1e-5) << smallest;
        EXPECT_NEAR(yBereich(smallest, largest).max, top, 1e-6) << smallest;
    }
}

TEST(AchsenTest, LabelsTurnScientificWhereTheLogarithmExceedsSeven)
{
    for (const auto& [value, text] : {std::pair(0.0, "0,000"), {0.000912, "0,001"}, {0.0009118, "9,12 E-04"},
             {1096.6, "1096,600"}, {1096.7, "1,10 E+03"}, {-5.0, "-5,000"}, {-6.54e-11, "-6,54 E-11"}})
        EXPECT_EQ(yLabel(value), text);
    // 0 despite single precision: the range is -0,0175 to 0,1575.
    EXPECT_EQ(yMarken(plotArea(360, 300), 300, yBereich(-0.01F, 0.15F), 16).at(1).label, "0,000");
}

TEST(AchsenTest, DivisionsThatHaveRoomAreLabelled)
{
    for (const auto& [height, labelHeight, texts] :
        {std::tuple(300, 16.0, "0,000 1,000 2,000 3,000 4,000 5,000 6,000 7,000 8,000 9,000 "),
            {299, 16.0, "0,000 2,000 4,000 6,000 8,000 "}, {300, 30.0, "0,000 - 2,000 - 4,000 - 6,000 - 8,000 - "},
            {300, 60.0, "0,000 - - 3,000 - - 6,000 - - - "}, {30, 16.0, "- - - - - "}}) // the top would be cut off
        EXPECT_EQ(labels(yMarken(plotArea(360, height), height, {0, 10}, labelHeight)), texts);
    for (const auto& [width, texts] :
        {std::pair(360, "0 10 20 30 40 50 60 70 80 90 100 "), {160, "0 - 20 - 40 - 60 - 80 - - "}})
        EXPECT_EQ(labels(xMarken(plotArea(width, 300), width, {0, 100}, breite)), texts);
}

TEST(AchsenTest, LabelsAreCentredAtTheirTicksAndShrinkToFit)
{
    const Rechteck plot = plotArea(360, 300);
    const Achsenmarke row = yMarken(plot, 300, {0, 10}, 16).at(3);
    EXPECT_EQ(std::pair(row.position, row.labelStart), std::pair(189.0, 181.0));
    const auto columns = xMarken(plot, 360, {0, 100}, breite);
    EXPECT_EQ(std::pair(columns.at(4).position, columns.at(4).labelStart), std::pair(180.0, 173.0));
    EXPECT_EQ(columns.at(10).labelStart, 339) << "not beyond the edge";
    for (const auto& [text, height, scale] : {std::tuple("1,000", 16.0, 1.0), {"-6,54 E-111", 16.0, 46 / 77.0},
             {"1,000", 60.0, 30 / 105.0}, {"", 16.0, 1.0}})
        EXPECT_DOUBLE_EQ(labelScale({{0, text}}, plot, breite, height), scale) << text;
}

TEST(AchsenTest, PixelsAreWholeHalvesToEvenAndMapBack)
{
    const Abbildung abbildung(200, 100, {0, 100}, {0, 10});
    for (const auto& [x, column] : {std::pair(0.25, 0), {0.75, 2}, {0.3, 1}, {-0.75, -2}, {100.0, 200}})
        EXPECT_EQ(abbildung.column(x), column) << x;
    for (const auto& [y, row] : {std::pair(0.0, 100), {0.0625, 99}, {10.0, 0}, {9.75, 2}, {9.65, 4}, {-1.0, 110}})
        EXPECT_EQ(abbildung.row(y), row) << y;
    EXPECT_EQ(std::pair(abbildung.x(50), abbildung.y(25)), std::pair(25.0, 7.5));
}

} // namespace zerna
