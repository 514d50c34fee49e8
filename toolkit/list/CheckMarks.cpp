#include "list/CheckMarks.h"

#include "frame/GraphicsScopes.h"

namespace
{
/// The end point itself is not drawn.
void DrawLine(CDC & dc, int fromX, int fromY, int toX, int toY)
{
    dc.MoveTo(fromX, fromY);
    dc.LineTo(toX, toY);
}
} // namespace

namespace check_marks
{
void DrawFrame(CDC & dc, CRect const & box, COLORREF color)
{
    CBrush brush(color);
    dc.FrameRect(box, &brush);
}

void DrawTick(CDC & dc, CRect const & box, COLORREF color)
{
    constexpr int start_x = 9;
    constexpr int start_y = 3;
    constexpr int thickness = 3;
    constexpr int long_arm = 4;
    constexpr int short_arm = 3;

    int x = box.left + start_x;
    int y = box.top + start_y;
    if (x >= box.right)
        return;
    PenScope const pen(dc, color);
    for (int step = 0; step < long_arm; ++step)
    {
        DrawLine(dc, x, y, x, y + thickness);
        --x;
        ++y;
    }
    for (int step = 0; step < short_arm; ++step)
    {
        DrawLine(dc, x, y, x, y + thickness);
        --x;
        --y;
    }
}

void DrawCross(CDC & dc, CRect const & box, int rightInset, COLORREF color)
{
    constexpr int inset = 3;

    int const x1 = box.left + inset;
    int const x2 = box.right - rightInset;
    int const y1 = box.top + inset;
    int const y2 = box.bottom - inset;
    if (x1 >= x2)
        return;
    PenScope const pen(dc, color);
    DrawLine(dc, x1, y1, x2, y2);
    DrawLine(dc, x1 + 1, y1, x2 + 1, y2);
    DrawLine(dc, x2 - 1, y1, x1 - 1, y2);
    DrawLine(dc, x2, y1, x1, y2);
}
} // namespace check_marks
