// What a change of the rows of tabs does to the page area of a sheet.

#include <gtest/gtest.h>

#include <climits>

#include "dialogs/TabRows.h"

namespace
{
CRect const tab(2, 3, 60, 23); // 20 high
} // namespace

TEST(TabRows, ASecondRowMovesTheTopDownAndLeavesTheBottom)
{
    TabRows::Change const change = TabRows::ChangeOfRows(1, 2, tab);
    EXPECT_EQ(change.offset, CSize(0, 20));
    EXPECT_EQ(change.growth, CSize(0, -20));
    EXPECT_EQ(TabRows::PageArea(CRect(10, 29, 320, 188), change), CRect(10, 49, 320, 188));
}

TEST(TabRows, BackToOneRowReversesThatExactly)
{
    CRect area(10, 29, 320, 188);
    for (int const rows : {2, 1, 3, 2, 1})
    {
        static int former = 1;
        area = TabRows::PageArea(area, TabRows::ChangeOfRows(former, rows, tab));
        EXPECT_EQ(area, CRect(10, 29 + (rows - 1) * 20, 320, 188));
        former = rows;
    }
}

TEST(TabRows, TheSameNumberOfRowsChangesNothing)
{
    TabRows::Change const change = TabRows::ChangeOfRows(2, 2, tab);
    EXPECT_EQ(change.offset, CSize(0, 0));
    EXPECT_EQ(change.growth, CSize(0, 0));
}

TEST(TabRows, ATabWithoutHeightMovesNothing)
{
    TabRows::Change const change = TabRows::ChangeOfRows(1, 3, CRect(0, 0, 0, 0));
    EXPECT_EQ(change.offset, CSize(0, 0));
    EXPECT_EQ(change.growth, CSize(0, 0));
}

TEST(TabRows, ValuesBeyondTheRangeWrapAround)
{
    TabRows::Change const change = TabRows::ChangeOfRows(INT_MIN, INT_MAX, CRect(0, INT_MIN, 0, INT_MAX));
    EXPECT_EQ(change.offset, CSize(0, 1)); // -1 times -1
    EXPECT_EQ(change.growth, CSize(0, -1));
    EXPECT_EQ(TabRows::PageArea(CRect(0, INT_MAX, 0, 0), change).top, INT_MIN);
}
