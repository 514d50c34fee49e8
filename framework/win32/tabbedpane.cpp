// CBaseTabbedPane and CTabbedPane.

#include "afxcontrolbars.h"
#include "afxcontrolbarutil.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CBaseTabbedPane, CDockablePane)
IMPLEMENT_DYNCREATE(CTabbedPane, CBaseTabbedPane)

// clang-format off
BEGIN_MESSAGE_MAP(CTabbedPane, CBaseTabbedPane)
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_PAINT()
END_MESSAGE_MAP()
// clang-format on

BOOL CTabbedPane::m_bTabsAlwaysTop = FALSE;

CBaseTabbedPane::CBaseTabbedPane() : m_group(0) {}

BOOL CBaseTabbedPane::AddTab(CWnd * pNewBar, BOOL bVisible, BOOL bSetActive, BOOL)
{
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, pNewBar);
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this);
    if (pane == nullptr || panes.empty() || m_host == nullptr)
        return FALSE;
    WindowGuard const guard(pane);
    if (pane->AttachToTabWnd(panes.front(), DM_SHOW, bSetActive) == nullptr)
        return FALSE;
    if (!bVisible && guard.Alive())
        pane->ShowPane(FALSE, FALSE, FALSE);
    return TRUE;
}

BOOL CBaseTabbedPane::DetachPane(CWnd * pBar, BOOL bHide)
{
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (pane == nullptr || pane->GetParentTabbedPane() != this)
        return FALSE;
    WindowGuard const guard(pane);
    pane->UndockPane();
    if (bHide && guard.Alive())
        pane->ShowWindow(SW_HIDE);
    return TRUE;
}

BOOL CBaseTabbedPane::RemovePane(CWnd * pBar)
{
    return DetachPane(pBar, TRUE);
}

BOOL CBaseTabbedPane::FloatTab(CWnd * pBar, int, AFX_DOCK_METHOD dockMethod, BOOL bHide)
{
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (pane == nullptr || pane->GetParentTabbedPane() != this)
        return FALSE;
    CRect rect;
    GetWindowRect(&rect);
    return pane->FloatPane(rect, dockMethod, !bHide);
}

BOOL CBaseTabbedPane::ShowTab(CWnd * pBar, BOOL bShow, BOOL bDelay, BOOL bActivate)
{
    auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (pane == nullptr || pane->GetParentTabbedPane() != this)
        return FALSE;
    pane->ShowPane(bShow, bDelay, bActivate);
    return TRUE;
}

CWnd * CBaseTabbedPane::FindPaneByID(UINT uBarID)
{
    for (CDockablePane * const pane : framework::PanesIn(*this))
    {
        if (static_cast<UINT>(pane->GetDlgCtrlID()) == uBarID)
            return pane;
    }
    return nullptr;
}

CWnd * CBaseTabbedPane::FindBarByTabNumber(int nTabNum, BOOL)
{
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this);
    return nTabNum >= 0 && static_cast<size_t>(nTabNum) < panes.size() ? panes[static_cast<size_t>(nTabNum)] : nullptr;
}

CWnd * CBaseTabbedPane::GetFirstVisibleTab(int & iTabNum)
{
    iTabNum = 0;
    CWnd * const first = FindBarByTabNumber(0);
    if (first == nullptr)
        iTabNum = -1;
    return first;
}

void CBaseTabbedPane::GetPaneList(CObList & lst, CRuntimeClass * pRTCFilter)
{
    for (CDockablePane * const pane : framework::PanesIn(*this))
    {
        if (pRTCFilter == nullptr || pane->GetRuntimeClass() == pRTCFilter)
            lst.AddTail(pane);
    }
}

int CBaseTabbedPane::GetTabsNum() const
{
    return static_cast<int>(framework::PanesIn(*this).size());
}

int CBaseTabbedPane::GetVisibleTabsNum() const
{
    return GetTabsNum();
}

BOOL CBaseTabbedPane::IsHideSingleTab() const
{
    return TRUE;
}

BOOL CBaseTabbedPane::AllowDestroyEmptyTabbedPane() const
{
    return TRUE;
}

void CBaseTabbedPane::GetMinSize(CSize & size) const
{
    size = CSize(0, 0);
    for (CDockablePane const * const pane : framework::PanesIn(*this))
    {
        CSize own;
        pane->GetMinSize(own);
        size.cx = std::max(size.cx, own.cx);
        size.cy = std::max(size.cy, own.cy);
    }
}

BOOL CBaseTabbedPane::HasAutoHideMode() const
{
    return TRUE;
}

void CBaseTabbedPane::RecalcLayout()
{
    if (m_host != nullptr)
        m_host->Arrange();
}

// CTabbedPane

CTabbedPane::CTabbedPane(BOOL) : m_shownFront(0) {}

CTabbedPane::~CTabbedPane() = default;

void CTabbedPane::PostNcDestroy()
{
    delete this;
}

BOOL CTabbedPane::IsTabLocationBottom() const
{
    return !m_bTabsAlwaysTop;
}

void CTabbedPane::GetTabArea(CRect & rectTabAreaTop, CRect & rectTabAreaBottom) const
{
    rectTabAreaTop.SetRectEmpty();
    rectTabAreaBottom.SetRectEmpty();
    CRect area = framework::TabStripOf(*this);
    ClientToScreen(&area);
    (IsTabLocationBottom() ? rectTabAreaBottom : rectTabAreaTop) = area;
}

