// What a list remembers of its rows and of a paint.

#include <gtest/gtest.h>

#include "list/PaintMemory.h"
#include "list/RowMemory.h"

namespace
{
TEST(ListRowMemory, KnowsTheRowAskedForLast)
{
    RowMemory memory;
    XLISTCTRLROW row;
    EXPECT_FALSE(memory.Knows(0));
    memory.Remember(3, &row);
    EXPECT_TRUE(memory.Knows(3));
    EXPECT_FALSE(memory.Knows(2));
    EXPECT_EQ(memory.Object(), &row);
    EXPECT_EQ(row.lastPlace(), 3);
    memory.Remember(4, nullptr);
    EXPECT_TRUE(memory.Knows(4));
    EXPECT_EQ(memory.Object(), nullptr) << "an item without a row";
    memory.Forget();
    EXPECT_FALSE(memory.Knows(4));
}

TEST(ListRowMemory, AChangeOfRowsEndsItAndNothingIsRememberedDuringIt)
{
    RowMemory memory;
    XLISTCTRLROW row;
    memory.Remember(3, &row);
    memory.BeginChange();
    EXPECT_FALSE(memory.Knows(3));
    EXPECT_FALSE(memory.AreRowsKnown());
    memory.Remember(5, &row);
    EXPECT_FALSE(memory.Knows(5));
    EXPECT_EQ(row.lastPlace(), 3);
    // One within another.
    memory.BeginChange();
    memory.EndChange();
    memory.Remember(5, &row);
    EXPECT_FALSE(memory.Knows(5));
    memory.EndChange();
    EXPECT_TRUE(memory.AreRowsKnown());
    EXPECT_EQ(memory.Changes(), 2u);
    memory.Remember(5, &row);
    EXPECT_TRUE(memory.Knows(5));
}

TEST(ListRowMemory, ARowOutOfStepDoesNotLearnItsPlace)
{
    RowMemory memory;
    XLISTCTRLROW row;
    memory.LoseStep();
    EXPECT_FALSE(memory.AreRowsKnown());
    memory.Remember(2, &row);
    EXPECT_TRUE(memory.Knows(2));
    EXPECT_EQ(row.lastPlace(), -1) << "it may hang from another item as well";
    memory.SetInStep(true);
    EXPECT_TRUE(memory.AreRowsKnown());
    memory.Remember(2, &row);
    EXPECT_EQ(row.lastPlace(), 2);
}

TEST(ListPaintMemory, CellsOfARowShareTopAndBottomAndThoseOfAColumnLeftAndRight)
{
    PaintMemory memory;
    EXPECT_FALSE(memory.Bounds(0, 0));
    memory.RememberBounds(0, 1, CRect(60, 0, 90, 20));
    EXPECT_EQ(memory.Bounds(0, 1), CRect(60, 0, 90, 20));
    EXPECT_FALSE(memory.Bounds(0, 2));
    EXPECT_FALSE(memory.Bounds(0, 0));
    EXPECT_FALSE(memory.Bounds(1, 1)) << "of one row at a time";
    memory.RememberBounds(1, 2, CRect(90, 20, 100, 41));
    EXPECT_EQ(memory.Bounds(1, 1), CRect(60, 20, 90, 41));
    EXPECT_EQ(memory.Bounds(1, 2), CRect(90, 20, 100, 41));
    EXPECT_FALSE(memory.Bounds(0, 1));
    EXPECT_FALSE(memory.Bounds(1, -1));
}

/// Counts the questions.
template <class Value> struct Asked
{
    Value value;
    int times = 0;
    Value operator()()
    {
        ++times;
        return value;
    }
};

TEST(ListPaintMemory, EachQuestionIsAskedOnce)
{
    PaintMemory memory;
    Asked<unsigned int> left{0};
    Asked<unsigned int> right{2};
    Asked<CRect> empty{CRect(0, 0, 0, 0)};
    Asked<int> top{7};
    Asked<bool> no{false};
    Asked<bool> yes{true};
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(memory.Alignment(1, left), 0u);
        EXPECT_EQ(memory.Alignment(4, right), 2u);
        EXPECT_TRUE(memory.MovedFirstColumn(empty).IsRectEmpty());
        EXPECT_EQ(memory.TopRow(top), 7);
        EXPECT_TRUE(memory.IsSelected(5, yes));
        EXPECT_FALSE(memory.HasFocus(no));
    }
    EXPECT_EQ(left.times, 1);
    EXPECT_EQ(right.times, 1);
    EXPECT_EQ(empty.times, 1);
    EXPECT_EQ(top.times, 1);
    EXPECT_EQ(yes.times, 1);
    EXPECT_EQ(no.times, 1);
    EXPECT_FALSE(memory.IsSelected(6, no));
    EXPECT_EQ(no.times, 2) << "another row";
}

TEST(ListPaintMemory, ForgettingAsksForAllAgain)
{
    PaintMemory memory;
    Asked<unsigned int> alignment{1};
    Asked<CRect> moved{CRect(1, 2, 3, 4)};
    Asked<int> top{0};
    Asked<bool> yes{true};
    auto const ask = [&] {
        memory.Alignment(0, alignment);
        memory.MovedFirstColumn(moved);
        memory.TopRow(top);
        memory.IsSelected(0, yes);
        memory.HasFocus(yes);
    };
    ask();
    memory.RememberBounds(0, 0, CRect(0, 0, 10, 10));
    memory.Forget();
    EXPECT_FALSE(memory.Bounds(0, 0));
    ask();
    EXPECT_EQ(alignment.times, 2);
    EXPECT_EQ(moved.times, 2);
    EXPECT_EQ(top.times, 2);
    EXPECT_EQ(yes.times, 4);
}

TEST(ListPaintMemory, AnAnswerDuringWhichAllIsForgottenIsKept)
{
    PaintMemory memory;
    memory.RememberBounds(0, 3, CRect(0, 0, 10, 10));
    // The host changes the list while it is asked.
    EXPECT_EQ(memory.Alignment(3,
                               [&] {
                                   memory.Forget();
                                   return 1u;
                               }),
              1u);
    EXPECT_FALSE(memory.Bounds(0, 3));
    EXPECT_EQ(memory.TopRow([&] {
        memory.Forget();
        return 4;
    }),
              4);
}
} // namespace
