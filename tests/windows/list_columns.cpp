// Columns of the report list: adding, deleting, widths, fitting, header states.

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "ListTestHost.h"
#include "MessageRecorder.h"

using tests::ListHost;
using tests::TestList;

namespace
{
/// What the header keeps free left and right of an item's content.
constexpr int spacing = 6;

CString Title(TestList & list, int col)
{
    wchar_t text[40] = L"";
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT;
    column.pszText = text;
    column.cchTextMax = 40;
    EXPECT_TRUE(list.GetColumn(col, &column));
    return text;
}

std::vector<CString> Titles(TestList & list)
{
    std::vector<CString> titles;
    for (int col = 0; col < list.GetColumnCount(); ++col)
        titles.push_back(Title(list, col));
    return titles;
}

int Sum(std::vector<int> const & widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

void SetWidths(TestList & list, std::vector<int> const & widths)
{
    for (std::size_t col = 0; col < widths.size(); ++col)
        static_cast<CListCtrl &>(list).SetColumnWidth(static_cast<int>(col), widths[col]);
}

/// A list 100 pixels wide with columns of these widths.
struct NarrowList
{
    explicit NarrowList(std::vector<int> const & widths, int windowWidth = 100)
        : host(TestList::default_style, CRect(0, 0, windowWidth, 120)),
          list(host.list)
    {
        list.AddColumns(static_cast<int>(widths.size()), 20);
        SetWidths(list, widths);
    }

    std::vector<int> Fitted(int col)
    {
        list.AutosizeColumnWidth(col);
        return list.Widths();
    }

    ListHost host;
    TestList & list;
};
} // namespace

TEST(ListColumns, AddColumnGivesTheIndexOfTheNewColumn)
{
    ListHost host;
    EXPECT_EQ(host.list.GetColumnCount(), 0);
    EXPECT_EQ(host.list.AddColumn(L"a", LVCFMT_LEFT, 50), 0);
    EXPECT_EQ(host.list.AddColumn(L"b", LVCFMT_RIGHT, 60), 1);
    EXPECT_EQ(host.list.AddColumn(L"c", LVCFMT_CENTER, 70), 2);
    EXPECT_EQ(host.list.AddColumn(L"d", LVCFMT_LEFT, 80), 3);
    EXPECT_EQ(host.list.GetColumnCount(), 4);
    EXPECT_EQ(Titles(host.list), (std::vector<CString>{L"a", L"b", L"c", L"d"}));
    EXPECT_EQ(host.list.Widths(), (std::vector<int>{50, 60, 70, 80}));
    LVCOLUMNW column{};
    column.mask = LVCF_FMT;
    EXPECT_TRUE(host.list.GetColumn(1, &column));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
}

TEST(ListColumns, InsertColumnGivesOneLessThanTheIndex)
{
    ListHost host;
    host.list.AddColumns(3);
    EXPECT_EQ(host.list.InsertColumn(3, L"last", LVCFMT_LEFT, 50, 3), 2);
    EXPECT_EQ(host.list.GetColumnCount(), 4);
    EXPECT_EQ(host.list.InsertColumn(0, L"first", LVCFMT_LEFT, 50, 0), -1) << "landed at 0";
    EXPECT_EQ(host.list.InsertColumn(1, L"second", LVCFMT_LEFT, 50, -1), 0);
    EXPECT_EQ(Titles(host.list), (std::vector<CString>{L"first", L"second", L"c0", L"c1", L"c2", L"last"}));
    host.list.AddRows(1);
    EXPECT_TRUE(host.list.IsValidItem(0, 5)) << "the list has counted them";
    EXPECT_EQ(host.list.AddColumn(L"very last", LVCFMT_LEFT, 50), 6);
}

TEST(ListColumns, RefuseWithoutAHeader)
{
    TestList list;
    EXPECT_EQ(list.GetColumnCount(), 0);
    EXPECT_EQ(list.AddColumn(L"a", LVCFMT_LEFT, 50), -1);
    EXPECT_EQ(list.InsertColumn(0, L"a", LVCFMT_LEFT, 50, 0), -1);
    EXPECT_EQ(list.SetColumnWidth(0, 50), 0);
    EXPECT_FALSE(list.SetHeaderCheckedState(0, XHC_CHECKED));
    EXPECT_EQ(list.GetHeaderCheckedState(0), -1);
    list.SetHeaderRemoveAllMarks();
    list.DeleteAllColumns();
    list.AutosizeColumnWidth(0);
}

// A native list may make its header only when it is first needed.
TEST(ListColumns, AHiddenListGetsItsColumns)
{
    ListHost host(TestList::default_style & ~WS_VISIBLE);
    TestList & list = host.list;
    EXPECT_EQ(list.AddColumn(L"a", LVCFMT_LEFT, 50), 0);
    EXPECT_EQ(list.AddColumn(L"b", LVCFMT_LEFT, 50), 1);
    EXPECT_TRUE(list.SetHeaderCheckedState(1, XHC_CHECKED)) << "the header is the list's own";
    EXPECT_EQ(list.GetHeaderCheckedState(1), XHC_CHECKED);
}

TEST(ListColumns, RefuseAfterTheWindowIsGone)
{
    ListHost host;
    host.Fill(2, 2);
    host.list.DestroyWindow();
    EXPECT_EQ(host.list.GetColumnCount(), 0);
    EXPECT_EQ(host.list.InsertColumn(0, L"a", LVCFMT_LEFT, 50, 0), -1);
    EXPECT_FALSE(host.list.SetHeaderCheckedState(0, XHC_CHECKED));
    EXPECT_EQ(host.list.GetHeaderCheckedState(0), -1);
    host.list.DeleteAllColumns();
    host.list.AutosizeColumnWidth(0);
}

TEST(ListColumns, DeletingThemAllTakesTheRowsAlong)
{
    ListHost host;
    host.Fill(3, 4);
    host.list.DeleteAllColumns();
    EXPECT_EQ(host.list.GetColumnCount(), 0);
    EXPECT_EQ(host.list.GetItemCount(), 0);
    EXPECT_EQ(host.list.AddColumn(L"new", LVCFMT_LEFT, 50), 0);
    host.list.AddRows(1);
    EXPECT_TRUE(host.list.IsValidItem(0, 0));
    EXPECT_FALSE(host.list.IsValidItem(0, 1));
}

TEST(ListColumns, DeletingNoneLeavesTheRows)
{
    ListHost host;
    host.list.AddRows(2);
    host.list.DeleteAllColumns();
    EXPECT_EQ(host.list.GetItemCount(), 2);
}

TEST(ListColumns, AreDeletedFromTheLastToTheFirst)
{
    ListHost host;
    host.list.AddColumns(3);
    tests::MessageRecorder recorder({LVM_DELETECOLUMN});
    recorder.Watch(host.list.m_hWnd, "list");
    host.list.DeleteAllColumns();
    EXPECT_TRUE(recorder.Matches({
        {.window = "list", .message = LVM_DELETECOLUMN, .wParam = 2},
        {.window = "list", .message = LVM_DELETECOLUMN, .wParam = 1},
        {.window = "list", .message = LVM_DELETECOLUMN, .wParam = 0},
    }));
}

// Widths

TEST(ListColumns, SetColumnWidthAddsTwiceTheSpacing)
{
    ListHost host;
    host.list.AddColumns(2);
    EXPECT_NE(host.list.SetColumnWidth(1, 100), 0);
    EXPECT_EQ(host.list.Widths(), (std::vector<int>{80, 100 + 2 * spacing}));
    EXPECT_EQ(host.list.SetColumnWidth(2, 100), 0);
    EXPECT_EQ(host.list.SetColumnWidth(-1, 100), 0);
    EXPECT_EQ(host.list.Widths(), (std::vector<int>{80, 112}));
}

TEST(ListColumns, AutoSizeConstantsEndUpPadded)
{
    ListHost host;
    host.list.AddColumns(2);
    host.list.AddItem(L"a text of some length", nullptr, 0);
    CListCtrl & native = host.list;
    native.SetColumnWidth(0, LVSCW_AUTOSIZE);
    int const width = native.GetColumnWidth(0);
    EXPECT_GT(width, 0);
    host.list.SetColumnWidth(0, LVSCW_AUTOSIZE);
    EXPECT_EQ(host.list.GetColumnWidth(0), width + 2 * spacing);
}

TEST(ListColumns, DerivedClassCanTakeTheWidthOver)
{
    class Derived : public TestList
    {
    public:
        int SetColumnWidth(int col, int width) override { return TestList::SetColumnWidth(col, width + 1); }
    };
    tests::ScopedWindow parent;
    Derived list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 200, 100), parent, 7));
    tests::WindowCloser const closer(list);
    list.AddColumns(1);
    static_cast<CXListCtrl &>(list).SetColumnWidth(0, 40);
    EXPECT_EQ(list.GetColumnWidth(0), 41 + 2 * spacing);
}

