#include "bild/Rundteilung.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zerna {

TEST(RundteilungTest, ValuesAreRoundAndBetweenFiveAndTen)
{
    const struct {
        const char* name;
        Bereich range;
        int most;
        const char* labels;
        std::size_t minor;
        int power;
    } rows[] = {
        {"percent", {0, 100}, 10, "0|20|40|60|80|100|", 21, 0},
        {"little room", {0, 100}, 3, "0|50|100|", 11, 0},
        {"across zero", {-0.35, 0.3}, 10, "-0,3|-0,2|-0,1|0|0,1|0,2|0,3|", 33, 0},
        {"a narrow range far from zero", {9.4831, 9.4836}, 10, "9,4831|9,4832|9,4833|9,4834|9,4835|9,4836|", 26, 0},
        {"small", {1.2e-11, 6.8e-11}, 10, "2|3|4|5|6|", 29, -11},
        {"large", {0, 250000}, 10, "0|0,5|1,0|1,5|2,0|2,5|", 26, 5},
        {"nothing", {1, 1}, 10, "", 0, 0},
        {"too far from zero to count in steps", {1e20, 1e20 + 32768}, 10, "", 0, 20},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Rundteilung teilung = rundteilung(row.range, row.most);
        std::string labels;
        for (const double value : teilung.haupt)
            labels += rundtext(value, teilung, true, Dezimaltrenner::Komma) + '|';
        EXPECT_EQ(labels, row.labels);
        EXPECT_EQ(teilung.neben.size(), row.minor);
        EXPECT_EQ(teilung.zehner, row.power);
    }
    for (double span = 1e-12; span < 1e12; span *= 1.37) {
        const Rundteilung teilung = rundteilung({-0.3 * span, 0.7 * span}, 10);
        EXPECT_TRUE(teilung.haupt.size() >= 5 && teilung.haupt.size() <= 10) << span;
    }
}

TEST(RundteilungTest, PowersOfTenStandBesideTheUnitOrInEveryLabel)
{
    const Rundteilung teilung = rundteilung({1.2e-11, 6.8e-11}, 10);
    EXPECT_EQ(rundtext(3e-11, teilung, false, Dezimaltrenner::Punkt), "3 E-11");
    EXPECT_EQ(titelMitZehner("R_H [m³/As]", -11), "R_H [10⁻¹¹ m³/As]");
    EXPECT_EQ(titelMitZehner("Zahl", 5), "Zahl · 10⁵");
    EXPECT_EQ(titelMitZehner("R [m]", 0), "R [m]");
}

} // namespace zerna
