#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zerna {

/// What a file is by its content, whatever its name.
enum class Dateiart {
    Fremd, ///< nothing that could carry a document
    Dokument, ///< the document itself
    Png,
    Svg, ///< also packed (SVGZ)
    Pdf,
};

/// The document that a file holds, UTF-8 as it was put in, or why there is none.
struct Dokumentfund {
    Dateiart art = Dateiart::Fremd;
    std::optional<std::string> dokument;
    std::string grund; ///< German sentences for the user; empty if there is a document
};

/// The document in a file's bytes: the file itself if it looks like one (JSON), else the one that a picture carries.
/// Whether the document makes sense is for its reader to say. Any bytes are safe; none throw.
Dokumentfund dokumentAus(std::string_view bytes);

/// The reason where a sound picture carries none; `traeger` is for example "dem PNG-Bild".
std::string keineLegierungIn(std::string_view traeger);

} // namespace zerna
