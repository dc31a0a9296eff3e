#pragma once

#include "bild/Kurvenbild.h"
#include "core/Zahlentext.h"
#include "model/rechnung/Tabelle.h"

namespace zerna {

/// The curves of a diagram side by side, all with the x of the first one: a column for x, one for each curve that is
/// drawn as a line. A gap is an empty cell.
Tabelle kurventabelle(const Kurvenbild& bild, Dezimaltrenner trenner);

} // namespace zerna
