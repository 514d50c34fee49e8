#include "list/table/TableCopy.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr std::size_t piece_length = 32768;

/// In ASCII: whatever the characters are, the text gets no longer when it is converted.
void AppendHtml(std::wstring & text, std::wstring_view cell)
{
    for (std::size_t i = 0; i < cell.size(); ++i)
    {
        auto code = static_cast<std::uint32_t>(cell[i]);
        if (code >= 0xD800 && code < 0xDC00 && i + 1 < cell.size())
        {
            auto const second = static_cast<std::uint32_t>(cell[i + 1]);
            if (second >= 0xDC00 && second < 0xE000)
            {
                code = 0x10000 + ((code - 0xD800) << 10 | (second - 0xDC00));
                ++i;
            }
        }
        switch (code)
        {
        case L'&':
            text += L"&amp;";
            break;
        case L'<':
            text += L"&lt;";
            break;
        case L'>':
            text += L"&gt;";
            break;
        case L'"':
            text += L"&quot;";
            break;
        case L'\r':
            break;
        case L'\n':
            text += L"<br>";
            break;
        default:
            if (code == 0 || (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF)
                text += L"&#65533;";
            else if (code < 0x80)
                text.push_back(static_cast<wchar_t>(code));
            else
                text += L"&#" + std::to_wstring(code) + L';';
        }
    }
}

void AppendTabbed(std::wstring & text, std::wstring_view cell)
{
    for (wchar_t const each : cell)
        text.push_back(each == L'\t' || each == L'\r' || each == L'\n' || each == L'\0' ? L' ' : each);
}

bool IsNumeric(TableKind kind)
{
    return kind == TableKind::whole || kind == TableKind::floating || kind == TableKind::progress;
}
} // namespace

TableWriter::TableWriter(TableForm form, std::shared_ptr<TableLooks const> looks, std::vector<unsigned int> columns,
                         wchar_t csvSeparator)
    : m_form(form),
      m_looks(std::move(looks)),
      m_columns(std::move(columns)),
      m_separator(csvSeparator)
{
    std::erase_if(m_columns, [this](unsigned int column) { return column >= m_looks->columns.size(); });
}

void TableWriter::AppendCell(std::wstring & text, std::wstring_view cell, std::size_t column, bool title) const
{
    switch (m_form)
    {
    case TableForm::text:
        if (column != 0)
            text.push_back(L'\t');
        AppendTabbed(text, cell);
        break;
    case TableForm::csv:
        if (column != 0)
            text.push_back(m_separator);
        AppendCsvField(text, cell, m_separator, m_columns.size() == 1);
        break;
    case TableForm::html:
        text += title ? L"<th>" : IsNumeric(m_value.Kind()) ? L"<td align=\"right\">" : L"<td>";
        AppendHtml(text, cell);
        text += title ? L"</th>" : L"</td>";
        break;
    }
}

void TableWriter::AppendBegin(std::wstring & text, bool titles) const
{
    if (m_form == TableForm::html)
        text += L"<table>\r\n";
    if (!titles)
        return;
    if (m_form == TableForm::html)
        text += L"<tr>";
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        TableColumn const & column = m_looks->columns[m_columns[i]];
        // Without the units of the cells, whoever reads the numbers learns them from the title.
        if (m_form == TableForm::csv && !column.format.unit.empty())
            AppendCell(text, column.title + L" [" + column.format.unit + L']', i, true);
        else
            AppendCell(text, TitleOf(column), i, true);
    }
    text += m_form == TableForm::html ? L"</tr>\r\n" : L"\r\n";
}

bool TableWriter::AppendRow(std::wstring & text, TableAccess & access, TableRow row)
{
    if (m_form == TableForm::html)
        text += L"<tr>";
    for (std::size_t i = 0; i < m_columns.size(); ++i)
    {
        if (!access.Read(row, m_columns[i], m_value))
            return false;
        if (m_form == TableForm::csv)
            PlainValue(m_cell, m_value);
        else
            ShowValue(m_cell, m_value, m_looks->columns[m_columns[i]], m_looks->locale);
        AppendCell(text, m_cell, i, false);
    }
    text += m_form == TableForm::html ? L"</tr>\r\n" : L"\r\n";
    return true;
}

