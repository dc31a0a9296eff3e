#pragma once

#include "bild/Geometrie.h"

class QFont;

namespace zerna {

/// How texts measure in a font. A width is kept, since most texts of a picture stand in the next one, too.
Textmasse textmasse(const QFont& font);

} // namespace zerna
