// Kinds of cells that a host brings itself, in the rows: where they stay, and how they sort.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "list/XListRowPool.h"
#include "list/XListSort.h"

namespace
{
/// Sorts by the number behind the decimal point of what its cells count.
class LastDigit : public CXListCellKind
{
public:
    void Paint(XLISTCTRLDATA const &, CDC &, CRect const &, COLORREF, COLORREF) override {}
    std::optional<long long> SortValue(XLISTCTRLDATA const & cell) const override
    {
        if (cell.intValue < 0)
            return {};
        return cell.intValue % 10;
    }
};

TEST(ListOwnKinds, ARowHasNoneUntilItIsGivenOne)
{
    CXListRowPool pool(16);
    XLISTCTRLROW & row = *pool.Take();
    row.Prepare(3);
    EXPECT_FALSE(row.HasKinds());
    EXPECT_EQ(row.Kind(1), nullptr);
    row.SetKind(1, nullptr);
    EXPECT_FALSE(row.HasKinds());
    auto const kind = std::make_shared<LastDigit>();
    row.SetKind(1, kind);
    EXPECT_EQ(row.Kind(0), nullptr);
    EXPECT_EQ(row.Kind(1), kind);
    EXPECT_EQ(row.Kind(2), nullptr);
    row.SetKind(1, nullptr);
    EXPECT_EQ(row.Kind(1), nullptr);
    EXPECT_EQ(kind.use_count(), 1);
}

TEST(ListOwnKinds, TheyEndWithTheRowsUse)
{
    CXListRowPool pool(16);
    XLISTCTRLROW * const row = pool.Take();
    row->Prepare(3);
    auto const kind = std::make_shared<LastDigit>();
    row->SetKind(2, kind);
    pool.GiveBack(row);
    ASSERT_EQ(pool.Take(), row);
    row->Prepare(3);
    EXPECT_EQ(row->Kind(2), nullptr);
    EXPECT_EQ(kind.use_count(), 1);
}

TEST(ListOwnKinds, TheyMoveWithTheirCellsWhenColumnsComeAndGo)
{
    XLISTCTRLROW row;
    row.Prepare(3);
    for (int i = 0; i < 3; ++i)
        row.cells()[i].intValue = i;
    row.cells()->itemData64 = 77;
    auto const kind = std::make_shared<LastDigit>();
    row.SetKind(1, kind);

    row.InsertCell(1);
    ASSERT_EQ(row.capacity(), 4u);
    EXPECT_EQ(row.cells()[0].itemData64, 77);
    EXPECT_EQ(row.cells()[1].intValue, 0);
    EXPECT_EQ(row.cells()[2].intValue, 1);
    EXPECT_EQ(row.cells()[3].intValue, 2);
    EXPECT_EQ(row.Kind(1), nullptr);
    EXPECT_EQ(row.Kind(2), kind);

    row.RemoveCell(1);
    EXPECT_EQ(row.capacity(), 4u);
    EXPECT_EQ(row.cells()[1].intValue, 1);
    EXPECT_EQ(row.cells()[2].intValue, 2);
    EXPECT_EQ(row.cells()[3].intValue, 0);
    EXPECT_EQ(row.Kind(1), kind);

    row.RemoveCell(1);
    EXPECT_EQ(row.cells()[1].intValue, 2);
    EXPECT_EQ(row.Kind(1), nullptr);
    EXPECT_EQ(kind.use_count(), 1);
}

TEST(ListOwnKinds, NoColumnTakesTheFirstCellAndNoneReachesBeyondAShortRow)
{
    XLISTCTRLROW row;
    row.Prepare(2);
    row.cells()->itemData64 = 77;
    row.RemoveCell(0);
    row.InsertCell(0);
    row.RemoveCell(2);
    row.InsertCell(3);
    EXPECT_EQ(row.capacity(), 2u);
    EXPECT_EQ(row.cells()->itemData64, 77);
    row.InsertCell(2);
    EXPECT_EQ(row.capacity(), 3u) << "a column behind the last one";
}

std::vector<int> Sorted(std::vector<int> const & numbers, std::shared_ptr<CXListCellKind> const & kind, bool ascending)
{
    std::vector<XLISTCTRLROW> rows(numbers.size());
    CListRowOrder order(0, ascending);
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        rows[i].Prepare(1);
        rows[i].cells()->intValue = numbers[i];
        rows[i].cells()->valueType = XLV_INT;
        rows[i].SetKind(0, kind);
        order.Add(rows[i]);
    }
    EXPECT_FALSE(order.NeedsTexts());
    std::vector<int> sorted;
    for (int const i : SortedOrder(static_cast<int>(rows.size()), [&](int a, int b) {
             return order.Compare(rows[static_cast<std::size_t>(a)], rows[static_cast<std::size_t>(b)]);
         }))
        sorted.push_back(numbers[static_cast<std::size_t>(i)]);
    return sorted;
}

TEST(ListOwnKinds, TheListSortsByWhatTheySay)
{
    auto const kind = std::make_shared<LastDigit>();
    std::vector<int> const numbers = {19, 25, 31, 8, 100};
    EXPECT_EQ(Sorted(numbers, nullptr, true), (std::vector<int>{8, 19, 25, 31, 100}));
    EXPECT_EQ(Sorted(numbers, kind, true), (std::vector<int>{100, 31, 25, 8, 19}));
    EXPECT_EQ(Sorted(numbers, kind, false), (std::vector<int>{19, 8, 25, 31, 100}));
}

TEST(ListOwnKinds, OneThatSaysNothingSortsAsWithoutIt)
{
    auto const kind = std::make_shared<LastDigit>();
    EXPECT_EQ(Sorted({-2, -1, -3}, kind, true), (std::vector<int>{-3, -2, -1}));
}

TEST(ListOwnKinds, TheFirstCellOfAPairDecidesHowBothAreRead)
{
    auto const kind = std::make_shared<LastDigit>();
    XLISTCTRLDATA ten;
    ten.intValue = 10;
    ten.valueType = XLV_INT;
    XLISTCTRLDATA nine = ten;
    nine.intValue = 9;
    auto const noTexts = [] { return 0; };
    EXPECT_EQ(CompareRows(ListSortKey(&ten, kind.get()), ListSortKey(&nine, kind.get()), true, noTexts), -1);
    EXPECT_EQ(CompareRows(ListSortKey(&ten), ListSortKey(&nine, kind.get()), true, noTexts), 1);
    EXPECT_EQ(CompareRows(ListSortKey(&nine, kind.get()), ListSortKey(&ten), true, noTexts), 1) << "which has nothing";
}
} // namespace
