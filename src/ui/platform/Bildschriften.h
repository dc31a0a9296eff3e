#pragma once

namespace zerna {

/// Brings in the fonts that the program carries, so that pictures have the same letters everywhere; once there is an
/// application. It carries them only for platforms that lack them.
void ladeBildschriften();

} // namespace zerna
