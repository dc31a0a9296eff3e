#pragma once

#include <array>

namespace zerna {

/// The built-in element data file: six elements, H to C. Made from data/builtin-table.csv by the build.
extern const std::array<unsigned char, 540> EingebauteTabelle;

} // namespace zerna
