#include "core/Anzeigetext.h"

#include <gtest/gtest.h>

#include "core/Kuerzung.h"

namespace zerna {

TEST(Anzeigetext, ShowsMinusSignsAndPowersOfNumbersAlone)
{
    const std::pair<const char*, const char*> rows[] = {{"-4,7942 E-10 m³/As", "−4,7942·10⁻¹⁰ m³/As"},
        {"1,1463 E+5 K", "1,1463·10⁵ K"}, {"-5 E+00 V", "−5 V"}, {"-6,0556 E+01", "−6,0556·10¹"},
        {"1,5E-7", "1,5·10⁻⁷"}, {"1E+15 1/cm³", "1·10¹⁵ 1/cm³"}, {"r(n) = -0,5 nm", "r(n) = −0,5 nm"},
        {"42,50 at% Fe - 1,2 E+4 K", "42,50 at% Fe - 1,2·10⁴ K"}, {"Al   OZ 13   -3E+38", "Al   OZ 13   −3·10³⁸"},
        {"Dichte (kristallin - flüssig)", "Dichte (kristallin - flüssig)"}, {"0-3 3/2 z_1-1", "0-3 3/2 z_1-1"},
        {"5 Elektronen E-", "5 Elektronen E-"}, {"21.11.2026", "21.11.2026"}, {"-", "-"}, {"", ""}};
    for (const auto& [text, shown] : rows)
        EXPECT_EQ(anzeigetext(text), shown);
}

TEST(Kuerzung, CutsBetweenCharacters)
{
    for (const auto& [length, text] : {std::pair(18, "äöüäöüäöü"), {9, "äöü…ü"}, {8, "äö…ü"}, {0, "…"}})
        EXPECT_EQ(gekuerzt("äöüäöüäöü", static_cast<std::size_t>(length)), text);
}

} // namespace zerna
