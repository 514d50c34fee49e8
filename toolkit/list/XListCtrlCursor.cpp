// CXListCtrl: the cell cursor.

#include "list/XListCtrlCursor.h"

#include <algorithm>
#include <utility>

#include "access/AccessObject.h"
#include "frame/GraphicsScopes.h"
#include "list/CheckMarks.h"
#include "list/XCombo.h"
#include "list/XEdit.h"
#include "list/XListCtrlHold.h"

using cursor_moves::ActKey;
using cursor_moves::MoveKey;

namespace
{
bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}
} // namespace

// --- Where it is ---

void CXListCtrl::EnableCellCursor(bool enable)
{
    m_cursor->Enable(enable);
}

bool CXListCtrl::HasCellCursor() const
{
    return m_cursor->IsOn();
}

std::pair<int, int> CXListCtrl::GetCellCursor() const
{
    return m_cursor->Place();
}

bool CXListCtrl::SetCellCursor(int row, int col)
{
    return m_cursor->Put(row, col);
}

void CXListCtrl::CellCursor::Enable(bool on)
{
    std::pair<int, int> const before = Place();
    m_on = on;
    std::pair<int, int> const now = on ? Place() : before;
    Invalidate(now.first, now.second);
}

std::pair<int, int> CXListCtrl::CellCursor::Place() const
{
    int const row = m_on && m_list.m_hWnd != nullptr ? m_list.GetNextItem(-1, LVNI_FOCUSED) : -1;
    if (row < 0 || m_list.m_columnCount <= 0)
        return {-1, -1};
    return {row, std::min(m_col, m_list.m_columnCount - 1)};
}

bool CXListCtrl::CellCursor::Put(int row, int col)
{
    if (!m_on || !m_list.IsValidItem(row, col))
        return false;
    Watch const watch(m_list);
    PutColumn(col);
    if (watch.IsAlive() && m_list.SetCurSel(row, true) && watch.IsAlive())
        ShowColumn(row, col);
    return true;
}

void CXListCtrl::CellCursor::PutColumn(int col)
{
    if (!m_on || col == m_col || col < 0 || col >= m_list.m_columnCount)
        return;
    std::pair<int, int> const before = Place();
    m_col = col;
    Invalidate(before.first, before.second);
    Invalidate(before.first, col);
    if (before.first >= 0)
        TellOfPlace();
}

bool CXListCtrl::CellCursor::IsFocused(int row) const
{
    return m_list.HasFocus() && m_list.GetItemState(row, LVIS_FOCUSED) != 0;
}

cursor_moves::Grid CXListCtrl::CellCursor::Grid() const
{
    cursor_moves::Grid grid;
    grid.rowCount = m_list.RowCount();
    auto const count = static_cast<std::size_t>(std::max(m_list.m_columnCount, 0));
    grid.columns.resize(count);
    if (count > 0 && !m_list.GetColumnOrderArray(grid.columns.data(), m_list.m_columnCount))
        grid.columns.clear();
    std::erase_if(grid.columns, [this](int col) { return m_list.GetColumnWidth(col) <= 0; });
    return grid;
}

// --- What the user sees and hears ---

