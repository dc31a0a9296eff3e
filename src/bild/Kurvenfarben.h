#pragma once

#include <cstddef>

#include "bild/Kurvenbild.h"

namespace zerna {

inline constexpr std::size_t Kurvenfarben = 8;

/// The look of curve `index`, the first one being the given blue line; from Kurvenfarben on it begins anew. Any two of
/// them differ in dash or clearly in lightness, so they can be told apart in grey print and by colour-blind eyes. Solid
/// is the first one alone and dashed the last, as the mixture beside the first one is dashed.
Kurvenaussehen kurvenaussehen(std::size_t index);

} // namespace zerna
