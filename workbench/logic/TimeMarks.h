#pragma once
// What plots of one recording have in common: the part shown, the cursor and what is selected.

#include <cstdint>
#include <optional>

#include "logic/TimeWindow.h"

namespace workbench
{

/// The marks of a recording's plots. The selection reaches from the cursor to its other end.
struct TimeMarks
{
    TimeWindow window;
    std::uint64_t cursor = 0;
    std::optional<std::uint64_t> other; ///< where the selection began

    explicit TimeMarks(std::uint64_t frames = 0) : window(frames) {}

    bool HasSelection() const { return other && *other != cursor; }

    /// From the earlier to the later end; empty without a selection.
    FrameRange Selection() const
    {
        return !HasSelection()   ? FrameRange{cursor, cursor}
               : *other < cursor ? FrameRange{*other, cursor}
                                 : FrameRange{cursor, *other};
    }

    bool operator==(TimeMarks const &) const = default;
};

} // namespace workbench
