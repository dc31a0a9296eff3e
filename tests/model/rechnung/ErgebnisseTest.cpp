#include "model/rechnung/Ergebnisse.h"

#include <gtest/gtest.h>

namespace zerna {

TEST(Friedelindex, WrapsAtUnequalBounds)
{
    for (const auto& [n, kept] : {std::pair(-1.0F, 20.0F), {0.0F, 0.0F}, {19.0F, 19.0F}, {20.0F, 0.0F}, {21.0F, 0.0F}})
        EXPECT_EQ(friedelindex(n), kept) << n;
}

TEST(Wertkopie, OfShownValues)
{
    for (const auto& [line, shown, unit, copied, number, whole] : {
             std::tuple(3, "1,4667 E-29 m³", "m³", "1.4667", "1,4667E-29", "1,4667 E-29 m³"),
             {10, "r(n) = 0,23891 nm", "nm", "0.23891", "0,23891", "0,23891 nm"},
             {13, "123,456 %", "%", "", "123,456", "123,456 %"}, // Intended: the copy loses seven characters here too
             {0, "e/a", "e/a", "e/a", "", "e/a"},
             {7, "", "eV", "", "", ""},
         }) {
        SCOPED_TRACE(shown);
        EXPECT_EQ(kopierteZahl(line, shown), copied);
        EXPECT_EQ(ganzeZahl(shown, unit), number);
        EXPECT_EQ(wertUndEinheit(shown), whole);
    }
}

} // namespace zerna
