#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <random>
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

/// The definition: which row is taken next, by slots that are swapped and searched from the start.
struct PlainPool
{
    std::vector<int> slots;
    std::size_t used = 0;

    int Take()
    {
        if (used == slots.size())
            slots.push_back(static_cast<int>(slots.size()));
        return slots[used++];
    }
    bool GiveBack(int row)
    {
        if (used == 0)
            return false;
        --used;
        if (slots[used] == row)
            return true;
        for (std::size_t i = 0; i < used; ++i)
        {
            if (slots[i] == row)
            {
                std::swap(slots[i], slots[used]);
                return true;
            }
        }
        ++used;
        return false;
    }
};

TEST(ListRowPool, RecyclesRowsInTheOrderOfTheDefinition)
{
    std::mt19937 random(4);
    CXListRowPool pool(2);
    PlainPool plain;
    std::vector<XLISTCTRLROW *> rows;
    for (int step = 0; step < 20000; ++step)
    {
        // Fills and empties in turns.
        if (random() % 100 < (step / 500 % 2 == 0 ? 70 : 35))
        {
            XLISTCTRLROW * const row = pool.Take();
            auto const number = static_cast<std::size_t>(plain.Take());
            if (number == rows.size())
                rows.push_back(row);
            ASSERT_LT(number, rows.size()) << "step " << step;
            ASSERT_EQ(row, rows[number]) << "step " << step;
        }
        else if (!rows.empty())
        {
            std::size_t const number = random() % rows.size();
            ASSERT_EQ(pool.GiveBack(rows[number]), plain.GiveBack(static_cast<int>(number))) << "step " << step;
        }
        if (random() % 2000 == 0)
        {
            pool.GiveBackAll();
            plain.used = 0;
        }
        ASSERT_EQ(pool.used(), plain.used);
        std::size_t slot = 0;
        for (std::unique_ptr<XLISTCTRLROW> const & row : pool.InUse())
            ASSERT_EQ(row.get(), rows[static_cast<std::size_t>(plain.slots[slot++])]);
        ASSERT_EQ(slot, plain.used);
    }
}

TEST(ListRowPool, TellsItsRowsInUseByTheirAddressAlone)
{
    CXListRowPool pool(2);
    std::vector<XLISTCTRLROW *> const rows = TakeRows(pool, 3);
    auto const * const alien = reinterpret_cast<XLISTCTRLROW const *>(static_cast<std::uintptr_t>(1));
    EXPECT_TRUE(pool.Owns(rows[0]));
    EXPECT_TRUE(pool.Owns(rows[2]));
    EXPECT_TRUE(pool.IsNewest(rows[2]));
    EXPECT_FALSE(pool.IsNewest(rows[0]));
    EXPECT_FALSE(pool.Owns(alien));
    EXPECT_FALSE(pool.IsNewest(alien));
    EXPECT_FALSE(pool.Owns(nullptr));
    pool.GiveBack(rows[2]);
    EXPECT_FALSE(pool.Owns(rows[2]));
    EXPECT_FALSE(pool.IsNewest(rows[2]));
    EXPECT_TRUE(pool.IsNewest(rows[1]));
    EXPECT_EQ(pool.All().size(), pool.capacity());
}

// --- Searches ---

/// A list of rows from a pool, which counts the questions it is asked.
class SearchedRows
{
public:
    /// The rows by their words, from the top; their places in the pool are the other way round.
    explicit SearchedRows(std::vector<long long> const & words) : m_places(words.size())
    {
        for (std::size_t i = words.size(); i-- > 0;)
        {
            m_places[i] = m_pool.Take();
            m_places[i]->Prepare(1);
            m_places[i]->cells()->itemData64 = words[i];
        }
    }
    int Find(long long word, bool areRows = true)
    {
        m_placesAsked = 0;
        m_rowsAsked = 0;
        return FindTopmostRow(
            m_pool.InUse(), areRows, [this] { return static_cast<int>(m_places.size()); },
            FirstCellOf([word](XLISTCTRLDATA const & cell) { return cell.itemData64 == word; }),
            [this](XLISTCTRLROW const & row) {
                ++m_placesAsked;
                auto const found = std::find(m_places.begin(), m_places.end(), &row);
                return found != m_places.end() ? static_cast<int>(found - m_places.begin()) : -1;
            },
            [this](int place) {
                ++m_rowsAsked;
                return m_places[static_cast<std::size_t>(place)];
            });
    }
    std::vector<XLISTCTRLROW *> & Places() { return m_places; }
    int PlacesAsked() const { return m_placesAsked; }
    int RowsAsked() const { return m_rowsAsked; }
    CXListRowPool & Pool() { return m_pool; }

private:
    CXListRowPool m_pool{4};
    std::vector<XLISTCTRLROW *> m_places;
    int m_placesAsked = 0;
    int m_rowsAsked = 0;
};

