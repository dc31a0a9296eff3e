#pragma once

namespace zerna {

/// Gives the widgets that paint themselves what screen readers are told of them. Once or more often.
void installZugangsfabrik();

} // namespace zerna
