#pragma once
// What the tests of the layout engine share.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "layout/DialogResizer.h"
#include "substitutes/FakeLayoutPlatform.h"

namespace resizer_tests
{
inline CRect const design_outer(100, 50, 500, 350); // 400 by 300
inline CRect const child_place(10, 20, 110, 60);
inline constexpr int child_id = 1001;

class ResizerTest : public testing::Test
{
protected:
    void SetUp() override { m_platform.Reset(); }
    void TearDown() override { m_platform.Reset(); }

    void Resize(CWnd & dialog, int width, int height)
    {
        CRect const outer(design_outer.left, design_outer.top, design_outer.left + width, design_outer.top + height);
        m_platform.SetOuter(dialog, outer);
    }

    /// Where the child stands after the 400 by 300 dialog has become that large.
    CRect PlacedWith(CEdges const & edges, int width, int height)
    {
        m_platform.Reset();
        CWnd & dialog = m_platform.AddDialog(design_outer);
        CWnd & child = m_platform.AddChild(dialog, child_place);
        CDialogResizer resizer(dialog, L"");
        resizer.PositionChild(&child, edges, nullptr);
        Resize(dialog, width, height);
        resizer.OnSize();
        return m_platform.PlaceOf(child);
    }

    FakeLayoutPlatform & m_platform = FakeLayoutPlatform::Current();
};

template <class Rect> std::vector<int> Sides(Rect const & rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}
} // namespace resizer_tests

#define EXPECT_RECT(actual, left, top, right, bottom)                                                                  \
    EXPECT_EQ(Sides(actual), (std::vector<int>{(left), (top), (right), (bottom)}))
