// List view and header control.

#include <afxcmn.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "ScopedWindow.h"

namespace
{
constexpr UINT control_id = 7;
CRect const place(0, 0, 320, 200);
constexpr DWORD shown = WS_CHILD | WS_VISIBLE;

class Parent : public tests::ScopedWindow
{
public:
    int m_changed = 0;

protected:
    afx_msg void OnChanged(NMHDR *, LRESULT *) { ++m_changed; }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Parent, tests::ScopedWindow)
    ON_NOTIFY(LVN_ITEMCHANGED, control_id, &Parent::OnChanged)
END_MESSAGE_MAP()

class ReflectingList : public CListCtrl
{
public:
    int m_changed = 0;
    bool m_keep = true;
    std::vector<UINT> m_drawn;

    void DrawItem(LPDRAWITEMSTRUCT item) override { m_drawn.push_back(item->itemID); }

protected:
    afx_msg BOOL OnChanged(NMHDR *, LRESULT *)
    {
        ++m_changed;
        return m_keep;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ReflectingList, CListCtrl)
    ON_NOTIFY_REFLECT_EX(LVN_ITEMCHANGED, &ReflectingList::OnChanged)
END_MESSAGE_MAP()

int CALLBACK ByData(LPARAM first, LPARAM second, LPARAM direction)
{
    return static_cast<int>((first - second) * direction);
}

int CALLBACK ByText(LPARAM first, LPARAM second, LPARAM list)
{
    auto const & control = *reinterpret_cast<CListCtrl const *>(list);
    return control.GetItemText(static_cast<int>(first), 1).Compare(control.GetItemText(static_cast<int>(second), 1));
}

class ListViewTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_list.Create(shown | LVS_REPORT | LVS_SHOWSELALWAYS, place, m_host, control_id));
        EXPECT_EQ(m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100), 0);
        EXPECT_EQ(m_list.InsertColumn(1, L"Level", LVCFMT_RIGHT, 60, 1), 1);
        for (int row = 0; row < 3; ++row)
        {
            EXPECT_EQ(m_list.InsertItem(row, names[row]), row);
            EXPECT_TRUE(m_list.SetItemText(row, 1, levels[row]));
            EXPECT_TRUE(m_list.SetItemData(row, static_cast<DWORD_PTR>(data[row])));
        }
    }
    std::wstring Order() const
    {
        CString order;
        for (int row = 0; row < m_list.GetItemCount(); ++row)
            order += m_list.GetItemText(row, 0) + L" ";
        return std::wstring(order);
    }

    static constexpr LPCTSTR names[]{L"left", L"right", L"sum"};
    static constexpr LPCTSTR levels[]{L"-3", L"-1", L"-2"};
    static constexpr int data[]{20, 30, 10};

    Parent m_host;
    ReflectingList m_list;
};

TEST_F(ListViewTest, ItemsAndTextsRoundTrip)
{
    EXPECT_EQ(m_list.GetItemCount(), 3);
    EXPECT_EQ(m_list.GetItemText(1, 0), L"right");
    EXPECT_EQ(m_list.GetItemText(1, 1), L"-1");
    wchar_t buffer[4]{};
    EXPECT_EQ(m_list.GetItemText(1, 0, buffer, 4), 3);
    EXPECT_STREQ(buffer, L"rig");
    std::wstring const longText(1000, L'x');
    EXPECT_TRUE(m_list.SetItemText(2, 1, longText.c_str()));
    EXPECT_EQ(m_list.GetItemText(2, 1).GetLength(), 1000);
    EXPECT_EQ(m_list.GetItemData(2), 10U);
    EXPECT_TRUE(m_list.SetItem(0, 0, LVIF_TEXT | LVIF_PARAM, L"centre", 0, 0, 0, 44));
    EXPECT_EQ(m_list.GetItemText(0, 0), L"centre");
    EXPECT_EQ(m_list.GetItemData(0), 44U);
    EXPECT_TRUE(m_list.DeleteItem(0));
    EXPECT_EQ(m_list.GetItemCount(), 2);
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListViewTest, BadIndicesGiveNothing)
{
    EXPECT_EQ(m_list.GetItemText(9, 0), L"");
    EXPECT_EQ(m_list.GetItemText(0, 9), L"");
    EXPECT_EQ(m_list.GetItemText(-1, 0), L"");
    EXPECT_EQ(m_list.GetItemData(9), 0U);
    EXPECT_EQ(m_list.GetItemState(9, LVIS_SELECTED), 0U);
    EXPECT_FALSE(m_list.SetItemData(9, 1));
    EXPECT_FALSE(m_list.DeleteItem(9));
    EXPECT_FALSE(m_list.DeleteColumn(9));
    EXPECT_FALSE(m_list.GetCheck(9));
    CRect area;
    EXPECT_FALSE(m_list.GetItemRect(9, area, LVIR_BOUNDS));
}

