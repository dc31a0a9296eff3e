#pragma once

#include <string>
#include <vector>

#include "core/clsElement.h"

namespace zerna {

/// The value's plain text, a blank and the unit; "?" for an unknown value. Without a unit the text ends in the blank.
std::string wertMitEinheit(float value, std::string_view unit);

/// The fourteen lines that describe an element, each "caption: value".
std::vector<std::string> elementauskunft(const clsElement& element);

} // namespace zerna
