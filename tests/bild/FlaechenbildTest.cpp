#include "bild/Flaechenbild.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace zerna {

namespace {

using Dreieck = std::array<Flaechenecke, 3>;

const Flaechenstil Schlicht{0, 0, 1, {}, false};

std::uint32_t at(const Flaechenbild& bild, int x, int y)
{
    return bild.pixels().begin()[std::ptrdiff_t{y} * bild.width() + x];
}

TEST(Flaechenbild, NearerOfTwoCrossingTrianglesIsSeenFromAboveAndFromBelow)
{
    for (const float side : {1.0F, -1.0F}) { // of the viewer
        const Dreieck rising{{{0, 0, -side, 0}, {100, 0, side, 0}, {50, 90, 0, 0}}};
        const Dreieck falling{{{0, 0, side, 1}, {100, 0, -side, 1}, {50, 90, 0, 1}}};
        for (const bool risingFirst : {true, false}) {
            Flaechenbild bild(100, 90);
            for (const auto& [a, b, c] : {risingFirst ? rising : falling, risingFirst ? falling : rising})
                bild.fill(a, b, c, Schlicht);
            EXPECT_EQ(at(bild, side > 0 ? 70 : 30, 20), 0xFF440154) << "the lowest value's colour";
            EXPECT_EQ(at(bild, side > 0 ? 30 : 70, 20), 0xFFFDE725) << "the highest value's";
            float depth = 0;
            EXPECT_TRUE(bild.depthAt(75, 0, depth));
            EXPECT_NEAR(depth, 0.51, 1e-3);
            EXPECT_FALSE(bild.depthAt(2, 88, depth) || bild.depthAt(-1, 0, depth) || bild.depthAt(0, 90, depth));
        }
    }
}

TEST(Flaechenbild, FansHaveNoCracks)
{
    for (int count = 3; count < 50; ++count) {
        const auto rim = [count](int i) {
            const float angle = static_cast<float>(i % count) * 6.2831853F / static_cast<float>(count);
            return Flaechenecke{50 + 150 * std::cos(angle), 50 + 150 * std::sin(angle), 0, 0.5F};
        };
        Flaechenbild bild(100, 100);
        for (int i = 0; i < count; ++i)
            bild.fill({48.3F, 51.7F, 0, 0.5F}, rim(i), rim(i + 1), Schlicht);
        EXPECT_EQ(std::ranges::count(bild.pixels(), 0xFF21918C), 100 * 100) << count;
    }
}

TEST(Flaechenbild, WhatIsNoAreaOrBesideThePictureLeavesNoPixel)
{
    const struct {
        const char* name;
        Dreieck corners;
    } rows[] = {
        {"a line", {{{1, 1}, {5, 5}, {9, 9}}}},
        {"a row that is no number", {{{1, 1}, {5, 5}, {9, NAN}}}},
        {"above on the left", {{{-9, -9}, {-1, -9}, {-5, -1}}}},
        {"far below", {{{1, 1e6F}, {9, 1e6F}, {5, 2e6F}}}},
    };
    for (const auto& row : rows) {
        Flaechenbild bild(10, 10);
        bild.fill(row.corners[0], row.corners[1], row.corners[2], {});
        EXPECT_EQ(std::ranges::count(bild.pixels(), 0U), 100) << row.name;
    }
}

TEST(Flaechenbild, IsoLinesRunAtTheirLevels)
{
    Flaechenbild bild(100, 100);
    bild.fill({0, 0, 0, 0}, {100, 0, 0, 1}, {50, 100, 0, 0.5F}, {0, 0.9F, 2, {0.5F}, false});
    EXPECT_LT(at(bild, 49, 40) & 0xFFU, 30U);
    EXPECT_GT(at(bild, 45, 40) & 0xFFU, 100U);
}

} // namespace

} // namespace zerna