TEST_F(ListViewTest, ItemsAreFound)
{
    LVFINDINFO find{};
    find.flags = LVFI_STRING;
    find.psz = L"sum";
    EXPECT_EQ(m_list.FindItem(&find), 2);
    find.flags = LVFI_PARAM;
    find.lParam = 30;
    EXPECT_EQ(m_list.FindItem(&find), 1);
    EXPECT_EQ(m_list.FindItem(&find, 1), -1);
}

TEST_F(ListViewTest, SelectionIsWalkedThrough)
{
    EXPECT_EQ(m_list.GetFirstSelectedItemPosition(), nullptr);
    EXPECT_TRUE(m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED));
    EXPECT_TRUE(m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED));
    EXPECT_EQ(m_list.GetSelectedCount(), 2U);
    std::vector<int> selected;
    POSITION position = m_list.GetFirstSelectedItemPosition();
    while (position != nullptr)
        selected.push_back(m_list.GetNextSelectedItem(position));
    EXPECT_EQ(selected, (std::vector<int>{0, 2}));
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 2);
    EXPECT_EQ(m_list.GetItemState(2, LVIS_SELECTED), static_cast<UINT>(LVIS_SELECTED));
    int const mark = m_list.GetSelectionMark();
    EXPECT_EQ(m_list.SetSelectionMark(1), mark);
    EXPECT_EQ(m_list.GetSelectionMark(), 1);
}

TEST_F(ListViewTest, CheckBoxesKeepTheirState)
{
    EXPECT_FALSE(m_list.GetCheck(0)) << "without check boxes nothing is checked";
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    EXPECT_FALSE(m_list.GetCheck(1));
    EXPECT_TRUE(m_list.SetCheck(1));
    EXPECT_TRUE(m_list.GetCheck(1));
    EXPECT_FALSE(m_list.GetCheck(0));
    EXPECT_TRUE(m_list.SetCheck(1, FALSE));
    EXPECT_FALSE(m_list.GetCheck(1));
}

TEST_F(ListViewTest, AHostsOwnStateImageIsToldFromAMark)
{
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    EXPECT_TRUE(m_list.SetCheck(0));
    EXPECT_EQ(m_list.GetCheck(0), 1);
    EXPECT_TRUE(m_list.SetItemState(0, INDEXTOSTATEIMAGEMASK(3), LVIS_STATEIMAGEMASK));
    EXPECT_EQ(m_list.GetCheck(0), 2);
}

TEST_F(ListViewTest, SortItemsComparesItemData)
{
    EXPECT_TRUE(m_list.SortItems(ByData, 1));
    EXPECT_EQ(Order(), L"sum left right ");
    EXPECT_TRUE(m_list.SortItems(ByData, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(Order(), L"right left sum ");
}

TEST_F(ListViewTest, SortItemsExComparesIndices)
{
    m_list.DeleteItem(2);
    EXPECT_TRUE(m_list.SortItemsEx(ByText, reinterpret_cast<DWORD_PTR>(static_cast<CListCtrl *>(&m_list))));
    EXPECT_EQ(Order(), L"right left ");
}

TEST_F(ListViewTest, HitTestsTellItemSubItemAndFlags)
{
    CRect cell;
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, 100);
    EXPECT_EQ(cell.Width(), 60);
    LVHITTESTINFO info{};
    info.pt = cell.CenterPoint();
    EXPECT_EQ(m_list.SubItemHitTest(&info), 1);
    EXPECT_EQ(info.iItem, 1);
    EXPECT_EQ(info.iSubItem, 1);
    CRect label;
    ASSERT_TRUE(m_list.GetItemRect(2, label, LVIR_LABEL));
    UINT flags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(label.left + 3, label.CenterPoint().y), &flags), 2);
    EXPECT_NE(flags & LVHT_ONITEMLABEL, 0U);
    EXPECT_EQ(m_list.HitTest(CPoint(20, 190), &flags), -1);
    EXPECT_NE(flags & LVHT_NOWHERE, 0U);
}

