#pragma once
// The order of a table's rows by their values.

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "list/table/TableAccess.h"
#include "list/table/TableOrder.h"
#include "list/table/TableRows.h"
#include "list/table/TableSource.h"

/// Puts rows in order by their values in several columns, the first of which decides first. Numbers, times, ticks and
/// progress come by their value, texts and links behind them in their natural order. In both directions not-a-number
/// comes last, behind it only blank cells. Rows that differ in none of the columns stand in the source's order.
///
/// Takes 12 bytes a row, the four of the result among them. False if it was stopped: the rows are then in any order.
bool SortTableRows(TableAccess & access, std::span<TableSortColumn const> columns, TableRows & rows);

/// Compares two rows as SortTableRows does. Keeps what it has read of the first one.
class TableRowCompare
{
public:
    TableRowCompare(TableAccess & access, std::span<TableSortColumn const> columns);
    /// The row that others are compared with.
    void Take(TableRow row);
    /// Whether the row taken comes ahead of that one.
    bool ComesAheadOf(TableRow other);

private:
    TableAccess & m_access;
    std::span<TableSortColumn const> m_columns;
    TableRow m_row = no_table_row;
    std::vector<TableValue> m_values;
    TableValue m_other;
};
