#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Text inside the program is UTF-8, text in files is Windows-1252, one byte per character.
namespace zerna {

/// Appends a character, by its number in Unicode.
void appendUtf8(std::string& text, std::uint32_t codePoint);

/// UTF-8 to Windows-1252; a character that has no place there, and a damaged UTF-8 sequence, becomes "?".
std::string toWindows1252(std::string_view utf8);

/// A character that toWindows1252 makes a "?".
struct Fremdzeichen {
    std::string_view zeichen;
    bool beschaedigt = false; ///< no UTF-8 at all
};

/// The first such character of a text.
std::optional<Fremdzeichen> fremdzeichen(std::string_view utf8);

/// Whether no sequence of a text is damaged.
bool istUtf8(std::string_view text);

/// Windows-1252 to UTF-8. The five bytes without a character (81, 8D, 8F, 90, 9D) become the control characters of
/// the same number, so that every byte text survives there and back.
std::string fromWindows1252(std::string_view bytes);

/// The same into an existing text.
void readWindows1252(std::string_view bytes, std::string& text);

/// Whether a byte of a UTF-8 text begins a character.
constexpr bool beginntZeichen(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80; }

/// Number of characters.
std::size_t zeichenzahl(std::string_view utf8);

/// The byte at which character `index` (from 0) begins, the end of the text if it has no more than that.
std::size_t zeichenbeginn(std::string_view utf8, std::size_t index);

/// The text with all letters that Windows-1252 knows in lower case: "ÄŠ" gives "äš".
std::string lowerCase(std::string_view utf8);

} // namespace zerna
