#include "core/Speicherbedarf.h"

#include <cstdlib> // says which C library it is

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace zerna {

void spareMemory()
{
#ifdef __GLIBC__
    constexpr int Large = 256 * 1024; // bytes; given, the limit does not follow the largest block any more
    mallopt(M_MMAP_THRESHOLD, Large);
    mallopt(M_ARENA_MAX, 1);
#endif
}

} // namespace zerna
