// CPaneFrameWnd: the frame of floating panes.

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CPaneFrameWnd, CWnd)
IMPLEMENT_DYNCREATE(CMultiPaneFrameWnd, CPaneFrameWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CPaneFrameWnd, CWnd)
    ON_WM_ACTIVATE()
    ON_WM_CLOSE()
    ON_WM_CONTEXTMENU()
    ON_WM_DESTROY()
    ON_WM_ERASEBKGND()
    ON_WM_GETMINMAXINFO()
    ON_WM_MOVE()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_SIZE()
END_MESSAGE_MAP()
// clang-format on

CPaneFrameWnd::CPaneFrameWnd() : m_host(nullptr), m_floatId(0) {}

CPaneFrameWnd::~CPaneFrameWnd() = default;

void CPaneFrameWnd::PostNcDestroy()
{
    delete this;
}

void CPaneFrameWnd::OnDestroy()
{
    if (m_host != nullptr)
        m_host->WindowEnds(this);
    m_host = nullptr;
    CWnd::OnDestroy();
}

int CPaneFrameWnd::GetPaneCount() const
{
    return static_cast<int>(framework::PanesIn(*this, false).size());
}

int CPaneFrameWnd::GetVisiblePaneCount() const
{
    return static_cast<int>(framework::PanesIn(*this, true).size());
}

CWnd * CPaneFrameWnd::GetPane() const
{
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this, false);
    return panes.empty() ? nullptr : panes.front();
}

CWnd * CPaneFrameWnd::GetFirstVisiblePane() const
{
    std::vector<CDockablePane *> const panes = framework::PanesIn(*this, true);
    return panes.empty() ? nullptr : panes.front();
}

CString CPaneFrameWnd::GetCaptionText()
{
    // That of the panes that are in front.
    CString text;
    for (CDockablePane * const pane : framework::PanesIn(*this, true))
    {
        if (!pane->IsPaneVisible())
            continue;
        if (!text.IsEmpty())
            text += L" - ";
        text += framework::TitleOf(*pane);
    }
    return text;
}

int CPaneFrameWnd::GetCaptionHeight() const
{
    return ::GetSystemMetrics(SM_CYSMCAPTION);
}

void CPaneFrameWnd::GetCaptionRect(CRect & rectCaption) const
{
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    rectCaption.SetRect(client.left, client.top - GetCaptionHeight(), client.right, client.top);
}

CDockingManager * CPaneFrameWnd::GetDockingManager() const
{
    return m_host != nullptr ? &m_host->Manager() : nullptr;
}

CRect CPaneFrameWnd::GetRecentFloatingRect() const
{
    framework::DockLayout::Frame const * const frame =
        m_host != nullptr ? m_host->Layout().FindFrame(m_floatId) : nullptr;
    return frame != nullptr ? frame->rect : CRect(0, 0, 0, 0);
}

void CPaneFrameWnd::AdjustLayout()
{
    if (m_host != nullptr)
        m_host->ArrangeFrame(m_floatId);
}

void CPaneFrameWnd::OnPaneRecalcLayout()
{
    AdjustLayout();
}

void CPaneFrameWnd::SizeToContent() {}

void CPaneFrameWnd::OnDockToRecentPos()
{
    if (m_host != nullptr)
        m_host->Toggle(framework::DockContent::Frame(m_floatId));
}

CBasePane * CPaneFrameWnd::FindFloatingPaneByID(UINT nID)
{
    DockHost * const host = DockHost::Of(AfxGetMainWnd());
    for (CDockablePane * const pane : host != nullptr ? host->Panes() : std::vector<CDockablePane *>{})
    {
        if (static_cast<UINT>(pane->GetDlgCtrlID()) == nID && pane->IsFloating())
            return pane;
    }
    return nullptr;
}

