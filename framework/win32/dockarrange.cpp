// The panes of a frame: their windows in the places that the layout gives them.

#include "afxcontrolbars.h"
#include "afxpriv.h"

#include <algorithm>

#include "detail/ChildWalk.h"
#include "detail/DockDrag.h"
#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

namespace framework
{
UINT const arrange_message = ::RegisterWindowMessage(L"FrameworkArrangePanes");

namespace
{
constexpr int most_rounds = 8; // of panes that change the layout while they are placed
constexpr UINT former_ids = 0x80000000;
constexpr DWORD mini_frame_style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;

/// The rectangle of a child in its parent.
CRect PlaceOf(CWnd const & window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    ::MapWindowPoints(nullptr, ::GetAncestor(window.m_hWnd, GA_PARENT), reinterpret_cast<POINT *>(&rect), 2);
    return rect;
}

bool Shows(HWND window)
{
    return (::GetWindowLong(window, GWL_STYLE) & WS_VISIBLE) != 0;
}
} // namespace

void DockHost::ArrangeSoon()
{
    if (!m_ending && m_frame.m_hWnd != nullptr)
        m_frame.PostMessage(arrange_message);
}

void DockHost::Lock(bool lock)
{
    m_locked += lock ? 1 : -1;
    if (m_locked <= 0)
    {
        m_locked = 0;
        Arrange();
    }
}

void DockHost::Arrange()
{
    if (m_ending || m_locked > 0 || !::IsWindow(m_frame.m_hWnd))
        return;
    if (m_arranging)
    {
        m_again = true;
        return;
    }
    Life const life(*this);
    m_arranging = true;
    for (int round = 0; round < most_rounds; ++round)
    {
        m_again = false;
        ArrangeOnce();
        if (!life)
            return;
        if (!m_again)
            break;
    }
    m_arranging = false;
}

/// What the panes stand around; null if there is nothing.
HWND DockHost::CentreWindow() const
{
    return ::GetDlgItem(m_frame.m_hWnd, AFX_IDW_PANE_FIRST);
}

bool DockHost::ArrangeOnce()
{
    // A client window that is hidden needs no room.
    HWND const centre = CentreWindow();
    m_layout.metrics.centreShown = centre == nullptr || Shows(centre);
    return MakeFrames() && MakeAllGroups() && HideRest() && EndUnused() && ArrangeMain() && ArrangeFrames() &&
           PlaceSlid();
}

CWnd * DockHost::ParentOf(UINT frame) const
{
    if (frame == 0)
        return &m_frame;
    return MiniFrame(frame);
}

CRect DockHost::SpaceOf(UINT frame) const
{
    if (frame == 0)
        return m_space;
    CRect rect(0, 0, 0, 0);
    if (CPaneFrameWnd const * const mini = MiniFrame(frame))
        mini->GetClientRect(&rect);
    return rect;
}

/// A frame for all panes of a floating tree that have a window, also while none of them shows.
bool DockHost::MakeFrames()
{
    Life const life(*this);
    for (DockLayout::Frame const & wanted : std::vector<DockLayout::Frame>(m_layout.Frames()))
    {
        bool const needed = std::any_of(m_panes.begin(), m_panes.end(),
                                        [&](auto const & entry) { return m_layout.FrameOf(entry.first) == wanted.id; });
        if (!needed)
            continue;
        if (CPaneFrameWnd * const present = MiniFrame(wanted.id))
        {
            CRect rect;
            present->GetWindowRect(&rect);
            if (rect != wanted.rect && !present->IsIconic())
                present->MoveWindow(&wanted.rect);
            if (!life || m_again)
                return false;
            continue;
        }
        auto * const mini = new CMultiPaneFrameWnd;
        mini->m_host = this;
        mini->m_floatId = wanted.id;
        m_frames[wanted.id] = mini;
        LPCTSTR const className = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
        CRect const rect = wanted.rect;
        if (!mini->CreateEx(WS_EX_TOOLWINDOW, className, L"", mini_frame_style, rect.left, rect.top, rect.Width(),
                            rect.Height(), m_frame.m_hWnd, nullptr))
        {
            if (life)
                WindowEnds(mini);
            return false;
        }
        if (!life || m_again)
            return false;
    }
    return true;
}

bool DockHost::Adopt(CDockablePane & pane, CWnd & parent)
{
    if (::GetAncestor(pane.m_hWnd, GA_PARENT) == parent.m_hWnd)
        return true;
    Life const life(*this);
    WindowGuard const guard(&pane);
    WindowGuard const parentGuard(&parent);
    CWnd * const former = pane.GetParent();
    WindowGuard const formerGuard(former);
    pane.OnBeforeChangeParent(&parent);
    if (!life || !guard.Alive() || !parentGuard.Alive())
        return false;
    // Not to be seen where it doesn't belong.
    if (Shows(pane.m_hWnd))
    {
        pane.CWnd::SetWindowPos(nullptr, 0, 0, 0, 0,
                                SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    }
    if (!life || !guard.Alive() || !parentGuard.Alive())
        return false;
    ::SetParent(pane.m_hWnd, parent.m_hWnd);
    if (!life || !guard.Alive())
        return false;
    pane.OnAfterChangeParent(formerGuard.Alive() ? former : nullptr);
    return life && guard.Alive();
}

bool DockHost::SetCaption(CDockablePane & pane, bool shown)
{
    if (pane.m_captionShown == shown)
        return true;
    Life const life(*this);
    pane.m_captionShown = shown;
    pane.CWnd::SetWindowPos(nullptr, 0, 0, 0, 0,
                            SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return static_cast<bool>(life);
}

bool DockHost::MakeAllGroups()
{
    std::vector<UINT> frames{0};
    for (auto const & [id, mini] : m_frames)
    {
        if (id < former_ids)
            frames.push_back(id);
    }
    std::erase_if(m_plans, [&](auto const & entry) { return entry.first != 0 && MiniFrame(entry.first) == nullptr; });
    for (UINT const frame : frames)
    {
        m_plans[frame] = m_layout.Arrange(frame, SpaceOf(frame));
        if (!MakeGroups(frame))
            return false;
    }
    return true;
}

/// Panes with a place of their own are children of the frame, those that share one of a window with tabs.
bool DockHost::MakeGroups(UINT frame)
{
    Life const life(*this);
    DockPlan const plan = m_plans[frame];
    bool const captions = frame == 0 || plan.groups.size() > 1;
    for (DockPlan::Group const & group : plan.groups)
    {
        CWnd * const parent = ParentOf(frame);
        CDockablePane * const front = Pane(group.active);
        if (parent == nullptr || front == nullptr)
            return false;
        CWnd * holder = parent;
        if (group.panes.size() > 1)
        {
            CTabbedPane * tabbed = Tabbed(group.id);
            if (tabbed == nullptr)
            {
                tabbed = front->CreateTabbedPane();
                if (!life || tabbed == nullptr)
                    return false;
                m_tabbed[group.id] = tabbed;
                tabbed->m_host = this;
                tabbed->m_group = group.id;
                tabbed->m_gripper = true;
                if (!tabbed->CBasePane::CreateEx(WS_EX_CONTROLPARENT, nullptr, L"",
                                                 WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                                                 parent, 0, AFX_DEFAULT_DOCKING_PANE_STYLE))
                {
                    if (life)
                        WindowEnds(tabbed);
                    return false;
                }
            }
            else if (!Adopt(*tabbed, *parent))
                return false;
            if (!life || !SetCaption(*tabbed, captions))
                return false;
            holder = tabbed;
        }
        for (UINT const id : group.panes)
        {
            CDockablePane * const pane = Pane(id);
            if (pane == nullptr || !Adopt(*pane, *holder) || !SetCaption(*pane, holder == parent && captions) ||
                m_again)
                return false;
        }
    }
    return true;
}

/// What isn't shown waits in the frame, or in the floating one that it will be shown in.
bool DockHost::HideRest()
{
    Life const life(*this);
    std::vector<UINT> ids;
    for (auto const & [id, pane] : m_panes)
        ids.push_back(id);
    for (UINT const id : ids)
    {
        CDockablePane * const pane = Pane(id);
        DockPane const * const known = m_layout.Find(id);
        if (pane == nullptr || known == nullptr)
            return false;
        bool const folded = known->place == DockPlace::folded;
        if (known->place == DockPlace::none || (known->visible && !folded))
            continue;
        CWnd * const parent = ParentOf(m_layout.FrameOf(id));
        if (parent == nullptr || !Adopt(*pane, *parent))
            return false;
        if (folded && m_slid == id)
            continue;
        if (Shows(pane->m_hWnd))
        {
            pane->CWnd::SetWindowPos(nullptr, 0, 0, 0, 0,
                                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
        }
        if (!life || m_again)
            return false;
    }
    return true;
}

bool DockHost::EndUnused()
{
    Life const life(*this);
    std::vector<UINT> used;
    for (auto const & [frame, plan] : m_plans)
    {
        for (DockPlan::Group const & group : plan.groups)
        {
            if (group.panes.size() > 1)
                used.push_back(group.id);
        }
    }
    std::vector<std::pair<CWnd *, WindowGuard>> unused; // ending one may end another
    auto const add = [&unused](CWnd * window) { unused.emplace_back(window, WindowGuard(window)); };
    for (auto const & [group, tabbed] : m_tabbed)
    {
        if (std::find(used.begin(), used.end(), group) == used.end())
            add(tabbed);
    }
    for (auto const & [id, mini] : m_frames)
    {
        bool const needed =
            id < former_ids && std::any_of(m_panes.begin(), m_panes.end(), [&, frame = id](auto const & entry) {
                return m_layout.FrameOf(entry.first) == frame;
            });
        if (!needed)
            add(mini);
    }
    for (auto const & [window, guard] : unused)
    {
        if (!guard.Alive())
            continue;
        // Panes that nobody has placed since must not end with it.
        ChildWalk walk(window->m_hWnd);
        while (HWND const child = walk.Next())
        {
            auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(child));
            if (pane != nullptr && !pane->IsKindOf(RUNTIME_CLASS(CBaseTabbedPane)) && !Adopt(*pane, m_frame))
                return false;
        }
        if (!guard.Alive())
            continue;
        window->DestroyWindow();
        if (!life)
            return false;
    }
    std::erase_if(m_dividers,
                  [&](auto const & entry) { return entry.first != 0 && MiniFrame(entry.first) == nullptr; });
    std::erase_if(m_plans, [&](auto const & entry) { return entry.first != 0 && MiniFrame(entry.first) == nullptr; });
    return true;
}

/// Numbers of another layout must not be taken for this one's.
void DockHost::Renumber()
{
    UINT next = former_ids;
    std::map<UINT, CTabbedPane *> tabbed;
    for (auto const & [group, window] : m_tabbed)
    {
        window->m_group = next;
        tabbed[next++] = window;
    }
    m_tabbed = std::move(tabbed);
    std::map<UINT, CPaneFrameWnd *> frames;
    std::map<UINT, std::vector<CPaneDivider *>> dividers;
    dividers[0] = m_dividers[0];
    for (auto const & [id, window] : m_frames)
    {
        dividers[next] = m_dividers[id];
        window->m_floatId = next;
        frames[next++] = window;
    }
    m_frames = std::move(frames);
    m_dividers = std::move(dividers);
}

// Placing

void DockHost::Move(std::vector<WINDOWPOS> & moves, CWnd & window, CRect const & rect, bool show)
{
    bool const shows = Shows(window.m_hWnd);
    bool const placed = PlaceOf(window) == rect;
    if (placed && shows == show)
        return;
    UINT const flags = SWP_NOZORDER | SWP_NOACTIVATE | (placed ? SWP_NOMOVE | SWP_NOSIZE : 0u) |
                       (shows == show ? 0u
                        : show        ? static_cast<UINT>(SWP_SHOWWINDOW)
                                      : SWP_HIDEWINDOW);
    moves.push_back(WINDOWPOS{window.m_hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(), flags});
}

/// All in one pass, in the order of the windows, after what is deferred already.
void DockHost::MoveAll(CWnd const & parent, std::vector<WINDOWPOS> & moves, HDWP moving)
{
    std::map<HWND, int> order;
    for (HWND child = ::GetWindow(parent.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        order.emplace(child, static_cast<int>(order.size()));
    std::sort(moves.begin(), moves.end(),
              [&](WINDOWPOS const & one, WINDOWPOS const & other) { return order[one.hwnd] < order[other.hwnd]; });
    if (moving == nullptr && !moves.empty())
        moving = ::BeginDeferWindowPos(static_cast<int>(moves.size()));
    for (WINDOWPOS const & move : moves)
    {
        if (moving != nullptr)
            moving = ::DeferWindowPos(moving, move.hwnd, nullptr, move.x, move.y, move.cx, move.cy, move.flags);
    }
    if (moving != nullptr)
        ::EndDeferWindowPos(moving);
}

CPaneDivider * DockHost::Divider(UINT frame, size_t index)
{
    std::vector<CPaneDivider *> & dividers = m_dividers[frame];
    if (index < dividers.size())
        return dividers[index];
    CWnd * const parent = ParentOf(frame);
    if (parent == nullptr)
        return nullptr;
    auto * const divider = new CPaneDivider;
    divider->m_host = this;
    divider->m_floatId = frame;
    dividers.push_back(divider);
    Life const life(*this);
    WindowGuard const guard(parent);
    bool const made = divider->CBasePane::CreateEx(0, nullptr, nullptr, WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                                                   parent, 0, 0, nullptr) != FALSE;
    if (!made && life)
        WindowEnds(divider);
    return made && life && guard.Alive() ? divider : nullptr;
}

bool DockHost::ArrangeWindows(UINT frame, DockPlan const & plan, std::vector<WINDOWPOS> & moves)
{
    Life const life(*this);
    for (DockPlan::Group const & group : plan.groups)
    {
        CDockablePane * const window = group.panes.size() > 1 ? Tabbed(group.id) : Pane(group.active);
        if (window == nullptr || window->m_hWnd == nullptr)
            return false;
        Move(moves, *window, group.rect, true);
    }
    for (size_t at = 0; at < plan.dividers.size(); ++at)
    {
        CPaneDivider * const divider = Divider(frame, at);
        if (!life || divider == nullptr)
            return false;
        DockPlan::Divider const & wanted = plan.dividers[at];
        divider->m_splitId = wanted.split;
        divider->m_index = wanted.index;
        divider->m_horizontal = !wanted.across;
        Move(moves, *divider, wanted.rect, true);
    }
    std::vector<CPaneDivider *> const & dividers = m_dividers[frame];
    for (size_t at = plan.dividers.size(); at < dividers.size(); ++at)
        Move(moves, *dividers[at], CRect(0, 0, 0, 0), false);
    return true;
}

/// The pane in front fills what the tabs leave.
bool DockHost::ArrangeTabs(CTabbedPane & tabbed, DockPlan::Group const & group)
{
    Life const life(*this);
    CRect rect;
    tabbed.GetClientRect(&rect);
    CRect const strip = TabStripOf(tabbed);
    if (tabbed.IsTabLocationBottom())
        rect.bottom = strip.top;
    else
        rect.top = strip.bottom;
    std::vector<WINDOWPOS> moves;
    for (UINT const id : group.panes)
    {
        CDockablePane * const pane = Pane(id);
        if (pane != nullptr && pane->m_hWnd != nullptr)
            Move(moves, *pane, rect, id == group.active);
    }
    MoveAll(tabbed, moves, nullptr);
    if (!life || m_again)
        return false;
    // Which tabs there are, and which is in front, may be all that has changed.
    if (CTabbedPane * const window = Tabbed(group.id))
    {
        if (window->m_shownTabs != group.panes || window->m_shownFront != group.active)
        {
            window->m_shownTabs = group.panes;
            window->m_shownFront = group.active;
            ::RedrawWindow(window->m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
        }
    }
    return true;
}

bool DockHost::PlaceStrips(CRect & space, std::vector<WINDOWPOS> & moves)
{
    Life const life(*this);
    for (DockSide const side : {DockSide::left, DockSide::top, DockSide::right, DockSide::bottom})
    {
        CMFCAutoHideBar *& strip = m_strips[static_cast<size_t>(side)];
        std::vector<UINT> const folded = m_layout.Folded(side);
        if (folded.empty())
        {
            if (strip != nullptr)
                Move(moves, *strip, CRect(0, 0, 0, 0), false);
            continue;
        }
        if (strip == nullptr)
        {
            auto * const made = new CMFCAutoHideBar;
            made->m_host = this;
            made->m_style = AlignmentOf(side);
            strip = made;
            // Its side comes with the style.
            bool const created =
                made->CBasePane::CreateEx(0, nullptr, nullptr, WS_CHILD | WS_CLIPSIBLINGS | AlignmentOf(side),
                                          CRect(0, 0, 0, 0), &m_frame, 0, 0, nullptr) != FALSE;
            if (!created && life)
                WindowEnds(made);
            if (!created || !life || strip != made)
                return false;
        }
        CRect rect(space);
        bool const across = side == DockSide::left || side == DockSide::right;
        int const thickness = std::min(m_sizes.strip, across ? rect.Width() : rect.Height());
        switch (side)
        {
        case DockSide::left:
            rect.right = space.left = rect.left + thickness;
            break;
        case DockSide::top:
            rect.bottom = space.top = rect.top + thickness;
            break;
        case DockSide::right:
            rect.left = space.right = rect.right - thickness;
            break;
        case DockSide::bottom:
            rect.top = space.bottom = rect.bottom - thickness;
            break;
        }
        Move(moves, *strip, rect, true);
        if (strip->m_shown != folded || strip->m_shownSlid != m_slid)
        {
            strip->m_shown = folded;
            strip->m_shownSlid = m_slid;
            strip->Invalidate(FALSE);
        }
    }
    return true;
}

/// Bars first, then the strips, then the panes around the centre: all in one pass.
bool DockHost::ArrangeMain()
{
    Life const life(*this);
    AFX_SIZEPARENTPARAMS bars{};
    bars.bStretch = TRUE;
    m_frame.GetClientRect(&bars.rect);
    bars.hDWP = ::BeginDeferWindowPos(static_cast<int>(2 * m_panes.size()) + 16);
    HWND const centre = CentreWindow();
    std::vector<HWND> children;
    for (HWND child = ::GetTopWindow(m_frame.m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (child != centre)
            children.push_back(child);
    }
    for (HWND const child : children)
    {
        CWnd * const window = CWnd::FromHandlePermanent(child);
        if (window == nullptr || window->IsKindOf(RUNTIME_CLASS(CDockablePane)))
            continue;
        ::SendMessage(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&bars));
        if (!life || m_again)
            return false;
    }
    CRect const border = FrameAccess::Border(m_frame);
    CRect space(bars.rect);
    space.DeflateRect(border);
    space.right = std::max(space.left, space.right);
    space.bottom = std::max(space.top, space.bottom);
    std::vector<WINDOWPOS> moves;
    if (!PlaceStrips(space, moves))
        return false;
    m_space = space;
    DockPlan const plan = m_layout.Arrange(0, space);
    m_plans[0] = plan;
    m_centre = plan.centre.value_or(CRect(0, 0, 0, 0));
    if (!ArrangeWindows(0, plan, moves))
        return false;
    if (::IsWindow(centre))
    {
        CRect present;
        ::GetWindowRect(centre, &present);
        ::MapWindowPoints(nullptr, m_frame.m_hWnd, reinterpret_cast<POINT *>(&present), 2);
        if (present != m_centre)
        {
            moves.push_back(WINDOWPOS{centre, nullptr, m_centre.left, m_centre.top, m_centre.Width(), m_centre.Height(),
                                      SWP_NOACTIVATE | SWP_NOZORDER});
        }
    }
    MoveAll(m_frame, moves, bars.hDWP);
    if (!life || m_again)
        return false;
    for (DockPlan::Group const & group : plan.groups)
    {
        CTabbedPane * const tabbed = group.panes.size() > 1 ? Tabbed(group.id) : nullptr;
        if (tabbed != nullptr && !ArrangeTabs(*tabbed, group))
            return false;
    }
    return true;
}

bool DockHost::ArrangeFrames()
{
    Life const life(*this);
    std::vector<UINT> ids;
    for (auto const & [id, mini] : m_frames)
        ids.push_back(id);
    for (UINT const id : ids)
    {
        if (!ArrangeFloating(id))
            return false;
        CPaneFrameWnd * const mini = MiniFrame(id);
        if (mini == nullptr)
            return false;
        bool const show = !m_plans[id].groups.empty();
        if (show)
            ChangeWindowText(mini->m_hWnd, mini->GetCaptionText());
        if (life && MiniFrame(id) == mini && Shows(mini->m_hWnd) != show)
            mini->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        if (!life || m_again)
            return false;
    }
    return true;
}

bool DockHost::ArrangeFloating(UINT frame)
{
    CPaneFrameWnd * const mini = MiniFrame(frame);
    if (mini == nullptr)
        return false;
    Life const life(*this);
    DockPlan const plan = m_layout.Arrange(frame, SpaceOf(frame));
    m_plans[frame] = plan;
    std::vector<WINDOWPOS> moves;
    bool const placed = ArrangeWindows(frame, plan, moves);
    if (placed && life)
        MoveAll(*mini, moves, nullptr);
    if (!placed || !life || m_again)
        return false;
    for (DockPlan::Group const & group : plan.groups)
    {
        CTabbedPane * const tabbed = group.panes.size() > 1 ? Tabbed(group.id) : nullptr;
        if (tabbed != nullptr && !ArrangeTabs(*tabbed, group))
            return false;
    }
    return true;
}

void DockHost::ArrangeFrame(UINT frame)
{
    // Its size alone has changed.
    if (m_ending || m_arranging || m_locked > 0 || frame >= former_ids)
        return;
    Life const life(*this);
    m_arranging = true;
    m_again = false;
    ArrangeFloating(frame);
    if (!life)
        return;
    m_arranging = false;
    if (m_again)
        Arrange();
}

/// A folded pane that is shown lies over the others, beside its strip.
bool DockHost::PlaceSlid()
{
    CDockablePane * const pane = Pane(m_slid);
    DockPane const * const known = m_layout.Find(m_slid);
    if (pane == nullptr || known == nullptr || known->place != DockPlace::folded)
    {
        m_slid = 0;
        return true;
    }
    Life const life(*this);
    WindowGuard const guard(pane);
    CRect rect(m_space);
    CSize const least = LeastSize(*pane, m_sizes);
    // As it was docked, but not over more than half of the others: it may have been docked at another side.
    int const width = std::min(rect.Width(), std::max<int>(std::min<int>(known->size.cx, rect.Width() / 2), least.cx));
    int const height =
        std::min(rect.Height(), std::max<int>(std::min<int>(known->size.cy, rect.Height() / 2), least.cy));
    switch (known->foldSide)
    {
    case DockSide::left:
        rect.right = rect.left + width;
        break;
    case DockSide::top:
        rect.bottom = rect.top + height;
        break;
    case DockSide::right:
        rect.left = rect.right - width;
        break;
    case DockSide::bottom:
        rect.top = rect.bottom - height;
        break;
    }
    if (!SetCaption(*pane, true) || !guard.Alive())
        return false;
    pane->CWnd::SetWindowPos(&CWnd::wndTop, rect.left, rect.top, rect.Width(), rect.Height(),
                             SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return life && !m_again;
}
} // namespace framework
