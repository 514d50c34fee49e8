#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "list/CellKind.h"
#include "list/XListInput.h"

namespace
{
XLISTCTRLDATA CellOf(unsigned int properties, int checkedState)
{
    XLISTCTRLDATA cell;
    cell.properties = properties;
    cell.checkedState = checkedState;
    return cell;
}

struct Press
{
    char const * name;
    unsigned int properties;
    int checkedState;
    CellPress expected;
};

constexpr Press presses[] = {
    {"plain", 1, -1, CellPress::select_only},
    {"unchecked", 1, 0, CellPress::flip_check},
    {"checked", 1, 1, CellPress::flip_check},
    {"crossed", 1, 2, CellPress::select_only},
    {"radio on", 1, 3, CellPress::select_only},
    {"radio off", 1, 4, CellPress::switch_radio_on},
    {"another state", 1, 5, CellPress::select_only},
    {"another negative state", 1, -2, CellPress::select_only},
    {"edit", 1 + 2, -1, CellPress::open_edit},
    {"link", 1 + 4 + 512, -1, CellPress::follow_link},
    {"progress", 1 + 8, -1, CellPress::select_only},
    {"combo", 1 + 16, -1, CellPress::open_combo},
    {"custom drawn", 1 + 32, -1, CellPress::select_only},
    {"look bits", 0xFF01, -1, CellPress::select_only},
    // The first of several kinds wins.
    {"combo before edit", 1 + 2 + 4 + 16, 0, CellPress::open_combo},
    {"edit before link", 1 + 2 + 4, 0, CellPress::open_edit},
    {"link before check", 1 + 4, 0, CellPress::follow_link},
    {"custom drawn check", 1 + 32, 1, CellPress::flip_check},
    {"progress with a radio state", 1 + 8, 4, CellPress::switch_radio_on},
};

TEST(ListPress, EachKindOfCellHasItsOwn)
{
    for (Press const & press : presses)
        EXPECT_EQ(DecidePress(CellOf(press.properties, press.checkedState)), press.expected) << press.name;
}

TEST(ListPress, ADisabledCellSwallowsIt)
{
    for (Press const & press : presses)
        EXPECT_EQ(DecidePress(CellOf(press.properties & ~1u, press.checkedState)), CellPress::ignored) << press.name;
}

void ExpectHeaderPress(int state, bool autoCheckbox, bool changes, int header, int reported)
{
    HeaderPress const press = DecideHeaderPress(state, autoCheckbox);
    EXPECT_EQ(press.changesCells, changes) << "state " << state;
    EXPECT_EQ(press.headerState, header) << "state " << state;
    EXPECT_EQ(press.cellState, reported) << "state " << state;
}

TEST(ListHeaderPress, DrivesTheCellsOfUncheckedCheckedAndMixedColumns)
{
    ExpectHeaderPress(1, true, true, 2, 1);
    ExpectHeaderPress(2, true, true, 1, 0);
    ExpectHeaderPress(3, true, true, 2, 1);
}

TEST(ListHeaderPress, ReportsAnyOtherState)
{
    for (int const state : {-1, 0, 4, 5, 6, 7})
        ExpectHeaderPress(state, true, false, state, state);
}

TEST(ListHeaderPress, ReportsEveryStateWithoutAutomaticCheckBoxes)
{
    for (int state = -1; state < 8; ++state)
        ExpectHeaderPress(state, false, false, state, state);
}

TEST(ListHeaderState, FollowsFromTheCounts)
{
    EXPECT_EQ(HeaderStateOfCells(5, 5, 0, 0), 1);
    EXPECT_EQ(HeaderStateOfCells(5, 0, 5, 0), 2);
    EXPECT_EQ(HeaderStateOfCells(5, 0, 0, 5), 4);
    EXPECT_EQ(HeaderStateOfCells(5, 4, 1, 0), 3);
    EXPECT_EQ(HeaderStateOfCells(5, 0, 0, 0), 3);
    EXPECT_EQ(HeaderStateOfCells(5, 4, 0, 0), 3);
    EXPECT_EQ(HeaderStateOfCells(5, 0, 4, 1), 3);
}

TEST(ListHeaderState, AnEmptyListIsUnchecked)
{
    EXPECT_EQ(HeaderStateOfCells(0, 0, 0, 0), 1);
}

TEST(ListHeaderState, CellsAreFollowedByTheCheckStatesAlone)
{
    for (int const state : {1, 2, 3, 4})
        EXPECT_TRUE(HeaderFollowsCells(state)) << state;
    for (int const state : {-1, 0, 5, 6, 7})
        EXPECT_FALSE(HeaderFollowsCells(state)) << state;
}

TEST(ListCheckCount, ASearchedStateCountsItself)
{
    for (int state = 0; state <= 4; ++state)
    {
        for (int searched = 0; searched <= 4; ++searched)
            EXPECT_EQ(CountsAsChecked(state, searched), state == searched) << state << ", " << searched;
    }
    EXPECT_FALSE(CountsAsChecked(-1, 0));
}

TEST(ListCheckCount, MinusOneCountsEveryCell)
{
    for (int state = -1; state <= 4; ++state)
        EXPECT_TRUE(CountsAsChecked(state, -1)) << state;
}

TEST(ListCheckCount, AnotherNegativeStateCountsCheckAndRadioCells)
{
    EXPECT_FALSE(CountsAsChecked(-1, -2));
    for (int state = 0; state <= 4; ++state)
        EXPECT_TRUE(CountsAsChecked(state, -2)) << state;
}

/// The row selected after a key, of rows given as a text: 'e' enabled, 'd' disabled.
int After(int selected, std::string const & rows, bool down)
{
    return RowAfterNavigationKey(selected, static_cast<int>(rows.size()), down,
                                 [&](int row) { return rows.at(static_cast<std::size_t>(row)) == 'e'; });
}

TEST(ListNavigation, LeavesAnyRowButTheFirstSelected)
{
    for (int row = 1; row < 4; ++row)
    {
        EXPECT_EQ(After(row, "eeee", true), row);
        EXPECT_EQ(After(row, "eeee", false), row);
        EXPECT_EQ(After(row, "dddd", true), row);
    }
}

TEST(ListNavigation, StaysOnAnEnabledFirstRow)
{
    EXPECT_EQ(After(0, "eeee", true), 0);
    EXPECT_EQ(After(0, "eeee", false), 0);
    EXPECT_EQ(After(0, "e", true), 0);
}

TEST(ListNavigation, GoesFromADisabledFirstRowToTheFirstEnabledOneBelow)
{
    EXPECT_EQ(After(0, "deee", true), 1);
    EXPECT_EQ(After(0, "dded", true), 2);
    EXPECT_EQ(After(0, "ddde", true), 3);
}

TEST(ListNavigation, GoesFromADisabledFirstRowUpToTheLastEnabledOne)
{
    EXPECT_EQ(After(0, "deee", false), 3);
    EXPECT_EQ(After(0, "deed", false), 2);
    EXPECT_EQ(After(0, "dedd", false), 1);
}

TEST(ListNavigation, StaysOnTheFirstRowWhenNoRowIsEnabled)
{
    EXPECT_EQ(After(0, "dddd", true), 0);
    EXPECT_EQ(After(0, "dddd", false), 0);
    EXPECT_EQ(After(0, "d", true), 0);
    EXPECT_EQ(After(0, "d", false), 0);
}

TEST(ListNavigation, AsksForNoRowOfAnEmptyList)
{
    EXPECT_EQ(After(0, "", true), 0);
    EXPECT_EQ(After(0, "", false), 0);
}
} // namespace
