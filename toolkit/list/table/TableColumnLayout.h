#pragma once
// Where the columns of a table stand, how wide they are and which of them are hidden.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "list/table/TableText.h"

/// What is remembered of a column.
struct StoredTableColumn
{
    int place = 0;
    int width = 0;
    bool hidden = false;
};

/// Columns by their numbers as the host has given them; places from left to right, hidden ones among them. The first
/// ones stand still when the others are scrolled. One column at least is shown always.
class TableColumnLayout
{
public:
    static constexpr int least_width = 8;
    static constexpr int greatest_width = 4000;

    /// As the host has described them.
    void Reset(std::vector<TableColumn> const & columns);
    /// As they were remembered; stored(column) gives nothing for one that is not known, which comes behind the one that
    /// it stands behind by the host's order.
    void Restore(std::function<std::optional<StoredTableColumn>(unsigned int column)> const & stored);
    StoredTableColumn Stored(unsigned int column) const;

    unsigned int Count() const { return static_cast<unsigned int>(m_columns.size()); }
    /// Those that are shown, from left to right.
    std::vector<unsigned int> Shown() const;
    /// All of them, from left to right.
    std::vector<unsigned int> const & Order() const { return m_order; }
    bool IsHidden(unsigned int column) const { return column >= Count() || m_columns[column].hidden; }
    /// False if it is the last one shown.
    bool Hide(unsigned int column, bool hidden);
    int Width(unsigned int column) const { return column < Count() ? m_columns[column].width : 0; }
    void SetWidth(unsigned int column, int width);
    /// Puts a column at a place among those shown, counted from 0 without itself.
    void Move(unsigned int column, unsigned int shownPlace);
    /// How many of those shown stand still: as many as wanted, but one is left to be scrolled.
    unsigned int Frozen() const;
    void SetFrozen(unsigned int count) { m_frozen = count; }

private:
    struct Column
    {
        int width = 0;
        bool hidden = false;
    };
    std::vector<Column> m_columns;
    std::vector<unsigned int> m_order;
    unsigned int m_frozen = 0;
};
