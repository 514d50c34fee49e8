// Rows of the report list: insertion, deletion, recycling, selection, batch mode, repainting.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "ListTestHost.h"
#include "MessageRecorder.h"

using tests::ListHost;
using tests::TestList;

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF no_gradient = XLISTCTRLDATA::no_gradient;

/// Three columns, no rows.
class ListRows : public testing::Test
{
protected:
    ListRows() { m_list.AddColumns(3); }

    /// Rows 0 to count - 1, painted.
    void Fill(int count)
    {
        m_list.AddRows(count);
        m_list.UpdateWindow();
        m_list.TakeUpdateRect();
    }
    CRect Bounds(int row, int col)
    {
        CRect rect;
        EXPECT_TRUE(m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        return rect;
    }
    CRect Client()
    {
        CRect client;
        m_list.GetClientRect(&client);
        return client;
    }
    std::vector<int> Selected()
    {
        std::vector<int> rows;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
        {
            if (m_list.IsSelected(row))
                rows.push_back(row);
        }
        return rows;
    }
    void Select(std::vector<int> const & rows)
    {
        for (int const row : rows)
            m_list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }

    ListHost m_host;
    TestList & m_list = m_host.list;
};

/// Refuses every insertion of an item.
class RefusingList : public TestList
{
public:
    bool m_refuse = true;
    int m_insertions = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == LVM_INSERTITEMW)
        {
            ++m_insertions;
            if (m_refuse)
                return -7;
        }
        return TestList::WindowProc(message, wParam, lParam);
    }
};
} // namespace

// Insertion

TEST_F(ListRows, InsertionFillsTheFirstCellAlone)
{
    int number = 0;
    EXPECT_EQ(m_list.InsertItem(0, L"text", red, green, &number, 0x123456789LL), 0);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"text");
    XLISTCTRLDATA const * const cells = m_list.GetRowData(0);
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells[0].textColor, red);
    EXPECT_EQ(cells[0].backgroundColor, green);
    EXPECT_EQ(cells[0].imageIndex, -1);
    EXPECT_EQ(cells[0].itemDataPtr, &number);
    EXPECT_EQ(cells[0].itemData64, 0x123456789LL);
    for (int col = 1; col < 3; ++col)
    {
        EXPECT_EQ(cells[col].textColor, 0U) << "black";
        EXPECT_EQ(cells[col].backgroundColor, white);
        EXPECT_EQ(cells[col].properties, XLP_ENABLED);
        EXPECT_EQ(cells[col].itemDataPtr, nullptr);
    }
}

TEST_F(ListRows, InsertionWithoutColoursTakesTheWindows)
{
    EXPECT_EQ(m_list.InsertItem(0, L"a", nullptr, 1), 0);
    EXPECT_EQ(m_list.AddItem(L"b", nullptr, 2), 1);
    for (int row = 0; row < 2; ++row)
    {
        COLORREF text = 0;
        COLORREF background = 0;
        EXPECT_TRUE(m_list.GetItemColors(row, 0, text, background));
        EXPECT_EQ(text, ::GetSysColor(COLOR_WINDOWTEXT));
        EXPECT_EQ(background, ::GetSysColor(COLOR_WINDOW));
        EXPECT_EQ(m_list.GetItemData64(row), row + 1);
    }
}

TEST_F(ListRows, NegativePositionAppends)
{
    Fill(2);
    EXPECT_EQ(m_list.InsertItem(-5, L"last", nullptr, 0), 2);
    EXPECT_EQ(m_list.InsertItem(-1, L"very last", red, green, nullptr, 0), 3);
    EXPECT_EQ(m_list.Texts(0), (std::vector<CString>{L"r0", L"r1", L"last", L"very last"}));
}

TEST_F(ListRows, InsertionInTheMiddleMovesTheRowsBehind)
{
    Fill(3);
    m_list.SetItemData(1, 11LL);
    EXPECT_EQ(m_list.InsertItem(1, L"new", nullptr, 99), 1);
    EXPECT_EQ(m_list.GetItemData64(1), 99);
    EXPECT_EQ(m_list.GetItemData64(2), 11);
    EXPECT_EQ(m_list.InsertItem(100, L"end", nullptr, 98), 4) << "past the end is the end";
    EXPECT_EQ(m_list.GetItemData64(4), 98);
}

TEST_F(ListRows, NullTextInsertsAnEmptyRow)
{
    EXPECT_EQ(m_list.AddItem(nullptr, nullptr, 5), 0);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"");
    EXPECT_EQ(m_list.GetItemData64(0), 5);
}

