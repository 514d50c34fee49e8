// How the main window follows folders that change.

#include "MainWindow.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

#include "logic/FolderChanges.h"
#include "logic/RecordingSearch.h"

namespace
{

constexpr UINT busy_interval = 200; // milliseconds between looks whether the list is at rest

} // namespace

LRESULT CMainWindow::OnFolderChanged(WPARAM, LPARAM)
{
    m_followAgain = true;
    Follow();
    return 0;
}

/// Whether lines can change places and come and go now.
bool CMainWindow::MayFollow() const
{
    bool const isListing = m_listed < m_found.size() || m_toReread > 0 || m_wantedView || !m_followed.empty();
    return !m_search && !isListing && !m_list.IsEditing() && !m_list.IsDragging();
}

/// Looks for what has changed, as soon as the list is at rest.
void CMainWindow::Follow()
{
    if (!m_followAgain || m_targets.empty())
    {
        KillTimer(follow_timer);
        return;
    }
    if (!MayFollow())
    {
        SetTimer(follow_timer, busy_interval, nullptr);
        return;
    }
    KillTimer(follow_timer);
    m_followAgain = false;
    m_following = true;
    StartSearch(true);
}

void CMainWindow::TakeFollowed(workbench::FoundRecordings found)
{
    if (!MayFollow())
    {
        m_followAgain = true;
        Follow();
        return;
    }
    ShowFound(std::move(found), false);
}

/// Has the list show what is there now. What is as it was stays as it is, but is read again where that is wanted.
void CMainWindow::ShowFound(workbench::FoundRecordings found, bool readsAgain)
{
    StoreNotes();
    // The comparison is lent the paths: copies of thousands take longer than it does.
    std::vector<workbench::KnownFile> listed;
    listed.reserve(m_recordings.size());
    for (auto & [file, analysis, queued] : m_recordings)
    {
        listed.push_back({std::move(file), analysis ? analysis->file : workbench::FileFacts()});
    }
    std::vector<workbench::KnownFile> present;
    std::size_t const known = std::min(found.files.size(), found.facts.size());
    present.reserve(known);
    for (std::size_t i = 0; i < known; ++i)
    {
        present.push_back({std::move(found.files[i]), found.facts[i]});
    }
    workbench::FolderChanges changes = workbench::CompareFolder(listed, present);
    for (std::size_t i = 0; i < listed.size(); ++i)
    {
        m_recordings[i].file = std::move(listed[i].file);
    }
    for (std::size_t i = 0; i < known; ++i)
    {
        found.files[i] = std::move(present[i].file);
    }
    bool const foldersChanged = found.missing != m_missing || found.folders != m_openedFolders;
    m_missing = std::move(found.missing);
    m_openedFolders = std::move(found.folders);
    if (std::exchange(m_rememberOpened, false))
    {
        RememberOpened(m_openedFolders, m_missing);
    }
    bool const isSame = changes.gone.empty() && changes.renamed.empty() && changes.come.empty();
    if (readsAgain && isSame)
    {
        m_toReread = m_recordings.size();
        FollowInFolders();
        SetTimer(work_timer, USER_TIMER_MINIMUM, nullptr);
        return;
    }
    if (changes.IsEmpty() && !foldersChanged)
    {
        return;
    }
    if (readsAgain)
    {
        changes.changed.resize(m_recordings.size());
        std::iota(changes.changed.begin(), changes.changed.end(), std::size_t{0});
    }
    for (auto const & [line, file] : changes.renamed)
    {
        RenameRecording(static_cast<int>(line), file);
    }
    int const top = m_list.TopLine();
    for (std::size_t const line : changes.changed)
    {
        if (!m_recordings[line].queued)
        {
            Queue(static_cast<int>(line));
        }
        if (!readsAgain) // all of them are read again then
        {
            m_frames.Reload(m_recordings[line].file);
        }
    }
    if (!changes.gone.empty())
    {
        std::vector<int> numbers(m_recordings.size());
        for (std::size_t const line : changes.gone)
        {
            numbers[line] = -1;
        }
        int next = 0;
        std::ranges::transform(numbers, numbers.begin(), [&next](int number) { return number < 0 ? -1 : next++; });
        Renumber(numbers);
        if (top >= 0 && numbers[static_cast<std::size_t>(top)] >= 0)
        {
            m_list.ScrollToLine(numbers[static_cast<std::size_t>(top)]);
        }
    }
    if (!changes.come.empty() || !changes.renamed.empty())
    {
        m_order = PresentOrder();
        m_followed = std::move(found.files);
        m_found = std::move(changes.come);
        m_listed = 0;
    }
    m_valuesChanged = true;
    FollowInFolders();
    SetTimer(work_timer, USER_TIMER_MINIMUM, nullptr);
    ShowChosen();
    ShowProgress();
    UpdateStatusLine();
    NoteView();
}

