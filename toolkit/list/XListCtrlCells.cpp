// The cells of the list and what is kept with its rows: words, keys, properties, check states.

#include "list/XListCtrl.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <iterator>
#include <utility>

#include "colours/ControlColors.h"
#include "frame/RegisteredMessages.h"
#include "list/XListCtrlCursor.h"
#include "list/XListCtrlHold.h"
#include "list/XListCtrlResolution.h"
#include "list/XListSearch.h"

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
    return m_rows->model.RowOf(row);
}

bool CXListCtrl::Items::ObjectAt(int row, XLISTCTRLROW *& object) const
{
    LVITEMW item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    // Asked of the native procedure itself: nobody else knows an answer.
    bool const isThere = m_list.AskNative(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)) != FALSE;
    object = reinterpret_cast<XLISTCTRLROW *>(item.lParam);
    return isThere;
}

int CXListCtrl::Items::FindObject(XLISTCTRLROW const & object) const
{
    LVFINDINFOW wanted{};
    wanted.flags = LVFI_PARAM;
    wanted.lParam = reinterpret_cast<LPARAM>(&object);
    return m_list.FindItem(&wanted);
}

unsigned int CXListCtrl::Items::IdOf(int row) const
{
    return static_cast<unsigned int>(m_list.AskNative(LVM_MAPINDEXTOID, static_cast<WPARAM>(row), 0));
}

bool CXListCtrl::Items::Delete(int row)
{
    Watch const watch(m_list);
    m_list.m_rows->ownChange = true;
    BOOL const deleted = m_list.CListCtrl::DeleteItem(row);
    if (watch.IsThere())
        m_list.m_rows->ownChange = false;
    return deleted != FALSE;
}

bool CXListCtrl::Items::DeleteAll()
{
    Watch const watch(m_list);
    m_list.m_rows->ownChange = true;
    BOOL const deleted = m_list.CListCtrl::DeleteAllItems();
    if (watch.IsThere())
        m_list.m_rows->ownChange = false;
    return deleted != FALSE;
}

void CXListCtrl::Items::TellOfCheck(int row, int col)
{
    m_list.OnItemStateChange(row, col, WM_XLISTCTRL_CHECKBOX_CLICKED);
}

int CXListCtrl::PlaceOf(XLISTCTRLROW const * object) const
{
    return m_rows->model.PlaceOf(object);
}

bool CXListCtrl::RowsAreKnown() const
{
    return m_rows->model.memory.AreRowsKnown();
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
    case WM_GETDLGCODE: {
        Watch const watch(*this);
        LRESULT const keys = CListCtrl::WindowProc(message, wParam, lParam);
        return watch.IsAlive() ? keys | m_cursor->WantedKeys(wParam) : keys;
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        Watch const watch(*this);
        LRESULT const result = CListCtrl::WindowProc(message, wParam, lParam);
        if (watch.IsAlive())
            m_cursor->FollowFocus(message == WM_SETFOCUS);
        return result;
    }
    case WM_GETOBJECT:
        if (LRESULT const answer = AsksForControl(message, lParam) ? AnswerGetObject(wParam) : 0)
            return answer;
        return CListCtrl::WindowProc(message, wParam, lParam);
    case WM_SETREDRAW: {
        Watch const watch(*this);
        LRESULT const result = CListCtrl::WindowProc(message, wParam, lParam);
        if (watch.IsAlive())
            HoldAccessEvents(m_batchInsert, wParam == FALSE);
        return result;
    }
    default:
        return CListCtrl::WindowProc(message, wParam, lParam);
    }
}

LRESULT CXListCtrl::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // Keys that the host has not taken.
    if (m_cursor->IsOn() && (message == WM_CHAR || message == WM_SYSKEYDOWN) &&
        m_cursor->TakeMessage(message, wParam, lParam))
        return 0;
    if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORSTATIC)
    {
        if (LRESULT const brush = control_colors::AnswerColorQuestion(m_hWnd, message, wParam))
            return brush;
    }
    if (m_resolution->Heeds(message))
        return m_resolution->Handle(message, wParam, lParam);
    if (!ChangesRows(message, lParam))
        return CListCtrl::DefWindowProc(message, wParam, lParam);

    NoteRowChange(message, lParam, std::exchange(m_rows->ownChange, false));
    Watch const watch(*this);
    LRESULT const result = ChangeRows(message, wParam, lParam);
    if (watch.IsAlive() && message != LVM_SETITEMA && message != LVM_SETITEMW)
        TellOfOrder();
    return result;
}

