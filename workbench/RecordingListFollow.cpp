// The list's lines while their folder changes.

#include "RecordingList.h"

#include <algorithm>
#include <utility>

namespace
{

/// What belongs to lines, for lines with other numbers.
template <typename Element>
void Renumber(std::vector<Element> & elements, std::vector<int> const & numbers, std::size_t count)
{
    std::vector<Element> renumbered(count);
    for (std::size_t line = 0; line < elements.size() && line < numbers.size(); ++line)
    {
        if (numbers[line] >= 0)
        {
            renumbered[static_cast<std::size_t>(numbers[line])] = std::move(elements[line]);
        }
    }
    elements = std::move(renumbered);
}

// More rows that go have all made anew.
constexpr std::ptrdiff_t few_gone = 100;

} // namespace

/// Selects the rows that are held, where none is selected.
void CRecordingList::ShowHeldSelection(int focused)
{
    for (int row = 0; row < GetItemCount(); ++row)
    {
        if (m_sources[static_cast<std::size_t>(LineAt(row))].isHeld)
        {
            SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        }
    }
    if (focused >= 0)
    {
        SetItemState(focused, LVIS_FOCUSED, LVIS_FOCUSED);
    }
}

/// The line of a row, or of the next one below it that doesn't go, or else above it; -1 if all go.
int CRecordingList::StayingLineNear(int row, std::vector<int> const & numbers) const
{
    auto const stays = [&](int place) {
        int const line = LineAt(place);
        return line >= 0 && numbers[static_cast<std::size_t>(line)] >= 0;
    };
    for (int place = row; place < GetItemCount(); ++place)
    {
        if (stays(place))
        {
            return LineAt(place);
        }
    }
    for (int place = row; place >= 0; --place)
    {
        if (stays(place))
        {
            return LineAt(place);
        }
    }
    return -1;
}

void CRecordingList::Renumber(std::vector<int> const & numbers)
{
    if (numbers.size() != m_notes.size())
    {
        return;
    }
    CancelToolTips();
    EndEditing();
    EndDrag();
    auto const numberOf = [&numbers](int line) {
        return line >= 0 && static_cast<std::size_t>(line) < numbers.size() ? numbers[static_cast<std::size_t>(line)]
                                                                            : -1;
    };
    auto const renumberAll = [&numberOf](std::vector<int> & lines) {
        std::ranges::transform(lines, lines.begin(), numberOf);
        std::erase_if(lines, [](int line) { return line < 0; });
    };
    Batch const batch(*this);
    m_touched = true;
    bool const outer = std::exchange(m_filling, true);
    auto const gone = std::ranges::count_if(numbers, [](int number) { return number < 0; });
    bool const makesAnew = gone > few_gone;
    int focused = GetNextItem(-1, LVNI_FOCUSED);
    int const nextFocused = makesAnew && focused >= 0 ? StayingLineNear(focused, numbers) : -1;
    // The system's list view looks at all that are selected whenever a row goes.
    bool const holds = gone > 0 && (makesAnew || focused >= 0 || GetSelectedCount() > 0);
    if (holds)
    {
        HoldSelection();
        if (!makesAnew)
        {
            SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
        }
    }
    for (int row = makesAnew ? 0 : GetItemCount(); row > 0; --row)
    {
        if (int const number = numberOf(LineAt(row - 1)); number >= 0)
        {
            SetItemData(row - 1, number + 1);
        }
        else
        {
            DeleteItem(row - 1);
            focused -= row <= focused ? 1 : 0;
        }
    }
    auto const count = static_cast<std::size_t>(std::ranges::count_if(numbers, [](int number) { return number >= 0; }));
    ::Renumber(m_notes, numbers, count);
    ::Renumber(m_sources, numbers, count);
    m_totals.Renumber(numbers);
    m_places.assign(count, -1);
    auto const filled = m_wanted.begin() + static_cast<std::ptrdiff_t>(std::min(m_filled, m_wanted.size()));
    m_filled = static_cast<std::size_t>(
        std::count_if(m_wanted.begin(), filled, [&numberOf](int line) { return numberOf(line) >= 0; }));
    renumberAll(m_wanted);
    renumberAll(m_order);
    renumberAll(m_noted);
    m_refreshed = 0;
    for (int * const line : {&m_reference, &m_boldLine, &m_menuLine, &m_editedLine, &m_heldFocus, &m_wantedTop})
    {
        *line = numberOf(*line);
    }
    if (m_menuGeneration == m_generation++)
    {
        m_menuGeneration = m_generation;
    }
    m_history.Renumber(numbers);
    if (makesAnew)
    {
        // The one that is to get the focus may have no row yet.
        m_heldFocus = m_heldFocus >= 0 && !m_wanted.empty() ? m_heldFocus : numberOf(nextFocused);
        MakeRowsAnew(ShownLines());
    }
    else if (holds)
    {
        ShowHeldSelection(std::min(focused, GetItemCount() - 1));
    }
    m_filling = outer;
    Tell(changed_selection | changed_marks);
}

void CRecordingList::ScrollToLine(int line)
{
    int const row = PlaceOf(line);
    bool const isToCome = line >= 0 && line < LineCount() && m_sources[static_cast<std::size_t>(line)].shown;
    m_wantedTop = row < 0 && isToCome ? line : -1;
    int const top = GetTopIndex();
    int const height = EdgeOf(top + 1) - EdgeOf(top);
    if (row >= 0 && row != top && height > 0)
    {
        Scroll(CSize(0, (row - top) * height));
    }
}

bool CRecordingList::IsInSight(int line) const
{
    int const row = PlaceOf(line);
    return row >= GetTopIndex() && row < GetTopIndex() + GetCountPerPage() && row >= 0;
}
