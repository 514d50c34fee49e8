// The panes of a frame: what programs and users want of them.

#include "detail/DockHost.h"

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockDrag.h"
#include "detail/FrameSupport.h"

namespace framework
{
namespace
{
CFont & PaneFont()
{
    static CFont font;
    if (font.m_hObject == nullptr)
    {
        NONCLIENTMETRICS metrics{};
        metrics.cbSize = sizeof metrics;
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
        font.CreateFontIndirect(&metrics.lfMessageFont);
    }
    return font;
}

} // namespace

void RefreshPaneFont()
{
    PaneFont().DeleteObject();
}

CFont * SelectPaneFont(CDC & dc)
{
    return dc.SelectObject(&PaneFont());
}

CString TitleOf(CDockablePane const & pane)
{
    CString title;
    // There is no way to ask for the length alone.
    for (int room = 128;; room *= 2)
    {
        int const length = ::InternalGetWindowText(pane.m_hWnd, title.GetBuffer(room), room);
        title.ReleaseBuffer(length);
        if (length < room - 1)
            return title;
    }
}

DockSide SideOf(DWORD alignment, DockSide otherwise)
{
    if ((alignment & CBRS_ALIGN_LEFT) != 0)
        return DockSide::left;
    if ((alignment & CBRS_ALIGN_TOP) != 0)
        return DockSide::top;
    if ((alignment & CBRS_ALIGN_RIGHT) != 0)
        return DockSide::right;
    if ((alignment & CBRS_ALIGN_BOTTOM) != 0)
        return DockSide::bottom;
    return otherwise;
}

DWORD AlignmentOf(DockSide side)
{
    switch (side)
    {
    case DockSide::left:
        return CBRS_ALIGN_LEFT;
    case DockSide::top:
        return CBRS_ALIGN_TOP;
    case DockSide::right:
        return CBRS_ALIGN_RIGHT;
    default:
        return CBRS_ALIGN_BOTTOM;
    }
}

DockSizes DockSizes::Measure()
{
    CWindowDC dc(nullptr);
    CFont * const former = SelectPaneFont(dc);
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(former);
    int const resolution = dc.GetDeviceCaps(LOGPIXELSY);
    auto const scaled = [resolution](int size) { return ::MulDiv(size, resolution, USER_DEFAULT_SCREEN_DPI); };
    DockSizes sizes;
    sizes.gap = scaled(4);
    sizes.caption = static_cast<int>(metrics.tmHeight) + scaled(5);
    sizes.tabs = static_cast<int>(metrics.tmHeight) + scaled(7);
    sizes.strip = static_cast<int>(metrics.tmHeight) + scaled(8);
    sizes.sensitivity = scaled(CDockingManager::m_nDockSensitivity);
    return sizes;
}

DockHost::DockHost(CDockingManager & manager, CFrameWnd & frame)
    : m_manager(manager),
      m_frame(frame),
      m_alive(std::make_shared<bool>(true))
{
    MeasureAgain();
}

DockHost::~DockHost()
{
    FrameEnds();
    *m_alive = false;
}

CDockingManager * DockHost::ManagerOf(CWnd const * frame)
{
    if (auto * const main = DYNAMIC_DOWNCAST(CMDIFrameWndEx, const_cast<CWnd *>(frame)))
        return &main->m_impl.Manager();
    if (auto * const main = DYNAMIC_DOWNCAST(CFrameWndEx, const_cast<CWnd *>(frame)))
        return &main->m_impl.Manager();
    return nullptr;
}

DockHost * DockHost::Of(CWnd * frame)
{
    CDockingManager * const manager = ManagerOf(frame);
    if (manager == nullptr)
        return nullptr;
    if (manager->m_host == nullptr)
        manager->Create(static_cast<CFrameWnd *>(frame));
    return manager->m_host;
}

void DockHost::MeasureAgain()
{
    m_sizes = DockSizes::Measure();
    m_layout.metrics.divider = ::MulDiv(CPaneDivider::GetDefaultWidth(), m_sizes.gap, 4);
    m_layout.metrics.tabs = m_sizes.tabs;
    m_layout.metrics.centre = CSize(2 * m_sizes.caption, 2 * m_sizes.caption);
    for (auto const & [id, pane] : m_panes)
        m_layout.SetMinSize(id, LeastSize(*pane, m_sizes));
}

void DockHost::FrameEnds()
{
    if (m_ending)
        return;
    m_ending = true;
    m_drag.reset();
    // The panes that float end with their frames, the others with the main frame; the objects are the program's.
    // One may take others with it, which WindowEnds then takes out.
    Life const life(*this);
    while (!m_frames.empty())
    {
        m_frames.extract(m_frames.begin()).mapped()->DestroyWindow();
        if (!life)
            return;
    }
    for (auto const & [id, pane] : m_panes)
        pane->m_host = nullptr;
    for (auto const & [group, tabbed] : m_tabbed)
        tabbed->m_host = nullptr;
    for (auto const & [frame, dividers] : m_dividers)
    {
        for (CPaneDivider * const divider : dividers)
            divider->m_host = nullptr;
    }
    for (CMFCAutoHideBar * const strip : m_strips)
    {
        if (strip != nullptr)
            strip->m_host = nullptr;
    }
    m_panes.clear();
    m_tabbed.clear();
    m_frames.clear();
    m_dividers.clear();
    std::fill(std::begin(m_strips), std::end(m_strips), nullptr);
}

void DockHost::WindowEnds(CWnd const * window)
{
    std::erase_if(m_frames, [&](auto const & entry) { return entry.second == window; });
    std::erase_if(m_tabbed, [&](auto const & entry) { return entry.second == window; });
    for (auto & [frame, dividers] : m_dividers)
        std::erase_if(dividers, [&](CPaneDivider * divider) { return divider == window; });
    for (CMFCAutoHideBar *& strip : m_strips)
    {
        if (strip == window)
            strip = nullptr;
    }
    if (m_drag != nullptr && !m_ending)
        m_drag->Cancel();
}

// Panes

UINT DockHost::FreeId(UINT wanted) const
{
    if (wanted != 0 && wanted < first_own_id - 1 && !m_panes.contains(wanted))
        return wanted;
    UINT id = first_own_id;
    while (m_layout.Find(id) != nullptr)
        ++id;
    return id;
}

bool DockHost::Register(CDockablePane & pane)
{
    if (pane.m_host == this)
        return true;
    if (m_ending || pane.m_hWnd == nullptr || pane.IsKindOf(RUNTIME_CLASS(CBaseTabbedPane)))
        return false;
    if (pane.m_host != nullptr)
        pane.m_host->Leave(pane, false);
    UINT const id = FreeId(static_cast<UINT>(pane.GetDlgCtrlID()));
    pane.m_host = this;
    pane.m_dockId = id;
    m_panes[id] = &pane;
    bool const stored = m_layout.Find(id) != nullptr;
    DockPane const & known = m_layout.AddPane(id, LeastSize(pane, m_sizes), pane.m_defaultSize);
    if (stored && known.place != DockPlace::none)
    {
        pane.m_restored = true;
        pane.m_recentVisible = known.visible;
        Arrange();
    }
    return true;
}

void DockHost::Leave(CDockablePane & pane, bool destroyed)
{
    if (pane.IsKindOf(RUNTIME_CLASS(CBaseTabbedPane)))
    {
        WindowEnds(&pane);
        pane.m_host = nullptr;
        return;
    }
    UINT const id = pane.m_dockId;
    auto const at = m_panes.find(id);
    pane.m_host = nullptr;
    if (at == m_panes.end() || at->second != &pane)
        return;
    m_panes.erase(at);
    if (m_slid == id)
        m_slid = 0;
    if (m_drag != nullptr && !m_ending)
        m_drag->PaneEnds(id);
    if (destroyed && id < first_own_id)
        m_layout.LeavePane(id);
    else
        m_layout.RemovePane(id);
    if (m_ending)
        return;
    if (!destroyed)
    {
        // It keeps its window, as one that has no place.
        Life const life(*this);
        if (::GetParent(pane.m_hWnd) != m_frame.m_hWnd)
            Adopt(pane, m_frame);
        if (life)
            Arrange();
        return;
    }
    // Its window is about to end, and those around it with it: not while it does.
    ArrangeSoon();
}

CDockablePane * DockHost::Pane(UINT id) const
{
    auto const at = m_panes.find(id);
    return at != m_panes.end() ? at->second : nullptr;
}

CTabbedPane * DockHost::Tabbed(UINT group) const
{
    auto const at = m_tabbed.find(group);
    return at != m_tabbed.end() ? at->second : nullptr;
}

CPaneFrameWnd * DockHost::MiniFrame(UINT frame) const
{
    auto const at = m_frames.find(frame);
    return at != m_frames.end() ? at->second : nullptr;
}

std::vector<CDockablePane *> DockHost::Panes() const
{
    std::vector<CDockablePane *> panes;
    for (auto const & [id, pane] : m_panes)
        panes.push_back(pane);
    return panes;
}

std::vector<CDockablePane *> DockHost::TabsOf(UINT group) const
{
    std::vector<CDockablePane *> panes;
    for (auto const & [frame, plan] : m_plans)
    {
        for (DockPlan::Group const & one : plan.groups)
        {
            if (one.id != group)
                continue;
            for (UINT const id : one.panes)
            {
                if (CDockablePane * const pane = Pane(id))
                    panes.push_back(pane);
            }
        }
    }
    return panes;
}

UINT DockHost::FrontOf(CDockablePane const & pane) const
{
    auto * const tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, const_cast<CDockablePane *>(&pane));
    if (tabbed == nullptr)
        return pane.m_dockId;
    for (auto const & [frame, plan] : m_plans)
    {
        for (DockPlan::Group const & group : plan.groups)
        {
            if (group.id == tabbed->m_group)
                return group.active;
        }
    }
    return 0;
}

