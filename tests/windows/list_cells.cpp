// Cells of the report list: access, row words and keys, properties, colours, check states.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <numeric>

#include "list/XListRowPool.h"
#include "list_CellTest.h"

using tests::TestList;

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF untouched = 0x123456;
constexpr COLORREF no_gradient = XLISTCTRLDATA::no_gradient;

using Key = std::array<int, XLISTCTRLDATA::key_length>;

Key Counting(int first)
{
    Key key;
    std::iota(key.begin(), key.end(), first);
    return key;
}

using ListCells = tests::CellTest;
} // namespace

TEST_F(ListCells, AreValidWithinTheRowsAndColumns)
{
    EXPECT_TRUE(m_list.IsValidItem(0, 0));
    EXPECT_TRUE(m_list.IsValidItem(4, 2));
    EXPECT_FALSE(m_list.IsValidItem(-1, 0));
    EXPECT_FALSE(m_list.IsValidItem(0, -1));
    EXPECT_FALSE(m_list.IsValidItem(5, 0));
    EXPECT_FALSE(m_list.IsValidItem(0, 3));
    m_list.DeleteItem(4);
    EXPECT_FALSE(m_list.IsValidItem(4, 2));
}

TEST_F(ListCells, StandInOneArrayForEachRow)
{
    XLISTCTRLDATA * const cells = m_list.GetRowData(2);
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(m_list.GetRowItemData(2, 0), cells);
    EXPECT_EQ(m_list.GetRowItemData(2, 2), cells + 2);
    EXPECT_EQ(m_list.GetRowItemDataDirect(2, 1), cells + 1);
    TestList const & constant = m_list;
    EXPECT_EQ(constant.GetRowData(2), cells);
    EXPECT_EQ(constant.GetRowItemData(2, 1), cells + 1);
    EXPECT_NE(m_list.GetRowData(1), cells);
}

