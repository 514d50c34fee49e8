// CXListCtrl: mouse, keyboard, context menu, timers and what the parent hears of them.

#include "list/XListCtrl.h"

#include "frame/RegisteredMessages.h"
#include "list/CellKind.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"
#include "list/XListInput.h"

namespace
{
bool IsCell(std::pair<int, int> const & cell)
{
    return cell.first >= 0 && cell.second >= 0;
}

/// An index as a message word, with its sign.
WPARAM Word(int index)
{
    return static_cast<WPARAM>(static_cast<LONG_PTR>(index));
}
} // namespace

std::pair<int, int> CXListCtrl::GetItem(CPoint const & point)
{
    LVHITTESTINFO hit{};
    hit.pt = point;
    if (!::IsWindow(m_hWnd))
        return {-1, -1};
    SubItemHitTest(&hit);
    if ((hit.flags & LVHT_ONITEM) == 0)
        return {-1, -1};
    return {hit.iItem, hit.iSubItem};
}

int CXListCtrl::GetPointItem(CPoint const & point, int & col)
{
    auto const [row, column] = GetItem(point);
    col = column;
    return column < 0 ? -1 : row;
}

// --- Notifications ---

void CXListCtrl::PostToParent(unsigned int message, WPARAM wParam, LPARAM lParam) const
{
    if (!::IsWindow(m_hWnd))
        return;
    CWnd const * receiver = GetParent();
    if (receiver == nullptr)
        receiver = GetOwner();
    if (receiver != nullptr && ::IsWindow(receiver->m_hWnd))
        ::PostMessageW(receiver->m_hWnd, message, wParam, lParam);
}

void CXListCtrl::OnItemStateChange(int row, int col, unsigned int message)
{
    Watch const watch(*this);
    // A copy: it may replace itself.
    auto const changed = m_onStateChange;
    if (changed)
        changed(row, col);
    if (watch.IsAlive())
        PostToParent(message, Word(row), static_cast<LPARAM>(Word(col)));
}

void CXListCtrl::TakeUserChange(XLISTCTRLDATA & cell, int row, int col, unsigned int message)
{
    cell.properties |= XLP_MODIFIED;
    m_listModified = true;
    Watch const watch(*this);
    UpdateSubItem(row, col);
    if (watch.IsAlive())
        OnItemStateChange(row, col, message);
}

// --- Mouse ---

void CXListCtrl::OnLButtonDown(UINT, CPoint point)
{
    // The host hears of the end of an edit. Not from within the native list's press, which does not stand the end of
    // the list.
    auto const pass = [this] {
        Watch const watch(*this);
        if (m_editors->edit != nullptr)
            SetFocus();
        if (watch.IsAlive())
            Default();
    };
    if (GetDisplayStyle() != LVS_REPORT)
    {
        pass();
        return;
    }
    std::pair<int, int> const place = GetItem(point);
    auto const [row, col] = place;
    if (!IsCell(place))
    {
        if (m_editors->combo != nullptr)
            OnComboEscape(0, 0);
        pass();
        return;
    }
    // Rows that were inserted past this class, or before the column was, have no cell here.
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    if (cell != nullptr && DecidePress(*cell) == CellPress::ignored)
        return;
    m_cursor->PutColumn(col);
    PressCell(row, col, point, true);
}

void CXListCtrl::PressCell(int row, int col, CPoint point, bool asInput)
{
    auto const pass = [this, asInput] {
        Watch const watch(*this);
        // The host hears of the end of an edit. Not from within the native list's press, which does not stand the end
        // of the list.
        if (m_editors->edit != nullptr)
            SetFocus();
        if (asInput && watch.IsAlive())
            Default();
    };
    HeldRow held(*this, row);
    XLISTCTRLDATA const * cell = held.Cell(col);
    auto const clicked = m_onCellClick;
    if (cell != nullptr && clicked)
    {
        clicked(row, col);
        // The press goes on to the row that was pressed, if it's still in the list.
        cell = held.Row() >= 0 ? held.Cell(col) : nullptr;
        if (!held.IsListAlive())
            return;
    }
    if (cell != nullptr && OfferPress(held.Row(), col, point))
    {
        if (held.IsListAlive())
            pass();
        return;
    }
    switch (cell != nullptr ? m_rows->model.PressCell(held, col) : CellPress::select_only)
    {
    case CellPress::open_combo:
        pass();
        if (int const place = held.Row(); place >= 0)
            DrawComboBoxControl(place, col);
        return;
    case CellPress::open_edit:
        pass();
        if (int const place = held.Row(); place >= 0)
            DrawEditControl(place, col);
        return;
    case CellPress::follow_link:
        pass();
        if (int const place = held.Row(); place >= 0)
            OnItemStateChange(place, col, WM_XLISTCTRL_LINK_CLICKED);
        return;
    case CellPress::flip_check:
    case CellPress::switch_radio_on:
    case CellPress::ignored:
    case CellPress::select_only:
        break;
    }
    if (held.IsListAlive())
        pass();
}

// --- Kinds of the host's own ---

void CXListCtrl::ChangeByKind(int row, int col, CXListCellKind::Change const & change)
{
    HeldRow held(*this, row);
    if (change.text)
        ShowText(row, col, *change.text);
    int const place = held.IsListAlive() ? held.Row() : -1;
    XLISTCTRLDATA * const cell = place >= 0 ? held.Cell(col) : nullptr;
    if (cell == nullptr)
        return;
    TakeUserChange(*cell, place, col, change.message);
}

