#include "AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace
{
std::atomic<std::size_t> g_count = 0;
std::atomic<std::size_t> g_bytes = 0;

void * Allocate(std::size_t size)
{
    ++g_count;
    g_bytes += size;
    return std::malloc(size == 0 ? 1 : size);
}
} // namespace

tests::Allocations tests::AllocationsSoFar()
{
    return {g_count, g_bytes};
}

// Memory comes from where it always does.
void * operator new(std::size_t size)
{
    if (void * const memory = Allocate(size))
        return memory;
    throw std::bad_alloc();
}

void * operator new[](std::size_t size)
{
    return operator new(size);
}

void * operator new(std::size_t size, std::nothrow_t const &) noexcept
{
    return Allocate(size);
}

void * operator new[](std::size_t size, std::nothrow_t const &) noexcept
{
    return Allocate(size);
}

void operator delete(void * memory) noexcept
{
    std::free(memory);
}

void operator delete[](void * memory) noexcept
{
    std::free(memory);
}

void operator delete(void * memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void * memory, std::size_t) noexcept
{
    std::free(memory);
}
