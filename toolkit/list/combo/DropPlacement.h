#pragma once
// Where the drop window of an advanced combo box stands, and how its grip sizes it: functions of numbers. Internal to
// the module.

namespace XListCtrl
{
/// Lengths and places are screen pixels.
struct DropRequest
{
    /// The combo's left edge, its bottom, and the width that the drop window has to begin with.
    int x = 0;
    int y = 0;
    int cx = 0;
    int comboWidth = 0;
    int comboHeight = 0;
    /// The edges of the work area of the monitor at (x, y).
    int workRight = 0;
    int workBottom = 0;
    int itemCount = 0;
    int itemHeight = 0;
    /// The width of the widest text, with what the combo adds to each.
    int widestText = 0;
    /// Rows to show at most; -1: all.
    int maxVisible = -1;
    /// With fewer rows of room below the combo the window opens upwards.
    int minVisible = 0;
    /// The widths of the list as it was created and of the scroll bar, and the system's height of a scroll bar's arrow
    /// (SM_CYVSCROLL).
    int listWidth = 0;
    int scrollWidth = 0;
    int arrowHeight = 0;
    /// Dots an inch.
    unsigned int dpi = 96;
};

struct DropPlace
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(DropPlace const &) const = default;
};

/// The drop window's rectangle. It reaches no further than the work area's right and bottom edges and the screen's top
/// edge; for a combo beyond these, width and height can be negative.
DropPlace PlaceDrop(DropRequest const & request);

/// How much larger than it opens the user may make the window, each way; at 96 dots an inch.
inline constexpr int drop_growth = 100;

struct GripRequest
{
    /// The window's present left and top edges.
    int left = 0;
    int top = 0;
    /// The size that the pointer asks for.
    int width = 0;
    int height = 0;
    int comboWidth = 0;
    long long maxWidth = 0;
    long long maxHeight = 0;
    /// The system's sizes of a vertical scroll bar's arrow (SM_CXVSCROLL, SM_CYVSCROLL).
    int arrowWidth = 0;
    int arrowHeight = 0;
};

struct GripResult
{
    int right = 0;
    int bottom = 0;

    bool operator==(GripResult const &) const = default;
};

/// The window's right and bottom edges while the user drags its grip.
GripResult SizeByGrip(GripRequest const & request);
} // namespace XListCtrl
