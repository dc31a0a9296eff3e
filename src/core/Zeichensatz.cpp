#include "core/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace zerna {

namespace {

/// Code points of the bytes 80 to 9F; all other bytes are their own code point.
constexpr std::array<std::uint16_t, 32> Sonderzeichen{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isAscii(std::string_view text)
{
    constexpr std::uint64_t HighBits = 0x8080808080808080;
    std::uint64_t bits = 0; // of eight bytes at a time, then of the rest
    for (std::uint64_t eight = 0; text.size() >= sizeof eight; text.remove_prefix(sizeof eight)) {
        std::memcpy(&eight, text.data(), sizeof eight);
        bits |= eight;
    }
    for (const char c : text)
        bits |= static_cast<unsigned char>(c);
    return (bits & HighBits) == 0;
}

char byteOf(std::uint32_t codePoint)
{
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
        return static_cast<char>(codePoint);
    const auto* const special = std::ranges::find(Sonderzeichen, codePoint);
    return special == Sonderzeichen.end() ? '?' : static_cast<char>(0x80 + (special - Sonderzeichen.begin()));
}

constexpr std::uint32_t Damaged = 0xFFFFFFFF;

/// Decodes the character that begins at `position` and moves on behind it; Damaged for a damaged sequence, which is
/// passed over up to the next byte that can begin a character.
std::uint32_t nextCodePoint(std::string_view utf8, std::size_t& position)
{
    const auto lead = static_cast<unsigned char>(utf8[position++]);
    if (lead < 0x80)
        return lead;
    std::size_t following = 0;
    std::uint32_t codePoint = 0;
    if (lead >= 0xC2 && lead < 0xE0) {
        following = 1;
        codePoint = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        following = 2;
        codePoint = lead & 0x0FU;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        following = 3;
        codePoint = lead & 0x07U;
    }
    constexpr std::array<std::uint32_t, 4> Smallest{0, 0x80, 0x800, 0x10000}; // of so many following bytes
    const std::uint32_t smallest = Smallest.at(following);
    bool damaged = following == 0;
    for (; position < utf8.size() && !beginntZeichen(utf8[position]); ++position) {
        if (following == 0) {
            damaged = true;
            continue;
        }
        codePoint = codePoint << 6U | (static_cast<unsigned char>(utf8[position]) & 0x3FU);
        --following;
    }
    return damaged || following != 0 || codePoint < smallest ? Damaged : codePoint;
}

} // namespace

void appendUtf8(std::string& text, std::uint32_t codePoint)
{
    const auto following = [&](unsigned shift) { text += static_cast<char>(0x80U | (codePoint >> shift & 0x3FU)); };
    if (codePoint < 0x80) {
        text += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        text += static_cast<char>(0xC0U | codePoint >> 6U);
        following(0);
    } else if (codePoint < 0x10000) {
        text += static_cast<char>(0xE0U | codePoint >> 12U);
        following(6);
        following(0);
    } else {
        text += static_cast<char>(0xF0U | codePoint >> 18U);
        following(12);
        following(6);
        following(0);
    }
}

std::string toWindows1252(std::string_view utf8)
{
    if (isAscii(utf8))
        return std::string(utf8);
    std::string bytes;
    bytes.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();)
        bytes += byteOf(nextCodePoint(utf8, position));
    return bytes;
}

std::optional<Fremdzeichen> fremdzeichen(std::string_view utf8)
{
    for (std::size_t position = 0; position < utf8.size();) {
        const std::size_t begin = position;
        const std::uint32_t codePoint = nextCodePoint(utf8, position);
        if (codePoint != '?' && byteOf(codePoint) == '?')
            return Fremdzeichen{utf8.substr(begin, position - begin), codePoint == Damaged};
    }
    return std::nullopt;
}

bool istUtf8(std::string_view text)
{
    for (std::size_t position = 0; position < text.size();)
        if (nextCodePoint(text, position) == Damaged)
            return false;
    return true;
}

std::string fromWindows1252(std::string_view bytes)
{
    std::string text;
    readWindows1252(bytes, text);
    return text;
}

void readWindows1252(std::string_view bytes, std::string& text)
{
    if (isAscii(bytes)) {
        text.assign(bytes);
        return;
    }
    text.clear();
    text.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const bool special = byte >= 0x80 && byte < 0xA0;
        appendUtf8(text, special ? Sonderzeichen.at(byte - 0x80U) : byte);
    }
}

std::size_t zeichenzahl(std::string_view utf8)
{
    return static_cast<std::size_t>(std::ranges::count_if(utf8, beginntZeichen));
}

std::size_t zeichenbeginn(std::string_view utf8, std::size_t index)
{
    std::size_t byte = 0;
    while (byte < utf8.size() && (index > 0 || !beginntZeichen(utf8[byte]))) {
        if (beginntZeichen(utf8[byte++]))
            --index;
    }
    return byte;
}

std::string lowerCase(std::string_view utf8)
{
    std::string result(utf8);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const char lead = i == 0 ? '\0' : result[i - 1];
        char& c = result[i];
        const auto byte = static_cast<unsigned char>(c);
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        } else if (lead == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97) { // À to Þ without ×
            c = static_cast<char>(byte + 0x20);
        } else if (lead == '\xC5' && (byte == 0xA0 || byte == 0x92 || byte == 0xBD)) { // Š, Œ, Ž
            c = static_cast<char>(byte + 1);
        } else if (lead == '\xC5' && byte == 0xB8) { // Ÿ
            result.replace(i - 1, 2, "ÿ");
        }
    }
    return result;
}

} // namespace zerna
