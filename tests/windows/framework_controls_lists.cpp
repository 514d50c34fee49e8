// List box, combo box and the list box with check boxes.

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
CRect const place(10, 10, 210, 160);
constexpr DWORD shown = WS_CHILD | WS_VISIBLE;

// A parent that counts what it is told of.
class Parent : public tests::ScopedWindow
{
public:
    int m_selected = 0;
    int m_checked = 0;

protected:
    afx_msg void OnSelected() { ++m_selected; }
    afx_msg void OnChecked() { ++m_checked; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, tests::ScopedWindow)
    ON_LBN_SELCHANGE(control_id, &Parent::OnSelected)
    ON_CLBN_CHKCHANGE(control_id, &Parent::OnChecked)
END_MESSAGE_MAP()

// Records the calls that owner-drawn lists make. Rows are numbers, larger ones first.
template <class List> class OwnerDrawn : public List
{
public:
    std::vector<UINT> m_drawn;
    std::vector<ULONG_PTR> m_deleted;
    int m_measured = 0;
    int m_compared = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn.push_back(item->itemID); }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        ++m_measured;
        item->itemHeight = 23;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        ++m_compared;
        return items->itemData1 > items->itemData2 ? -1 : items->itemData1 < items->itemData2;
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { m_deleted.push_back(item->itemData); }
};

LPCTSTR AsText(UINT_PTR number)
{
    return reinterpret_cast<LPCTSTR>(number);
}

class ListBoxTest : public testing::Test
{
protected:
    void Create(DWORD style)
    {
        ASSERT_TRUE(m_list.Create(shown | style, place, m_host, control_id));
        for (LPCTSTR const text : {L"Alpha", L"Beta", L"Gamma", L"Delta"})
            m_list.AddString(text);
    }

    Parent m_host;
    CListBox m_list;
};

TEST_F(ListBoxTest, RowsAreInsertedFoundAndDeleted)
{
    Create(0);
    EXPECT_EQ(m_list.GetCount(), 4);
    EXPECT_EQ(m_list.InsertString(1, L"Beatrice"), 1);
    EXPECT_EQ(m_list.FindString(-1, L"be"), 1);
    EXPECT_EQ(m_list.FindStringExact(-1, L"beta"), 2);
    EXPECT_EQ(m_list.FindString(-1, L"Omega"), LB_ERR);
    EXPECT_EQ(m_list.SelectString(-1, L"Gam"), 3);
    EXPECT_EQ(m_list.GetCurSel(), 3);
    EXPECT_EQ(m_list.DeleteString(0), 4);
    EXPECT_EQ(m_list.DeleteString(99), LB_ERR);
    m_list.ResetContent();
    EXPECT_EQ(m_list.GetCount(), 0);
}

TEST_F(ListBoxTest, TextsAreReadAndBadIndicesGiveNothing)
{
    Create(0);
    CString text(L"before");
    m_list.GetText(2, text);
    EXPECT_EQ(text, L"Gamma");
    wchar_t buffer[16]{};
    EXPECT_EQ(m_list.GetText(0, buffer), 5);
    EXPECT_STREQ(buffer, L"Alpha");
    EXPECT_EQ(m_list.GetTextLen(1), 4);
    EXPECT_EQ(m_list.GetTextLen(4), LB_ERR);
    m_list.GetText(4, text);
    EXPECT_EQ(text, L"");
    m_list.GetText(-1, text);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(m_list.GetItemData(9), static_cast<DWORD_PTR>(LB_ERR));
    EXPECT_EQ(m_list.SetCurSel(9), LB_ERR);
}

TEST_F(ListBoxTest, ItemDataAndGeometryRoundTrip)
{
    Create(0);
    EXPECT_NE(m_list.SetItemData(1, 77), LB_ERR);
    EXPECT_EQ(m_list.GetItemData(1), 77U);
    EXPECT_NE(m_list.SetItemDataPtr(2, this), LB_ERR);
    EXPECT_EQ(m_list.GetItemDataPtr(2), this);
    m_list.SetHorizontalExtent(500);
    EXPECT_EQ(m_list.GetHorizontalExtent(), 500);
    CRect row;
    ASSERT_NE(m_list.GetItemRect(1, row), LB_ERR);
    EXPECT_EQ(row.Height(), m_list.GetItemHeight(0));
    BOOL outside = TRUE;
    EXPECT_EQ(m_list.ItemFromPoint(row.CenterPoint(), outside), 1U);
    EXPECT_FALSE(outside);
    m_list.ItemFromPoint(CPoint(row.left + 2, 1000), outside);
    EXPECT_TRUE(outside);
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_GE(m_list.GetListBoxInfo(), 4U) << "all rows fit into the column";
}

