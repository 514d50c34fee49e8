#pragma once
// What holds for every arrangement of panes.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "DockLayout.h"

namespace docking_tests
{
using namespace framework;

inline std::int64_t Area(CRect const & rect)
{
    return std::int64_t{rect.Width()} * rect.Height();
}

inline CRect Common(CRect const & one, CRect const & other)
{
    CRect const common(std::max(one.left, other.left), std::max(one.top, other.top), std::min(one.right, other.right),
                       std::min(one.bottom, other.bottom));
    return common.Width() > 0 && common.Height() > 0 ? common : CRect(0, 0, 0, 0);
}

/// Every part lies inside, none overlaps another, together they fill the rectangle, and where there is room none is
/// below its least size.
inline void CheckPlan(DockLayout const & layout, DockPlan const & plan, CRect const & rect, UINT frame)
{
    std::vector<CRect> parts;
    std::set<UINT> panes;
    bool const roomy = rect.Width() >= plan.least.cx && rect.Height() >= plan.least.cy;
    for (DockPlan::Group const & group : plan.groups)
    {
        parts.push_back(group.rect);
        ASSERT_FALSE(group.panes.empty());
        ASSERT_NE(std::find(group.panes.begin(), group.panes.end(), group.active), group.panes.end());
        CSize least(0, 0);
        for (UINT const pane : group.panes)
        {
            ASSERT_TRUE(panes.insert(pane).second) << "pane " << pane << " is in two places";
            ASSERT_TRUE(layout.IsShown(pane));
            CSize const own = layout.Find(pane)->minSize;
            least.cx = std::max(least.cx, own.cx);
            least.cy = std::max(least.cy, own.cy);
        }
        if (group.panes.size() > 1)
            least.cy += layout.metrics.tabs;
        if (roomy)
        {
            ASSERT_GE(group.rect.Width(), least.cx);
            ASSERT_GE(group.rect.Height(), least.cy);
        }
    }
    std::vector<UINT> shown = layout.ShownIn(frame);
    ASSERT_EQ(std::set<UINT>(shown.begin(), shown.end()), panes);
    if (plan.centre)
    {
        parts.push_back(*plan.centre);
        if (roomy)
        {
            ASSERT_GE(plan.centre->Width(), layout.metrics.centre.cx);
            ASSERT_GE(plan.centre->Height(), layout.metrics.centre.cy);
        }
    }
    for (DockPlan::Divider const & divider : plan.dividers)
    {
        parts.push_back(divider.rect);
        int const width = divider.across ? divider.rect.Width() : divider.rect.Height();
        if (roomy)
            ASSERT_EQ(width, layout.metrics.divider);
        else
            ASSERT_TRUE(width >= 0 && width <= layout.metrics.divider);
    }
    std::int64_t area = 0;
    for (size_t at = 0; at < parts.size(); ++at)
    {
        CRect const & part = parts[at];
        ASSERT_LE(part.left, part.right);
        ASSERT_LE(part.top, part.bottom);
        ASSERT_TRUE(part.left >= rect.left && part.top >= rect.top && part.right <= rect.right &&
                    part.bottom <= rect.bottom);
        area += Area(part);
        for (size_t other = 0; other < at; ++other)
            ASSERT_EQ(Area(Common(part, parts[other])), 0);
    }
    if (!parts.empty())
    {
        // Nothing overlaps, so the sum says whether there is a hole.
        ASSERT_EQ(area, Area(rect));
        // Between n parts there are n-1 dividers.
        ASSERT_EQ(plan.dividers.size(), plan.groups.size() + (plan.centre ? 1 : 0) - 1);
    }
}

inline void CheckTree(DockNode const & node, int & centres, std::set<UINT> & ids)
{
    ASSERT_TRUE(ids.insert(node.id).second);
    switch (node.kind)
    {
    case DockNode::Kind::tabs:
        ASSERT_FALSE(node.panes.empty());
        ASSERT_NE(std::find(node.panes.begin(), node.panes.end(), node.active), node.panes.end());
        ASSERT_TRUE(node.children.empty());
        break;
    case DockNode::Kind::centre:
        ++centres;
        ASSERT_TRUE(node.children.empty() && node.panes.empty());
        break;
    case DockNode::Kind::split:
        ASSERT_GE(node.children.size(), 2u);
        ASSERT_TRUE(node.panes.empty());
        for (DockNode const & child : node.children)
        {
            ASSERT_FALSE(child.kind == DockNode::Kind::split && child.across == node.across);
            ASSERT_GE(child.extent, 0);
            ASSERT_NO_FATAL_FAILURE(CheckTree(child, centres, ids));
        }
        break;
    }
}

/// The trees are sound, and every pane is where it says.
inline void CheckLayout(DockLayout const & layout)
{
    int centres = 0;
    std::set<UINT> ids;
    ASSERT_NO_FATAL_FAILURE(CheckTree(layout.Root(), centres, ids));
    ASSERT_EQ(centres, 1);
    for (DockLayout::Frame const & frame : layout.Frames())
    {
        int none = 0;
        ASSERT_TRUE(frame.tree);
        ASSERT_NO_FATAL_FAILURE(CheckTree(*frame.tree, none, ids));
        ASSERT_EQ(none, 0);
    }
    for (auto const & [id, pane] : layout.Panes())
    {
        if (pane.place == DockPlace::docked || pane.place == DockPlace::folded)
        {
            ASSERT_TRUE(layout.HasDockedPlace(id));
        }
        if (pane.place == DockPlace::floating)
        {
            ASSERT_NE(layout.FrameOf(id), 0u);
        }
        bool inStrip = false;
        for (DockSide const side : {DockSide::left, DockSide::top, DockSide::right, DockSide::bottom})
        {
            std::vector<UINT> const folded = layout.Folded(side);
            inStrip = inStrip || std::find(folded.begin(), folded.end(), id) != folded.end();
        }
        ASSERT_EQ(inStrip, pane.place == DockPlace::folded && pane.visible && pane.present);
    }
}
} // namespace docking_tests
