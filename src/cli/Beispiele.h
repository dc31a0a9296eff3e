#pragma once

#include <string>
#include <string_view>

namespace zerna {

/// The end of a command's help: calls that can be typed as they stand, in an empty folder one after the other. The
/// command without a name is the program itself. Empty if there are none.
std::string beispiele(std::string_view befehl);

} // namespace zerna