TEST_F(ListBoxTest, SeveralRowsAreSelected)
{
    Create(LBS_EXTENDEDSEL);
    EXPECT_NE(m_list.SetSel(0), LB_ERR);
    EXPECT_NE(m_list.SetSel(2), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 2);
    int selected[4]{};
    ASSERT_EQ(m_list.GetSelItems(4, selected), 2);
    EXPECT_EQ(selected[0], 0);
    EXPECT_EQ(selected[1], 2);
    EXPECT_NE(m_list.SelItemRange(TRUE, 0, 3), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 4);
    EXPECT_NE(m_list.SelItemRange(FALSE, 1, 2), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 2);
    EXPECT_NE(m_list.SelItemRange(FALSE, 3, 3), LB_ERR);
    EXPECT_EQ(m_list.GetSelCount(), 1);
    EXPECT_EQ(m_list.GetSel(3), 0);
    EXPECT_EQ(m_list.GetSel(9), LB_ERR);
    EXPECT_NE(m_list.SetCaretIndex(2), LB_ERR);
    EXPECT_EQ(m_list.GetCaretIndex(), 2);
    m_list.SetAnchorIndex(1);
    EXPECT_EQ(m_list.GetAnchorIndex(), 1);
}

TEST_F(ListBoxTest, ParentHearsOfSelectionByTheUser)
{
    Create(LBS_NOTIFY);
    CRect row;
    m_list.GetItemRect(2, row);
    LPARAM const at = MAKELPARAM(row.CenterPoint().x, row.CenterPoint().y);
    m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
    m_list.SendMessage(WM_LBUTTONUP, 0, at);
    EXPECT_EQ(m_list.GetCurSel(), 2);
    EXPECT_EQ(m_host.m_selected, 1);
}

TEST(FrameworkControlsLists, OwnerDrawnListBoxMeasuresComparesDrawsAndDeletes)
{
    Parent parent;
    OwnerDrawn<CListBox> list;
    ASSERT_TRUE(list.Create(shown | LBS_OWNERDRAWFIXED | LBS_SORT, place, parent, control_id));
    EXPECT_EQ(list.m_measured, 1);
    EXPECT_EQ(list.GetItemHeight(0), 23);
    list.AddString(AsText(10));
    list.AddString(AsText(30));
    list.AddString(AsText(20));
    EXPECT_GT(list.m_compared, 0);
    EXPECT_EQ(list.GetItemData(0), 30U);
    EXPECT_EQ(list.GetItemData(1), 20U);
    EXPECT_EQ(list.GetItemData(2), 10U);
    list.UpdateWindow();
    EXPECT_EQ(std::vector<UINT>(list.m_drawn.begin(), list.m_drawn.begin() + 3), (std::vector<UINT>{0, 1, 2}));
    list.DeleteString(1);
    EXPECT_EQ(list.m_deleted, std::vector<ULONG_PTR>{20});
    list.ResetContent();
    EXPECT_EQ(list.m_deleted.size(), 3U);
}

class KeyedListBox : public CListBox
{
public:
    UINT m_key = 0;
    UINT m_caret = 0;
    int m_answer = -2;

    int VKeyToItem(UINT key, UINT index) override
    {
        m_key = key;
        m_caret = index;
        return m_answer;
    }
};

TEST(FrameworkControlsLists, VirtualKeyAnswerSelectsTheRow)
{
    Parent parent;
    KeyedListBox list;
    ASSERT_TRUE(list.Create(shown | LBS_WANTKEYBOARDINPUT | LBS_NOTIFY, place, parent, control_id));
    list.AddString(L"a");
    list.AddString(L"b");
    list.AddString(L"c");
    list.SetCurSel(0);
    list.m_answer = 2;
    list.SendMessage(WM_KEYDOWN, VK_F5);
    EXPECT_EQ(list.m_key, static_cast<UINT>(VK_F5));
    EXPECT_EQ(list.m_caret, 0U);
    EXPECT_EQ(list.GetCurSel(), 2);
    list.m_answer = -2;
    list.SendMessage(WM_KEYDOWN, VK_UP);
    EXPECT_EQ(list.GetCurSel(), 2) << "-2 says that the key is done with";
}

