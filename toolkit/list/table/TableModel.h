#pragma once
// The rows of a table as they are shown: their order, their choice, and what is selected. Knows no window.

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "list/table/TableFeed.h"
#include "list/table/TableFilter.h"
#include "list/table/TableKeySet.h"
#include "list/table/TableRows.h"
#include "list/table/TableSort.h"

/// The work of finding an order. Runs on any thread; its result is taken on the model's.
class TableOrderTask
{
public:
    /// Ends by itself where it is stopped, or the source has ended.
    void Run();
    TableProgress & Progress() { return m_progress; }
    /// Whether Run has come to its end, in whatever way.
    bool Finished() const { return m_finished.load(std::memory_order_acquire); }

private:
    friend class TableModel;

    TableProgress m_progress;
    std::weak_ptr<TableSource const> m_source;
    std::vector<TableSortColumn> m_sort;
    std::shared_ptr<TableFilter const> m_filter;
    std::shared_ptr<TableLooks const> m_looks;
    TableRow m_count = 0;
    /// Of the order that was wanted when it began.
    unsigned int m_wish = 0;
    TableRows m_rows;
    bool m_succeeded = false;
    std::atomic<bool> m_finished{false};
};

/// What a change of rows means for what is seen.
struct TableEffect
{
    bool sizeChanged = false;
    /// Any position may show another row.
    bool allMoved = false;
    /// Any value may be another one.
    bool allValues = false;
    /// Rows of the source whose values may be others.
    std::vector<TableRowRange> rows;

    bool IsEmpty() const { return !sizeChanged && !allMoved && !allValues && rows.empty(); }
};

/// A position is a row's place as shown, from 0.
class TableModel
{
public:
    /// Beyond so many rows an order is found beside the window.
    static constexpr TableRow most_rows_at_once = 50000;
    static constexpr TableRow nowhere = no_table_row;

    TableModel();

    /// Everything selected is forgotten. The order and choice of rows stay as they were wished.
    void SetSource(std::shared_ptr<TableSource> const & source);
    /// Null once it has ended.
    std::shared_ptr<TableSource> Source() const { return m_source.lock(); }
    void SetLooks(TableLooks looks);
    TableLooks const & Looks() const { return *m_looks; }
    std::shared_ptr<TableLooks const> SharedLooks() const { return m_looks; }

    // Order and choice. What is shown stays until the new order is there: FindOrder, or a task.

    void SetSort(std::vector<TableSortColumn> sort);
    std::vector<TableSortColumn> const & Sort() const { return m_sort; }
    void SetFilter(TableFilter filter);
    TableFilter const & Filter() const { return *m_filter; }
    /// What a click on a title does: sorts by that column, or turns its direction. With add it becomes the last of the
    /// columns sorted by, or turns, where it is one of them.
    void ClickTitle(unsigned int column, bool add);
    /// Whether what is shown is not in the order wished for.
    bool NeedsOrder() const { return m_needsOrder; }
    /// Whether finding it shall be left to a task.
    bool OrderTakesLong() const;
    TableEffect FindOrder();
    /// The work of finding the order wished for now.
    std::shared_ptr<TableOrderTask> BeginOrder();
    /// Shows what a finished task has found, and what has changed since it began. Nothing if it was stopped, or another
    /// order is wished for by now.
    TableEffect TakeOrder(TableOrderTask & task);

    // Rows.

    /// Positions.
    TableRow Size() const { return m_explicit ? static_cast<TableRow>(m_rows.size()) : m_count; }
    TableRow RowAt(TableRow position) const;
    /// Nowhere, if the row is not shown. Looks through all rows where they are sorted or chosen.
    TableRow PositionOf(TableRow row) const;
    /// False, and a blank value, where there is no such cell or the source has nothing to say.
    bool Read(TableRow position, unsigned int column, TableValue & value) const
    {
        return ReadRow(RowAt(position), column, value);
    }
    /// The same by the source's row.
    bool ReadRow(TableRow row, unsigned int column, TableValue & value) const;
    std::wstring Text(TableRow position, unsigned int column) const;
    /// The first position from there on, and on from the first one, whose cell begins with the text.
    TableRow FindTyped(unsigned int column, std::wstring_view text, TableRow from) const;

    // Changes.

    /// Follows what was told. With many rows in order, those that changed are put into their places later, where place
    /// is false, and all at once.
    TableEffect Apply(TableChanges const & changes, bool place = true);
    /// Whether rows wait for their places.
    bool RowsWait() const { return !m_waiting.empty(); }

    // What is selected, by keys: it stays with its rows, also while these are not shown.

    bool IsSelected(TableRow position) const;
    void Select(TableRow position, bool selected);
    /// From one position to the other, both included, beside what is selected.
    void SelectRange(TableRow from, TableRow to);
    void SelectAll();
    void ClearSelection() { m_selected.Clear(); }
    std::uint64_t SelectedKeys() const { return m_selected.Count(); }
    /// The selected ones among the rows shown, in their order.
    std::vector<TableRow> SelectedPositions() const;
    /// The first one selected from there on, or nowhere.
    TableRow NextSelected(TableRow from) const;

    void SetFocus(TableRow position);
    /// Looks through the rows only where that row has moved.
    TableRow FocusPosition() const;
    /// The source's row with the focus, shown or not; no_table_row if none has it.
    TableRow FocusRow() const;
    bool IsRowSelected(TableRow row) const;
    /// Where a selection with the shift key begins.
    void SetAnchor(TableRow position);
    TableRow AnchorPosition() const { return PositionOfKey(m_anchor); }

    /// What rows take beside the source.
    std::size_t Bytes() const { return m_rows.capacity() * sizeof(TableRow) + m_selected.Bytes(); }

private:
    void Wish();
    TableRow CountNow() const;
    void DropRowsFrom(TableRow count);
    void Place(std::vector<TableRowRange> changed, TableRow firstNew, TableRow endNew);
    TableRow PositionOfKey(std::optional<TableKey> const & key) const;
    std::optional<TableKey> KeyAt(TableRow position) const;

    std::weak_ptr<TableSource> m_source;
    std::shared_ptr<TableLooks const> m_looks;
    std::vector<TableSortColumn> m_sort;
    std::shared_ptr<TableFilter const> m_filter;
    // What is shown: all rows as they are, or these, put in order by those columns.
    TableRow m_count = 0;
    bool m_explicit = false;
    TableRows m_rows;
    std::vector<TableSortColumn> m_shownSort;
    std::shared_ptr<TableFilter const> m_shownFilter;
    std::shared_ptr<TableLooks const> m_shownLooks;
    unsigned int m_wish = 0;
    bool m_needsOrder = false;
    /// While a task runs, what has changed since it began.
    std::weak_ptr<TableOrderTask> m_task;
    std::vector<TableRowRange> m_changedSince;
    bool m_allChangedSince = false;
    /// Changed rows that are not in their places.
    std::vector<TableRowRange> m_waiting;
    TableKeySet m_selected;
    std::optional<TableKey> m_focus;
    /// Where it was last.
    mutable TableRow m_focusPlace = nowhere;
    std::optional<TableKey> m_anchor;
};
