#pragma once
// The toolkit's list model on a native list without a window.

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "list/ListModel.h"
#include "list/XListColumnFit.h"
#include "list_ItemTable.h"
#include "ListReferenceModel.h"

/// What the random walk calls, handed on to the model.
class ListStandIn
{
public:
    using Notice = list_reference::Notice;
    static constexpr bool clicks_open_editors = false;

    ListStandIn() { m_native.memory = &m_model.memory; }

    // --- Columns and rows ---

    int AddColumn(wchar_t const *, int, int width)
    {
        m_native.columns.push_back({width, XHC_NONE});
        for (ItemTable::Item & item : m_native.items)
            item.texts.resize(m_native.columns.size());
        return GetColumnCount() - 1;
    }
    void DeleteAllColumns()
    {
        if (m_native.columns.empty())
            return;
        DeleteAllItems();
        m_native.columns.clear();
    }
    int InsertForeign(int position, wchar_t const * text) { return m_native.Insert(position, text, nullptr); }
    int InsertItem(int position, wchar_t const * text, COLORREF color, COLORREF background, void const * ptr,
                   long long data)
    {
        return m_model.InsertRow({color, background, -1, ptr, data}, [&](XLISTCTRLROW & object) {
            return m_native.Insert(position < 0 ? ItemCount() : position, text, &object);
        });
    }
    int DeleteItem(int row) { return m_model.DeleteRow(row); }
    void DeleteAllItems() { m_model.DeleteAllRows(); }
    void Sort(bool ascending)
    {
        auto const key = [](ItemTable::Item const & item) {
            XLISTCTRLDATA const * const cells = item.parameter != nullptr ? item.parameter->cells() : nullptr;
            return std::tuple(cells == nullptr, cells != nullptr ? cells->itemData64 : 0,
                              cells != nullptr ? reinterpret_cast<std::uintptr_t>(cells->itemDataPtr) : 0);
        };
        m_native.Change([&] {
            std::stable_sort(m_native.items.begin(), m_native.items.end(),
                             [&](ItemTable::Item const & a, ItemTable::Item const & b) {
                                 return ascending ? key(a) < key(b) : key(b) < key(a);
                             });
        });
    }
    void SetWidth(int column, int width) { m_native.columns[static_cast<std::size_t>(column)].width = width; }
    int Width(int column) const { return m_native.columns[static_cast<std::size_t>(column)].width; }
    int Available() const { return 400; }
    int MinimumWidth() const { return 6; }
    void AutosizeColumnWidth(int preferred)
    {
        std::vector<int> widths;
        for (ItemTable::Column const & column : m_native.columns)
            widths.push_back(column.width);
        if (FitColumns(widths, Available(), MinimumWidth(), preferred, m_fitMemory) == ColumnFit::unchanged)
            return;
        for (std::size_t i = 0; i < widths.size(); ++i)
            m_native.columns[i].width = widths[i];
    }

    // --- Cells ---

    bool SetCheckbox(int row, int column, int state) { return m_model.SetCheckbox(row, column, state); }
    bool SetRadioButton(int row, int column, int state) { return m_model.SetRadioButton(row, column, state); }
    bool SetEdit(int row, int column, bool on) { return m_model.SetEdit(row, column, on); }
    bool SetHyperlink(int row, int column, bool on, bool setColor)
    {
        return m_model.SetHyperlink(row, column, on, setColor);
    }
    COLORREF BarColor() const { return 0xABCDEF; }
    bool SetProgress(int row, int column, bool text, wchar_t const * format)
    {
        return m_model.SetProgress(row, column, text, format, BarColor());
    }
    void UpdateProgress(int row, int column, int value, int display)
    {
        m_model.UpdateProgress(row, column, value, display);
    }
    void DeleteProgress(int row, int column) { m_model.DeleteProgress(row, column); }
    bool SetComboBox(int row, int column, std::map<int, wchar_t const *> const & strings, int selected, int standard)
    {
        XLISTCTRLDATA * const cell = m_model.Cell(row, column);
        if (cell == nullptr)
            return false;
        cell->comboStrings = strings;
        return m_model.InitializeCombo(row, column, selected, standard);
    }
    bool SetComboSelection(int row, int column, int id) { return m_model.SelectCombo(row, column, id); }
    bool SetCustomDraw(int row, int column, std::function<void(int, int, CDC *, CRect const &)> painter)
    {
        return m_model.SetCustomDraw(row, column, std::move(painter));
    }
    void RemoveCustomDraw(int row, int column) { m_model.RemoveCustomDraw(row, column); }
    void SetItemProperty(int row, int column, unsigned bits, bool on) { m_model.SetProperty(row, column, bits, on); }
    bool GetItemProperty(int row, int column, unsigned bits) const { return m_model.HasProperty(row, column, bits); }
    void SetRowProperty(int row, unsigned bits, bool on) { m_model.SetRowProperty(row, bits, on); }
    bool SetBold(int row, int column, bool on) { return m_model.SetProperty(row, column, XLP_BOLD, on); }
    void SetModified(int row, int column, bool on) { m_model.SetProperty(row, column, XLP_MODIFIED, on); }
    bool SetEnabled(int row, int column, bool on) { return m_model.SetProperty(row, column, XLP_ENABLED, on); }
    bool SetEnabled(int row, bool on) { return m_model.SetRowEnabled(row, on); }
    bool GetEnabled(int row) const { return m_model.IsRowEnabled(row); }
    bool SetItemData(int row, long long data)
    {
        m_model.FirstCell(row)->itemData64 = data;
        return true;
    }
    bool SetItemClavis(int row, int const * key)
    {
        std::copy_n(key, XLISTCTRLDATA::clavis_length, m_model.FirstCell(row)->idx8);
        return true;
    }
    bool SetItemIdx8(int row, int const * key)
    {
        std::copy_n(key, XLISTCTRLDATA::key_length, m_model.FirstCell(row)->idx8);
        return true;
    }
    void SetItemColors(int row, int column, COLORREF text, COLORREF background, COLORREF gradient)
    {
        m_model.SetColors(row, column, text, background, gradient);
    }
    bool SetItemText(int row, int column, wchar_t const * text) { return m_model.SetText(row, column, text); }
    bool SetItemText(int row, int column, int value)
    {
        return m_model.SetInteger(row, column, value, std::to_wstring(value).c_str());
    }
    bool SetItemToolTipText(int row, int column, wchar_t const * text)
    {
        return m_model.ChangeCell(row, column, [text](XLISTCTRLDATA & cell) { cell.toolTipText = text; });
    }
    void DeleteAllToolTips() { m_model.DeleteAllToolTips(); }
    void SetItemCheckedState(int row, int column, int state) { m_model.SetCheckedState(row, column, state); }

