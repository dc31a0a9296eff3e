#include "model/suche/Nullstellen.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

namespace zerna {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

double sign(double x) { return x < 0 ? -1 : 1; }

struct Fall {
    const char* name;
    Funktion f;
    std::vector<double> roots; ///< on 0 to 100
    double within = 1e-9;
};

} // namespace

TEST(NullstellenTest, AllRootsAndNothingElse)
{
    const std::vector<Fall> cases{
        {"none", [](double x) { return x + 1; }, {}},
        {"a line", [](double x) { return 3 * x - 100; }, {100.0 / 3}},
        {"on the grid", [](double x) { return x - 25; }, {25}},
        {"both ends", [](double x) { return x * (100 - x); }, {0, 100}},
        {"touches off the grid", [](double x) { return std::pow(x - 33.3, 2); }, {33.3}, 2e-5},
        {"touches in the first cell", [](double x) { return std::pow(x - 0.1, 2); }, {0.1}, 2e-5},
        {"touches in the last cell from below", [](double x) { return -std::pow(x - 99.9, 2); }, {99.9}, 2e-5},
        {"a pair within a cell", [](double x) { return (x - 50.1) * (x - 50.102); }, {50.1, 50.102}},
        {"a pair in the last cell", [](double x) { return (x - 99.8) * (x - 99.9); }, {99.8, 99.9}},
        {"nearly touches", [](double x) { return std::pow(x - 33.3, 2) + 1e-6; }, {}},
        {"steep", [](double x) { return std::cbrt(x - 42.001); }, {42.001}},
        {"a pole", [](double x) { return 1 / (x - 33.3); }, {}},
        {"a pole that is computed", [](double x) { return x == 50 ? NaN : 1 / (x - 50); }, {}},
        {"a jump", [](double x) { return sign(x - 33.3); }, {}},
        {"a small jump", [](double x) { return x - 33.3 + 0.01 * sign(x - 33.3); }, {}},
        {"a pole and a root", [](double x) { return (x - 33.4) / (x - 33.2); }, {33.4}},
        {"an end of a gap", [](double x) { return x < 20.1 ? NaN : std::sqrt(x - 20.1); }, {20.1}},
        {"two gaps", [](double x) { return x < 10.1 || std::abs(x - 60) < 5.05 ? NaN : std::cos(x / 20); },
            {10 * std::numbers::pi, 30 * std::numbers::pi}},
        {"a root in a gap", [](double x) { return std::abs(x - 33) < 3 ? NaN : x - 33; }, {}},
        {"no value at all", [](double) { return NaN; }, {}},
    };
    for (const Fall& fall : cases) {
        SCOPED_TRACE(fall.name);
        const auto found = nullstellen(fall.f, {.von = 0, .bis = 100, .schritte = 400, .toleranz = 1e-10}).stellen;
        ASSERT_EQ(found.size(), fall.roots.size());
        for (std::size_t i = 0; i < found.size(); ++i)
            EXPECT_NEAR(found[i].mitte(), fall.roots[i], fall.within);
    }
}

TEST(NullstellenTest, RootsOfRandomPolynomialsComeBack)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(0, 10);
    for (int round = 0; round < 300; ++round) {
        std::vector<double> roots(1 + static_cast<std::size_t>(round) % 6);
        for (std::size_t i = 0; i < roots.size(); ++i) // apart, or they are one
            roots[i] = 15 * static_cast<double>(i) + place(random);
        const auto polynomial = [&](double x) {
            double value = 1;
            for (const double root : roots)
                value *= (x - root) / 10;
            return value;
        };
        const auto found = nullstellen(polynomial, {.von = 0, .bis = 100, .schritte = 20}).stellen;
        ASSERT_EQ(found.size(), roots.size()) << round;
        for (std::size_t i = 0; i < found.size(); ++i)
            EXPECT_NEAR(found[i].mitte(), roots[i], 1e-12 * 100) << round;
    }
}

TEST(NullstellenTest, ValuesThatCountAsZeroAreOneStretch)
{
    const auto steps = [](double x) { return std::floor(x / 3) - 10; }; // 0 from 30 to 33
    const Nullstellen stairs = nullstellen(steps, {.von = 0, .bis = 100, .schritte = 100, .toleranz = 0.5});
    ASSERT_EQ(stairs.stellen.size(), 1U);
    EXPECT_NEAR(stairs.stellen[0].von, 30, 1e-9);
    EXPECT_NEAR(stairs.stellen[0].bis, 33, 1e-9);
    const Suchbereich whole{.von = 0, .bis = 100, .schritte = 10, .toleranz = 1e-3};
    EXPECT_EQ(nullstellen([](double) { return 1e-4; }, whole).stellen, std::vector({Nullstelle{0, 100}}));
}

TEST(NullstellenTest, WithoutARootTheNearestPlaceIsNamed)
{
    const Suchbereich range{.von = 0, .bis = 100, .schritte = 50, .toleranz = 1e-9};
    const auto nearest = [&](const Funktion& f) { return nullstellen(f, range).naechste.value(); };
    EXPECT_NEAR(nearest([](double x) { return 1 + std::pow(x - 33.3, 2); }).x, 33.3, 1e-5) << "an extremum inside";
    EXPECT_EQ(nearest([](double x) { return -1 - x; }).x, 0) << "an end";
    EXPECT_NEAR(nearest([](double x) { return x < 20.1 ? NaN : x; }).y, 20.1, 1e-9) << "the end of a gap";
    EXPECT_FALSE(nullstellen([](double) { return NaN; }, range).naechste);
}

} // namespace zerna