// Fitting

TEST(ListColumns, FittingSharesTheRoomInProportion)
{
    NarrowList narrow({10, 10, 10});
    EXPECT_EQ(narrow.Fitted(-1), (std::vector<int>{32, 32, 32}));
    EXPECT_EQ(narrow.Fitted(-1), (std::vector<int>{32, 32, 32})) << "fits already";
}

TEST(ListColumns, FittingGivesThePreferredColumnTheDifference)
{
    NarrowList narrow({10, 10, 10});
    EXPECT_EQ(narrow.Fitted(1), (std::vector<int>{10, 76, 10}));
    SetWidths(narrow.list, {10, 10, 10});
    EXPECT_EQ(narrow.Fitted(99), (std::vector<int>{10, 10, 76})) << "cut down to the last";
    SetWidths(narrow.list, {60, 40, 30});
    EXPECT_EQ(narrow.Fitted(0), (std::vector<int>{26, 40, 30})) << "also where it shrinks";
}

TEST(ListColumns, FittingLeavesAPreferredColumnThatIsTooSmallAndSpreadsTheRest)
{
    // 96 are available, 34 fewer than the sum of 130, and 20 - 34 is below the minimum of 6. The column's way down to 7
    // counts for 13 of them. Of the remaining 21 the shares are 2, 8 and 8, cut off after adding a half to the negative
    // part, and three single pixels are left, from the first column downward.
    NarrowList narrow({20, 55, 55});
    tests::MessageRecorder recorder({LVM_SETCOLUMNWIDTH, WM_SHOWWINDOW});
    recorder.Watch(narrow.list.m_hWnd, "list");
    std::vector<int> const widths = narrow.Fitted(0);
    ASSERT_EQ(widths.size(), 3U);
    EXPECT_TRUE(recorder.Matches({
        {.window = "list", .message = LVM_SETCOLUMNWIDTH, .wParam = 0, .lParam = spacing + 1},
        {.window = "list", .message = WM_SHOWWINDOW, .wParam = FALSE},
        {.window = "list", .message = LVM_SETCOLUMNWIDTH, .wParam = 0, .lParam = widths[0]},
        {.window = "list", .message = LVM_SETCOLUMNWIDTH, .wParam = 1, .lParam = widths[1]},
        {.window = "list", .message = LVM_SETCOLUMNWIDTH, .wParam = 2, .lParam = widths[2]},
        {.window = "list", .message = WM_SHOWWINDOW, .wParam = TRUE},
    }));
    EXPECT_EQ(widths, (std::vector<int>{17, 46, 46}));
    EXPECT_TRUE(narrow.list.IsWindowVisible());
}

