// What the main window does with its recordings.

#include "MainWindow.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <limits>
#include <utility>

#include "frame/CoreLibrary.h"
#include "logic/CursorReading.h"
#include "logic/RecordingDetails.h"
#include "logic/RecordingFiles.h"
#include "logic/StoredLists.h"
#include "logic/TextFormat.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

namespace
{

constexpr UINT work_interval = 10;  // milliseconds
constexpr UINT view_interval = 100; // milliseconds from a change of what is shown until it is kept
constexpr UINT edit_interval = 100; // milliseconds, between looks whether an editor is still open
// What one turn of work may take, so that the window answers in between.
constexpr std::chrono::milliseconds work_slice(12);

constexpr double sine_rms = -3.01; // dBFS, of a full-scale sine

using Clock = std::chrono::steady_clock;

} // namespace

/// Has what the user has said since the last time stored.
void CMainWindow::StoreNotes()
{
    for (int const line : m_list.TakeNotedLines())
    {
        if (Recording const * const recording = RecordingAt(line))
        {
            m_notes->Set(recording->file, m_list.NotesOf(line));
        }
    }
}

/// Closes editors and has what the user said stored, before the lines go.
void CMainWindow::KeepNotes()
{
    m_list.EndEditing();
    StoreNotes();
}

LRESULT CMainWindow::OnNotesTurned(WPARAM, LPARAM)
{
    UpdateStatusLine();
    return 0;
}

/// Under what the view of the present recordings is kept; empty without any.
std::filesystem::path CMainWindow::ViewFolder() const
{
    return m_targets.size() == 1 ? m_targets.front() : std::filesystem::path(workbench::FolderText(m_targets));
}

/// Has the present view kept soon.
void CMainWindow::NoteView()
{
    if (m_views && !m_targets.empty())
    {
        SetTimer(view_timer, view_interval, nullptr);
    }
}

/// Keeps how the recordings are shown, as soon as they are shown as before.
void CMainWindow::KeepView()
{
    KillTimer(view_timer);
    if (m_listed < m_found.size())
    {
        NoteView();
        return;
    }
    if (!m_views || m_targets.empty() || m_recordings.empty() || (m_search && !m_following) || m_wantedView)
    {
        return;
    }
    std::filesystem::path const folder = ViewFolder();
    auto const nameOf = [&](int line) {
        Recording const * const recording = RecordingAt(line);
        return recording != nullptr ? workbench::NameInFolder(folder, recording->file) : std::wstring();
    };
    workbench::ListOrder const order = m_list.Order();
    workbench::FolderView view;
    view.column = order.column;
    view.ascending = order.ascending;
    if (order.column < 0 && !std::ranges::is_sorted(order.lines))
    {
        std::ranges::transform(order.lines, std::back_inserter(view.order), nameOf);
    }
    int const chosen = m_list.ChosenLine();
    view.chosen = nameOf(chosen);
    if (std::vector<int> const selected = m_list.SelectedLines(); selected.size() > 1)
    {
        std::ranges::transform(selected, std::back_inserter(view.selected), nameOf);
    }
    Recording const * const recording = RecordingAt(chosen);
    if (recording != nullptr && m_shown && recording->analysis == m_shown && Waveform().ShowsRecording())
    {
        workbench::TimeMarks const & marks = Waveform().Marks();
        workbench::FrameRange const shown = marks.window.Shown();
        view.stretch = {marks.window.Frames(), shown.first, shown.end, marks.cursor};
    }
    else if (m_wantedPart && m_wantedPart->chosen == view.chosen)
    {
        view.stretch = m_wantedPart->stretch; // it is still to be shown
    }
    m_views->Set(folder, view);
}

