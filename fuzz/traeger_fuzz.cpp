#include <cstdint>
#include <string>

#include "Pruefung.h"
#include "support/Traegerbilder.h"
#include "traeger/Dokumentfund.h"
#include "traeger/Png.h"
#include "traeger/Svg.h"

using namespace zerna;

namespace {

/// What dokumentAus says, which is a document or a reason and never both.
Dokumentfund foundIn(std::string_view bytes)
{
    Dokumentfund found = dokumentAus(bytes);
    require(found.dokument.has_value() == found.grund.empty());
    require(found.art != Dateiart::Fremd || !found.dokument);
    return found;
}

} // namespace

/// Takes the bytes for a file that may carry a document, then for a document to be carried.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const Dokumentfund found = foundIn(bytes);
    if (found.dokument && found.art == Dateiart::Svg) // its text is XML's: it can be carried by XML
        require(foundIn(svgMitDokument(Svgbild, *found.dokument)).art == Dateiart::Svg);
    require(foundIn(pngMitDokument(Pngbild, bytes)).dokument == bytes);
    return 0;
}