TEST(ListColumns, FittingLeavesRoomForTheScrollBar)
{
    NarrowList narrow({10, 10, 10});
    narrow.list.AddRows(narrow.list.GetCountPerPage());
    EXPECT_EQ(Sum(narrow.Fitted(-1)), 96) << "the rows just fit";
    narrow.list.AddRows(1);
    EXPECT_EQ(Sum(narrow.Fitted(-1)), 96 - ::GetSystemMetrics(SM_CXVSCROLL));
}

TEST(ListColumns, FittingTakesSinglePixelsBackWhereItGaveThem)
{
    // 97 wide: 93 available, so three columns share evenly; 98 wide leaves one pixel over.
    NarrowList narrow({31, 31, 31}, 98);
    std::vector<int> const grown = narrow.Fitted(-1);
    EXPECT_EQ(Sum(grown), 94);
    CRect rect;
    narrow.list.GetWindowRect(&rect);
    narrow.list.SetWindowPos(nullptr, 0, 0, 97, rect.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(narrow.Fitted(-1), (std::vector<int>{31, 31, 31}));
}

TEST(ListColumns, FittingDoesNotGoBelowTheSpacing)
{
    NarrowList narrow({6, 6, 300}, 40);
    for (int const width : narrow.Fitted(-1))
        EXPECT_GE(width, spacing);
}

TEST(ListColumns, FittingUsesTheNativeWidths)
{
    class Derived : public TestList
    {
    public:
        int m_calls = 0;
        int SetColumnWidth(int, int) override { return ++m_calls; }
    };
    tests::ScopedWindow parent;
    Derived list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), parent, 7));
    tests::WindowCloser const closer(list);
    list.AddColumns(3, 10);
    list.AutosizeColumnWidth(-1);
    EXPECT_EQ(list.m_calls, 0);
    EXPECT_EQ(list.Widths(), (std::vector<int>{32, 32, 32}));
}

