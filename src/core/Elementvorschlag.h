#pragma once

#include <string>
#include <string_view>

#include "core/ElementCollection.h"

namespace zerna {

/// The elements whose symbol or name is nearest to a text that is no symbol, as a sentence: "Meinten Sie Cu?" for
/// "Kupfer"; empty if none is near.
std::string elementvorschlag(std::string_view text, const ElementCollection& elements);

} // namespace zerna