/// Shows the lines, all of which are listed by now, as they were shown last.
void CMainWindow::RestoreView()
{
    workbench::FolderView const view = *std::exchange(m_wantedView, std::nullopt);
    std::filesystem::path const folder = ViewFolder();
    std::unordered_map<std::wstring, int> lines;
    for (int line = 0; line < RecordingCount(); ++line)
    {
        lines.emplace(workbench::NameInFolder(folder, RecordingAt(line)->file), line);
    }
    auto const linesOf = [&lines](std::vector<std::wstring> const & names) {
        std::vector<int> found;
        for (std::wstring const & name : names)
        {
            if (auto const line = lines.find(name); line != lines.end())
            {
                found.push_back(line->second);
            }
        }
        return found;
    };
    // The user may have sorted meanwhile.
    if (m_list.SortedColumn() < 0 && view.column > CRecordingList::column_check &&
        view.column < CRecordingList::column_count)
    {
        m_order = Order{static_cast<CRecordingList::Column>(view.column), view.ascending};
    }
    else if (m_list.SortedColumn() < 0 && !view.order.empty())
    {
        m_list.SetOrder({-1, true, linesOf(view.order)});
    }
    std::vector<int> const selected = linesOf(view.selected);
    auto const chosen = lines.find(view.chosen);
    if (selected.size() > 1 && chosen != lines.end() && chosen->second == m_list.ChosenLine())
    {
        m_list.SelectLines(selected, chosen->second);
    }
}

/// Shows the part of the chosen recording that was shown last.
void CMainWindow::RestoreStretch()
{
    std::optional<workbench::FolderView> const view = std::exchange(m_wantedPart, std::nullopt);
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    if (!view || !view->stretch || chosen == nullptr || !Waveform().ShowsRecording() ||
        workbench::NameInFolder(ViewFolder(), chosen->file) != view->chosen)
    {
        return;
    }
    workbench::TimeMarks marks(view->stretch->frames);
    marks.window.Show({view->stretch->first, view->stretch->end});
    marks.cursor = std::min(view->stretch->cursor, std::max<std::uint64_t>(view->stretch->frames, 1) - 1);
    Waveform().SetMarks(marks); // which are no other recording's
    m_spectrogram.SetMarks(Waveform().Marks());
    ShowReading();
}

/// Gives up all that is under way.
void CMainWindow::StopWork()
{
    m_search.reset();
    m_reloading = false;
    m_following = false;
    m_followed.clear();
    m_queue->Clear();
    m_found.clear();
    m_listed = 0;
    m_toReread = 0;
    m_results.clear();
    m_queued = 0;
    for (Recording & recording : m_recordings)
    {
        recording.queued = false;
    }
}

/// withFacts: also of the size and the time of files.
void CMainWindow::StartSearch(bool withFacts)
{
    HWND const window = m_hWnd;
    m_search = std::make_unique<workbench::RecordingSearch>(
        m_targets, [window] { ::PostMessageW(window, message_recordings_ready, 0, 0); }, withFacts);
}

void CMainWindow::ShowTargets(std::vector<std::filesystem::path> targets)
{
    KeepView();
    StopWork();
    m_targets = std::move(targets);
    m_wantedView.reset();
    m_wantedPart.reset();
    if (!m_targets.empty())
    {
        workbench::StoreLastTargets(m_targets);
    }
    m_openedFolders.clear();
    m_rememberOpened = false;
    m_missing.clear();
    ListAnew({});
    m_order.reset();
    m_chooseFile.clear();
    m_watch.reset();
    m_followAgain = false;
    if (!m_targets.empty())
    {
        m_watch = std::make_unique<workbench::FolderWatch>(
            m_targets, [window = m_hWnd] { ::PostMessageW(window, message_folder_changed, 0, 0); });
        StartSearch();
    }
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
}

/// Fills the tree of folders, if it shows.
void CMainWindow::FillFolders()
{
    if (!ShowsFolders())
    {
        return;
    }
    m_tree.AddPlaces(m_settings.startFolders);
    m_tree.AddPlaces(m_settings.recentFolders);
    m_tree.ShowOpened(m_openedFolders);
    ShowInFolders();
}

/// Has the tree of folders follow what is on the disk. A folder that the user has chosen there stays chosen.
void CMainWindow::FollowInFolders()
{
    if (ShowsFolders())
    {
        HTREEITEM const chosen = m_tree.GetSelectedItem();
        m_tree.ShowOpened(m_openedFolders);
        if (chosen == nullptr || m_tree.GetItemType(chosen) != CFolderTree::type_folder)
        {
            ShowInFolders();
        }
    }
}

/// Selects the chosen recording in the tree of folders, unless the user is at work there.
void CMainWindow::ShowInFolders()
{
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    if (ShowsFolders() && chosen != nullptr && GetFocus() != &m_tree)
    {
        m_tree.SelectRecording(chosen->file);
    }
}

