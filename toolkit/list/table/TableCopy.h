#pragma once
// A table's rows as text for the clipboard and for files, and texts put into its cells.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "list/table/CsvText.h"
#include "list/table/TableAccess.h"
#include "list/table/TableModel.h"
#include "list/table/TableText.h"

enum class TableForm
{
    /// As shown, a tab between cells.
    text,
    /// Numbers with all their digits and a point, without unit.
    csv,
    /// A table as shown, in ASCII with entities.
    html
};

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

/// Puts a block of texts into cells from that position on, in these columns, of which each field of a record takes the
/// next one. All of them, or nothing if one is refused: then the report says which.
TablePasteReport PasteTable(TableModel const & model, std::vector<CsvRecord> const & block, TableRow position,
                            std::vector<unsigned int> const & columns);
