#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dokument/Lesefehler.h"
#include "dokument/Tabellenunterschied.h"
#include "model/dokument/Dokument.h"

/// The document as a file: a JSON text in UTF-8 that people can read. Its shape is in docs/zerna.schema.json; it counts
/// from 1 throughout.
namespace zerna {

inline constexpr int Dateiversion = 1;

/// What a file may hold besides being no larger than GroessteDatei; none beyond is read.
inline constexpr std::size_t LaengstesFeld = 32767; // characters, as in a field of the window
inline constexpr std::size_t LaengsteBemerkung = 1'000'000; // characters
inline constexpr std::size_t MeistFremdes = 1'000'000; // bytes of keys that the program does not know

/// The file of a document. Keys that a newer program has left in it come along. A file that would be too large for its
/// line breaks goes without them.
std::string schreibe(const Dokument& dokument);

/// The same in two steps: all but the measured points, which may be many and never change, is read now; the answer
/// makes the text and may be called once, by any thread.
std::function<std::string()> schreibeSpaeter(const Dokument& dokument);

/// What became of a file.
struct Lesung {
    std::optional<Dokument> dokument; ///< nothing if the file is broken, then there is an error
    Lesefehler fehler;
    std::vector<Tabellenunterschied> unterschiede; ///< to be kept or taken over before it is worked with
    std::string nurLesen; ///< why the file must not be written over, in sentences; empty if it may be
};

/// Reads a file. Whatever it holds, the answer is a document that can be worked with or an error; nothing is thrown.
Lesung lies(std::string_view text, const ElementCollection& elements);

} // namespace zerna
