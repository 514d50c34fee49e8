#pragma once
// A report list without a window: a table of items with texts and a parameter word each, as the native list keeps them,
// and on it the list's operations, put together from the toolkit's row pool, cell record, column fit and decisions.

#include "ListReferenceModel.h"
#include "list/CellKind.h"
#include "list/XListColumnFit.h"
#include "list/XListInput.h"
#include "list/XListRowPool.h"
#include "list/XListSearch.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

class ListStandIn
{
public:
    using Notice = list_reference::Notice;
    static constexpr bool clicks_open_editors = false;

    // --- Columns and rows ---

    int AddColumn(wchar_t const *, int, int width)
    {
        m_columns.push_back({width, XHC_NONE});
        for (Item & item : m_items)
            item.texts.resize(m_columns.size());
        return ColumnCount() - 1;
    }
    void DeleteAllColumns()
    {
        if (m_columns.empty())
            return;
        DeleteAllItems();
        m_columns.clear();
    }
    int InsertForeign(int position, wchar_t const * text)
    {
        Item item;
        item.texts.resize(m_columns.size());
        if (!item.texts.empty())
            item.texts[0] = text;
        m_items.insert(m_items.begin() + position, std::move(item));
        return position;
    }
    int InsertItem(int position, wchar_t const * text, COLORREF color, COLORREF background, void const * ptr,
                   long long data)
    {
        int const row = InsertForeign(position < 0 ? ItemCount() : position, text);
        XLISTCTRLROW * const object = m_pool.Take();
        object->Prepare(static_cast<unsigned>(std::max<std::size_t>(m_columns.size(), 1)));
        At(row).parameter = object;
        XLISTCTRLDATA & first = *FirstCell(row);
        first.textColor = color;
        first.backgroundColor = background;
        first.itemDataPtr = const_cast<void *>(ptr);
        first.itemData64 = data;
        return row;
    }
    int DeleteItem(int row)
    {
        if (row < 0 || row >= ItemCount())
            return 0;
        m_pool.GiveBack(At(row).parameter);
        m_items.erase(m_items.begin() + row);
        return 1;
    }
    void DeleteAllItems()
    {
        m_pool.GiveBackAll();
        m_items.clear();
    }
    void Sort(bool ascending)
    {
        auto const key = [](Item const & item) {
            XLISTCTRLDATA const * const cells = item.parameter != nullptr ? item.parameter->cells() : nullptr;
            return std::tuple(cells == nullptr, cells != nullptr ? cells->itemData64 : 0,
                              cells != nullptr ? reinterpret_cast<std::uintptr_t>(cells->itemDataPtr) : 0);
        };
        std::stable_sort(m_items.begin(), m_items.end(),
                         [&](Item const & a, Item const & b) { return ascending ? key(a) < key(b) : key(b) < key(a); });
    }
    void SetWidth(int column, int width) { m_columns[static_cast<std::size_t>(column)].width = width; }
    int Width(int column) const { return m_columns[static_cast<std::size_t>(column)].width; }
    int Available() const { return 400; }
    int MinimumWidth() const { return 6; }
    void AutosizeColumnWidth(int preferred)
    {
        std::vector<int> widths;
        for (Column const & column : m_columns)
            widths.push_back(column.width);
        if (FitColumns(widths, Available(), MinimumWidth(), preferred, m_fitMemory) == ColumnFit::unchanged)
            return;
        for (std::size_t i = 0; i < widths.size(); ++i)
            m_columns[i].width = widths[i];
    }

    // --- Kinds of cell ---

