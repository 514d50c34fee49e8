#include "logic/ListHistory.h"

#include <algorithm>
#include <utility>

namespace workbench
{

namespace
{

/// The step that leads back.
ListStep Reversed(ListStep step)
{
    for (NotesChange & change : step.notes)
    {
        std::swap(change.before, change.after);
    }
    if (step.order)
    {
        std::swap(step.order->before, step.order->after);
    }
    return step;
}

} // namespace

std::size_t ListHistory::SizeOf(ListStep const & step)
{
    return step.notes.size() + (step.order ? step.order->before.lines.size() + step.order->after.lines.size() : 0) + 1;
}

void ListHistory::Note(int line, RecordingNotes const & before, RecordingNotes const & after)
{
    auto const [place, isNew] = m_openLines.emplace(line, m_open.notes.size());
    if (isNew)
    {
        m_open.notes.push_back({line, before, after});
    }
    else
    {
        m_open.notes[place->second].after = after;
    }
}

void ListHistory::NoteOrder(ListOrder before, ListOrder after)
{
    if (m_open.order)
    {
        m_open.order->after = std::move(after);
    }
    else
    {
        m_open.order = {std::move(before), std::move(after)};
    }
}

void ListHistory::EndStep()
{
    ListStep step = std::exchange(m_open, {});
    m_openLines.clear();
    std::erase_if(step.notes, [](NotesChange const & change) { return change.before == change.after; });
    if (step.order && step.order->before == step.order->after)
    {
        step.order.reset();
    }
    if (step.IsEmpty())
    {
        return;
    }
    m_undone.clear();
    m_size += SizeOf(step);
    m_done.push_back(std::move(step));
    while (m_done.size() > 1 && (m_done.size() > most_steps || m_size > most_changes))
    {
        m_size -= SizeOf(m_done.front());
        m_done.pop_front();
    }
}

void ListHistory::Clear()
{
    *this = {};
}

void ListHistory::Renumber(ListStep & step, std::vector<int> const & numbers)
{
    auto const numberOf = [&numbers](int line) {
        bool const isLine = line >= 0 && static_cast<std::size_t>(line) < numbers.size();
        return isLine ? numbers[static_cast<std::size_t>(line)] : -1;
    };
    for (NotesChange & change : step.notes)
    {
        change.line = numberOf(change.line);
    }
    std::erase_if(step.notes, [](NotesChange const & change) { return change.line < 0; });
    if (step.order)
    {
        for (std::vector<int> * const lines : {&step.order->before.lines, &step.order->after.lines})
        {
            std::ranges::transform(*lines, lines->begin(), numberOf);
            std::erase_if(*lines, [](int line) { return line < 0; });
        }
        if (step.order->before == step.order->after)
        {
            step.order.reset();
        }
    }
}

void ListHistory::Renumber(std::vector<int> const & numbers)
{
    EndStep();
    m_size = 0;
    for (ListStep & step : m_done)
    {
        Renumber(step, numbers);
        m_size += SizeOf(step);
    }
    for (ListStep & step : m_undone)
    {
        Renumber(step, numbers);
    }
    std::size_t const sizeBefore = m_done.size();
    std::erase_if(m_done, [](ListStep const & step) { return step.IsEmpty(); });
    m_size -= sizeBefore - m_done.size(); // an empty one counts 1
    std::erase_if(m_undone, [](ListStep const & step) { return step.IsEmpty(); });
}

std::optional<ListStep> ListHistory::Undo()
{
    EndStep();
    if (m_done.empty())
    {
        return std::nullopt;
    }
    ListStep step = std::move(m_done.back());
    m_done.pop_back();
    m_size -= SizeOf(step);
    m_undone.push_back(step);
    return Reversed(std::move(step));
}

std::optional<ListStep> ListHistory::Redo()
{
    EndStep();
    if (m_undone.empty())
    {
        return std::nullopt;
    }
    ListStep step = std::move(m_undone.back());
    m_undone.pop_back();
    m_size += SizeOf(step);
    m_done.push_back(step);
    return step;
}

} // namespace workbench
