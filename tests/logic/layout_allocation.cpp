// A layout runs for each message of a dialog that is being dragged, so it must not allocate.

#include "AllocationCount.h"
#include "layout_ResizerTest.h"

namespace
{
using namespace resizer_tests;

class LayoutAllocation : public ResizerTest
{
};
} // namespace

TEST_F(LayoutAllocation, ALayoutAllocatesNothing)
{
    CWnd & dialog = m_platform.AddDialog(design_outer);
    CDialogResizer resizer(dialog, L"");
    for (int at = 0; at < 100; ++at)
    {
        resizer.PositionChild(&m_platform.AddChild(dialog, CRect(at, at, at + 10, at + 10)),
                              CEdges::RIGHT() | CEdges::BOTTOM_THIRD(), nullptr);
    }
    m_platform.recording = false;

    std::size_t const before = tests::AllocationsSoFar().count;
    EXPECT_GT(before, 0U) << "the count works";
    for (int growth = 0; growth < 50; ++growth)
    {
        Resize(dialog, 400 + growth, 300 + growth);
        resizer.OnSize();
    }
    EXPECT_EQ(tests::AllocationsSoFar().count, before);
}
