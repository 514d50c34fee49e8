// Rows of the list: insertion, deletion, selection, repainting.

#include "list/XListCtrl.h"

#include "list/XListRowWatch.h"

#include <algorithm>
#include <limits>

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
    return InsertItem(pos, text, m_colorWindowText, m_colorWindow, ptr, data);
}

int CXListCtrl::AddItem(wchar_t const * text, void const * ptr, long long data)
{
    return InsertItem(-1, text, ptr, data);
}

int CXListCtrl::InsertItem(LVITEMW const * item)
{
    if (item == nullptr || item->iItem < 0)
        return -1;
    return InsertWithRow(*item, m_colorWindowText, m_colorWindow, item->iImage, reinterpret_cast<void *>(item->lParam),
                         0);
}

int CXListCtrl::InsertWithRow(LVITEMW item, COLORREF text, COLORREF background, int image, void const * ptr,
                              long long data)
{
    if (m_hWnd == nullptr)
        return -1;
    XLISTCTRLROW * const row = m_rowPool.Take();
    // Also a list without columns keeps its rows' words.
    row->Prepare(static_cast<unsigned int>(std::max(m_columnCount, 1)));
    XLISTCTRLDATA & cell = *row->cells();
    cell.textColor = text;
    cell.backgroundColor = background;
    cell.imageIndex = image;
    cell.itemData64 = data;
    cell.itemDataPtr = const_cast<void *>(ptr);

    item.mask |= LVIF_PARAM;
    item.lParam = reinterpret_cast<LPARAM>(row);
    int const index = CListCtrl::InsertItem(&item);
    if (index < 0)
        m_rowPool.GiveBack(row);
    else
        RememberRow(index, row);
    return index;
}

int CXListCtrl::DeleteItem(int row)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    if (row < 0 || m_hWnd == nullptr || !AskNative(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
        return FALSE;
    RowWatch const watch(*this);
    if (auto const * const given = reinterpret_cast<XLISTCTRLROW const *>(item.lParam))
    {
        if (RowsAreKnown() || m_rowPool.Owns(given))
            m_rowPool.GiveBack(given);
        bool const changed = SetNativeParam(row, nullptr);
        // The parent hears of that and may have changed the rows, so that another one stands there.
        if (!watch.IsThere() || (changed && watch.Changes() != 1 && NativeParam(row) != nullptr))
            return FALSE;
    }
    m_ownRowChange = true;
    BOOL const deleted = CListCtrl::DeleteItem(row);
    if (watch.IsThere())
        m_ownRowChange = false;
    return deleted;
}

int CXListCtrl::DeleteAllItems()
{
    m_rowPool.GiveBackAll();
    if (m_hWnd == nullptr)
        return FALSE;
    RowWatch const watch(*this);
    m_ownRowChange = true;
    BOOL const deleted = CListCtrl::DeleteAllItems();
    if (!watch.IsThere())
        return deleted;
    m_ownRowChange = false;
    if (RowCount() == 0 && m_rowPool.used() == 0)
        m_rowsInStep = true;
    return deleted;
}

void CXListCtrl::SetBatchInsertMode(bool on)
{
    m_batchInsert = on;
    if (!on && m_hWnd != nullptr)
        Invalidate();
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
    RowWatch const watch(*this);
    EnableWindow(enable);
    if (watch.IsThere())
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
    bool const set = SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED) != FALSE;
    if (ensureVisible)
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
    if (m_batchInsert || row < 0 || col < -1 || col >= m_columnCount || row >= RowCount())
        return;
    CRect rect;
    bool const known =
        col >= 0 ? GetSubItemRect(row, col, LVIR_BOUNDS, rect) : GetItemRect(row, &rect, LVIR_BOUNDS) != FALSE;
    if (!known)
        return;
    rect.InflateRect(repaint_margin, repaint_margin);
    InvalidateRect(&rect, TRUE);
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
    bool known = native(col, rect);
    if (col != 0)
        return known;
    // The native rectangle of the first column is that of the whole row.
    for (int next = 1; next < m_columnCount; ++next)
    {
        CRect other;
        known = native(next, other);
        if (other.Width() > 0)
        {
            rect.right = other.left;
            break;
        }
    }
    return known;
}
