#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zerna {

/// The bytes of a text file of any origin as UTF-8: a byte order mark says UTF-8 or UTF-16, a zero byte beside an
/// ordinary one at the beginning UTF-16; anything else is UTF-8 if it can be and Windows-1252 if not. No value for
/// bytes that are no text.
std::optional<std::string> textAusBytes(std::string_view bytes);

} // namespace zerna
