#include "list/CursorMoves.h"

#include <algorithm>

namespace cursor_moves
{
namespace
{
/// The place of a column among those that show, or their number.
std::size_t PlaceOf(Grid const & grid, int col)
{
    return static_cast<std::size_t>(std::find(grid.columns.begin(), grid.columns.end(), col) - grid.columns.begin());
}
} // namespace

int ColumnAfter(Grid const & grid, int col, MoveKey key, bool control)
{
    std::size_t const count = grid.columns.size();
    if (count == 0)
        return -1;
    std::size_t const place = PlaceOf(grid, col);
    bool const toFirst = key == MoveKey::home || (key == MoveKey::left && control);
    bool const toLast = key == MoveKey::end || (key == MoveKey::right && control);
    if (toLast)
        return grid.columns.back();
    if (toFirst || place == count)
        return grid.columns.front();
    if (key == MoveKey::left)
        return grid.columns[place > 0 ? place - 1 : 0];
    return grid.columns[std::min(place + 1, count - 1)];
}

std::optional<Place> NextChangeable(Grid const & grid, Place from, bool forward,
                                    std::function<bool(int, int)> const & canBeChanged)
{
    auto const count = static_cast<std::ptrdiff_t>(grid.columns.size());
    std::ptrdiff_t const step = forward ? 1 : -1;
    auto place = static_cast<std::ptrdiff_t>(PlaceOf(grid, from.second));
    // A column that does not show stands ahead of all.
    if (place == count)
        place = -1;
    for (int row = std::max(from.first, 0); row >= 0 && row < grid.rowCount; row += forward ? 1 : -1)
    {
        for (place += step; place >= 0 && place < count; place += step)
        {
            int const col = grid.columns[static_cast<std::size_t>(place)];
            if (canBeChanged(row, col))
                return Place{row, col};
        }
        place = forward ? -1 : count;
    }
    return {};
}

bool CanBeChanged(CellPress press)
{
    switch (press)
    {
    case CellPress::open_combo:
    case CellPress::open_edit:
    case CellPress::flip_check:
    case CellPress::switch_radio_on:
        return true;
    case CellPress::follow_link:
    case CellPress::ignored:
    case CellPress::select_only:
        break;
    }
    return false;
}

bool Acts(ActKey key, CellPress press)
{
    switch (press)
    {
    case CellPress::flip_check:
    case CellPress::switch_radio_on:
        return key == ActKey::space;
    case CellPress::open_edit:
        return key == ActKey::edit || key == ActKey::character;
    case CellPress::open_combo:
        return key == ActKey::edit || key == ActKey::drop_down;
    case CellPress::follow_link:
        return key == ActKey::enter;
    case CellPress::ignored:
    case CellPress::select_only:
        break;
    }
    return false;
}
} // namespace cursor_moves
