#pragma once

#include <cstddef>

namespace zerna {

/// Memory requests of the program so far: every operator new counts.
std::size_t speicheranforderungen() noexcept;

} // namespace zerna
