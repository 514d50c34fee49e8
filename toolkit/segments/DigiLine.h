#pragma once
// A line of segment characters and its place: what the displays work out before they paint. Internal to the module.

#include <afx.h>
#include <afxtempl.h>
#include <atltypes.h>

#include "segments/DigiChar.h"

namespace DigiStatic
{
/// Where a line starts, in device units, and how many of them a design unit takes. Not finite for a line without width.
struct CLinePlace
{
    double left;
    double top;
    double scaleX;
    double scaleY;
};

/// The place of a line in a client area. width: design units. Without keepAspect the line fills the area.
CLinePlace PlaceLine(CSize const & client, int width, bool keepAspect);

/// The place of a line in a rectangle, with one scale, centred from top to bottom and aligned by the style's LedAlign
/// bits, of which LedAlignRight counts more. width: design units.
CLinePlace PlaceAlignedLine(CRect const & rect, unsigned int width, DWORD style);

/// The lower left corner of the area, as large as told.
CRect LeftOutCorner(CRect const & client, CSize const & size);

/// The sum of the characters' widths, in design units.
int LineWidth(CArray<CDigiChar> const & line);

/// Replaces the line by the text's characters.
void BuildLine(CString const & text, DWORD style, CArray<CDigiChar> & line);
} // namespace DigiStatic
