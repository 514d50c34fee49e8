#pragma once
// What a report list of typed cells must do, said as plainly as possible and with nothing of the toolkit's own:
// vectors, numbers and loops. A random walk holds the toolkit's list against it (ListWalk.h).

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

namespace list_reference
{
struct Cell
{
    unsigned properties = 1;
    unsigned valueType = 0;
    int image = -1;
    int number = 0;
    long long data = 0;
    std::uintptr_t pointer = 0;
    std::array<int, 8> key{-1, -1, -1, -1, -1, -1, -1, -1};
    unsigned textColor = 0;
    unsigned background = 0xFFFFFF;
    unsigned gradient = 0xFFFFFF;
    int checked = -1;
    std::vector<int> comboIds;
    bool comboSorted = false;
    int comboVisible = 20;
    int comboDefault = -1;
    int comboCurrent = -1;
    int progress = 0;
    int progressDisplay = 0;
    bool painter = false;
    // What a recycled row keeps.
    std::wstring tip;
    std::wstring progressFormat;
    bool progressText = false;

    void Reset()
    {
        Cell fresh;
        fresh.tip = tip;
        fresh.progressFormat = progressFormat;
        fresh.progressText = progressText;
        *this = fresh;
    }
    bool Enabled() const { return properties % 2 == 1; }
    void Plain(int state)
    {
        properties = properties & 0xFF01u;
        checked = state;
    }
    void Become(unsigned bits)
    {
        properties = bits;
        checked = -1;
    }
};

struct Row
{
    /// Index of the row's cells in Model::stores; -1 for an item that the list did not insert itself.
    int store;
    /// One a column.
    std::vector<std::wstring> texts;
};

struct Notice
{
    enum class What
    {
        check,
        link,
        column
    };
    What what;
    int first; // the row, or the value that a column click reports
    int column;
    auto operator<=>(Notice const &) const = default;
};

struct ComboEntry
{
    int id;
    wchar_t const * text;
};

class Model
{
public:
    std::vector<Row> rows;
    std::vector<int> headerStates; // one a column
    std::vector<Notice> notices;
    std::vector<std::vector<Cell>> stores;
    /// Indexes of stores: first those in use, then those that wait for reuse.
    std::vector<int> order;
    std::size_t used = 0;
    int selected = -1;
    bool autoCheckbox = false;
    bool modified = false;

    int RowCount() const { return static_cast<int>(rows.size()); }
    int ColumnCount() const { return static_cast<int>(headerStates.size()); }

    Cell * Find(int row, int column)
    {
        if (row < 0 || row >= RowCount() || column < 0 || column >= ColumnCount() || At(row).store < 0)
            return nullptr;
        std::vector<Cell> & cells = Cells(row);
        return column < static_cast<int>(cells.size()) ? &cells[static_cast<std::size_t>(column)] : nullptr;
    }
    /// The row's cells, also those behind the last column.
    std::vector<Cell> & Cells(int row) { return stores[static_cast<std::size_t>(At(row).store)]; }
    /// The row's first cell, also in a list without columns.
    Cell * First(int row) { return At(row).store < 0 ? nullptr : Cells(row).data(); }
    Row & At(int row) { return rows[static_cast<std::size_t>(row)]; }
    std::wstring & Text(int row, int column) { return At(row).texts[static_cast<std::size_t>(column)]; }

    // --- Columns and rows ---