    // --- Selection and input ---

    bool SetCurSel(int row, bool)
    {
        int place = 0;
        for (ItemTable::Item & item : m_native.items)
            item.selected = place++ == row;
        return true;
    }
    void SetNoSelection()
    {
        if (int const row = GetSelectedItem(); row >= 0)
            m_native.items[static_cast<std::size_t>(row)].selected = false;
    }
    int GetSelectedItem() const
    {
        for (std::size_t i = 0; i < m_native.items.size(); ++i)
        {
            if (m_native.items[i].selected)
                return static_cast<int>(i);
        }
        return -1;
    }
    void Navigate(bool down, bool)
    {
        int const row =
            RowAfterNavigationKey(GetSelectedItem(), ItemCount(), down, [this](int i) { return GetEnabled(i); });
        SetCurSel(row, true);
    }
    void Press(int row, int column)
    {
        ListModel::HeldRow held(m_model, row);
        if (DecidePress(*held.Cell(column)) == CellPress::ignored)
            return;
        if (m_model.PressCell(held, column) == CellPress::follow_link)
            m_native.notices.push_back({Notice::What::link, row, column});
        SetCurSel(row, false);
    }
    void OnHeaderColumnClick(int column)
    {
        int const reported = m_model.PressHeader(column);
        m_native.notices.push_back({Notice::What::column, reported, column});
    }

    // --- Header and questions ---

    void SetHeaderAutoCheckbox(bool on) { m_native.headersFollow = on; }
    bool SetHeaderCheckedState(int column, int state) { return m_native.SetHeaderState(column, state); }
    int GetHeaderCheckedState(int column) const { return m_native.HeaderState(column); }
    int ItemCount() const { return m_native.RowCount(); }
    int GetColumnCount() const { return m_native.ColumnCount(); }
    bool GetListModified() const { return m_native.modified; }
    std::wstring Text(int row, int column) const
    {
        return m_native.items[static_cast<std::size_t>(row)].texts[static_cast<std::size_t>(column)];
    }
    std::vector<Notice> TakeNotices() { return std::exchange(m_native.notices, {}); }
    XLISTCTRLDATA * GetRowItemData(int row, int column) { return m_model.Cell(row, column); }
    int GetItemCheckedState(int row, int column) const { return m_model.CheckedState(row, column); }
    unsigned long long CountCheckedItems(int column, int state) const { return m_model.CountChecked(column, state); }
    int GetActiveRadioItem(int column) const { return m_model.ActiveRadio(column); }
    int FindDataItem(long long data) const
    {
        return m_model.FindTopmost(FirstCellOf([data](XLISTCTRLDATA const & cell) { return cell.itemData64 == data; }));
    }
    int FindDataItemPtr(void const * ptr) const
    {
        return m_model.FindTopmost(FirstCellOf([ptr](XLISTCTRLDATA const & cell) { return cell.itemDataPtr == ptr; }));
    }
    int FindDataItemClavis(int const * key) const
    {
        return m_model.FindTopmost(FirstCellOf([key](XLISTCTRLDATA const & cell) { return HasClavis(cell, key); }));
    }
    /// Every row object in an item is one of the pool's, in use, and in no other item.
    bool IsSound(std::size_t used) const
    {
        std::set<XLISTCTRLROW const *> objects;
        std::size_t items = 0;
        for (ItemTable::Item const & item : m_native.items)
        {
            if (item.parameter != nullptr)
            {
                ++items;
                objects.insert(item.parameter);
            }
        }
        CXListRowPool const & pool = m_model.pool;
        return objects.size() == items && pool.used() == items && used == items && pool.capacity() >= items;
    }

private:
    ItemTable m_native;
    ListModel m_model{m_native};
    CColumnFitMemory m_fitMemory;
};