/// Shows a folder of the tree.
void CMainWindow::OpenFolder(std::filesystem::path const & folder)
{
    if (m_targets.size() != 1 || !workbench::IsSameFolder(m_targets.front(), folder))
    {
        ShowTargets({folder});
    }
}

int CMainWindow::LineOf(std::filesystem::path const & file) const
{
    auto const found = std::ranges::find(m_recordings, file, &Recording::file);
    return found != m_recordings.end() ? static_cast<int>(found - m_recordings.begin()) : -1;
}

/// Chooses a recording of the tree in the list; one that is not there, once its folder is listed.
void CMainWindow::ChooseFile(std::filesystem::path const & file)
{
    if (int const line = LineOf(file); line >= 0)
    {
        m_list.ChooseLine(line);
        return;
    }
    ShowTargets({file.parent_path()});
    m_chooseFile = file;
}

/// Takes all lines away and has these files listed.
void CMainWindow::ListAnew(std::vector<std::filesystem::path> files)
{
    KeepNotes();
    ++m_generation;
    m_recordings.clear();
    m_found = std::move(files);
    m_listed = 0;
    m_chooseLine = -1;
    m_detailsIndex = -1;
    m_list.RemoveLines();
}

std::optional<CMainWindow::Order> CMainWindow::PresentOrder() const
{
    int const column = m_list.SortedColumn();
    return column < 0 ? m_order : Order{static_cast<CRecordingList::Column>(column), m_list.IsAscending()};
}

/// Sorts the lines again by what is known now.
void CMainWindow::SortAgain()
{
    m_valuesChanged = false;
    std::optional<Order> const order = PresentOrder();
    m_order.reset();
    if (order)
    {
        // What is in sight stays there: the chosen line, or else the uppermost one, unless that is the first.
        bool const isInSight = m_list.IsInSight(m_list.ChosenLine());
        int const top = m_list.GetTopIndex() > 0 ? m_list.TopLine() : -1;
        m_list.SortLines(order->column, order->ascending);
        if (!isInSight && top >= 0)
        {
            m_list.ScrollToLine(top);
        }
    }
}

void CMainWindow::CancelReading()
{
    if (m_report.IsWriting())
    {
        m_report.Cancel();
        ShowProgress();
        UpdateStatusLine();
    }
    if (!IsBusy())
    {
        return;
    }
    m_search.reset();
    m_reloading = false;
    m_following = false;
    m_toReread = 0;
    m_listed = m_found.size();
    // What has been read by now is shown.
    auto finished = m_queue->TakeFinished();
    m_queue->Clear();
    m_results.insert(m_results.end(), finished.begin(), finished.end());
    for (Recording & recording : m_recordings)
    {
        recording.queued = false;
    }
    for (workbench::AnalysisQueue::Finished const & result : m_results)
    {
        m_recordings[result.id].queued = true;
    }
    m_queued = m_results.size();
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
    SetTimer(work_timer, work_interval, nullptr);
}

void CMainWindow::OnCancelReading()
{
    CancelReading();
}

LRESULT CMainWindow::OnRecordingsReady(WPARAM, LPARAM)
{
    if (auto found = m_search ? m_search->Take() : std::nullopt)
    {
        m_search.reset();
        if (std::exchange(m_following, false))
        {
            TakeFollowed(std::move(*found));
            return 0;
        }
        bool const reloaded = std::exchange(m_reloading, false);
        if (reloaded && !m_recordings.empty())
        {
            ShowFound(std::move(*found), true);
            return 0;
        }
        m_missing = std::move(found->missing);
        m_openedFolders = std::move(found->folders);
        if (std::exchange(m_rememberOpened, false))
        {
            RememberOpened(m_openedFolders, m_missing);
        }
        FillFolders();
        if (!reloaded && ShowsFolders())
        {
            m_tree.RevealOpened();
        }
        m_found = std::move(found->files);
        m_wantedView = m_views->Of(ViewFolder());
        m_wantedPart = m_wantedView;
        if (m_chooseFile.empty() && !m_wantedView->chosen.empty())
        {
            m_chooseFile = workbench::FileInFolder(ViewFolder(), m_wantedView->chosen);
        }
    }
    SetTimer(work_timer, work_interval, nullptr);
    return 0;
}

