// CXListCtrl: the resolution that it is shown with.

#include "list/XListCtrlResolution.h"

#include <algorithm>
#include <vector>

#include "layout/WindowDpi.h"
#include "list/XListCtrlHold.h"

BOOL CXListCtrl::SetDpi(UINT dpi)
{
    return m_resolution->Set(dpi) ? TRUE : FALSE;
}

UINT CXListCtrl::GetDpi() const
{
    return m_resolution->Dpi();
}

void CXListCtrl::FollowDpi(BOOL follow)
{
    m_resolution->Follow(follow != FALSE);
}

LRESULT CXListCtrl::Resolution::Native(UINT message, WPARAM wParam, LPARAM lParam)
{
    return m_list.CListCtrl::DefWindowProc(message, wParam, lParam);
}

bool CXListCtrl::Resolution::Set(UINT dpi)
{
    if (!resolution::IsServed(dpi))
        return false;
    if (dpi == m_dpi)
        return true;
    unsigned int const change = ++m_changes;
    // As they are at the former one, before anything is another width.
    if (m_list.m_hWnd != nullptr)
    {
        std::vector<int> widths(static_cast<std::size_t>(std::max(m_list.GetColumnCount(), 0)));
        int col = 0;
        for (int & width : widths)
            width = static_cast<int>(Native(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(col++), 0));
        m_widths.Note(widths, m_dpi);
    }
    m_dpi = dpi;
    if (m_list.m_hWnd == nullptr)
    {
        m_list.m_header.SetDpi(dpi);
        return true;
    }
    // What lies over a cell has the former places: it ends as when it loses the focus.
    Watch const watch(m_list);
    m_list.OnXEditKillFocus(0, 0);
    if (watch.IsAlive())
        m_list.TakeComboChoice();
    if (!watch.IsAlive() || change != m_changes)
        return true;
    // A paint under way has rows and columns as they were.
    m_list.HeedMessage(LVM_SETIMAGELIST);
    m_list.m_header.SetDpi(dpi);
    KeepRows();
    if (watch.IsAlive() && change == m_changes)
        ScaleColumns();
    if (!watch.IsAlive() || change != m_changes)
        return true;
    // The header takes its height anew.
    CRect client;
    m_list.GetClientRect(&client);
    Native(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    if (watch.IsAlive())
        m_list.Invalidate(TRUE);
    return true;
}

// The host hears of each width, and may change columns, the resolution or the list meanwhile.
void CXListCtrl::Resolution::ScaleColumns()
{
    unsigned int const change = m_changes;
    for (std::size_t col = 0; col < m_widths.Count(); ++col)
    {
        // Columns that came meanwhile are as wide as the host wants them now.
        if (static_cast<int>(col) >= m_list.GetColumnCount())
            return;
        if (!ScaleColumn(col) || m_changes != change)
            return;
    }
}

// A change of the resolution within the notification is done before the native list sets the width that it told of,
// which is then one of the former resolution. False if the list has ended.
bool CXListCtrl::Resolution::ScaleColumn(std::size_t col)
{
    Watch const watch(m_list);
    bool again = true;
    while (again)
    {
        unsigned int const change = m_changes;
        int const width = m_widths.Wish(col, m_dpi);
        Native(LVM_SETCOLUMNWIDTH, col, MAKELPARAM(width, 0));
        if (!watch.IsAlive())
            return false;
        if (col >= m_widths.Count() || static_cast<int>(col) >= m_list.GetColumnCount())
            return true;
        again = m_changes != change && static_cast<int>(Native(LVM_GETCOLUMNWIDTH, col, 0)) == width;
    }
    m_widths.Settle(col);
    return true;
}

void CXListCtrl::Resolution::KeepRows()
{
    auto const native = [this](UINT message, WPARAM wParam, LPARAM lParam) { return Native(message, wParam, lParam); };
    m_rows.Keep(native, CRowHeight::Needed(native, m_dpi, m_imageDpi));
}

void CXListCtrl::Resolution::Follow(bool follow)
{
    m_follows = follow;
    if (follow && m_list.m_hWnd != nullptr)
        Set(window_dpi::Of(m_list.m_hWnd));
}

void CXListCtrl::Resolution::Begin()
{
    m_widths.Forget();
    if (m_follows)
        Set(window_dpi::Of(m_list.m_hWnd));
    if (m_dpi != resolution::usual && m_list.m_hWnd != nullptr)
        KeepRows();
}

void CXListCtrl::Resolution::End()
{
    m_rows.Take([this](UINT message, WPARAM wParam, LPARAM lParam) { return Native(message, wParam, lParam); });
}

bool CXListCtrl::Resolution::Heeds(UINT message) const
{
    switch (message)
    {
    case LVM_SETIMAGELIST:
    case LVM_GETIMAGELIST:
    case LVM_SETEXTENDEDLISTVIEWSTYLE:
        return true;
    default:
        return m_follows && window_dpi::IsTold(message);
    }
}

LRESULT CXListCtrl::Resolution::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == LVM_GETIMAGELIST)
    {
        LRESULT const images = Native(message, wParam, lParam);
        return m_rows.IsBlank(images) ? 0 : images;
    }
    Watch const watch(m_list);
    if (message == LVM_SETIMAGELIST && wParam == LVSIL_SMALL)
        m_imageDpi = m_dpi;
    bool const images = message == LVM_SETIMAGELIST || message == LVM_SETEXTENDEDLISTVIEWSTYLE;
    if (images && m_dpi != resolution::usual)
        End();
    LRESULT const result = Native(message, wParam, lParam);
    if (!watch.IsAlive())
        return result;
    if (!images)
        Set(window_dpi::Of(m_list.m_hWnd));
    else if (m_dpi != resolution::usual)
        KeepRows();
    return result;
}
