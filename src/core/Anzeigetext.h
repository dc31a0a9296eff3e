#pragma once

#include <string>
#include <string_view>

namespace zerna {

/// A text with numbers as it is shown: a true minus sign and powers of ten, "-4,1 E-05 V" as "−4,1·10⁻⁵ V" and
/// "-5 E+00" as "−5". Only for the eye: what is copied, saved or read back keeps the given text.
std::string anzeigetext(std::string_view text);

} // namespace zerna
