#include "core/Textbytes.h"

#include <cstddef>
#include <cstdint>

#include "core/Zeichensatz.h"

namespace zerna {

namespace {

constexpr bool isHighSurrogate(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowSurrogate(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// A surrogate without its partner becomes "?".
std::string fromUtf16(std::string_view bytes, bool littleEndian)
{
    const auto unitAt = [&](std::size_t i) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        return static_cast<std::uint32_t>(littleEndian ? second << 8U | first : first << 8U | second);
    };
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const std::uint32_t unit = unitAt(i);
        if (!isHighSurrogate(unit)) {
            appendUtf8(text, isLowSurrogate(unit) ? '?' : unit);
        } else if (i + 3 < bytes.size() && isLowSurrogate(unitAt(i + 2))) {
            appendUtf8(text, 0x10000 + ((unit - 0xD800) << 10U) + (unitAt(i + 2) - 0xDC00));
            i += 2;
        } else {
            appendUtf8(text, '?');
        }
    }
    return text;
}

bool hasWideMark(std::string_view bytes) { return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"); }

std::string decoded(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    else if (hasWideMark(bytes))
        return fromUtf16(bytes.substr(2), bytes.starts_with("\xFF"));
    else if (istUtf16(bytes))
        return fromUtf16(bytes, bytes[1] == '\0');
    return istUtf8(bytes) ? std::string(bytes) : fromWindows1252(bytes);
}

} // namespace

bool istUtf16(std::string_view bytes)
{
    using namespace std::string_view_literals;
    if (hasWideMark(bytes))
        return true;
    const bool beginsWide = bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0');
    return beginsWide && !bytes.substr(2).starts_with("\0\0"sv); // else a number of four bytes
}

std::optional<std::string> textAusBytes(std::string_view bytes)
{
    std::string text = decoded(bytes);
    return text.find('\0') == std::string::npos ? std::optional(std::move(text)) : std::nullopt;
}

} // namespace zerna
