#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "list/XListRowPool.h"
#include "list/XListSearch.h"

namespace
{
std::vector<XLISTCTRLROW *> TakeRows(CXListRowPool & pool, int count)
{
    std::vector<XLISTCTRLROW *> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(pool.Take());
    return rows;
}

TEST(ListRow, NewRowHasNoCells)
{
    XLISTCTRLROW const row;
    EXPECT_EQ(row.cells(), nullptr);
    EXPECT_EQ(row.capacity(), 0u);
}

TEST(ListRow, PreparingForNoColumnsMakesNoCells)
{
    XLISTCTRLROW row;
    row.Prepare(0);
    EXPECT_EQ(row.cells(), nullptr);
    EXPECT_EQ(row.capacity(), 0u);
}

TEST(ListRow, PreparingForMoreColumnsMakesNewCells)
{
    XLISTCTRLROW row;
    row.Prepare(2);
    row.cells()[0].toolTipText = L"old";
    row.Prepare(3);
    EXPECT_EQ(row.capacity(), 3u);
    for (unsigned int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(row.cells()[i].toolTipText.IsEmpty());
        EXPECT_EQ(row.cells()[i].properties, XLP_ENABLED);
        EXPECT_EQ(row.cells()[i].checkedState, XLC_NONE);
    }
}

TEST(ListRow, PreparingForFewerColumnsKeepsTheCellsAndResetsAllOfThem)
{
    XLISTCTRLROW row;
    row.Prepare(3);
    XLISTCTRLDATA * const cells = row.cells();
    for (unsigned int i = 0; i < 3; ++i)
    {
        cells[i].checkedState = XLC_CHECKED;
        cells[i].textColor = 0xFF;
        cells[i].toolTipText = L"tip";
    }
    row.Prepare(1);
    EXPECT_EQ(row.cells(), cells);
    EXPECT_EQ(row.capacity(), 3u);
    for (unsigned int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(cells[i].checkedState, XLC_NONE) << i;
        EXPECT_EQ(cells[i].textColor, 0u) << i;
        EXPECT_EQ(cells[i].toolTipText, L"tip") << i;
    }
}

TEST(ListRow, PreparingForAsManyColumnsKeepsTheCells)
{
    XLISTCTRLROW row;
    row.Prepare(2);
    XLISTCTRLDATA * const cells = row.cells();
    row.Prepare(2);
    EXPECT_EQ(row.cells(), cells);
}

TEST(ListRowPool, StartsEmptyWithItsCapacity)
{
    CXListRowPool const pool(16);
    EXPECT_EQ(pool.capacity(), 16u);
    EXPECT_EQ(pool.used(), 0u);
}

TEST(ListRowPool, TakesDifferentRowsWithoutCells)
{
    CXListRowPool pool(16);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 16);
    EXPECT_EQ((std::set<XLISTCTRLROW *>(rows.begin(), rows.end()).size()), 16u);
    for (XLISTCTRLROW const * row : rows)
    {
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->cells(), nullptr);
    }
    EXPECT_EQ(pool.used(), 16u);
    EXPECT_EQ(pool.capacity(), 16u);
}

TEST(ListRowPool, DoublesItsCapacityAndKeepsTheRows)
{
    CXListRowPool pool(16);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 17);
    EXPECT_EQ(pool.capacity(), 32u);
    for (XLISTCTRLROW * const row : rows)
        row->Prepare(1);
    TakeRows(pool, 16);
    EXPECT_EQ(pool.capacity(), 64u);
    for (XLISTCTRLROW const * row : rows)
        EXPECT_TRUE(pool.GiveBack(row));
    EXPECT_EQ(pool.used(), 16u);
}

TEST(ListRowPool, GivesTheLastRowBackToItsPlace)
{
    CXListRowPool pool(4);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 3);
    EXPECT_TRUE(pool.GiveBack(rows[2]));
    EXPECT_EQ(pool.used(), 2u);
    EXPECT_EQ(pool.Take(), rows[2]);
}

TEST(ListRowPool, ARowFromTheMiddleIsTheNextOneTaken)
{
    CXListRowPool pool(4);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 4);
    EXPECT_TRUE(pool.GiveBack(rows[1]));
    EXPECT_TRUE(pool.GiveBack(rows[0]));
    EXPECT_EQ(pool.used(), 2u);
    EXPECT_EQ(pool.Take(), rows[0]);
    EXPECT_EQ(pool.Take(), rows[1]);
}

