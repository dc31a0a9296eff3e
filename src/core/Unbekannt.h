#pragma once

#include <algorithm>
#include <span>

namespace zerna {

/// The one marker for "there is no value": in element data, in results, and for text that is no number.
inline constexpr float Unbekannt = -3.0e38F;

constexpr bool istUnbekannt(float value) noexcept { return value == Unbekannt; }

/// Whether at least one of the values is known.
inline bool istEinerBekannt(std::span<const float> values) { return !std::ranges::all_of(values, istUnbekannt); }

} // namespace zerna