TEST(ListColumns, FittingNeedsColumnsAndAWidth)
{
    ListHost host(TestList::default_style, CRect(0, 0, 0, 100));
    host.list.AutosizeColumnWidth(0);
    host.list.AddColumns(2, 30);
    host.list.AutosizeColumnWidth(0);
    EXPECT_EQ(host.list.Widths(), (std::vector<int>{30, 30}));
}

// Header states

TEST(ListColumns, HeaderStateIsKeptWithTheHeaderItem)
{
    ListHost host;
    host.list.AddColumns(3);
    EXPECT_EQ(host.list.GetHeaderCheckedState(1), XHC_NONE);
    for (int state = XHC_NONE; state < XHC_END; ++state)
    {
        EXPECT_TRUE(host.list.SetHeaderCheckedState(1, state));
        EXPECT_EQ(host.list.GetHeaderCheckedState(1), state);
        HDITEMW item{};
        item.mask = HDI_IMAGE;
        ::SendMessageW(host.list.Header(), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(item.iImage, state);
    }
    EXPECT_EQ(host.list.GetHeaderCheckedState(0), XHC_NONE);
    EXPECT_EQ(Title(host.list, 1), L"c1");
}

TEST(ListColumns, BadHeaderStateIsRefused)
{
    ListHost host;
    host.list.AddColumns(4);
    host.list.SetHeaderCheckedState(3, XHC_CHECKED);
    EXPECT_FALSE(host.list.SetHeaderCheckedState(3, 7));
    EXPECT_FALSE(host.list.SetHeaderCheckedState(3, -1));
    EXPECT_EQ(host.list.GetHeaderCheckedState(3), XHC_CHECKED);
    EXPECT_FALSE(host.list.SetHeaderCheckedState(4, XHC_CHECKED));
    EXPECT_FALSE(host.list.SetHeaderCheckedState(-1, XHC_CHECKED));
    EXPECT_EQ(host.list.GetHeaderCheckedState(4), -1);
    EXPECT_EQ(host.list.GetHeaderCheckedState(-1), -1);
}

TEST(ListColumns, RemovingAllMarksTakesCheckBoxesToo)
{
    ListHost host;
    host.list.AddColumns(3);
    host.list.SetHeaderCheckedState(0, XHC_CHECKED);
    host.list.SetHeaderCheckedState(2, XHC_SORT_DESCENDING);
    host.list.SetHeaderRemoveAllMarks();
    for (int col = 0; col < 3; ++col)
        EXPECT_EQ(host.list.GetHeaderCheckedState(col), XHC_NONE) << col;
}
