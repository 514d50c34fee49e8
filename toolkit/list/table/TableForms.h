#pragma once
// In what forms a table's rows leave it, and what becomes of texts that come in.

#include <cstddef>
#include <string>
#include <vector>

#include "list/table/TableFeed.h"
#include "list/table/TableSource.h"

/// What rows are written as.
enum class TableForm
{
    /// As shown, a tab between cells.
    text,
    /// Numbers with all their digits and a point, without unit.
    csv,
    /// A table as shown, in ASCII with entities.
    html
};

/// Why a text was not taken.
enum class TableRefusal
{
    /// The block reaches past the last row.
    no_such_row,
    /// The block reaches past the last column.
    no_such_column,
    /// The column is not editable.
    not_editable,
    /// The text is no value of the column's kind.
    not_readable,
    /// By the column's check, which says why.
    by_check,
    /// By the source, while the values were written; what was written before has gone back.
    by_source
};

/// A text that was not taken.
struct TableRefused
{
    /// In the block, from 0.
    std::size_t line;
    /// In the line, from 0.
    std::size_t field;
    /// Why.
    TableRefusal refusal;
    /// As it came.
    std::wstring text;
    /// What the column's check said.
    std::wstring reason;
};

/// What became of a block that was pasted.
struct TablePasteReport
{
    /// All of it was taken; else nothing.
    bool done = false;
    /// Fields of the block.
    std::size_t cells = 0;
    /// Those of them that were refused.
    std::size_t refusedCells = 0;
    /// So many of these are told one by one.
    static constexpr std::size_t most_told = 100;
    /// The first ones.
    std::vector<TableRefused> refused;
    /// The rows that have other values now.
    std::vector<TableRowRange> rows;
};
