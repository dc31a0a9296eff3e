#pragma once

namespace zerna {

/// Lets the memory of large pictures and tables go back to the system when they go. Left to itself the C library of
/// Linux keeps ever larger ones in a heap of which little is returned: a window that is resized all day grows. And all
/// threads share one heap: those beside the window's only write files.
void spareMemory();

} // namespace zerna
