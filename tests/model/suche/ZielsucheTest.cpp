#include "model/suche/Zielsuche.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/Unbekannt.h"

namespace zerna {

TEST(ZielsucheTest, RoundAnswersWhereSinglePrecisionAllowsThem)
{
    const auto flat = [](double x) { return static_cast<float>(5.5 + 3e-5 * x); }; // steps of 0,016 at%
    const auto steep = [](double x) { return static_cast<float>(std::pow(x / 100, 2.0 / 3) * 9); };
    struct Row {
        const char* name;
        Reihenwert wert;
        double ziel;
        std::vector<double> prozente;
        double within;
    };
    for (const auto& [name, wert, ziel, prozente, within] : {
             Row{"the value of a round composition", flat, flat(60), {60}, 0},
             Row{"the value of an end", flat, flat(100), {100}, 0},
             Row{"the value of the other end", flat, flat(0), {0}, 0},
             Row{"as good as some steps", flat, 5.5 + 3e-5 * 12.3456, {12.3456}, 0.05},
             Row{"a typed value", steep, 4.5, {100 * std::pow(0.5, 1.5)}, 1e-4},
             Row{"where the curve is vertical", steep, 0, {0}, 0},
         }) {
        SCOPED_TRACE(name);
        const Zielantwort antwort = sucheZiel(wert, ziel);
        ASSERT_EQ(antwort.loesungen.size(), prozente.size());
        for (std::size_t i = 0; i < prozente.size(); ++i)
            EXPECT_NEAR(antwort.loesungen[i].prozent, prozente[i], within);
        EXPECT_FALSE(antwort.naechste);
    }
}

TEST(ZielsucheTest, EveryNoneAndTheNearest)
{
    EXPECT_EQ(sucheZiel([](double) { return 2.5F; }, 2.5), (Zielantwort{{}, true, {}}));
    const auto bow = [](double x) { return x < 10 ? Unbekannt : static_cast<float>(4 - std::pow(x / 100 - 0.25, 2)); };
    EXPECT_EQ(sucheZiel(bow, 3.9).loesungen.size(), 1U) << "the other is where there is no value";
    EXPECT_EQ(sucheZiel(bow, 3.98).loesungen.size(), 2U);
    const Zielantwort none = sucheZiel(bow, 5);
    EXPECT_TRUE(none.loesungen.empty());
    EXPECT_NEAR(none.naechste.value().prozent, 25, 0.1);
    EXPECT_FLOAT_EQ(none.naechste.value().wert, 4);
    EXPECT_EQ(sucheZiel([](double) { return Unbekannt; }, 1), Zielantwort());
}

} // namespace zerna
