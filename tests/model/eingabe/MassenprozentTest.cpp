#include "model/eingabe/Massenprozent.h"

#include <random>

#include "core/Unbekannt.h"
#include "support/RechnerTest.h"

namespace zerna {

struct MassenprozentTest : RechnerTest {
    using Prozente = std::vector<double>;
};

/// Duralumin, 4 mass % copper and 1 mass % magnesium, worked out by hand.
TEST_F(MassenprozentTest, KnownAlloysAndWhatHasNoMass)
{
    const std::vector<float> dural{26.981538F, 63.546F, 24.305F};
    const Prozente atoms = atomprozente(Prozente{95, 4, 1}, dural);
    EXPECT_NEAR(atoms[0], 97.1286, 1e-4);
    EXPECT_NEAR(atoms[1], 1.7364, 1e-4);
    EXPECT_NEAR(atoms[2], 1.1350, 1e-4);
    EXPECT_NEAR(massenprozente(Prozente{50, 50}, std::vector{27.0F, 63.0F})[0], 30, 1e-12);
    EXPECT_EQ(massenprozente(Prozente{100}, std::vector{27.0F}), Prozente{100});
    const Prozente part = massenprozente(Prozente{20, 30}, std::vector{60.0F, 40.0F});
    EXPECT_NEAR(part[0] + part[1], 50, 1e-12) << "the sum stays";

    const Prozente unknown{Unbekannt, Unbekannt};
    for (const auto& massen : {std::vector{27.0F, Unbekannt}, {0.0F, 27.0F}, {-1.0F, 27.0F}}) {
        EXPECT_EQ(massenprozente(Prozente{50, 50}, massen), unknown) << massen[1];
        EXPECT_EQ(atomprozente(Prozente{50, 50}, massen), unknown) << massen[1];
    }
    EXPECT_EQ(atomprozente(Prozente{-50, 150}, std::vector{1.0F, 56.0F}), unknown) << "less than no matter";
    EXPECT_EQ(atomprozente(Prozente{0, 0}, std::vector{1.0F, 56.0F}), unknown);
    EXPECT_EQ(massenprozente(Prozente{1e308, 1e308}, std::vector{100.0F, 56.0F}), unknown);
}

TEST_F(MassenprozentTest, ThereAndBackGivesTheSameSingle)
{
    addElements();
    std::mt19937 random(20261122); // NOLINT(*-msc51-cpp): the same alloys each time
    std::uniform_real_distribution<float> part(0, 100);
    std::uniform_int_distribution<int> components(1, 5);
    for (int alloy = 0; alloy < 10'000; ++alloy) {
        Prozente given;
        std::vector<float> massen;
        for (int i = components(random); i > 0; --i) {
            given.push_back(part(random));
            massen.push_back(elements.Item(std::uniform_int_distribution<int>(1, elements.Count())(random))->Masse());
        }
        const Prozente back = atomprozente(massenprozente(given, massen), massen);
        for (std::size_t i = 0; i < given.size(); ++i)
            ASSERT_EQ(static_cast<float>(back[i]), static_cast<float>(given[i])) << alloy;
    }
}

} // namespace zerna
