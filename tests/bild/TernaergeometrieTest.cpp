#include "bild/Ternaerkreuz.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/Unbekannt.h"

namespace zerna {

TEST(Projektion, TiltsThenTurnsAndFindsBack)
{
    const Raumpunkt place{0.2, 0.3, 0.5}; // 0.2 above the centre of rotation
    const struct {
        const char* name;
        double tilt, turn;
        Bildpunkt expected; ///< in sides of the triangle, y upwards
    } rows[] = {
        {"from above", 90, 0, {0.2, 0.3, 0.2}},
        {"from the side", 0, 90, {0.3, 0.2, 0.2}},
        {"tilted", 30, 0, {0.2, 0.323205, -0.159808}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Projektion projektion({row.tilt, row.turn, 1.5}, {0, 0, 800, 600});
        const double side = projektion.scale();
        const auto [x, y, depth] = projektion.project(place);
        EXPECT_NEAR(std::hypot((x - 400) / side - row.expected.x, (300 - y) / side - row.expected.y), 0, 1e-6);
        EXPECT_NEAR(depth, row.expected.depth, 1e-6);
        const Raumpunkt back = projektion.unproject({x, y, depth});
        EXPECT_NEAR(std::hypot(back.x - place.x, back.y - place.y, back.z - place.z), 0, 1e-12);
    }
}

TEST(Projektion, FitsItsPartAndDoesNotJumpWhileTurning)
{
    constexpr double Rounding = 1e-9;
    for (const Rechteck& part : {Rechteck{10, 20, 900, 300}, {10, 20, 250, 300}}) {
        for (int i = 0; i < 24 * 13; ++i) {
            const Ansicht ansicht{15.0 * (i % 13) - 90, 15.0 * (i / 13.0), 1};
            const Projektion projektion(ansicht, part);
            EXPECT_EQ(projektion.scale(), Projektion(rotated(ansicht, 0, 77), part).scale());
            for (const double z : {0.0, SurfaceHeight}) {
                const Bildpunkt corner = projektion.project(placeOf({0, 0, 1}, z));
                EXPECT_LE(std::abs(corner.x - part.mitte().x), part.width / 2 + Rounding);
                EXPECT_LE(std::abs(corner.y - part.mitte().y), part.height / 2 + Rounding);
            }
        }
        EXPECT_GE(Projektion({}, part).scale(), 0.8 * std::min(part.width, part.height)) << "and fills it";
        const Projektion flat({0, 0, 1, true}, part);
        EXPECT_NEAR(flat.scale(), std::min(part.width, part.height / TriangleHeight), Rounding);
    }
}

TEST(Projektion, NearPointsFollowTheHandAndNoCornerHidesAnother)
{
    const Rechteck part{0, 0, 500, 500};
    const Raumpunkt near{0, -0.2, 0.3}; // at turn 0
    const auto placeOfIt = [&](const Ansicht& ansicht) { return Projektion(ansicht, part).project(near); };
    const Ansicht start{30, 0, 1};
    EXPECT_GT(placeOfIt(rotated(start, 0, -5)).x, placeOfIt(start).x) << "a drag to the right takes from the turn";
    EXPECT_GT(placeOfIt(rotated(start, 5, 0)).y, placeOfIt(start).y) << "one downwards adds to the tilt";
    const auto column = [&](const Anteile3& corner) { return Projektion({}, part).project(placeOf(corner, 0)).x; };
    const std::array columns{column({1, 0, 0}), column({0, 1, 0}), column({0, 0, 1})};
    for (std::size_t k = 0; k < 3; ++k)
        EXPECT_GT(std::abs(columns.at(k) - columns.at((k + 1) % 3)), 50);
}

TEST(Ansicht, StaysWithinItsLimits)
{
    EXPECT_EQ(rotated({}, 66, 211), (Ansicht{90, -104})) << "over the top, over the back";
    EXPECT_EQ(rotated({}, -200, -3600), (Ansicht{-90, 45})) << "below the bottom, whole turns";
    EXPECT_EQ(zoomed({}, HUGE_VAL).zoom, 3);
    EXPECT_EQ(zoomed({}, 0).zoom, 0.5);
}

TEST(Zusammensetzung, HasItsPlaceInTheTriangle)
{
    const Raumpunkt place = placeOf({0.2, 0.5, 0.3}, 7);
    EXPECT_NEAR(std::hypot(place.x - 0.15, place.y + 0.028868), 0, 1e-6);
    const Anteile3 back = compositionAt(place).value_or(Anteile3{});
    EXPECT_NEAR(std::hypot(back[0] - 0.2, back[1] - 0.5, back[2] - 0.3), 0, 1e-9);
    EXPECT_FALSE(compositionAt({0, -0.29, 0})) << "below the base line";
    EXPECT_FALSE(compositionAt({-0.4, 0, 0})) << "left of the triangle";
    EXPECT_TRUE(istZusammensetzung({1, 0, 0}));
    EXPECT_TRUE(istZusammensetzung({0.3333333F, 0.3333333F, 0.3333334F})) << "as typed";
    EXPECT_FALSE(istZusammensetzung({0.6, 0.5, -0.1}));
    EXPECT_FALSE(istZusammensetzung({0.2, 0.2, 0.1})) << "its point would be that of another alloy";
}

TEST(Ternaerkreuz, GoesToNeighboursAndStaysAtTheEdges)
{
    const Ternaergitter gitter{2, {"A", "B", "C"}, "eV", {}};
    const struct {
        Ternaerkreuz from;
        int right, up;
        Ternaerkreuz to;
    } rows[] = {{{2, 0}, 1, 0, {1, 1}}, {{1, 1}, 1, 0, {0, 2}}, {{0, 2}, 1, 0, {0, 2}}, {{1, 1}, -1, 0, {2, 0}},
        {{2, 0}, -1, 0, {2, 0}}, {{2, 0}, 0, 1, {1, 0}}, {{1, 0}, 0, 1, {0, 0}}, {{0, 0}, 0, 1, {0, 0}},
        {{0, 2}, 0, 1, {0, 1}}, {{0, 1}, 0, -1, {1, 1}}, {{1, 1}, 0, -1, {1, 1}}, {{1, 0}, -1, 0, {1, 0}}};
    for (const auto& [from, right, up, to] : rows)
        EXPECT_EQ(nachbar(gitter, from, right, up), to) << from.i << from.j << ' ' << right << up;
    EXPECT_EQ(kreuzBei(gitter, {0.6, 0.4, 0}), (Ternaerkreuz{1, 1}));
    EXPECT_EQ(ternaerablesung(gitter, {0.5, 0.5, -1e-9}, Unbekannt), "A 50,0 at%  B 50,0 at%  C 0,0 at%  -  unbekannt");
}

TEST(Ternaerflaeche, IsInterpolatedAndHasHoles)
{
    Ternaergitter gitter{2, {}, {}, {0, 10, 20, 5, 15, 10}}; // 10 for all of the first, 20 of the second component
    const struct {
        const char* name;
        Anteile3 anteile;
        double value;
    } rows[] = {
        {"second component", {0, 1, 0}, 20},
        {"on an edge of the grid", {0.25, 0.5, 0.25}, 12.5},
        {"in an upright triangle", {0.2, 0.2, 0.6}, 6},
        {"in one upside down", {0.4, 0.4, 0.2}, 12},
        {"outside by a rounding error", {1 + 1e-7, -1e-7, 0}, 10},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(interpolated(gitter, row.anteile).value_or(-1), row.value, 1e-5) << row.name;
    gitter.werte[5] = Unbekannt;
    EXPECT_EQ(triangulate(gitter).size(), 3U) << "without a corner";
    EXPECT_FALSE(interpolated(gitter, {0.8, 0.1, 0.1}));
    EXPECT_TRUE(interpolated(gitter, {0.1, 0.1, 0.8}));
    gitter.werte[1] = Unbekannt;
    EXPECT_TRUE(triangulate(gitter).empty()) << "nor the middle of an edge";
}

TEST(Achsenstriche, AreFiveToTenRoundedValuesInside)
{
    for (const float low : {0.0F, 0.05F, -0.05F, -1.13F, 7.3e-30F, -2e30F, 12345.6F}) {
        for (int i = -100; i < 130; ++i) {
            const float width = std::exp2(static_cast<float>(i) / 10);
            const Wertebereich range{low, low + width * (low == 0 ? 1 : std::abs(low)), true};
            const std::vector<double> ticks = axisTicks(range);
            const double slack = (static_cast<double>(range.max) - range.min) * 1e-6;
            EXPECT_TRUE(ticks.size() >= 5 && ticks.size() <= 10) << low << ' ' << width << ": " << ticks.size();
            EXPECT_TRUE(ticks.front() >= range.min - slack && ticks.back() <= range.max + slack) << low;
            EXPECT_NEAR(ticks[2] - ticks[1], ticks[1] - ticks[0], slack);
        }
    }
    EXPECT_EQ(axisTicks({-20, -10, true}), (std::vector<double>{-20, -18, -16, -14, -12, -10}));
    EXPECT_EQ(axisTicks({3, 3, true}), std::vector<double>{3}) << "a constant quantity";
    EXPECT_EQ(heightShare(3, {3, 3, true}), 0.5);
}

} // namespace zerna