/// A recording's file has another name by now; what is said about it goes along.
void CMainWindow::RenameRecording(int line, std::filesystem::path const & file)
{
    auto & recording = m_recordings[static_cast<std::size_t>(line)];
    std::filesystem::path const before = std::exchange(recording.file, file);
    workbench::RecordingNotes const notes = m_notes->Of(before);
    m_notes->Set(before, {});
    m_notes->Set(file, notes);
    m_list.Rename(line, file);
    if (line == m_list.ChosenLine())
    {
        m_shown.reset(); // it shows the name
        ShowChosen();
    }
    NoteView();
}

/// Gives recordings other numbers, by their present ones; those below 0 go. Where the chosen one goes, the next one in
/// the list is chosen, or the last one that is left.
void CMainWindow::Renumber(std::vector<int> const & numbers)
{
    auto const numberOf = [&numbers](int line) {
        return line >= 0 && static_cast<std::size_t>(line) < numbers.size() ? numbers[static_cast<std::size_t>(line)]
                                                                            : -1;
    };
    int chosen = m_list.ChosenLine();
    if (int const row = m_list.PlaceOf(chosen); row >= 0 && numberOf(chosen) < 0)
    {
        int next = row;
        while (next < m_list.GetItemCount() && numberOf(m_list.LineAt(next)) < 0)
        {
            ++next;
        }
        int previous = row;
        while (next == m_list.GetItemCount() && previous >= 0 && numberOf(m_list.LineAt(previous)) < 0)
        {
            --previous;
        }
        chosen = m_list.LineAt(next < m_list.GetItemCount() ? next : previous);
    }
    bool const anySelectedStays =
        std::ranges::any_of(m_list.SelectedLines(), [&](int line) { return numberOf(line) >= 0; });
    ++m_generation;
    m_queue->Clear();
    m_results.clear();
    m_queued = 0;
    std::vector<Recording> before = std::exchange(m_recordings, {});
    m_recordings.resize(static_cast<std::size_t>(std::ranges::count_if(numbers, [](int n) { return n >= 0; })));
    for (std::size_t line = 0; line < before.size(); ++line)
    {
        if (numbers[line] >= 0)
        {
            m_recordings[static_cast<std::size_t>(numbers[line])] = std::move(before[line]);
        }
    }
    m_detailsIndex = numberOf(m_detailsIndex);
    m_list.Renumber(numbers);
    for (std::size_t line = 0; line < m_recordings.size(); ++line)
    {
        if (m_recordings[line].queued)
        {
            Queue(static_cast<int>(line));
        }
    }
    if (!anySelectedStays && numberOf(chosen) >= 0)
    {
        m_list.ChooseLine(numberOf(chosen));
    }
}

/// Gives lines that have come the numbers that they would have had they been there from the beginning.
void CMainWindow::ArrangeFollowed()
{
    std::vector<std::filesystem::path> const files = std::exchange(m_followed, {});
    std::unordered_map<std::wstring_view, int> places;
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        places.emplace(files[i].native(), static_cast<int>(i));
    }
    // By their places; the rest, if any, stays behind them.
    std::vector<int> lines(m_recordings.size());
    std::iota(lines.begin(), lines.end(), 0);
    std::vector<int> wanted(lines.size(), static_cast<int>(files.size()));
    for (std::size_t line = 0; line < lines.size(); ++line)
    {
        if (auto const place = places.find(m_recordings[line].file.native()); place != places.end())
        {
            wanted[line] = place->second;
        }
    }
    std::ranges::stable_sort(lines, {}, [&wanted](int line) { return wanted[static_cast<std::size_t>(line)]; });
    if (std::ranges::is_sorted(lines))
    {
        return;
    }
    std::vector<int> numbers(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        numbers[static_cast<std::size_t>(lines[i])] = static_cast<int>(i);
    }
    // Lines in the order of the files go on so. In another one, which is the user's, those that have come are the last.
    workbench::ListOrder const order = m_list.Order();
    bool const isAsFound = order.column < 0 && std::ranges::is_sorted(order.lines);
    int const top = m_list.TopLine();
    Renumber(numbers);
    if (isAsFound)
    {
        std::iota(lines.begin(), lines.end(), 0);
        m_list.SetOrder({-1, true, lines});
    }
    if (isAsFound && top >= 0)
    {
        m_list.ScrollToLine(numbers[static_cast<std::size_t>(top)]);
    }
}