BOOL CPaneFrameWnd::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    WindowGuard const guard(this);
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo))
        return TRUE;
    return guard.Alive() && m_host != nullptr && m_host->Frame().OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void CPaneFrameWnd::OnActivate(UINT nState, CWnd * pWndOther, BOOL bMinimized)
{
    WindowGuard const guard(this);
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (!guard.Alive() || m_host == nullptr)
        return;
    // The main frame's caption looks active while one of its floating frames is.
    HWND const main = m_host->Frame().m_hWnd;
    HWND const other = pWndOther->GetSafeHwnd();
    if (nState != WA_INACTIVE || (other != main && ::GetWindow(other, GW_OWNER) != main))
        ::SendMessage(main, WM_NCACTIVATE, nState != WA_INACTIVE, 0);
}

void CPaneFrameWnd::OnClose()
{
    if (m_host != nullptr)
        m_host->CloseFrame(m_floatId);
}

void CPaneFrameWnd::OnContextMenu(CWnd *, CPoint point)
{
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    if (point.y >= client.top)
    {
        Default();
        return;
    }
    for (CDockablePane * const pane : framework::PanesIn(*this, true))
    {
        if (pane->IsPaneVisible())
        {
            pane->OnShowControlBarMenu(point);
            return;
        }
    }
}

BOOL CPaneFrameWnd::OnEraseBkgnd(CDC * pDC)
{
    CRect rect;
    GetClientRect(&rect);
    pDC->FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}

void CPaneFrameWnd::OnGetMinMaxInfo(MINMAXINFO * lpMMI)
{
    CWnd::OnGetMinMaxInfo(lpMMI);
    if (m_host == nullptr)
        return;
    CSize const least = m_host->LeastOf(m_floatId);
    CRect rect(0, 0, least.cx, least.cy);
    ::AdjustWindowRectEx(&rect, GetStyle(), FALSE, GetExStyle());
    lpMMI->ptMinTrackSize.x = std::max<LONG>(lpMMI->ptMinTrackSize.x, rect.Width());
    lpMMI->ptMinTrackSize.y = std::max<LONG>(lpMMI->ptMinTrackSize.y, rect.Height());
}

void CPaneFrameWnd::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CWnd::OnSize(nType, cx, cy);
    if (!guard.Alive() || m_host == nullptr || nType == SIZE_MINIMIZED)
        return;
    CRect rect;
    GetWindowRect(&rect);
    m_host->FrameMoved(m_floatId, rect);
    m_host->ArrangeFrame(m_floatId);
}

void CPaneFrameWnd::OnMove(int x, int y)
{
    CWnd::OnMove(x, y);
    CRect rect;
    GetWindowRect(&rect);
    if (m_host != nullptr && !IsIconic())
        m_host->FrameMoved(m_floatId, rect);
}

void CPaneFrameWnd::OnNcLButtonDown(UINT nHitTest, CPoint point)
{
    if (nHitTest != HTCAPTION || m_host == nullptr)
    {
        CWnd::OnNcLButtonDown(nHitTest, point);
        return;
    }
    WindowGuard const guard(this);
    SetActiveWindow();
    if (guard.Alive() && m_host != nullptr)
        m_host->BeginDrag(framework::DockContent::Frame(m_floatId), point);
}

void CPaneFrameWnd::OnNcLButtonDblClk(UINT nHitTest, CPoint point)
{
    if (nHitTest == HTCAPTION)
        OnDockToRecentPos();
    else
        CWnd::OnNcLButtonDblClk(nHitTest, point);
}

std::vector<CDockablePane *> framework::PanesIn(CPaneFrameWnd const & frame, bool shown)
{
    DockHost * const host = PaneAccess::Host(frame);
    std::vector<CDockablePane *> panes;
    for (CDockablePane * const pane : host != nullptr ? host->Panes() : std::vector<CDockablePane *>{})
    {
        UINT const id = PaneAccess::Id(*pane);
        if (host->Layout().FrameOf(id) == PaneAccess::Id(frame) && (!shown || host->Layout().IsShown(id)))
            panes.push_back(pane);
    }
    return panes;
}