TEST(ListRowPool, DoesNotTouchARowGivenBack)
{
    CXListRowPool pool(4);
    XLISTCTRLROW * const row = pool.Take();
    row->Prepare(2);
    row->cells()[1].checkedState = XLC_CHECKED;
    pool.GiveBack(row);
    EXPECT_EQ(row->capacity(), 2u);
    EXPECT_EQ(row->cells()[1].checkedState, XLC_CHECKED);
    EXPECT_EQ(pool.Take(), row);
    EXPECT_EQ(row->cells()[1].checkedState, XLC_CHECKED);
}

TEST(ListRowPool, RefusesARowThatIsNotItsOwn)
{
    CXListRowPool pool(4);
    TakeRows(pool, 2);
    XLISTCTRLROW const foreign;
    EXPECT_FALSE(pool.GiveBack(&foreign));
    EXPECT_FALSE(pool.GiveBack(nullptr));
    EXPECT_EQ(pool.used(), 2u);
}

TEST(ListRowPool, RefusesARowThatWasGivenBackAlready)
{
    CXListRowPool pool(4);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 3);
    EXPECT_TRUE(pool.GiveBack(rows[1]));
    EXPECT_FALSE(pool.GiveBack(rows[1]));
    EXPECT_EQ(pool.used(), 2u);
}

TEST(ListRowPool, GivesNothingBackWhenNothingIsInUse)
{
    CXListRowPool pool(4);
    XLISTCTRLROW const * const row = pool.Take();
    EXPECT_TRUE(pool.GiveBack(row));
    EXPECT_FALSE(pool.GiveBack(row));
    EXPECT_EQ(pool.used(), 0u);
}

TEST(ListRowPool, AllRowsGivenBackAreTakenAgainWithTheirCells)
{
    CXListRowPool pool(16);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 40);
    std::set<XLISTCTRLDATA *> cells;
    for (XLISTCTRLROW * const row : rows)
    {
        row->Prepare(3);
        cells.insert(row->cells());
    }
    std::size_t const capacity = pool.capacity();
    pool.GiveBackAll();
    EXPECT_EQ(pool.used(), 0u);
    EXPECT_EQ(pool.capacity(), capacity);

    EXPECT_EQ(TakeRows(pool, 40), rows);
    std::set<XLISTCTRLDATA *> again;
    for (XLISTCTRLROW * const row : rows)
    {
        row->Prepare(3);
        again.insert(row->cells());
    }
    EXPECT_EQ(again, cells);
    EXPECT_EQ(pool.capacity(), capacity);
}

TEST(ListSearch, FindsTheFirstRowFromTheTop)
{
    XLISTCTRLDATA cells[4];
    cells[1].itemData64 = 7;
    cells[3].itemData64 = 7;
    auto const at = [&](int row) { return &cells[row]; };
    EXPECT_EQ(FindRow(4, at, [](XLISTCTRLDATA const & cell) { return cell.itemData64 == 7; }), 1);
    EXPECT_EQ(FindRow(4, at, [](XLISTCTRLDATA const & cell) { return cell.itemData64 == 8; }), -1);
    EXPECT_EQ(FindRow(0, at, [](XLISTCTRLDATA const &) { return true; }), -1);
}

TEST(ListSearch, RowsWithoutCellsNeverMatch)
{
    XLISTCTRLDATA const cell;
    auto const at = [&](int row) { return row == 2 ? &cell : nullptr; };
    EXPECT_EQ(FindRow(3, at, [](XLISTCTRLDATA const &) { return true; }), 2);
    EXPECT_EQ(FindRow(2, at, [](XLISTCTRLDATA const &) { return true; }), -1);
}

TEST(ListSearch, AClavisIsTheFirstSixNumbers)
{
    XLISTCTRLDATA cell;
    int const numbers[] = {1, 2, 3, 4, 5, 6, 7, 8};
    std::copy(std::begin(numbers), std::end(numbers), cell.idx8);
    int key[] = {1, 2, 3, 4, 5, 6};
    EXPECT_TRUE(HasClavis(cell, key));
    cell.idx8[6] = -1;
    cell.idx8[7] = -1;
    EXPECT_TRUE(HasClavis(cell, key));
    for (int & number : key)
    {
        ++number;
        EXPECT_FALSE(HasClavis(cell, key));
        --number;
    }
}
} // namespace
