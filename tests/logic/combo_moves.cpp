#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "list/combo/ComboMoves.h"

using namespace XListCtrl::combo_moves;

TEST(ComboMoves, WheelStepsWhenANotchIsCollected)
{
    int collected = 0;
    EXPECT_EQ(WheelStep(collected, 60), 0);
    EXPECT_EQ(WheelStep(collected, 60), 1);
    EXPECT_EQ(collected, 0);
    EXPECT_EQ(WheelStep(collected, -119), 0);
    EXPECT_EQ(WheelStep(collected, -1), -1);
    EXPECT_EQ(collected, 0);
}

TEST(ComboMoves, AStepUsesUpTheWholeWheel)
{
    int collected = 0;
    EXPECT_EQ(WheelStep(collected, 360), 1);
    EXPECT_EQ(collected, 0);
    EXPECT_EQ(WheelStep(collected, 119), 0);
    EXPECT_EQ(WheelStep(collected, -238), 0);
    EXPECT_EQ(collected, -119);
    EXPECT_EQ(WheelStep(collected, -500), -1);
}

TEST(ComboMoves, WheelMovesAnOpenListByThreeRows)
{
    EXPECT_EQ(TopAfterWheel({0, 5, 4, 20}, true), 2);
    EXPECT_EQ(TopAfterWheel({0, 2, 4, 20}, true), 0);
    EXPECT_EQ(TopAfterWheel({0, 5, 4, 20}, false), 8);
    EXPECT_EQ(TopAfterWheel({0, 18, 4, 20}, false), 20);
}

TEST(ComboMoves, PageUpGoesToTheTopRowAndThenAPageOn)
{
    // selected, top, visible, count
    EXPECT_EQ(RowAfterPageKey({0, 0, 5, 20}, false), std::nullopt);
    EXPECT_EQ(RowAfterPageKey({-1, 0, 5, 20}, false), 19);
    EXPECT_EQ(RowAfterPageKey({10, 10, 5, 20}, false), 6);
    EXPECT_EQ(RowAfterPageKey({2, 2, 5, 20}, false), 0);
    EXPECT_EQ(RowAfterPageKey({12, 10, 5, 20}, false), 10);
    EXPECT_EQ(RowAfterPageKey({3, 10, 5, 20}, false), 10);
}

TEST(ComboMoves, PageDownGoesToTheBottomRowAndThenAPageOn)
{
    EXPECT_EQ(RowAfterPageKey({-1, 3, 5, 20}, true), 0);
    EXPECT_EQ(RowAfterPageKey({19, 15, 5, 20}, true), std::nullopt);
    EXPECT_EQ(RowAfterPageKey({3, 3, 5, 20}, true), 7);
    EXPECT_EQ(RowAfterPageKey({7, 3, 5, 20}, true), 11);
    EXPECT_EQ(RowAfterPageKey({9, 3, 5, 20}, true), 11);
    EXPECT_EQ(RowAfterPageKey({18, 15, 5, 20}, true), 19);
    EXPECT_EQ(RowAfterPageKey({2, 0, 5, 4}, true), 3);
}

TEST(ComboMoves, PageKeysInAnEmptyListGoNowhere)
{
    EXPECT_EQ(RowAfterPageKey({-1, 0, 5, 0}, true), std::nullopt);
    EXPECT_EQ(RowAfterPageKey({-1, 0, 5, 0}, false), std::nullopt);
}

namespace
{
/// Rows of a list, '-' for a disabled one.
int Select(char const * rows, int wanted, int selected)
{
    std::string const list = rows;
    return RowToSelect(wanted, selected, [&](int row) {
        if (row < 0 || row >= static_cast<int>(list.size()))
            return RowState::absent;
        return list[static_cast<std::size_t>(row)] == '-' ? RowState::disabled : RowState::enabled;
    });
}
} // namespace

TEST(ComboMoves, SelectionStepsOverDisabledRowsInItsDirection)
{
    EXPECT_EQ(Select("o--o", 1, 0), 3);
    EXPECT_EQ(Select("o--o", 2, 3), 0);
    EXPECT_EQ(Select("oooo", 2, 0), 2);
    EXPECT_EQ(Select("--oo", 0, -1), 2);
}

TEST(ComboMoves, SelectionStaysWhereTheStepsLeaveTheList)
{
    EXPECT_EQ(Select("oo--", 2, 1), 2);
    EXPECT_EQ(Select("--oo", 1, 2), 1);
    EXPECT_EQ(Select("oo", 9, 1), 9);
    EXPECT_EQ(Select("oo", -1, 1), -1);
    EXPECT_EQ(Select("o-", 1, 1), 1);
    EXPECT_EQ(Select("", -1, -1), -1);
}

TEST(ComboMoves, ScrollCodesMoveWithinTheRange)
{
    ScrollState const state = {5, 0, 19, 4};
    EXPECT_EQ(PositionAfterScroll(0, 0, state), 4);
    EXPECT_EQ(PositionAfterScroll(1, 0, state), 6);
    EXPECT_EQ(PositionAfterScroll(2, 0, state), 1);
    EXPECT_EQ(PositionAfterScroll(3, 0, state), 9);
    EXPECT_EQ(PositionAfterScroll(4, 13, state), 13);
    EXPECT_EQ(PositionAfterScroll(5, 17, state), 17);
    for (int const code : {6, 7, 8, 9, -1})
        EXPECT_EQ(PositionAfterScroll(code, 3, state), std::nullopt);
}

TEST(ComboMoves, ScrollCodesEndAtTheRangesEdges)
{
    EXPECT_EQ(PositionAfterScroll(0, 0, {2, 2, 19, 4}), 2);
    EXPECT_EQ(PositionAfterScroll(2, 0, {4, 2, 19, 4}), 2);
    EXPECT_EQ(PositionAfterScroll(1, 0, {19, 2, 19, 4}), 19);
    EXPECT_EQ(PositionAfterScroll(3, 0, {16, 2, 19, 4}), 19);
}
