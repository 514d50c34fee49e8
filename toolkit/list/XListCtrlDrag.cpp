// CXListCtrl: dragging a row onto another one, which swaps the two.

#include "list/XListCtrl.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/GraphicsScopes.h"
#include "list/XListCtrlHold.h"

namespace
{
constexpr UINT first_cell_mask = LVIF_TEXT | LVIF_IMAGE | LVIF_PARAM | LVIF_STATE | LVIF_INDENT | LVIF_NORECOMPUTE;
constexpr UINT other_cell_mask = LVIF_TEXT | LVIF_IMAGE;

constexpr COLORREF drag_mask_colour = RGB(0, 0, 0);

/// Copies an area of the context into the bitmap.
bool CopyArea(CDC & source, CRect const & area, CBitmap & bitmap)
{
    CDC memory;
    if (!memory.CreateCompatibleDC(&source) || !bitmap.CreateCompatibleBitmap(&source, area.Width(), area.Height()))
        return false;
    SelectScope const selection(memory, bitmap.GetSafeHandle());
    memory.BitBlt(0, 0, area.Width(), area.Height(), &source, area.left, area.top, SRCCOPY);
    return true;
}
} // namespace

/// A native item with the buffer for its text.
struct CXListCtrl::dd_list_Item
{
    static constexpr int text_size = 256;
    dd_list_Item();
    dd_list_Item(dd_list_Item const &) = delete;
    dd_list_Item & operator=(dd_list_Item const &) = delete;

    LVITEMW item;
    wchar_t text[text_size];
};

CXListCtrl::dd_list_Item::dd_list_Item() : item{}, text{}
{
    item.pszText = text;
    item.cchTextMax = text_size - 1;
}

std::pair<int, int> CXListCtrl::indices() const
{
    return {m_drag->source, m_drag->target};
}

void CXListCtrl::EnableDragAndDrop()
{
    m_drag->enabled = true;
}

BOOL CXListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * result)
{
    auto * const header = reinterpret_cast<NMHDR *>(lParam);
    bool const begins = m_drag->enabled && message == WM_NOTIFY && header->code == LVN_BEGINDRAG;
    LRESULT unused = 0;
    Watch const watch(*this);
    if (begins)
        begin_drag(header, result != nullptr ? result : &unused);
    if (message == WM_NOTIFY && header->code == LVN_ITEMCHANGED)
        TellOfItemState(*reinterpret_cast<NMLISTVIEW const *>(header));
    if (!watch.IsAlive())
        return TRUE;
    BOOL const handled = CListCtrl::OnChildNotify(message, wParam, lParam, result);
    return begins ? handled | TRUE : handled;
}

void CXListCtrl::begin_drag(NMHDR * header, LRESULT * result)
{
    *result = 0;
    auto const & notification = *reinterpret_cast<NMLISTVIEW const *>(header);
    m_drag->source = notification.iItem;
    CRect rect(0, 0, 0, 0);
    Watch const watch(*this);
    GetSubItemRect(m_drag->source, 0, LVIR_BOUNDS, rect);
    if (!watch.IsAlive())
        return;
    {
        ClientContext const context(*this);
        if (context.Get() == nullptr)
            return;
        MakeDragImage(*context.Get(), rect);
    }
    CPoint const hotSpot = CPoint(notification.ptAction) - rect.TopLeft();
    ::ImageList_BeginDrag(m_drag->image.GetSafeHandle(), 0, hotSpot.x, hotSpot.y);
    CPoint screen = notification.ptAction;
    ClientToScreen(&screen);
    ::ImageList_DragEnter(nullptr, screen.x, screen.y);
    m_drag->target = -1;
    m_drag->cursor = IDC_ARROW;
    SetCapture();
}

void CXListCtrl::MakeDragImage(CDC & client, CRect const & cell)
{
    // Left from a drag whose end the list did not see.
    EndDragImage();
    CBitmap picture;
    if (!CopyArea(client, cell, picture) || !m_drag->image.Create(cell.Width(), cell.Height(), 0, 1, 0))
        return;
    ::ImageList_AddMasked(m_drag->image.GetSafeHandle(), static_cast<HBITMAP>(picture.GetSafeHandle()),
                          drag_mask_colour);
}

void CXListCtrl::EndDragImage()
{
    if (m_drag->image.GetSafeHandle() == nullptr)
        return;
    ::ImageList_DragLeave(nullptr);
    ::ImageList_EndDrag();
    m_drag->image.DeleteImageList();
}

void CXListCtrl::SetDropMark(int row, bool on)
{
    Watch const watch(*this);
    SetItemState(row, on ? LVIS_DROPHILITED : 0, LVIS_DROPHILITED);
    if (watch.IsAlive())
        RedrawItems(row, row);
}

bool CXListCtrl::FollowDrag(CPoint point)
{
    Watch const watch(*this);
    HWND const self = m_hWnd;
    CPoint screen = point;
    ClientToScreen(&screen);
    ::ImageList_DragMove(screen.x, screen.y);
    ::ImageList_DragShowNolock(FALSE);
    bool const inside = ::WindowFromPoint(screen) == self;
    int const target = inside ? HitTest(point) : -1;
    int const former = std::exchange(m_drag->target, target);
    if (former != -1 && former != target)
        SetDropMark(former, false);
    if (target != -1 && watch.IsAlive())
        SetDropMark(target, true);
    if (watch.IsAlive() && (inside || former != -1))
        UpdateWindow();
    if (!watch.IsAlive())
        return false;
    LPCWSTR const cursor = target != -1 ? IDC_ARROW : IDC_NO;
    if (m_drag->cursor != cursor)
    {
        m_drag->cursor = cursor;
        ::SetCursor(::LoadCursorW(nullptr, cursor));
    }
    ::ImageList_DragShowNolock(TRUE);
    return true;
}