std::vector<UINT> DockHost::DraggedWith(CDockablePane const & pane) const
{
    UINT const front = FrontOf(pane);
    std::vector<UINT> panes = m_layout.ShownTogether(front);
    // The one in front stays there.
    auto const at = std::find(panes.begin(), panes.end(), front);
    if (at != panes.end())
        std::rotate(panes.begin(), at, at + 1);
    return panes;
}

CBasePane * DockHost::FindBar(UINT id) const
{
    if (CDockablePane * const pane = Pane(id))
        return pane;
    for (HWND child = ::GetWindow(m_frame.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto * const bar = DYNAMIC_DOWNCAST(CBasePane, CWnd::FromHandlePermanent(child));
        if (bar != nullptr && static_cast<WORD>(bar->GetDlgCtrlID()) == id &&
            !bar->IsKindOf(RUNTIME_CLASS(CPaneDivider)) && !bar->IsKindOf(RUNTIME_CLASS(CMFCAutoHideBar)))
            return bar;
    }
    return nullptr;
}

// Wishes

bool DockHost::Dock(CDockablePane & pane, DockSide side, bool outer, int extent)
{
    Life const life(*this);
    WindowGuard const guard(&pane);
    if (!Register(pane) || !life || !guard.Alive() || (sides & AlignmentOf(side) & pane.GetEnabledAlignment()) == 0)
        return false;
    UINT const id = pane.m_dockId;
    CBasePane * target = nullptr;
    if (!pane.OnBeforeDock(&target, nullptr, DM_SHOW) || !life || Pane(id) != &pane ||
        !m_layout.DockAtSide(id, side, outer, extent))
        return false;
    m_layout.Show(id, true);
    Arrange();
    if (life && Pane(id) == &pane)
        pane.OnAfterDock(nullptr, nullptr, DM_SHOW);
    return true;
}

bool DockHost::Beside(CDockablePane & pane, CDockablePane & target, DockSide side, int extent)
{
    UINT const id = pane.m_dockId;
    UINT const other = FrontOf(target);
    Life const life(*this);
    CBasePane * bar = &target;
    if (!pane.OnBeforeDock(&bar, nullptr, DM_SHOW) || !life || Pane(id) != &pane ||
        !m_layout.DockBeside(id, other, side, extent))
        return false;
    m_layout.Show(id, true);
    Arrange();
    if (life && Pane(id) == &pane)
        pane.OnAfterDock(nullptr, nullptr, DM_SHOW);
    return true;
}

bool DockHost::Attach(CDockablePane & pane, CDockablePane & target, int index, bool activate)
{
    UINT const id = pane.m_dockId;
    UINT const other = FrontOf(target);
    DockNode const * const group = m_layout.GroupOf(other);
    UINT const front = group != nullptr ? group->active : other;
    Life const life(*this);
    CBasePane * bar = &target;
    if (!pane.OnBeforeDock(&bar, nullptr, DM_SHOW) || !life || Pane(id) != &pane ||
        !m_layout.DockAsTab(id, other, index))
        return false;
    m_layout.Show(id, true);
    if (!activate && front != id)
        m_layout.Activate(front);
    Arrange();
    if (life && Pane(id) == &pane)
        pane.OnAfterDock(nullptr, nullptr, DM_SHOW);
    return true;
}

bool DockHost::Float(CDockablePane & pane, CRect const & rect, AFX_DOCK_METHOD method, bool show)
{
    if (!pane.CanFloat() || m_ending)
        return false;
    UINT const id = pane.m_dockId;
    Life const life(*this);
    CRect wanted(rect);
    if (!pane.OnBeforeFloat(wanted, method) || !life || Pane(id) != &pane || !m_layout.Float(id, wanted))
        return false;
    if (show)
        m_layout.Show(id, true);
    if (m_slid == id)
        m_slid = 0;
    Arrange();
    if (life && Pane(id) == &pane)
        pane.OnAfterFloat();
    return true;
}

bool DockHost::DockBack(DockContent const & content)
{
    if (!m_layout.DockBack(content))
        return false;
    Arrange();
    return true;
}

std::vector<UINT> DockHost::PanesOf(DockContent const & content) const
{
    return content.frame != 0 ? m_layout.ShownIn(content.frame) : content.panes;
}

void DockHost::Notify(DockContent const & content, bool floated, AFX_DOCK_METHOD method)
{
    Life const life(*this);
    for (UINT const id : PanesOf(content))
    {
        CDockablePane * const pane = Pane(id);
        if (pane == nullptr)
            continue;
        if (floated)
            pane->OnAfterFloat();
        else
            pane->OnAfterDock(nullptr, nullptr, method);
        if (!life)
            return;
    }
}

void DockHost::Toggle(DockContent const & content)
{
    std::vector<UINT> const panes = PanesOf(content);
    CDockablePane * const first = panes.empty() ? nullptr : Pane(panes.front());
    DockPane const * const known = first != nullptr ? m_layout.Find(panes.front()) : nullptr;
    if (known == nullptr)
        return;
    Life const life(*this);
    bool const floats = known->place == DockPlace::floating;
    if (!floats)
    {
        if (!first->CanFloat() || known->place != DockPlace::docked)
            return;
        CRect rect;
        ::GetWindowRect(::GetParent(first->m_hWnd) == m_frame.m_hWnd ? first->m_hWnd : ::GetParent(first->m_hWnd),
                        &rect);
        rect.OffsetRect(m_sizes.caption, m_sizes.caption);
        if (!first->OnBeforeFloat(rect, DM_DBL_CLICK) || !life)
            return;
        if (!m_layout.FloatBack(DockContent(panes)))
            m_layout.Float(DockContent(panes), rect);
    }
    else
    {
        CBasePane * target = nullptr;
        DockSide const side = SideOf(first->GetPaneStyle() & sides & first->GetEnabledAlignment(),
                                     SideOf(sides & first->GetEnabledAlignment(), DockSide::left));
        if ((sides & first->GetEnabledAlignment() & CBRS_ALIGN_ANY) == 0 ||
            !first->OnBeforeDock(&target, nullptr, DM_DBL_CLICK) || !life)
            return;
        if (!m_layout.DockBack(DockContent(panes)))
            m_layout.DockAtSide(content, side, false);
    }
    Arrange();
    if (life)
        Notify(DockContent(panes), !floats, DM_DBL_CLICK);
}

void DockHost::Show(CDockablePane & pane, bool show, bool activate)
{
    UINT const id = pane.m_dockId;
    DockPane const * const known = m_layout.Find(id);
    if (known == nullptr || m_ending)
        return;
    pane.m_recentVisible = show;
    Life const life(*this);
    if (known->place == DockPlace::none)
    {
        // It has no place to be shown at but where it is.
        m_layout.Show(id, show);
        pane.ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        if (show && activate && life && Pane(id) == &pane)
            FocusPane(pane);
        return;
    }
    bool const changes = known->visible != show;
    m_layout.Show(id, show);
    if (!show && m_slid == id)
        m_slid = 0;
    if (changes && !(show && activate))
        Arrange();
    if (show && activate && life)
        Activate(id, true);
}

void DockHost::Activate(UINT id, bool focus)
{
    DockPane const * const known = m_layout.Find(id);
    if (known == nullptr || Pane(id) == nullptr || m_ending)
        return;
    Life const life(*this);
    m_layout.Activate(id);
    if (known->place == DockPlace::folded)
        SlideOut(id);
    else
        Arrange();
    if (!life || !focus)
        return;
    CDockablePane * const pane = Pane(id);
    if (pane == nullptr)
        return;
    if (UINT const frame = m_layout.FrameOf(id))
    {
        CPaneFrameWnd * const mini = MiniFrame(frame);
        if (mini != nullptr)
            mini->BringWindowToTop();
    }
    if (life && Pane(id) == pane)
        FocusPane(*pane);
}

bool DockHost::Fold(CDockablePane & pane, bool fold, std::optional<DockSide> side)
{
    UINT const id = pane.m_dockId;
    if (fold)
    {
        if (foldSides == 0)
            return false;
        DockSide const wanted = side.value_or(m_layout.SideOf(id));
        if ((foldSides & AlignmentOf(wanted)) == 0)
            return false;
        side = wanted;
    }
    HWND const focus = ::GetFocus();
    bool const focused = focus != nullptr && (focus == pane.m_hWnd || ::IsChild(pane.m_hWnd, focus));
    if (!m_layout.Fold(id, fold, side))
        return false;
    if (m_slid != 0)
        m_slid = 0;
    Life const life(*this);
    if (fold && focused)
        m_frame.SetFocus();
    if (life)
        Arrange();
    return true;
}

void DockHost::SlideOut(UINT id)
{
    DockPane const * const known = m_layout.Find(id);
    CDockablePane * const pane = Pane(id);
    if (known == nullptr || pane == nullptr || known->place != DockPlace::folded)
        return;
    Life const life(*this);
    m_layout.Show(id, true);
    m_slid = id;
    Arrange();
    if (!life || Pane(id) != pane || m_slid != id)
        return;
    if (CMFCAutoHideBar * const strip = Strip(known->foldSide))
        strip->SetTimer(slide_watch_timer, 200, nullptr);
    pane->OnSlide(TRUE);
}

void DockHost::SlideBack()
{
    UINT const id = std::exchange(m_slid, 0);
    if (id == 0)
        return;
    for (CMFCAutoHideBar * const strip : m_strips)
    {
        if (strip != nullptr)
            strip->KillTimer(slide_watch_timer);
    }
    Life const life(*this);
    CDockablePane * const pane = Pane(id);
    HWND const focus = ::GetFocus();
    if (pane != nullptr && focus != nullptr && (focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus)))
        m_frame.SetFocus();
    if (life)
        Arrange();
    if (life && Pane(id) == pane && pane != nullptr)
        pane->OnSlide(FALSE);
}

