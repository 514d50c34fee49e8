#pragma once
// A random walk over the operations of a report list, held against ListReferenceModel.h after every step:
//
//     List list;                                            // new and empty
//     EXPECT_EQ(list_walk::Run(list, seed, 10000), "");     // what went wrong, with the seed, step and operation
//
// Beside CXListCtrl's own names the list walked has: InsertForeign (an item without a row object), Sort, Press (a left
// press on a cell), Navigate (a navigation key), SetWidth and Width (without padding), Available (room for the
// columns), MinimumWidth, BarColor, ItemCount, Text, TakeNotices, and IsSound (what it knows of its own consistency).

#include <algorithm>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "list/XListCtrlData.h"
#include "ListExpectations.h"
#include "ListReferenceModel.h"

namespace list_walk
{
using list_reference::Cell;
using list_reference::Model;

inline std::vector<list_reference::ComboEntry> const & ComboEntries()
{
    static std::vector<list_reference::ComboEntry> const entries = {{1, L"one"}, {2, L"two"}, {5, L"five"}};
    return entries;
}

template <class List> class Walk
{
public:
    Walk(List & list, unsigned seed) : m_list(list), m_random(seed) {}

    std::string Run(int steps)
    {
        for (int step = 0; step < steps; ++step)
        {
            m_operation = "nothing";
            m_difference.clear();
            Step();
            if (m_difference.empty())
                Compare();
            if (!m_difference.empty())
                return "step " + std::to_string(step) + ", " + m_operation + ": " + m_difference;
        }
        return {};
    }

private:
    static constexpr int most_rows = 18;
    static constexpr int most_columns = 5;

    int Below(int end) { return end <= 0 ? 0 : static_cast<int>(m_random() % static_cast<unsigned>(end)); }
    bool Coin() { return Below(2) == 0; }

    void Check(bool right, char const * what)
    {
        if (!right && m_difference.empty())
            m_difference = what;
    }
    /// what: null if all is right.
    void Check(char const * what) { Check(what == nullptr, what != nullptr ? what : ""); }
    template <class Value> void Same(Value const & ours, Value const & expected, char const * what)
    {
        Check(ours == expected, what);
    }

    void Step()
    {
        int const dice = Below(100);
        if (m_model.ColumnCount() == 0 ? dice < 70 : dice == 0)
            AddColumn();
        else if (dice < 26)
            ChangeRows(dice);
        else if (dice < 32)
            ChangeHeader();
        else if (dice < 36)
            Select();
        else if (dice < 40)
            ChangeWidths();
        else if (m_model.RowCount() != 0 && m_model.ColumnCount() != 0)
            ActOnCell(dice);
    }

    // --- Columns ---

    void AddColumn()
    {
        if (m_model.ColumnCount() == most_columns)
            return;
        m_operation = "AddColumn";
        Same(m_list.AddColumn(L"", 0, 40 + Below(60)), m_model.ColumnCount(), "the new column's index");
        m_model.AddColumn();
    }

    void ChangeHeader()
    {
        int const column = Below(m_model.ColumnCount());
        switch (Below(4))
        {
        case 0: {
            m_operation = "SetHeaderAutoCheckbox";
            bool const on = Below(3) != 0;
            m_list.SetHeaderAutoCheckbox(on);
            m_model.autoCheckbox = on;
            break;
        }
        case 1: {
            m_operation = "SetHeaderCheckedState";
            int const state = Below(3) != 0 ? 1 + Below(4) : Below(9) - 1;
            bool const right = state >= 0 && state < 7 && m_model.ColumnCount() != 0;
            Same(m_list.SetHeaderCheckedState(column, state), right, "the result");
            if (right)
                m_model.headerStates[static_cast<std::size_t>(column)] = state;
            break;
        }
        default:
            if (m_model.ColumnCount() == 0)
                return;
            m_operation = "OnHeaderColumnClick";
            m_list.OnHeaderColumnClick(column);
            m_model.PressHeader(column);
        }
    }

    void ChangeWidths()
    {
        if (m_model.ColumnCount() == 0)
            return;
        if (Coin())
        {
            m_operation = "SetWidth";
            int const column = Below(m_model.ColumnCount());
            int const width = Below(200);
            m_list.SetWidth(column, width);
            Same(m_list.Width(column), width, "the width");
            return;
        }
        m_operation = "AutosizeColumnWidth";
        std::vector<int> const before = Widths();
        int const available = m_list.Available();
        int const minimum = m_list.MinimumWidth();
        int const asked = Below(m_model.ColumnCount() + 3) - 1;
        m_list.AutosizeColumnWidth(asked);
        std::vector<int> const after = Widths();

        Check(FittingIsRight(before, after, available, minimum, asked), "the widths");
    }
    std::vector<int> Widths()
    {
        std::vector<int> widths;
        for (int column = 0; column < m_model.ColumnCount(); ++column)
            widths.push_back(m_list.Width(column));
        return widths;
    }

    // --- Rows ---

    void ChangeRows(int dice)
    {
        if (dice < 15)
            InsertRow();
        else if (dice < 22)
            DeleteRow();
        else if (dice < 24)
        {
            m_operation = "Sort";
            bool const ascending = Coin();
            m_list.Sort(ascending);
            m_model.Sort(ascending);
        }
        else if (Below(15) == 0)
        {
            m_operation = "DeleteAllColumns";
            m_list.DeleteAllColumns();
            m_model.DeleteAllColumns();
        }
        else if (Below(8) == 0)
        {
            m_operation = "DeleteAllItems";
            m_list.DeleteAllItems();
            m_model.DeleteAll();
        }
    }

    void InsertRow()
    {
        if (m_model.RowCount() == most_rows)
            return;
        std::wstring const text = L"row " + std::to_wstring(++m_serial);
        auto const foreign = [](list_reference::Row const & row) { return row.store < 0; };
        // One such item at most: two of them are the same to a sort.
        if (Below(20) == 0 && std::none_of(m_model.rows.begin(), m_model.rows.end(), foreign))
        {
            m_operation = "InsertForeign";
            int const position = Below(m_model.RowCount() + 1);
            Same(m_list.InsertForeign(position, text.c_str()), position, "the index");
            m_model.InsertForeign(position, text);
            return;
        }
        m_operation = "InsertItem";
        int const position = Below(m_model.RowCount() + 2) - 1;
        // Few different words, so that a search can find several; the pointers are all different.
        long long const data = Below(6) - 2LL;
        std::uintptr_t const pointer = static_cast<std::uintptr_t>(m_serial) * 16;
        int const index = m_list.InsertItem(position, text.c_str(), 0x112233, 0x445566,
                                            reinterpret_cast<void const *>(pointer), data);
        Same(index, m_model.Insert(position, text, 0x112233, 0x445566, pointer, data), "the index");
    }

    void DeleteRow()
    {
        m_operation = "DeleteItem";
        int const row = Below(m_model.RowCount() + 2) - 1;
        bool const right = row >= 0 && row < m_model.RowCount();
        Same(m_list.DeleteItem(row) != 0, right, "the result");
        if (right)
            m_model.Delete(row);
    }

    void Select()
    {
        int const row = Below(m_model.RowCount());
        switch (Below(4))
        {
        case 0:
            m_operation = "SetNoSelection";
            m_list.SetNoSelection();
            m_model.selected = -1;
            break;
        case 1:
            if (m_model.RowCount() == 0)
                return;
            m_operation = "SetCurSel";
            // The top row more often than others: navigation keys treat it apart.
            m_model.selected = Coin() ? 0 : row;
            Check(m_list.SetCurSel(m_model.selected, Coin()), "the result");
            break;
        default:
            // Without a selection the native list decides alone.
            if (m_model.selected < 0)
                return;
            m_operation = "Navigate";
            bool const down = Coin();
            m_list.Navigate(down, Coin());
            m_model.Navigate(down);
        }
    }

    // --- Cells ---

    void ActOnCell(int dice)
    {
        int const row = Below(m_model.RowCount());
        int const column = Below(m_model.ColumnCount());
        Cell * const cell = m_model.Find(row, column);
        if (cell == nullptr)
            Miss(row, column);
        else if (dice < 60)
        {
            if (List::clicks_open_editors && cell->Enabled() && (cell->properties & (16u | 2u)) != 0)
                return;
            m_operation = "Press";
            m_list.Press(row, column);
            m_model.Press(row, column);
        }
        else if (dice < 80)
            ChangeKind(row, column);
        else if (dice < 92)
            ChangeProperty(row, column, *cell);
        else if (dice < 99)
            ChangeWords(row, column, *cell);
        else
            Miss(Coin() ? m_model.RowCount() : -1, column);
    }

    /// Operations on a cell that does not exist change nothing and tell so.
    void Miss(int row, int column)
    {
        m_operation = "Miss";
        Check(!m_list.SetCheckbox(row, column, 1), "SetCheckbox without a cell");
        Check(!m_list.SetRadioButton(row, column, 4), "SetRadioButton without a cell");
        Check(!m_list.SetEdit(row, column, true), "SetEdit without a cell");
        Check(!m_list.SetEnabled(row, column, true), "SetEnabled without a cell");
        Check(!m_list.SetItemToolTipText(row, column, L"x"), "SetItemToolTipText without a cell");
        Same(m_list.GetItemCheckedState(row, column), -1, "GetItemCheckedState without a cell");
        m_list.SetItemProperty(row, column, 256, true);
        m_list.UpdateProgress(row, column, 7, 7);
    }

    void ChangeKind(int row, int column)
    {
        switch (Below(12))
        {
        case 0:
        case 1:
        case 2: {
            m_operation = "SetCheckbox";
            int const state = Below(6) - 2;
            bool const right = state >= -1 && state <= 2;
            Same(m_list.SetCheckbox(row, column, state), right, "the result");
            if (right)
                m_model.SetCheckbox(row, column, state);
            break;
        }
        case 3:
        case 4: {
            m_operation = "SetRadioButton";
            int const state = Below(7) - 1;
            bool const right = state == -1 || state == 3 || state == 4;
            Same(m_list.SetRadioButton(row, column, state), right, "the result");
            if (right)
                m_model.SetRadioButton(row, column, state);
            break;
        }
        case 5: {
            m_operation = "SetEdit";
            bool const on = Coin();
            Check(m_list.SetEdit(row, column, on), "the result");
            m_model.SetEdit(row, column, on);
            break;
        }
        case 6: {
            m_operation = "SetHyperlink";
            bool const on = Coin();
            bool const setColor = Coin();
            Check(m_list.SetHyperlink(row, column, on, setColor), "the result");
            m_model.SetHyperlink(row, column, on, setColor);
            break;
        }
        case 7: {
            m_operation = "SetProgress";
            bool const text = Coin();
            wchar_t const * const format = Coin() ? L"%d of 7" : nullptr;
            Check(m_list.SetProgress(row, column, text, format), "the result");
            m_model.SetProgress(row, column, text, format != nullptr ? format : L"",
                                static_cast<unsigned>(m_list.BarColor()));
            break;
        }
        case 8: {
            m_operation = "UpdateProgress";
            int const value = Below(200) - 20;
            m_list.UpdateProgress(row, column, value, 5);
            m_model.UpdateProgress(row, column, value, 5);
            break;
        }
        case 9:
            m_operation = "DeleteProgress";
            m_list.DeleteProgress(row, column);
            m_model.DeleteProgress(row, column);
            break;
        case 10: {
            m_operation = "SetComboBox";
            std::vector<list_reference::ComboEntry> const entries =
                Below(4) == 0 ? std::vector<list_reference::ComboEntry>() : ComboEntries();
            std::map<int, wchar_t const *> strings;
            for (list_reference::ComboEntry const & entry : entries)
                strings.emplace(entry.id, entry.text);
            int const selected = Below(7);
            Check(m_list.SetComboBox(row, column, strings, selected, 2), "the result");
            m_model.SetComboBox(row, column, entries, selected, 2);
            break;
        }
        default: {
            m_operation = "SetComboSelection";
            int const id = Below(7);
            Same(m_list.SetComboSelection(row, column, id), m_model.SelectCombo(row, column, ComboEntries(), id),
                 "the result");
        }
        }
    }

    void ChangeProperty(int row, int column, Cell & cell)
    {
        bool const on = Coin();
        auto const set = [on](unsigned & bits, unsigned which) { bits = on ? bits | which : bits & ~which; };
        switch (Below(7))
        {
        case 0:
            m_operation = "SetEnabled of a cell";
            Check(m_list.SetEnabled(row, column, on), "the result");
            set(cell.properties, 1);
            break;
        case 1:
            m_operation = "SetEnabled of a row";
            Check(m_list.SetEnabled(row, on), "the result");
            for (int i = 0; Cell * const each = m_model.Find(row, i); ++i)
                set(each->properties, 1);
            break;
        case 2:
            m_operation = "SetBold";
            Check(m_list.SetBold(row, column, on), "the result");
            set(cell.properties, 256);
            break;
        case 3:
            m_operation = "SetModified";
            m_list.SetModified(row, column, on);
            set(cell.properties, 1024);
            break;
        case 4: {
            m_operation = "SetItemProperty";
            unsigned const bits = Coin() ? 2048 : 4096;
            m_list.SetItemProperty(row, column, bits, on);
            set(cell.properties, bits);
            break;
        }
        case 5:
            m_operation = "SetRowProperty";
            m_list.SetRowProperty(row, 512, on);
            for (int i = 0; Cell * const each = m_model.Find(row, i); ++i)
                set(each->properties, 512);
            break;
        default:
            m_operation = on ? "SetCustomDraw" : "RemoveCustomDraw";
            if (on)
                Check(m_list.SetCustomDraw(row, column, [](int, int, CDC *, CRect const &) {}), "the result");
            else
                m_list.RemoveCustomDraw(row, column);
            set(cell.properties, 32);
            cell.painter = on;
        }
    }

    void ChangeWords(int row, int column, Cell & cell)
    {
        Cell & first = *m_model.First(row);
        switch (Below(8))
        {
        case 0: {
            m_operation = "SetItemData";
            long long const data = Below(6) - 2LL;
            Check(m_list.SetItemData(row, data), "the result");
            first.data = data;
            break;
        }
        case 1: {
            m_operation = "SetItemClavis";
            int const key[] = {Below(2), Below(2), 0, 0, 0, Below(2)};
            Check(m_list.SetItemClavis(row, key), "the result");
            std::copy(std::begin(key), std::end(key), first.key.begin());
            break;
        }
        case 2: {
            m_operation = "SetItemIdx8";
            int const key[] = {Below(2), Below(2), 0, 0, 0, Below(2), 8, 9};
            Check(m_list.SetItemIdx8(row, key), "the result");
            std::copy(std::begin(key), std::end(key), first.key.begin());
            break;
        }
        case 3:
            m_operation = "SetItemColors";
            m_list.SetItemColors(row, column, 1, 2, 3);
            cell.textColor = 1;
            cell.background = 2;
            cell.gradient = 3;
            break;
        case 4: {
            m_operation = "SetItemText";
            std::wstring const text = L"text " + std::to_wstring(Below(1000));
            Check(m_list.SetItemText(row, column, text.c_str()), "the result");
            m_model.Text(row, column) = text;
            cell.valueType = 0;
            break;
        }
        case 5: {
            m_operation = "SetItemText with a number";
            int const value = Below(2000) - 1000;
            Check(m_list.SetItemText(row, column, value), "the result");
            m_model.Text(row, column) = std::to_wstring(value);
            cell.valueType = 1;
            cell.number = value;
            break;
        }
        case 6: {
            m_operation = "SetItemToolTipText";
            std::wstring const tip = L"tip " + std::to_wstring(Below(1000));
            Check(m_list.SetItemToolTipText(row, column, tip.c_str()), "the result");
            cell.tip = tip;
            break;
        }
        default:
            if (Below(10) == 0)
            {
                m_operation = "DeleteAllToolTips";
                m_list.DeleteAllToolTips();
                for (int i = 0; i < m_model.RowCount(); ++i)
                {
                    for (int j = 0; Cell * const each = m_model.Find(i, j); ++j)
                        each->tip.clear();
                }
                break;
            }
            m_operation = "SetItemCheckedState";
            int const state = Below(7) - 1;
            m_list.SetItemCheckedState(row, column, state);
            cell.checked = state;
        }
    }

    // --- Comparison ---

    void Compare()
    {
        Same(m_list.ItemCount(), m_model.RowCount(), "the number of rows");
        Same(m_list.GetColumnCount(), m_model.ColumnCount(), "the number of columns");
        Same(m_list.GetSelectedItem(), m_model.selected, "the selected row");
        Same(m_list.GetListModified(), m_model.modified, "whether the list is modified");
        Same(m_list.TakeNotices(), m_model.notices, "the notifications");
        m_model.notices.clear();
        Check(m_list.IsSound(m_model.used), "the list's own consistency");
        if (!m_difference.empty())
            return;
        for (int column = 0; column < m_model.ColumnCount(); ++column)
        {
            Same(m_list.GetHeaderCheckedState(column), m_model.headerStates[static_cast<std::size_t>(column)],
                 "the header's state");
        }
        if (m_model.ColumnCount() != 0)
            CompareColumn(Below(m_model.ColumnCount()));
        for (int row = 0; row < m_model.RowCount(); ++row)
            CompareRow(row);
        CompareSearches();
    }

    void CompareColumn(int column)
    {
        Same(m_list.GetActiveRadioItem(column), m_model.ActiveRadio(column), "the active radio row");
        // Whether a cell that a short row lacks counts as one without a mark is left open.
        for (int state = m_model.HasShortRow(column) ? 0 : -2; state <= 4; ++state)
            Same(m_list.CountCheckedItems(column, state), m_model.Count(column, state), "the count of checked rows");
    }

    void CompareRow(int row)
    {
        Same(m_list.GetEnabled(row), m_model.RowEnabled(row), "whether the row is enabled");
        for (int column = 0; column < m_model.ColumnCount() && m_difference.empty(); ++column)
        {
            Same(m_list.Text(row, column), m_model.Text(row, column), "a text");
            XLISTCTRLDATA const * const ours = m_list.GetRowItemData(row, column);
            Cell const * const expected = m_model.Find(row, column);
            Same(ours != nullptr, expected != nullptr, "whether there is a cell");
            if (ours != nullptr && expected != nullptr)
                Check(DifferentField(*ours, *expected));
        }
    }

    void CompareSearches()
    {
        long long const data = Below(7) - 2LL;
        Same(m_list.FindDataItem(data), m_model.FindFirst([&](Cell const & cell) { return cell.data == data; }),
             "FindDataItem");
        std::uintptr_t const pointer = static_cast<std::uintptr_t>(Below(m_serial + 2)) * 16;
        Same(m_list.FindDataItemPtr(reinterpret_cast<void const *>(pointer)),
             m_model.FindFirst([&](Cell const & cell) { return cell.pointer == pointer; }), "FindDataItemPtr");
        int const key[] = {Below(2), Below(2), 0, 0, 0, Below(2)};
        Same(m_list.FindDataItemClavis(key), m_model.FindFirst([&](Cell const & cell) {
            return std::equal(std::begin(key), std::end(key), cell.key.begin());
        }),
             "FindDataItemClavis");
    }

    List & m_list;
    Model m_model;
    std::mt19937 m_random;
    int m_serial = 0;
    char const * m_operation = "";
    std::string m_difference;
};

/// Walks that many steps on a new, empty list; empty if all went right.
template <class List> std::string Run(List & list, unsigned seed, int steps)
{
    std::string const difference = Walk<List>(list, seed).Run(steps);
    return difference.empty() ? difference : "seed " + std::to_string(seed) + ", " + difference;
}
} // namespace list_walk
