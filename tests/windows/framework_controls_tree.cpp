// The tree control.

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
constexpr DWORD shown = WS_CHILD | WS_VISIBLE | TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT;

class ReflectingTree : public CTreeCtrl
{
public:
    int m_changed = 0;

protected:
    afx_msg void OnChanged(NMHDR *, LRESULT *) { ++m_changed; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingTree, CTreeCtrl)
    ON_NOTIFY_REFLECT(TVN_SELCHANGED, &ReflectingTree::OnChanged)
END_MESSAGE_MAP()

class Parent : public tests::ScopedWindow
{
public:
    int m_changed = 0;

protected:
    afx_msg void OnChanged(NMHDR *, LRESULT *) { ++m_changed; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, tests::ScopedWindow)
    ON_NOTIFY(TVN_SELCHANGED, control_id, &Parent::OnChanged)
END_MESSAGE_MAP()

int CALLBACK Descending(LPARAM first, LPARAM second, LPARAM)
{
    return static_cast<int>(second - first);
}

// Inputs (Left, Right) and Outputs.
class TreeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_tree.Create(shown, CRect(0, 0, 200, 150), m_host, control_id));
        m_inputs = m_tree.InsertItem(L"Inputs");
        m_outputs = m_tree.InsertItem(L"Outputs");
        m_left = m_tree.InsertItem(L"Left", m_inputs);
        m_right = m_tree.InsertItem(L"Right", m_inputs);
        m_tree.SetItemData(m_left, 1);
        m_tree.SetItemData(m_right, 2);
    }
    std::wstring Children(HTREEITEM parent) const
    {
        CString names;
        for (HTREEITEM item = m_tree.GetChildItem(parent); item != nullptr; item = m_tree.GetNextSiblingItem(item))
            names += m_tree.GetItemText(item) + L" ";
        return std::wstring(names);
    }

    Parent m_host;
    ReflectingTree m_tree;
    HTREEITEM m_inputs = nullptr;
    HTREEITEM m_outputs = nullptr;
    HTREEITEM m_left = nullptr;
    HTREEITEM m_right = nullptr;
};

TEST_F(TreeTest, ItemsAreWalked)
{
    EXPECT_EQ(m_tree.GetCount(), 4U);
    EXPECT_EQ(m_tree.GetRootItem(), m_inputs);
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_inputs), m_outputs);
    EXPECT_EQ(m_tree.GetPrevSiblingItem(m_outputs), m_inputs);
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_outputs), nullptr);
    EXPECT_EQ(m_tree.GetChildItem(m_inputs), m_left);
    EXPECT_EQ(m_tree.GetChildItem(m_outputs), nullptr);
    EXPECT_EQ(m_tree.GetParentItem(m_right), m_inputs);
    EXPECT_EQ(m_tree.GetParentItem(m_inputs), nullptr);
    EXPECT_EQ(Children(m_inputs), L"Left Right ");
    EXPECT_TRUE(m_tree.ItemHasChildren(m_inputs));
    EXPECT_FALSE(m_tree.ItemHasChildren(m_left));
}