LRESULT CXListCtrl::ChangeRows(UINT message, WPARAM wParam, LPARAM lParam)
{
    struct RowChange
    {
        explicit RowChange(CXListCtrl & changed) : list(changed), watch(changed)
        {
            list.m_rows->model.memory.BeginChange();
        }
        ~RowChange()
        {
            if (watch.IsThere())
                list.m_rows->model.memory.EndChange();
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
        if (!m_rows->model.pool.IsNewest(row) && (row != nullptr || !inserts))
            m_rows->model.memory.LoseStep();
        return;
    }
    case LVM_DELETEITEM:
    case LVM_DELETEALLITEMS:
        m_rows->model.memory.LoseStep();
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
    for (std::unique_ptr<XLISTCTRLROW> const & row : m_rows->model.pool.All())
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

bool CXListCtrl::IsValidItem(int row, int col) const
{
    if (row < 0 || col < 0 || col >= m_columnCount || m_hWnd == nullptr)
        return false;
    return m_rows->model.memory.Knows(row) || row < GetItemCount();
}

XLISTCTRLDATA * CXListCtrl::ValidCell(int row, int col) const
{
    return m_rows->model.Cell(row, col);
}

XLISTCTRLDATA * CXListCtrl::GetRowData(int row)
{
    return m_rows->model.FirstCell(row);
}

XLISTCTRLDATA const * CXListCtrl::GetRowData(int row) const
{
    return m_rows->model.FirstCell(row);
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
    return m_rows->model.FindTopmost(
        FirstCellOf([data](XLISTCTRLDATA const & cell) { return cell.itemData64 == data; }));
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
    return m_rows->model.FindTopmost(
        FirstCellOf([ptr](XLISTCTRLDATA const & cell) { return cell.itemDataPtr == ptr; }));
}

int CXListCtrl::FindDataItemClavis(int const * key) const
{
    if (key == nullptr)
        return -1;
    return m_rows->model.FindTopmost(FirstCellOf([key](XLISTCTRLDATA const & cell) { return HasClavis(cell, key); }));
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
    m_rows->model.SetProperty(row, col, bits, on);
}

bool CXListCtrl::GetItemProperty(int row, int col, unsigned int bits) const
{
    return m_rows->model.HasProperty(row, col, bits);
}

void CXListCtrl::SetRowProperty(int row, unsigned int bits, bool on)
{
    m_rows->model.SetRowProperty(row, bits, on);
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
    return m_rows->model.SetProperty(row, col, XLP_ENABLED, enabled);
}

bool CXListCtrl::SetEnabled(int row, bool enabled)
{
    return m_rows->model.SetRowEnabled(row, enabled);
}

bool CXListCtrl::GetEnabled(int row, int col) const
{
    return GetItemProperty(row, col, XLP_ENABLED);
}

bool CXListCtrl::GetEnabled(int row) const
{
    return m_rows->model.IsRowEnabled(row);
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
    for (XLISTCTRLDATA & cell : m_rows->model.CellsOf(row))
    {
        cell.textColor = text;
        cell.backgroundColor = background;
    }
    UpdateSubItem(row, -1);
}

void CXListCtrl::SetItemColors(int row, int col, COLORREF text, COLORREF background, COLORREF gradient)
{
    m_rows->model.SetColors(row, col, text, background, gradient);
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

// Check states

bool CXListCtrl::SetCheckbox(int row, int col, int state)
{
    return m_rows->model.SetCheckbox(row, col, state);
}

int CXListCtrl::GetCheckbox(int row, int col) const
{
    return GetItemCheckedState(row, col);
}

int CXListCtrl::GetItemCheckedState(int row, int col) const
{
    return m_rows->model.CheckedState(row, col);
}

void CXListCtrl::SetItemCheckedState(int row, int col, int state)
{
    m_rows->model.SetCheckedState(row, col, state);
}

bool CXListCtrl::SetRadioButton(int row, int col, int state)
{
    return m_rows->model.SetRadioButton(row, col, state);
}

bool CXListCtrl::GetItemRadioOn(int row, int col) const
{
    return GetItemCheckedState(row, col) == XLC_RADIO_ON;
}

int CXListCtrl::GetActiveRadioItem(int col) const
{
    return m_rows->model.ActiveRadio(col);
}

unsigned long long CXListCtrl::CountCheckedItems(int col, int state) const
{
    return m_rows->model.CountChecked(col, state);
}