TEST_F(ListRows, InsertionOfAStructure)
{
    int number = 0;
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_STATE;
    item.pszText = const_cast<wchar_t *>(L"text");
    item.iImage = 4;
    item.lParam = reinterpret_cast<LPARAM>(&number);
    item.state = item.stateMask = LVIS_SELECTED;
    EXPECT_EQ(m_list.InsertItem(&item), 0);
    EXPECT_EQ(m_list.GetItemText(0, 0), L"text");
    EXPECT_TRUE(m_list.IsSelected(0));
    XLISTCTRLDATA const * const cells = m_list.GetRowData(0);
    ASSERT_NE(cells, nullptr);
    EXPECT_EQ(cells->imageIndex, 4);
    EXPECT_EQ(cells->itemDataPtr, &number);
    EXPECT_EQ(cells->itemData64, 0);
    EXPECT_EQ(cells->textColor, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(cells->backgroundColor, ::GetSysColor(COLOR_WINDOW));
    EXPECT_NE(m_list.Param(0), item.lParam) << "the native word holds the row";
    EXPECT_EQ(item.lParam, reinterpret_cast<LPARAM>(&number)) << "the caller's structure stays";
    item.iItem = -1;
    EXPECT_EQ(m_list.InsertItem(&item), -1);
    EXPECT_EQ(m_list.GetItemCount(), 1);
    EXPECT_EQ(m_list.InsertItem(nullptr), -1);
}

TEST_F(ListRows, ItsRowIsThereWhenTheParentHearsOfTheInsertion)
{
    class Parent : public tests::ListParent
    {
    public:
        TestList * m_list = nullptr;
        std::vector<long long> m_words;

    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
        {
            auto const & change = *reinterpret_cast<NMLISTVIEW const *>(lParam);
            if (change.hdr.code == LVN_INSERTITEM && m_list != nullptr)
                m_words.push_back(m_list->GetItemData64(change.iItem));
            return ListParent::OnNotify(wParam, lParam, result);
        }
    };
    Parent parent;
    TestList list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), &parent, TestList::id));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    parent.m_list = &list;
    list.AddItem(L"a", nullptr, 5);
    list.AddItem(L"b", nullptr, 6);
    list.InsertItem(0, L"c", nullptr, 7);
    EXPECT_EQ(parent.m_words, (std::vector<long long>{5, 6, 7}));
    EXPECT_EQ(list.GetItemData64(0), 7);
    EXPECT_EQ(list.GetItemData64(2), 6);
}

TEST_F(ListRows, FailedInsertionTakesNoRow)
{
    RefusingList list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), &m_host.parent, 8));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    list.m_refuse = false;
    list.AddItem(L"a", nullptr, 1);
    XLISTCTRLDATA * const first = list.GetRowData(0);
    list.DeleteAllItems();

    list.m_refuse = true;
    EXPECT_EQ(list.AddItem(L"b", nullptr, 2), -7) << "the native result";
    LVITEMW item{};
    EXPECT_EQ(list.InsertItem(&item), -7);
    list.m_refuse = false;
    EXPECT_EQ(list.AddItem(L"c", nullptr, 3), 0);
    EXPECT_EQ(list.GetRowData(0), first) << "the next row from the pool is still the first";
}

TEST_F(ListRows, InsertionIsOneNativeOperation)
{
    RefusingList list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), &m_host.parent, 8));
    tests::WindowCloser const closer(list);
    list.m_refuse = false;
    list.AddColumns(2);
    list.AddItem(L"a", nullptr, 1);
    EXPECT_EQ(list.m_insertions, 1);
}

TEST_F(ListRows, ListWithoutColumnsKeepsTheWordsOfItsRows)
{
    ListHost host;
    int number = 0;
    EXPECT_EQ(host.list.AddItem(L"a", &number, 5), 0);
    EXPECT_EQ(host.list.GetItemData64(0), 5);
    EXPECT_EQ(host.list.GetItemDataPtr(0), &number);
    EXPECT_EQ(host.list.GetRowItemData(0, 0), nullptr) << "there is no column 0";
    EXPECT_FALSE(host.list.IsValidItem(0, 0));
}

// Deletion and recycling

TEST_F(ListRows, DeletionOutOfRangeChangesNothing)
{
    Fill(3);
    EXPECT_EQ(m_list.DeleteItem(-1), 0);
    EXPECT_EQ(m_list.DeleteItem(3), 0);
    EXPECT_EQ(m_list.Texts(0), (std::vector<CString>{L"r0", L"r1", L"r2"}));
}

