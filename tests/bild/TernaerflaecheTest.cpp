#include "bild/Ternaerflaeche.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "core/Unbekannt.h"

namespace zerna {

namespace {

/// Flat at 3 but for a hole at the first component's corner.
Ternaergitter mitLoch()
{
    Ternaergitter gitter{10, {"A", "B", "C"}, "eV", std::vector<float>(66, 3)};
    gitter.werte.at(gitter.position(10, 0)) = Unbekannt;
    return gitter;
}

Flaechensicht sichtOf(Ternaergitter gitter, const Ansicht& ansicht, double ratio, const Rechteck& area)
{
    return {std::make_shared<const Ternaerinhalt>(std::move(gitter)), ansicht, Projektion(ansicht, area), area, ratio};
}

} // namespace

TEST(TernaerflaecheTest, CompositionIsReadWhereItIsSeen)
{
    const struct {
        const char* name;
        Ansicht ansicht;
        double ratio;
    } rows[] = {{"as at first", {}, 1}, {"finer", {}, 3}, {"from below", {-40, 100, 1, false}, 1},
        {"zoomed", {60, 10, 2, false}, 2}, {"flat", {0, 0, 1, true}, 1}};
    Ternaerflaeche flaeche; // the memory of one picture serves the next one
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Rechteck area{40, 30, 600, 500};
        flaeche.zeige(sichtOf(mitLoch(), row.ansicht, row.ratio, area));
        EXPECT_LE(flaeche.platz().right(), area.right()) << "no surface beside its area";
        EXPECT_GE(flaeche.platz().top, area.top);
        const auto seenAt = [&](const Anteile3& anteile) {
            const double z = row.ansicht.flach ? 0 : SurfaceHeight / 2; // a constant value stands at half the height
            const Bildpunkt p = flaeche.sicht().projektion.project(placeOf(anteile, z));
            EXPECT_TRUE(flaeche.istSichtbar(p));
            return flaeche.anteileAt({p.x, p.y});
        };
        const Anteile3 inside{0.3, 0.45, 0.25};
        const Anteile3 seen = seenAt(inside).value_or(Anteile3{});
        for (std::size_t k = 0; k < 3; ++k)
            EXPECT_NEAR(seen.at(k), inside.at(k), 0.01);
        EXPECT_FALSE(seenAt({0.98, 0.01, 0.01})) << "the hole";
        EXPECT_FALSE(flaeche.anteileAt({41, 31})) << "beside the triangle";
    }
}

TEST(TernaerflaecheTest, WhatLiesBehindAHumpIsHidden)
{
    Ternaergitter hump{20, {"A", "B", "C"}, "", {}};
    for (int i = 0; i <= 20; ++i) {
        for (int j = 0; i + j <= 20; ++j)
            hump.werte.push_back(std::exp(-0.06F * static_cast<float>((i - 7) * (i - 7) + (j - 7) * (j - 7))));
    }
    Ternaerflaeche flaeche;
    flaeche.zeige(sichtOf(std::move(hump), {10, 0, 1, false}, 1, {0, 0, 400, 400}));
    const auto isSeen = [&](const Anteile3& anteile) {
        const double value = interpolated(flaeche.sicht().inhalt->gitter, anteile).value();
        const double z = heightShare(value, flaeche.sicht().inhalt->range) * SurfaceHeight;
        return flaeche.istSichtbar(flaeche.sicht().projektion.project(placeOf(anteile, z)));
    };
    EXPECT_TRUE(isSeen({0.35, 0.35, 0.3})) << "its top";
    EXPECT_TRUE(isSeen({0.45, 0.45, 0.1})) << "before it";
    EXPECT_FALSE(isSeen({0.2, 0.2, 0.6})) << "behind it";
}

TEST(TernaerflaecheTest, ItsEdgesFadeOut)
{
    Ternaerflaeche flaeche;
    flaeche.zeige(sichtOf(mitLoch(), {}, 1, {0, 0, 300, 300}));
    const auto share = [&](auto&& isWanted) {
        return static_cast<double>(std::ranges::count_if(flaeche.bild().pixels(), isWanted));
    };
    const double fading = share([](std::uint32_t p) { return p != 0 && p >> 24U < 255; });
    EXPECT_GT(fading, 200) << "one pixel along the whole rim";
    EXPECT_LT(fading, 900);
    EXPECT_EQ(share([](std::uint32_t p) { return (p & 0xFFU) > p >> 24U; }), 0) << "premultiplied";
}

} // namespace zerna