bool CXListCtrl::OfferPress(int row, int col, CPoint point)
{
    std::shared_ptr<CXListCellKind> const kind = GetCellKind(row, col);
    CRect rect;
    if (kind == nullptr || !GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        return false;
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    Watch const watch(*this);
    std::optional<CXListCellKind::Change> const change = kind->Press(*cell, rect, point);
    if (!watch.IsUnchanged())
        return true;
    if (change)
        ChangeByKind(row, col, *change);
    return change.has_value();
}

bool CXListCtrl::OfferKey(UINT key)
{
    int const row = m_rows->hadKinds && m_hWnd != nullptr ? GetNextItem(-1, LVNI_FOCUSED) : -1;
    XLISTCTRLROW const * const object = RowOf(row);
    if (object == nullptr || !object->HasKinds())
        return false;
    Watch const watch(*this);
    // Whether the cell has taken it, or has changed so much that no other one is asked.
    auto const offer = [&](int col) {
        std::shared_ptr<CXListCellKind> const kind = GetCellKind(row, col);
        if (kind == nullptr || !GetEnabled(row, col))
            return false;
        std::optional<CXListCellKind::Change> const change = kind->Key(*ValidCell(row, col), key);
        if (!watch.IsUnchanged())
            return true;
        if (change)
            ChangeByKind(row, col, *change);
        return change.has_value();
    };
    int const first = m_cursor->IsOn() ? m_cursor->Place().second : -1;
    if (first >= 0 && offer(first))
        return true;
    for (int col = 0; col < m_columnCount; ++col)
    {
        if (col != first && offer(col))
            return true;
    }
    return false;
}

void CXListCtrl::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (GetDisplayStyle() == LVS_REPORT)
    {
        std::pair<int, int> const place = GetItem(point);
        auto const [row, col] = place;
        if (IsCell(place))
        {
            Watch const watch(*this);
            auto const clicked = m_onDoubleClick;
            if (clicked)
                clicked(row, col);
            if (!watch.IsAlive())
                return;
            PostToParent(WM_XLISTCTRL_ITEM_DBLCLICKED, Word(row), static_cast<LPARAM>(Word(col)));
        }
        else if (m_editors->combo != nullptr)
            OnComboEscape(0, 0);
    }
    CListCtrl::OnLButtonDblClk(flags, point);
}

void CXListCtrl::OnRButtonDown(UINT, CPoint point)
{
    if (!IsCell(GetItem(point)))
        return;
    Watch const watch(*this);
    if (m_editors->edit != nullptr)
        SetFocus();
    if (watch.IsAlive())
        Default();
}

void CXListCtrl::OnNcLButtonDown(UINT hitTest, CPoint point)
{
    Watch const watch(*this);
    if (m_editors->edit != nullptr)
        OnXEditKillFocus(0, 0);
    if (watch.IsAlive())
        CListCtrl::OnNcLButtonDown(hitTest, point);
}

BOOL CXListCtrl::OnClick(NMHDR *, LRESULT * result)
{
    *result = 0;
    return FALSE;
}

BOOL CXListCtrl::OnColumnClick(NMHDR * header, LRESULT * result)
{
    *result = 0;
    OnHeaderColumnClick(reinterpret_cast<NMLISTVIEW const *>(header)->iSubItem);
    return FALSE;
}

void CXListCtrl::OnHeaderColumnClick(int col)
{
    Watch const watch(*this);
    int const reported = m_rows->model.PressHeader(col);
    if (watch.IsAlive())
        PostToParent(WM_XLISTCTRL_COLUMNCLICK, Word(reported), static_cast<LPARAM>(Word(col)));
}

// --- Keyboard ---

void CXListCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (m_cursor->IsOn())
    {
        if (!m_cursor->TakeKey(key) && !OfferKey(key))
            CListCtrl::OnKeyDown(key, repeat, flags);
        return;
    }
    if (OfferKey(key))
        return;
    bool const down = key == VK_DOWN || key == VK_NEXT;
    bool const up = key == VK_UP || key == VK_PRIOR;
    if ((GetStyle() & LVS_SINGLESEL) == 0 || (!down && !up))
    {
        CListCtrl::OnKeyDown(key, repeat, flags);
        return;
    }
    Watch const watch(*this);
    int const before = GetCurSel(-1);
    CListCtrl::OnKeyDown(key, repeat, flags);
    if (before < 0 || !watch.IsAlive())
        return;
    SetCurSel(RowAfterNavigationKey(before, GetItemCount(), down, [this](int row) { return GetEnabled(row); }), true);
}

// --- Context menu ---

CMenu & CXListCtrl::PopUpMenu()
{
    return m_popupMenu;
}

void CXListCtrl::OnContextMenu(CWnd * window, CPoint point)
{
    // The keyboard's menu has no place of its own.
    bool const byKey = point == CPoint(-1, -1) && m_cursor->FindMenuPlace(point);
    CPoint inside = point;
    ScreenToClient(&inside);
    std::pair<int, int> const place = byKey ? m_cursor->Place() : GetItem(inside);
    CRect header(0, 0, 0, 0);
    if (m_header.GetSafeHwnd() != nullptr)
        m_header.GetWindowRect(&header);
    bool const belowHeader = byKey || header.IsRectNull() || point.y >= header.bottom;
    if (!IsCell(place) || !m_onContextCommand || !belowHeader)
    {
        CListCtrl::OnContextMenu(window, point);
        return;
    }
    if (m_popupMenu.GetSafeHmenu() == nullptr)
        return;
    // The list lives on while the menu is open.
    HeldRow held(*this, place.first);
    bool const followed = held.Row() >= 0;
    int const command = m_popupMenu.TrackPopupMenuEx(TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x, point.y, this, nullptr);
    if (command == 0 || !held.IsListAlive())
        return;
    int const row = followed ? held.Row() : place.first;
    auto const chosen = m_onContextCommand;
    if (row >= 0 && chosen)
        chosen(command, row, place.second);
}