    void AddColumn()
    {
        headerStates.push_back(0);
        for (Row & row : rows)
            row.texts.emplace_back();
    }
    void DeleteAllColumns()
    {
        if (headerStates.empty())
            return;
        DeleteAll();
        headerStates.clear();
    }
    int InsertForeign(int position, std::wstring const & text)
    {
        Row row{-1, std::vector<std::wstring>(headerStates.size())};
        if (!row.texts.empty())
            row.texts.front() = text;
        rows.insert(rows.begin() + position, row);
        if (selected >= position)
            ++selected;
        return position;
    }
    int Insert(int position, std::wstring const & text, unsigned color, unsigned background, std::uintptr_t pointer,
               long long data)
    {
        if (position < 0)
            position = RowCount();
        InsertForeign(position, text);
        if (used == order.size())
        {
            order.push_back(static_cast<int>(stores.size()));
            stores.emplace_back();
        }
        At(position).store = order[used++];
        std::vector<Cell> & cells = Cells(position);
        // Also a row of a list without columns has its words.
        std::size_t const needed = std::max<std::size_t>(headerStates.size(), 1);
        if (cells.size() < needed)
            cells = std::vector<Cell>(needed);
        for (Cell & cell : cells)
            cell.Reset();
        cells[0].textColor = color;
        cells[0].background = background;
        cells[0].pointer = pointer;
        cells[0].data = data;
        return position;
    }
    void Delete(int row)
    {
        if (At(row).store >= 0)
        {
            auto const place = std::find(order.begin(), order.end(), At(row).store);
            --used;
            std::swap(*place, order[used]);
        }
        rows.erase(rows.begin() + row);
        if (selected == row)
            selected = -1;
        else if (selected > row)
            --selected;
    }
    void DeleteAll()
    {
        rows.clear();
        used = 0;
        selected = -1;
    }
    /// By data word, then by pointer word; rows without cells stand last.
    void Sort(bool ascending)
    {
        std::vector<std::pair<Row, bool>> marked;
        for (int i = 0; i < RowCount(); ++i)
            marked.emplace_back(At(i), i == selected);
        auto const key = [this](Row const & row) {
            std::vector<Cell> const * const cells =
                row.store < 0 ? nullptr : &stores[static_cast<std::size_t>(row.store)];
            return cells == nullptr ? std::tuple(true, 0LL, std::uintptr_t{0})
                                    : std::tuple(false, (*cells)[0].data, (*cells)[0].pointer);
        };
        std::stable_sort(marked.begin(), marked.end(), [&](auto const & a, auto const & b) {
            return ascending ? key(a.first) < key(b.first) : key(b.first) < key(a.first);
        });
        for (int i = 0; i < RowCount(); ++i)
        {
            At(i) = marked[static_cast<std::size_t>(i)].first;
            if (marked[static_cast<std::size_t>(i)].second)
                selected = i;
        }
    }

    // --- Kinds of cell; each has a cell to work on ---

    void SetCheckbox(int row, int column, int state)
    {
        Find(row, column)->Plain(state);
        FollowCells(column);
    }
    void SetRadioButton(int row, int column, int state)
    {
        if (int const active = ActiveRadio(column); state == 3 && active >= 0)
            Find(active, column)->checked = 4;
        Find(row, column)->Plain(state);
    }
    void SetEdit(int row, int column, bool on)
    {
        if (on)
            Find(row, column)->Become(1 + 2);
        else
            Find(row, column)->Plain(-1);
    }
    void SetHyperlink(int row, int column, bool on, bool setColor)
    {
        Cell & cell = *Find(row, column);
        if (on)
            cell.Become(1 + 4 + 512);
        else
            cell.Plain(-1);
        if (setColor)
            cell.textColor = on ? 0xFF0000 : 0;
    }
    void SetProgress(int row, int column, bool text, std::wstring const & format, unsigned barColor)
    {
        Cell & cell = *Find(row, column);
        cell.Become(1 + 8);
        cell.progress = 0;
        cell.progressDisplay = 0;
        cell.progressText = text;
        cell.progressFormat = format;
        cell.background = barColor;
    }
    void UpdateProgress(int row, int column, int value, int display)
    {
        Cell & cell = *Find(row, column);
        cell.progress = value < 0 ? 0 : value;
        cell.progressDisplay = cell.progressFormat.empty() ? cell.progress : display;
    }
    void DeleteProgress(int row, int column)
    {
        Cell & cell = *Find(row, column);
        cell.Plain(-1);
        cell.progress = 0;
        cell.progressDisplay = 0;
    }
    void SetComboBox(int row, int column, std::vector<ComboEntry> const & entries, int selectedId, int defaultId)
    {
        Cell & cell = *Find(row, column);
        cell.comboIds.clear();
        for (ComboEntry const & entry : entries)
            cell.comboIds.push_back(entry.id);
        if (entries.empty())
        {
            cell.Plain(-1);
            return;
        }
        cell.Become(1 + 16);
        cell.comboDefault = defaultId;
        cell.comboCurrent = defaultId;
        Text(row, column).clear();
        for (ComboEntry const & entry : entries)
        {
            if (entry.id == selectedId)
            {
                cell.comboCurrent = selectedId;
                Text(row, column) = entry.text;
            }
        }
    }
    bool SelectCombo(int row, int column, std::vector<ComboEntry> const & allEntries, int id)
    {
        Cell & cell = *Find(row, column);
        if ((cell.properties & 16u) == 0)
            return false;
        cell.comboCurrent = cell.comboDefault;
        Text(row, column).clear();
        for (ComboEntry const & entry : allEntries)
        {
            if (entry.id == id && std::find(cell.comboIds.begin(), cell.comboIds.end(), id) != cell.comboIds.end())
            {
                cell.comboCurrent = id;
                Text(row, column) = entry.text;
            }
        }
        return true;
    }

