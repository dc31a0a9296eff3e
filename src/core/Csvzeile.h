#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zerna {

/// Takes the line of comma-separated text that begins at `position` apart and moves on behind it. A cell in quotation
/// marks may hold separators, line ends and doubled quotation marks.
std::vector<std::string> csvZeile(std::string_view text, std::size_t& position, char separator = ',');

} // namespace zerna
