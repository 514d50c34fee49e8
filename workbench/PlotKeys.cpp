#include "PlotKeys.h"

#include <algorithm>
#include <cstdint>

namespace workbench
{

namespace
{

constexpr double page_step = 0.9; // of what is shown

bool IsDown(int key)
{
    return ::GetKeyState(key) < 0;
}

void Zoom(TimeMarks & marks, double factor)
{
    FrameRange const shown = marks.window.Shown();
    auto const offset = static_cast<double>(std::clamp(marks.cursor, shown.first, shown.end) - shown.first);
    marks.window.Zoom(factor, shown.IsEmpty() ? 0.5 : offset / static_cast<double>(shown.Length()));
}

/// Keys that leave the cursor where it is.
bool ScrollByKey(TimeMarks & marks, UINT key)
{
    switch (key)
    {
    case VK_ADD:
    case VK_OEM_PLUS:
        Zoom(marks, 1.0 / plot_zoom_step);
        return true;
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        Zoom(marks, plot_zoom_step);
        return true;
    case VK_MULTIPLY:
        marks.window.ShowAll();
        return true;
    case VK_RETURN:
        if (marks.HasSelection())
        {
            marks.window.Show(marks.Selection());
            return true;
        }
        return false;
    case VK_ESCAPE:
        if (marks.HasSelection())
        {
            marks.Unselect();
            return true;
        }
        return false;
    case VK_PRIOR:
        marks.window.Scroll(-page_step);
        return true;
    case VK_NEXT:
        marks.window.Scroll(page_step);
        return true;
    default:
        return false;
    }
}

} // namespace

bool MoveByKey(TimeMarks & marks, UINT key, int width)
{
    std::uint64_t const frames = marks.window.Frames();
    if (frames == 0 || width <= 0)
    {
        return false;
    }
    // A key moves by what one pixel shows, at least by one frame; with Ctrl by a tenth of the plot.
    std::size_t const last = frames - 1;
    std::uint64_t const shown = marks.window.Shown().Length();
    std::size_t const step =
        std::max<std::uint64_t>(shown / (IsDown(VK_CONTROL) ? 10U : static_cast<unsigned>(width)), 1);
    std::uint64_t cursor = marks.cursor;
    switch (key)
    {
    case VK_LEFT:
        cursor -= std::min(cursor, step);
        break;
    case VK_RIGHT:
        cursor += std::min(last - cursor, step);
        break;
    case VK_HOME:
        cursor = 0;
        break;
    case VK_END:
        cursor = last;
        break;
    default:
        return ScrollByKey(marks, key);
    }
    if (IsDown(VK_SHIFT))
    {
        marks.SelectTo(cursor);
    }
    else
    {
        marks.Unselect();
        marks.cursor = cursor;
    }
    marks.window.Reveal(cursor);
    return true;
}

UINT PlotDialogCode(TimeMarks const & marks, MSG const * asked)
{
    bool const isOfSelection = asked != nullptr && asked->message == WM_KEYDOWN &&
                               (asked->wParam == VK_RETURN || asked->wParam == VK_ESCAPE) && marks.HasSelection();
    return DLGC_WANTARROWS | (isOfSelection ? DLGC_WANTALLKEYS : 0);
}

} // namespace workbench