TEST(FrameworkControlsLists, ComboBoxRowsAndTexts)
{
    tests::ScopedWindow parent;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(shown | CBS_DROPDOWNLIST | WS_VSCROLL, place, parent, control_id));
    for (LPCTSTR const text : {L"Hz", L"kHz", L"MHz"})
        combo.AddString(text);
    EXPECT_EQ(combo.InsertString(0, L"mHz"), 0);
    EXPECT_EQ(combo.GetCount(), 4);
    EXPECT_EQ(combo.FindString(-1, L"k"), 2);
    EXPECT_EQ(combo.FindStringExact(-1, L"hz"), 1);
    EXPECT_EQ(combo.SelectString(-1, L"kH"), 2);
    CString text;
    combo.GetLBText(combo.GetCurSel(), text);
    EXPECT_EQ(text, L"kHz");
    EXPECT_EQ(combo.GetLBTextLen(3), 3);
    EXPECT_EQ(combo.GetLBTextLen(4), CB_ERR);
    combo.GetLBText(4, text);
    EXPECT_EQ(text, L"");
    EXPECT_EQ(combo.SetCurSel(17), CB_ERR);
    EXPECT_EQ(combo.SetCurSel(-1), CB_ERR);
    EXPECT_EQ(combo.GetCurSel(), CB_ERR);
    EXPECT_NE(combo.SetItemData(1, 4711), CB_ERR);
    EXPECT_EQ(combo.GetItemData(1), 4711U);
    EXPECT_EQ(combo.GetItemData(8), static_cast<DWORD_PTR>(CB_ERR));
    EXPECT_EQ(combo.DeleteString(0), 3);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST(FrameworkControlsLists, ComboBoxDropsAndMeasures)
{
    tests::ScopedWindow parent;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(shown | CBS_DROPDOWN, place, parent, control_id));
    combo.AddString(L"x");
    EXPECT_FALSE(combo.GetDroppedState());
    combo.ShowDropDown();
    EXPECT_TRUE(combo.GetDroppedState());
    combo.ShowDropDown(FALSE);
    EXPECT_FALSE(combo.GetDroppedState());
    combo.SetDroppedWidth(321);
    EXPECT_EQ(combo.GetDroppedWidth(), 321);
    int const height = combo.GetItemHeight(-1);
    EXPECT_NE(combo.SetItemHeight(-1, static_cast<UINT>(height) + 7), CB_ERR);
    EXPECT_GT(combo.GetItemHeight(-1), height);
    EXPECT_EQ(combo.SetItemHeight(-2, 20), CB_ERR);
    combo.SetHorizontalExtent(400);
    EXPECT_EQ(combo.GetHorizontalExtent(), 400U);
    combo.SetExtendedUI();
    EXPECT_TRUE(combo.GetExtendedUI());
    CRect dropped;
    combo.GetDroppedControlRect(dropped);
    EXPECT_FALSE(dropped.IsRectEmpty());
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(combo.GetComboBoxInfo(&info));
    EXPECT_EQ(info.hwndCombo, combo.m_hWnd);
    EXPECT_NE(info.hwndItem, nullptr);
}

TEST(FrameworkControlsLists, ComboBoxEditPartAndCueBanner)
{
    tests::ScopedWindow parent;
    CComboBox combo;
    ASSERT_TRUE(combo.Create(shown | CBS_DROPDOWN, place, parent, control_id));
    combo.SetWindowText(L"12345");
    ASSERT_TRUE(combo.SetEditSel(1, 3));
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    combo.Clear();
    CString text;
    combo.GetWindowText(text);
    EXPECT_EQ(text, L"145");
    combo.LimitText(4);
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof(parts);
    ASSERT_TRUE(combo.GetComboBoxInfo(&parts));
    EXPECT_EQ(::SendMessage(parts.hwndItem, EM_GETLIMITTEXT, 0, 0), 4);
    ASSERT_TRUE(combo.SetMinVisibleItems(6));
    EXPECT_EQ(combo.GetMinVisible(), 6);
}

TEST(FrameworkControlsLists, OwnerDrawnComboBoxCallsItsOwnMembers)
{
    Parent parent;
    OwnerDrawn<CComboBox> combo;
    ASSERT_TRUE(combo.Create(shown | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT, place, parent, control_id));
    EXPECT_GT(combo.m_measured, 0);
    EXPECT_EQ(combo.GetItemHeight(0), 23);
    combo.AddString(AsText(1));
    combo.AddString(AsText(2));
    EXPECT_EQ(combo.GetItemData(0), 2U);
    combo.SetCurSel(1);
    combo.UpdateWindow();
    EXPECT_EQ(combo.m_drawn.empty(), false);
    combo.ResetContent();
    EXPECT_EQ(combo.m_deleted.size(), 2U);
}

