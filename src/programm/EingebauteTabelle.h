#pragma once

#include <span>

namespace zerna {

/// The built-in element data file: six elements, H to C. Made from data/builtin-table.csv by the build.
extern const std::span<const unsigned char> EingebauteTabelle;

} // namespace zerna
