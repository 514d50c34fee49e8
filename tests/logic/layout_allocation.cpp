// A layout runs for each message of a dialog that is being dragged, so it must not allocate.

#include <cstdlib>
#include <new>

#include "layout_ResizerTest.h"

namespace
{
using namespace resizer_tests;

std::size_t allocations = 0;

void * Allocate(std::size_t size)
{
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

class LayoutAllocation : public ResizerTest
{
};
} // namespace

// Counts for the whole program; memory comes from where it always does.
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

TEST_F(LayoutAllocation, ALayoutAllocatesNothing)
{
    CWnd & dialog = platform.AddDialog(design_outer);
    CDialogResizer resizer(dialog, L"");
    for (int at = 0; at < 100; ++at)
        resizer.PositionChild(&platform.AddChild(dialog, CRect(at, at, at + 10, at + 10)),
                              CEdges::RIGHT() | CEdges::BOTTOM_THIRD(), nullptr);
    platform.recording = false;

    std::size_t const before = allocations;
    EXPECT_GT(before, 0U) << "the count works";
    for (int growth = 0; growth < 50; ++growth)
    {
        Resize(dialog, 400 + growth, 300 + growth);
        resizer.OnSize();
    }
    EXPECT_EQ(allocations, before);
}