void DockHost::WatchSlid()
{
    CDockablePane const * const pane = Pane(m_slid);
    if (pane == nullptr)
    {
        SlideBack();
        return;
    }
    if (Dragging())
        return;
    HWND const focus = ::GetFocus();
    if (focus != nullptr && (focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus)))
        return;
    CPoint point;
    ::GetCursorPos(&point);
    CRect rect;
    pane->GetWindowRect(&rect);
    CRect strip(0, 0, 0, 0);
    if (CMFCAutoHideBar const * const bar = Strip(m_layout.Find(m_slid)->foldSide))
        bar->GetWindowRect(&strip);
    if (!rect.PtInRect(point) && !strip.PtInRect(point))
        SlideBack();
}

void DockHost::Close(UINT id)
{
    CDockablePane * const pane = Pane(id);
    if (pane == nullptr || !pane->CanBeClosed())
        return;
    Life const life(*this);
    if (!AskToClose(*pane) || !life || Pane(id) != pane)
        return;
    pane->OnPressCloseButton();
    if (life && Pane(id) == pane)
        pane->ShowPane(FALSE, FALSE, FALSE);
}

void DockHost::CloseFrame(UINT frame)
{
    CPaneFrameWnd * const mini = MiniFrame(frame);
    if (mini == nullptr)
        return;
    Life const life(*this);
    if (!AskToClose(*mini) || !life)
        return;
    std::vector<UINT> const panes = m_layout.ShownIn(frame);
    for (UINT const id : panes)
    {
        CDockablePane * const pane = Pane(id);
        if (pane == nullptr || !pane->CanBeClosed())
            continue;
        pane->OnPressCloseButton();
        if (!life)
            return;
        if (Pane(id) != nullptr && m_layout.FrameOf(id) == frame)
        {
            m_layout.Show(id, false);
            Pane(id)->m_recentVisible = false;
        }
    }
    Arrange();
}