void CMainWindow::OnTimer(UINT_PTR id)
{
    if (id == work_timer)
    {
        Work();
    }
    else if (id == view_timer)
    {
        KeepView();
    }
    else if (id == follow_timer)
    {
        Follow();
    }
    else if (id == raise_timer)
    {
        // As long as something is dragged, and a while after it.
        m_raises = ::GetAsyncKeyState(VK_LBUTTON) < 0 ? most_raises : m_raises - 1;
        if (m_raises <= 0)
        {
            KillTimer(raise_timer);
        }
        OnRaiseDialogs(0, 0);
    }
    else if (id == layout_timer)
    {
        KeepLayout();
    }
    CWnd::OnTimer(id);
}

/// Lists files and shows results for a little while. The timer, which comes after all other messages, brings the next
/// turn.
void CMainWindow::Work()
{
    auto const end = Clock::now() + work_slice;
    if (m_listed == m_found.size() && m_toReread == 0 && !m_followed.empty())
    {
        // In a turn of its own, as it goes through all lines.
        ArrangeFollowed();
        SetTimer(work_timer, work_interval, nullptr);
        return;
    }
    for (workbench::AnalysisQueue::Finished & finished : m_queue->TakeFinished())
    {
        m_results.push_back(std::move(finished));
    }
    {
        CRecordingList::Batch const batch(m_list);
        do
        {
            if (m_listed < m_found.size())
            {
                ListNext();
            }
            else if (m_toReread > 0)
            {
                std::size_t const index = m_recordings.size() - m_toReread--;
                if (!m_recordings[index].queued)
                {
                    Queue(static_cast<int>(index));
                }
            }
            else if (!m_results.empty())
            {
                workbench::AnalysisQueue::Finished const result = std::move(m_results.front());
                m_results.pop_front();
                TakeResult(result);
            }
        } while (Clock::now() < end && (m_listed < m_found.size() || m_toReread > 0 || !m_results.empty()));
    }
    bool const listed = m_listed == m_found.size() && m_toReread == 0;
    if (listed && m_results.empty() && m_followed.empty())
    {
        KillTimer(work_timer);
        m_found.clear();
        m_listed = 0;
    }
    ChooseFirst();
    if (listed && !m_search && m_wantedView)
    {
        RestoreView();
    }
    if (m_followed.empty() && ((listed && m_order) || (m_valuesChanged && !IsBusy())))
    {
        // Lines stay where they are while the user is at work on one.
        if (m_list.IsEditing())
        {
            SetTimer(work_timer, IsBusy() ? work_interval : edit_interval, nullptr);
        }
        else
        {
            SortAgain();
        }
    }
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
}

/// Chooses the recording that was chosen before a reload, or else the first one, where the user has chosen none.
void CMainWindow::ChooseFirst()
{
    bool const listing = m_listed < m_found.size();
    if (m_recordings.empty() || m_list.ChosenLine() >= 0 || (!m_chooseFile.empty() && m_chooseLine < 0 && listing))
    {
        return;
    }
    m_list.ChooseLine(std::max(m_chooseLine, 0));
    m_chooseFile.clear();
}

void CMainWindow::ListNext()
{
    std::filesystem::path & file = m_found[m_listed++];
    if (file == m_chooseFile)
    {
        m_chooseLine = RecordingCount();
    }
    m_list.AppendFile(file, m_notes->Of(file));
    int const line = RecordingCount();
    Recording & recording = m_recordings.emplace_back();
    recording.file = std::move(file);
    Queue(line);
}

/// Has a recording read.
void CMainWindow::Queue(int index)
{
    auto & recording = m_recordings[static_cast<std::size_t>(index)];
    recording.queued = true;
    ++m_queued;
    m_queue->Add(static_cast<unsigned>(index), recording.file);
}

void CMainWindow::TakeResult(workbench::AnalysisQueue::Finished const & finished)
{
    if (finished.id >= m_recordings.size() || !m_recordings[finished.id].queued)
    {
        return;
    }
    Recording & recording = m_recordings[finished.id];
    recording.queued = false;
    --m_queued;
    if (recording.analysis && *recording.analysis == *finished.analysis)
    {
        return;
    }
    auto const line = static_cast<int>(finished.id);
    if (recording.analysis)
    {
        m_list.ShowReading(line, recording.file);
    }
    recording.analysis = finished.analysis;
    m_valuesChanged = true;
    m_list.ShowAnalysis(line, recording.analysis);
}

