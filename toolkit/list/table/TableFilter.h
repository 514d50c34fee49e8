#pragma once
// Which rows of a table are shown.

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "list/table/NaturalOrder.h"
#include "list/table/TableAccess.h"
#include "list/table/TableRows.h"
#include "list/table/TableText.h"

/// What a row must fulfil to be shown: all that is said here.
struct TableFilter
{
    static constexpr unsigned int any_column = 0xFFFFFFFF;

    struct TextPart
    {
        /// Or any_column.
        unsigned int column = any_column;
        /// Is somewhere in what the cell shows.
        std::wstring text;
        bool matchCase = false;
    };
    struct RangePart
    {
        unsigned int column = 0;
        /// Both belong to the range. A time counts in microseconds; texts, blank cells and not-a-number are in no
        /// range.
        double least = -std::numeric_limits<double>::infinity();
        double greatest = std::numeric_limits<double>::infinity();
    };

    std::vector<TextPart> texts;
    std::vector<RangePart> ranges;
    /// The host's own; called on any thread.
    std::function<bool(TableSource const & source, TableRow row)> predicate;

    bool IsEmpty() const { return texts.empty() && ranges.empty() && !predicate; }
};

/// How a table shows its values: never changed once it is shared with work on other threads.
struct TableLooks
{
    std::vector<TableColumn> columns;
    TableLocale locale;
};

/// Tells which rows pass a filter.
class TableRowFilter
{
public:
    TableRowFilter(TableFilter const & filter, TableLooks const & looks);
    /// Whether the row passes; not, where the source is to be asked no more.
    bool Passes(TableAccess & access, TableRow row);

private:
    bool Shows(TableAccess & access, TableRow row, unsigned int column, TextSearch const & search);

    TableFilter const & m_filter;
    TableLooks const & m_looks;
    std::vector<TextSearch> m_searches;
    TableValue m_value;
    std::wstring m_text;
};

/// Appends those of the rows from begin to end that pass. False if it was stopped.
bool FilterTableRows(TableAccess & access, TableRowFilter & filter, TableRow begin, TableRow end, TableRows & rows);