TEST_F(ListViewTest, ColumnsKeepWidthFormatAndOrder)
{
    EXPECT_EQ(m_list.GetColumnWidth(1), 60);
    EXPECT_TRUE(m_list.SetColumnWidth(1, 75));
    EXPECT_EQ(m_list.GetColumnWidth(1), 75);
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_SUBITEM;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(column.iSubItem, 1);
    int swapped[]{1, 0};
    EXPECT_TRUE(m_list.SetColumnOrderArray(2, swapped));
    int order[2]{};
    EXPECT_TRUE(m_list.GetColumnOrderArray(order));
    EXPECT_EQ(order[0], 1);
    EXPECT_EQ(order[1], 0);
    EXPECT_TRUE(m_list.DeleteColumn(1));
    EXPECT_EQ(m_list.GetHeaderCtrl()->GetItemCount(), 1);
    EXPECT_GT(m_list.GetStringWidth(L"wide text"), m_list.GetStringWidth(L"w"));
}

TEST_F(ListViewTest, HeaderIsReachedAndReadsTheColumns)
{
    CHeaderCtrl * const header = m_list.GetHeaderCtrl();
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->GetItemCount(), 2);
    wchar_t text[16]{};
    HDITEM item{};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = 16;
    ASSERT_TRUE(header->GetItem(1, &item));
    EXPECT_STREQ(text, L"Level");
    EXPECT_EQ(item.cxy, 60);
    EXPECT_FALSE(header->GetItem(7, &item));
    EXPECT_EQ(header->OrderToIndex(1), 1);
}

TEST_F(ListViewTest, ColoursAndMasksRoundTrip)
{
    EXPECT_TRUE(m_list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_EQ(m_list.GetBkColor(), RGB(1, 2, 3));
    EXPECT_TRUE(m_list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_EQ(m_list.GetTextColor(), RGB(4, 5, 6));
    EXPECT_TRUE(m_list.SetTextBkColor(CLR_NONE));
    EXPECT_EQ(m_list.GetTextBkColor(), CLR_NONE);
    EXPECT_TRUE(m_list.SetCallbackMask(LVIS_CUT));
    EXPECT_EQ(m_list.GetCallbackMask(), static_cast<UINT>(LVIS_CUT));
    m_list.SetHoverTime(700);
    EXPECT_EQ(m_list.GetHoverTime(), 700U);
    m_list.SetIconSpacing(70, 80);
    int across = 0;
    int down = 0;
    EXPECT_TRUE(m_list.GetItemSpacing(FALSE, &across, &down));
    EXPECT_EQ(across, 70);
    EXPECT_EQ(down, 80);
}

TEST_F(ListViewTest, ScrollingShowsTheItem)
{
    for (int row = 3; row < 60; ++row)
        m_list.InsertItem(row, L"more");
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_TRUE(m_list.EnsureVisible(50, FALSE));
    EXPECT_GT(m_list.GetTopIndex(), 0);
    EXPECT_GT(m_list.GetCountPerPage(), 3);
    CRect row;
    m_list.GetItemRect(50, row, LVIR_BOUNDS);
    int const top = m_list.GetTopIndex();
    EXPECT_TRUE(m_list.Scroll(CSize(0, -2 * row.Height())));
    EXPECT_EQ(m_list.GetTopIndex(), top - 2);
    EXPECT_TRUE(m_list.RedrawItems(0, 5));
    EXPECT_TRUE(m_list.Update(0));
}

TEST_F(ListViewTest, ReflectedNotificationReachesTheListBeforeTheParent)
{
    int const before = m_host.m_changed;
    m_list.m_changed = 0;
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(m_list.m_changed, 1);
    EXPECT_EQ(m_host.m_changed, before);
    m_list.m_keep = false;
    m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(m_list.m_changed, 2);
    EXPECT_EQ(m_host.m_changed, before + 1);
}

TEST_F(ListViewTest, LabelIsEditedInAnEditControl)
{
    m_list.ModifyStyle(0, LVS_EDITLABELS);
    m_list.SetFocus();
    CEdit * const edit = m_list.EditLabel(1);
    ASSERT_NE(edit, nullptr);
    EXPECT_EQ(m_list.GetEditControl(), edit);
    CString text;
    edit->GetWindowText(text);
    EXPECT_EQ(text, L"right");
    edit->SetSel(0, 2);
    EXPECT_EQ(edit->GetSel(), static_cast<DWORD>(MAKELONG(0, 2)));
    m_list.SendMessage(LVM_EDITLABEL, static_cast<WPARAM>(-1));
    EXPECT_EQ(m_list.GetItemText(1, 0), L"right");
}

TEST_F(ListViewTest, OwnerDrawnRowsReachTheVirtualMember)
{
    ReflectingList list;
    ASSERT_TRUE(list.Create(shown | LVS_REPORT | LVS_OWNERDRAWFIXED, place, m_host, control_id + 1));
    list.InsertColumn(0, L"x", LVCFMT_LEFT, 50);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    m_list.ShowWindow(SW_HIDE);
    list.Invalidate();
    list.UpdateWindow();
    ASSERT_GE(list.m_drawn.size(), 2U);
    EXPECT_EQ(list.m_drawn[0], 0U);
    EXPECT_EQ(list.m_drawn[1], 1U);
}

TEST_F(ListViewTest, ImageListStaysWithItsObject)
{
    auto images = std::make_unique<CImageList>();
    ASSERT_TRUE(images->Create(16, 16, ILC_COLOR32, 2, 1));
    ASSERT_TRUE(images->SetImageCount(2));
    {
        CListCtrl list;
        ASSERT_TRUE(list.Create(shown | LVS_REPORT, place, m_host, control_id + 1));
        EXPECT_EQ(list.SetImageList(images.get(), LVSIL_SMALL), nullptr);
        EXPECT_EQ(list.GetImageList(LVSIL_SMALL), images.get());
        EXPECT_EQ(list.GetImageList(LVSIL_NORMAL), nullptr);
        EXPECT_EQ(list.InsertItem(0, L"x", 1), 0);
        LVITEM item{};
        item.mask = LVIF_IMAGE;
        ASSERT_TRUE(list.GetItem(&item));
        EXPECT_EQ(item.iImage, 1);
    }
    EXPECT_EQ(images->GetImageCount(), 2) << "the ending control took the image list along";
}

TEST_F(ListViewTest, DragImageBelongsToTheCaller)
{
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32, 1, 1));
    ASSERT_TRUE(images.SetImageCount(1));
    m_list.SetImageList(&images, LVSIL_SMALL);
    POINT origin{};
    std::unique_ptr<CImageList> const drag(m_list.CreateDragImage(0, &origin));
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(CImageList::FromHandlePermanent(drag->GetSafeHandle()), drag.get());
    EXPECT_EQ(m_list.CreateDragImage(99, &origin), nullptr);
}