/// The recording of a line; null if there is none.
CMainWindow::Recording const * CMainWindow::RecordingAt(int index) const
{
    return index >= 0 && index < RecordingCount() ? &m_recordings[static_cast<std::size_t>(index)] : nullptr;
}

/// Whether there is a recording that was read without a problem.
bool CMainWindow::IsReadable(int index) const
{
    Recording const * const recording = RecordingAt(index);
    return recording != nullptr && recording->analysis && !recording->analysis->problem;
}

/// Shows how far looking, listing and reading are.
void CMainWindow::ShowProgress()
{
    if (CReportWriter::State const report = m_report.Progress(); !IsBusy() && report.total > 0)
    {
        m_status.ShowProgress(report.done, report.total);
        return;
    }
    std::size_t const listed = m_recordings.size();
    std::size_t const total = listed + m_found.size() - m_listed;
    m_status.ShowProgress(listed - m_queued - m_toReread, IsBusy() ? std::max<std::size_t>(total, 1) : 0);
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
    if (Recording const * const chosen = RecordingAt(m_list.ChosenLine()); chosen != nullptr && chosen->analysis)
    {
        Waveform().MoveCursor(chosen->analysis->info.frames / 100 * static_cast<unsigned>(percent));
    }
}

int CMainWindow::FirstDamagedRecording() const
{
    auto const damaged = [](Recording const & recording) {
        auto const & analysis = recording.analysis;
        return analysis && (analysis->problem || analysis->info.IsCutOff() || analysis->invalidSamples > 0);
    };
    auto const found = std::ranges::find_if(m_recordings, damaged);
    return found != m_recordings.end() ? static_cast<int>(found - m_recordings.begin()) : -1;
}

/// Shows a text in both views.
void CMainWindow::ShowText(wchar_t const * title, wchar_t const * text)
{
    auto const shown = std::wstring(title) + L'\n' + text;
    if (!m_shown && shown == m_shownText)
    {
        return;
    }
    m_shownText = shown;
    m_shown.reset();
    m_playing.Stop();
    Waveform().ShowText(title, text);
    m_spectrogram.ShowText(title, text);
    m_frameMeasures.ShowText(title);
    m_preview.Update();
}

/// Says in list and views why there is nothing in the list.
void CMainWindow::ShowEmpty()
{
    m_list.SetEmptyListText(IsBusy()            ? Text(L"Recordings are being looked for.")
                            : m_missing.empty() ? Text(L"No recordings. Open files or a folder.")
                                                : Text(L"Folder not found"));
    m_list.Invalidate();
    if (IsBusy())
    {
        ShowText(Text(L"No recordings yet"), Text(L"Recordings are being looked for."));
    }
    else if (m_targets.empty())
    {
        ShowText(Text(L"No recordings"), Text(L"Open WAV files or a folder to see them here."));
    }
    else if (m_missing.empty())
    {
        ShowText(Text(L"No recordings"), Text(L"There are no WAV files in this folder."));
    }
    else
    {
        auto const text =
            std::wstring(Text(L"This folder does not exist or cannot be read:")) + L' ' + m_missing.front().wstring();
        ShowText(Text(L"Folder not found"), text.c_str());
    }
}

void CMainWindow::ShowChosen()
{
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    if (m_recordings.empty())
    {
        ShowEmpty();
    }
    else if (chosen == nullptr && !m_chooseFile.empty() && IsBusy())
    {
        // Its line is still to come.
    }
    else if (chosen == nullptr)
    {
        ShowText(Text(L"No recording chosen"), Text(L"Choose a recording in the list to see it here."));
    }
    else
    {
        auto const name = chosen->file.filename().wstring();
        if (!chosen->analysis)
        {
            ShowText(name.c_str(), chosen->queued ? Text(L"reading...") : Text(L"not read yet"));
        }
        else if (chosen->analysis != m_shown)
        {
            m_shown = chosen->analysis;
            m_playing.Stop();
            m_shownText.clear();
            Waveform().ShowRecording(name, m_shown, chosen->file);
            m_spectrogram.ShowRecording(name, chosen->file);
            m_frameMeasures.ShowRecording(name, chosen->file);
            RestoreStretch();
            m_preview.Update();
        }
    }
}

