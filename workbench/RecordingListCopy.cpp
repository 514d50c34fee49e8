// Tables of the list's lines for other programs.

#include "RecordingList.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "BusyDialog.h"
#include "clipboard/Clipboard.h"
#include "logic/Texts.h"
#include "RecordingCells.h"

namespace
{

/// Whether a column goes along into a copy.
bool IsCopied(int column)
{
    return column != CRecordingList::column_check && column != CRecordingList::column_overview;
}

/// Whether a column's texts are numbers, written as the user's region has them.
bool IsNumber(int column)
{
    switch (column)
    {
    case CRecordingList::column_duration:
    case CRecordingList::column_channels:
    case CRecordingList::column_rate:
    case CRecordingList::column_peak:
    case CRecordingList::column_rms:
        return true;
    default:
        return column >= CRecordingList::first_measure;
    }
}

} // namespace

/// Those lines in their order, as far as the filter lets them through.
std::vector<int> CRecordingList::LinesOf(Lines lines)
{
    if (lines == Lines::selected)
    {
        if (std::vector<int> selected = SelectedLines(); !selected.empty())
        {
            return selected;
        }
    }
    std::vector<int> shown = m_wanted.empty() ? LinesWithRows() : m_wanted;
    if (lines == Lines::marked)
    {
        std::erase_if(shown, [this](int line) { return !IsChecked(line); });
    }
    return shown;
}

workbench::RecordingTable CRecordingList::Table(Lines lines, std::set<int> const & without)
{
    EndEditing();
    std::vector<Column> columns;
    workbench::TextTable table;
    for (int const column : ColumnOrder())
    {
        if (!IsCopied(column) || without.contains(column))
        {
            continue;
        }
        columns.push_back(static_cast<Column>(column));
        LVCOLUMNW native{};
        native.mask = LVCF_FMT;
        GetColumn(column, &native);
        table.columns.push_back({Title(column), (native.fmt & LVCFMT_JUSTIFYMASK) == LVCFMT_RIGHT, IsNumber(column)});
    }
    std::vector<workbench::ListedRecording> recordings;
    std::vector<int> const wanted = LinesOf(lines);
    recordings.reserve(wanted.size());
    for (int const line : wanted)
    {
        auto const & source = m_sources[static_cast<std::size_t>(line)];
        recordings.push_back({source.file, NotesOf(line), source.analysis, source.reading, line == m_reference});
    }
    return {std::move(columns), std::move(table), std::move(recordings)};
}

bool CRecordingList::CopyToClipboard(bool all)
{
    workbench::RecordingTable table = Table(all ? Lines::all : Lines::selected, m_hidden);
    std::size_t const rows = table.Rows();
    CWnd * const owner = GetTopLevelParent();
    if (rows == 0 || owner == nullptr)
    {
        return false;
    }
    std::wstring html;
    std::wstring plain;
    auto const work = [&](std::size_t step) {
        if (step < rows)
        {
            table.MakeRow();
        }
        else if (step == rows)
        {
            html = workbench::HtmlTable(table.Table());
        }
        else
        {
            plain = workbench::PlainTable(table.Table());
        }
    };
    // The list may have ended by the time that it is done.
    return CBusyDialog::DoAll(*owner, workbench::Text(L"Copying recordings"), rows + 2, work) &&
           Clipboard::HtmlToClipboard(html.c_str(), plain.c_str());
}
