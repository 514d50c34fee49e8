#pragma once

#include <afxcontrolbars.h>
#include <afxwin.h>

namespace workbench
{

/// A direction in which a pane is made larger or smaller.
enum class PaneExtent
{
    width,
    height
};

/// Whether there is something that changes the pane's size in that direction: a divider at one of its sides, or the
/// frame in which it floats.
bool CanResizePane(CDockablePane & pane, PaneExtent extent);

/// Makes the pane larger by that many pixels, or smaller, as dragging a divider does: by the one towards a place of the
/// screen where both could. False if nothing has moved.
bool ResizePane(CDockablePane & pane, PaneExtent extent, int by, CPoint towards);

} // namespace workbench
