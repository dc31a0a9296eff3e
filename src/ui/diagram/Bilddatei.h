#pragma once

#include <string>
#include <vector>

#include "bild/Bildtexte.h"
#include "bild/Bildvorgabe.h"
#include "programm/Exportart.h"
#include "ui/diagram/Leinwand.h"

/// Pictures of their own size in millimetres as files: what the window saves and what the command line makes.
namespace zerna {

/// The canvas of a picture: 96 logical pixels to the inch, letters of exactly the wanted size, as finely spaced on
/// every device.
Leinwand leinwandNach(const Bildvorgabe& vorgabe);

/// The exports of such a picture in the order of Bildart. Each carries title, description and the document, the text
/// of a file, from which it opens again; none if that is empty.
std::vector<Exportart> bildarten(
    const Bildmaler& maler, const Bildvorgabe& vorgabe, const Bildtexte& texte, const std::string& dokument);

} // namespace zerna
