#include "logic/RecordingTotals.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace workbench
{

void RecordingTotals::Clear()
{
    *this = {};
}

void RecordingTotals::Append(bool checked)
{
    Line line;
    line.checked = checked;
    Count(m_lines.emplace_back(line), true);
}

void RecordingTotals::Renumber(std::vector<int> const & numbers)
{
    auto const before = std::exchange(m_lines, {});
    auto const isThere = [](int number) { return number >= 0; };
    m_lines.resize(static_cast<std::size_t>(std::ranges::count_if(numbers, isThere)));
    for (std::size_t line = 0; line < before.size() && line < numbers.size(); ++line)
    {
        if (isThere(numbers[line]))
        {
            m_lines[static_cast<std::size_t>(numbers[line])] = before[line];
        }
        else
        {
            Count(before[line], false);
        }
    }
}

void RecordingTotals::SetState(std::size_t line, State state, std::uint64_t milliseconds)
{
    if (line >= m_lines.size())
    {
        return;
    }
    Line & changed = m_lines[line];
    Count(changed, false);
    changed.state = state;
    changed.milliseconds = milliseconds;
    changed.checked = changed.checked && state != State::unreadable;
    Count(changed, true);
}

void RecordingTotals::SetChecked(std::size_t line, bool checked)
{
    if (line >= m_lines.size() || m_lines[line].state == State::unreadable)
    {
        return;
    }
    Line & changed = m_lines[line];
    Count(changed, false);
    changed.checked = checked;
    Count(changed, true);
}

RecordingTotals::State RecordingTotals::StateOf(std::size_t line) const
{
    return line < m_lines.size() ? m_lines[line].state : State::unread;
}

/// Takes a line into the counts or out of them.
void RecordingTotals::Count(Line const & line, bool in)
{
    auto const add = [in](auto & sum, std::uint64_t amount) {
        sum = static_cast<std::remove_reference_t<decltype(sum)>>(in ? sum + amount : sum - amount);
    };
    add(m_unread, line.state == State::unread ? 1 : 0);
    add(m_unreadable, line.state == State::unreadable ? 1 : 0);
    add(m_checked, line.checked ? 1 : 0);
    add(m_checkedMilliseconds, line.checked ? line.milliseconds : 0);
}

} // namespace workbench
