#include "model/rechnung/Werttext.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/Unbekannt.h"

namespace zerna {

TEST(WerttextTest, ZeroIsANumberAndUnknownIsNone)
{
    const std::tuple<const char*, float, const char*, const char*> rows[] = {
        {"zero", 0, "", "0"},
        {"negative zero with unit", -0.0F, "eV", "0 eV"},
        {"no blank where no unit follows", 602.2e21F, "", "6,022 E+23"},
        {"unit", 123.456F, "K", "123,46 K"},
        {"unknown", Unbekannt, "K", ""},
        {"infinite", std::numeric_limits<float>::infinity(), "K", ""},
    };
    for (const auto& [name, value, unit, text] : rows)
        EXPECT_EQ(werttext(value, unit), text) << name;
}

} // namespace zerna
