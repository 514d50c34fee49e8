// What the main window does with its recordings.

#include "MainWindow.h"

#include <algorithm>
#include <limits>

#include "frame/CoreLibrary.h"
#include "logic/CursorReading.h"
#include "logic/RecordingDetails.h"
#include "logic/RecordingFiles.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"

using workbench::Text;

/// Keeps what the user said about the recordings shown, for when they are shown again.
void CMainWindow::KeepNotes()
{
    for (int i = 0; i < RecordingCount(); ++i)
    {
        auto & notes = m_notes[m_files[static_cast<std::size_t>(i)]];
        notes = m_list.NotesOf(i);
    }
}

void CMainWindow::ShowTargets(std::vector<std::filesystem::path> targets)
{
    KeepNotes();
    m_targets = std::move(targets);
    m_queue->Clear();
    m_detailsIndex = -1;
    m_files = workbench::FindRecordings(m_targets);
    m_analyses.assign(m_files.size(), nullptr);
    m_unread = static_cast<int>(m_files.size());
    std::vector<CRecordingList::Notes> notes;
    for (auto const & file : m_files)
    {
        auto const known = m_notes.find(file);
        notes.push_back(known != m_notes.end() ? known->second : CRecordingList::Notes());
    }
    m_list.ShowFiles(m_files, notes);
    for (unsigned i = 0; i < m_files.size(); ++i)
    {
        m_queue->Add(i, m_files[i]);
    }
    m_list.ChooseLine(0);
    ShowChosen();
    UpdateStatusLine();
}

bool CMainWindow::ChooseRecording(int index)
{
    if (index < 0 || index >= RecordingCount())
    {
        return false;
    }
    m_list.ChooseLine(index);
    return true;
}

void CMainWindow::MoveCursorToPart(int percent)
{
    auto const chosen = m_list.ChosenLine();
    if (chosen >= 0 && chosen < RecordingCount() && m_analyses[static_cast<std::size_t>(chosen)])
    {
        m_waveform.MoveCursor(m_analyses[static_cast<std::size_t>(chosen)]->info.frames / 100 *
                              static_cast<unsigned>(percent));
    }
}

int CMainWindow::FirstDamagedRecording() const
{
    auto const damaged = [](auto const & analysis) {
        return analysis && (analysis->problem || analysis->info.IsCutOff() || analysis->invalidSamples > 0);
    };
    auto const found = std::ranges::find_if(m_analyses, damaged);
    return found != m_analyses.end() ? static_cast<int>(found - m_analyses.begin()) : -1;
}

LRESULT CMainWindow::OnRecordingsReady(WPARAM, LPARAM)
{
    auto const chosen = m_list.ChosenLine();
    for (auto const & [id, analysis] : m_queue->TakeFinished())
    {
        if (id >= m_analyses.size())
        {
            continue;
        }
        if (!m_analyses[id])
        {
            --m_unread;
        }
        m_analyses[id] = analysis;
        m_list.ShowAnalysis(static_cast<int>(id), analysis);
        if (static_cast<int>(id) == chosen)
        {
            ShowChosen();
        }
    }
    UpdateStatusLine();
    return 0;
}

void CMainWindow::ShowChosen()
{
    auto const chosen = m_list.ChosenLine();
    if (m_files.empty())
    {
        if (m_targets.empty())
        {
            m_waveform.ShowText(Text(L"No recordings"), Text(L"Open WAV files or a folder to see them here."));
        }
        else
        {
            m_waveform.ShowText(Text(L"No recordings"), Text(L"There are no WAV files in this folder."));
        }
    }
    else if (chosen < 0 || chosen >= RecordingCount())
    {
        m_waveform.ShowText(Text(L"No recording chosen"), Text(L"Choose a recording in the list to see its waveform."));
    }
    else
    {
        auto const index = static_cast<std::size_t>(chosen);
        auto name = m_files[index].filename().wstring();
        if (m_analyses[index])
        {
            m_waveform.ShowRecording(std::move(name), m_analyses[index]);
        }
        else
        {
            m_waveform.ShowText(std::move(name), Text(L"reading..."));
        }
    }
}

/// Shows the waveform's cursor on the displays.
void CMainWindow::ShowReading()
{
    auto const chosen = m_list.ChosenLine();
    auto const cursor = m_waveform.Cursor();
    if (!cursor || chosen < 0 || chosen >= RecordingCount() || !m_analyses[static_cast<std::size_t>(chosen)])
    {
        m_panel.ShowReading(workbench::PositionReading(0, 0),
                            workbench::LevelReading(-std::numeric_limits<double>::infinity()));
        return;
    }
    auto const & analysis = *m_analyses[static_cast<std::size_t>(chosen)];
    m_panel.ShowReading(
        workbench::PositionReading(*cursor, analysis.info.sampleRate),
        workbench::LevelReading(workbench::LevelAround(analysis.waveform, analysis.info.sampleRate, *cursor)));
}

