#pragma once
// A table's rows as text for the clipboard and for files, and texts put into its cells.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "list/table/CsvText.h"
#include "list/table/TableAccess.h"
#include "list/table/TableForms.h"
#include "list/table/TableModel.h"
#include "list/table/TableText.h"

/// Writes rows one after the other.
class TableWriter
{
public:
    /// columns: in the order in which they are written.
    TableWriter(TableForm form, std::shared_ptr<TableLooks const> looks, std::vector<unsigned int> columns,
                wchar_t csvSeparator = L',');
    /// Ahead of the rows: what begins the table, and the titles if they are wanted.
    void AppendBegin(std::wstring & text, bool titles) const;
    /// False if the work is to be stopped.
    bool AppendRow(std::wstring & text, TableAccess & access, TableRow row);
    void AppendEnd(std::wstring & text) const;

private:
    void AppendCell(std::wstring & text, std::wstring_view cell, std::size_t column, bool title) const;

    TableForm m_form;
    std::shared_ptr<TableLooks const> m_looks;
    std::vector<unsigned int> m_columns;
    wchar_t m_separator;
    TableValue m_value;
    std::wstring m_cell;
};

/// Writes these rows in pieces of some ten thousand characters; take(piece) may refuse one, which ends it. False if it
/// was refused or stopped.
bool WriteTable(TableWriter & writer, TableAccess & access, std::vector<TableRow> const & rows, bool titles,
                std::function<bool(std::wstring_view piece)> const & take);

/// Puts a block of texts into cells from that position on, in these columns, of which each field of a record takes the
/// next one. All of them, or nothing if one is refused: then the report says which.
TablePasteReport PasteTable(TableModel const & model, std::vector<CsvRecord> const & block, TableRow position,
                            std::vector<unsigned int> const & columns);
