#pragma once
// In what forms a table's rows leave it, and what becomes of texts that come in.

#include <cstddef>
#include <string>
#include <vector>

#include "list/table/TableFeed.h"
#include "list/table/TableSource.h"

enum class TableForm
{
    /// As shown, a tab between cells.
    text,
    /// Numbers with all their digits and a point, without unit.
    csv,
    /// A table as shown, in ASCII with entities.
    html
};

enum class TableRefusal
{
    noSuchRow,
    noSuchColumn,
    notEditable,
    /// The text is no value of the column's kind.
    notReadable,
    /// By the column's check, which says why.
    byCheck,
    bySource
};

/// A text that was not taken.
struct TableRefused
{
    std::size_t line;
    std::size_t field;
    TableRefusal refusal;
    std::wstring text;
    /// What the column's check said.
    std::wstring reason;
};

struct TablePasteReport
{
    bool done = false;
    std::size_t cells = 0;
    std::size_t refusedCells = 0;
    /// The first ones.
    static constexpr std::size_t most_told = 100;
    std::vector<TableRefused> refused;
    /// The rows that have other values now.
    std::vector<TableRowRange> rows;
};
