// The cells of the list and what is kept with its rows: words, keys, properties, check states.

#include "list/XListCtrl.h"

#include "list/XListCtrlHold.h"
#include "list/XListInput.h"
#include "list/XListSearch.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <utility>

namespace
{
/// Whether the native list inserts, deletes or moves rows at that message, or changes their parameter words.
bool ChangesRows(UINT message, LPARAM lParam)
{
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
    case LVM_SORTITEMS:
    case LVM_SORTITEMSEX:
    case LVM_SETITEMCOUNT:
    case WM_DESTROY:
    case WM_NCDESTROY:
        return true;
    case LVM_SETITEMA:
    case LVM_SETITEMW:
        return lParam != 0 && (reinterpret_cast<LVITEMW const *>(lParam)->mask & LVIF_PARAM) != 0;
    default:
        return false;
    }
}
} // namespace

// Access

int CXListCtrl::RowCount() const
{
    return m_hWnd != nullptr ? GetItemCount() : 0;
}

XLISTCTRLROW * CXListCtrl::RowOf(int row) const
{
    if (row < 0 || m_hWnd == nullptr)
        return nullptr;
    RowMemory & memory = m_rows->memory;
    if (memory.Knows(row))
        return memory.Object();
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    // Asked of the native procedure itself: nobody else knows an answer.
    if (const_cast<CXListCtrl *>(this)->DefWindowProc(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) == FALSE)
        return nullptr;
    auto * const object = reinterpret_cast<XLISTCTRLROW *>(item.lParam);
    memory.Remember(row, object);
    return object;
}

int CXListCtrl::PlaceOf(XLISTCTRLROW const * object) const
{
    if (object == nullptr || m_hWnd == nullptr)
        return -1;
    // Each row hangs from one item then, so that one seen at that place is nowhere else.
    bool const known = RowsAreKnown();
    if (known && object->lastPlace() >= 0 && NativeParam(object->lastPlace()) == object)
        return object->lastPlace();
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_PARAM;
    wanted.lParam = reinterpret_cast<LPARAM>(object);
    int const place = FindItem(&wanted);
    if (known)
        object->SetLastPlace(place);
    return place;
}

bool CXListCtrl::RowsAreKnown() const
{
    return m_rows->memory.AreRowsKnown();
}

LRESULT CXListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    HeedMessage(message);
    switch (message)
    {
    case WM_NOTIFY:
    case LVM_INSERTCOLUMNA:
    case LVM_INSERTCOLUMNW:
    case LVM_DELETECOLUMN:
    case LVM_SETCOLUMNORDERARRAY:
        return ColumnMessage(message, wParam, lParam);
    default:
        return CListCtrl::WindowProc(message, wParam, lParam);
    }
}

LRESULT CXListCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!ChangesRows(message, lParam))
        return CListCtrl::DefWindowProc(message, wParam, lParam);

    NoteRowChange(message, lParam, std::exchange(m_rows->ownChange, false));
    struct RowChange
    {
        explicit RowChange(CXListCtrl & changed) : list(changed), watch(changed) { list.m_rows->memory.BeginChange(); }
        ~RowChange()
        {
            if (watch.IsThere())
                list.m_rows->memory.EndChange();
        }
        CXListCtrl & list;
        Watch watch;
    } const change(*this);
    return CListCtrl::DefWindowProc(message, wParam, lParam);
}

void CXListCtrl::NoteRowChange(UINT message, LPARAM lParam, bool own)
{
    if (own)
        return;
    switch (message)
    {
    case LVM_INSERTITEMA:
    case LVM_INSERTITEMW:
    case LVM_SETITEMA:
    case LVM_SETITEMW: {
        auto const * const item = reinterpret_cast<LVITEMW const *>(lParam);
        if (item == nullptr || item->iSubItem != 0)
            return;
        // A new item takes the newest row, or none.
        auto const * const row =
            (item->mask & LVIF_PARAM) != 0 ? reinterpret_cast<XLISTCTRLROW const *>(item->lParam) : nullptr;
        bool const inserts = message == LVM_INSERTITEMA || message == LVM_INSERTITEMW;
        if (!m_rows->pool.IsNewest(row) && (row != nullptr || !inserts))
            m_rows->memory.LoseStep();
        return;
    }
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
        m_rows->memory.LoseStep();
        return;
    default:
        return;
    }
}

LRESULT CXListCtrl::AskNative(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return const_cast<CXListCtrl *>(this)->DefWindowProc(message, wParam, lParam);
}

