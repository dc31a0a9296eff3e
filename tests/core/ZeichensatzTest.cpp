#include "core/Zeichensatz.h"

#include <gtest/gtest.h>

#include "core/Textbytes.h"

namespace zerna {

TEST(Zeichensatz, EveryByteSurvivesAndWhatHasNoPlaceBecomesAQuestionMark)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes{'a', static_cast<char>(byte), 'b'};
        EXPECT_EQ(toWindows1252(fromWindows1252(bytes)), bytes) << byte;
    }
    const std::pair<const char*, const char*> rows[] = {{"Größ", "Gr\xF6\xDF"}, {"€„ž", "\x80\x84\x9E"},
        {"日²", "?\xB2"}, {"\xF0\x9F\x98\x80x", "?x"}, {"a\xC3", "a?"}, {"\xBF x", "? x"}, {"\xE0\x81\x81", "?"}};
    for (const auto& [utf8, bytes] : rows)
        EXPECT_EQ(toWindows1252(utf8), bytes) << utf8;
}

TEST(Zeichensatz, LettersAreFoldedAndCharactersCounted)
{
    EXPECT_EQ(lowerCase("AZ[ÀÖ×ÞßÿŠŒŽŸ€Å"), "az[àö×þßÿšœžÿ€å");
    EXPECT_EQ(zeichenbeginn("äb", 1), 2U);
}

TEST(Zeichensatz, TextFilesAreReadInAnyEncoding)
{
    using namespace std::string_view_literals;
    const std::pair<std::string_view, const char*> rows[] = {{"\xEF\xBB\xBF"
                                                              "ä",
                                                                 "ä"},
        {"ä€", "ä€"}, {"\xE4\x80", "ä€"}, {"\xFF\xFE\x3D\xD8\x00\xDE\xE4\x00\x00\xD8x\x00"sv, "😀ä?x"},
        {"\xFE\xFF\x20\xAC\xDC\x00"sv, "€?"},
        {"\0"
         "a\0\xE4\0"sv,
            "aä"},
        {"", ""}};
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(textAusBytes(bytes), text);
    EXPECT_EQ(textAusBytes("ab\0"sv), std::nullopt);
}

} // namespace zerna
