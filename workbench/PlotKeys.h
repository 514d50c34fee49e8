#pragma once

#include <afxwin.h>

#include "logic/TimeMarks.h"

namespace workbench
{

/// What a step of the wheel or a key zooms by.
constexpr double plot_zoom_step = 1.5;

/// Does with a plot's marks what a key does: moves the cursor, selects, zooms and scrolls. width: of the plot in
/// pixels. False if the key does none of that.
bool MoveByKey(TimeMarks & marks, UINT key, int width);

/// What a plot answers to a dialog that asks which keys it wants. asked: the message of that question.
UINT PlotDialogCode(TimeMarks const & marks, MSG const * asked);

} // namespace workbench
