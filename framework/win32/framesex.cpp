// The extended frames.

#include "afxcontrolbars.h"
#include "afxpriv.h"

#include "detail/DockHost.h"
#include "detail/FrameSupport.h"

using framework::DockHost;
using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)
IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CMDIFrameWndEx, CMDIFrameWnd)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CMDIFrameWndEx::HandleIdleUpdate)
    ON_MESSAGE(WM_DISPLAYCHANGE, &CMDIFrameWndEx::HandleSettingChange)
    ON_MESSAGE(WM_SETTINGCHANGE, &CMDIFrameWndEx::HandleSettingChange)
    ON_REGISTERED_MESSAGE(framework::arrange_message, &CMDIFrameWndEx::HandleArrange)
END_MESSAGE_MAP()
// clang-format on

CMDIFrameWndEx::CMDIFrameWndEx() : m_resource(0)
{
    m_impl.m_frame = this;
}

CMDIFrameWndEx::~CMDIFrameWndEx() = default;

BOOL CMDIFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    m_resource = nIDResource;
    if (!CMDIFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext))
        return FALSE;
    WindowGuard const guard(this);
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()))
        app->LoadState(nullptr, &m_impl);
    return guard.Alive();
}

UINT CMDIFrameWndEx::GetDefaultResId() const
{
    return m_resource;
}

void CMDIFrameWndEx::OnClose()
{
    WindowGuard const guard(this);
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()); app != nullptr && app->m_pMainWnd == this)
        app->OnClosingMainFrame(&m_impl);
    if (guard.Alive())
        CMDIFrameWnd::OnClose();
}

void CMDIFrameWndEx::OnDestroy()
{
    WindowGuard const guard(this);
    if (DockHost * const host = m_impl.Host())
        host->FrameEnds();
    if (guard.Alive())
        CMDIFrameWnd::OnDestroy();
}

LRESULT CMDIFrameWndEx::HandleArrange(WPARAM, LPARAM)
{
    RecalcLayout();
    return 0;
}

LRESULT CMDIFrameWndEx::HandleIdleUpdate(WPARAM wParam, LPARAM lParam)
{
    WindowGuard const guard(this);
    LRESULT const result = framework::FrameAccess::IdleUpdate(*this, wParam, lParam);
    if (guard.Alive() && m_impl.Host() != nullptr)
        m_impl.Host()->RepaintCaptions();
    return result;
}

LRESULT CMDIFrameWndEx::HandleSettingChange(WPARAM, LPARAM)
{
    WindowGuard const guard(this);
    LRESULT const result = Default();
    if (guard.Alive() && m_impl.Host() != nullptr)
    {
        framework::RefreshPaneFont();
        m_impl.Host()->MeasureAgain();
        m_impl.Host()->BringOntoScreen();
    }
    return result;
}

BOOL CMDIFrameWndEx::EnableDocking(DWORD dwDockStyle)
{
    CMDIFrameWnd::EnableDocking(dwDockStyle);
    return m_impl.Manager().Create(this) && m_impl.Manager().EnableDocking(dwDockStyle);
}

BOOL CMDIFrameWndEx::EnableAutoHidePanes(DWORD dwDockStyle)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().EnableAutoHidePanes(dwDockStyle);
}

void CMDIFrameWndEx::EnableLoadDockState(BOOL bEnable)
{
    m_impl.m_loadDockState = bEnable != FALSE;
}

BOOL CMDIFrameWndEx::AddPane(CBasePane * pControlBar, BOOL bTail)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().AddPane(pControlBar, bTail);
}

BOOL CMDIFrameWndEx::InsertPane(CBasePane * pControlBar, CBasePane * pTarget, BOOL bAfter)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().InsertPane(pControlBar, pTarget, bAfter);
}

void CMDIFrameWndEx::RemovePaneFromDockManager(CBasePane * pControlBar, BOOL bDestroy, BOOL bAdjustLayout,
                                               BOOL bAutoHide, CBasePane * pBarReplacement)
{
    m_impl.Manager().RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

void CMDIFrameWndEx::DockPane(CBasePane * pBar, UINT nDockBarID, LPCRECT lpRect)
{
    if (m_impl.Manager().Create(this))
        m_impl.Manager().DockPane(pBar, nDockBarID, lpRect);
}

BOOL CMDIFrameWndEx::DockPaneLeftOf(CPane * pBar, CPane * pLeftOf)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().DockPaneLeftOf(pBar, pLeftOf);
}

void CMDIFrameWndEx::ShowPane(CBasePane * pBar, BOOL bShow, BOOL bDelay, BOOL bActivate)
{
    ASSERT(pBar != nullptr);
    pBar->ShowPane(bShow, bDelay, bActivate);
}

CBasePane * CMDIFrameWndEx::GetPane(UINT nID)
{
    return m_impl.Manager().Create(this) ? m_impl.Manager().FindPaneByID(nID, TRUE) : nullptr;
}

