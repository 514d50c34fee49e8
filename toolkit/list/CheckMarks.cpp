#include "list/CheckMarks.h"

#include <algorithm>

#include "frame/GraphicsScopes.h"
#include "layout/Resolution.h"

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
void DrawFrame(CDC & dc, CRect const & box, COLORREF color, UINT dpi)
{
    CBrush brush(color);
    CRect frame = box;
    for (int line = resolution::LineWidth(1, dpi); line > 0 && !frame.IsRectEmpty(); --line)
    {
        dc.FrameRect(frame, &brush);
        frame.DeflateRect(1, 1);
    }
}

void DrawTick(CDC & dc, CRect const & box, COLORREF color, UINT dpi)
{
    int const startX = resolution::Scaled(10, dpi) - 1;
    int const startY = resolution::Scaled(3, dpi);
    int const thickness = resolution::LineWidth(3, dpi);
    int const longArm = resolution::Scaled(4, dpi);
    int const shortArm = resolution::Scaled(3, dpi);

    int x = box.left + startX;
    int y = box.top + startY;
    if (x >= box.right)
        return;
    PenScope const pen(dc, color);
    for (int step = 0; step < longArm; ++step)
    {
        DrawLine(dc, x, y, x, y + thickness);
        --x;
        ++y;
    }
    for (int step = 0; step < shortArm; ++step)
    {
        DrawLine(dc, x, y, x, y + thickness);
        --x;
        --y;
    }
}

void DrawCross(CDC & dc, CRect const & box, int rightInset, COLORREF color, UINT dpi)
{
    int const inset = resolution::Scaled(3, dpi);
    int const thickness = std::max(resolution::Scaled(2, dpi), 1);

    int const x1 = box.left + inset;
    int const x2 = box.right - resolution::Scaled(rightInset, dpi) - (thickness - 1) / 2;
    int const y1 = box.top + inset;
    int const y2 = box.bottom - inset;
    if (x1 >= x2)
        return;
    PenScope const pen(dc, color);
    for (int line = 0; line < thickness; ++line)
        DrawLine(dc, x1 + line, y1, x2 + line, y2);
    for (int line = 0; line < thickness; ++line)
        DrawLine(dc, x2 - 1 + line, y1, x1 - 1 + line, y2);
}
} // namespace check_marks
