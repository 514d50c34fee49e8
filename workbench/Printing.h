#pragma once

#include <afxwin.h>

#include "PictureCopy.h"

namespace workbench
{

/// The size, in pixels of the screen, of what stands inside the margins of a sheet of A4 in landscape.
CSize PageSize();

/// The margins' part of the sheet's width is that of `page_margin` millimetres in `paper_width`.
inline constexpr int paper_width = 297;
inline constexpr int paper_height = 210;
inline constexpr int page_margin = 12;

/// Draws something of a size in pixels into a place of any device: texts and lines keep their proportions. False if
/// that failed.
bool DrawScaled(CDC & device, CRect const & place, CSize size, Drawing const & draw);

/// Lets the user choose a printer and prints a page in landscape. Tells of what goes wrong. False if nothing was
/// printed.
bool PrintPage(CWnd & owner, CString const & title, Drawing const & draw);

} // namespace workbench