TEST_F(TreeTest, VisibleItemsFollowExpansion)
{
    EXPECT_EQ(m_tree.GetFirstVisibleItem(), m_inputs);
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_inputs), m_outputs);
    EXPECT_TRUE(m_tree.Expand(m_inputs, TVE_EXPAND));
    EXPECT_EQ(m_tree.GetItemState(m_inputs, TVIS_EXPANDED), static_cast<UINT>(TVIS_EXPANDED));
    EXPECT_EQ(m_tree.GetNextVisibleItem(m_inputs), m_left);
    EXPECT_EQ(m_tree.GetPrevVisibleItem(m_outputs), m_right);
    EXPECT_EQ(m_tree.GetLastVisibleItem(), m_outputs);
    CRect whole;
    ASSERT_TRUE(m_tree.GetItemRect(m_right, whole, FALSE));
    CRect text;
    ASSERT_TRUE(m_tree.GetItemRect(m_right, text, TRUE));
    EXPECT_LT(text.Width(), whole.Width());
    EXPECT_LE(whole.Height(), m_tree.GetItemHeight());
    UINT flags = 0;
    EXPECT_EQ(m_tree.HitTest(text.CenterPoint(), &flags), m_right);
    EXPECT_EQ(flags, static_cast<UINT>(TVHT_ONITEMLABEL));
    EXPECT_EQ(m_tree.HitTest(CPoint(10, 140)), nullptr);
    EXPECT_TRUE(m_tree.Expand(m_inputs, TVE_COLLAPSE));
    CRect untouched(1, 2, 3, 4);
    EXPECT_FALSE(m_tree.GetItemRect(m_right, untouched, TRUE)) << "the item is hidden";
    EXPECT_EQ(untouched, CRect(1, 2, 3, 4));
    EXPECT_TRUE(m_tree.EnsureVisible(m_right) || m_tree.GetItemState(m_inputs, TVIS_EXPANDED));
}

TEST_F(TreeTest, TextsDataAndStatesRoundTrip)
{
    EXPECT_TRUE(m_tree.SetItemText(m_left, L"Front left"));
    EXPECT_EQ(m_tree.GetItemText(m_left), L"Front left");
    std::wstring const longText(700, L'y');
    EXPECT_TRUE(m_tree.SetItemText(m_left, longText.c_str()));
    EXPECT_EQ(m_tree.GetItemText(m_left).GetLength(), 700);
    EXPECT_EQ(m_tree.GetItemData(m_right), 2U);
    EXPECT_TRUE(m_tree.SetItemState(m_left, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_left, TVIS_BOLD), static_cast<UINT>(TVIS_BOLD));
    EXPECT_EQ(m_tree.GetItemState(m_left, TVIS_CUT), 0U);
    EXPECT_TRUE(m_tree.SetItem(m_left, TVIF_TEXT | TVIF_PARAM, L"again", 0, 0, 0, 0, 55));
    EXPECT_EQ(m_tree.GetItemText(m_left), L"again");
    EXPECT_EQ(m_tree.GetItemData(m_left), 55U);
    EXPECT_TRUE(m_tree.SetItemImage(m_left, 3, 4));
    int image = 0;
    int selected = 0;
    EXPECT_TRUE(m_tree.GetItemImage(m_left, image, selected));
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selected, 4);
}

TEST_F(TreeTest, NoItemGivesNothing)
{
    EXPECT_EQ(m_tree.GetItemText(nullptr), L"");
    EXPECT_EQ(m_tree.GetItemData(nullptr), 0U);
    EXPECT_EQ(m_tree.GetItemState(nullptr, TVIS_SELECTED), 0U);
    EXPECT_FALSE(m_tree.SetItemText(nullptr, L"x"));
    EXPECT_FALSE(m_tree.GetCheck(nullptr));
}

TEST_F(TreeTest, CheckBoxesKeepTheirState)
{
    m_tree.ModifyStyle(0, TVS_CHECKBOXES);
    EXPECT_TRUE(m_tree.SetCheck(m_left));
    EXPECT_TRUE(m_tree.GetCheck(m_left));
    EXPECT_TRUE(m_tree.SetCheck(m_left, FALSE));
    EXPECT_FALSE(m_tree.GetCheck(m_left));
}

TEST_F(TreeTest, ChildrenAreSorted)
{
    m_tree.InsertItem(L"Centre", m_inputs);
    EXPECT_TRUE(m_tree.SortChildren(m_inputs));
    EXPECT_EQ(Children(m_inputs), L"Centre Left Right ");
    TVSORTCB sort{m_inputs, Descending, 0};
    EXPECT_TRUE(m_tree.SortChildrenCB(&sort));
    EXPECT_EQ(Children(m_inputs), L"Right Left Centre ");
}

