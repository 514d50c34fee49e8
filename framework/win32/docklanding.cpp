// Where panes that users drag would land, and what happens when they do.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockDrag.h"
#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

namespace framework
{
void DockHost::BeginDrag(DockContent const & content, CPoint screen)
{
    if (m_ending || PanesOf(content).empty())
        return;
    m_drag = std::make_unique<DockDrag>(*this);
    m_drag->StartPanes(content, screen);
}

void DockHost::BeginDivider(CPaneDivider & divider, CPoint screen)
{
    if (m_ending)
        return;
    m_drag = std::make_unique<DockDrag>(*this);
    m_drag->StartDivider(divider, screen);
}

void DockHost::BeginButton(CDockablePane & pane, UINT hit)
{
    if (m_ending)
        return;
    m_drag = std::make_unique<DockDrag>(*this);
    m_drag->StartButton(pane, hit);
}

bool DockHost::Dragging() const
{
    return m_drag != nullptr && m_drag->Running();
}

void DockHost::CancelDrag()
{
    if (m_drag != nullptr)
        m_drag->Cancel();
}

int DockHost::TryDivider(CPaneDivider const & divider, int offset) const
{
    DockLayout would = m_layout;
    return would.MoveDivider(divider.m_floatId, SpaceOf(divider.m_floatId), divider.m_splitId, divider.m_index, offset);
}

DWORD DockHost::Enabled(DockContent const & content) const
{
    DWORD enabled = sides;
    for (UINT const id : PanesOf(content))
    {
        if (CDockablePane const * const pane = Pane(id))
            enabled &= pane->GetEnabledAlignment();
    }
    return enabled & CBRS_ALIGN_ANY;
}

/// The side whose edge a point is nearest to, as far as it is within the zone.
static std::optional<DockSide> NearEdge(CRect const & rect, CPoint point, int most)
{
    int const zone = std::min({most, rect.Width() / 3, rect.Height() / 3});
    std::pair<int, DockSide> const distances[] = {{point.x - rect.left, DockSide::left},
                                                  {point.y - rect.top, DockSide::top},
                                                  {rect.right - 1 - point.x, DockSide::right},
                                                  {rect.bottom - 1 - point.y, DockSide::bottom}};
    std::pair<int, DockSide> const * const nearest =
        std::min_element(std::begin(distances), std::end(distances),
                         [](auto const & one, auto const & other) { return one.first < other.first; });
    return nearest->first >= 0 && nearest->first < zone ? std::optional(nearest->second) : std::nullopt;
}

DockLanding DockHost::FindLanding(DockContent const & content, CPoint screen, CPoint grip, bool floatOnly)
{
    DockLanding landing;
    std::vector<UINT> const moved = PanesOf(content);
    CDockablePane const * const first = moved.empty() ? nullptr : Pane(moved.front());
    if (first == nullptr)
        return landing;
    DWORD const enabled = Enabled(content);
    // The window below the mouse that can take panes; the dragged frame is in its own way.
    UINT const own = content.frame != 0 ? content.frame : 0;
    std::optional<UINT> over;
    for (HWND window = ::GetTopWindow(nullptr); window != nullptr && !over && !floatOnly;
         window = ::GetWindow(window, GW_HWNDNEXT))
    {
        CRect rect;
        if (!::IsWindowVisible(window) || !::GetWindowRect(window, &rect) || !rect.PtInRect(screen) ||
            (m_drag != nullptr && m_drag->m_hWnd == window))
            continue;
        if (window == m_frame.m_hWnd)
            over = 0;
        else
        {
            auto const at = std::find_if(m_frames.begin(), m_frames.end(),
                                         [window](auto const & entry) { return entry.second->m_hWnd == window; });
            if (at == m_frames.end())
                break;
            if (at->first != own)
                over = at->first;
        }
    }
    if (over)
    {
        CWnd * const parent = ParentOf(*over);
        DockPlan const & plan = m_plans[*over];
        CPoint point(screen);
        parent->ScreenToClient(&point);
        CRect const space = SpaceOf(*over);
        std::optional<DockSide> const side =
            *over == 0 ? NearEdge(space, point, m_sizes.sensitivity / 3) : std::nullopt;
        if (side && (enabled & AlignmentOf(*side)) != 0)
        {
            landing.kind = DockLanding::Kind::side;
            landing.side = *side;
            landing.outer = true;
        }
        for (DockPlan::Group const & group : plan.groups)
        {
            bool const singleFloat = *over != 0 && plan.groups.size() == 1;
            bool const onFrameCaption = singleFloat && point.y < space.top;
            if (landing.kind != DockLanding::Kind::none || (!group.rect.PtInRect(point) && !onFrameCaption) ||
                enabled == 0)
                continue;
            bool const itself = std::find(moved.begin(), moved.end(), group.active) != moved.end() ||
                                std::all_of(group.panes.begin(), group.panes.end(), [&](UINT id) {
                                    return std::find(moved.begin(), moved.end(), id) != moved.end();
                                });
            auto const other = std::find_if(group.panes.begin(), group.panes.end(), [&](UINT id) {
                return std::find(moved.begin(), moved.end(), id) == moved.end();
            });
            if (other == group.panes.end())
                break; // nothing but what is dragged
            CRect const strip(group.rect.left,
                              group.panes.size() > 1 ? group.rect.bottom - m_sizes.tabs : group.rect.bottom,
                              group.rect.right, group.rect.bottom);
            bool const caption = onFrameCaption || point.y < group.rect.top + m_sizes.caption;
            landing.target = *other;
            if ((caption && !itself) || strip.PtInRect(point))
            {
                landing.kind = DockLanding::Kind::tab;
                if (CTabbedPane * const tabbed = strip.PtInRect(point) ? Tabbed(group.id) : nullptr)
                    landing.index = TabIndexAt(*tabbed, screen, moved);
                break;
            }
            if (std::optional<DockSide> const edge =
                    NearEdge(group.rect, point, std::max(2 * m_sizes.sensitivity, group.rect.Width() / 5)))
            {
                landing.kind = DockLanding::Kind::beside;
                landing.side = *edge;
            }
            break;
        }
        // A frame whose centre doesn't show is all centre while no pane is docked.
        CRect const centre = plan.centre.value_or(*over == 0 && plan.groups.empty() ? space : CRect(0, 0, 0, 0));
        if (landing.kind == DockLanding::Kind::none && centre.PtInRect(point))
        {
            std::optional<DockSide> const inner = NearEdge(centre, point, 2 * m_sizes.sensitivity);
            if (inner && (enabled & AlignmentOf(*inner)) != 0)
            {
                landing.kind = DockLanding::Kind::side;
                landing.side = *inner;
            }
        }
    }
    if (landing.kind != DockLanding::Kind::none)
    {
        // What it would be is worked out on a copy.
        DockLayout would = m_layout;
        UINT const shown = moved.front();
        if (Apply(would, content, landing))
        {
            UINT const frame = would.FrameOf(shown);
            DockPlan const plan = would.Arrange(frame, SpaceOf(frame));
            for (DockPlan::Group const & group : plan.groups)
            {
                if (std::find(group.panes.begin(), group.panes.end(), shown) == group.panes.end())
                    continue;
                landing.rect = group.rect;
                if (CWnd * const parent = ParentOf(frame))
                    parent->ClientToScreen(&landing.rect);
                return landing;
            }
        }
        landing = DockLanding();
    }
    if (!first->CanFloat())
        return landing;
    landing.kind = DockLanding::Kind::floating;
    CRect rect = m_layout.Find(moved.front())->floatRect;
    if (content.frame != 0)
        rect = m_layout.FindFrame(content.frame)->rect;
    else if (rect.IsRectEmpty())
        first->GetWindowRect(&rect);
    CSize const size = rect.Size();
    CPoint const corner(screen.x - std::min<LONG>(grip.x, std::max<LONG>(size.cx - m_sizes.caption, 0)),
                        screen.y - std::min<LONG>(grip.y, m_sizes.caption));
    landing.rect = CRect(corner, size);
    return landing;
}

int DockHost::TabIndexAt(CTabbedPane const & tabbed, CPoint screen, std::vector<UINT> const & moved) const
{
    tabbed.ScreenToClient(&screen);
    std::vector<CDockablePane *> const panes = PanesIn(tabbed);
    std::vector<CRect> const tabs = TabRects(tabbed, panes);
    int index = 0;
    for (size_t at = 0; at < panes.size(); ++at)
    {
        if (screen.x < tabs[at].right)
            return index;
        if (std::find(moved.begin(), moved.end(), panes[at]->m_dockId) == moved.end())
            ++index;
    }
    return -1;
}

bool DockHost::Apply(DockLayout & layout, DockContent const & content, DockLanding const & landing)
{
    switch (landing.kind)
    {
    case DockLanding::Kind::floating:
        return layout.Float(content, landing.rect);
    case DockLanding::Kind::side:
        return layout.DockAtSide(content, landing.side, landing.outer);
    case DockLanding::Kind::beside:
        return layout.DockBeside(content, landing.target, landing.side);
    case DockLanding::Kind::tab:
        return layout.DockAsTab(content, landing.target, landing.index);
    default:
        return false;
    }
}

void DockHost::Land(DockContent const & content, DockLanding const & landing)
{
    std::vector<UINT> const moved = PanesOf(content);
    if (landing.kind == DockLanding::Kind::none || moved.empty())
        return;
    Life const life(*this);
    bool const floats = landing.kind == DockLanding::Kind::floating;
    DockLanding wanted = landing;
    for (UINT const id : moved)
    {
        CDockablePane * const pane = Pane(id);
        CBasePane * bar = Pane(landing.target);
        BOOL const allowed = pane == nullptr ? FALSE
                             : floats        ? pane->OnBeforeFloat(wanted.rect, DM_MOUSE)
                                             : pane->OnBeforeDock(&bar, nullptr, DM_MOUSE);
        if (!life || !allowed)
            return;
    }
    if (!Apply(m_layout, content, wanted))
        return;
    UINT const front = moved.front();
    Activate(front, true);
    if (!life)
        return;
    bool const floating = m_layout.FrameOf(front) != 0;
    Notify(DockContent(moved), floating, DM_MOUSE);
}
} // namespace framework
