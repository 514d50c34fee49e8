// A table's value as a cell of a report list.

#include <gtest/gtest.h>

#include <limits>

#include "list/CellKind.h"
#include "list/table/ValueCell.h"

namespace
{
TableColumn Column(TableAlign align)
{
    TableColumn column;
    column.align = align;
    return column;
}

TableValue Link()
{
    TableValue value;
    value.SetLink(L"report");
    return value;
}

TableValue Text()
{
    TableValue value;
    value.SetText(L"Ch 1");
    return value;
}

TableValue Tick(bool ticked)
{
    TableValue value;
    value.SetTick(ticked);
    return value;
}

TableValue Progress(double percent)
{
    TableValue value;
    value.SetProgress(percent);
    return value;
}

XLISTCTRLDATA CellOf(TableValue const & value, bool isTyped = false)
{
    XLISTCTRLDATA cell;
    MakeCellOf(value, isTyped, cell);
    return cell;
}
} // namespace

TEST(TableValueCell, TextsNumbersTimesAndBlanksAreTexts)
{
    TableValue value;
    EXPECT_EQ(PaintedKind(CellOf(value)), CellKind::text);
    value.SetWhole(7);
    EXPECT_EQ(PaintedKind(CellOf(value)), CellKind::text);
    value.SetNumber(7.5);
    EXPECT_EQ(PaintedKind(CellOf(value)), CellKind::text);
    value.SetTime(0);
    EXPECT_EQ(PaintedKind(CellOf(value)), CellKind::text);
    EXPECT_EQ(PaintedKind(CellOf(Text())), CellKind::text);
    EXPECT_EQ(PressedKind(CellOf(Text())), CellKind::text);
}

TEST(TableValueCell, ALinkIsUnderlinedAndPressedAsOne)
{
    XLISTCTRLDATA const cell = CellOf(Link());
    EXPECT_EQ(PaintedKind(cell), CellKind::link);
    EXPECT_EQ(PressedKind(cell), CellKind::link);
    EXPECT_NE(cell.properties & XLP_UNDERLINE, 0U);
}

TEST(TableValueCell, ATickIsACheckBox)
{
    EXPECT_EQ(PaintedKind(CellOf(Tick(true))), CellKind::check);
    EXPECT_EQ(CellOf(Tick(true)).checkedState, XLC_CHECKED);
    EXPECT_EQ(CellOf(Tick(false)).checkedState, XLC_UNCHECKED);
}

TEST(TableValueCell, ABarShowsItsPercentFromNoneToAll)
{
    EXPECT_EQ(PaintedKind(CellOf(Progress(42))), CellKind::progress);
    EXPECT_TRUE(CellOf(Progress(42)).progressShowText);
    EXPECT_EQ(CellOf(Progress(42.9)).progressValue, 42);
    EXPECT_EQ(CellOf(Progress(-1)).progressValue, 0);
    EXPECT_EQ(CellOf(Progress(1e300)).progressValue, 100);
}

TEST(TableValueCell, ABarWithoutANumberIsEmpty)
{
    EXPECT_EQ(CellOf(Progress(std::numeric_limits<double>::infinity())).progressValue, 0);
    EXPECT_EQ(CellOf(Progress(-std::numeric_limits<double>::infinity())).progressValue, 0);
    EXPECT_EQ(CellOf(Progress(std::numeric_limits<double>::quiet_NaN())).progressValue, 0);
}

TEST(TableValueCell, WhereTextsAreTypedAllButTicksAndLinksOpen)
{
    EXPECT_EQ(DecidePress(CellOf(Text(), true)), CellPress::open_edit);
    EXPECT_EQ(DecidePress(CellOf(TableValue(), true)), CellPress::open_edit);
    EXPECT_EQ(DecidePress(CellOf(Progress(5), true)), CellPress::open_edit);
    EXPECT_EQ(PaintedKind(CellOf(Progress(5), true)), CellKind::progress);
    EXPECT_EQ(DecidePress(CellOf(Tick(true), true)), CellPress::flip_check);
    EXPECT_EQ(DecidePress(CellOf(Link(), true)), CellPress::follow_link);
}

TEST(TableValueCell, NothingStaysOfTheCellThatTheRecordWas)
{
    TableValue const values[] = {Text(), Link(), Tick(true), Progress(5)};
    for (TableValue const & former : values)
    {
        for (TableValue const & value : values)
        {
            XLISTCTRLDATA cell = CellOf(former, true);
            MakeCellOf(value, false, cell);
            XLISTCTRLDATA const fresh = CellOf(value);
            EXPECT_EQ(cell.properties, fresh.properties);
            EXPECT_EQ(cell.checkedState, fresh.checkedState);
        }
    }
}

TEST(TableValueCell, ByKindNumbersStandAtTheRightAndTimesInTheMiddle)
{
    TableColumn const column = Column(TableAlign::by_kind);
    EXPECT_EQ(AlignmentOf(column, TableKind::whole), CellAlign::right);
    EXPECT_EQ(AlignmentOf(column, TableKind::floating), CellAlign::right);
    EXPECT_EQ(AlignmentOf(column, TableKind::time), CellAlign::centre);
    for (TableKind const kind :
         {TableKind::blank, TableKind::text, TableKind::tick, TableKind::progress, TableKind::link})
        EXPECT_EQ(AlignmentOf(column, kind), CellAlign::left);
}

TEST(TableValueCell, AColumnsOwnAlignmentHoldsForAllKinds)
{
    for (TableKind const kind : {TableKind::text, TableKind::whole, TableKind::time})
    {
        EXPECT_EQ(AlignmentOf(Column(TableAlign::left), kind), CellAlign::left);
        EXPECT_EQ(AlignmentOf(Column(TableAlign::centre), kind), CellAlign::centre);
        EXPECT_EQ(AlignmentOf(Column(TableAlign::right), kind), CellAlign::right);
    }
}
