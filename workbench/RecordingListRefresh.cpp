// What the list's rows say in another language or region, and after what is said about many has changed.

#include "RecordingList.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr std::chrono::milliseconds refresh_slice(12);
constexpr UINT refresh_interval = 10;    // milliseconds
constexpr std::ptrdiff_t few_rows = 200; // that are shown anew at once

} // namespace

void CRecordingList::RefreshLines()
{
    EndEditing();
    for (Source & source : m_sources)
    {
        source.isStale = source.hasRow;
    }
    m_refreshed = 0;
    RefreshRows(Clock::time_point::min());
}

/// Shows rows anew: those that are in sight, and others until then.
void CRecordingList::RefreshRows(Clock::time_point end)
{
    Batch const batch(*this);
    bool const mayRefresh = !IsEditing();
    bool waits = false;
    // Whether it had something to show.
    auto const refresh = [&](int line) {
        if (line < 0 || line >= LineCount())
        {
            return false;
        }
        auto & source = m_sources[static_cast<std::size_t>(line)];
        bool const shows = source.newNotes != 0 || (source.isStale && mayRefresh);
        waits = waits || (source.isStale && !mayRefresh);
        if (int const row = shows ? PlaceOf(line) : -1; row >= 0)
        {
            ShowNewNotes(row, line);
            if (mayRefresh && source.isStale)
            {
                RefreshRow(row, line);
            }
        }
        source.newNotes = 0;
        source.isStale = source.isStale && !mayRefresh;
        return shows;
    };
    int const top = GetTopIndex();
    for (int row = top; row <= top + GetCountPerPage(); ++row)
    {
        m_touched = refresh(LineAt(row)) || m_touched;
    }
    while (m_refreshed < LineCount() && Clock::now() < end)
    {
        refresh(m_refreshed++);
    }
    m_refreshed = waits ? 0 : m_refreshed;
    if (m_refreshed < LineCount())
    {
        SetTimer(refresh_timer, refresh_interval, nullptr);
    }
    else
    {
        KillTimer(refresh_timer);
    }
}

/// Shows what SetNotes has taken over: of many lines in sight at once, and of the others a few at a time.
void CRecordingList::ShowNotes()
{
    auto const isNew = std::ranges::count_if(m_sources, [](Source const & source) { return source.newNotes != 0; });
    if (isNew == 0)
    {
        return;
    }
    m_refreshed = 0;
    RefreshRows(isNew <= few_rows ? Clock::time_point::max() : Clock::time_point::min());
}

/// Shows in a line's row what is said about it by now, and nothing else: many rows are shown anew at once.
void CRecordingList::ShowNewNotes(int row, int line)
{
    if (row < 0)
    {
        return;
    }
    unsigned int const news = std::exchange(m_sources[static_cast<std::size_t>(line)].newNotes, 0U);
    auto const & notes = m_notes[static_cast<std::size_t>(line)];
    if ((news & new_mark) != 0)
    {
        SetCheckbox(row, column_check, notes.checked ? XLC_CHECKED : XLC_UNCHECKED);
        SetModified(row, column_check, true);
    }
    if ((news & new_reference) != 0)
    {
        SetRadioButton(row, column_reference, line == m_reference ? XLC_RADIO_ON : XLC_RADIO_OFF);
    }
    if ((news & new_rating) != 0)
    {
        SetComboBoxGlobalStrings(row, column_rating, notes.rating, 0);
    }
    if ((news & new_comment) != 0)
    {
        SetItemText(row, column_comment, notes.comment.c_str());
    }
}

void CRecordingList::RefreshRow(int row, int line)
{
    auto const & source = m_sources[static_cast<std::size_t>(line)];
    auto const analysis = source.analysis;
    if (!analysis)
    {
        SetItemText(row, column_status, WaitingText(source.reading));
    }
    else
    {
        ShowDate(row, *analysis);
        ShowStatus(row, *analysis);
    }
    if (analysis && analysis->problem)
    {
        GreyOut(row);
        SetItemToolTipText(row, column_name, (source.file.wstring() + L": " + analysis->StatusText()).c_str());
        return;
    }
    SetComboBoxGlobalStrings(row, column_rating, NotesOf(line).rating, 0);
    if (analysis)
    {
        ShowNumbers(row, *analysis);
        MarkValues(row, *analysis);
    }
}

bool CRecordingList::OnRefreshTimer(UINT_PTR id)
{
    if (id != refresh_timer)
    {
        return false;
    }
    RefreshRows(Clock::now() + refresh_slice);
    return true;
}