void CTabbedPane::OnPaint()
{
    WindowGuard const guard(this);
    CPaintDC dc(this); // has the ground erased
    if (!guard.Alive())
        return;
    CRect const strip = framework::TabStripOf(*this);
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this);
    std::vector<CRect> const tabs = framework::TabRects(*this, panes);
    CMemDC buffer(dc, strip);
    CDC & canvas = buffer.GetDC();
    bool const bottom = IsTabLocationBottom() != FALSE;
    COLORREF const line = ::GetSysColor(COLOR_BTNSHADOW);
    canvas.FillSolidRect(&strip, ::GetSysColor(COLOR_BTNFACE));
    int const edge = bottom ? strip.top : strip.bottom - 1;
    canvas.FillSolidRect(strip.left, edge, strip.Width(), 1, line);
    CFont * const former = SelectDefaultFont(&canvas);
    int const formerMode = canvas.SetBkMode(TRANSPARENT);
    UINT const front = m_host != nullptr ? m_host->FrontOf(*this) : 0;
    for (size_t at = 0; at < panes.size(); ++at)
    {
        CRect tab = tabs[at];
        bool const active = framework::PaneAccess::Id(*panes[at]) == front;
        if (active)
        {
            canvas.FillSolidRect(&tab, ::GetSysColor(COLOR_WINDOW));
            canvas.FillSolidRect(tab.left, tab.top, 1, tab.Height(), line);
            canvas.FillSolidRect(tab.right - 1, tab.top, 1, tab.Height(), line);
            canvas.FillSolidRect(tab.left, bottom ? tab.bottom - 1 : tab.top, tab.Width(), 1, line);
        }
        else if (at + 1 < panes.size())
            canvas.FillSolidRect(tab.right - 1, tab.top + 3, 1, std::max(0, tab.Height() - 6), line);
        canvas.SetTextColor(::GetSysColor(active ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
        CString const title = framework::TitleOf(*panes[at]);
        tab.DeflateRect(4, 0);
        canvas.DrawText(title, &tab, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    canvas.SetTextColor(::GetSysColor(COLOR_WINDOWTEXT));
    canvas.SetBkMode(formerMode);
    canvas.SelectObject(former);
}

void CTabbedPane::OnLButtonDown(UINT, CPoint point)
{
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this);
    std::vector<CRect> const tabs = framework::TabRects(*this, panes);
    for (size_t at = 0; at < panes.size(); ++at)
    {
        if (!tabs[at].PtInRect(point) || m_host == nullptr)
            continue;
        DockHost & host = *m_host;
        DockHost::Life const life(host);
        UINT const pane = framework::PaneAccess::Id(*panes[at]);
        ClientToScreen(&point);
        host.Activate(pane, true);
        // Still pressed, with the pane still there: it may be dragged away.
        if (life && host.Pane(pane) != nullptr)
            host.BeginDrag(framework::DockContent(pane), point);
        return;
    }
}

void CTabbedPane::OnLButtonDblClk(UINT, CPoint point)
{
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this);
    std::vector<CRect> const tabs = framework::TabRects(*this, panes);
    for (size_t at = 0; at < panes.size(); ++at)
    {
        if (tabs[at].PtInRect(point) && m_host != nullptr)
        {
            m_host->Toggle(framework::PaneAccess::Id(*panes[at]));
            return;
        }
    }
}

// The parts

std::vector<CDockablePane *> framework::PanesIn(CBaseTabbedPane const & tabbed)
{
    DockHost * const host = PaneAccess::Host(tabbed);
    return host != nullptr ? host->TabsOf(PaneAccess::Group(tabbed)) : std::vector<CDockablePane *>{};
}

CRect framework::TabStripOf(CTabbedPane const & tabbed)
{
    CRect rect;
    tabbed.GetClientRect(&rect);
    DockHost * const host = PaneAccess::Host(tabbed);
    int const height = std::min(rect.Height(), host != nullptr ? host->Sizes().tabs : 0);
    if (tabbed.IsTabLocationBottom())
        rect.top = rect.bottom - height;
    else
        rect.bottom = rect.top + height;
    return rect;
}

std::vector<CRect> framework::TabRects(CTabbedPane const & tabbed, std::vector<CDockablePane *> const & panes)
{
    CRect const strip = TabStripOf(tabbed);
    std::vector<CRect> tabs;
    std::vector<int> widths;
    int sum = 0;
    CClientDC dc(const_cast<CTabbedPane *>(&tabbed));
    CFont * const former = SelectPaneFont(dc);
    for (CDockablePane const * const pane : panes)
    {
        int const width = dc.GetTextExtent(TitleOf(*pane)).cx + strip.Height();
        widths.push_back(width);
        sum += width;
    }
    dc.SelectObject(former);
    // Where there is no room for all texts, each tab is as much shorter.
    int const room = std::max(0, strip.Width() - 4);
    int place = strip.left + 2;
    std::int64_t seen = 0;
    for (int const width : widths)
    {
        seen += width;
        int const end = strip.left + 2 + static_cast<int>(sum > room ? seen * room / std::max(1, sum) : seen);
        tabs.emplace_back(place, strip.top, end, strip.bottom);
        place = end;
    }
    return tabs;
}
