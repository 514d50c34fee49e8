#pragma once
// How the report list's cell cursor moves, and what keys do at its cell, as decisions that know no window. Internal to
// the module.

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "list/CellKind.h"

namespace cursor_moves
{
/// Row and column.
using Place = std::pair<int, int>;

/// Rows, and the columns that show, from left to right.
struct Grid
{
    int rowCount = 0;
    std::vector<int> columns;
};

/// Keys that move along a row.
enum class MoveKey
{
    left,
    right,
    home,
    end
};

/// The column that a key leads to; with the control key the first or the last one. From a column that does not show,
/// the first one. -1 where none shows.
int ColumnAfter(Grid const & grid, int col, MoveKey key, bool control);

/// The next cell in reading order, or the one before, that can be changed; nothing behind the last one.
std::optional<Place> NextChangeable(Grid const & grid, Place from, bool forward,
                                    std::function<bool(int, int)> const & canBeChanged);

/// Whether the user can change a cell on which a press does that.
bool CanBeChanged(CellPress press);

/// Keys that do at a cell what a press does, each at cells of its kinds.
enum class ActKey
{
    /// Ticks.
    space,
    /// Opens the edit, or the combo.
    edit,
    /// A character that is typed.
    character,
    /// Alt and the arrow down, or up.
    drop_down,
    enter
};
/// Whether the key acts on a cell on which a press does that.
bool Acts(ActKey key, CellPress press);
} // namespace cursor_moves
