#include <utility>

#include "clipboard/Clipboard.h"
#include "clipboard/HtmlBlock.h"
#include "list/table/TableCopy.h"
#include "list/table/TableFile.h"
#include "list/table/XTableCtrlState.h"

namespace
{
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

std::vector<TableRow> RowsOf(TableModel const & model, bool selectionOnly)
{
    std::vector<TableRow> rows;
    if (selectionOnly)
    {
        rows = model.SelectedPositions();
        for (TableRow & each : rows)
            each = model.RowAt(each);
        return rows;
    }
    rows.reserve(model.Size());
    for (TableRow position = 0; position < model.Size(); ++position)
        rows.push_back(model.RowAt(position));
    return rows;
}

bool WriteFile(std::wstring const & path, TableWriter & writer, TableAccess & access,
               std::vector<TableRow> const & rows)
{
    TableFile file(path);
    if (!file.Write(byte_order_mark))
        return false;
    std::string bytes;
    bool const written = WriteTable(writer, access, rows, true, [&file, &bytes](std::wstring_view piece) {
        bytes.resize(piece.size() * Utf8::longest_character);
        return file.Write({bytes.data(), Utf8::Encode(piece, bytes)});
    });
    return written && !access.Ended() && file.Finish();
}
} // namespace

bool CXTableCtrl::CopyRows(TableForm form, bool selectionOnly, bool titles)
{
    TableModel const & model = m_state->model;
    std::vector<TableRow> const rows = RowsOf(model, selectionOnly);
    if (rows.empty())
        return false;
    auto const write = [&](TableForm as) {
        TableProgress progress;
        TableAccess access(model.Source(), progress);
        TableWriter writer(as, model.SharedLooks(), m_state->layout.Shown());
        std::wstring text;
        WriteTable(writer, access, rows, titles, [&text](std::wstring_view piece) {
            text += piece;
            return true;
        });
        return text;
    };
    std::wstring const text = write(form);
    if (form == TableForm::csv)
        return Clipboard::StringToClipboard(text.c_str());
    if (form == TableForm::html)
        return Clipboard::HtmlToClipboard(text.c_str(), write(TableForm::text).c_str());
    return Clipboard::HtmlToClipboard(write(TableForm::html).c_str(), text.c_str());
}

bool CXTableCtrl::ExportRows(std::wstring const & path, TableForm form, bool selectionOnly)
{
    State & state = *m_state;
    if (state.exporting)
        return false;
    state.exporting = std::make_shared<TableExport>();
    if (m_hWnd != nullptr)
        SetTimer(table_timers::progress, table_timers::progress_interval, nullptr);
    table_threads::Run([work = state.exporting, waker = state.waker, path, form, looks = state.model.SharedLooks(),
                        columns = state.layout.Shown(), rows = RowsOf(state.model, selectionOnly),
                        source = std::weak_ptr<TableSource const>(state.model.Source())] {
        bool whole = false;
        try
        {
            TableWriter writer(form, looks, columns);
            TableAccess access(source, work->progress);
            whole = WriteFile(path, writer, access, rows);
        }
        catch (...)
        {
            // No memory, or a source that throws: there is no whole file.
            whole = false;
        }
        work->whole.store(whole);
        work->finished.store(true, std::memory_order_release);
        waker->Wake();
    });
    return true;
}

bool CXTableCtrl::IsExporting() const
{
    return m_state->exporting != nullptr;
}

int CXTableCtrl::ExportProgress() const
{
    return m_state->exporting ? m_state->exporting->progress.Done() : 1000;
}

void CXTableCtrl::StopExport()
{
    if (m_state->exporting)
        m_state->exporting->progress.Stop();
}

TablePasteReport CXTableCtrl::PasteBlock()
{
    State & state = *m_state;
    CString text;
    Watch const watch(*this);
    // Whoever has what is there may be asked for it.
    if (!Clipboard::StringFromClipboard(text) || text.IsEmpty() || !watch.IsThere())
        return {};
    TableRow const position = state.model.FocusPosition();
    if (position == TableModel::nowhere)
        return {};
    std::vector<unsigned int> columns = state.layout.Shown();
    while (!columns.empty() && columns.front() != CursorColumn())
        columns.erase(columns.begin());
    if (columns.empty())
        columns = state.layout.Shown();
    std::wstring_view const view(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    std::shared_ptr<TableFeed> const feed = state.feed;
    TablePasteReport report = PasteTable(state.model, ReadCsv(view, GuessSeparator(view)).records, position, columns);
    for (TableRowRange const & each : report.rows)
        feed->RowsChanged(each.first, each.last);
    if (!watch.IsThere())
        return report;
    UpdateNow();
    if (!watch.IsThere())
        return report;
    auto const callback = m_onPaste;
    if (callback)
        callback(report);
    return report;
}