CBasePane * CMDIFrameWndEx::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar,
                                          CRuntimeClass * pRTCBarType) const
{
    return m_impl.m_dockingManager.PaneFromPoint(point, nSensitivity, bExactBar, pRTCBarType);
}

void CMDIFrameWndEx::AdjustDockingLayout(HDWP hdwp)
{
    m_impl.Manager().AdjustDockingLayout(hdwp);
}

BOOL CMDIFrameWndEx::OnCloseDockingPane(CDockablePane *)
{
    return TRUE;
}

BOOL CMDIFrameWndEx::OnCloseMiniFrame(CPaneFrameWnd *)
{
    return TRUE;
}

BOOL CMDIFrameWndEx::OnShowPanes(BOOL bShow)
{
    return m_impl.Manager().ShowPanes(bShow);
}

BOOL CMDIFrameWndEx::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CMDIFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWndEx::PreTranslateMessage(MSG * pMsg)
{
    // Ctrl+Tab goes from pane to pane.
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) < 0 &&
        ::GetKeyState(VK_MENU) >= 0 && m_impl.Host() != nullptr && m_impl.Host()->Cycle(::GetKeyState(VK_SHIFT) < 0))
        return TRUE;
    return CMDIFrameWnd::PreTranslateMessage(pMsg);
}

void CMDIFrameWndEx::RecalcLayout(BOOL bNotify)
{
    // Without docking, bars and client area are a plain frame's.
    DockHost * const host = m_impl.Host();
    if (host == nullptr || (GetStyle() & FWS_SNAPTOBARS) != 0)
        CMDIFrameWnd::RecalcLayout(bNotify);
    else
        host->Arrange();
}

CMDIChildWndEx::CMDIChildWndEx() = default;

CMDIChildWndEx::~CMDIChildWndEx() = default;

void CMDIChildWndEx::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    CMDIChildWnd::OnUpdateFrameTitle(bAddToTitle);
}

void CMDIChildWndEx::RecalcLayout(BOOL bNotify)
{
    CMDIChildWnd::RecalcLayout(bNotify);
}

CString CMDIChildWndEx::GetFrameText() const
{
    CString text;
    GetWindowText(text);
    return text;
}

HICON CMDIChildWndEx::GetFrameIcon() const
{
    if (HICON const icon = GetIcon(FALSE))
        return icon;
    return reinterpret_cast<HICON>(::GetClassLongPtr(m_hWnd, GCLP_HICONSM));
}

BOOL CMDIChildWndEx::CanShowOnMDITabs()
{
    return TRUE;
}

BOOL CMDIChildWndEx::CanShowOnWindowsList()
{
    return TRUE;
}

LPCTSTR CMDIChildWndEx::GetDocumentName(CObject **)
{
    CDocument const * const document = GetActiveDocument();
    return document != nullptr ? document->GetPathName().GetString() : nullptr;
}

BOOL CMDIChildWndEx::IsReadOnly()
{
    return FALSE;
}

void CMDIChildWndEx::ActivateTopLevelFrame()
{
    if (CFrameWnd * const top = GetTopLevelFrame())
        top->ActivateFrame();
}

// clang-format off
BEGIN_MESSAGE_MAP(CFrameWndEx, CFrameWnd)
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWndEx::HandleIdleUpdate)
    ON_MESSAGE(WM_DISPLAYCHANGE, &CFrameWndEx::HandleSettingChange)
    ON_MESSAGE(WM_SETTINGCHANGE, &CFrameWndEx::HandleSettingChange)
    ON_REGISTERED_MESSAGE(framework::arrange_message, &CFrameWndEx::HandleArrange)
END_MESSAGE_MAP()
// clang-format on

CFrameWndEx::CFrameWndEx() : m_resource(0)
{
    m_impl.m_frame = this;
}

CFrameWndEx::~CFrameWndEx() = default;

BOOL CFrameWndEx::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    m_resource = nIDResource;
    if (!CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext))
        return FALSE;
    WindowGuard const guard(this);
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()))
        app->LoadState(nullptr, &m_impl);
    return guard.Alive();
}

UINT CFrameWndEx::GetDefaultResId() const
{
    return m_resource;
}

void CFrameWndEx::OnClose()
{
    WindowGuard const guard(this);
    if (auto * const app = DYNAMIC_DOWNCAST(CWinAppEx, AfxGetApp()); app != nullptr && app->m_pMainWnd == this)
        app->OnClosingMainFrame(&m_impl);
    if (guard.Alive())
        CFrameWnd::OnClose();
}

void CFrameWndEx::OnDestroy()
{
    WindowGuard const guard(this);
    if (DockHost * const host = m_impl.Host())
        host->FrameEnds();
    if (guard.Alive())
        CFrameWnd::OnDestroy();
}