TEST(ListSearch, AsksForTheOneRowThatFitsAndForNothingIfNoneDoes)
{
    SearchedRows rows({5, 6, 7, 8});
    EXPECT_EQ(rows.Find(7), 2);
    EXPECT_EQ(rows.PlacesAsked(), 1);
    EXPECT_EQ(rows.RowsAsked(), 0);
    EXPECT_EQ(rows.Find(9), -1);
    EXPECT_EQ(rows.PlacesAsked() + rows.RowsAsked(), 0);
    SearchedRows none({});
    EXPECT_EQ(none.Find(0), -1);
}

TEST(ListSearch, TheTopmostOfFewRowsIsFound)
{
    SearchedRows rows({5, 7, 6, 7, 7});
    EXPECT_EQ(rows.Find(7), 1);
    std::swap(rows.Places()[1], rows.Places()[2]);
    EXPECT_EQ(rows.Find(7), 2);
    EXPECT_LE(rows.PlacesAsked(), 3);
}

TEST(ListSearch, TheTopmostOfManyRowsIsFoundByOneWalkAtMost)
{
    for (bool const areRows : {true, false})
    {
        std::vector<long long> words(100, 3);
        for (std::size_t i = 40; i < words.size(); ++i)
            words[i] = 7;
        SearchedRows rows(words);
        EXPECT_EQ(rows.Find(7, areRows), 40);
        EXPECT_EQ(rows.PlacesAsked(), 0);
        // The first one twice, since they are many.
        EXPECT_EQ(rows.RowsAsked(), areRows ? 42 : 41);
        EXPECT_EQ(rows.Find(3, areRows), 0);
        EXPECT_EQ(rows.RowsAsked(), 1);
    }
}

TEST(ListSearch, TheFirstOfManyRowsTakesOneQuestion)
{
    std::vector<long long> words(many_rows);
    std::iota(words.begin(), words.end(), 10);
    SearchedRows rows(words);
    EXPECT_EQ(rows.Find(10), 0);
    EXPECT_EQ(rows.RowsAsked() + rows.PlacesAsked(), 1);
    EXPECT_EQ(rows.Find(9), -1);
    EXPECT_EQ(rows.RowsAsked() + rows.PlacesAsked(), 1);
    EXPECT_EQ(rows.Find(30), 20);
    EXPECT_EQ(rows.RowsAsked() + rows.PlacesAsked(), 2);
    rows.Places()[0] = nullptr;
    EXPECT_EQ(rows.Find(30), 20);
}

TEST(ListSearch, RowsThatAreInNoItemAreNotFound)
{
    for (std::size_t const count : {std::size_t{3}, most_rows_placed, most_rows_placed + 20})
    {
        SearchedRows rows(std::vector<long long>(count, 7));
        std::vector<XLISTCTRLROW *> & places = rows.Places();
        XLISTCTRLROW * const last = places.back();
        std::fill(places.begin(), places.end(), nullptr);
        EXPECT_EQ(rows.Find(7, false), -1) << count;
        places.back() = last;
        EXPECT_EQ(rows.Find(7, false), static_cast<int>(count) - 1) << count;
        EXPECT_EQ(rows.Find(7, true), static_cast<int>(count) - 1) << count;
    }
}

TEST(ListSearch, WhatMayBeNoRowIsNotLookedInto)
{
    SearchedRows rows(std::vector<long long>(most_rows_placed + 5, 7));
    rows.Places()[0] = reinterpret_cast<XLISTCTRLROW *>(static_cast<std::uintptr_t>(16));
    EXPECT_EQ(rows.Find(7, false), 1);
}

TEST(ListSearch, RowsWithoutCellsNeverMatch)
{
    SearchedRows rows({7, 7});
    XLISTCTRLROW * const bare = rows.Pool().Take();
    rows.Places().insert(rows.Places().begin(), bare);
    EXPECT_EQ(rows.Find(7), 1);
    EXPECT_EQ(rows.Find(0), -1);
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