bool DockHost::AskToClose(CDockablePane & pane)
{
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, &m_frame))
        return frame->OnCloseDockingPane(&pane) != FALSE;
    auto * const frame = DYNAMIC_DOWNCAST(CFrameWndEx, &m_frame);
    return frame == nullptr || frame->OnCloseDockingPane(&pane);
}

bool DockHost::AskToClose(CPaneFrameWnd & mini)
{
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, &m_frame))
        return frame->OnCloseMiniFrame(&mini) != FALSE;
    auto * const frame = DYNAMIC_DOWNCAST(CFrameWndEx, &m_frame);
    return frame == nullptr || frame->OnCloseMiniFrame(&mini);
}

bool DockHost::Cycle(bool back)
{
    // In the order of the places, those of the frame first.
    std::vector<UINT> order;
    for (auto const & [frame, plan] : m_plans)
    {
        for (DockPlan::Group const & group : plan.groups)
            order.insert(order.end(), group.panes.begin(), group.panes.end());
    }
    HWND const focus = ::GetFocus();
    auto const has = [&](UINT id) {
        CDockablePane const * const pane = Pane(id);
        return pane != nullptr && focus != nullptr && (focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus));
    };
    auto const at = std::find_if(order.begin(), order.end(), has);
    if (order.empty() || (at == order.end() && !FocusIsFree()))
        return false;
    size_t const count = order.size();
    size_t next = back ? count - 1 : 0;
    if (at != order.end())
        next = (static_cast<size_t>(at - order.begin()) + (back ? count - 1 : 1)) % count;
    Activate(order[next], true);
    return true;
}

