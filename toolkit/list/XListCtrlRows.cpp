// Rows of the list: insertion, deletion, selection, repainting.

#include "list/XListCtrl.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

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
    XLISTCTRLROW * const row = TakeRow();
    XLISTCTRLDATA & cell = *row->cells();
    cell.textColor = text;
    cell.backgroundColor = background;
    cell.imageIndex = image;
    cell.itemData64 = data;
    cell.itemDataPtr = const_cast<void *>(ptr);

    item.mask |= LVIF_PARAM;
    item.lParam = reinterpret_cast<LPARAM>(row);
    Watch const watch(*this);
    unsigned long long const changes = m_rows->model.memory.Changes();
    unsigned int const use = row->use();
    int index = -1;
    {
        Pin const pin(*this, row);
        index = CListCtrl::InsertItem(&item);
    }
    if (!watch.IsAlive())
        return -1;
    // The insertion itself is the only change, as always but for a host that changes rows when it hears of it; one that
    // was refused before it reached the native list is none.
    if (m_rows->model.memory.Changes() == changes + 1 || (index < 0 && m_rows->model.memory.Changes() == changes))
    {
        if (index < 0)
            m_rows->model.pool.GiveBack(row);
        else
            m_rows->model.memory.Remember(index, row);
        return index;
    }
    PutRowsInOrder();
    return watch.IsAlive() && row->use() == use ? PlaceOf(row) : -1;
}

XLISTCTRLROW * CXListCtrl::TakeRow()
{
    return m_rows->model.TakeRow();
}

int CXListCtrl::DeleteItem(int row)
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    if (row < 0 || m_hWnd == nullptr || !AskNative(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)))
        return FALSE;
    Watch const watch(*this);
    unsigned long long expected = m_rows->model.memory.Changes();
    auto const * const given = reinterpret_cast<XLISTCTRLROW const *>(item.lParam);
    bool const own = given != nullptr && (RowsAreKnown() || m_rows->model.pool.Owns(given));
    LRESULT const id = AskNative(LVM_MAPINDEXTOID, static_cast<WPARAM>(row), 0);
    if (given != nullptr)
    {
        SetNativeParam(row, nullptr);
        ++expected;
    }
    if (!watch.IsAlive())
        return FALSE;
    // The host may have heard of it and have moved rows.
    int const place =
        m_rows->model.memory.Changes() == expected ? row : static_cast<int>(MapIDToIndex(static_cast<UINT>(id)));
    m_rows->ownChange = true;
    BOOL const deleted = CListCtrl::DeleteItem(place);
    if (!watch.IsAlive())
        return deleted;
    m_rows->ownChange = false;
    if (m_rows->model.memory.Changes() != expected + 1)
        PutRowsInOrder();
    else if (own)
        m_rows->model.pool.GiveBack(given);
    return deleted;
}

int CXListCtrl::DeleteAllItems()
{
    if (m_hWnd == nullptr)
    {
        m_rows->model.pool.GiveBackAll();
        return FALSE;
    }
    Watch const watch(*this);
    // Rows stay in use until no native item shows them any more: the host hears of each one that goes.
    m_rows->ownChange = true;
    BOOL const deleted = CListCtrl::DeleteAllItems();
    if (!watch.IsAlive())
        return deleted;
    m_rows->ownChange = false;
    if (RowCount() != 0 || !m_rows->pinned.empty())
    {
        PutRowsInOrder();
        return deleted;
    }
    m_rows->model.pool.GiveBackAll();
    m_rows->model.memory.SetInStep(true);
    return deleted;
}

void CXListCtrl::PutRowsInOrder(std::span<XLISTCTRLROW * const> spares)
{
    // The host hears of each repair. One that goes on moving rows for ever is left alone after a while.
    constexpr int most_tries = 8;

    Watch const watch(*this);
    for (int tries = 0; tries < most_tries; ++tries)
    {
        unsigned long long changes = m_rows->model.memory.Changes();
        std::vector<int> const sharing = GiveBackUnshownRows();
        if (m_drag->rowSwaps != 0)
            return;
        for (int const row : sharing)
        {
            auto const spare = std::find_if(spares.begin(), spares.end(),
                                            [this](XLISTCTRLROW const * object) { return PlaceOf(object) < 0; });
            XLISTCTRLROW * const object = spare != spares.end() ? *spare : TakeRow();
            Pin const pin(*this, object);
            SetNativeParam(row, object);
            if (!watch.IsAlive())
                return;
            if (m_rows->model.memory.Changes() != ++changes)
                break;
        }
        if (m_rows->model.memory.Changes() == changes)
            return;
    }
}

std::vector<int> CXListCtrl::GiveBackUnshownRows()
{
    std::unordered_set<XLISTCTRLROW const *> shown;
    std::vector<int> sharing;
    int const rows = RowCount();
    for (int row = 0; row < rows; ++row)
    {
        XLISTCTRLROW const * const object = RowOf(row);
        if (object != nullptr && !shown.insert(object).second)
            sharing.push_back(row);
    }
    std::size_t inUse = 0;
    m_rows->model.pool.KeepOnly([&](XLISTCTRLROW const & row) {
        bool const isShown = shown.contains(&row);
        inUse += isShown ? 1 : 0;
        return isShown || std::find(m_rows->pinned.begin(), m_rows->pinned.end(), &row) != m_rows->pinned.end();
    });
    m_rows->model.memory.SetInStep(sharing.empty() && inUse == shown.size());
    return sharing;
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
