// The panes of a frame: what is kept of them, and how it comes back.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockDrag.h"
#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

namespace framework
{
std::vector<std::uint8_t> DockHost::Save()
{
    DockLayout stored = m_layout;
    std::vector<UINT> own;
    for (auto const & [id, pane] : stored.Panes())
    {
        if (id >= first_own_id)
            own.push_back(id);
    }
    for (UINT const id : own)
        stored.RemovePane(id);
    // Bars that can't be docked beside others have their side and whether they are shown.
    for (HWND child = ::GetWindow(m_frame.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto * const bar = DYNAMIC_DOWNCAST(CPane, CWnd::FromHandlePermanent(child));
        UINT const id = bar != nullptr ? static_cast<WORD>(bar->GetDlgCtrlID()) : 0;
        if (bar == nullptr || id == 0 || bar->IsKindOf(RUNTIME_CLASS(CDockablePane)) ||
            bar->IsKindOf(RUNTIME_CLASS(CMFCAutoHideBar)) || stored.Find(id) != nullptr)
            continue;
        DockPane & known = stored.AddPane(id, CSize(0, 0), CSize(0, 0));
        known.visible = bar->IsPaneVisible() != FALSE;
        known.foldSide = SideOf(bar->GetCurrentAlignment(), DockSide::top);
    }
    return stored.Save();
}

bool DockHost::Load(std::vector<std::uint8_t> const & bytes, std::function<bool(UINT)> const & isStored)
{
    std::optional<DockLayout> loaded = DockLayout::Load(bytes);
    if (!loaded || m_ending)
        return false;
    CancelDrag();
    loaded->metrics = m_layout.metrics;
    loaded->RemoveAbsent([&](UINT id) { return !isStored(id); });
    // Panes that the program has and the workspace doesn't know stay where the program has put them.
    for (auto const & [id, pane] : m_panes)
    {
        DockPane const present = *m_layout.Find(id);
        bool const known = loaded->Find(id) != nullptr && loaded->Find(id)->place != DockPlace::none;
        DockPane & stored = loaded->AddPane(id, present.minSize, present.size);
        pane->m_restored = known;
        if (known)
        {
            pane->m_recentVisible = stored.visible;
            continue;
        }
        if (present.place == DockPlace::floating)
            loaded->Float(id, present.floatRect);
        else if (present.place != DockPlace::none)
            loaded->DockAtSide(id, m_layout.SideOf(id), false, 0);
        loaded->Show(id, present.visible);
    }
    m_slid = 0;
    m_plans.clear();
    m_layout = std::move(*loaded);
    PutFramesOnScreen();
    // Windows of the former places have numbers of the former layout.
    Life const life(*this);
    Renumber();
    std::vector<std::pair<CPane *, DockPane>> bars;
    for (HWND child = ::GetWindow(m_frame.m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto * const bar = DYNAMIC_DOWNCAST(CPane, CWnd::FromHandlePermanent(child));
        DockPane const * const known = bar != nullptr && !bar->IsKindOf(RUNTIME_CLASS(CDockablePane)) &&
                                               !bar->IsKindOf(RUNTIME_CLASS(CMFCAutoHideBar))
                                           ? m_layout.Find(static_cast<WORD>(bar->GetDlgCtrlID()))
                                           : nullptr;
        if (known != nullptr && known->place == DockPlace::none)
            bars.emplace_back(bar, *known);
    }
    for (auto const & [bar, known] : bars)
    {
        WindowGuard const guard(bar);
        if (!life || !guard.Alive())
            return false;
        bar->m_restored = true;
        bar->m_recentVisible = known.visible;
        if (bar->GetCurrentAlignment() != 0 && (bar->GetEnabledAlignment() & AlignmentOf(known.foldSide)) != 0)
            bar->SetPaneAlignment(AlignmentOf(known.foldSide));
        if ((bar->IsPaneVisible() != FALSE) != known.visible)
            bar->ShowWindow(known.visible ? SW_SHOWNA : SW_HIDE);
    }
    if (life)
        m_frame.RecalcLayout();
    return true;
}

void DockHost::PutFramesOnScreen()
{
    for (DockLayout::Frame const & frame : std::vector<DockLayout::Frame>(m_layout.Frames()))
        m_layout.SetFrameRect(frame.id, OnScreen(frame.rect));
}

void DockHost::BringOntoScreen()
{
    PutFramesOnScreen();
    Arrange();
}

CRect DockHost::OnScreen(CRect rect) const
{
    if (rect.IsRectEmpty())
        rect = CRect(CPoint(rect.left, rect.top), CSize(300, 200));
    CRect const grip(rect.left + m_sizes.caption, rect.top, rect.right - m_sizes.caption, rect.top + m_sizes.caption);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (!::GetMonitorInfo(::MonitorFromRect(&grip, MONITOR_DEFAULTTONEAREST), &info))
        return rect;
    // The caption has to be within reach, and so have the edges.
    CRect const work(info.rcWork);
    CSize const size(std::min(rect.Width(), work.Width()), std::min(rect.Height(), work.Height()));
    if (size == rect.Size() && ::MonitorFromRect(&grip, MONITOR_DEFAULTTONULL) != nullptr)
        return rect;
    CPoint const corner(std::clamp<int>(rect.left, work.left, work.right - size.cx),
                        std::clamp<int>(rect.top, work.top, work.bottom - size.cy));
    return CRect(corner, size);
}
} // namespace framework
