// Moving lines of the list by dragging and by keys.

#include "RecordingList.h"

#include <algorithm>
#include <utility>

#include "frame/WindowAlive.h"
#include "logic/LineMove.h"

namespace
{

constexpr UINT_PTR drag_timer = 41;
constexpr UINT drag_interval = 50; // milliseconds from one line to the next while the list scrolls by itself
constexpr int mark_height = 2;     // pixels above and below the edge of a row

} // namespace

BOOL CRecordingList::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    bool const begins = message == WM_NOTIFY && reinterpret_cast<NMHDR *>(lParam)->code == LVN_BEGINDRAG;
    if (!begins)
    {
        return CXListCtrl::OnChildNotify(message, wParam, lParam, result);
    }
    if (IsEditing())
    {
        // A press beside an editor ends it and drags nothing, however often it is told to.
        EndEditing();
        m_dragsNothing = true;
    }
    else if (!m_dragsNothing)
    {
        BeginDrag(reinterpret_cast<NMLISTVIEW *>(lParam)->iItem);
    }
    if (result != nullptr)
    {
        *result = 0;
    }
    return TRUE;
}

/// Takes up the selected lines, or that of a row which is not one of them.
void CRecordingList::BeginDrag(int row)
{
    if (row < 0)
    {
        return;
    }
    m_dragged = GetItemState(row, LVIS_SELECTED) != 0 ? SelectedLines() : std::vector<int>{LineAt(row)};
    m_dropRow = -1;
    CancelToolTips();
    SetCapture();
    SetTimer(drag_timer, drag_interval, nullptr);
}

/// Lets the lines go where they are.
void CRecordingList::EndDrag()
{
    if (m_dragged.empty())
    {
        return;
    }
    m_dragged.clear();
    KillTimer(drag_timer);
    MarkDrop(-1);
    if (GetCapture() == this)
    {
        ::ReleaseCapture();
    }
}

/// The vertical place of the upper edge of a row, or of what follows the last one.
int CRecordingList::EdgeOf(int row) const
{
    CRect rect;
    int const count = GetItemCount();
    if (count == 0 || !GetItemRect(std::min(row, count - 1), &rect, LVIR_BOUNDS))
    {
        return 0;
    }
    return row < count ? rect.top : rect.bottom;
}

/// Has the mark painted where the lines would land, before a row; none for a negative one.
void CRecordingList::MarkDrop(int row)
{
    if (row == m_dropRow)
    {
        return;
    }
    for (int const marked : {std::exchange(m_dropRow, row), row})
    {
        if (marked >= 0)
        {
            CRect mark;
            GetClientRect(&mark);
            mark.top = EdgeOf(marked) - mark_height;
            mark.bottom = mark.top + 2 * mark_height;
            InvalidateRect(&mark, FALSE);
        }
    }
}

/// The row before which the lines would land; -1 where they wouldn't.
int CRecordingList::DropRowAt(CPoint point)
{
    CRect client;
    GetClientRect(&client);
    CRect titles;
    GetHeaderCtrl()->GetClientRect(&titles);
    if (point.x < client.left || point.x >= client.right || GetItemCount() == 0)
    {
        return -1;
    }
    auto const y = std::clamp<int>(point.y, titles.bottom, std::max<int>(client.bottom - 1, titles.bottom));
    int const top = GetTopIndex();
    int const height = std::max(EdgeOf(top + 1) - EdgeOf(top), 1);
    return std::clamp(top + (y - EdgeOf(top) + height / 2) / height, top, GetItemCount());
}

void CRecordingList::FollowDrag(CPoint point)
{
    CPoint screen = point;
    ClientToScreen(&screen);
    HWND const below = ::WindowFromPoint(screen);
    bool const isOutside = below == nullptr || ::GetAncestor(below, GA_ROOT) != ::GetAncestor(m_hWnd, GA_ROOT);
    if (auto const onDragOut = m_onDragOut; onDragOut && isOutside)
    {
        std::vector<int> const lines = m_dragged;
        EndDrag();
        HWND const window = m_hWnd;
        onDragOut(lines);
        // The button's release went elsewhere.
        if (StillHas(this, window))
        {
            DefWindowProc(WM_LBUTTONUP, 0, MAKELPARAM(-1, -1));
        }
        return;
    }
    int const row = DropRowAt(point);
    MarkDrop(row);
    ::SetCursor(::LoadCursorW(nullptr, row >= 0 ? IDC_ARROW : IDC_NO));
}