    bool SetCheckbox(int row, int column, int state)
    {
        XLISTCTRLDATA * const cell = GetRowItemData(row, column);
        if (cell == nullptr || state < XLC_NONE || state > XLC_CROSSED)
            return false;
        cell->MakeCheck(state);
        FollowCells(column);
        return true;
    }
    bool SetRadioButton(int row, int column, int state)
    {
        XLISTCTRLDATA * const cell = GetRowItemData(row, column);
        if (cell == nullptr || (state != XLC_NONE && state != XLC_RADIO_ON && state != XLC_RADIO_OFF))
            return false;
        if (int const active = GetActiveRadioItem(column); state == XLC_RADIO_ON && active >= 0)
            GetRowItemData(active, column)->checkedState = XLC_RADIO_OFF;
        cell->MakeCheck(state);
        return true;
    }
    bool SetEdit(int row, int column, bool on)
    {
        return Change(row, column, [on](XLISTCTRLDATA & cell) { on ? cell.MakeEdit() : cell.MakePlain(); });
    }
    bool SetHyperlink(int row, int column, bool on, bool setColor)
    {
        return Change(row, column, [on, setColor](XLISTCTRLDATA & cell) {
            on ? cell.MakeLink() : cell.MakePlain();
            if (setColor)
                cell.textColor = on ? 0xFF0000 : 0;
        });
    }
    COLORREF BarColor() const { return 0xABCDEF; }
    bool SetProgress(int row, int column, bool text, wchar_t const * format)
    {
        return Change(row, column, [=, this](XLISTCTRLDATA & cell) {
            cell.MakeProgress();
            cell.progressValue = 0;
            cell.progressDisplayValue = 0;
            cell.progressShowText = text;
            cell.progressFormat = format;
            cell.backgroundColor = BarColor();
        });
    }
    void UpdateProgress(int row, int column, int value, int display)
    {
        Change(row, column, [=](XLISTCTRLDATA & cell) {
            cell.progressValue = std::max(value, 0);
            cell.progressDisplayValue = cell.progressFormat.IsEmpty() ? cell.progressValue : display;
        });
    }
    void DeleteProgress(int row, int column)
    {
        Change(row, column, [](XLISTCTRLDATA & cell) {
            cell.MakePlain();
            cell.progressValue = 0;
            cell.progressDisplayValue = 0;
        });
    }
    bool SetComboBox(int row, int column, std::map<int, wchar_t const *> const & strings, int selected, int standard)
    {
        return Change(row, column, [&](XLISTCTRLDATA & cell) {
            cell.comboStrings = strings;
            if (strings.empty())
            {
                cell.MakePlain();
                return;
            }
            cell.MakeCombo();
            cell.comboDefaultId = standard;
            ShowCombo(row, column, cell, selected);
        });
    }
    bool SetComboSelection(int row, int column, int id)
    {
        return GetItemProperty(row, column, XLP_COMBO) &&
               Change(row, column, [&](XLISTCTRLDATA & cell) { ShowCombo(row, column, cell, id); });
    }
    bool SetCustomDraw(int row, int column, std::function<void(int, int, CDC *, CRect const &)> painter)
    {
        return Change(row, column, [&](XLISTCTRLDATA & cell) {
            cell.properties |= XLP_CUSTOMDRAW;
            cell.customDraw = std::move(painter);
        });
    }
    void RemoveCustomDraw(int row, int column)
    {
        Change(row, column, [](XLISTCTRLDATA & cell) {
            cell.properties &= ~XLP_CUSTOMDRAW;
            cell.customDraw = nullptr;
        });
    }

    // --- Properties, words and texts ---

    bool SetItemProperty(int row, int column, unsigned bits, bool on)
    {
        return Change(row, column, [=](XLISTCTRLDATA & cell) {
            cell.properties = on ? cell.properties | bits : cell.properties & ~bits;
        });
    }
    bool SetRowProperty(int row, unsigned bits, bool on)
    {
        for (int column = 0; column < ColumnCount(); ++column)
            SetItemProperty(row, column, bits, on);
        return FirstCell(row) != nullptr;
    }
    bool GetItemProperty(int row, int column, unsigned bits)
    {
        XLISTCTRLDATA const * const cell = GetRowItemData(row, column);
        return cell != nullptr && (cell->properties & bits) != 0;
    }
    bool SetBold(int row, int column, bool on) { return SetItemProperty(row, column, XLP_BOLD, on) || true; }
    void SetModified(int row, int column, bool on) { SetItemProperty(row, column, XLP_MODIFIED, on); }
    bool SetEnabled(int row, int column, bool on) { return SetItemProperty(row, column, XLP_ENABLED, on); }
    bool SetEnabled(int row, bool on) { return SetRowProperty(row, XLP_ENABLED, on); }
    bool GetEnabled(int row)
    {
        for (int column = 0; column < ColumnCount(); ++column)
            if (GetItemProperty(row, column, XLP_ENABLED))
                return true;
        return false;
    }
    bool SetItemData(int row, long long data)
    {
        FirstCell(row)->itemData64 = data;
        return true;
    }
    bool SetItemClavis(int row, int const * key)
    {
        std::copy_n(key, XLISTCTRLDATA::clavis_length, FirstCell(row)->idx8);
        return true;
    }
    bool SetItemIdx8(int row, int const * key)
    {
        std::copy_n(key, XLISTCTRLDATA::key_length, FirstCell(row)->idx8);
        return true;
    }
    void SetItemColors(int row, int column, COLORREF text, COLORREF background, COLORREF gradient)
    {
        Change(row, column, [=](XLISTCTRLDATA & cell) {
            cell.textColor = text;
            cell.backgroundColor = background;
            cell.gradientColor = gradient;
        });
    }
    bool SetItemText(int row, int column, wchar_t const * text)
    {
        return Change(row, column, [&](XLISTCTRLDATA & cell) {
            TextOf(row, column) = text;
            cell.valueType = XLV_TEXT;
        });
    }
    bool SetItemText(int row, int column, int value)
    {
        return Change(row, column, [&](XLISTCTRLDATA & cell) {
            TextOf(row, column) = std::to_wstring(value);
            cell.valueType = XLV_INT;
            cell.intValue = value;
        });
    }
    bool SetItemToolTipText(int row, int column, wchar_t const * text)
    {
        return Change(row, column, [text](XLISTCTRLDATA & cell) { cell.toolTipText = text; });
    }
    void DeleteAllToolTips()
    {
        for (int row = 0; row < ItemCount(); ++row)
            for (int column = 0; column < ColumnCount(); ++column)
                SetItemToolTipText(row, column, L"");
    }
    void SetItemCheckedState(int row, int column, int state)
    {
        Change(row, column, [state](XLISTCTRLDATA & cell) { cell.checkedState = state; });
    }

