#include "PaneSize.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "frame/WindowAlive.h"

namespace workbench
{

namespace
{

CRect PlaceOf(CWnd const & window)
{
    CRect place;
    window.GetWindowRect(&place);
    return place;
}

/// What has the pane's place: the pane itself, or the tabs that it is one of.
CWnd & PlaceHolder(CDockablePane & pane)
{
    CWnd * const tabs = pane.GetParentTabbedPane();
    return tabs != nullptr ? *tabs : pane;
}

/// A divider at a side of a pane.
struct Neighbour
{
    CPaneDivider * divider;
    bool isBehind; ///< at the right or at the bottom
    int distance;  ///< to the place towards which it would move
};

/// The nearest one first; where they are equally near, the one behind the pane.
std::vector<Neighbour> DividersOf(CDockablePane & pane, PaneExtent extent, CPoint towards)
{
    CWnd & holder = PlaceHolder(pane);
    CWnd const * const frame = holder.GetParent();
    CRect const place = PlaceOf(holder);
    bool const isWidth = extent == PaneExtent::width;
    std::vector<Neighbour> found;
    for (CWnd * child = frame != nullptr ? frame->GetWindow(GW_CHILD) : nullptr; child != nullptr;
         child = child->GetWindow(GW_HWNDNEXT))
    {
        auto * const divider = DYNAMIC_DOWNCAST(CPaneDivider, child);
        if (divider == nullptr || !divider->IsWindowVisible() || (divider->IsHorizontal() != FALSE) == isWidth)
        {
            continue;
        }
        CRect const rect = PlaceOf(*divider);
        // Along the side, and no further away than it is wide.
        bool const isBeside = isWidth ? rect.top < place.bottom && place.top < rect.bottom
                                      : rect.left < place.right && place.left < rect.right;
        int const thickness = isWidth ? rect.Width() : rect.Height();
        long const behind = isWidth ? rect.left - place.right : rect.top - place.bottom;
        long const ahead = isWidth ? place.left - rect.right : place.top - rect.bottom;
        CPoint const middle = rect.CenterPoint();
        long const distance = std::abs(isWidth ? middle.x - towards.x : middle.y - towards.y);
        for (auto const & [gap, isBehind] : {std::pair(behind, true), std::pair(ahead, false)})
        {
            if (isBeside && gap >= 0 && gap <= thickness)
            {
                found.push_back({divider, isBehind, distance});
            }
        }
    }
    std::ranges::sort(found, [](Neighbour const & first, Neighbour const & second) {
        return std::pair(first.distance, !first.isBehind) < std::pair(second.distance, !second.isBehind);
    });
    return found;
}

/// The frame in which the pane floats, or null.
CPaneFrameWnd * FloatingFrame(CDockablePane & pane)
{
    return DYNAMIC_DOWNCAST(CPaneFrameWnd, PlaceHolder(pane).GetParent());
}

} // namespace

bool CanResizePane(CDockablePane & pane, PaneExtent extent)
{
    return pane.IsWindowVisible() &&
           (FloatingFrame(pane) != nullptr || !DividersOf(pane, extent, CPoint(0, 0)).empty());
}

bool ResizePane(CDockablePane & pane, PaneExtent extent, int by, CPoint towards)
{
    if (!pane.IsWindowVisible())
    {
        return false;
    }
    HWND const window = pane.m_hWnd;
    CRect const before = PlaceOf(pane);
    for (Neighbour const & neighbour : DividersOf(pane, extent, towards))
    {
        int const offset = neighbour.isBehind ? by : -by;
        CPoint move(extent == PaneExtent::width ? offset : 0, extent == PaneExtent::height ? offset : 0);
        neighbour.divider->Move(move);
        if (!StillHas(&pane, window) || PlaceOf(pane) != before)
        {
            return true;
        }
    }
    CPaneFrameWnd * const frame = FloatingFrame(pane);
    if (frame == nullptr)
    {
        return false;
    }
    CSize size = PlaceOf(*frame).Size();
    (extent == PaneExtent::width ? size.cx : size.cy) += by;
    frame->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    return !StillHas(&pane, window) || PlaceOf(pane) != before;
}

} // namespace workbench
