#pragma once
// Tells which rows of a table are shown.

#include <string>
#include <vector>

#include "list/table/NaturalOrder.h"
#include "list/table/TableAccess.h"
#include "list/table/TableOrder.h"
#include "list/table/TableRows.h"
#include "list/table/TableText.h"

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
