#include "core/Zahlentext.h"

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

TEST(Zahlentext, WritesTheShortestTextThatReadsBack)
{
    const std::pair<float, const char*> rows[] = {{0.1F, "0,1"}, {1.0000001F, "1,0000001"},
        {1.5e14F, "150000000000000"}, {1e15F, "1E+15"}, {0.00012F, "0,00012"}, {1.5e-5F, "1,5E-5"},
        {Unbekannt, "-3E+38"}, {-0.0F, "0"}, {1e-45F, "1E-45"}};
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(textOfSingle(value), text);
        EXPECT_EQ(singleFromText(text), value);
        EXPECT_EQ(textOfSingle(value, Dezimaltrenner::Punkt), CommaToPoint(text));
    }
    const std::pair<double, const char*> doubles[] = {{999999999999999.9, "1E+15"},
        {-12345678901234.5, "-12345678901234,5"}, {0.1 + 0.2, "0,3"}, {2.0 / 3, "0,666666666666667"},
        {0.0001, "0,0001"}, {0.00001, "1E-5"}};
    for (const auto& [value, text] : doubles)
        EXPECT_EQ(textOfDouble(value), text);
    EXPECT_EQ(textWithDigits(63.300003, 7), "63,3");
    EXPECT_EQ(fixedText(-0.0004, 3), "0,000");
}

TEST(Zahlentext, ReadsWhatPeopleType)
{
    const std::string zeros(340, '0');
    const std::pair<std::string, double> numbers[] = {{"12,5", 12.5}, {"  12.5 ", 12.5}, {"-,5e+1", -5}, {"+5,", 5},
        {"007", 7}, {"123456789012345678", 123456789012345678}, {"1,5D-3", 0.0015}, {"&h1F", 31}, {"&HFFFFFFFF", -1},
        {"1e-400", 0}, {"1e-99999999999999999999", 0}, {"0," + zeros + "1e+10", 0}, {"0," + zeros + "1e341", 1},
        {std::string(500, ' ') + "1" + std::string(500, '0') + "e-500", 1}};
    for (const auto& [text, value] : numbers)
        EXPECT_DOUBLE_EQ(doubleFromText(text), value) << text;
    const std::pair<std::string, int> errors[] = {{"&H100000000", 6}, {"&H", 13}, {"1.234,5", 13}, {"", 13}, {"  ", 13},
        {"-", 13}, {"+-5", 13}, {",", 13}, {"1e+", 13}, {"5 g", 13}, {"inf", 13}, {"0x1F", 13}, {"1e400", 6},
        {"1" + zeros + "e-30", 6}};
    for (const auto& [text, error] : errors)
        EXPECT_EQ(errorNumber([&text = text] { doubleFromText(text); }), error) << text;
}

TEST(Zahlentext, ShowsAndReadsFields)
{
    const std::pair<float, const char*> shown[] = {{Unbekannt, ""}, {0.0F, ""}, {123.456F, "123,46 K"},
        {1000.0F, "1000 K"}, {1e6F, "10 E+5 K"}, {0.001F, "0,001 K"}, {123456.0F, "1,2346 E+5 K"},
        {6.022e-23F, "6,022 E-23 K"}, {99999.9F, "10 E+4 K"}, {-5.0F, "-5 E+00 K"}, {-3.4561e-11F, "-3,4561 E-11 K"}};
    for (const auto& [value, text] : shown)
        EXPECT_EQ(FormatValue(value, "K"), text);
    const std::pair<const char*, float> typed[] = {{".5", 0.5F}, {"12,5", 12.5F}, {"12.5", 12.5F}, {"", 0.0F},
        {"-5", Unbekannt}, {"+,5", Unbekannt}, {"abc", Unbekannt}, {".", Unbekannt}, {"1e39", Unbekannt}};
    for (const auto& [text, value] : typed)
        EXPECT_EQ(ParseValue(text), value) << text;
    EXPECT_EQ(CommaToPoint("1,2,3"), "1.2,3");
    EXPECT_EQ(ReplaceText("aXbx", "x", "xx", 1, 2147483647, 1), "axxbxx");
    EXPECT_EQ(FindLast("a.b.c", ".", 3) + FindLast("abc", "."), 2);
}

} // namespace zerna
