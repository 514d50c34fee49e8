#pragma once

#include <afxwin.h>

namespace workbench
{

/// The colours of a chosen row.
struct RowColours
{
    COLORREF text;
    COLORREF background;
};

/// Colours of which the background is a colour of the system's, made as light as the marks of check boxes, radio
/// buttons and combo cells need to be told apart on it. Their own colours are made for a white one.
RowColours LightRowColours(COLORREF systemColour);

/// The colour of links on the system's window colour: blue, and a light blue where windows are dark.
COLORREF LinkColour();

} // namespace workbench
