#pragma once

#include <string>
#include <vector>

#include "core/clsElement.h"

namespace zerna {

/// The lines that describe an element, each "caption: value"; a number with its unit or "?".
std::vector<std::string> elementauskunft(const clsElement& element);

} // namespace zerna
