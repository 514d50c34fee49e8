#pragma once
// The marks that list cells and column headers share. Internal to the list family.

#include <afxwin.h>

namespace check_marks
{
/// At 96 dots an inch.
constexpr int box_size = 13;
/// How far the cross ends before the box's right edge: in cells, and in headers.
constexpr int cross_inset_cell = 3;
constexpr int cross_inset_header = 4;

/// A frame one pixel wide at 96 dots an inch.
void DrawFrame(CDC & dc, CRect const & box, COLORREF color, UINT dpi = 96);
/// Nothing in a box that is too narrow.
void DrawTick(CDC & dc, CRect const & box, COLORREF color, UINT dpi = 96);
/// rightInset: at 96 dots an inch.
void DrawCross(CDC & dc, CRect const & box, int rightInset, COLORREF color, UINT dpi = 96);
} // namespace check_marks