    // --- Selection and input ---

    bool SetCurSel(int row, bool)
    {
        for (int i = 0; i < ItemCount(); ++i)
            At(i).selected = i == row;
        return true;
    }
    void SetNoSelection()
    {
        if (int const row = GetSelectedItem(); row >= 0)
            At(row).selected = false;
    }
    int GetSelectedItem() const
    {
        for (std::size_t i = 0; i < m_items.size(); ++i)
            if (m_items[i].selected)
                return static_cast<int>(i);
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
        XLISTCTRLDATA & cell = *GetRowItemData(row, column);
        switch (DecidePress(cell))
        {
        case CellPress::ignored:
            return;
        case CellPress::follow_link:
            m_notices.push_back({Notice::What::link, row, column});
            break;
        case CellPress::flip_check:
            Mark(row, column, cell.checkedState == XLC_CHECKED ? XLC_UNCHECKED : XLC_CHECKED);
            FollowCells(column);
            break;
        case CellPress::switch_radio_on:
            if (int const active = GetActiveRadioItem(column); active >= 0)
                Mark(active, column, XLC_RADIO_OFF);
            Mark(row, column, XLC_RADIO_ON);
            break;
        case CellPress::open_combo:
        case CellPress::open_edit:
        case CellPress::select_only:
            break;
        }
        SetCurSel(row, false);
    }
    void OnHeaderColumnClick(int column)
    {
        int & state = m_columns[static_cast<std::size_t>(column)].headerState;
        HeaderPress const press = DecideHeaderPress(state, m_autoCheckbox);
        if (press.changesCells)
        {
            state = press.headerState;
            for (int row = 0; row < ItemCount(); ++row)
                if (int const was = GetItemCheckedState(row, column); was != XLC_NONE && was != press.cellState)
                    Mark(row, column, press.cellState);
        }
        m_notices.push_back({Notice::What::column, press.cellState, column});
    }

    // --- Header and questions ---

