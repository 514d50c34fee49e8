// Which of the list's lines have rows, and what the user did to them being undone.

#include "RecordingList.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace
{

// So many rows come and go one by one; more of them are made anew, a few at a time.
constexpr std::size_t few_rows = 200;
constexpr std::chrono::milliseconds fill_slice(12);
constexpr UINT fill_interval = 10; // milliseconds
constexpr UINT_PTR fill_timer = 40;

constexpr DWORD typing_pause = 1000; // milliseconds after which a word begins anew

workbench::RecordingFilter::State StateOf(workbench::RecordingAnalysis const * analysis)
{
    using State = workbench::RecordingFilter::State;
    if (analysis == nullptr)
    {
        return State::any;
    }
    if (analysis->problem)
    {
        return State::unreadable;
    }
    return analysis->info.IsCutOff() || analysis->invalidSamples > 0 ? State::damaged : State::sound;
}

} // namespace

/// Whether the filter lets a line through.
bool CRecordingList::Passes(int line) const
{
    auto const & source = m_sources[static_cast<std::size_t>(line)];
    auto const & notes = m_notes[static_cast<std::size_t>(line)];
    return Filter().LetsAllThrough() ||
           m_match({source.searched, notes.checked, notes.rating, StateOf(source.analysis.get())});
}

void CRecordingList::SetFilter(workbench::RecordingFilter const & filter)
{
    if (filter == Filter())
    {
        return;
    }
    EndEditing();
    CancelToolTips();
    m_match = workbench::FilterMatch(filter);
    for (int line = 0; line < LineCount(); ++line)
    {
        m_sources[static_cast<std::size_t>(line)].shown = Passes(line);
    }
    ShowWantedRows();
}

int CRecordingList::ShownCount() const
{
    return static_cast<int>(std::ranges::count_if(m_sources, &Source::shown));
}

/// Has a line shown that the filter kept out for what was not known of it.
void CRecordingList::Reconsider(int line)
{
    auto & source = m_sources[static_cast<std::size_t>(line)];
    if (!source.shown && Passes(line))
    {
        source.shown = true;
        m_late = true;
    }
}

/// Keeps what is selected, unless that is still kept.
void CRecordingList::HoldSelection()
{
    if (m_holds)
    {
        return;
    }
    for (Source & source : m_sources)
    {
        source.isHeld = false;
    }
    m_heldFocus = ChosenLine();
    for (int const line : SelectedLines())
    {
        m_sources[static_cast<std::size_t>(line)].isHeld = true;
    }
    m_holds = true;
}

/// Gives rows to the lines that the filter lets through and have none, and takes those of the others.
void CRecordingList::ShowWantedRows()
{
    std::vector<int> wanted;
    std::vector<int> gone;  // rows
    std::vector<int> added; // places in `wanted`
    int rows = 0;
    for (int const line : m_order)
    {
        auto const & source = m_sources[static_cast<std::size_t>(line)];
        if (source.hasRow)
        {
            if (!source.shown)
            {
                gone.push_back(rows);
            }
            ++rows;
        }
        if (source.shown)
        {
            if (!source.hasRow)
            {
                added.push_back(static_cast<int>(wanted.size()));
            }
            wanted.push_back(line);
        }
    }
    m_wanted.clear();
    if (gone.empty() && added.empty())
    {
        ShowHeaderCheck();
        return;
    }
    HoldSelection();
    Batch const batch(*this);
    m_touched = true;
    bool const outer = std::exchange(m_filling, true);
    if (gone.size() + added.size() <= few_rows)
    {
        for (std::size_t i = gone.size(); i > 0; --i)
        {
            int const line = LineAt(gone[i - 1]);
            DeleteItem(gone[i - 1]);
            m_sources[static_cast<std::size_t>(line)].hasRow = false;
        }
        for (int const place : added)
        {
            AddRow(wanted[static_cast<std::size_t>(place)], place);
        }
        for (std::size_t i = 0; i < wanted.size(); ++i)
        {
            m_places[static_cast<std::size_t>(wanted[i])] = static_cast<int>(i);
        }
    }
    else
    {
        MakeRowsAnew(std::move(wanted));
    }
    m_filling = outer;
    if (int const chosen = ChosenRow(); chosen >= 0)
    {
        EnsureVisible(chosen, FALSE);
    }
    Tell(changed_selection);
}

/// The lines that the filter lets through, in their order.
std::vector<int> CRecordingList::ShownLines() const
{
    std::vector<int> lines;
    std::ranges::copy_if(m_order, std::back_inserter(lines),
                         [this](int line) { return m_sources[static_cast<std::size_t>(line)].shown; });
    return lines;
}

/// Takes all rows away and gives these lines one, those in sight at once and the others later.
void CRecordingList::MakeRowsAnew(std::vector<int> lines)
{
    HoldSelection();
    Batch const batch(*this);
    m_touched = true;
    bool const outer = std::exchange(m_filling, true);
    for (Source & source : m_sources)
    {
        source.hasRow = false;
    }
    DeleteAllItems();
    m_wanted = std::move(lines);
    m_filled = 0;
    FillRows(Clock::time_point::min()); // taking the others away has taken its time
    m_filling = outer;
}