TEST_F(ListCells, AccessOutOfRangeGivesNull)
{
    TestList const & constant = m_list;
    for (int const row : {-1, 5, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
    {
        EXPECT_EQ(m_list.GetRowData(row), nullptr) << row;
        EXPECT_EQ(constant.GetRowData(row), nullptr) << row;
        EXPECT_EQ(m_list.GetRowItemData(row, 0), nullptr) << row;
        EXPECT_EQ(constant.GetRowItemData(row, 0), nullptr) << row;
    }
    EXPECT_EQ(m_list.GetRowItemData(0, 3), nullptr);
    EXPECT_EQ(constant.GetRowItemData(0, 3), nullptr);
}

TEST_F(ListCells, ItemInsertedPastTheClassHasNone)
{
    int const row = m_list.InsertForeignItem(2, L"foreign");
    ASSERT_EQ(row, 2);
    EXPECT_EQ(m_list.Param(row), 0);
    EXPECT_TRUE(m_list.IsValidItem(row, 1));
    EXPECT_EQ(m_list.GetRowData(row), nullptr);
    EXPECT_EQ(m_list.GetRowItemData(row, 0), nullptr);
    EXPECT_EQ(m_list.GetRowItemDataDirect(row, 0), nullptr);
    EXPECT_NE(m_list.GetRowData(3), nullptr);

    Key key = Counting(1);
    COLORREF text = 0;
    COLORREF background = 0;
    EXPECT_FALSE(m_list.SetItemData(row, 1LL));
    EXPECT_FALSE(m_list.SetItemData(row, 1, 2));
    EXPECT_EQ(m_list.GetItemData64(row), 0);
    EXPECT_FALSE(m_list.SetItemDataPtr(row, &key));
    EXPECT_EQ(m_list.GetItemDataPtr(row), nullptr);
    EXPECT_FALSE(m_list.SetItemIdx8(row, key.data()));
    EXPECT_FALSE(m_list.GetItemIdx8(row, key.data()));
    EXPECT_FALSE(m_list.SetItemClavis(row, key.data()));
    EXPECT_FALSE(m_list.GetItemClavis(row, key.data()));
    EXPECT_EQ(key, Counting(1));
    m_list.SetItemProperty(row, 0, XLP_BOLD, true);
    EXPECT_FALSE(m_list.GetItemProperty(row, 0, XLP_BOLD));
    m_list.SetRowProperty(row, XLP_BOLD, true);
    EXPECT_TRUE(m_list.SetBold(row, 0, true));
    EXPECT_FALSE(m_list.SetEnabled(row, 0, true));
    EXPECT_FALSE(m_list.SetEnabled(row, true));
    EXPECT_FALSE(m_list.GetEnabled(row, 0));
    EXPECT_FALSE(m_list.GetEnabled(row));
    m_list.SetItemValueType(row, 0, XLV_INT);
    EXPECT_EQ(m_list.GetItemValueType(row, 0), XLV_TEXT);
    m_list.SetRowColors(row, red, green);
    m_list.SetItemColors(row, 0, red, green, red);
    EXPECT_FALSE(m_list.GetItemColors(row, 0, text, background));
    EXPECT_FALSE(m_list.SetCheckbox(row, 0, XLC_CHECKED));
    EXPECT_EQ(m_list.GetCheckbox(row, 0), XLC_NONE);
    EXPECT_FALSE(m_list.SetRadioButton(row, 0, XLC_RADIO_ON));
    EXPECT_EQ(m_list.CountCheckedItems(0, XLC_NONE), 5U) << "only rows with cells count";
    EXPECT_EQ(m_list.FindDataItem(0LL), 0) << "the search passes over it";
    m_list.EnableAll(true);
}

TEST_F(ListCells, RowMadeBeforeAColumnHasNoCellInIt)
{
    int const col = AddLateColumn();
    ASSERT_EQ(col, 3);
    EXPECT_TRUE(m_list.IsValidItem(0, col));
    EXPECT_EQ(m_list.GetRowItemData(0, col), nullptr);
    EXPECT_FALSE(m_list.SetCheckbox(0, col, XLC_CHECKED));
    EXPECT_FALSE(m_list.SetItemText(0, col, L"text"));
    EXPECT_EQ(m_list.GetItemText(0, col), L"");
    m_list.SetRowProperty(0, XLP_BOLD, true);
    EXPECT_TRUE(m_list.GetBold(0, 2));
    EXPECT_FALSE(m_list.GetBold(0, col));
    m_list.SetRowColors(0, red, green);
    EXPECT_TRUE(m_list.SetEnabled(0, false));
    EXPECT_FALSE(m_list.GetEnabled(0));
    EXPECT_EQ(m_list.CountCheckedItems(col, XLC_NONE), 0U);
    m_list.AddRows(1);
    EXPECT_NE(m_list.GetRowItemData(5, col), nullptr);
    EXPECT_EQ(m_list.CountCheckedItems(col, XLC_NONE), 1U);
}

TEST_F(ListCells, KnowTheirRowAfterNativeChangesOfTheOrder)
{
    // Reads a row, changes the order behind the list's back, and reads the same index again.
    m_list.SetItemData(2, 2LL);
    m_list.SetItemData(3, 3LL);
    EXPECT_EQ(m_list.GetItemData64(2), 2);
    ::SendMessageW(m_list.m_hWnd, LVM_DELETEITEM, 2, 0);
    EXPECT_EQ(m_list.GetItemData64(2), 3);

    m_list.InsertForeignItem(2, L"foreign");
    EXPECT_EQ(m_list.GetItemData64(2), 0);
    EXPECT_EQ(m_list.GetItemData64(3), 3);

    m_list.DeleteItem(2);
    auto * const row = reinterpret_cast<XLISTCTRLROW *>(m_list.Param(2));
    EXPECT_EQ(m_list.GetItemData64(2), 3);
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = 2;
    ::SendMessageW(m_list.m_hWnd, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(m_list.GetRowData(2), nullptr);
    item.lParam = reinterpret_cast<LPARAM>(row);
    ::SendMessageW(m_list.m_hWnd, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(m_list.GetItemData64(2), 3);

    for (int i = 0; i < m_list.GetItemCount(); ++i)
        m_list.SetItemData(i, static_cast<long long>(i));
    EXPECT_EQ(m_list.GetItemData64(0), 0);
    auto const descending = [](LPARAM first, LPARAM second, LPARAM list) -> int {
        // What is read on the way must not be taken for the order afterwards.
        reinterpret_cast<TestList const *>(list)->GetItemData64(0);
        auto const word = [](LPARAM param) {
            return reinterpret_cast<XLISTCTRLROW const *>(param)->cells()->itemData64;
        };
        return static_cast<int>(word(second) - word(first));
    };
    m_list.SortItems(static_cast<int(CALLBACK *)(LPARAM, LPARAM, LPARAM)>(descending),
                     reinterpret_cast<DWORD_PTR>(&m_list));
    EXPECT_EQ(m_list.GetItemData64(0), 3);
    EXPECT_EQ(m_list.GetItemData64(3), 0);

    m_list.InsertForeignItem(0, L"foreign");
    EXPECT_EQ(m_list.GetItemData64(1), 3);
    ::SendMessageW(m_list.m_hWnd, LVM_DELETEALLITEMS, 0, 0);
    EXPECT_EQ(m_list.GetRowData(1), nullptr);
    EXPECT_FALSE(m_list.IsValidItem(1, 0));
}

// Row words and keys

TEST_F(ListCells, RowWordHas64Bits)
{
    EXPECT_TRUE(m_list.SetItemData(1, 0x1122334455667788LL));
    EXPECT_EQ(m_list.GetItemData64(1), 0x1122334455667788LL);
    EXPECT_EQ(m_list.GetItemData(1), 0x55667788);
    EXPECT_EQ(m_list.GetItemData2(1), 0x11223344);
    EXPECT_EQ(m_list.GetItemData64(0), 0);
    EXPECT_EQ(m_list.GetItemData64(2), 0);
}

TEST_F(ListCells, RowWordFromIntKeepsItsSign)
{
    EXPECT_TRUE(m_list.SetItemData(1, -2));
    EXPECT_EQ(m_list.GetItemData64(1), -2);
    EXPECT_EQ(m_list.GetItemData(1), -2);
    EXPECT_EQ(m_list.GetItemData2(1), -1);
}

TEST_F(ListCells, RowWordFromUnsignedHasNoSign)
{
    EXPECT_TRUE(m_list.SetItemData(1, 0xFFFFFFFEU));
    EXPECT_EQ(m_list.GetItemData64(1), 0xFFFFFFFELL);
    EXPECT_EQ(m_list.GetItemData(1), -2);
    EXPECT_EQ(m_list.GetItemData2(1), 0);
}

TEST_F(ListCells, RowWordFromTwoHalves)
{
    EXPECT_TRUE(m_list.SetItemData(1, -1, 7));
    EXPECT_EQ(m_list.GetItemData64(1), 0x7FFFFFFFFLL);
    EXPECT_EQ(m_list.GetItemData(1), -1);
    EXPECT_EQ(m_list.GetItemData2(1), 7);
    EXPECT_TRUE(m_list.SetItemData(1, 5, -1));
    EXPECT_EQ(m_list.GetItemData64(1), static_cast<long long>(0xFFFFFFFF00000005ULL));
}

TEST_F(ListCells, RowWordsOfABadRowGiveNothing)
{
    for (int const row : {-1, 5})
    {
        int number = 0;
        Key key = Counting(1);
        EXPECT_FALSE(m_list.SetItemData(row, 1LL));
        EXPECT_FALSE(m_list.SetItemData(row, 1));
        EXPECT_FALSE(m_list.SetItemData(row, 1U));
        EXPECT_FALSE(m_list.SetItemData(row, 1, 1));
        EXPECT_EQ(m_list.GetItemData64(row), 0);
        EXPECT_EQ(m_list.GetItemData(row), 0);
        EXPECT_EQ(m_list.GetItemData2(row), 0);
        EXPECT_FALSE(m_list.SetItemDataPtr(row, &number));
        EXPECT_EQ(m_list.GetItemDataPtr(row), nullptr);
        EXPECT_FALSE(m_list.SetItemIdx8(row, key.data()));
        EXPECT_FALSE(m_list.GetItemIdx8(row, key.data()));
        EXPECT_FALSE(m_list.SetItemClavis(row, key.data()));
        EXPECT_FALSE(m_list.GetItemClavis(row, key.data()));
        EXPECT_EQ(key, Counting(1));
    }
}

TEST_F(ListCells, RowPointerIsKept)
{
    int number = 0;
    EXPECT_EQ(m_list.GetItemDataPtr(1), nullptr);
    EXPECT_TRUE(m_list.SetItemDataPtr(1, &number));
    EXPECT_EQ(m_list.GetItemDataPtr(1), &number);
    EXPECT_EQ(m_list.GetItemDataPtr(2), nullptr);
}

TEST_F(ListCells, KeyOfEightNumbersIsCopiedWhole)
{
    Key key{};
    EXPECT_TRUE(m_list.GetItemIdx8(1, key.data()));
    EXPECT_EQ(key, (Key{-1, -1, -1, -1, -1, -1, -1, -1}));
    EXPECT_TRUE(m_list.SetItemIdx8(1, Counting(10).data()));
    EXPECT_TRUE(m_list.GetItemIdx8(1, key.data()));
    EXPECT_EQ(key, Counting(10));
}

TEST_F(ListCells, ClavisLeavesTheLastTwoNumbersAlone)
{
    std::array<int, 6> const clavis = {1, 2, 3, 4, 5, 6};
    EXPECT_TRUE(m_list.SetItemClavis(1, clavis.data()));
    Key key{};
    EXPECT_TRUE(m_list.GetItemIdx8(1, key.data()));
    EXPECT_EQ(key, (Key{1, 2, 3, 4, 5, 6, -1, -1}));
    EXPECT_TRUE(m_list.SetItemIdx8(2, Counting(20).data()));
    Key read = Counting(90);
    EXPECT_TRUE(m_list.GetItemClavis(2, read.data()));
    EXPECT_EQ(read, (Key{20, 21, 22, 23, 24, 25, 96, 97}));
}

TEST_F(ListCells, RowWordsDoNotRepaint)
{
    int number = 0;
    m_list.SetItemData(0, 1LL);
    m_list.SetItemData(0, 1, 2);
    m_list.SetItemDataPtr(0, &number);
    m_list.SetItemIdx8(0, Counting(1).data());
    m_list.SetItemClavis(0, Counting(1).data());
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, FindGivesTheUpperOfTwoRows)
{
    m_list.SetItemData(1, 77LL);
    m_list.SetItemData(3, 77LL);
    EXPECT_EQ(m_list.FindDataItem(77LL), 1);
    EXPECT_EQ(m_list.FindDataItem(78LL), -1);
    EXPECT_EQ(m_list.FindDataItem(0LL), 0);
}

TEST_F(ListCells, FindWidensItsArgument)
{
    m_list.SetItemData(1, -1LL);
    m_list.SetItemData(2, 0xFFFFFFFFLL);
    EXPECT_EQ(m_list.FindDataItem(-1), 1);
    EXPECT_EQ(m_list.FindDataItem(0xFFFFFFFFUL), 2);
    EXPECT_EQ(m_list.FindDataItem(0xFFFFFFFFLL), 2);
}

TEST_F(ListCells, FindByPointerAndKey)
{
    int number = 0;
    m_list.SetItemDataPtr(2, &number);
    EXPECT_EQ(m_list.FindDataItemPtr(&number), 2);
    EXPECT_EQ(m_list.FindDataItemPtr(nullptr), 0);
    EXPECT_EQ(m_list.FindDataItemPtr(&m_list), -1);

    m_list.SetItemIdx8(1, Counting(1).data());
    m_list.SetItemIdx8(3, Counting(1).data());
    Key key = Counting(1);
    key[6] = key[7] = 99;
    EXPECT_EQ(m_list.FindDataItemClavis(key.data()), 1) << "the last two numbers do not count";
    key[5] = 0;
    EXPECT_EQ(m_list.FindDataItemClavis(key.data()), -1);
}

TEST_F(ListCells, SelectedRowGivesTheLowHalfOfItsWord)
{
    int number = 0;
    EXPECT_EQ(m_list.GetSelectedItemData(-5), -5);
    EXPECT_EQ(m_list.GetSelectedItemDataPtr(), nullptr);
    m_list.SetItemData(2, 0x1FFFFFFFELL);
    m_list.SetItemDataPtr(2, &number);
    m_list.SetCurSel(2, false);
    EXPECT_EQ(m_list.GetSelectedItemData(-5), -2);
    EXPECT_EQ(m_list.GetSelectedItemDataPtr(), &number);
}

// Properties

TEST_F(ListCells, PropertyBitsAreSetAndCleared)
{
    m_list.SetItemProperty(1, 1, XLP_BOLD | XLP_UNDERLINE, true);
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, XLP_ENABLED | XLP_BOLD | XLP_UNDERLINE);
    EXPECT_TRUE(m_list.GetItemProperty(1, 1, XLP_BOLD));
    EXPECT_TRUE(m_list.GetItemProperty(1, 1, XLP_MODIFIED | XLP_BOLD)) << "one of the bits is enough";
    EXPECT_FALSE(m_list.GetItemProperty(1, 1, XLP_MODIFIED | XLP_LINK));
    EXPECT_FALSE(m_list.GetItemProperty(1, 2, XLP_BOLD));
    m_list.SetItemProperty(1, 1, XLP_BOLD, false);
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, XLP_ENABLED | XLP_UNDERLINE);
    EXPECT_FALSE(m_list.GetItemProperty(-1, 1, XLP_ENABLED));
    EXPECT_FALSE(m_list.GetItemProperty(1, 3, XLP_ENABLED));
    EXPECT_FALSE(m_list.GetItemProperty(1, -1, XLP_ENABLED));
}

TEST_F(ListCells, PropertyRepaintsItsCell)
{
    m_list.SetItemProperty(1, 1, XLP_BOLD, true);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    m_list.SetItemProperty(1, 3, XLP_BOLD, true);
    m_list.SetItemProperty(5, 1, XLP_BOLD, true);
    m_list.SetItemProperty(1, -1, XLP_BOLD, true);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, RowPropertyDoesNotRepaint)
{
    m_list.SetRowProperty(1, XLP_SORT_LAST, true);
    for (int col = 0; col < 3; ++col)
        EXPECT_TRUE(m_list.GetItemProperty(1, col, XLP_SORT_LAST)) << col;
    EXPECT_FALSE(m_list.GetItemProperty(2, 0, XLP_SORT_LAST));
    m_list.SetRowProperty(1, XLP_SORT_LAST, false);
    EXPECT_FALSE(m_list.GetItemProperty(1, 2, XLP_SORT_LAST));
    m_list.SetRowProperty(9, XLP_SORT_LAST, true);
    m_list.SetRowProperty(-1, XLP_SORT_LAST, true);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, BoldAndModified)
{
    EXPECT_TRUE(m_list.SetBold(1, 1, true));
    EXPECT_TRUE(m_list.GetBold(1, 1));
    EXPECT_TRUE(m_list.SetBold(1, 1, false));
    EXPECT_FALSE(m_list.GetBold(1, 1));
    EXPECT_TRUE(m_list.SetBold(-1, 1, true)) << "always true";
    EXPECT_FALSE(m_list.GetBold(-1, 1));
    m_list.SetModified(1, 1, true);
    EXPECT_TRUE(m_list.GetModified(1, 1));
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->properties, XLP_ENABLED | XLP_MODIFIED);
    EXPECT_FALSE(m_list.GetListModified());
    m_list.SetModified(1, 1, false);
    EXPECT_FALSE(m_list.GetModified(1, 1));
}

TEST_F(ListCells, OneCellIsDisabled)
{
    EXPECT_TRUE(m_list.SetEnabled(1, 1, false));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_FALSE(m_list.GetEnabled(1, 1));
    EXPECT_TRUE(m_list.GetEnabled(1, 0));
    EXPECT_TRUE(m_list.GetEnabled(1));
    EXPECT_FALSE(m_list.SetEnabled(5, 1, false));
    EXPECT_FALSE(m_list.SetEnabled(1, 3, false));
    EXPECT_FALSE(m_list.GetEnabled(5, 1));
}

TEST_F(ListCells, WholeRowIsDisabled)
{
    EXPECT_TRUE(m_list.SetEnabled(1, false));
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, -1));
    EXPECT_FALSE(m_list.GetEnabled(1));
    for (int col = 0; col < 3; ++col)
        EXPECT_FALSE(m_list.GetEnabled(1, col));
    EXPECT_TRUE(m_list.SetEnabled(1, 2, true));
    EXPECT_TRUE(m_list.GetEnabled(1)) << "one enabled cell is enough";
    EXPECT_FALSE(m_list.SetEnabled(5, false));
    EXPECT_FALSE(m_list.SetEnabled(-1, false));
    EXPECT_FALSE(m_list.GetEnabled(5));
}

