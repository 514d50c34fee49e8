#pragma once
// The order and the choice of rows that a table is asked for.

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "list/table/TableSource.h"

/// A column that rows are sorted by.
struct TableSortColumn
{
    /// As the host counts them.
    unsigned int column;
    /// The greatest value first.
    bool descending;

    friend bool operator==(TableSortColumn const &, TableSortColumn const &) = default;
};

/// What a row must fulfil to be shown: all that is said here.
struct TableFilter
{
    /// Stands for each of the columns.
    static constexpr unsigned int any_column = 0xFFFFFFFF;

    /// A text that the row shows.
    struct TextPart
    {
        /// Or any_column.
        unsigned int column = any_column;
        /// Is somewhere in what the cell shows.
        std::wstring text;
        /// Capitals and small letters differ.
        bool matchCase = false;
    };
    /// A range that a value of the row lies in.
    struct RangePart
    {
        /// As the host counts them.
        unsigned int column = 0;
        /// Both belong to the range. A time counts in microseconds; texts, blank cells and not-a-number are in no
        /// range.
        double least = -std::numeric_limits<double>::infinity();
        double greatest = std::numeric_limits<double>::infinity();
    };

    /// All these texts are shown.
    std::vector<TextPart> texts;
    /// All these ranges are kept.
    std::vector<RangePart> ranges;
    /// The host's own; called on any thread.
    std::function<bool(TableSource const & source, TableRow row)> predicate;

    /// Whether every row fulfils it.
    bool IsEmpty() const { return texts.empty() && ranges.empty() && !predicate; }
};
