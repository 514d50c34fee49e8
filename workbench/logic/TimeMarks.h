#pragma once
// What plots of one recording have in common: the part shown, the cursor and what is selected.

#include <cstdint>
#include <optional>

#include "logic/TimeWindow.h"

namespace workbench
{

/// The marks of a recording's plots. The selection reaches from where it began to the cursor, or to where the cursor
/// was before it went elsewhere on its own.
struct TimeMarks
{
    TimeWindow window;
    std::uint64_t cursor = 0;
    std::optional<std::uint64_t> other; ///< where the selection began
    std::uint64_t end = 0;              ///< where it ends, if that is not the cursor; else 0
    bool endsElsewhere = false;         ///< than at the cursor

    explicit TimeMarks(std::uint64_t frames = 0) : window(frames) {}

    std::uint64_t SelectionEnd() const { return endsElsewhere ? end : cursor; }
    bool HasSelection() const { return other && *other != SelectionEnd(); }

    /// From the earlier to the later end; empty without a selection.
    FrameRange Selection() const
    {
        std::uint64_t const last = SelectionEnd();
        std::uint64_t const first = HasSelection() ? *other : cursor;
        return !HasSelection() ? FrameRange{cursor, cursor}
               : first < last  ? FrameRange{first, last}
                               : FrameRange{last, first};
    }

    /// Selects nothing any more.
    void Unselect()
    {
        other.reset();
        EndAtCursor();
    }

    /// Moves the cursor and the selection's end with it; without a selection, one begins where the cursor is.
    void SelectTo(std::uint64_t frame)
    {
        other = other.value_or(cursor);
        EndAtCursor();
        cursor = frame;
    }

    /// Moves the cursor alone; the selection stays.
    void MoveCursorAlone(std::uint64_t frame)
    {
        if (HasSelection())
        {
            end = SelectionEnd();
            endsElsewhere = true;
        }
        else
        {
            Unselect();
        }
        cursor = frame;
    }

    bool operator==(TimeMarks const &) const = default;

private:
    void EndAtCursor()
    {
        end = 0;
        endsElsewhere = false;
    }
};

} // namespace workbench