TEST_F(ListRows, DeletionTakesTheRowOut)
{
    Fill(3);
    m_list.SetItemData(2, 22LL);
    EXPECT_NE(m_list.DeleteItem(1), 0);
    EXPECT_EQ(m_list.Texts(0), (std::vector<CString>{L"r0", L"r2"}));
    EXPECT_EQ(m_list.GetItemData64(1), 22);
}

TEST_F(ListRows, NativeItemHasLostItsRowWhenItIsDeleted)
{
    class Parent : public tests::ListParent
    {
    public:
        std::vector<LPARAM> m_params;

    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * result) override
        {
            auto const & change = *reinterpret_cast<NMLISTVIEW const *>(lParam);
            if (change.hdr.code == LVN_DELETEITEM)
                m_params.push_back(change.lParam);
            return ListParent::OnNotify(wParam, lParam, result);
        }
    };
    Parent parent;
    TestList list;
    ASSERT_TRUE(list.Create(TestList::default_style, CRect(0, 0, 100, 100), &parent, TestList::id));
    tests::WindowCloser const closer(list);
    list.AddColumns(2);
    list.AddRows(2);
    list.DeleteItem(1);
    EXPECT_EQ(parent.m_params, (std::vector<LPARAM>{0}));
}

TEST_F(ListRows, DeletionOfAnItemInsertedPastTheClass)
{
    Fill(2);
    m_list.SetItemData(1, 7LL);
    m_list.InsertForeignItem(1, L"foreign");
    EXPECT_NE(m_list.DeleteItem(1), 0);
    EXPECT_EQ(m_list.GetItemCount(), 2);
    EXPECT_EQ(m_list.GetItemData64(1), 7);
    m_list.AddRows(1);
    std::set<XLISTCTRLDATA const *> const rows = {m_list.GetRowData(0), m_list.GetRowData(1), m_list.GetRowData(2)};
    EXPECT_EQ(rows.size(), 3U) << "no row is in use twice";
}

TEST_F(ListRows, RecycledRowKeepsOnlyToolTipsAndProgressFormat)
{
    Fill(2);
    XLISTCTRLDATA * const cells = m_list.GetRowData(1);
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    m_list.SetItemColors(1, 1, red, green, red);
    m_list.SetItemToolTipText(1, 1, L"old tip");
    m_list.SetProgress(1, 2, true, L"%d of 9");
    m_list.UpdateProgress(1, 2, 50, 4);
    m_list.SetItemImage(1, 1, 3);
    m_list.SetItemText(1, 1, 17);
    m_list.SetItemData(1, 5LL);
    m_list.SetComboStyle(1, 1, true, 5);
    m_list.DeleteItem(1);

    EXPECT_EQ(m_list.AddItem(L"new", nullptr, 0), 1);
    ASSERT_EQ(m_list.GetRowData(1), cells) << "the pool's row is used again";
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_NONE);
    COLORREF text = 1;
    COLORREF background = 1;
    EXPECT_TRUE(m_list.GetItemColors(1, 1, text, background));
    EXPECT_EQ(text, 0U);
    EXPECT_EQ(background, white);
    EXPECT_EQ(cells[1].gradientColor, no_gradient);
    EXPECT_EQ(cells[1].imageIndex, -1);
    EXPECT_EQ(cells[1].intValue, 0);
    EXPECT_EQ(cells[1].valueType, XLV_TEXT);
    EXPECT_FALSE(cells[1].comboSorted);
    EXPECT_EQ(cells[1].comboVisibleItems, 20);
    EXPECT_EQ(cells[2].properties, XLP_ENABLED);
    EXPECT_EQ(cells[2].progressValue, 0);
    EXPECT_EQ(m_list.GetItemData64(1), 0);
    EXPECT_EQ(m_list.GetItemToolTipText(1, 1), L"old tip");
    EXPECT_EQ(cells[2].progressFormat, L"%d of 9");
    EXPECT_TRUE(cells[2].progressShowText);
    m_list.DeleteAllToolTips();
    EXPECT_EQ(m_list.GetItemToolTipText(1, 1), L"");
}

TEST_F(ListRows, RefillingUsesTheSameRows)
{
    auto const rows = [this] {
        std::set<XLISTCTRLDATA const *> found;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            found.insert(m_list.GetRowData(row));
        return found;
    };
    m_list.SetRedraw(FALSE);
    m_list.AddRows(100);
    std::set<XLISTCTRLDATA const *> const first = rows();
    EXPECT_EQ(first.size(), 100U);
    EXPECT_NE(m_list.DeleteAllItems(), 0);
    EXPECT_EQ(m_list.GetItemCount(), 0);
    m_list.AddRows(100);
    EXPECT_EQ(rows(), first);
    m_list.SetRedraw(TRUE);
}

