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

} // namespace

void CRecordingList::Renumber(std::vector<int> const & numbers)
{
    if (numbers.size() != m_notes.size())
    {
        return;
    }
    CancelToolTips();
    EndEditing();
    EndDrag();
    FinishRows();
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
    auto const outer = std::exchange(m_filling, true);
    for (auto row = GetItemCount(); row > 0; --row)
    {
        if (auto const number = numberOf(LineAt(row - 1)); number >= 0)
        {
            SetItemData(row - 1, number + 1);
        }
        else
        {
            DeleteItem(row - 1);
        }
    }
    m_filling = outer;
    auto const count = static_cast<std::size_t>(std::ranges::count_if(numbers, [](int number) { return number >= 0; }));
    ::Renumber(m_notes, numbers, count);
    ::Renumber(m_sources, numbers, count);
    m_totals.Renumber(numbers);
    m_places.assign(count, -1);
    renumberAll(m_order);
    renumberAll(m_noted);
    for (auto * const line : {&m_reference, &m_boldLine, &m_menuLine, &m_editedLine, &m_heldFocus})
    {
        *line = numberOf(*line);
    }
    if (m_menuGeneration == m_generation++)
    {
        m_menuGeneration = m_generation;
    }
    m_history.Renumber(numbers);
    Tell(changed_selection | changed_marks);
}

void CRecordingList::ScrollToLine(int line)
{
    auto const row = PlaceOf(line);
    auto const top = GetTopIndex();
    auto const height = EdgeOf(top + 1) - EdgeOf(top);
    if (row >= 0 && row != top && height > 0)
    {
        Scroll(CSize(0, (row - top) * height));
    }
}

bool CRecordingList::IsInSight(int line) const
{
    auto const row = PlaceOf(line);
    return row >= GetTopIndex() && row < GetTopIndex() + GetCountPerPage() && row >= 0;
}
