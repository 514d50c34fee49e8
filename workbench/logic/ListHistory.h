#pragma once
// What the user has done to the list of recordings, to be undone and done again.

#include <cstddef>
#include <deque>
#include <optional>
#include <unordered_map>
#include <vector>

#include "logic/RecordingNotes.h"

namespace workbench
{

/// The order of the list's lines.
struct ListOrder
{
    int column = -1; ///< by which they are sorted; negative: by none
    bool ascending = true;
    std::vector<int> lines; ///< from top to bottom

    bool operator==(ListOrder const &) const = default;
};

/// What has become of the notes about a recording.
struct NotesChange
{
    int line;
    RecordingNotes before;
    RecordingNotes after;

    bool operator==(NotesChange const &) const = default;
};

/// What one gesture of the user has changed.
struct ListStep
{
    struct OrderChange
    {
        ListOrder before;
        ListOrder after;

        bool operator==(OrderChange const &) const = default;
    };

    std::vector<NotesChange> notes; ///< at most one for each line
    std::optional<OrderChange> order;

    bool IsEmpty() const { return notes.empty() && !order; }
    bool operator==(ListStep const &) const = default;
};

/// The steps back and forth. What changes until EndStep is one step.
class ListHistory
{
public:
    /// Older steps are forgotten.
    static constexpr std::size_t most_steps = 200;
    /// As are those before that many changes, the last step aside.
    static constexpr std::size_t most_changes = 100'000;

    void Note(int line, RecordingNotes const & before, RecordingNotes const & after);
    void NoteOrder(ListOrder before, ListOrder after);
    void EndStep();
    void Clear();
    /// Lines have other numbers from now on, by their present ones; those below 0 are gone, and what was done to them.
    void Renumber(std::vector<int> const & numbers);

    bool CanUndo() const { return !m_done.empty() || !m_open.IsEmpty(); }
    bool CanRedo() const { return !m_undone.empty() && m_open.IsEmpty(); }

    /// Takes a step back. Gives what is to be done, in which "after" is what is to be; nothing if there is no step.
    std::optional<ListStep> Undo();
    /// Does a step again that was taken back.
    std::optional<ListStep> Redo();

private:
    static std::size_t SizeOf(ListStep const & step);
    static void Renumber(ListStep & step, std::vector<int> const & numbers);

    ListStep m_open;
    std::unordered_map<int, std::size_t> m_openLines; ///< the places of lines in the open step
    std::deque<ListStep> m_done;
    std::vector<ListStep> m_undone; ///< the next one last
    std::size_t m_size = 0;         ///< changes in the steps done
};

} // namespace workbench
