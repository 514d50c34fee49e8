#pragma once
// What is known of all recordings together, kept up to date line by line.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace workbench
{

/// Counts and sums over a list of recordings. Every change costs the same, however many recordings there are. A line
/// that does not exist is ignored.
class RecordingTotals
{
public:
    enum class State : unsigned char
    {
        unread,
        readable,
        unreadable ///< cannot be checked
    };

    void Clear();

    /// Adds an unread line at the end.
    void Append(bool checked);

    /// Gives lines other numbers, by their present ones; those below 0 go. The numbers that are left are all there.
    void Renumber(std::vector<int> const & numbers);

    /// Says what came of reading a line; an unreadable one is no longer checked.
    void SetState(std::size_t line, State state, std::uint64_t milliseconds);
    void SetChecked(std::size_t line, bool checked);

    State StateOf(std::size_t line) const;
    bool IsChecked(std::size_t line) const { return line < m_lines.size() && m_lines[line].checked; }

    std::size_t Lines() const { return m_lines.size(); }
    std::size_t Unread() const { return m_unread; }
    std::size_t Unreadable() const { return m_unreadable; }
    std::size_t Checked() const { return m_checked; }
    std::uint64_t CheckedMilliseconds() const { return m_checkedMilliseconds; }

private:
    struct Line
    {
        State state = State::unread;
        bool checked = false;
        std::uint64_t milliseconds = 0;
    };

    void Count(Line const & line, bool in);

    std::vector<Line> m_lines;
    std::size_t m_unread = 0;
    std::size_t m_unreadable = 0;
    std::size_t m_checked = 0;
    std::uint64_t m_checkedMilliseconds = 0;
};

} // namespace workbench
