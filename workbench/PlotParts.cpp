#include "PlotParts.h"

#include <algorithm>

#include "colours/ControlColors.h"
#include "logic/Axis.h"

namespace workbench
{

namespace
{

constexpr int least_tick_distance = 44; // dialog units

} // namespace

PlotColours ScreenPlotColours(CWnd const & window)
{
    ControlColors const colours = control_colors::Of(window.m_hWnd);
    return PlotColoursOn(colours.window, colours.windowText);
}

PlotColours PaperPlotColours()
{
    return PlotColoursOn(RGB(255, 255, 255), RGB(0, 0, 0));
}

CSize TextSize(CDC & dc, std::wstring const & text)
{
    return dc.GetTextExtent(text.c_str(), static_cast<int>(text.size()));
}

void DrawPlotText(CDC & dc, std::wstring const & text, CRect rect, UINT format)
{
    dc.DrawText(text.c_str(), static_cast<int>(text.size()), &rect, format | DT_NOPREFIX);
}

void DrawPlotLabel(CDC & dc, std::wstring const & text, CPoint position, PlotColours const & colours)
{
    dc.SetBkMode(TRANSPARENT); // filling a rectangle has made the background opaque again
    dc.SetTextColor(colours.label);
    DrawPlotText(dc, text, CRect(position, TextSize(dc, text)), DT_LEFT | text_label);
}

void DrawTimeAxis(CDC & dc, CRect const & plot, double first, double end, ScreenMetrics const & metrics,
                  PlotColours const & colours)
{
    int const tickHeight = metrics.Y(2);
    for (TimeTick const & tick : TimeTicks(first, end, plot.Width() - 2, metrics.X(least_tick_distance)))
    {
        long const x = plot.left + 1 + tick.position;
        dc.FillSolidRect(x, plot.bottom, 1, tickHeight, colours.frame);
        LONG const width = TextSize(dc, tick.label).cx;
        auto const left = std::clamp<int>(x - width / 2, plot.left, std::max<int>(plot.right - width, plot.left));
        DrawPlotLabel(dc, tick.label, CPoint(left, plot.bottom + tickHeight + 1), colours);
    }
}

} // namespace workbench
