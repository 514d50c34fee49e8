// Columns of the list.

#include "list/XListCtrl.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "list/XListCtrlHold.h"

namespace
{
// What the available width leaves free of the window's.
constexpr int border_width = 4;

/// Whether a notification tells of another width, place or alignment of a column.
bool TellsOfColumns(NMHDR const & notification)
{
    if (notification.code != HDN_ITEMCHANGEDW && notification.code != HDN_ITEMCHANGEDA)
        return false;
    // Both forms have the mask at the same place.
    HDITEMW const * const item = reinterpret_cast<NMHEADERW const &>(notification).pitem;
    return item == nullptr || (item->mask & (HDI_WIDTH | HDI_ORDER | HDI_FORMAT)) != 0;
}
} // namespace

// The native list moves the picture of the columns behind a changed one and has only the rest painted. That goes wrong
// where another change comes in between, as when a scroll bar goes and the host fits the columns to the new size, and
// where something reaches out of its cell.
LRESULT CXListCtrl::ColumnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    bool const changes = message != WM_NOTIFY || TellsOfColumns(*reinterpret_cast<NMHDR const *>(lParam));
    HWND const window = m_hWnd;
    Watch const watch(*this);
    bool const own = message != WM_NOTIFY && std::exchange(m_rows->ownColumnChange, false);
    LRESULT const result = CListCtrl::WindowProc(message, wParam, lParam);
    // The host may have ended the list meanwhile.
    if (watch.IsAlive() && !own)
    {
        if (message == LVM_DELETECOLUMN && result != FALSE)
            FollowColumns(message, static_cast<int>(wParam));
        else if ((message == LVM_INSERTCOLUMNA || message == LVM_INSERTCOLUMNW) && result >= 0)
            FollowColumns(message, static_cast<int>(result));
    }
    if (changes)
        ::InvalidateRect(window, nullptr, TRUE);
    return result;
}

// The native list moves the texts of its items behind a column that comes or goes, but leaves the items' own text,
// which is that of the first column, where it is.
void CXListCtrl::FollowColumns(UINT message, int col)
{
    SubclassHeaderControl();
    m_columnCount = GetColumnCount();
    auto const place = static_cast<unsigned int>(std::max(col, 1));
    bool const goes = message == LVM_DELETECOLUMN;
    if (goes && col == 0)
        return;
    VisitRows([place, goes](XLISTCTRLROW & row) {
        if (goes)
            row.RemoveCell(place);
        else
            row.InsertCell(place);
    });
}

int CXListCtrl::AddColumn(wchar_t const * title, int format, int width)
{
    if (!::IsWindow(m_hWnd))
        return -1;
    int const col = GetColumnCount();
    m_columnCount = col + 1;
    Watch const watch(*this);
    m_rows->ownColumnChange = true;
    // Past the end, so that it lands last.
    CListCtrl::InsertColumn(m_columnCount, title, format, width, -1);
    // A list that has not been shown yet may have made its header only now.
    if (watch.IsAlive())
        SubclassHeaderControl();
    return col;
}

int CXListCtrl::InsertColumn(int col, wchar_t const * title, int format, int width, int subItem)
{
    if (!::IsWindow(m_header.m_hWnd))
        return -1;
    Watch const watch(*this);
    m_rows->ownColumnChange = true;
    int const landed = CListCtrl::InsertColumn(col, title, format, width, subItem);
    if (watch.IsAlive())
        m_columnCount = GetColumnCount();
    return landed - 1;
}

int CXListCtrl::GetColumnCount() const
{
    return ::IsWindow(m_header.m_hWnd) ? m_header.GetItemCount() : 0;
}

void CXListCtrl::DeleteAllColumns()
{
    if (m_columnCount == 0 || !::IsWindow(m_hWnd))
        return;
    Watch const watch(*this);
    DeleteAllItems();
    if (!watch.IsAlive())
        return;
    for (int col = GetColumnCount() - 1; col >= 0 && watch.IsAlive(); --col)
    {
        m_rows->ownColumnChange = true;
        DeleteColumn(col);
    }
    if (watch.IsAlive())
        m_columnCount = 0;
}

int CXListCtrl::SetColumnWidth(int col, int width)
{
    if (!::IsWindow(m_hWnd))
        return FALSE;
    Watch const watch(*this);
    BOOL const set = CListCtrl::SetColumnWidth(col, width);
    if (!watch.IsAlive())
        return set;
    return CListCtrl::SetColumnWidth(col, GetColumnWidth(col) + 2 * m_header.GetSpacing());
}

void CXListCtrl::AutosizeColumnWidth(int col)
{
    int const count = GetColumnCount();
    if (!::IsWindow(m_hWnd) || count <= 0)
        return;
    CRect window;
    GetWindowRect(&window);
    if (window.Width() < 1)
        return;
    int available = window.Width() - border_width;
    if (GetItemCount() > GetCountPerPage())
        available -= ::GetSystemMetrics(SM_CXVSCROLL);

    m_fit->widths.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        m_fit->widths[static_cast<std::size_t>(i)] = GetColumnWidth(i);

    int const minimum = m_header.GetSpacing();
    int const preferred = col < count ? col : count - 1;
    switch (FitColumns(m_fit->widths, available, minimum, preferred, m_fit->memory))
    {
    case ColumnFit::unchanged:
        break;
    case ColumnFit::preferred_only:
        CListCtrl::SetColumnWidth(preferred, m_fit->widths[static_cast<std::size_t>(preferred)]);
        break;
    case ColumnFit::all:
        SetNativeWidths(preferred, minimum + 1);
        break;
    }
}

void CXListCtrl::SetNativeWidths(int preferred, int firstWidth)
{
    // The host hears of each width and may fit the columns anew.
    std::vector<int> const widths = m_fit->widths;
    Watch const watch(*this);
    if (preferred >= 0)
        CListCtrl::SetColumnWidth(preferred, firstWidth);
    if (watch.IsAlive())
        ShowWindow(SW_HIDE);
    int col = 0;
    for (int const width : widths)
    {
        if (watch.IsAlive())
            CListCtrl::SetColumnWidth(col++, width);
    }
    if (watch.IsAlive())
        ShowWindow(SW_SHOW);
}
