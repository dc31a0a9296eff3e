#pragma once

#include <string>
#include <string_view>

#include "traeger/Dokumentfund.h"

namespace zerna {

/// The picture with the document in it, as packed international text (iTXt) of the keyword "zerna" in front of all that
/// is drawn: programs that know nothing of it pass over it. Error 5 if the bytes do not begin like a PNG picture.
std::string pngMitDokument(std::string_view png, std::string_view dokument);

bool istPng(std::string_view bytes);

/// The document in such a picture; also where another program has stored the text anew as tEXt or zTXt.
Dokumentfund dokumentImPng(std::string_view png);

} // namespace zerna
