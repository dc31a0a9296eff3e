#pragma once

#include <cstdlib>

/// What must hold whatever the input.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}
