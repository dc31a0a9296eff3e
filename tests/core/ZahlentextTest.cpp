#include "core/Zahlentext.h"

#include <random>

#include "core/Unbekannt.h"
#include "support/FilesTest.h"

namespace zerna {

TEST(Zahlentext, WritesTheShortestTextThatReadsBack)
{
    const std::pair<float, const char*> rows[] = {{0.1F, "0,1"}, {1.0000001F, "1,0000001"},
        {1.5e14F, "150000000000000"}, {1e15F, "1E+15"}, {0.00012F, "0,00012"}, {1.5e-5F, "1,5E-5"},
        {Unbekannt, "-3E+38"}, {-0.0F, "0"}, {1e-45F, "1E-45"}, {1e-4F, "0,0001"}, {9.999999e-5F, "9,999999E-5"},
        {-8388607.5F, "-8388607,5"}, {16777218.0F, "16777218"}, {33554450.0F, "33554450"}};
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
    const std::pair<double, const char*> exact[] = {{0.1 + 0.2, "0,30000000000000004"}, {-1e15, "-1E+15"},
        {123456789012345, "123456789012345"}, {5e-324, "5E-324"}, {-0.0, "0"},
        {std::numeric_limits<double>::infinity(), ""}};
    for (const auto& [value, text] : exact) {
        std::string all = "x";
        appendDouble(all, value);
        EXPECT_EQ(all, std::string("x") + text);
        EXPECT_TRUE(*text == '\0' || doubleFromText(text) == value) << text;
    }
    for (const float value : {HUGE_VALF, -HUGE_VALF, NAN}) {
        const double wide = value;
        EXPECT_EQ(textOfSingle(value) + textOfDouble(wide) + textWithDigits(value, 4) + textWithDigits(wide, 4)
                + fixedText(value, 2) + fixedText(wide, 2) + scientificText(wide, 2, " ", false),
            "")
            << "no number that looks right";
    }
    EXPECT_EQ(textWithDigits(63.300003, 7), "63,3");
    EXPECT_EQ(textWithDigits(1000000000000000100000.0, 17), "1,0000000000000001E+21");
}

TEST(Zahlentext, RoundsTiesAwayFromZeroInEveryPattern)
{
    const std::tuple<double, int, const char*> fixed[] = {{12.125, 2, "12,13"}, {12.125 - 2e-15, 2, "12,13"},
        {0.5, 0, "1"}, {2.5, 0, "3"}, {0.0625, 3, "0,063"}, {0.0005, 3, "0,001"}, {0.00049, 3, "0,000"},
        {9.9995, 3, "10,000"}, {0.95, 1, "1,0"}, {1e20, 1, "100000000000000000000,0"}, {0.285, 2, "0,29"},
        {1234.5, 2, "1234,50"}, {0, 2, "0,00"}, {1e-300, 2, "0,00"}};
    for (const auto& [value, decimals, text] : fixed) {
        const bool isZero = std::string_view(text).find_first_of("123456789") == std::string_view::npos;
        EXPECT_EQ(fixedText(value, decimals), text);
        EXPECT_EQ(fixedText(-value, decimals), (isZero ? "" : "-") + std::string(text));
    }
    EXPECT_EQ(fixedText(0.285F, 2) + fixedText(-1.005F, 2), "0,29-1,01") << "a single is its shortest text";
    EXPECT_EQ(textWithDigits(-0.62495, 4) + textWithDigits(999.95F, 4),
        "-0,625"
        "1000");
    EXPECT_EQ(scientificText(-1.125e-5, 2, " ", false) + scientificText(9.995, 2, "", true), "-1,13 E-051E+01");
    const std::pair<float, const char*> both[] = {
        {1.03125F, "1,0313"}, {1.00005F, "1"}, {1.00015F, "1,0001"}, {2.71825F, "2,7183"}, {1.5F, "1,5"}};
    for (const auto& [value, mantissa] : both) {
        EXPECT_EQ(FormatValue(value, ""), std::string(mantissa) + " ");
        EXPECT_EQ(FormatValue(-value, ""), "-" + std::string(mantissa) + " E+00 ");
    }
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
    float single = 0;
    EXPECT_TRUE(readSingle("12,5", single));
    for (const std::string text : {"1e39", "1e400", "1.234,5", ""})
        EXPECT_FALSE(readSingle(text, single)) << text;
    EXPECT_EQ(single, 12.5F) << "left alone";
    const std::pair<std::string, int> errors[] = {{"&H100000000", 6}, {"&H", 13}, {"1.234,5", 13}, {"", 13}, {"  ", 13},
        {"-", 13}, {"+-5", 13}, {",", 13}, {"1e+", 13}, {"5 g", 13}, {"inf", 13}, {"0x1F", 13}, {"1e400", 6},
        {"1" + zeros + "e-30", 6}};
    for (const auto& [text, error] : errors)
        EXPECT_EQ(errorNumber([&text = text] { doubleFromText(text); }), error) << text;
}

TEST(Zahlentext, ReadsPlainNumbersAsExactlyAsAnyOther)
{
    std::mt19937 random(1);
    for (int i = 0; i < 50000; ++i) {
        std::string text = std::to_string(random() * (std::uint64_t{1} << 20U));
        text = std::string(random() % 4, '0').append(text, 0, 1 + random() % 11);
        if (const std::size_t place = random() % 20; place <= text.size())
            text.insert(place, 1, random() % 2 == 0 ? ',' : '.');
        double value = 0;
        ASSERT_TRUE(readPlainNumber(text, value)) << text;
        ASSERT_EQ(value, doubleFromText(text + "e0")) << text;
    }
    double untouched = 7;
    for (const char* const text : {"", ",", "1,2.3", "-1", "+1", " 1", "1e3", "&H1", "1234567890123456", "z_Cu"})
        EXPECT_FALSE(readPlainNumber(text, untouched)) << text;
    EXPECT_EQ(untouched, 7);
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
    EXPECT_EQ(ReplaceText("ÄÖ ÄÖ", "äö", "é", 2, 1, 1), "äö é");
    const std::tuple<const char*, const char*, std::optional<int>, int> finds[] = {{"a.b.c", ".", 3, 2},
        {"abc", ".", {}, 0}, {"Größe², Größe²", "ß", {}, 12}, {"Größe²", "²", 5, 0}, {"Größe²", "²", 99, 6},
        {"ö", "ö", 0, 0}, {"", "", {}, 0}};
    for (const auto& [text, find, start, position] : finds)
        EXPECT_EQ(FindLast(text, find, start), position) << text;
}

} // namespace zerna
