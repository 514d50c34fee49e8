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
    auto & holder = PlaceHolder(pane);
    auto const * const frame = holder.GetParent();
    auto const place = PlaceOf(holder);
    auto const isWidth = extent == PaneExtent::width;
    std::vector<Neighbour> found;
    for (auto * child = frame != nullptr ? frame->GetWindow(GW_CHILD) : nullptr; child != nullptr;
         child = child->GetWindow(GW_HWNDNEXT))
    {
        auto * const divider = DYNAMIC_DOWNCAST(CPaneDivider, child);
        if (divider == nullptr || !divider->IsWindowVisible() || (divider->IsHorizontal() != FALSE) == isWidth)
        {
            continue;
        }
        auto const rect = PlaceOf(*divider);
        // Along the side, and no further away than it is wide.
        auto const isBeside = isWidth ? rect.top < place.bottom && place.top < rect.bottom
                                      : rect.left < place.right && place.left < rect.right;
        auto const thickness = isWidth ? rect.Width() : rect.Height();
        auto const behind = isWidth ? rect.left - place.right : rect.top - place.bottom;
        auto const ahead = isWidth ? place.left - rect.right : place.top - rect.bottom;
        auto const middle = rect.CenterPoint();
        auto const distance = std::abs(isWidth ? middle.x - towards.x : middle.y - towards.y);
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
    auto const window = pane.m_hWnd;
    auto const before = PlaceOf(pane);
    for (auto const & neighbour : DividersOf(pane, extent, towards))
    {
        auto const offset = neighbour.isBehind ? by : -by;
        CPoint move(extent == PaneExtent::width ? offset : 0, extent == PaneExtent::height ? offset : 0);
        neighbour.divider->Move(move);
        if (!StillHas(&pane, window) || PlaceOf(pane) != before)
        {
            return true;
        }
    }
    auto * const frame = FloatingFrame(pane);
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
