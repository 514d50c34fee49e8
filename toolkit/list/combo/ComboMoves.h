#pragma once
// What wheel, keys and scroll bar do to the list of a drop-down, in numbers. Internal to the module.

#include <functional>
#include <optional>

namespace XListCtrl::combo_moves
{
/// How the rows of an open list stand.
struct ListRows
{
    int selected; // -1: none
    int top;
    int visible;
    int count;
};

/// Adds a wheel message's delta to what was collected. 1: a step up, -1: a step down, 0: none yet. A step uses up all
/// that was collected, however much it was.
int WheelStep(int & collected, int delta);

/// The first row that the wheel shows next.
int TopAfterWheel(ListRows const & rows, bool up);

/// The row that a page key selects in an open list.
std::optional<int> RowAfterPageKey(ListRows const & rows, bool down);

/// What is known of a row of the list.
enum class RowState
{
    enabled,
    disabled,
    absent // outside the list
};

/// The row that is selected instead of `wanted` with `selected` before: the next one in the direction of the move that
/// is not disabled, or `wanted` itself if there is none.
int RowToSelect(int wanted, int selected, std::function<RowState(int)> const & state);

/// The numbers of a scroll bar.
struct ScrollState
{
    int position;
    int minimum;
    int maximum;
    int page;
};

/// The position that a scroll code (SB_...) gives; nothing for codes that move nothing. position: the message's.
std::optional<int> PositionAfterScroll(int code, int position, ScrollState const & state);
} // namespace XListCtrl::combo_moves