bool DockHost::FocusIsFree() const
{
    // Child frames have the keys for themselves.
    auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWnd, &m_frame);
    return frame == nullptr || frame->MDIGetActive() == nullptr;
}

void DockHost::FrameMoved(UINT frame, CRect const & rect)
{
    m_layout.SetFrameRect(frame, rect);
}

void DockHost::TitleChanged(CDockablePane & pane)
{
    ::RedrawWindow(pane.m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
    if (CBaseTabbedPane * const tabbed = pane.GetParentTabbedPane())
        ::RedrawWindow(tabbed->m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
    DockPane const * const known = m_layout.Find(pane.m_dockId);
    if (known == nullptr)
        return;
    if (known->place == DockPlace::folded && Strip(known->foldSide) != nullptr)
        Strip(known->foldSide)->Invalidate();
    if (CPaneFrameWnd * const mini = MiniFrame(m_layout.FrameOf(pane.m_dockId)))
        ChangeWindowText(mini->m_hWnd, mini->GetCaptionText());
}

void DockHost::LeastSizeChanged(CDockablePane & pane)
{
    m_layout.SetMinSize(pane.m_dockId, LeastSize(pane, m_sizes));
    Arrange();
}

void DockHost::RepaintCaptions()
{
    // Where the focus has come to a pane or left it.
    HWND const focus = ::GetFocus();
    auto const update = [focus](CDockablePane & pane) {
        bool const active = focus != nullptr && (focus == pane.m_hWnd || ::IsChild(pane.m_hWnd, focus));
        if (active != pane.m_active && pane.GetCaptionHeight() > 0 && pane.IsPaneVisible())
            ::RedrawWindow(pane.m_hWnd, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN);
    };
    for (auto const & [id, pane] : m_panes)
        update(*pane);
    for (auto const & [group, tabbed] : m_tabbed)
        update(*tabbed);
}

int DockHost::MoveDivider(CPaneDivider const & divider, int offset)
{
    int const moved =
        m_layout.MoveDivider(divider.m_floatId, SpaceOf(divider.m_floatId), divider.m_splitId, divider.m_index, offset);
    if (moved != 0)
        Arrange();
    return moved;
}

CSize DockHost::LeastOf(UINT frame)
{
    return m_layout.Arrange(frame, SpaceOf(frame)).least;
}
} // namespace framework