/// Shows the waveform's cursor on the displays.
void CMainWindow::ShowReading()
{
    Recording const * const chosen = RecordingAt(m_list.ChosenLine());
    std::optional<std::uint64_t> const cursor = Waveform().Cursor();
    if (!cursor || chosen == nullptr || !chosen->analysis)
    {
        m_panel.ShowReading(workbench::PositionReading(0, 0),
                            workbench::LevelReading(-std::numeric_limits<double>::infinity()));
        return;
    }
    workbench::RecordingAnalysis const & analysis = *chosen->analysis;
    m_panel.ShowReading(workbench::PositionReading(*cursor, analysis.info.sampleRate),
                        workbench::LevelReading(Waveform().LevelAtCursor()));
}

/// What the chosen recording's levels are against the reference's; empty where there is nothing to compare.
std::wstring CMainWindow::ComparisonText() const
{
    Recording const * const reference = RecordingAt(m_list.ReferenceLine());
    if (reference == nullptr)
    {
        return {};
    }
    auto text = std::wstring(L".  ") + Text(L"Reference") + L": " + reference->file.filename().wstring();
    int const line = m_list.ChosenLine();
    if (line != m_list.ReferenceLine() && IsReadable(line) && IsReadable(m_list.ReferenceLine()))
    {
        Recording const & chosen = *RecordingAt(line);
        text += std::wstring(L"; ") + Text(L"against it,") + L' ' + chosen.file.filename().wstring() + L' ' +
                Text(L"has peak") + L' ' +
                workbench::FormatDifference(chosen.analysis->levels.peak, reference->analysis->levels.peak) +
                L", RMS " + workbench::FormatDifference(chosen.analysis->levels.rms, reference->analysis->levels.rms);
    }
    return text;
}

void CMainWindow::UpdateStatusLine()
{
    workbench::RecordingTotals const & totals = m_list.Totals();
    std::wstring text = workbench::FormatCount(m_recordings.size(), Text(L"recording"), Text(L"recordings"));
    if (!m_list.Filter().LetsAllThrough())
    {
        text += L", " + workbench::FormatThousands(m_list.ShownCount()) + L' ' + Text(L"shown");
    }
    if (std::size_t const toRead = m_queued + m_toReread; toRead > 0)
    {
        text += L", " + workbench::FormatThousands(toRead) + L' ' + Text(L"being read");
    }
    if (std::size_t const unread = totals.Unread() - std::min(m_queued, totals.Unread()); unread > 0)
    {
        text += L", " + workbench::FormatThousands(unread) + L' ' + Text(L"not read");
    }
    if (totals.Unreadable() > 0)
    {
        text += L", " + workbench::FormatThousands(totals.Unreadable()) + L' ' + Text(L"cannot be shown");
    }
    if (totals.Checked() > 0)
    {
        text += L", " + workbench::FormatThousands(totals.Checked()) + L' ' + Text(L"marked") + L" (" +
                workbench::FormatMilliseconds(totals.CheckedMilliseconds()) + L')';
    }
    if (m_notes && m_notes->HasFailed())
    {
        text += std::wstring(L", ") + Text(L"marks and comments cannot be stored");
    }
    text += ReportText();
    if (!m_missing.empty())
    {
        text +=
            L", " + workbench::FormatCount(m_missing.size(), Text(L"folder not found:"), Text(L"folders not found:"));
        for (std::filesystem::path const & folder : m_missing)
        {
            text += (&folder == &m_missing.front() ? L" " : L", ") + folder.wstring();
        }
    }
    std::wstring const comparison = ComparisonText();
    if (comparison.empty())
    {
        CString levels;
        levels.Format(Text(L"Levels refer to a full-scale sine: 0 dBFS peak, %s dBFS RMS"),
                      workbench::FormatLevel(sine_rms).c_str());
        text += std::wstring(L".  ") + levels.GetString();
    }
    else
    {
        text += comparison;
    }
    text += L'.';
    m_status.ShowText(text);
}

void CMainWindow::ReadAgain(int index)
{
    if (RecordingAt(index) == nullptr || RecordingAt(index)->queued)
    {
        return;
    }
    auto & recording = m_recordings[static_cast<std::size_t>(index)];
    recording.analysis = nullptr;
    m_list.ShowReading(index, recording.file);
    Queue(index);
    m_frames.Reload(recording.file);
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
}

void CMainWindow::OnReload()
{
    if (m_targets.empty())
    {
        return;
    }
    KeepNotes();
    m_notes->Refresh();
    StopWork();
    StartSearch(true);
    m_reloading = true;
    m_frames.Reload();
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
}

