#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zerna {

/// Whether bytes are UTF-16: a byte order mark says so, or a zero byte beside an ordinary one at the beginning.
bool istUtf16(std::string_view bytes);

/// The bytes of a text file of any origin as UTF-8: those that are UTF-16, else UTF-8 if they can be and Windows-1252
/// if not. No value for bytes that are no text.
std::optional<std::string> textAusBytes(std::string_view bytes);

} // namespace zerna
