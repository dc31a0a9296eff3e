#include "core/Namensnaehe.h"

#include <gtest/gtest.h>

namespace zerna {

TEST(NamensnaeheTest, SuggestsWhatMayHaveBeenMeant)
{
    const std::vector<std::string> namen{"reihe", "groessen", "Friedel-Wellenlänge", "Fermienergie", "Al", "Ar", "As",
        "Au", "Cu", "Kupfer", "dichte-kristallin", "dichte-fluessig", "--zweite-groesse"};
    const std::pair<const char*, const char*> rows[] = {
        {"riehe", "Meinten Sie reihe?"}, // swapped
        {"GRÖSEN", "Meinten Sie groessen?"}, // umlauts and capitals
        {"friedelwelenlaenge", "Meinten Sie Friedel-Wellenlänge?"},
        {"fermi", "Meinten Sie Fermienergie?"}, // its beginning
        {"dichte", "Meinten Sie dichte-kristallin oder dichte-fluessig?"},
        {"--zwei", "Meinten Sie --zweite-groesse?"},
        {"cx", "Meinten Sie Cu?"},
        {"Ax", ""}, // may be anyone
        {"C", ""},
        {"Qx", ""},
        {"ei", ""},
        {"drucken", ""},
        {"", ""},
        {"--", ""},
        {"\xC3", ""},
    };
    for (const auto& [text, sentence] : rows)
        EXPECT_EQ(vorschlag(text, namen), sentence) << text;
    EXPECT_EQ(vorschlag(std::string(100000, 'x'), namen), "");
}

TEST(NamensnaeheTest, CountsTheLettersToBeChanged)
{
    EXPECT_EQ(abstand("", "abc"), 3U);
    EXPECT_EQ(abstand("abcd", "acbd"), 1U);
    EXPECT_EQ(abstand("reihe", "eiche"), 2U);
    EXPECT_EQ(abstand("kitten", "sitting"), 3U);
}

} // namespace zerna