TEST_F(ListRows, DeletionInAnyOrderKeepsTheOtherRows)
{
    Fill(6);
    for (int row = 0; row < 6; ++row)
        m_list.SetItemData(row, static_cast<long long>(row));
    for (int const row : {0, 3, 1})
        m_list.DeleteItem(row);
    std::vector<long long> words;
    m_list.AddItem(L"a", nullptr, 100);
    m_list.AddItem(L"b", nullptr, 101);
    for (int row = 0; row < m_list.GetItemCount(); ++row)
        words.push_back(m_list.GetItemData64(row));
    EXPECT_EQ(words, (std::vector<long long>{1, 3, 5, 100, 101}));
}

// Selection

TEST_F(ListRows, SelectionIsSearchedFromTheTop)
{
    Fill(5);
    EXPECT_EQ(m_list.GetSelectedItem(), -1);
    Select({1, 3});
    EXPECT_EQ(m_list.GetCurSel(-1), 1);
    EXPECT_EQ(m_list.GetCurSel(1), 3);
    EXPECT_EQ(m_list.GetCurSel(3), -1);
    EXPECT_EQ(m_list.GetSelectedItem(), 1);
    EXPECT_EQ(m_list.GetSelectedItemAfter(1), 3);
    EXPECT_EQ(m_list.GetSelectedItemAfter(2), 3);
    EXPECT_EQ(m_list.GetSelectedItemAfter(4), -1);
}

TEST_F(ListRows, SetCurSelSelectsAndFocuses)
{
    Fill(5);
    EXPECT_TRUE(m_list.SetCurSel(2, false));
    EXPECT_TRUE(m_list.IsSelected(2));
    EXPECT_TRUE(m_list.IsFocused(2));
    EXPECT_TRUE(m_list.SetCurSel(4, false));
    EXPECT_EQ(Selected(), (std::vector<int>{2, 4})) << "the others stay in a multi-selection list";
    EXPECT_FALSE(m_list.SetCurSel(5, true));
    EXPECT_EQ(Selected(), (std::vector<int>{2, 4}));
}

TEST_F(ListRows, SetCurSelScrollsOnRequest)
{
    m_list.SetRedraw(FALSE);
    m_list.AddRows(100);
    m_list.SetRedraw(TRUE);
    // The native list may scroll to the row with the focus on its own account.
    tests::MessageRecorder recorder({LVM_ENSUREVISIBLE});
    recorder.Watch(m_list.m_hWnd, "list");
    EXPECT_TRUE(m_list.SetCurSel(90, false));
    EXPECT_TRUE(recorder.Matches({}));
    EXPECT_TRUE(m_list.SetCurSel(80, true));
    EXPECT_TRUE(recorder.Matches({{.window = "list", .message = LVM_ENSUREVISIBLE, .wParam = 80, .lParam = FALSE}}));
    int const top = m_list.GetTopIndex();
    EXPECT_LE(top, 80);
    EXPECT_LE(80, top + m_list.GetCountPerPage() - 1);
}

TEST_F(ListRows, NegativeRowClearsTheUpperSelectionOnly)
{
    Fill(5);
    Select({1, 3});
    m_list.SetItemState(1, LVIS_FOCUSED, LVIS_FOCUSED);
    EXPECT_TRUE(m_list.SetCurSel(-1, true));
    EXPECT_EQ(Selected(), (std::vector<int>{3}));
    EXPECT_FALSE(m_list.IsFocused(1));
    m_list.SetNoSelection();
    EXPECT_EQ(Selected(), (std::vector<int>{}));
    EXPECT_TRUE(m_list.SetCurSel(-1, true)) << "also without a selection";
}

// Repainting

TEST_F(ListRows, UpdateSubItemCoversTheCellAndTwoPixels)
{
    Fill(3);
    CRect expected = Bounds(1, 1);
    expected.InflateRect(2, 2);
    m_list.UpdateSubItem(1, 1);
    EXPECT_EQ(m_list.TakeUpdateRect(), expected);

    EXPECT_TRUE(m_list.GetItemRect(1, &expected, LVIR_BOUNDS));
    expected.InflateRect(2, 2);
    m_list.UpdateSubItem(1, -1);
    CRect clipped;
    clipped.IntersectRect(expected, Client());
    EXPECT_EQ(m_list.TakeUpdateRect(), clipped);
}