TEST_F(ListViewTest, ViewsAreSwitched)
{
    EXPECT_NE(m_list.SetView(LV_VIEW_ICON), static_cast<DWORD>(-1));
    EXPECT_EQ(m_list.GetView(), static_cast<DWORD>(LV_VIEW_ICON));
    EXPECT_TRUE(m_list.SetItemPosition(1, POINT{150, 90}));
    POINT position{};
    EXPECT_TRUE(m_list.GetItemPosition(1, &position));
    EXPECT_EQ(position.x, 150);
    EXPECT_EQ(position.y, 90);
    EXPECT_TRUE(m_list.Arrange(LVA_DEFAULT));
    CRect view;
    EXPECT_TRUE(m_list.GetViewRect(view));
    POINT origin{};
    EXPECT_TRUE(m_list.GetOrigin(&origin));
    EXPECT_GT(m_list.ApproximateViewRect(CSize(-1, -1), 3).cx, 0);
}

TEST_F(ListViewTest, ToolTipsAndIdentifiersAreReached)
{
    CToolTipCtrl * const tips = m_list.GetToolTips();
    ASSERT_NE(tips, nullptr);
    CToolTipCtrl own;
    ASSERT_TRUE(own.Create(&m_host));
    EXPECT_EQ(m_list.SetToolTips(&own), tips);
    m_list.SetToolTips(tips);
    UINT const id = m_list.MapIndexToID(2);
    m_list.DeleteItem(0);
    EXPECT_EQ(m_list.MapIDToIndex(id), 1U);
}