LRESULT CFrameWndEx::HandleArrange(WPARAM, LPARAM)
{
    RecalcLayout();
    return 0;
}

LRESULT CFrameWndEx::HandleIdleUpdate(WPARAM wParam, LPARAM lParam)
{
    WindowGuard const guard(this);
    LRESULT const result = framework::FrameAccess::IdleUpdate(*this, wParam, lParam);
    if (guard.Alive() && m_impl.Host() != nullptr)
        m_impl.Host()->RepaintCaptions();
    return result;
}

LRESULT CFrameWndEx::HandleSettingChange(WPARAM, LPARAM)
{
    WindowGuard const guard(this);
    LRESULT const result = Default();
    if (guard.Alive() && m_impl.Host() != nullptr)
    {
        framework::RefreshPaneFont();
        m_impl.Host()->MeasureAgain();
        m_impl.Host()->BringOntoScreen();
    }
    return result;
}

BOOL CFrameWndEx::EnableDocking(DWORD dwDockStyle)
{
    CFrameWnd::EnableDocking(dwDockStyle);
    return m_impl.Manager().Create(this) && m_impl.Manager().EnableDocking(dwDockStyle);
}

BOOL CFrameWndEx::EnableAutoHidePanes(DWORD dwDockStyle)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().EnableAutoHidePanes(dwDockStyle);
}

void CFrameWndEx::EnableLoadDockState(BOOL bEnable)
{
    m_impl.m_loadDockState = bEnable != FALSE;
}

BOOL CFrameWndEx::AddPane(CBasePane * pControlBar, BOOL bTail)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().AddPane(pControlBar, bTail);
}

BOOL CFrameWndEx::InsertPane(CBasePane * pControlBar, CBasePane * pTarget, BOOL bAfter)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().InsertPane(pControlBar, pTarget, bAfter);
}

void CFrameWndEx::RemovePaneFromDockManager(CBasePane * pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                            CBasePane * pBarReplacement)
{
    m_impl.Manager().RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

void CFrameWndEx::DockPane(CBasePane * pBar, UINT nDockBarID, LPCRECT lpRect)
{
    if (m_impl.Manager().Create(this))
        m_impl.Manager().DockPane(pBar, nDockBarID, lpRect);
}

BOOL CFrameWndEx::DockPaneLeftOf(CPane * pBar, CPane * pLeftOf)
{
    return m_impl.Manager().Create(this) && m_impl.Manager().DockPaneLeftOf(pBar, pLeftOf);
}

void CFrameWndEx::ShowPane(CBasePane * pBar, BOOL bShow, BOOL bDelay, BOOL bActivate)
{
    ASSERT(pBar != nullptr);
    pBar->ShowPane(bShow, bDelay, bActivate);
}

CBasePane * CFrameWndEx::GetPane(UINT nID)
{
    return m_impl.Manager().Create(this) ? m_impl.Manager().FindPaneByID(nID, TRUE) : nullptr;
}

CBasePane * CFrameWndEx::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar,
                                       CRuntimeClass * pRTCBarType) const
{
    return m_impl.m_dockingManager.PaneFromPoint(point, nSensitivity, bExactBar, pRTCBarType);
}

void CFrameWndEx::AdjustDockingLayout(HDWP hdwp)
{
    m_impl.Manager().AdjustDockingLayout(hdwp);
}

BOOL CFrameWndEx::OnCloseDockingPane(CDockablePane *)
{
    return TRUE;
}

BOOL CFrameWndEx::OnCloseMiniFrame(CPaneFrameWnd *)
{
    return TRUE;
}

BOOL CFrameWndEx::OnShowPanes(BOOL bShow)
{
    return m_impl.Manager().ShowPanes(bShow);
}

BOOL CFrameWndEx::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWndEx::PreTranslateMessage(MSG * pMsg)
{
    // Ctrl+Tab goes from pane to pane.
    if (pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB && ::GetKeyState(VK_CONTROL) < 0 &&
        ::GetKeyState(VK_MENU) >= 0 && m_impl.Host() != nullptr && m_impl.Host()->Cycle(::GetKeyState(VK_SHIFT) < 0))
        return TRUE;
    return CFrameWnd::PreTranslateMessage(pMsg);
}

void CFrameWndEx::RecalcLayout(BOOL bNotify)
{
    // Without docking, bars and client area are a plain frame's.
    DockHost * const host = m_impl.Host();
    if (host == nullptr || (GetStyle() & FWS_SNAPTOBARS) != 0)
        CFrameWnd::RecalcLayout(bNotify);
    else
        host->Arrange();
}

void CFrameWndEx::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    CFrameWnd::OnUpdateFrameTitle(bAddToTitle);
}

CDockingManager * CFrameWndEx::GetDockingManager()
{
    return m_impl.Manager().Create(this) ? &m_impl.Manager() : nullptr;
}