    void SetHeaderAutoCheckbox(bool on) { m_autoCheckbox = on; }
    bool SetHeaderCheckedState(int column, int state)
    {
        if (column >= ColumnCount() || state < XHC_NONE || state >= XHC_END)
            return false;
        m_columns[static_cast<std::size_t>(column)].headerState = state;
        return true;
    }
    int GetHeaderCheckedState(int column) const { return m_columns[static_cast<std::size_t>(column)].headerState; }
    int ItemCount() const { return static_cast<int>(m_items.size()); }
    int GetColumnCount() const { return ColumnCount(); }
    bool GetListModified() const { return m_modified; }
    std::wstring Text(int row, int column) { return TextOf(row, column); }
    std::vector<Notice> TakeNotices() { return std::exchange(m_notices, {}); }
    XLISTCTRLDATA * GetRowItemData(int row, int column)
    {
        XLISTCTRLROW * const object = row >= 0 && row < ItemCount() ? At(row).parameter : nullptr;
        bool const reaches = object != nullptr && column >= 0 && column < ColumnCount() &&
                             static_cast<unsigned>(column) < object->capacity();
        return reaches ? object->cells() + column : nullptr;
    }
    int GetItemCheckedState(int row, int column)
    {
        XLISTCTRLDATA const * const cell = GetRowItemData(row, column);
        return cell != nullptr ? cell->checkedState : XLC_NONE;
    }
    unsigned long long CountCheckedItems(int column, int state)
    {
        unsigned long long count = 0;
        for (int row = 0; row < ItemCount(); ++row)
            if (XLISTCTRLDATA const * const cell = GetRowItemData(row, column); cell != nullptr)
                count += CountsAsChecked(cell->checkedState, state) ? 1 : 0;
        return count;
    }
    int GetActiveRadioItem(int column)
    {
        return Find([column](XLISTCTRLROW const & row) {
            return static_cast<unsigned>(column) < row.capacity() && row.cells()[column].checkedState == XLC_RADIO_ON;
        });
    }
    int FindDataItem(long long data)
    {
        return Find(FirstCellOf([data](XLISTCTRLDATA const & cell) { return cell.itemData64 == data; }));
    }
    int FindDataItemPtr(void const * ptr)
    {
        return Find(FirstCellOf([ptr](XLISTCTRLDATA const & cell) { return cell.itemDataPtr == ptr; }));
    }
    int FindDataItemClavis(int const * key)
    {
        return Find(FirstCellOf([key](XLISTCTRLDATA const & cell) { return HasClavis(cell, key); }));
    }
    /// Every row object in an item is one of the pool's, in use, and in no other item.
    bool IsSound(std::size_t used) const
    {
        std::set<XLISTCTRLROW const *> objects;
        std::size_t items = 0;
        for (Item const & item : m_items)
            if (item.parameter != nullptr)
            {
                ++items;
                objects.insert(item.parameter);
            }
        return objects.size() == items && m_pool.used() == items && used == items && m_pool.capacity() >= items;
    }

private:
    struct Item
    {
        std::vector<std::wstring> texts;
        XLISTCTRLROW * parameter = nullptr;
        bool selected = false;
    };
    struct Column
    {
        int width;
        int headerState;
    };

    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    Item & At(int row) { return m_items[static_cast<std::size_t>(row)]; }
    std::wstring & TextOf(int row, int column) { return At(row).texts[static_cast<std::size_t>(column)]; }
    XLISTCTRLDATA * FirstCell(int row)
    {
        XLISTCTRLROW * const object = At(row).parameter;
        return object != nullptr ? object->cells() : nullptr;
    }
    template <class Action> bool Change(int row, int column, Action && action)
    {
        XLISTCTRLDATA * const cell = GetRowItemData(row, column);
        if (cell != nullptr)
            action(*cell);
        return cell != nullptr;
    }
    template <class Matches> int Find(Matches && matches)
    {
        auto const placeOf = [this](XLISTCTRLROW const & row) {
            for (int place = 0; place < ItemCount(); ++place)
                if (At(place).parameter == &row)
                    return place;
            return -1;
        };
        return FindTopmostRow(
            m_pool.InUse(), true, [this] { return ItemCount(); }, matches, placeOf,
            [this](int place) { return At(place).parameter; });
    }
    void ShowCombo(int row, int column, XLISTCTRLDATA & cell, int id)
    {
        auto const found = cell.comboStrings.find(id);
        bool const known = found != cell.comboStrings.end();
        cell.comboCurrentId = known ? id : cell.comboDefaultId;
        TextOf(row, column) = known ? found->second : L"";
    }
    void Mark(int row, int column, int state)
    {
        XLISTCTRLDATA & cell = *GetRowItemData(row, column);
        cell.checkedState = state;
        cell.properties |= XLP_MODIFIED;
        m_modified = true;
        m_notices.push_back({Notice::What::check, row, column});
    }
    void FollowCells(int column)
    {
        int & state = m_columns[static_cast<std::size_t>(column)].headerState;
        if (m_autoCheckbox && HeaderFollowsCells(state))
            state = HeaderStateOfCells(m_items.size(), CountCheckedItems(column, XLC_UNCHECKED),
                                       CountCheckedItems(column, XLC_CHECKED), CountCheckedItems(column, XLC_CROSSED));
    }

    std::vector<Item> m_items;
    std::vector<Column> m_columns;
    CXListRowPool m_pool{16};
    CColumnFitMemory m_fitMemory;
    std::vector<Notice> m_notices;
    bool m_autoCheckbox = false;
    bool m_modified = false;
};