XLISTCTRLROW * CXListCtrl::NativeParam(int row) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    AskNative(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return reinterpret_cast<XLISTCTRLROW *>(item.lParam);
}

std::vector<XLISTCTRLROW *> CXListCtrl::RowsFromTop() const
{
    std::vector<XLISTCTRLROW *> rows(static_cast<std::size_t>(RowCount()));
    int place = 0;
    for (XLISTCTRLROW *& row : rows)
        row = NativeParam(place++);
    if (RowsAreKnown())
        return rows;
    // Whatever else hangs from an item is not to be touched.
    std::vector<XLISTCTRLROW const *> own;
    for (auto const & row : m_rows->pool.All())
    {
        if (row != nullptr)
            own.push_back(row.get());
    }
    std::sort(own.begin(), own.end(), std::less<>());
    for (XLISTCTRLROW *& row : rows)
    {
        if (!std::binary_search(own.begin(), own.end(), row, std::less<>()))
            row = nullptr;
    }
    return rows;
}

template <class Matches> int CXListCtrl::FindTopmost(Matches && matches) const
{
    if (m_hWnd == nullptr)
        return -1;
    // While items change, a row given back may still hang from one.
    bool const known = RowsAreKnown();
    CXListRowPool::Slots const rows = known ? m_rows->pool.InUse() : m_rows->pool.All();
    return FindTopmostRow(
        rows, known, [this] { return RowCount(); }, matches, [this](XLISTCTRLROW const & row) { return PlaceOf(&row); },
        [this](int row) { return NativeParam(row); });
}

bool CXListCtrl::IsValidItem(int row, int col) const
{
    if (row < 0 || col < 0 || col >= m_columnCount || m_hWnd == nullptr)
        return false;
    return m_rows->memory.Knows(row) || row < GetItemCount();
}

XLISTCTRLDATA * CXListCtrl::ValidCell(int row, int col) const
{
    if (col < 0 || col >= m_columnCount)
        return nullptr;
    XLISTCTRLROW const * const object = RowOf(row);
    return object != nullptr && static_cast<unsigned int>(col) < object->capacity() ? object->cells() + col : nullptr;
}

XLISTCTRLDATA * CXListCtrl::GetRowData(int row)
{
    XLISTCTRLROW const * const object = RowOf(row);
    return object != nullptr ? object->cells() : nullptr;
}

XLISTCTRLDATA const * CXListCtrl::GetRowData(int row) const
{
    XLISTCTRLROW const * const object = RowOf(row);
    return object != nullptr ? object->cells() : nullptr;
}

XLISTCTRLDATA * CXListCtrl::GetRowItemData(int row, int col)
{
    return ValidCell(row, col);
}

XLISTCTRLDATA const * CXListCtrl::GetRowItemData(int row, int col) const
{
    return ValidCell(row, col);
}

XLISTCTRLDATA * CXListCtrl::GetRowItemDataDirect(int row, int col)
{
    XLISTCTRLDATA * const cells = GetRowData(row);
    return cells != nullptr ? cells + col : nullptr;
}

// Row words and keys

bool CXListCtrl::SetItemData(int row, long long data)
{
    XLISTCTRLDATA * const cells = GetRowData(row);
    if (cells == nullptr)
        return false;
    cells->itemData64 = data;
    return true;
}

bool CXListCtrl::SetItemData(int row, int data)
{
    return SetItemData(row, static_cast<long long>(data));
}

bool CXListCtrl::SetItemData(int row, unsigned int data)
{
    return SetItemData(row, static_cast<long long>(data));
}

bool CXListCtrl::SetItemData(int row, long data)
{
    return SetItemData(row, static_cast<long long>(data));
}

bool CXListCtrl::SetItemData(int row, unsigned long data)
{
    return SetItemData(row, static_cast<long long>(data));
}

bool CXListCtrl::SetItemData(int row, unsigned long long data)
{
    return SetItemData(row, static_cast<long long>(data));
}

bool CXListCtrl::SetItemData(int row, int low, int high)
{
    auto const upper = static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << 32;
    return SetItemData(row, static_cast<long long>(upper | static_cast<std::uint32_t>(low)));
}

long long CXListCtrl::GetItemData64(int row) const
{
    XLISTCTRLDATA const * const cells = GetRowData(row);
    return cells != nullptr ? cells->itemData64 : 0;
}

int CXListCtrl::GetItemData(int row) const
{
    return static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(GetItemData64(row))));
}

int CXListCtrl::GetItemData2(int row) const
{
    return static_cast<int>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(GetItemData64(row)) >> 32));
}