TEST_F(ListCells, EnableAllTakesTheWindowAlong)
{
    m_list.EnableAll(false);
    for (int row = 0; row < 5; ++row)
        EXPECT_FALSE(m_list.GetEnabled(row)) << row;
    EXPECT_FALSE(m_list.IsWindowEnabled());
    CRect client;
    m_list.GetClientRect(&client);
    EXPECT_EQ(m_list.TakeUpdateRect(), client);
    m_list.DisableAll(false);
    for (int row = 0; row < 5; ++row)
        EXPECT_TRUE(m_list.GetEnabled(row, 2)) << row;
    EXPECT_TRUE(m_list.IsWindowEnabled());
    m_list.DisableAll(true);
    EXPECT_FALSE(m_list.GetEnabled(0));
    EXPECT_FALSE(m_list.IsWindowEnabled());
}

TEST_F(ListCells, ValueTypeIsWrittenRaw)
{
    m_list.SetItemValueType(1, 1, XLV_DATETIME);
    EXPECT_EQ(m_list.GetItemValueType(1, 1), XLV_DATETIME);
    m_list.SetItemValueType(1, 1, 99);
    EXPECT_EQ(m_list.GetItemValueType(1, 1), 99U);
    m_list.SetItemValueType(5, 1, XLV_INT);
    EXPECT_EQ(m_list.GetItemValueType(5, 1), 0U);
    EXPECT_EQ(m_list.GetItemValueType(1, 3), 0U);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, RowColorsReachEveryColumn)
{
    m_list.SetRowColors(1, red, green);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, -1));
    for (int col = 0; col < 3; ++col)
    {
        COLORREF text = untouched;
        COLORREF background = untouched;
        EXPECT_TRUE(m_list.GetItemColors(1, col, text, background));
        EXPECT_EQ(text, red);
        EXPECT_EQ(background, green);
        EXPECT_EQ(m_list.GetRowItemData(1, col)->gradientColor, no_gradient);
    }
    m_list.SetRowColors(5, red, green);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, ItemColorsReachOneCell)
{
    m_list.SetItemColors(1, 1, red, green, untouched);
    EXPECT_EQ(m_list.TakeUpdateRect(), Around(1, 1));
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->textColor, red);
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->backgroundColor, green);
    EXPECT_EQ(m_list.GetRowItemData(1, 1)->gradientColor, untouched);
    EXPECT_EQ(m_list.GetRowItemData(1, 2)->textColor, 0U);
    m_list.SetItemColors(1, 3, red, green, untouched);
    m_list.SetItemColors(5, 1, red, green, untouched);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListCells, ColorsOfABadCellAreZero)
{
    for (auto const & [row, col] : {std::pair(5, 0), std::pair(-1, 0), std::pair(0, 3), std::pair(0, -1)})
    {
        COLORREF text = untouched;
        COLORREF background = untouched;
        EXPECT_FALSE(m_list.GetItemColors(row, col, text, background));
        EXPECT_EQ(text, 0U);
        EXPECT_EQ(background, 0U);
    }
}