class DataDeletingCheckList : public CCheckListBox
{
public:
    std::vector<ULONG_PTR> m_deleted;

    void DeleteItem(LPDELETEITEMSTRUCT item) override { m_deleted.push_back(item->itemData); }
};

class CheckListTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(shown | LBS_NOTIFY, place, m_host, control_id));
        for (LPCTSTR const text : {L"left", L"right", L"both"})
            m_list.AddString(text);
    }
    void ClickCheck(int row)
    {
        CRect area;
        m_list.GetItemRect(row, area);
        LPARAM const at = MAKELPARAM(area.left + 5, area.CenterPoint().y);
        m_list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        m_list.SendMessage(WM_LBUTTONUP, 0, at);
    }

    Parent m_host;
    DataDeletingCheckList m_list;
};

TEST_F(CheckListTest, ChecksAndItemDataAreKeptApart)
{
    EXPECT_EQ(m_list.GetCheckStyle(), static_cast<UINT>(BS_AUTOCHECKBOX));
    EXPECT_EQ(m_list.GetItemData(1), 0U);
    m_list.SetItemData(1, 99);
    m_list.SetCheck(1, BST_CHECKED);
    EXPECT_EQ(m_list.GetCheck(1), BST_CHECKED);
    EXPECT_EQ(m_list.GetCheck(0), BST_UNCHECKED);
    EXPECT_EQ(m_list.GetItemData(1), 99U);
    EXPECT_EQ(m_list.GetItemData(7), static_cast<DWORD_PTR>(LB_ERR));
    EXPECT_EQ(m_list.GetCheck(7), BST_UNCHECKED);
    m_list.SetCheck(2, BST_INDETERMINATE);
    EXPECT_EQ(m_list.GetCheck(2), BST_UNCHECKED) << "two-state rows don't become indeterminate";
    CString text;
    m_list.GetText(1, text);
    EXPECT_EQ(text, L"right");
}

TEST_F(CheckListTest, ClickOnTheBoxTogglesAndTellsTheParent)
{
    ClickCheck(1);
    EXPECT_EQ(m_list.GetCheck(1), BST_CHECKED);
    EXPECT_EQ(m_host.m_checked, 1);
    ClickCheck(1);
    EXPECT_EQ(m_list.GetCheck(1), BST_UNCHECKED);
    EXPECT_EQ(m_host.m_checked, 2);
    m_list.SetCheckStyle(BS_AUTO3STATE);
    ClickCheck(0);
    ClickCheck(0);
    EXPECT_EQ(m_list.GetCheck(0), BST_INDETERMINATE);
    ClickCheck(0);
    EXPECT_EQ(m_list.GetCheck(0), BST_UNCHECKED);
}

TEST_F(CheckListTest, DisabledRowsKeepTheirCheck)
{
    m_list.Enable(0, FALSE);
    EXPECT_FALSE(m_list.IsEnabled(0));
    EXPECT_TRUE(m_list.IsEnabled(1));
    ClickCheck(0);
    EXPECT_EQ(m_list.GetCheck(0), BST_UNCHECKED);
    EXPECT_EQ(m_host.m_checked, 0);
    m_list.SetCurSel(1);
    m_list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_EQ(m_list.GetCheck(1), BST_CHECKED);
}

TEST_F(CheckListTest, DeletedRowsHandOverTheirOwnData)
{
    m_list.SetItemData(0, 5);
    m_list.SetItemData(2, 6);
    m_list.DeleteString(0);
    EXPECT_EQ(m_list.m_deleted, std::vector<ULONG_PTR>{5});
    m_list.ResetContent();
    std::sort(m_list.m_deleted.begin(), m_list.m_deleted.end());
    EXPECT_EQ(m_list.m_deleted, (std::vector<ULONG_PTR>{0, 5, 6}));
}

TEST_F(CheckListTest, RowsAreHighEnoughAndDrawn)
{
    EXPECT_GE(m_list.GetItemHeight(0), ::GetSystemMetrics(SM_CYMENUCHECK));
    m_list.SetCheck(0, BST_CHECKED);
    m_list.UpdateWindow();
    CClientDC dc(&m_list);
    CRect row;
    m_list.GetItemRect(0, row);
    int dark = 0;
    for (int x = row.left; x < row.left + ::GetSystemMetrics(SM_CXMENUCHECK); ++x)
        dark += dc.GetPixel(x, row.CenterPoint().y) != ::GetSysColor(COLOR_WINDOW);
    EXPECT_GT(dark, 0) << "nothing is drawn where the check box stands";
}
} // namespace
