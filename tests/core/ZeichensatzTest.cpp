#include "core/Zeichensatz.h"

#include <gtest/gtest.h>

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

} // namespace zerna
