#include "core/Zeilenleser.h"

#include <vector>

#include <gtest/gtest.h>

namespace zerna {

namespace {

/// The lines of a text that comes in blocks of so many bytes; one that is too long as "NUMBER: LENGTH".
std::vector<std::string> linesOf(std::string_view text, std::size_t block)
{
    Zeilenleser zeilen([&](std::span<char> bytes) {
        EXPECT_FALSE(bytes.empty());
        const std::size_t count = text.copy(bytes.data(), std::min(block, bytes.size()));
        text.remove_prefix(count);
        return count;
    });
    std::vector<std::string> lines;
    while (const auto zeile = zeilen.next())
        lines.push_back(zeilen.zuLang() ? std::to_string(zeilen.nummer()) + ": " + std::to_string(zeile->size())
                                        : std::string(*zeile));
    return lines;
}

} // namespace

TEST(Zeilenleser, GivesTheSameLinesHoweverTheyCome)
{
    constexpr std::size_t Most = Zeilenleser::LaengsteZeile;
    const std::string longest(Most, 'x');
    const std::string tooLong = "2: " + std::to_string(Most);
    const struct {
        const char* name;
        std::string text;
        std::vector<std::string> lines;
    } rows[] = {{"nothing", "", {}}, {"ends", "a\nb\r\n\n\r\nc\rd\n", {"a", "b", "", "", "c\rd"}},
        {"last line without end", "a\nb", {"a", "b"}}, {"last line with CR", "a\r", {"a"}},
        {"byte order mark only in front", "\xEF\xBB\xBF#\n\xEF\xBB\xBF#", {"#", "\xEF\xBB\xBF#"}},
        {"longest", longest + "\r\n" + longest + "\nb", {longest, longest, "b"}},
        {"too long by one", "a\n" + longest + "y\nb\n", {"a", tooLong, "b"}},
        {"much too long", "a\n" + std::string(5 * Most, 'y') + "\nb", {"a", tooLong, "b"}},
        {"too long to the end", "a\n" + std::string(3 * Most, 'y'), {"a", tooLong}}};
    for (const auto& row : rows) {
        for (const std::size_t block : {std::size_t{1}, std::size_t{7}, Most, 10 * Most}) {
            SCOPED_TRACE(row.name + (" " + std::to_string(block)));
            EXPECT_EQ(linesOf(row.text, block), row.lines);
        }
    }
}

} // namespace zerna