void TableWriter::AppendEnd(std::wstring & text) const
{
    if (m_form == TableForm::html)
        text += L"</table>";
}

bool WriteTable(TableWriter & writer, TableAccess & access, std::vector<TableRow> const & rows, bool titles,
                std::function<bool(std::wstring_view piece)> const & take)
{
    std::wstring piece;
    access.Progress().Expect(rows.size(), 0, 1000);
    writer.AppendBegin(piece, titles);
    for (TableRow const row : rows)
    {
        if (!writer.AppendRow(piece, access, row) || access.Stopped())
            return false;
        access.Progress().Work(1);
        if (piece.size() >= piece_length)
        {
            if (!take(piece))
                return false;
            piece.clear();
        }
    }
    writer.AppendEnd(piece);
    return take(piece);
}

TablePasteReport PasteTable(TableModel const & model, std::vector<CsvRecord> const & block, TableRow position,
                            std::vector<unsigned int> const & columns)
{
    struct Cell
    {
        std::size_t line;
        std::size_t field;
        TableRow row;
        unsigned int column;
        TableValue value;
    };
    TablePasteReport report;
    std::vector<Cell> cells;
    // The looks and the source stay, whatever checks and source do.
    std::shared_ptr<TableLooks const> const looks = model.SharedLooks();
    std::shared_ptr<TableSource> const source = model.Source();
    auto const refuse = [&](std::size_t line, std::size_t field, TableRefusal refusal, std::wstring reason = {}) {
        ++report.refusedCells;
        if (report.refused.size() < TablePasteReport::most_told)
            report.refused.push_back({line, field, refusal, block[line][field], std::move(reason)});
    };
    // Rows first: a check may change what is shown.
    std::vector<TableRow> rows;
    for (std::size_t line = 0; line < block.size(); ++line)
    {
        rows.push_back(line < no_table_row - position ? model.RowAt(position + static_cast<TableRow>(line))
                                                      : no_table_row);
    }
    for (std::size_t line = 0; line < block.size(); ++line)
    {
        TableRow const row = rows[line];
        for (std::size_t field = 0; field < block[line].size(); ++field)
        {
            ++report.cells;
            if (row == no_table_row || !source || row >= source->RowCount())
            {
                refuse(line, field, TableRefusal::no_such_row);
                continue;
            }
            if (field >= columns.size() || columns[field] >= looks->columns.size())
            {
                refuse(line, field, TableRefusal::no_such_column);
                continue;
            }
            TableColumn const & column = looks->columns[columns[field]];
            Cell cell{line, field, row, columns[field], {}};
            if (!column.editable)
            {
                refuse(line, field, TableRefusal::not_editable);
            }
            else if (!ParseValue(cell.value, block[line][field], column, looks->locale))
            {
                refuse(line, field, TableRefusal::not_readable);
            }
            else
            {
                std::wstring reason = column.check ? column.check(cell.value) : std::wstring();
                if (!reason.empty())
                    refuse(line, field, TableRefusal::by_check, std::move(reason));
                else
                    cells.push_back(std::move(cell));
            }
        }
    }
    if (report.refusedCells != 0 || cells.empty())
        return report;

    std::vector<TableValue> former(cells.size());
    std::size_t written = 0;
    for (; written < cells.size(); ++written)
    {
        Cell const & cell = cells[written];
        if (!source->Read(cell.row, cell.column, former[written]))
            former[written].SetBlank();
        if (!source->Write(cell.row, cell.column, cell.value))
            break;
    }
    report.done = written == cells.size();
    if (!report.done)
    {
        refuse(cells[written].line, cells[written].field, TableRefusal::by_source);
        while (written-- > 0)
            source->Write(cells[written].row, cells[written].column, former[written]);
        return report;
    }
    for (Cell const & cell : cells)
        report.rows.push_back({cell.row, cell.row});
    JoinRanges(report.rows);
    return report;
}
