#pragma once

#include "ScreenMetrics.h"

namespace workbench
{

/// The room beside a plot over time, in pixels. It is the same for all of them, so that one point in time stands at one
/// place.
struct PlotMargins
{
    int left;  ///< for the labels of levels and frequencies
    int right; ///< for a legend

    /// dc: with the font of the labels selected.
    PlotMargins(CDC & dc, ScreenMetrics const & metrics)
        : left(dc.GetTextExtent(L"20 kHz").cx + metrics.X(4)), right(dc.GetTextExtent(L"-96 dB").cx + metrics.X(14))
    {
    }
};

} // namespace workbench