bool CXListCtrl::SetItemDataPtr(int row, void const * ptr)
{
    XLISTCTRLDATA * const cells = GetRowData(row);
    if (cells == nullptr)
        return false;
    cells->itemDataPtr = const_cast<void *>(ptr);
    return true;
}

void * CXListCtrl::GetItemDataPtr(int row) const
{
    XLISTCTRLDATA const * const cells = GetRowData(row);
    return cells != nullptr ? cells->itemDataPtr : nullptr;
}

bool CXListCtrl::SetItemIdx8(int row, int const * key)
{
    XLISTCTRLDATA * const cells = GetRowData(row);
    if (cells == nullptr || key == nullptr)
        return false;
    std::copy_n(key, XLISTCTRLDATA::key_length, cells->idx8);
    return true;
}

bool CXListCtrl::GetItemIdx8(int row, int * key) const
{
    XLISTCTRLDATA const * const cells = GetRowData(row);
    if (cells == nullptr || key == nullptr)
        return false;
    std::copy_n(cells->idx8, XLISTCTRLDATA::key_length, key);
    return true;
}

bool CXListCtrl::SetItemClavis(int row, int const * key)
{
    XLISTCTRLDATA * const cells = GetRowData(row);
    if (cells == nullptr || key == nullptr)
        return false;
    std::copy_n(key, XLISTCTRLDATA::clavis_length, cells->idx8);
    return true;
}

bool CXListCtrl::GetItemClavis(int row, int * key) const
{
    XLISTCTRLDATA const * const cells = GetRowData(row);
    if (cells == nullptr || key == nullptr)
        return false;
    std::copy_n(cells->idx8, XLISTCTRLDATA::clavis_length, key);
    return true;
}

int CXListCtrl::FindDataItem(long long data) const
{
    return FindTopmost(FirstCellOf([data](XLISTCTRLDATA const & cell) { return cell.itemData64 == data; }));
}

int CXListCtrl::FindDataItem(int data) const
{
    return FindDataItem(static_cast<long long>(data));
}

int CXListCtrl::FindDataItem(unsigned int data) const
{
    return FindDataItem(static_cast<long long>(data));
}

int CXListCtrl::FindDataItem(long data) const
{
    return FindDataItem(static_cast<long long>(data));
}

int CXListCtrl::FindDataItem(unsigned long data) const
{
    return FindDataItem(static_cast<long long>(data));
}

int CXListCtrl::FindDataItem(unsigned long long data) const
{
    return FindDataItem(static_cast<long long>(data));
}

int CXListCtrl::FindDataItemPtr(void const * ptr) const
{
    return FindTopmost(FirstCellOf([ptr](XLISTCTRLDATA const & cell) { return cell.itemDataPtr == ptr; }));
}

int CXListCtrl::FindDataItemClavis(int const * key) const
{
    if (key == nullptr)
        return -1;
    return FindTopmost(FirstCellOf([key](XLISTCTRLDATA const & cell) { return HasClavis(cell, key); }));
}

long long CXListCtrl::GetSelectedItemData(long long fallback) const
{
    int const row = GetSelectedItem();
    return row >= 0 ? GetItemData(row) : fallback;
}

void * CXListCtrl::GetSelectedItemDataPtr() const
{
    int const row = GetSelectedItem();
    return row >= 0 ? GetItemDataPtr(row) : nullptr;
}

// Properties

void CXListCtrl::SetItemProperty(int row, int col, unsigned int bits, bool on)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return;
    cell->properties = on ? cell->properties | bits : cell->properties & ~bits;
    UpdateSubItem(row, col);
}

bool CXListCtrl::GetItemProperty(int row, int col, unsigned int bits) const
{
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    return cell != nullptr && (cell->properties & bits) != 0;
}

void CXListCtrl::SetRowProperty(int row, unsigned int bits, bool on)
{
    for (XLISTCTRLDATA & cell : CellsOf(row))
        cell.properties = on ? cell.properties | bits : cell.properties & ~bits;
}

bool CXListCtrl::SetBold(int row, int col, bool bold)
{
    SetItemProperty(row, col, XLP_BOLD, bold);
    return true;
}

bool CXListCtrl::GetBold(int row, int col) const
{
    return GetItemProperty(row, col, XLP_BOLD);
}

void CXListCtrl::SetModified(int row, int col, bool modified)
{
    SetItemProperty(row, col, XLP_MODIFIED, modified);
}

bool CXListCtrl::GetModified(int row, int col) const
{
    return GetItemProperty(row, col, XLP_MODIFIED);
}