/// What the chosen recording's levels are against the reference's; empty where there is nothing to compare.
std::wstring CMainWindow::ComparisonText() const
{
    auto const reference = m_list.ReferenceLine();
    if (reference < 0 || reference >= RecordingCount())
    {
        return {};
    }
    auto text = std::wstring(L".  ") + Text(L"Reference") + L": " +
                m_files[static_cast<std::size_t>(reference)].filename().wstring();
    auto const chosen = m_list.ChosenLine();
    auto const & analysis = m_analyses[static_cast<std::size_t>(reference)];
    if (chosen < 0 || chosen >= RecordingCount() || chosen == reference || !analysis || analysis->problem)
    {
        return text;
    }
    auto const & other = m_analyses[static_cast<std::size_t>(chosen)];
    if (other && !other->problem)
    {
        text += std::wstring(L"; ") + Text(L"against it,") + L' ' +
                m_files[static_cast<std::size_t>(chosen)].filename().wstring() + L' ' + Text(L"has peak") + L' ' +
                workbench::FormatDifference(other->levels.peak, analysis->levels.peak) + L", RMS " +
                workbench::FormatDifference(other->levels.rms, analysis->levels.rms);
    }
    return text;
}

void CMainWindow::UpdateStatusLine()
{
    auto text = workbench::FormatCount(m_files.size(), Text(L"recording"), Text(L"recordings"));
    if (m_unread > 0)
    {
        text += L", " + std::to_wstring(m_unread) + L' ' + Text(L"being read");
    }
    auto const unreadable = std::ranges::count_if(m_analyses, [](auto const & a) { return a && a->problem; });
    if (unreadable > 0)
    {
        text += L", " + std::to_wstring(unreadable) + L' ' + Text(L"cannot be shown");
    }
    std::size_t checked = 0;
    std::uint64_t milliseconds = 0;
    for (int i = 0; i < RecordingCount(); ++i)
    {
        if (m_list.IsChecked(i))
        {
            ++checked;
            if (auto const & analysis = m_analyses[static_cast<std::size_t>(i)])
            {
                milliseconds += workbench::DurationMilliseconds(analysis->info.frames, analysis->info.sampleRate);
            }
        }
    }
    if (checked > 0)
    {
        text += L", " + std::to_wstring(checked) + L' ' + Text(L"marked") + L" (" +
                workbench::FormatMilliseconds(milliseconds) + L')';
    }
    auto const comparison = ComparisonText();
    text += comparison.empty()
                ? std::wstring(L".  ") + Text(L"Levels refer to a full-scale sine: 0 dBFS peak, -3.0 dBFS RMS")
                : comparison;
    text += L'.';
    // Set anew, the text would flicker.
    CString present;
    m_statusLine.GetWindowText(present);
    if (present != text.c_str())
    {
        m_statusLine.SetWindowText(text.c_str());
    }
}

void CMainWindow::ReadAgain(int index)
{
    if (index < 0 || index >= RecordingCount())
    {
        return;
    }
    auto const i = static_cast<std::size_t>(index);
    if (!m_analyses[i])
    {
        return;
    }
    m_analyses[i] = nullptr;
    ++m_unread;
    m_list.ShowReading(index, m_files[i]);
    m_queue->Add(static_cast<unsigned>(index), m_files[i]);
    ShowChosen();
    UpdateStatusLine();
}

void CMainWindow::OnReload()
{
    auto const chosen = m_list.ChosenLine();
    ShowTargets(m_targets);
    ChooseRecording(chosen);
}

void CMainWindow::OnItemChanged(NMHDR * header, LRESULT * result)
{
    auto const & change = *reinterpret_cast<NMLISTVIEW *>(header);
    if ((change.uChanged & LVIF_STATE) != 0 && ((change.uOldState ^ change.uNewState) & LVIS_SELECTED) != 0)
    {
        ShowChosen();
        UpdateStatusLine();
    }
    *result = 0;
}

void CMainWindow::OnReadAgain()
{
    ReadAgain(m_list.ChosenLine());
}

bool CMainWindow::ShowDetails(int index)
{
    if (index < 0 || index >= RecordingCount() || !m_analyses[static_cast<std::size_t>(index)])
    {
        return false;
    }
    auto const & analysis = *m_analyses[static_cast<std::size_t>(index)];
    std::wstring date;
    if (analysis.file.lastWrite)
    {
        date = UserDateTimeText(CTime(*analysis.file.lastWrite), dtf_date_time).GetString();
    }
    m_detailsIndex = index;
    return m_details.Show(workbench::DescribeRecording(m_files[static_cast<std::size_t>(index)], analysis, date));
}

void CMainWindow::OnShowDetails()
{
    ShowDetails(m_list.ChosenLine());
}

void CMainWindow::OnSetReference()
{
    m_list.SetReference(m_list.ChosenLine());
}

void CMainWindow::OnMarkAll()
{
    m_list.CheckAll(true);
}

void CMainWindow::OnMarkNone()
{
    m_list.CheckAll(false);
}

LRESULT CMainWindow::OnListCheckClicked(WPARAM, LPARAM column)
{
    if (column == CRecordingList::column_reference)
    {
        m_list.ShowReference();
    }
    m_list.ShowHeaderCheck();
    UpdateStatusLine();
    return 0;
}

LRESULT CMainWindow::OnListLinkClicked(WPARAM row, LPARAM)
{
    ShowDetails(static_cast<int>(row));
    return 0;
}

LRESULT CMainWindow::OnListDoubleClicked(WPARAM row, LPARAM column)
{
    // Cells that act on a click of their own are left to it.
    switch (column)
    {
    case CRecordingList::column_check:
    case CRecordingList::column_reference:
    case CRecordingList::column_rating:
    case CRecordingList::column_comment:
        break;
    default:
        ShowDetails(static_cast<int>(row));
    }
    return 0;
}

LRESULT CMainWindow::OnListColumnClicked(WPARAM, LPARAM column)
{
    if (column == CRecordingList::column_check)
    {
        m_list.ShowHeaderCheck();
        UpdateStatusLine();
    }
    return 0;
}