/// Follows the list, once for all that has changed since the last time.
void CMainWindow::OnListChanged(unsigned changes)
{
    StoreNotes();
    if ((changes & CRecordingList::changed_widths) != 0)
    {
        workbench::StoreColumnWidths(m_list.UserWidths(), m_metrics.AverageWidth());
        workbench::StoreColumnOrder(m_list.ColumnOrder());
        m_settingsSheet.FollowColumns(m_list.ColumnOrder());
    }
    if ((changes & (CRecordingList::changed_selection | CRecordingList::changed_order)) != 0)
    {
        NoteView();
    }
    if ((changes & CRecordingList::changed_selection) != 0)
    {
        m_written.clear(); // it has been said
        ShowChosen();
        ShowInFolders();
    }
    UpdateStatusLine();
}

void CMainWindow::OnFitColumns()
{
    m_list.SetUserWidths({});
    workbench::StoreColumnWidths({}, m_metrics.AverageWidth());
}

void CMainWindow::OnReadAgain()
{
    ReadAgain(m_list.ChosenLine());
}

/// What the details say of a recording; nothing of one that does not exist or is not read.
std::vector<workbench::DetailLine> CMainWindow::DetailsOf(int index) const
{
    Recording const * const recording = RecordingAt(index);
    if (recording == nullptr || !recording->analysis)
    {
        return {};
    }
    std::wstring date;
    if (std::optional<std::time_t> const & time = recording->analysis->file.lastWrite)
    {
        date = UserDateTimeText(CTime(*time), dtf_date_time).GetString();
    }
    return workbench::DescribeRecording(recording->file, *recording->analysis, date);
}

bool CMainWindow::ShowDetails(int index)
{
    std::vector<workbench::DetailLine> lines = DetailsOf(index);
    if (lines.empty())
    {
        return false;
    }
    m_detailsIndex = index;
    return m_details.Show(std::move(lines));
}

void CMainWindow::OnShowDetails()
{
    ShowDetails(m_list.ChosenLine());
}

bool CMainWindow::ShowInFrame(int index)
{
    Recording const * const recording = RecordingAt(index);
    return recording != nullptr && m_frames.Open({recording->file, recording->analysis});
}

void CMainWindow::OnShowInFrame()
{
    ShowInFrame(m_list.ChosenLine());
}

bool CMainWindow::CompareFour()
{
    constexpr std::size_t most = 4;
    bool const anyMarked = m_list.Totals().Checked() > 0;
    std::vector<CWaveformFrames::Shown> recordings;
    for (int row = anyMarked ? 0 : std::max(m_list.PlaceOf(m_list.ChosenLine()), 0);
         row < m_list.LineCount() && recordings.size() < most; ++row)
    {
        int const line = m_list.LineAt(row);
        if (Recording const * const recording = RecordingAt(line);
            recording != nullptr && (!anyMarked || m_list.IsChecked(line)))
        {
            recordings.push_back({recording->file, recording->analysis});
        }
    }
    return m_frames.Compare(std::move(recordings));
}

void CMainWindow::OnCompareFour()
{
    CompareFour();
}

void CMainWindow::OnSetReference()
{
    m_list.SetReference(m_list.ChosenLine());
}

void CMainWindow::OnEditComment()
{
    BringListInSight();
    m_list.EditComment(m_list.ChosenLine());
}

void CMainWindow::OnChooseRating()
{
    BringListInSight();
    m_list.ChooseRating(m_list.ChosenLine());
}

/// Opens the filter of the list.
void CMainWindow::OnFind()
{
    m_list.EndEditing();
    BringListInSight();
    m_listPanel.ShowFilter(true);
}

void CMainWindow::OnFiltered()
{
    m_list.SetEmptyListText(Text(L"No recording fits the filter."));
    UpdateStatusLine();
}

void CMainWindow::OnUndo()
{
    m_list.Undo();
}

void CMainWindow::OnRedo()
{
    m_list.Redo();
}

void CMainWindow::OnMove(UINT id)
{
    m_list.MoveSelected(id == ID_MOVE_UP);
}

void CMainWindow::OnMarkAll()
{
    m_list.CheckAll(true);
}

void CMainWindow::OnMarkNone()
{
    m_list.CheckAll(false);
}