    // --- Questions ---

    bool RowEnabled(int row)
    {
        for (int column = 0; column < ColumnCount(); ++column)
        {
            if (Cell const * const cell = Find(row, column); cell != nullptr && cell->Enabled())
                return true;
        }
        return false;
    }
    int ActiveRadio(int column)
    {
        for (int row = 0; row < RowCount(); ++row)
        {
            if (Cell const * const cell = Find(row, column); cell != nullptr && cell->checked == 3)
                return row;
        }
        return -1;
    }
    unsigned long long Count(int column, int state)
    {
        unsigned long long count = 0;
        for (int row = 0; row < RowCount(); ++row)
        {
            if (Cell const * const cell = Find(row, column); cell != nullptr)
            {
                if (state == -1)
                    ++count;
                else if (state < -1 ? cell->checked != -1 : cell->checked == state)
                    ++count;
            }
        }
        return count;
    }
    template <class Predicate> int FindFirst(Predicate && predicate)
    {
        for (int row = 0; row < RowCount(); ++row)
        {
            if (Cell const * const cell = First(row); cell != nullptr && predicate(*cell))
                return row;
        }
        return -1;
    }
    /// Whether a column reaches beyond the cells of some row.
    bool HasShortRow(int column)
    {
        for (int row = 0; row < RowCount(); ++row)
        {
            if (At(row).store >= 0 && Find(row, column) == nullptr)
                return true;
        }
        return false;
    }

    // --- Input ---

    /// A left press on a cell.
    void Press(int row, int column)
    {
        Cell & cell = *Find(row, column);
        if (!cell.Enabled())
            return;
        if ((cell.properties & (16u | 2u)) == 0)
        {
            if ((cell.properties & 4u) != 0)
                notices.push_back({Notice::What::link, row, column});
            else if (cell.checked == 0 || cell.checked == 1)
            {
                Change(row, column, 1 - cell.checked);
                FollowCells(column);
            }
            else if (cell.checked == 4)
            {
                if (int const active = ActiveRadio(column); active >= 0)
                    Change(active, column, 4);
                Change(row, column, 3);
            }
        }
        selected = row;
    }
    void PressHeader(int column)
    {
        int & header = headerStates[static_cast<std::size_t>(column)];
        int report = header;
        if (autoCheckbox && header >= 1 && header <= 3)
        {
            header = header == 2 ? 1 : 2;
            report = header == 2 ? 1 : 0;
            for (int row = 0; row < RowCount(); ++row)
            {
                if (Cell const * const cell = Find(row, column);
                    cell != nullptr && cell->checked != -1 && cell->checked != report)
                    Change(row, column, report);
            }
        }
        notices.push_back({Notice::What::column, report, column});
    }
    /// Down, Page Down, Up or Page Up while a row is selected.
    void Navigate(bool down)
    {
        if (selected != 0)
            return;
        int row = 0;
        for (int tried = 0; tried < RowCount() && !RowEnabled(row); ++tried)
            row = (row + (down ? 1 : RowCount() - 1)) % RowCount();
        selected = row;
    }

private:
    void Change(int row, int column, int state)
    {
        Cell & cell = *Find(row, column);
        cell.checked = state;
        cell.properties |= 1024u;
        modified = true;
        notices.push_back({Notice::What::check, row, column});
    }
    void FollowCells(int column)
    {
        int & header = headerStates[static_cast<std::size_t>(column)];
        if (!autoCheckbox || header < 1 || header > 4)
            return;
        std::size_t const all = rows.size();
        if (Count(column, 0) == all)
            header = 1;
        else if (Count(column, 1) == all)
            header = 2;
        else if (Count(column, 2) == all)
            header = 4;
        else
            header = 3;
    }
};
} // namespace list_reference
