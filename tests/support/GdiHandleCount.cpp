#include "GdiHandleCount.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tests
{
namespace
{
// The layout of the table as 64-bit Windows and Wine have it.
constexpr size_t table_pointer_offset = 0xF8; // in the process environment block
constexpr size_t entry_size = 24;
constexpr size_t entry_count = 0x4000;
constexpr size_t type_offset = 14;

std::byte const * ProcessEnvironmentBlock()
{
    using GetCurrentPeb = std::byte const *(WINAPI *)();
    FARPROC const function = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb");
    return reinterpret_cast<GetCurrentPeb>(reinterpret_cast<void *>(function))();
}
} // namespace

int GdiHandleCount()
{
    std::byte const * const peb = ProcessEnvironmentBlock();
    std::byte const * table = nullptr;
    std::memcpy(&table, peb + table_pointer_offset, sizeof(table));
    if (table == nullptr)
        return 0;
    int count = 0;
    for (size_t i = 0; i < entry_count; ++i)
    {
        if (table[i * entry_size + type_offset] != std::byte{0})
            ++count;
    }
    return count;
}

GdiBalance::~GdiBalance()
{
    EXPECT_EQ(GdiHandleCount(), m_before) << "GDI objects are left over";
}

int GdiGrowth(std::function<void()> const & action, int times, int warmUp)
{
    for (int i = 0; i < warmUp; ++i)
        action();
    int const before = GdiHandleCount();
    for (int i = 0; i < times; ++i)
        action();
    return GdiHandleCount() - before;
}
} // namespace tests
