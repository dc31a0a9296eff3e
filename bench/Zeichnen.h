#pragma once

namespace zerna {

/// Registers the redrawing of the concentration diagram and the bare painting of the same picture.
void registerZeichenBenchmarks();

} // namespace zerna
