#pragma once

#include <span>

namespace zerna {

/// Smallest and largest of some values.
struct Wertebereich {
    float min = 0;
    float max = 0;
    bool known = false; ///< false while there is no known value; both ends are 0 then
};

/// The range of the known values.
Wertebereich wertebereich(std::span<const float> werte);

} // namespace zerna
