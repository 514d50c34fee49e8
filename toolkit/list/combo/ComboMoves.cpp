#include "list/combo/ComboMoves.h"

#include <afx.h>

#include <algorithm>

namespace XListCtrl::combo_moves
{
namespace
{
constexpr int rows_per_step = 3;

// The window system's SB_ codes.
constexpr int line_up = 0;
constexpr int line_down = 1;
constexpr int page_up = 2;
constexpr int page_down = 3;
constexpr int thumb_position = 4;
constexpr int thumb_track = 5;
} // namespace

int WheelStep(int & collected, int delta)
{
    collected += delta;
    if (collected >= WHEEL_DELTA)
    {
        collected = 0;
        return 1;
    }
    if (collected <= -WHEEL_DELTA)
    {
        collected = 0;
        return -1;
    }
    return 0;
}

int TopAfterWheel(ListRows const & rows, bool up)
{
    return up ? std::max(rows.top - rows_per_step, 0) : std::min(rows.top + rows_per_step, rows.count);
}

std::optional<int> RowAfterPageKey(ListRows const & rows, bool down)
{
    int const last = rows.count - 1;
    if (last < 0)
        return std::nullopt;
    int row = 0;
    if (down)
    {
        int const bottom = rows.top + rows.visible - 1;
        if (rows.selected == last)
            return std::nullopt;
        if (rows.selected == -1)
            row = 0;
        else if (rows.selected < bottom)
            row = bottom;
        else
            row = rows.top + 2 * rows.visible - 2;
        return std::min(row, last);
    }
    if (rows.selected == 0)
        return std::nullopt;
    if (rows.selected == -1)
        return last;
    return rows.selected == rows.top ? std::max(rows.top - rows.visible + 1, 0) : rows.top;
}

int RowToSelect(int wanted, int selected, std::function<RowState(int)> const & state)
{
    if (wanted == selected)
        return wanted;
    int const step = wanted < selected ? -1 : 1;
    for (int row = wanted;; row += step)
    {
        switch (state(row))
        {
        case RowState::enabled:
            return row;
        case RowState::absent:
            return wanted;
        case RowState::disabled:
            break;
        }
    }
}

std::optional<int> PositionAfterScroll(int code, int position, ScrollState const & state)
{
    switch (code)
    {
    case line_up:
        return std::max(state.position - 1, state.minimum);
    case line_down:
        return std::min(state.position + 1, state.maximum);
    case page_up:
        return std::max(state.position - state.page, state.minimum);
    case page_down:
        return std::min(state.position + state.page, state.maximum);
    case thumb_position:
    case thumb_track:
        return position;
    default:
        return std::nullopt;
    }
}
} // namespace XListCtrl::combo_moves
