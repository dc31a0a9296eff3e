#include "bild/Ausduennung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

#include "bild/Kurvenfarben.h"
#include "bild/Kurvenstreifen.h"
#include "bild/Textumbruch.h"

namespace zerna {

TEST(AusduennungTest, AMillionPointsKeepTheExtremesOfEveryColumn)
{
    constexpr int Count = 1000000;
    constexpr int Columns = 500;
    std::vector<Punkt> punkte;
    for (int i = 0; i < Count; ++i)
        punkte.push_back({static_cast<double>(i), std::sin(i * 0.37)});
    punkte[123456].y = 7; // a single spike
    punkte[654321].y = -7;
    const Linienzuege lines = sichtbareZuege(punkte, Abbildung(Columns, 160, {0, Count}, {-8, 8}), Columns, 160);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_LE(lines[0].size(), 4U * (Columns + 1));
    const auto [highest, lowest] = std::ranges::minmax_element(lines[0], {}, &Punkt::y);
    EXPECT_NEAR(highest->y, 10, 1e-9);
    EXPECT_NEAR(highest->x, 123456.0 * Columns / Count, 1e-9);
    EXPECT_NEAR(lowest->y, 150, 1e-9);
    EXPECT_TRUE(std::ranges::is_sorted(lines[0], {}, &Punkt::x));
}

TEST(AusduennungTest, LinesEndAtGapsAndALittleOutsideThePlot)
{
    const double gap = std::numeric_limits<double>::quiet_NaN();
    const Abbildung abbildung(100, 100, {0, 10}, {0, 10});
    const struct {
        const char* name;
        std::vector<Punkt> punkte;
        Linienzuege expected;
    } rows[] = {
        {"gaps", {{0, 1}, {1, 1}, {2, gap}, {3, gap}, {4, 2}, {5, gap}, {6, 3}, {7, 3}},
            {{{0, 90}, {10, 90}}, {{40, 80}}, {{60, 70}, {70, 70}}}},
        {"out above and in again, the slope kept", {{0, 10}, {4, 50}, {8, 10}},
            {{{0, 0}, {1.6, -16}}, {{78.4, -16}, {80, 0}}}},
        {"from far left to far right", {{-1e9, 5}, {1e9, 5}}, {{{-16, 50}, {116, 50}}}},
        {"points outside are left away", {{-9, 1}, {-8, 1}, {2, 1}, {3, 1}, {18, 1}, {19, 1}},
            {{{-16, 90}, {20, 90}, {30, 90}, {116, 90}}}},
        {"nothing", {}, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Linienzuege lines = sichtbareZuege(row.punkte, abbildung, 100, 100);
        ASSERT_EQ(lines.size(), row.expected.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            ASSERT_EQ(lines[i].size(), row.expected[i].size());
            for (std::size_t k = 0; k < lines[i].size(); ++k) {
                EXPECT_NEAR(lines[i][k].x, row.expected[i][k].x, 1e-6);
                EXPECT_NEAR(lines[i][k].y, row.expected[i][k].y, 1e-6);
            }
        }
    }
    EXPECT_EQ(
        sichtbarePunkte(std::vector<Punkt>{{1, 1}, {1, 1.01}, {2, gap}, {3, 40}, {4, 4}}, abbildung, 100, 100).size(),
        2U);
}

TEST(AusduennungTest, AStraightenedLinePassesAllItsPoints)
{
    std::vector<Punkt> line;
    for (int i = 0; i <= 100; ++i)
        line.push_back({6.0 * i, 0.0005 * 36 * i * i});
    line.insert(line.end(), {{600, 10}, {606, 10}, {612, -300}, {618, 10}}); // upright, straight, a spike
    const std::vector<Punkt> few = begradigt(line, 0.05);
    EXPECT_LT(few.size(), line.size() / 2);
    EXPECT_TRUE(few.front() == line.front() && few.back() == line.back());
    for (const Punkt& punkt : line) {
        const auto next = std::ranges::lower_bound(few, punkt.x, {}, &Punkt::x);
        if (next->x == punkt.x)
            continue; // kept, or above one another
        const Punkt& before = *std::prev(next);
        const double y = std::lerp(before.y, next->y, (punkt.x - before.x) / (next->x - before.x));
        EXPECT_NEAR(y, punkt.y, 0.05) << punkt.x;
    }
    EXPECT_EQ(std::ranges::count(few, -300, &Punkt::y), 1);
    EXPECT_TRUE(begradigt({}, 1).empty());
}

TEST(KurvenstreifenTest, StripsHoldTheirPartOfTheLineAndWhatIsAroundIt)
{
    Kurvenstreifen streifen({10, 20, 400, 100}); // four strips
    EXPECT_TRUE(streifen.bereiche().empty());
    streifen.add({50, 10}, {150, 30}, 2);
    streifen.add({301, 90}, {301, 500}, 2); // upright, reaches into the strip before
    const std::vector<Rechteck> expected{
        {10, 28, 100, 15}, {110, 37, 100, 15}, {210, 108, 100, 12}, {310, 108, 100, 12}};
    EXPECT_EQ(streifen.bereiche(), expected);
}

TEST(KurvenfarbenTest, AnyTwoDifferInDashOrClearlyInLightness)
{
    constexpr double Distinct = 1.5; // ratio of contrast
    constexpr double Legible = 3; // on white
    const auto light = [](std::size_t i) { return leuchtdichte(kurvenaussehen(i).farbe) + 0.05; };
    for (std::size_t i = 0; i < Kurvenfarben; ++i) {
        EXPECT_GE(1.05 / light(i), Legible) << i;
        const Linienart linie = kurvenaussehen(i).linie;
        EXPECT_EQ(linie == Linienart::Durchgezogen, i == 0) << i;
        EXPECT_EQ(linie == Linienart::Gestrichelt, i == Kurvenfarben - 1) << i << ": the mixture is dashed";
        for (std::size_t k = 0; k < i; ++k) {
            const bool isOther = kurvenaussehen(i).linie != kurvenaussehen(k).linie;
            const double contrast = std::max(light(i), light(k)) / std::min(light(i), light(k));
            EXPECT_TRUE(isOther || contrast >= Distinct) << k << " and " << i << ": " << contrast;
        }
    }
}

TEST(TextumbruchTest, LinesBreakAtBlanksAndTheLastIsShortened)
{
    int measured = 0;
    const Textbreite width = [&measured](std::string_view text) { // "m" is four letters wide
        ++measured;
        return static_cast<double>(
            std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }) + 3 * std::ranges::count(text, 'm'));
    };
    const auto lines = [&](const char* text, double room, int most) {
        std::string all;
        for (const std::string& line : umgebrochen(text, room, most, width))
            all += line + '|';
        return all;
    };
    EXPECT_EQ(lines("Größe über Öl", 20, 2), "Größe über Öl|");
    EXPECT_EQ(lines("Größe über Öl", 10, 2), "Größe über|Öl|");
    EXPECT_EQ(lines("Größe über Öl und Fett", 7, 2), "Größe|über Ö…|");
    EXPECT_EQ(lines("Höhenlage", 5, 3), "Höhe…|");
    EXPECT_EQ(lines("ii ii ii mm mm", 12, 9), "ii ii ii|mm|mm|");
    EXPECT_EQ(lines("mm mm ii ii ii", 12, 9), "mm|mm ii|ii ii|");
    EXPECT_EQ(lines("weit", 1, 1), "");
    EXPECT_EQ(lines("Al; Mg: 1,584 g/cm³, z = 2; Cu", 20, 9), "Al;|Mg: 1,584 g/cm³,|z = 2; Cu|") << "units stay";
    measured = 0;
    EXPECT_EQ(lines("a b c d e f g h i j k l n o p", 20, 9), "a b c d e f g h i j|k l n o p|");
    EXPECT_LE(measured, 8) << "for ten words in a line";
}

} // namespace zerna
