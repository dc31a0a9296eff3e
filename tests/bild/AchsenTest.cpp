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
    const std::tuple<const char*, std::vector<float>, std::pair<float, float>> rows[] = {
        {"falling", {3, 2, 1}, {1, 3}},
        {"a hill (intended: only the ends count)", {2, 9, 3}, {2, 3}},
        {"unknown ends", {Unbekannt, 3, 9, 2, Unbekannt}, {2, 3}},
        {"a single value", {Unbekannt, 5, Unbekannt}, {5, 5}},
    };
    for (const auto& [name, series, ends] : rows)
        EXPECT_EQ(endValues(series), ends) << name;
    EXPECT_EQ(errorNumber([] { endValues(std::vector{Unbekannt}); }), 5);
}

TEST(AchsenTest, RangeHasAMarginOfTheLargestValue)
{
    const struct {
        const char* name;
        float smallest, largest;
        double bottom, top;
    } rows[] = {
        {"all negative", -20, -10, -20.5, -9.5},
        {"from zero", 0, 10, -0.5, 10.5},
        {"up to zero: no margin", -4, 0, -4, 0},
        {"mostly negative: a margin of the small largest", -100, 1, -100.05, 1.05},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(yBereich(row.smallest, row.largest).min, row.bottom, 1e-5) << row.name;
        EXPECT_NEAR(yBereich(row.smallest, row.largest).max, row.top, 1e-6) << row.name;
    }
}

TEST(AchsenTest, LabelsTurnScientificWhereTheLogarithmExceedsSeven)
{
    const std::tuple<const char*, double, const char*> rows[] = {
        {"smallest plain", 0.000912, "0,001"},
        {"largest small one", 0.0009118, "9,12 E-04"},
        {"largest plain", 1096.6, "1096,600"},
        {"smallest large one", 1096.7, "1,10 E+03"},
        {"negative and small", -6.54e-11, "-6,54 E-11"},
    };
    for (const auto& [name, value, text] : rows)
        EXPECT_EQ(yLabel(value), text) << name;
    // 0 despite single precision: the range is -0,0175 to 0,1575.
    EXPECT_EQ(yMarken(plotArea(360, 300), 300, yBereich(-0.01F, 0.15F), 16).at(1).label, "0,000");
}

TEST(AchsenTest, DivisionsThatHaveRoomAreLabelled)
{
    const struct {
        const char* name;
        int height;
        double labelHeight;
        const char* texts;
    } rows[] = {
        {"high enough", 300, 16, "0,000 1,000 2,000 3,000 4,000 5,000 6,000 7,000 8,000 9,000 "},
        {"one pixel lower", 299, 16, "0,000 2,000 4,000 6,000 8,000 "},
        {"labels as high as a division", 300, 30, "0,000 - 2,000 - 4,000 - 6,000 - 8,000 - "},
        {"no plot: the labels would be cut off", 30, 16, "- - - - - "},
    };
    for (const auto& row : rows)
        EXPECT_EQ(labels(yMarken(plotArea(360, row.height), row.height, {0, 10}, row.labelHeight)), row.texts)
            << row.name;
    const auto xLabels = [](int width) { return labels(xMarken(plotArea(width, 300), width, {0, 100}, breite)); };
    EXPECT_EQ(xLabels(360), "0 10 20 30 40 50 60 70 80 90 100 ");
    EXPECT_EQ(xLabels(325), "0 10 20 30 40 50 60 70 80 - 100 ") << "both ends are named";
    EXPECT_EQ(xLabels(160), "0 - 20 - 40 - 60 - - - 100 ") << "every second one has room";
    EXPECT_EQ(xLabels(90), "0 - - - - - - - - - 100 ");
    EXPECT_EQ(xLabels(80), "0 - - - - - - - - - - ") << "too narrow for both";
}

TEST(AchsenTest, LabelsAreCentredAtTheirTicksAndNotCutOff)
{
    const Rechteck plot = plotArea(360, 300);
    const Achsenmarke row = yMarken(plot, 300, {0, 10}, 16).at(3);
    EXPECT_EQ(std::pair(row.position, row.labelStart), std::pair(189.0, 181.0));
    const auto columns = xMarken(plot, 360, {0, 100}, breite);
    EXPECT_EQ(std::pair(columns.at(4).position, columns.at(4).labelStart), std::pair(180.0, 173.0));
    EXPECT_EQ(columns.at(10).labelStart, 339) << "not beyond the edge";
    EXPECT_DOUBLE_EQ(labelScale({{0, "1,000"}}, plot, breite, 60), 30 / 105.0) << "too high for the strip below";
}

TEST(AchsenTest, PixelsAreWholeHalvesToEvenAndMapBack)
{
    const Abbildung abbildung(200, 100, {0, 100}, {0, 10});
    const auto pixel = [&](double x, double y) { return std::pair(abbildung.column(x), abbildung.row(y)); };
    EXPECT_EQ(pixel(0.25, 9.75), std::pair(0.0, 2.0)) << "down";
    EXPECT_EQ(pixel(0.75, 9.65), std::pair(2.0, 4.0)) << "up";
    EXPECT_EQ(pixel(-0.75, -1), std::pair(-2.0, 110.0)) << "outside";
    EXPECT_EQ(std::pair(abbildung.x(50), abbildung.y(25)), std::pair(25.0, 7.5));
}

} // namespace zerna