/// Gives lines their rows: those that are in sight, and others until then.
void CRecordingList::FillRows(Clock::time_point end)
{
    Batch const batch(*this);
    bool const outer = std::exchange(m_filling, true);
    auto const inSight = static_cast<std::size_t>(GetCountPerPage()) + 1;
    while (m_filled < m_wanted.size() && (m_filled < inSight || Clock::now() < end))
    {
        AddRow(m_wanted[m_filled++], -1);
    }
    m_filling = outer;
    if (m_filled < m_wanted.size())
    {
        SetTimer(fill_timer, fill_interval, nullptr);
        return;
    }
    KillTimer(fill_timer);
    m_wanted.clear();
    m_allCame = true;
}

/// Scrolls to what is to be in sight, once all lines have their rows: while the list is kept from painting, it knows no
/// more of them than it did before.
void CRecordingList::ScrollAfterFilling()
{
    if (!std::exchange(m_allCame, false) || IsDragging())
    {
        return;
    }
    if (int const top = std::exchange(m_wantedTop, -1); top >= 0)
    {
        ScrollToLine(top);
    }
    else if (int const chosen = ChosenRow(); chosen >= 0 && m_holds)
    {
        EnsureVisible(chosen, FALSE);
    }
}

void CRecordingList::FinishRows()
{
    if (!m_wanted.empty())
    {
        FillRows(Clock::time_point::max());
    }
    if (m_refreshed < LineCount())
    {
        RefreshRows(Clock::time_point::max());
    }
}

void CRecordingList::OnTimer(UINT_PTR id)
{
    if (OnDragTimer(id) || OnRefreshTimer(id))
    {
        return;
    }
    if (id != fill_timer)
    {
        CXListCtrl::OnTimer(id);
    }
    else if (m_wanted.empty())
    {
        KillTimer(fill_timer);
    }
    else
    {
        FillRows(Clock::now() + fill_slice);
    }
}

std::vector<int> CRecordingList::SelectedLines() const
{
    std::vector<int> lines;
    for (int row = GetNextItem(-1, LVNI_SELECTED); row >= 0; row = GetNextItem(row, LVNI_SELECTED))
    {
        lines.push_back(LineAt(row));
    }
    if (m_holds)
    {
        // Those that get their rows later are selected then.
        std::copy_if(m_wanted.begin() + static_cast<std::ptrdiff_t>(std::min(m_filled, m_wanted.size())),
                     m_wanted.end(), std::back_inserter(lines),
                     [this](int line) { return m_sources[static_cast<std::size_t>(line)].isHeld; });
    }
    return lines;
}

void CRecordingList::SelectLines(std::vector<int> const & lines, int focused)
{
    Batch const batch(*this);
    m_touched = true;
    if (!m_wanted.empty())
    {
        HoldLines(lines, focused);
    }
    else
    {
        ClearSelection();
    }
    bool const outer = std::exchange(m_filling, m_filling || !m_wanted.empty());
    std::vector<bool> isMeant(static_cast<std::size_t>(GetItemCount()));
    for (int const line : lines)
    {
        if (int const row = PlaceOf(line); row >= 0)
        {
            isMeant[static_cast<std::size_t>(row)] = true;
        }
    }
    SelectRows(isMeant, true);
    if (int const row = PlaceOf(focused); row >= 0)
    {
        SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        EnsureVisible(row, FALSE);
    }
    m_filling = outer;
}

/// Selects rows; what else is selected stays so, or not. Of two ways the one that changes fewer rows one by one.
void CRecordingList::SelectRows(std::vector<bool> const & isMeant, bool othersStay)
{
    Batch const batch(*this);
    m_touched = true;
    bool const startsWithAll =
        2 * std::ranges::count(isMeant, true) > std::ssize(isMeant) && (!othersStay || GetSelectedCount() == 0);
    if (startsWithAll || !othersStay)
    {
        SetItemState(-1, startsWithAll ? LVIS_SELECTED : 0, LVIS_SELECTED);
    }
    for (std::size_t row = 0; row < isMeant.size(); ++row)
    {
        if (isMeant[row] != startsWithAll)
        {
            SetItemState(static_cast<int>(row), startsWithAll ? 0 : LVIS_SELECTED, LVIS_SELECTED);
        }
    }
}

/// Has lines selected in place of all others, as soon as they have rows.
void CRecordingList::HoldLines(std::vector<int> const & lines, int focused)
{
    bool const outer = std::exchange(m_filling, true);
    ClearSelection();
    m_filling = outer;
    for (Source & source : m_sources)
    {
        source.isHeld = false;
    }
    for (int const line : lines)
    {
        if (line >= 0 && line < LineCount())
        {
            m_sources[static_cast<std::size_t>(line)].isHeld = true;
        }
    }
    if (focused >= 0 && focused < LineCount())
    {
        m_sources[static_cast<std::size_t>(focused)].isHeld = true;
    }
    m_heldFocus = focused;
    m_holds = true;
    Tell(changed_selection);
}

