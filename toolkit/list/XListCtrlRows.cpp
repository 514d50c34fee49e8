// Rows of the list: insertion, deletion, selection, repainting.

#include "list/XListCtrl.h"

#include <algorithm>
#include <limits>

#include "list/XListCtrlHold.h"

namespace
{
// How far a repaint reaches around its cell.
constexpr int repaint_margin = 2;
// A native position past the end appends, which saves asking for the count.
constexpr int behind_last = std::numeric_limits<int>::max();
} // namespace

int CXListCtrl::InsertItem(int pos, wchar_t const * text, COLORREF textColor, COLORREF background, void const * ptr,
                           long long data)
{
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = pos >= 0 ? pos : behind_last;
    item.pszText = const_cast<wchar_t *>(text);
    return InsertWithRow(item, textColor, background, -1, ptr, data);
}

int CXListCtrl::InsertItem(int pos, wchar_t const * text, void const * ptr, long long data)
{
    return InsertItem(pos, text, m_paint->standard.windowText, m_paint->standard.window, ptr, data);
}

int CXListCtrl::AddItem(wchar_t const * text, void const * ptr, long long data)
{
    return InsertItem(-1, text, ptr, data);
}

int CXListCtrl::InsertItem(LVITEMW const * item)
{
    if (item == nullptr || item->iItem < 0)
        return -1;
    return InsertWithRow(*item, m_paint->standard.windowText, m_paint->standard.window, item->iImage,
                         reinterpret_cast<void *>(item->lParam), 0);
}

int CXListCtrl::InsertWithRow(LVITEMW item, COLORREF text, COLORREF background, int image, void const * ptr,
                              long long data)
{
    if (m_hWnd == nullptr)
        return -1;
    return m_rows->model.InsertRow({text, background, image, ptr, data}, [this, &item](XLISTCTRLROW & row) {
        item.mask |= LVIF_PARAM;
        item.lParam = reinterpret_cast<LPARAM>(&row);
        return CListCtrl::InsertItem(&item);
    });
}

int CXListCtrl::DeleteItem(int row)
{
    return m_rows->model.DeleteRow(row);
}

int CXListCtrl::DeleteAllItems()
{
    return m_rows->model.DeleteAllRows();
}

void CXListCtrl::SetBatchInsertMode(bool on)
{
    m_batchInsert = on;
    if (m_hWnd == nullptr)
        return;
    if (!on)
        Invalidate();
    HoldAccessEvents(on, m_access->redrawOff);
}

void CXListCtrl::EnableAll(bool enable)
{
    VisitRows([this, enable](XLISTCTRLROW const & row) {
        int const columns = std::min(m_columnCount, static_cast<int>(row.capacity()));
        for (int col = 0; col < columns; ++col)
        {
            unsigned int & properties = row.cells()[col].properties;
            properties = enable ? properties | XLP_ENABLED : properties & ~XLP_ENABLED;
        }
    });
    if (m_hWnd == nullptr)
        return;
    Watch const watch(*this);
    EnableWindow(enable);
    if (watch.IsAlive())
        Invalidate();
}

void CXListCtrl::DisableAll(bool disable)
{
    EnableAll(!disable);
}

// Selection

int CXListCtrl::GetCurSel(int after) const
{
    return m_hWnd != nullptr ? GetNextItem(after, LVNI_SELECTED) : -1;
}

int CXListCtrl::GetSelectedItem() const
{
    return GetCurSel(-1);
}

int CXListCtrl::GetSelectedItemAfter(int row) const
{
    return GetCurSel(row);
}

bool CXListCtrl::SetCurSel(int row, bool ensureVisible)
{
    if (row < 0)
    {
        SetNoSelection();
        return true;
    }
    if (m_hWnd == nullptr)
        return false;
    Watch const watch(*this);
    bool const set = SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED) != FALSE;
    if (ensureVisible && watch.IsAlive())
        EnsureVisible(row, FALSE);
    return set;
}

void CXListCtrl::SetNoSelection()
{
    int const row = GetSelectedItem();
    if (row >= 0)
        SetItemState(row, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

// Repainting

void CXListCtrl::UpdateSubItem(int row, int col)
{
    if (m_batchInsert)
        m_access->changed = true;
    if (m_batchInsert || row < 0 || col < -1 || col >= m_columnCount || row >= RowCount())
        return;
    Watch const watch(*this);
    CRect rect;
    bool const known =
        col >= 0 ? GetSubItemRect(row, col, LVIR_BOUNDS, rect) : GetItemRect(row, &rect, LVIR_BOUNDS) != FALSE;
    if (!known || !watch.IsAlive())
        return;
    rect.InflateRect(repaint_margin, repaint_margin);
    InvalidateRect(&rect, TRUE);
    TellOfCell(row, col);
}

bool CXListCtrl::GetSubItemRect(int row, int col, int area, CRect & rect) const
{
    if (!IsValidItem(row, col))
        return false;
    auto const native = [this, row, area](int column, CRect & result) {
        result.SetRect(area, column, 0, 0);
        return ::SendMessageW(m_hWnd, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                              reinterpret_cast<LPARAM>(static_cast<RECT *>(&result))) == TRUE;
    };
    Watch const watch(*this);
    bool known = native(col, rect);
    if (!watch.IsAlive())
        return false;
    if (col != 0)
        return known;
    // The native rectangle of the first column is that of the whole row.
    for (int next = 1; next < m_columnCount; ++next)
    {
        CRect other;
        known = native(next, other);
        if (!watch.IsAlive())
            return false;
        if (other.Width() > 0)
        {
            rect.right = other.left;
            break;
        }
    }
    return known;
}
