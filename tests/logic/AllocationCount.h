#pragma once
// What this program has allocated with new so far. Counted for the whole program.

#include <cstddef>

namespace tests
{
struct Allocations
{
    std::size_t count = 0;
    std::size_t bytes = 0;
};

Allocations AllocationsSoFar();
} // namespace tests