TEST(FrameworkControlsListView, VirtualListAsksItsParent)
{
    class Source : public tests::ScopedWindow
    {
    protected:
        BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT * pResult) override
        {
            auto * const info = reinterpret_cast<NMLVDISPINFO *>(lParam);
            if (info->hdr.code != LVN_GETDISPINFO)
                return CWnd::OnNotify(wParam, lParam, pResult);
            if ((info->item.mask & LVIF_TEXT) != 0)
            {
                m_text.Format(L"row %d", info->item.iItem);
                info->item.pszText = m_text.GetBuffer();
            }
            return TRUE;
        }

    private:
        CString m_text;
    };
    Source parent;
    CListCtrl list;
    ASSERT_TRUE(list.Create(shown | LVS_REPORT | LVS_OWNERDATA, place, parent, control_id));
    list.InsertColumn(0, L"x", LVCFMT_LEFT, 80);
    EXPECT_TRUE(list.SetItemCountEx(1000));
    EXPECT_EQ(list.GetItemCount(), 1000);
    EXPECT_EQ(list.GetItemText(517, 0), L"row 517");
}

TEST(FrameworkControlsListView, SubclassedListViewAnswersThroughItsObject)
{
    tests::ScopedWindow parent;
    HWND const plain = ::CreateWindow(WC_LISTVIEW, L"", shown | LVS_REPORT, 0, 0, 80, 50, parent.m_hWnd,
                                      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(control_id)), nullptr, nullptr);
    ASSERT_NE(plain, nullptr);
    CListCtrl list;
    ASSERT_TRUE(list.SubclassDlgItem(control_id, parent));
    EXPECT_EQ(list.InsertColumn(0, L"x"), 0);
    EXPECT_EQ(list.InsertItem(0, L"a"), 0);
    EXPECT_EQ(list.GetItemText(0, 0), L"a");
    CHeaderCtrl header;
    ASSERT_TRUE(header.SubclassWindow(*list.GetHeaderCtrl()));
    EXPECT_EQ(list.GetHeaderCtrl(), &header);
    EXPECT_EQ(header.GetItemCount(), 1);
}

class DrawnHeader : public CHeaderCtrl
{
public:
    int m_drawn = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_drawn; }
};

TEST(FrameworkControlsListView, HeaderStandsAlone)
{
    tests::ScopedWindow parent;
    DrawnHeader header;
    ASSERT_TRUE(header.Create(shown | HDS_HORZ | HDS_BUTTONS, CRect(0, 0, 200, 24), parent, control_id));
    wchar_t text[]{L"Name"};
    HDITEM item{};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.pszText = text;
    item.cxy = 80;
    item.fmt = HDF_OWNERDRAW;
    EXPECT_EQ(header.InsertItem(0, &item), 0);
    item.cxy = 50;
    item.fmt = HDF_STRING;
    EXPECT_EQ(header.InsertItem(1, &item), 1);
    CRect second;
    ASSERT_TRUE(header.GetItemRect(1, second));
    EXPECT_EQ(second.left, 80);
    EXPECT_EQ(second.Width(), 50);
    HDHITTESTINFO hit{};
    hit.pt = second.CenterPoint();
    EXPECT_EQ(header.HitTest(&hit), 1);
    int swapped[]{1, 0};
    EXPECT_TRUE(header.SetOrderArray(2, swapped));
    int order[2]{};
    EXPECT_TRUE(header.GetOrderArray(order, 2));
    EXPECT_EQ(order[0], 1);
    EXPECT_EQ(header.OrderToIndex(0), 1);
    header.SetBitmapMargin(9);
    EXPECT_EQ(header.GetBitmapMargin(), 9);
    header.Invalidate();
    header.UpdateWindow();
    EXPECT_GE(header.m_drawn, 1);
    CRect area(0, 0, 300, 200);
    WINDOWPOS position{};
    HDLAYOUT layout{&area, &position};
    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_GT(position.cy, 0);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_FALSE(header.DeleteItem(7));
    EXPECT_EQ(header.GetItemCount(), 1);
}

TEST(FrameworkControlsListView, ExtendedCreationTakesExtendedStyles)
{
    tests::ScopedWindow parent;
    CListCtrl list;
    ASSERT_TRUE(list.CreateEx(WS_EX_CLIENTEDGE, shown | LVS_REPORT, place, parent, control_id));
    EXPECT_NE(list.GetExStyle() & WS_EX_CLIENTEDGE, 0U);
    EXPECT_EQ(list.GetDlgCtrlID(), static_cast<int>(control_id));
    EXPECT_EQ(list.GetParent(), &parent);
}
} // namespace
