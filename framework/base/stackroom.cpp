#include "StackRoom.h"

#include <algorithm>
#include <cstdint>

#include "WinTypes.h"

#if !defined(_WIN32)
#include <pthread.h>
#endif

namespace
{
struct Limits
{
    std::uintptr_t low = 0;
    std::uintptr_t size = 0;
};

Limits LimitsOfThread()
{
    Limits limits;
#if defined(_WIN32)
    // The whole stack is one allocation of address space, of which the upper part, up to its end, is in use.
    MEMORY_BASIC_INFORMATION stack{};
    ::VirtualQuery(&stack, &stack, sizeof(stack));
    auto const low = reinterpret_cast<std::uintptr_t>(stack.AllocationBase);
    auto const high = reinterpret_cast<std::uintptr_t>(stack.BaseAddress) + stack.RegionSize;
    limits = {low, high - low};
#else
    pthread_attr_t attributes;
    if (::pthread_getattr_np(::pthread_self(), &attributes) == 0)
    {
        void * low = nullptr;
        size_t size = 0;
        if (::pthread_attr_getstack(&attributes, &low, &size) == 0)
            limits = {reinterpret_cast<std::uintptr_t>(low), size};
        ::pthread_attr_destroy(&attributes);
    }
#endif
    return limits;
}
} // namespace

namespace framework
{
bool StackIsLow()
{
    thread_local Limits const limits = LimitsOfThread();
    constexpr std::uintptr_t large = std::uintptr_t{256} * 1024;
    std::uintptr_t const reserve = std::min(limits.size / 4, large);
    auto const here = reinterpret_cast<std::uintptr_t>(&reserve);
    return here - limits.low < reserve;
}
} // namespace framework