/// Gives the other selected recordings the rating that one of them has been given.
void CRecordingList::RateSelected(int row, int rating)
{
    if (GetSelectedCount() < 2 || GetItemState(row, LVIS_SELECTED) == 0)
    {
        return;
    }
    Batch const batch(*this);
    for (int const line : SelectedLines())
    {
        Notes const before = NotesOf(line);
        if (PlaceOf(line) != row && before.rating != rating && IsReadable(line))
        {
            Notes after = before;
            after.rating = rating;
            SetNotes(line, after);
            m_history.Note(line, before, after);
        }
    }
    ShowNotes();
}

/// Whether a line is one about which something can be said; that is not known before it is read.
bool CRecordingList::IsReadable(int line) const
{
    auto const & analysis = m_sources[static_cast<std::size_t>(line)].analysis;
    return !(analysis && analysis->problem);
}

/// Takes notes over for a line, which ShowNotes shows.
void CRecordingList::SetNotes(int line, Notes const & notes)
{
    auto const known = static_cast<std::size_t>(line);
    Source & source = m_sources[known];
    workbench::RecordingNotes const former = std::exchange(m_notes[known], notes);
    if (notes.comment != former.comment)
    {
        source.searched = workbench::SearchedText(source.file, notes.comment);
    }
    m_noted.push_back(line);
    if (IsReadable(line))
    {
        m_totals.SetChecked(known, notes.checked);
        NoteNews(line, (notes.checked != former.checked ? new_mark : 0U) |
                           (notes.rating != former.rating ? new_rating : 0U) |
                           (notes.comment != former.comment ? new_comment : 0U));
    }
    if (notes.reference != former.reference)
    {
        // Of two folders with a reference each, the second one's is none.
        int const taken = notes.reference && IsReadable(line) ? line : -1;
        if (taken >= 0 || m_reference == line)
        {
            NoteNews(std::exchange(m_reference, taken), new_reference);
        }
        NoteNews(line, new_reference);
    }
}

/// What a line's row has yet to show; nothing where it has none, or its recording cannot be read.
void CRecordingList::NoteNews(int line, unsigned news)
{
    if (line >= 0 && IsReadable(line) && m_sources[static_cast<std::size_t>(line)].hasRow)
    {
        m_sources[static_cast<std::size_t>(line)].newNotes |= news;
    }
}

void CRecordingList::Apply(workbench::ListStep const & step)
{
    {
        Batch const batch(*this);
        m_touched = true;
        // The reference goes from one line before it comes to another.
        for (bool const isReference : {false, true})
        {
            for (workbench::NotesChange const & change : step.notes)
            {
                if (change.after.reference == isReference && change.line < LineCount())
                {
                    SetNotes(change.line, change.after);
                }
            }
        }
        ShowNotes();
        ShowReference();
    }
    if (step.order)
    {
        SetOrder(step.order->after);
    }
    if (step.notes.size() == 1)
    {
        if (int const row = PlaceOf(step.notes.front().line); row >= 0)
        {
            EnsureVisible(row, FALSE);
        }
    }
    Tell(changed_marks | changed_order);
}

bool CRecordingList::Undo()
{
    EndEditing();
    std::optional<workbench::ListStep> const step = m_history.Undo();
    if (step)
    {
        Apply(*step);
    }
    return step.has_value();
}

bool CRecordingList::Redo()
{
    EndEditing();
    std::optional<workbench::ListStep> const step = m_history.Redo();
    if (step)
    {
        Apply(*step);
    }
    return step.has_value();
}

/// Whether what is typed goes on with a name.
bool CRecordingList::IsTyping() const
{
    return !m_typed.empty() && ::GetTickCount() - m_typedAt <= typing_pause;
}

/// Looks for the next line whose name begins as the user types. The same letter again goes to the next one.
void CRecordingList::OnChar(UINT character, UINT, UINT)
{
    if (!IsTyping())
    {
        m_typed.clear();
    }
    // The space bar marks, unless it belongs to a name.
    if (character < L' ' || (character == L' ' && m_typed.empty()))
    {
        return;
    }
    m_typedAt = ::GetTickCount();
    m_typed += workbench::FoldedText(std::wstring(1, static_cast<wchar_t>(character)));
    std::vector<int> const lines = ShownLines();
    bool const again = m_typed.find_first_not_of(m_typed.front()) == m_typed.npos && m_typed.size() > 1;
    std::wstring const wanted = again ? m_typed.substr(0, 1) : m_typed;
    std::size_t const count = lines.size();
    auto const place = std::ranges::find(lines, ChosenLine());
    auto const chosen = place != lines.end() ? static_cast<std::size_t>(place - lines.begin()) : 0;
    for (std::size_t i = m_typed.size() == 1 || again ? 1 : 0; count > 0 && i <= count; ++i)
    {
        int const line = lines[(chosen + i) % count];
        if (m_sources[static_cast<std::size_t>(line)].searched.starts_with(wanted))
        {
            ChooseLine(line);
            return;
        }
    }
}
