#pragma once
// A tree whose protected members a test may use, and its parent.

#include <functional>
#include <vector>

#include "controls/XTreeCtrl.h"
#include "frame/RegisteredMessages.h"
#include "ScopedWindow.h"

namespace tests
{
class TestTree : public CXTreeCtrl
{
public:
    using CXTreeCtrl::AllesInDenVorrat;
    using CXTreeCtrl::DeleteAllItems;
    using CXTreeCtrl::DeleteItem;
    using CXTreeCtrl::FindItemRecursion;
    using CXTreeCtrl::FindSortPosition;
    using CXTreeCtrl::GetMessageMap;
    using CXTreeCtrl::GetThisMessageMap;
    using CXTreeCtrl::InsertItem;
    using CXTreeCtrl::m_itemsInUse;
    using CXTreeCtrl::m_itemStock;
    using CXTreeCtrl::m_keyFlags;
    using CXTreeCtrl::OnLButtonDblClk;

    /// Each text with as many dots ahead as it is deep.
    std::vector<CString> Outline() const
    {
        std::vector<CString> lines;
        Enter(GetRootItem(), 0, lines);
        return lines;
    }
    HTREEITEM Add(wchar_t const * text, HTREEITEM parent = nullptr, int type = -1, int id = -1, int sortKey = -1)
    {
        return InsertTreeItem(text, 0, 0, parent, type, id, TVI_LAST, sortKey);
    }

    /// Double clicks that reached the native tree.
    int doubleClicksOfTheBase = 0;
    /// Messages that reached it at all.
    int messagesOfTheBase = 0;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        ++messagesOfTheBase;
        doubleClicksOfTheBase += message == WM_LBUTTONDBLCLK;
        return CXTreeCtrl::DefWindowProc(message, wParam, lParam);
    }

private:
    void Enter(HTREEITEM item, int depth, std::vector<CString> & lines) const
    {
        for (; item != nullptr; item = GetNextSiblingItem(item))
        {
            lines.push_back(CString(L'.', depth) + GetItemText(item));
            Enter(GetChildItem(item), depth + 1, lines);
        }
    }
};

class TreeParent : public ScopedWindow
{
public:
    using ScopedWindow::ScopedWindow;

    struct Report
    {
        WPARAM flags;
        HTREEITEM item;
        bool operator==(Report const &) const = default;
    };
    std::vector<Report> reports;
    std::function<void(NMHDR const &)> onNotify;
    std::function<void()> onReport;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_XTREECTRL_DBLCLK)
        {
            reports.push_back({wParam, reinterpret_cast<HTREEITEM>(lParam)});
            if (onReport)
                onReport();
        }
        if (message == WM_NOTIFY && onNotify)
        {
            auto const called = onNotify; // it may replace itself
            called(*reinterpret_cast<NMHDR const *>(lParam));
        }
        return ScopedWindow::WindowProc(message, wParam, lParam);
    }
};
} // namespace tests
