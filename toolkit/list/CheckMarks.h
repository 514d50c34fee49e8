#pragma once
// The marks that list cells and column headers share. Internal to the list family.

#include <afxwin.h>

namespace check_marks
{
constexpr int box_size = 13;
constexpr COLORREF frame_color = 0x996633;
constexpr COLORREF tick_color = 0x339933;
constexpr COLORREF cross_color = 0x333399;
/// How far the cross ends before the box's right edge: in cells, and in headers.
constexpr int cross_inset_cell = 3;
constexpr int cross_inset_header = 4;

/// A frame one pixel wide.
void DrawFrame(CDC & dc, CRect const & box, COLORREF color);
/// Nothing in a box that is too narrow.
void DrawTick(CDC & dc, CRect const & box, COLORREF color);
void DrawCross(CDC & dc, CRect const & box, int rightInset, COLORREF color);
} // namespace check_marks
