#pragma once

#include <string>

#include "core/Zahlentext.h"

namespace zerna {

/// A German text with that decimal separator in its numbers: "Al: 2,377 g/cm³, z = 3" as "Al: 2.377 g/cm³, z = 3".
std::string mitDezimal(std::string text, Dezimaltrenner trenner);

} // namespace zerna
