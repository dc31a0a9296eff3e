#pragma once

#include <string>
#include <string_view>

namespace zerna {

/// A value as it stands at an axis or in a read-out: that of FormatValue without blanks at its ends, but 0 is "0" (or
/// "0 eV"). Empty for Unbekannt and for what is no finite number.
std::string werttext(float value, std::string_view einheit = {});

} // namespace zerna