bool CXListCtrl::SetEnabled(int row, int col, bool enabled)
{
    if (ValidCell(row, col) == nullptr)
        return false;
    SetItemProperty(row, col, XLP_ENABLED, enabled);
    return true;
}

bool CXListCtrl::SetEnabled(int row, bool enabled)
{
    if (GetRowData(row) == nullptr)
        return false;
    SetRowProperty(row, XLP_ENABLED, enabled);
    UpdateSubItem(row, -1);
    return true;
}

bool CXListCtrl::GetEnabled(int row, int col) const
{
    return GetItemProperty(row, col, XLP_ENABLED);
}

bool CXListCtrl::GetEnabled(int row) const
{
    std::span<XLISTCTRLDATA> const cells = CellsOf(row);
    return std::any_of(cells.begin(), cells.end(),
                       [](XLISTCTRLDATA const & cell) { return (cell.properties & XLP_ENABLED) != 0; });
}

void CXListCtrl::SetItemValueType(int row, int col, unsigned int type)
{
    if (XLISTCTRLDATA * const cell = ValidCell(row, col))
        cell->valueType = type;
}

unsigned int CXListCtrl::GetItemValueType(int row, int col)
{
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    return cell != nullptr ? cell->valueType : XLV_TEXT;
}

void CXListCtrl::SetRowColors(int row, COLORREF text, COLORREF background)
{
    for (XLISTCTRLDATA & cell : CellsOf(row))
    {
        cell.textColor = text;
        cell.backgroundColor = background;
    }
    UpdateSubItem(row, -1);
}

void CXListCtrl::SetItemColors(int row, int col, COLORREF text, COLORREF background, COLORREF gradient)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return;
    cell->textColor = text;
    cell->backgroundColor = background;
    cell->gradientColor = gradient;
    UpdateSubItem(row, col);
}

bool CXListCtrl::GetItemColors(int row, int col, COLORREF & text, COLORREF & background) const
{
    text = 0;
    background = 0;
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return false;
    text = cell->textColor;
    background = cell->backgroundColor;
    return true;
}

std::span<XLISTCTRLDATA> CXListCtrl::CellsOf(int row) const
{
    XLISTCTRLROW const * const object = RowOf(row);
    if (object == nullptr || m_columnCount <= 0)
        return {};
    return {object->cells(), std::min(object->capacity(), static_cast<unsigned int>(m_columnCount))};
}

// Check states

bool CXListCtrl::SetCheckbox(int row, int col, int state)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr || state < XLC_NONE || state > XLC_CROSSED)
        return false;
    cell->MakeCheck(state);
    UpdateSubItem(row, col);
    UpdateHeaderFromCells(col);
    return true;
}

int CXListCtrl::GetCheckbox(int row, int col) const
{
    return GetItemCheckedState(row, col);
}

int CXListCtrl::GetItemCheckedState(int row, int col) const
{
    XLISTCTRLDATA const * const cell = ValidCell(row, col);
    return cell != nullptr ? cell->checkedState : XLC_NONE;
}

void CXListCtrl::SetItemCheckedState(int row, int col, int state)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr)
        return;
    cell->checkedState = state;
    UpdateSubItem(row, col);
}

bool CXListCtrl::SetRadioButton(int row, int col, int state)
{
    XLISTCTRLDATA * const cell = ValidCell(row, col);
    if (cell == nullptr || (state != XLC_NONE && state != XLC_RADIO_ON && state != XLC_RADIO_OFF))
        return false;
    if (state == XLC_RADIO_ON)
        SetItemCheckedState(GetActiveRadioItem(col), col, XLC_RADIO_OFF);
    cell->MakeCheck(state);
    UpdateSubItem(row, col);
    return true;
}

bool CXListCtrl::GetItemRadioOn(int row, int col) const
{
    return GetItemCheckedState(row, col) == XLC_RADIO_ON;
}

int CXListCtrl::GetActiveRadioItem(int col) const
{
    if (col < 0 || col >= m_columnCount)
        return -1;
    return FindTopmost([index = static_cast<unsigned int>(col)](XLISTCTRLROW const & row) {
        return index < row.capacity() && row.cells()[index].checkedState == XLC_RADIO_ON;
    });
}

unsigned long long CXListCtrl::CountCheckedItems(int col, int state) const
{
    unsigned long long count = 0;
    if (col < 0 || col >= m_columnCount)
        return count;
    VisitRows([index = static_cast<unsigned int>(col), state, &count](XLISTCTRLROW const & row) {
        if (index < row.capacity() && CountsAsChecked(row.cells()[index].checkedState, state))
            ++count;
    });
    return count;
}
