// The main window's reports about recordings.

#include "MainWindow.h"

#include <utility>

#include "FileDialogs.h"
#include "frame/CoreLibrary.h"
#include "frame/WindowAlive.h"
#include "logic/Texts.h"
#include "logic/WriteTexts.h"

using workbench::Text;

void CMainWindow::PrepareReport()
{
    m_report.m_onProgress = [this] { ShowProgress(); };
    m_report.m_onEnded = [this](bool written) {
        ShowProgress();
        if (written)
        {
            SayWritten(Text(L"report written:"), m_report.File());
        }
        else
        {
            m_written.clear();
            UpdateStatusLine();
            AfxMessageBox(workbench::WriteFailureText(m_report.File(), m_report.Error()).c_str(), MB_ICONEXCLAMATION);
        }
    };
}

bool CMainWindow::WriteReport(std::filesystem::path const & file)
{
    m_list.EndEditing();
    std::vector<workbench::ReportedRecording> recordings;
    for (int const line : m_list.Order().lines)
    {
        Recording const * const recording = RecordingAt(line);
        if (recording == nullptr || !m_list.IsChecked(line))
        {
            continue;
        }
        CRecordingList::Notes const notes = m_list.NotesOf(line);
        auto & reported =
            recordings.emplace_back(workbench::ReportedRecording{recording->file, recording->analysis, notes, {}, {}});
        reported.rating = notes.rating > 0 ? CRecordingList::RatingName(notes.rating) : L"";
        if (recording->analysis && recording->analysis->file.lastWrite)
        {
            reported.date = UserDateTimeText(CTime(*recording->analysis->file.lastWrite), dtf_date_time).GetString();
        }
    }
    m_written.clear();
    bool const begun = !recordings.empty() && m_report.Begin(std::move(recordings), file, m_settings, m_metrics);
    UpdateStatusLine();
    return begun;
}

void CMainWindow::OnWriteReport()
{
    WindowAlive const alive(*this, m_life);
    auto const today = CTime::GetCurrentTime();
    auto const folder = m_targets.size() == 1 && !m_openedFolders.empty() ? m_targets.front() : std::filesystem::path();
    std::optional<std::filesystem::path> const file = workbench::ChooseReportFile(
        *this, workbench::ReportFileName(folder, today.GetYear(), today.GetMonth(), today.GetDay()));
    if (file && alive.IsAlive() && m_list.Totals().Checked() > 0 && !WriteReport(*file))
    {
        AfxMessageBox(workbench::WriteFailureText(*file, m_report.Error()).c_str(), MB_ICONEXCLAMATION);
    }
}

/// What the status line says of it.
std::wstring CMainWindow::ReportText() const
{
    if (m_report.IsWriting())
    {
        return std::wstring(L", ") + Text(L"report being written");
    }
    return m_written;
}
