#include "RecordingList.h"

#include <algorithm>

#include "logic/TextFormat.h"

namespace
{

enum Column
{
    column_name,
    column_duration,
    column_channels,
    column_rate,
    column_peak,
    column_rms,
    column_status,
    column_count
};

struct ColumnDesign
{
    wchar_t const * title;
    int format;
    wchar_t const * usualText; ///< of the width that the column is made for
};

constexpr ColumnDesign c_columns[column_count] = {
    {L"Name", LVCFMT_LEFT, L"Measurement 12.wav"},
    {L"Duration", LVCFMT_RIGHT, L"10:00.000"},
    {L"Channels", LVCFMT_RIGHT, L"2"},
    {L"Sample rate", LVCFMT_RIGHT, L"192,000 Hz"},
    {L"Peak (dBFS)", LVCFMT_RIGHT, L"-100.0"},
    {L"RMS (dBFS)", LVCFMT_RIGHT, L"-100.0"},
    {L"Status", LVCFMT_LEFT, L"cut off before the first sample"},
};

// The room that the list view and its header keep beside a text, with some air.
constexpr int c_cellPadding = 16;

constexpr wchar_t c_readingText[] = L"reading...";

} // namespace

BEGIN_MESSAGE_MAP(CRecordingList, CListCtrl)
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool CRecordingList::CreateList(CWnd & parent, UINT id, workbench::ScreenMetrics & metrics)
{
    constexpr DWORD style =
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS;
    if (!Create(style, CRect(), &parent, id))
    {
        return false;
    }
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER | LVS_EX_LABELTIP);
    SetFont(&metrics.Font(), FALSE);
    for (int column = 0; column < column_count; ++column)
    {
        auto const & design = c_columns[column];
        auto const width = std::max(WidthOf(design.title), WidthOf(design.usualText));
        InsertColumn(column, design.title, design.format, width);
        m_usual.push_back(width);
        m_usualWidth += width;
    }
    m_needs = m_usual;
    m_usualWidth += ::GetSystemMetrics(SM_CXVSCROLL) + 2 * ::GetSystemMetrics(SM_CXBORDER);
    return true;
}

int CRecordingList::WidthOf(std::wstring const & text) const
{
    return GetStringWidth(text.c_str()) + c_cellPadding;
}

void CRecordingList::ShowFiles(std::vector<std::filesystem::path> const & files)
{
    SetRedraw(FALSE);
    DeleteAllItems();
    m_needs = m_usual;
    for (int line = 0; line < static_cast<int>(files.size()); ++line)
    {
        auto const name = files[static_cast<std::size_t>(line)].filename().wstring();
        InsertItem(line, name.c_str());
        SetItemText(line, column_status, c_readingText);
        Require(column_name, name);
    }
    SetRedraw(TRUE);
    FitColumns();
    Invalidate();
}

void CRecordingList::ShowReading(int line)
{
    for (int column = column_duration; column < column_status; ++column)
    {
        SetItemText(line, column, L"");
    }
    SetItemText(line, column_status, c_readingText);
}

void CRecordingList::ShowAnalysis(int line, workbench::RecordingAnalysis const & analysis)
{
    if (line < 0 || line >= GetItemCount())
    {
        return;
    }
    auto const set = [&](int column, std::wstring text) {
        // Text at the right edge can come out a pixel wider than it was measured; the blank keeps its last digit whole.
        text += L' ';
        SetItemText(line, column, text.c_str());
        Require(column, text);
    };
    if (!analysis.problem)
    {
        auto const & info = analysis.info;
        set(column_duration, workbench::FormatDuration(info.frames, info.sampleRate));
        set(column_channels, std::to_wstring(info.channels));
        set(column_rate, workbench::FormatSampleRate(info.sampleRate));
        set(column_peak, workbench::FormatLevel(analysis.levels.peak));
        set(column_rms, workbench::FormatLevel(analysis.levels.rms));
    }
    auto const status = analysis.StatusText();
    SetItemText(line, column_status, status.c_str());
    Require(column_status, status);
    FitColumns();
}

void CRecordingList::Require(int column, std::wstring const & text)
{
    auto & needs = m_needs[static_cast<std::size_t>(column)];
    needs = std::max(needs, WidthOf(text));
}

/// Gives the numbers all the width that they need, and shares the rest between name and status: the status comes first,
/// a long name is cut down to its usual width, and what is left over then goes to the status.
void CRecordingList::FitColumns()
{
    // Changing a width can change the scroll bars and so come back here through the size message.
    if (m_fitting || m_needs.empty())
    {
        return;
    }
    m_fitting = true;
    CRect client;
    GetClientRect(&client);
    int rest = client.Width();
    for (int column = column_duration; column < column_status; ++column)
    {
        rest -= m_needs[static_cast<std::size_t>(column)];
    }
    auto widths = m_needs;
    auto & name = widths[column_name];
    name = std::max(std::min(name, rest - m_needs[column_status]), m_usual[column_name]);
    widths[column_status] = std::max(rest - name, m_needs[column_status]);
    for (int column = 0; column < column_count; ++column)
    {
        auto const width = widths[static_cast<std::size_t>(column)];
        if (width != GetColumnWidth(column))
        {
            SetColumnWidth(column, width);
        }
    }
    m_fitting = false;
}

int CRecordingList::ChosenLine() const
{
    return GetNextItem(-1, LVNI_SELECTED);
}

void CRecordingList::ChooseLine(int line)
{
    constexpr UINT state = LVIS_SELECTED | LVIS_FOCUSED;
    SetItemState(line, state, state);
    EnsureVisible(line, FALSE);
}

void CRecordingList::OnSize(UINT type, int width, int height)
{
    CListCtrl::OnSize(type, width, height);
    FitColumns();
}
