#pragma once
// What the plots over time have in common.

#include <string>

#include "logic/ReadableColours.h"
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
        : left(dc.GetTextExtent(L"20 kHz").cx + metrics.X(4)),
          right(dc.GetTextExtent(L"-96 dB").cx + metrics.X(14))
    {
    }
};

/// Formats of texts: a line that ends in dots where it is cut, and a short one that is never cut.
constexpr UINT text_one_line = DT_SINGLELINE | DT_END_ELLIPSIS;
constexpr UINT text_label = DT_SINGLELINE | DT_NOCLIP;

/// The colours of plots in a window, which are the system's or those of the set that its controls are painted in, and
/// on paper.
PlotColours ScreenPlotColours(CWnd const & window);
PlotColours PaperPlotColours();

CSize TextSize(CDC & dc, std::wstring const & text);

/// Draws a text as it is, in the colour that is set.
void DrawPlotText(CDC & dc, std::wstring const & text, CRect rect, UINT format);

/// Draws a label on what is there already, in the colour of labels.
void DrawPlotLabel(CDC & dc, std::wstring const & text, CPoint position, PlotColours const & colours);

/// Draws the axis below a plot that shows the seconds from `first` to `end`.
void DrawTimeAxis(CDC & dc, CRect const & plot, double first, double end, ScreenMetrics const & metrics,
                  PlotColours const & colours);

} // namespace workbench