void CXListCtrl::OnMouseMove(UINT flags, CPoint point)
{
    if (m_drag->enabled && m_drag->source >= 0 && !FollowDrag(point))
        return;
    CListCtrl::OnMouseMove(flags, point);
}

void CXListCtrl::OnLButtonUp(UINT flags, CPoint point)
{
    if (m_drag->enabled && m_drag->source >= 0)
    {
        Watch const watch(*this);
        ::ReleaseCapture();
        if (watch.IsAlive())
            EndDragImage();
        if (watch.IsAlive() && m_drag->target != -1)
            SetDropMark(m_drag->target, false);
        if (!watch.IsAlive())
            return;
        CPoint screen = point;
        ClientToScreen(&screen);
        if (::WindowFromPoint(screen) == m_hWnd && m_drag->target != m_drag->source)
            drop_on_list();
        if (!watch.IsAlive())
            return;
    }
    CListCtrl::OnLButtonUp(flags, point);
}

void CXListCtrl::drop_on_list()
{
    auto const [first, second] = indices();
    int const a = std::min(first, second);
    int const b = std::max(first, second);
    // A row may have gone since it was picked up or marked.
    if (a < 0 || b >= RowCount())
        return;
    auto const columns = static_cast<std::size_t>(m_columnCount);
    std::vector<dd_list_Item> upper(columns);
    std::vector<dd_list_Item> lower(columns);
    if (!SwapRows(upper, lower, a, b))
        return;
    RedrawItems(a, a);
    RedrawItems(b, b);
    auto const swapped = m_onRowsSwapped;
    if (swapped)
        swapped(a, b);
}

bool CXListCtrl::SwapRows(std::vector<dd_list_Item> & upper, std::vector<dd_list_Item> & lower, int a, int b)
{
    Watch const watch(*this);
    unsigned long long const changes = m_rows->model.memory.Changes();
    XLISTCTRLROW * const objects[] = {RowOf(a), RowOf(b)};
    {
        ListModel::Pin const pinUpper(m_rows->model, objects[0]);
        ListModel::Pin const pinLower(m_rows->model, objects[1]);
        save_row(upper, a);
        if (watch.IsAlive())
            save_row(lower, b);
        if (!watch.IsAlive() || m_rows->model.memory.Changes() != changes)
            return false;
        ++m_rows->model.swaps;
        bool const begun = restore_row(upper, b);
        bool swapped =
            begun && watch.IsAlive() && m_rows->model.memory.Changes() == changes + 1 && restore_row(lower, a);
        swapped = swapped && watch.IsAlive() && m_rows->model.memory.Changes() == changes + 2;
        // Refused by the parent halfway: as it was.
        if (begun && !swapped && watch.IsAlive() && m_rows->model.memory.Changes() == changes + 2 &&
            RowOf(b) == objects[0])
            restore_row(lower, b);
        if (watch.IsThere())
            --m_rows->model.swaps;
        if (!watch.IsAlive())
            return false;
        if (swapped)
            return true;
        m_rows->model.PutRowsInOrder(objects);
        if (!watch.IsAlive())
            return false;
    }
    m_rows->model.PutRowsInOrder();
    return false;
}

void CXListCtrl::save_row(std::vector<dd_list_Item> & saved, int row)
{
    Watch const watch(*this);
    int col = 0;
    for (dd_list_Item & cell : saved)
    {
        // A text may be one that the host is asked for.
        if (!watch.IsAlive())
            return;
        cell.item.mask = col == 0 ? first_cell_mask : other_cell_mask;
        cell.item.stateMask = col == 0 ? ~0U : 0U;
        cell.item.iItem = row;
        cell.item.iSubItem = col++;
        ::SendMessageW(m_hWnd, LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&cell.item));
        // The native list may give its own text instead of a copy, and that text is about to change.
        wchar_t const * const given = cell.item.pszText;
        if (given == cell.text || given == LPSTR_TEXTCALLBACKW)
            continue;
        std::wstring_view const whole(given != nullptr ? given : L"");
        whole.copy(cell.text, dd_list_Item::text_size - 1);
        cell.item.pszText = cell.text;
    }
}

bool CXListCtrl::restore_row(std::vector<dd_list_Item> & saved, int row)
{
    if (saved.empty())
        return false;
    auto const * const object = reinterpret_cast<XLISTCTRLROW const *>(saved.front().item.lParam);
    Watch const watch(*this);
    // The first cell takes the row's object along, which is a change.
    unsigned long long const changes = m_rows->model.memory.Changes() + 1;
    for (std::size_t col = 0;
         col < saved.size() && watch.IsAlive() && (col == 0 || m_rows->model.memory.Changes() == changes); ++col)
    {
        if (object != nullptr && col < object->capacity())
            object->cells()[col].properties |= XLP_MODIFIED;
        saved[col].item.iItem = row;
        m_rows->ownChange = col == 0;
        bool const taken = ::SendMessageW(m_hWnd, LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&saved[col].item)) != FALSE;
        if (watch.IsThere())
            m_rows->ownChange = false;
        if (col == 0 && !taken)
            return false;
    }
    return true;
}
