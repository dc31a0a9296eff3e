#include "model/messung/Messmaxima.h"

#include <gmock/gmock.h>

#include "model/messung/Messdatei.h"
#include "support/Messkurven.h"

namespace zerna {
namespace {

using testing::SizeIs;

TEST(Messmaxima, AreFoundToATenthOfTheStepInNoise)
{
    struct Row {
        const char* name;
        Messmodell modell;
        double from, step;
        std::size_t count;
        double noise; // below 0: the last digit
    };
    const Messmodell faktor{{{28.6, 2.4, 1.3}, {49.2, 0.9, 2.6}, {57.5, 0.55, 2.5}, {81, 0.4, 5}}, 23};
    const std::vector<Row> rows{
        {"three points about the top, no noise", {{{5.03, 1, 1.5}, {15.4, 0.8, 1.5}}, 0}, 0, 1, 25, 0},
        {"coarse", {{{8.03, 1, 2.5}, {20.4, 0.7, 3.5}, {37.2, 0.5, 4}}, 0}, 0, 1, 50, 0.003},
        {"structure factor", faktor, 5, 0.25, 500, 0.001},
        {"more noise", faktor, 5, 1, 130, 0.003},
        {"fine steps", faktor, 5, 0.02, 6000, 0.0004},
        {"many points", {{{3, 1, 0.05}, {6, 0.5, 0.04}}, 0}, 0, 1e-4, 100'000, 1e-5},
        {"stairs", {{{3.0036, 1, 0.5}, {6.0042, 0.6, 0.4}}, 0}, 0, 0.01, 1000, -0.02},
        {"an end that rises", {{{-2, 30, 1}, {5, 1, 0.8}, {18, 20, 1.5}}, 0}, 0, 0.1, 170, 0.002},
    };
    for (const Row& row : rows) {
        for (unsigned seed = 1; seed <= (row.count > 10'000 ? 2U : 20U); ++seed) {
            SCOPED_TRACE(row.name + std::to_string(seed));
            std::vector<Messpunkt> punkte =
                row.modell.punkte(row.from, row.step, row.count, std::max(0.0, row.noise), seed);
            for (Messpunkt& punkt : punkte) // a step of the last digit instead of noise
                punkt.y = row.noise < 0 ? std::round(punkt.y / row.noise) * row.noise : punkt.y;
            const auto found = maxima(punkte);
            std::vector<double> expected;
            for (const Glocke& glocke : row.modell.glocken)
                if (glocke.middle > row.from
                    && glocke.middle < row.from + row.step * static_cast<double>(row.count - 1))
                    expected.push_back(row.modell.maximumNear(glocke));
            ASSERT_THAT(found, SizeIs(expected.size()));
            for (std::size_t i = 0; i < found.size(); ++i) {
                EXPECT_NEAR(found[i].x, expected[i], row.step / 10);
                EXPECT_NEAR(found[i].y, row.modell(expected[i]), 3 * std::abs(row.noise) + 0.04 * found[i].y);
            }
        }
    }
}

TEST(Messmaxima, OfAFileAsADiffractometerWritesIt)
{
    constexpr double Step = 0.00025;
    const Messmodell modell = glasmodell();
    const std::string file = messdatei(modell.punkte(0.15, Step, 5000, 0.0004, 4711));
    const Messlesung lesung = liesMesskurve(file, "NiNb.dat");
    ASSERT_TRUE(lesung.kurve) << lesung.grund;
    EXPECT_EQ(lesung.kurve->art, Messart::Paarverteilung);
    EXPECT_EQ(lesung.kurve->einheit, Messeinheit::Nanometer);
    ASSERT_EQ(lesung.kurve->punkte->size(), 5000U);
    const auto found = maxima(*lesung.kurve->punkte);
    ASSERT_THAT(found, SizeIs(modell.glocken.size()));
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_NEAR(found[i].x, modell.maximumNear(modell.glocken[i]), Step / 10) << i;
}

TEST(Messmaxima, NoiseSlopesAndEndsAreNone)
{
    const auto none = [](const Messmodell& modell, double noise) {
        for (unsigned seed = 1; seed <= 20; ++seed)
            EXPECT_THAT(maxima(modell.punkte(0, 0.1, 300, noise, seed)), SizeIs(0)) << seed;
    };
    none({{}, 0}, 1);
    none({{}, 10}, 0.05);
    none({{{-3, 10, 2}, {33, 10, 2}}, 0}, 0.05);
    EXPECT_THAT(maxima(std::vector<Messpunkt>{{0, 1}, {1, 1}, {2, 1}}), SizeIs(0));
    const auto three = maxima(std::vector<Messpunkt>{{0, 0}, {1, 3}, {3, 0}});
    ASSERT_THAT(three, SizeIs(1)); // y = 1.5·x·(3 − x)
    EXPECT_NEAR(three[0].x, 1.5, 1e-12);
    EXPECT_NEAR(three[0].y, 3.375, 1e-12);
}

} // namespace
} // namespace zerna