TEST_F(ListRows, UpdateSubItemErases)
{
    Fill(3);
    tests::MessageRecorder recorder({WM_ERASEBKGND});
    recorder.Watch(m_list.m_hWnd, "list");
    m_list.UpdateSubItem(1, 1);
    m_list.UpdateWindow();
    EXPECT_EQ(recorder.Count("list", WM_ERASEBKGND), 1);
}

TEST_F(ListRows, UpdateSubItemIgnoresWhatIsNotThere)
{
    Fill(3);
    for (auto const & [row, col] : {std::pair(-1, 0), std::pair(3, 0), std::pair(0, -2), std::pair(0, 3)})
        m_list.UpdateSubItem(row, col);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
}

TEST_F(ListRows, BatchModeSuspendsRepaintingOfCells)
{
    Fill(3);
    m_list.SetBatchInsertMode(true);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    m_list.UpdateSubItem(1, 1);
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    m_list.SetRowColors(2, red, green);
    EXPECT_EQ(m_list.TakeUpdateRect(), CRect());
    EXPECT_EQ(m_list.GetCheckbox(1, 1), XLC_CHECKED) << "the model changes at once";
    m_list.SetBatchInsertMode(false);
    EXPECT_EQ(m_list.TakeUpdateRect(), Client());
    m_list.UpdateSubItem(1, 1);
    EXPECT_FALSE(m_list.TakeUpdateRect().IsRectEmpty());
}

TEST_F(ListRows, BatchModeLeavesTheNativeRepaintingAlone)
{
    Fill(3);
    m_list.SetBatchInsertMode(true);
    m_list.SetItemText(1, 1, L"text");
    EXPECT_FALSE(m_list.TakeUpdateRect().IsRectEmpty());
    m_list.SetBatchInsertMode(false);
}

// Rectangles of cells

TEST_F(ListRows, FirstColumnEndsWhereTheNextBegins)
{
    Fill(2);
    CRect row;
    EXPECT_TRUE(m_list.GetItemRect(1, &row, LVIR_BOUNDS));
    EXPECT_EQ(Bounds(1, 0), CRect(row.left, row.top, row.left + 80, row.bottom));
    EXPECT_EQ(Bounds(1, 1).left, row.left + 80);
    EXPECT_EQ(Bounds(1, 1).right, row.left + 160);
    EXPECT_EQ(Bounds(1, 2).right, row.left + 240);
}

TEST_F(ListRows, FirstColumnSkipsColumnsWithoutWidth)
{
    Fill(2);
    static_cast<CListCtrl &>(m_list).SetColumnWidth(0, 50);
    static_cast<CListCtrl &>(m_list).SetColumnWidth(1, 0);
    CRect const first = Bounds(1, 0);
    EXPECT_EQ(first.Width(), 50);
    EXPECT_EQ(Bounds(1, 2).left, first.right);

    int order[] = {1, 0, 2};
    ASSERT_TRUE(m_list.SetColumnOrderArray(3, order));
    EXPECT_EQ(Bounds(1, 0).Width(), 50) << "also where that column stands in front of the first";
}

TEST_F(ListRows, FirstColumnAloneSpansTheRow)
{
    ListHost host;
    host.list.AddColumns(1, 120);
    host.list.AddRows(1);
    CRect rect;
    CRect row;
    EXPECT_TRUE(host.list.GetSubItemRect(0, 0, LVIR_BOUNDS, rect));
    EXPECT_TRUE(host.list.GetItemRect(0, &row, LVIR_BOUNDS));
    EXPECT_EQ(rect, row);
    EXPECT_EQ(rect.Width(), 120);
}

TEST_F(ListRows, RectangleOfABadCell)
{
    Fill(2);
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(m_list.GetSubItemRect(2, 0, LVIR_BOUNDS, rect));
    EXPECT_FALSE(m_list.GetSubItemRect(-1, 0, LVIR_BOUNDS, rect));
    EXPECT_FALSE(m_list.GetSubItemRect(0, 3, LVIR_BOUNDS, rect));
    EXPECT_FALSE(m_list.GetSubItemRect(0, -1, LVIR_BOUNDS, rect));
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
}

TEST_F(ListRows, RectangleOfALabelIsWithinTheCell)
{
    Fill(2);
    CRect label;
    EXPECT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_LABEL, label));
    CRect const bounds = Bounds(1, 1);
    CRect common;
    common.IntersectRect(label, bounds);
    EXPECT_EQ(common, label);
}
