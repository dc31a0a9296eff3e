#pragma once

#include <string>
#include <string_view>

#include "traeger/Dokumentfund.h"

namespace zerna {

/// The picture with the document in it, readable as it is, as the text of an element of our own namespace in
/// <metadata> at its end. Error 5 if the bytes do not end like an SVG picture.
std::string svgMitDokument(std::string_view svg, std::string_view dokument);

/// Whether the bytes may be one: any XML is taken for it.
bool istSvg(std::string_view bytes);

/// The document in such a picture; also where another program has written the picture anew, with other prefixes,
/// places and escapes.
Dokumentfund dokumentImSvg(std::string_view svg);

} // namespace zerna
