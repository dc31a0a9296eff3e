#include "bench/Speicherzaehler.h"

#include <cstdlib>
#include <new>

namespace zerna {

namespace {

std::size_t count = 0;

} // namespace

std::size_t speicheranforderungen() noexcept { return count; }

} // namespace zerna

// The array forms of the standard library call these.
void* operator new(std::size_t size)
{
    ++zerna::count;
    if (void* const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