/// While the pointer is held above or below the rows, the list goes on that way.
void CRecordingList::ScrollForDrag()
{
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    CRect client;
    GetClientRect(&client);
    CRect titles;
    GetHeaderCtrl()->GetClientRect(&titles);
    int const top = GetTopIndex();
    int const height = EdgeOf(top + 1) - EdgeOf(top);
    bool const down = point.y >= client.bottom - height / 2;
    bool const up = point.y < titles.bottom + height / 2;
    bool const last = top + GetCountPerPage() >= GetItemCount();
    if (point.x < client.left || point.x >= client.right || up == down || (up && top == 0) || (down && last))
    {
        return;
    }
    MarkDrop(-1);
    UpdateWindow(); // what is scrolled has no mark in it
    Scroll(CSize(0, up ? -height : height));
    FollowDrag(point);
}

/// Puts lines before a row, which the user can undo. False if they stand there.
bool CRecordingList::MoveLines(std::vector<int> const & lines, int row)
{
    EndEditing();
    workbench::ListOrder before = Order();
    std::vector<int> after =
        workbench::MovedLines(m_order, ShownLines(), lines, static_cast<std::size_t>(std::max(row, 0)));
    if (after == before.lines)
    {
        return false;
    }
    SetOrder({-1, true, std::move(after)});
    m_history.NoteOrder(std::move(before), Order());
    Tell(changed_order);
    return true;
}

bool CRecordingList::MoveSelected(bool up)
{
    std::vector<int> const moved = SelectedLines();
    std::vector<int> const seen = ShownLines();
    std::size_t const place = up ? workbench::PlaceOneUp(seen, moved) : workbench::PlaceOneDown(seen, moved);
    return !moved.empty() && MoveLines(moved, static_cast<int>(place));
}

void CRecordingList::OnMouseMove(UINT flags, CPoint point)
{
    if (IsDragging())
    {
        FollowDrag(point);
        return;
    }
    CXListCtrl::OnMouseMove(flags, point);
}

void CRecordingList::OnLButtonUp(UINT flags, CPoint point)
{
    m_dragsNothing = false;
    if (IsDragging())
    {
        std::vector<int> const lines = m_dragged;
        int const row = DropRowAt(point);
        EndDrag();
        if (row >= 0)
        {
            MoveLines(lines, row);
        }
    }
    CXListCtrl::OnLButtonUp(flags, point);
}

void CRecordingList::OnCaptureChanged(CWnd * other)
{
    if (other != this)
    {
        EndDrag();
    }
    CXListCtrl::OnCaptureChanged(other);
}

/// Escape ends a drag and nothing else; Alt with an arrow key moves the selected lines.
BOOL CRecordingList::PreTranslateMessage(MSG * message)
{
    WPARAM const key = message->wParam;
    if (message->message == WM_KEYDOWN && key == VK_ESCAPE && IsDragging())
    {
        EndDrag();
        return TRUE;
    }
    bool const plain = ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_SHIFT) >= 0;
    // At the cell cursor these keys are the cell's, before the window's commands. The list would press the cell where a
    // star may stand.
    bool const isDrop = message->message == WM_SYSKEYDOWN && key == VK_DOWN;
    if (message->hwnd == m_hWnd && plain && HasCellCursor() && GetCellCursor().second == column_rating &&
        (isDrop || (message->message == WM_KEYDOWN && key == VK_F2)))
    {
        if (isDrop)
        {
            ::DefWindowProcW(m_hWnd, message->message, message->wParam, message->lParam); // as below
        }
        ChooseRating(LineAt(GetCellCursor().first));
        return TRUE;
    }
    if (message->message == WM_SYSKEYDOWN && message->hwnd == m_hWnd && (key == VK_UP || key == VK_DOWN) && plain)
    {
        // Otherwise the system takes the Alt key for one that opens the menu, when it is released.
        ::DefWindowProcW(m_hWnd, message->message, message->wParam, message->lParam);
        MoveSelected(key == VK_UP);
        return TRUE;
    }
    return CXListCtrl::PreTranslateMessage(message);
}

/// Marks the edge at which a drag would drop.
void CRecordingList::OnPaint()
{
    CXListCtrl::OnPaint();
    if (m_dropRow >= 0)
    {
        CRect client;
        GetClientRect(&client);
        CClientDC dc(this);
        dc.FillSolidRect(client.left, EdgeOf(m_dropRow) - mark_height / 2, client.Width(), mark_height,
                         ::GetSysColor(COLOR_HIGHLIGHT));
    }
}

bool CRecordingList::OnDragTimer(UINT_PTR id)
{
    if (id != drag_timer)
    {
        return false;
    }
    if (!IsDragging())
    {
        KillTimer(drag_timer);
    }
    else if (::GetKeyState(VK_LBUTTON) >= 0 && ::GetAsyncKeyState(VK_LBUTTON) >= 0)
    {
        EndDrag(); // its end came to another window
    }
    else
    {
        ScrollForDrag();
    }
    return true;
}