TEST_F(TreeTest, InsertionKeepsImagesAndOrder)
{
    HTREEITEM const first = m_tree.InsertItem(L"Above", 1, 2, m_inputs, TVI_FIRST);
    EXPECT_EQ(Children(m_inputs), L"Above Left Right ");
    int image = 0;
    int selected = 0;
    m_tree.GetItemImage(first, image, selected);
    EXPECT_EQ(image, 1);
    EXPECT_EQ(selected, 2);
    EXPECT_TRUE(m_tree.DeleteItem(m_inputs));
    EXPECT_EQ(m_tree.GetCount(), 1U);
    EXPECT_TRUE(m_tree.DeleteAllItems());
    EXPECT_EQ(m_tree.GetRootItem(), nullptr);
}

TEST_F(TreeTest, ReflectedSelectionReachesTheTreeAlone)
{
    m_tree.m_changed = 0;
    EXPECT_TRUE(m_tree.SelectItem(m_outputs));
    EXPECT_EQ(m_tree.GetSelectedItem(), m_outputs);
    EXPECT_EQ(m_tree.m_changed, 1);
    EXPECT_EQ(m_host.m_changed, 0);
    EXPECT_TRUE(m_tree.SelectDropTarget(m_inputs));
    EXPECT_EQ(m_tree.GetDropHilightItem(), m_inputs);
    m_tree.SelectDropTarget(nullptr);
    EXPECT_EQ(m_tree.GetDropHilightItem(), nullptr);
}

TEST_F(TreeTest, AppearanceRoundTrips)
{
    m_tree.SetBkColor(RGB(1, 2, 3));
    EXPECT_EQ(m_tree.GetBkColor(), RGB(1, 2, 3));
    m_tree.SetTextColor(RGB(4, 5, 6));
    EXPECT_EQ(m_tree.GetTextColor(), RGB(4, 5, 6));
    m_tree.SetLineColor(RGB(7, 8, 9));
    EXPECT_EQ(m_tree.GetLineColor(), RGB(7, 8, 9));
    m_tree.SetInsertMarkColor(RGB(9, 8, 7));
    EXPECT_EQ(m_tree.GetInsertMarkColor(), RGB(9, 8, 7));
    m_tree.SetIndent(40);
    EXPECT_EQ(m_tree.GetIndent(), 40U);
    m_tree.SetItemHeight(30);
    EXPECT_EQ(m_tree.GetItemHeight(), 30);
    m_tree.SetScrollTime(80);
    EXPECT_EQ(m_tree.GetScrollTime(), 80U);
    EXPECT_EQ(m_tree.GetVisibleCount(), 5U);
    EXPECT_NE(m_tree.GetToolTips(), nullptr);
}

TEST_F(TreeTest, LabelIsEditedInAnEditControl)
{
    m_tree.ModifyStyle(0, TVS_EDITLABELS);
    m_tree.SetFocus();
    CEdit * const edit = m_tree.EditLabel(m_outputs);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(m_tree.GetEditControl(), edit);
    CString text;
    edit->GetWindowText(text);
    EXPECT_EQ(text, L"Outputs");
    EXPECT_TRUE(m_tree.EndEditLabelNow(TRUE));
    EXPECT_EQ(m_tree.GetItemText(m_outputs), L"Outputs");
}

TEST_F(TreeTest, ImageListStaysWithItsObject)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    ASSERT_TRUE(images.SetImageCount(1));
    EXPECT_EQ(m_tree.SetImageList(&images, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(m_tree.GetImageList(TVSIL_NORMAL), &images);
    std::unique_ptr<CImageList> const drag(m_tree.CreateDragImage(m_inputs));
    ASSERT_NE(drag, nullptr);
    m_tree.DestroyWindow();
    EXPECT_EQ(images.GetImageCount(), 1);
}
} // namespace