void CXListCtrl::CellCursor::Invalidate(int row, int col) const
{
    CRect rect;
    if (row >= 0 && col >= 0 && m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        m_list.InvalidateRect(&rect, TRUE);
}

void CXListCtrl::CellCursor::TellOfPlace() const
{
    auto const [row, col] = Place();
    if (row >= 0 && ::GetFocus() == m_list.m_hWnd)
        TellOfEvent(EVENT_OBJECT_FOCUS, m_list.m_hWnd, {row, col});
}

void CXListCtrl::CellCursor::FollowRow(int row) const
{
    if (m_on)
        Invalidate(row, std::min(m_col, m_list.m_columnCount - 1));
}

void CXListCtrl::CellCursor::FollowFocus(bool focused) const
{
    auto const [row, col] = Place();
    Invalidate(row, col);
    if (focused)
        TellOfPlace();
}

void CXListCtrl::CellCursor::Paint(Frame const & frame) const
{
    CRect rect;
    if (!m_list.GetSubItemRect(frame.row, frame.col, LVIR_BOUNDS, rect) || rect.IsRectEmpty())
        return;
    CDC & dc = *CDC::FromHandle(frame.context);
    ControlColors const & palette = m_list.m_paint->palette;
    if (palette.adapts)
    {
        bool const selected = m_list.IsSelected(frame.row);
        check_marks::DrawFrame(dc, rect, selected ? palette.selectionText : palette.windowText);
        return;
    }
    // The dots are the ground's opposite in any colours.
    COLORREF const text = dc.SetTextColor(RGB(0, 0, 0));
    COLORREF const background = dc.SetBkColor(RGB(255, 255, 255));
    dc.DrawFocusRect(rect);
    dc.SetTextColor(text);
    dc.SetBkColor(background);
}

void CXListCtrl::CellCursor::ShowColumn(int row, int col)
{
    CRect rect;
    CRect client;
    m_list.GetClientRect(&client);
    if (!m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        return;
    // The left edge before all, if the cell is wider than the list.
    int const beyond = rect.left < 0 ? rect.left : std::min(rect.left, std::max(rect.right - client.right, 0L));
    if (beyond != 0)
        m_list.Scroll(CSize(beyond, 0));
}

bool CXListCtrl::CellCursor::FindMenuPlace(CPoint & screen) const
{
    auto const [row, col] = Place();
    CRect rect;
    if (row < 0 || !m_list.EnsureVisible(row, FALSE) || !m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        return false;
    CRect client;
    m_list.GetClientRect(&client);
    screen = CPoint(std::clamp(rect.left, 0L, std::max(client.right - 1, 0L)), rect.bottom);
    m_list.ClientToScreen(&screen);
    return true;
}

// --- Keys ---

CellPress CXListCtrl::CellCursor::PressThere() const
{
    auto const [row, col] = Place();
    XLISTCTRLDATA const * const cell = m_list.ValidCell(row, col);
    bool const enabled = m_list.GetDisplayStyle() == LVS_REPORT && cell != nullptr;
    return enabled ? DecidePress(*cell) : CellPress::select_only;
}

bool CXListCtrl::CellCursor::Press(ActKey key)
{
    if (!m_on || !cursor_moves::Acts(key, PressThere()))
        return false;
    auto const [row, col] = Place();
    Watch const watch(m_list);
    m_list.EnsureVisible(row, FALSE);
    CRect rect;
    if (!watch.IsUnchanged() || !m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        return true;
    ShowColumn(row, col);
    if (watch.IsUnchanged() && m_list.GetSubItemRect(row, col, LVIR_BOUNDS, rect))
        m_list.PressCell(row, col, rect.CenterPoint(), false);
    return true;
}

bool CXListCtrl::CellCursor::MoveInRow(UINT key)
{
    auto const [row, col] = Place();
    if (row < 0)
        return false;
    bool const control = IsDown(VK_CONTROL);
    MoveKey const move = key == VK_LEFT    ? MoveKey::left
                         : key == VK_RIGHT ? MoveKey::right
                         : key == VK_HOME  ? MoveKey::home
                                           : MoveKey::end;
    int const to = cursor_moves::ColumnAfter(Grid(), col, move, control);
    Watch const watch(m_list);
    PutColumn(to);
    if (watch.IsAlive() && to >= 0)
        ShowColumn(row, to);
    // With Ctrl, the native list goes on to the first or last row.
    return !watch.IsAlive() || !control || move == MoveKey::left || move == MoveKey::right;
}

std::optional<cursor_moves::Place> CXListCtrl::CellCursor::NextPlace(bool forward) const
{
    std::pair<int, int> const from = Place();
    if (from.first < 0)
        return {};
    return cursor_moves::NextChangeable(Grid(), from, forward, [this](int row, int col) {
        XLISTCTRLDATA const * const cell = m_list.ValidCell(row, col);
        return cell != nullptr && cursor_moves::CanBeChanged(DecidePress(*cell));
    });
}

bool CXListCtrl::CellCursor::GoToNext(bool forward)
{
    std::optional<cursor_moves::Place> const next = NextPlace(forward);
    return next && Put(next->first, next->second);
}

void CXListCtrl::CellCursor::FitColumns()
{
    Watch const watch(m_list);
    for (int col = 0; watch.IsAlive() && col < m_list.m_columnCount; ++col)
    {
        // A column that is hidden stays so.
        if (m_list.GetColumnWidth(col) > 0)
            m_list.SetColumnWidth(col, LVSCW_AUTOSIZE);
    }
}

bool CXListCtrl::CellCursor::TakeKey(UINT key)
{
    m_taken = 0;
    if (!m_on || m_list.GetDisplayStyle() != LVS_REPORT)
        return false;
    switch (key)
    {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_HOME:
    case VK_END:
        return MoveInRow(key);
    case VK_SPACE:
    case VK_RETURN: {
        ActKey const act = key == VK_SPACE ? ActKey::space : ActKey::enter;
        // The native list selects by the space bar with Ctrl or Shift.
        if (IsDown(VK_CONTROL) || IsDown(VK_SHIFT) || !cursor_moves::Acts(act, PressThere()))
            return false;
        m_taken = key;
        return Press(act);
    }
    case VK_F2:
        return Press(ActKey::edit);
    case VK_TAB: {
        if (IsDown(VK_CONTROL))
            return false;
        Watch const watch(m_list);
        bool const gone = GoToNext(!IsDown(VK_SHIFT));
        if (gone && watch.IsAlive())
            m_taken = key;
        return gone;
    }
    case VK_ADD:
        if (!IsDown(VK_CONTROL))
            return false;
        FitColumns();
        return true;
    default:
        return false;
    }
}

bool CXListCtrl::CellCursor::TakeMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    auto const key = static_cast<UINT>(wParam);
    return message == WM_CHAR ? TakeCharacter(key, lParam) : TakeSysKey(key);
}

bool CXListCtrl::CellCursor::TakeSysKey(UINT key)
{
    if (!m_on || (key != VK_DOWN && key != VK_UP) || !IsDown(VK_MENU))
        return false;
    Watch const watch(m_list);
    if (!Press(ActKey::drop_down))
        return false;
    if (watch.IsAlive() && m_list.m_editors->combo != nullptr && m_list.m_editors->combo->m_hWnd != nullptr)
        m_list.m_editors->combo->ShowDropDown();
    return true;
}

bool CXListCtrl::CellCursor::TakeCharacter(UINT character, LPARAM flags)
{
    if (!m_on)
        return false;
    if (character != 0 && character == std::exchange(m_taken, 0U))
        return true;
    Watch const watch(m_list);
    // Neither the space bar, which selects, nor what Ctrl makes of keys.
    if (character <= L' ' || IsDown(VK_MENU) || !Press(ActKey::character))
        return false;
    // The edit opens with its text selected.
    if (watch.IsAlive() && m_list.m_editors->edit != nullptr)
        ::PostMessageW(m_list.m_editors->edit->m_hWnd, WM_CHAR, character, flags);
    return true;
}

LRESULT CXListCtrl::CellCursor::WantedKeys(WPARAM key) const
{
    if (!m_on || (key != VK_RETURN && key != VK_TAB) || IsDown(VK_CONTROL))
        return 0;
    bool const wanted =
        key == VK_RETURN ? cursor_moves::Acts(ActKey::enter, PressThere()) : NextPlace(!IsDown(VK_SHIFT)).has_value();
    return wanted ? DLGC_WANTMESSAGE : 0;
}
