#pragma once

#include "core/Anzeigetext.h"
#include "ui/platform/QtText.h"

namespace zerna {

/// A text as it is painted: true minus signs and powers of ten. What a control holds and copies is the given text.
inline QString gezeigt(const QString& text) { return toQt(anzeigetext(fromQt(text))); }

} // namespace zerna
