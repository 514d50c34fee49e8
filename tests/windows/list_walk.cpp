// A random walk over the operations of a real list, held against the reference model after every step.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "frame/RegisteredMessages.h"
#include "list/XListCtrl.h"
#include "list/XListRowPool.h"
#include "ListWalk.h"
#include "ScopedWindow.h"

namespace
{
using list_reference::Notice;

/// A list of single selection in a parent that is not shown. The list itself is: one that is not has no header.
class WalkList : public CXListCtrl
{
public:
    /// What opens over a cell is not part of the walk.
    static constexpr bool clicks_open_editors = true;

    explicit WalkList(CWnd & parent)
    {
        EXPECT_TRUE(Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                           CRect(0, 0, 600, 300), &parent, 7));
        // A press selects its row wherever it goes to.
        SetFullRowSelect();
    }
    ~WalkList() override { DestroyWindow(); }

    int InsertForeign(int position, wchar_t const * text) { return CListCtrl::InsertItem(position, text); }
    void Sort(bool ascending) { SortItems(&Compare, ascending ? 1 : -1); }
    void SetWidth(int col, int width) { CListCtrl::SetColumnWidth(col, width); }
    int Width(int col) const { return GetColumnWidth(col); }
    int Available() const
    {
        CRect window;
        GetWindowRect(&window);
        return window.Width() - 4 - (GetItemCount() > GetCountPerPage() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
    }
    int MinimumWidth() const { return 6; }
    COLORREF BarColor() const { return ::GetSysColor(COLOR_HIGHLIGHT); }
    int ItemCount() const { return GetItemCount(); }
    std::wstring Text(int row, int col) const
    {
        wchar_t text[100];
        return {text,
                static_cast<std::size_t>(CListCtrl::GetItemText(row, col, text, static_cast<int>(std::size(text))))};
    }

    /// A press where the cell can be hit, and its end.
    void Press(int row, int col)
    {
        SetWidth(col, std::max(Width(col), 10));
        EnsureVisible(row, FALSE);
        CRect client;
        GetClientRect(&client);
        CRect cell = CellRect(row, col);
        if (cell.left < 0 || cell.left + 5 >= client.right)
        {
            Scroll(CSize(cell.left - 5, 0));
            cell = CellRect(row, col);
        }
        LPARAM const place = MAKELPARAM(cell.left + 5, cell.CenterPoint().y);
        // The native list of some systems waits for the end within the press.
        PostMessage(WM_LBUTTONUP, 0, place);
        SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, place);
    }
    void Navigate(bool down, bool page)
    {
        WPARAM const key = down ? (page ? VK_NEXT : VK_DOWN) : (page ? VK_PRIOR : VK_UP);
        SendMessage(WM_KEYDOWN, key, 1);
    }

    /// What was posted to the parent, in order; all other messages are dispatched.
    std::vector<Notice> TakeNotices()
    {
        std::vector<Notice> notices;
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        {
            int const first = static_cast<int>(message.wParam);
            int const col = static_cast<int>(message.lParam);
            if (message.message == WM_XLISTCTRL_CHECKBOX_CLICKED)
                notices.push_back({Notice::What::check, first, col});
            else if (message.message == WM_XLISTCTRL_LINK_CLICKED)
                notices.push_back({Notice::What::link, first, col});
            else if (message.message == WM_XLISTCTRL_COLUMNCLICK)
                notices.push_back({Notice::What::column, first, col});
            else
                ::DispatchMessageW(&message);
        }
        return notices;
    }
    /// No row object hangs from two items.
    bool IsSound(std::size_t used) const
    {
        std::set<DWORD_PTR> objects;
        std::size_t items = 0;
        for (int row = 0; row < GetItemCount(); ++row)
        {
            if (DWORD_PTR const object = CListCtrl::GetItemData(row); object != 0)
            {
                ++items;
                objects.insert(object);
            }
        }
        return items == used && objects.size() == used;
    }

private:
    CRect CellRect(int row, int col) const
    {
        CRect rect;
        EXPECT_TRUE(GetSubItemRect(row, col, LVIR_BOUNDS, rect));
        return rect;
    }
    static int CALLBACK Compare(LPARAM first, LPARAM second, LPARAM direction)
    {
        auto const key = [](LPARAM parameter) {
            auto const * const row = reinterpret_cast<XLISTCTRLROW const *>(parameter);
            return row == nullptr ? std::tuple(true, 0LL, std::uintptr_t{0})
                                  : std::tuple(false, row->cells()->itemData64,
                                               reinterpret_cast<std::uintptr_t>(row->cells()->itemDataPtr));
        };
        int const order = key(first) < key(second) ? -1 : key(second) < key(first) ? 1 : 0;
        return order * static_cast<int>(direction);
    }
};

class ListWindowWalk : public testing::TestWithParam<unsigned>
{
};

TEST_P(ListWindowWalk, FollowsTheReferenceModelFor10000Operations)
{
    tests::ScopedWindow parent(CRect(50, 50, 750, 450), WS_OVERLAPPEDWINDOW);
    WalkList list(parent);
    EXPECT_EQ(list_walk::Run(list, GetParam(), 10000), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListWindowWalk, testing::Values(1u, 20u, 300u));
} // namespace
