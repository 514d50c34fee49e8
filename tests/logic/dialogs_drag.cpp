// Dragging of a window by its client area.

#include <gtest/gtest.h>

#include <limits>

#include "dialogs/DialogDrag.h"

namespace
{
constexpr unsigned int left_button = 0x0001;
constexpr unsigned int shift = 0x0004;
constexpr unsigned int control = 0x0008;

class DialogDrag : public testing::Test
{
protected:
    CDialogDrag m_drag;
};
} // namespace

TEST_F(DialogDrag, StartsOnlyWhereItIsAllowed)
{
    EXPECT_FALSE(m_drag.StartsWith(left_button, false));
    m_drag.Enable(true);
    EXPECT_TRUE(m_drag.StartsWith(left_button, false));
    EXPECT_TRUE(m_drag.StartsWith(0, false));
    EXPECT_FALSE(m_drag.StartsWith(left_button, true)) << "frozen";
    EXPECT_FALSE(m_drag.StartsWith(left_button | shift, false));
    EXPECT_FALSE(m_drag.StartsWith(left_button | control, false));
    EXPECT_FALSE(m_drag.StartsWith(left_button | shift | control, false));
    EXPECT_TRUE(m_drag.StartsWith(0x0073, false)) << "other buttons don't matter";
    m_drag.Enable(false);
    EXPECT_FALSE(m_drag.StartsWith(left_button, false));
}

TEST_F(DialogDrag, TheWindowFollowsTheMouse)
{
    m_drag.Start(CPoint(250, 160), CRect(200, 100, 500, 300));
    EXPECT_TRUE(m_drag.Runs());
    EXPECT_EQ(m_drag.MoveTo(CPoint(250, 160)), CPoint(200, 100));
    EXPECT_EQ(m_drag.MoveTo(CPoint(260, 155)), CPoint(210, 95));
    EXPECT_EQ(m_drag.MoveTo(CPoint(-40, -30)), CPoint(-90, -90));
    EXPECT_EQ(m_drag.MoveTo(CPoint(250, 160)), CPoint(200, 100));
}

TEST_F(DialogDrag, EndsOnce)
{
    EXPECT_FALSE(m_drag.Runs());
    EXPECT_FALSE(m_drag.End());
    m_drag.Start(CPoint(1, 2), CRect(0, 0, 10, 10));
    EXPECT_TRUE(m_drag.End());
    EXPECT_FALSE(m_drag.Runs());
    EXPECT_FALSE(m_drag.End());
}

TEST_F(DialogDrag, ASecondStartBeginsAnew)
{
    m_drag.Start(CPoint(10, 10), CRect(0, 0, 50, 50));
    m_drag.MoveTo(CPoint(20, 20));
    m_drag.Start(CPoint(300, 300), CRect(280, 270, 330, 320));
    EXPECT_EQ(m_drag.MoveTo(CPoint(301, 302)), CPoint(281, 272));
}

TEST_F(DialogDrag, CoordinatesWrapAroundAtTheirEnds)
{
    int const largest = std::numeric_limits<std::int32_t>::max();
    int const smallest = std::numeric_limits<std::int32_t>::min();
    m_drag.Start(CPoint(smallest, largest), CRect(0, 0, 1, 1));
    EXPECT_EQ(m_drag.MoveTo(CPoint(largest, smallest)), CPoint(-1, 1));
}

TEST_F(DialogDrag, WhetherItMayStartSurvivesADrag)
{
    m_drag.Enable(true);
    m_drag.Start(CPoint(0, 0), CRect(0, 0, 1, 1));
    m_drag.Enable(false);
    EXPECT_TRUE(m_drag.Runs()) << "a drag that runs goes on";
    m_drag.Enable(true);
    m_drag.End();
    EXPECT_TRUE(m_drag.StartsWith(left_button, false));
}
