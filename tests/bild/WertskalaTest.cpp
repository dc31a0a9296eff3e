#include "bild/Wertskala.h"

#include <gtest/gtest.h>

#include "core/Unbekannt.h"

namespace zerna {

TEST(WertskalaTest, OutliersDoNotPushAllOthersTogether)
{
    struct Row {
        const char* name;
        std::vector<float> werte;
        Skalenart art;
        float wert;
        double position;
    };
    const Row rows[]{
        {"even", {1, 2, 3, 4, 5, 6, 7, 8, Unbekannt, 9}, Skalenart::Linear, 3, 0.25},
        {"one large outlier", {1, 2, 4, 8, 16, 32, 64, 128, 4096, Unbekannt}, Skalenart::Logarithmisch, 64, 0.5},
        {"negative ones", {-4096, -128, -64, -32, -16, -8, -4, -2, -1}, Skalenart::Logarithmisch, -64, 0.5},
        {"with other signs", {-1, 0, 1, 2, 3, 4, 5, 6, 1000}, Skalenart::Rang, 3, 0.5},
        {"that no logarithm spreads", {1, 100, 101, 102, 103, 104, 105, 106, 1e9F}, Skalenart::Rang, 103, 0.5},
        {"equal ranks", {0, 0, 1, 1, 2, 3, 4, 5, 6, 7, 900}, Skalenart::Rang, 1, 2 / 9.5},
        {"few different ones", {1, 2, 2, 2, 2, 2, 2, 2, 2, 3, 1000}, Skalenart::Linear, 2, 1.0 / 999},
        {"all the same", {7, 7, 7, 7, 7, 7, 7, 7}, Skalenart::Linear, 7, 0.5},
    };
    for (const Row& row : rows) {
        const Wertskala skala(row.werte);
        EXPECT_EQ(skala.art(), row.art) << row.name;
        EXPECT_NEAR(skala.position(row.wert), row.position, 1e-9) << row.name;
    }
    EXPECT_EQ(Wertskala(std::vector{1.F, 2.F, 4.F, 8.F, 16.F, 32.F, 64.F, 128.F, 4096.F}).mitte(), 64);
    EXPECT_EQ(Wertskala(std::vector{Unbekannt}).mitte(), 0);
}

} // namespace zerna
