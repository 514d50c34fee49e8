#pragma once
// The order and the choice of rows that a table is asked for.

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "list/table/TableSource.h"

struct TableSortColumn
{
    unsigned int column;
    bool descending;

    friend bool operator==(TableSortColumn const &, TableSortColumn const &) = default;
};

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
