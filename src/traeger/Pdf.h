#pragma once

#include <string_view>

#include "traeger/Dokumentfund.h"

namespace zerna {

/// Name and kind of the file that a PDF document carries as an attachment; whoever makes the document attaches it.
inline constexpr std::string_view Anhangname = "legierung.zerna";
inline constexpr std::string_view Anhangart = "application/vnd.zerna+json";

bool istPdf(std::string_view bytes);

/// The document attached to a PDF document; the last one if a change was appended, whatever other programs attached. It
/// is found by what it looks like, not through tables and lengths: programs that write the file anew build those their
/// own way.
Dokumentfund dokumentImPdf(std::string_view pdf);

} // namespace zerna
