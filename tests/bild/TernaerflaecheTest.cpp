#include "bild/Ternaerflaeche.h"

#include <gtest/gtest.h>

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

} // namespace

TEST(TernaerflaecheTest, CompositionIsReadWhereItIsSeen)
{
    const Ternaerinhalt inhalt(mitLoch(), {});
    const struct {
        const char* name;
        Ansicht ansicht;
        double ratio;
    } rows[] = {{"as at first", {}, 1}, {"finer", {}, 3}, {"from below", {-40, 100, 1, false}, 1},
        {"zoomed", {60, 10, 2, false}, 2}, {"flat", {0, 0, 1, true}, 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Ternaerflaeche flaeche(inhalt, row.ansicht, 600, 500, row.ratio);
        EXPECT_EQ(flaeche.bild().width(), 600 * row.ratio);
        const auto seenAt = [&](const Anteile3& anteile) {
            const double z = row.ansicht.flach ? 0 : SurfaceHeight / 2; // a constant value stands at half the height
            const Bildpunkt p = flaeche.projektion().project(placeOf(anteile, z));
            return flaeche.anteileAt({p.x, p.y});
        };
        const Anteile3 inside{0.3, 0.45, 0.25};
        const Anteile3 seen = seenAt(inside).value_or(Anteile3{});
        for (std::size_t k = 0; k < 3; ++k)
            EXPECT_NEAR(seen.at(k), inside.at(k), 0.01);
        EXPECT_FALSE(seenAt({0.98, 0.01, 0.01})) << "the hole";
        EXPECT_FALSE(flaeche.anteileAt({1, 1})) << "beside the triangle";
    }
}

TEST(TernaerflaecheTest, AlloyIsShownInsideTheTriangleOnly)
{
    const auto isShown = [](const Anteile3& alloy) { return Ternaerinhalt(mitLoch(), alloy).current.has_value(); };
    EXPECT_TRUE(isShown({1, 0, 0})) << "a corner";
    EXPECT_FALSE(isShown({1.2, -0.2, 0}));
    EXPECT_FALSE(isShown({0.5, 0.5, Unbekannt / 100.0}));
}

} // namespace zerna
