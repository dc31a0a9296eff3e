#include "traeger/Png.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include <zlib.h>

#include "core/Laufzeitfehler.h"
#include "core/Zeichensatz.h"
#include "traeger/Entpacken.h"

namespace zerna {

namespace {

using namespace std::string_view_literals;

constexpr auto Signature = "\x89PNG\r\n\x1A\n"sv;
constexpr auto Keyword = "zerna"sv;
constexpr std::size_t AroundData = 12; // of a chunk: length, type and checksum, four bytes each
constexpr std::size_t HeaderChunk = AroundData + 13;

std::uint32_t numberAt(std::string_view bytes, std::size_t position)
{
    std::uint32_t number = 0;
    for (const char byte : bytes.substr(position, 4))
        number = number << 8U | static_cast<unsigned char>(byte);
    return number;
}

std::string bytesOf(std::uint32_t number)
{
    std::string bytes;
    for (unsigned shift = 32; shift > 0;)
        bytes += static_cast<char>(number >> (shift -= 8));
    return bytes;
}

std::uint32_t checksum(std::string_view bytes)
{
    return static_cast<std::uint32_t>(crc32_z(0, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

/// A part of the picture.
struct Chunk {
    std::string_view type;
    std::string_view data;
    bool intact = false;
};

/// Takes the next chunk off the bytes; no value where the file ends too early.
std::optional<Chunk> takeChunk(std::string_view& rest)
{
    const std::size_t length = rest.size() < AroundData ? 0 : numberAt(rest, 0);
    if (rest.size() < AroundData || length > rest.size() - AroundData)
        return std::nullopt;
    const std::string_view checked = rest.substr(4, 4 + length);
    const Chunk chunk{checked.substr(0, 4), checked.substr(4), checksum(checked) == numberAt(rest, 8 + length)};
    rest.remove_prefix(AroundData + length);
    return chunk;
}

/// Takes the text before the next 0 off the bytes, all of them if there is none.
std::string_view takeText(std::string_view& rest)
{
    const std::string_view text = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(std::min(rest.size(), text.size() + 1));
    return text;
}

bool isOurs(const Chunk& chunk)
{
    const bool isText = chunk.type == "iTXt" || chunk.type == "zTXt" || chunk.type == "tEXt";
    return isText && chunk.data.starts_with(Keyword) && chunk.data.substr(Keyword.size()).starts_with('\0');
}

/// The text of one of our chunks, byte by byte; no value if it is damaged.
std::optional<std::string> bytesIn(const Chunk& chunk)
{
    std::string_view rest = chunk.data;
    takeText(rest);
    bool packed = chunk.type == "zTXt";
    if (chunk.type == "iTXt") {
        packed = rest.starts_with('\1');
        rest = rest.substr(std::min<std::size_t>(rest.size(), 2));
        takeText(rest); // language
        takeText(rest); // the keyword in that language
    } else if (packed) {
        rest = rest.substr(std::min<std::size_t>(rest.size(), 1));
    }
    if (!packed)
        return std::string(rest);
    Entpackt text = entpackt(rest);
    return text.vollstaendig ? std::optional(std::move(text.bytes)) : std::nullopt;
}

/// Intended: only iTXt is UTF-8 by definition. The others are Latin-1, yet some programs put UTF-8 into them unchanged.
Dokumentfund fundIn(const Chunk& chunk)
{
    if (auto text = chunk.intact ? bytesIn(chunk) : std::nullopt)
        return {Dateiart::Png, chunk.type == "iTXt" || istUtf8(*text) ? std::move(text) : fromWindows1252(*text), {}};
    return {Dateiart::Png, {}, "Die Legierung in dem PNG-Bild ist beschädigt."};
}

} // namespace

std::string pngMitDokument(std::string_view png, std::string_view dokument)
{
    if (!istPng(png) || png.size() < Signature.size() + HeaderChunk)
        throw Laufzeitfehler(Fehler::UngueltigesArgument);
    const std::string chunk = std::string("iTXt").append(Keyword).append("\0\1\0\0\0"sv) + gepackt(dokument);
    const std::size_t place = Signature.size() + HeaderChunk;
    return std::string(png.substr(0, place)) + bytesOf(static_cast<std::uint32_t>(chunk.size() - 4)) + chunk
        + bytesOf(checksum(chunk)) + std::string(png.substr(place));
}

bool istPng(std::string_view bytes) { return bytes.starts_with(Signature); }

Dokumentfund dokumentImPng(std::string_view png)
{
    std::string_view rest = png.substr(Signature.size());
    while (const auto chunk = takeChunk(rest)) {
        if (isOurs(*chunk))
            return fundIn(*chunk);
        if (chunk->type == "IEND")
            return {Dateiart::Png, {}, keineLegierungIn("dem PNG-Bild")};
    }
    return {Dateiart::Png, {}, "Das PNG-Bild ist beschädigt: Es endet zu früh."};
}

} // namespace zerna
