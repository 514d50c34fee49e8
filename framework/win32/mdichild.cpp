// CMDIChildWnd: a frame inside another.

#include "afxpriv.h"

#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MDIACTIVATE()
END_MESSAGE_MAP()
// clang-format on

CMDIChildWnd::CMDIChildWnd() : m_sharedMenu(nullptr), m_pseudoInactive(false) {}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT & cs)
{
    return CFrameWnd::PreCreateWindow(cs);
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT & rect,
                          CMDIFrameWnd * pParentWnd, CCreateContext * pContext)
{
    if (pParentWnd == nullptr)
    {
        CWinThread const * const thread = AfxGetThread();
        pParentWnd = DYNAMIC_DOWNCAST(CMDIFrameWnd, thread != nullptr ? thread->m_pMainWnd : nullptr);
    }
    ASSERT(pParentWnd != nullptr);
    if (pParentWnd == nullptr || pParentWnd->m_hWndMDIClient == nullptr)
    {
        PostNcDestroy();
        return FALSE;
    }
    WindowGuard const parentGuard(pParentWnd);
    pParentWnd->RecalcLayout();
    m_title = lpszWindowName;

    CREATESTRUCT cs{};
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = rect.left;
    cs.y = rect.top;
    cs.cx = static_cast<int>(static_cast<UINT>(rect.right) - static_cast<UINT>(rect.left));
    cs.cy = static_cast<int>(static_cast<UINT>(rect.bottom) - static_cast<UINT>(rect.top));
    cs.hwndParent = pParentWnd->m_hWnd;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = pContext;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    MDICREATESTRUCT description{};
    description.szClass = cs.lpszClass;
    description.szTitle = cs.lpszName;
    description.hOwner = cs.hInstance;
    description.x = cs.x;
    description.y = cs.y;
    description.cx = cs.cx;
    description.cy = cs.cy;
    description.style = static_cast<DWORD>(cs.style) & ~static_cast<DWORD>(WS_MAXIMIZE | WS_VISIBLE);
    description.lParam = reinterpret_cast<LPARAM>(cs.lpCreateParams);

    AfxHookWindowCreate(this);
    auto const window = reinterpret_cast<HWND>(
        ::SendMessage(pParentWnd->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&description)));
    if (!AfxUnhookWindowCreate())
        PostNcDestroy();
    if (window == nullptr || FromHandlePermanent(window) != this)
        return FALSE;
    if ((cs.style & WS_VISIBLE) == 0)
        return TRUE;
    // It was made invisible and is shown only now, on top of its brothers.
    WindowGuard const guard(this);
    ::BringWindowToTop(window);
    if (guard.Alive())
    {
        if ((cs.style & WS_MINIMIZE) != 0)
            ShowWindow(SW_SHOWMINIMIZED);
        else if ((cs.style & WS_MAXIMIZE) != 0)
            ShowWindow(SW_SHOWMAXIMIZED);
        else
            ShowWindow(SW_SHOWNORMAL);
    }
    if (guard.Alive() && parentGuard.Alive())
        pParentWnd->MDIActivate(this);
    if (guard.Alive() && parentGuard.Alive())
        ::SendMessage(pParentWnd->m_hWndMDIClient, WM_MDIREFRESHMENU, 0, 0);
    return guard.Alive();
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    ASSERT(m_hWnd == nullptr);
    m_helpId = nIDResource;
    if (pContext != nullptr && pContext->m_pNewDocTemplate != nullptr)
    {
        if (m_sharedMenu == nullptr)
            m_sharedMenu = pContext->m_pNewDocTemplate->m_sharedMenu;
        if (m_hAccelTable == nullptr)
            m_hAccelTable = pContext->m_pNewDocTemplate->m_sharedAccelerators;
    }
    CString strings;
    CString title;
    if (strings.LoadString(nIDResource))
        AfxExtractSubString(title, strings, CDocTemplate::windowTitle);
    return Create(GetIconWndClass(dwDefaultStyle, nIDResource), title, dwDefaultStyle, rectDefault,
                  static_cast<CMDIFrameWnd *>(pParentWnd), pContext);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel)
{
    m_sharedMenu = hMenu;
    m_hAccelTable = hAccel;
}

HACCEL CMDIChildWnd::GetDefaultAccelerator()
{
    return m_hAccelTable;
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    auto const * const description = static_cast<MDICREATESTRUCT const *>(lpCreateStruct->lpCreateParams);
    return CreateContents(lpCreateStruct, reinterpret_cast<CCreateContext *>(description->lParam));
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT const result = ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
    if (message == WM_NCCREATE && result != 0)
    {
        // The client area's way of creation has no place for extended styles.
        CREATESTRUCT cs = *reinterpret_cast<CREATESTRUCT const *>(lParam);
        if (PreCreateWindow(cs))
            ::SetWindowLong(m_hWnd, GWL_EXSTYLE, static_cast<LONG>(cs.dwExStyle));
    }
    return result;
}

CMDIFrameWnd * CMDIChildWnd::GetMDIFrame()
{
    HWND const client = ::GetParent(m_hWnd);
    return static_cast<CMDIFrameWnd *>(CWnd::FromHandle(::GetParent(client)));
}

void CMDIChildWnd::MDIActivate()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIDestroy()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIMaximize()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

void CMDIChildWnd::MDIRestore()
{
    ::SendMessage(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

BOOL CMDIChildWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    // The frame's title stays as it is until the child has gone.
    HWND const frame = GetMDIFrame()->GetSafeHwnd();
    LONG const style = ::GetWindowLong(frame, GWL_STYLE);
    ::SetWindowLong(frame, GWL_STYLE, style & ~FWS_ADDTOTITLE);
    MDIDestroy();
    if (::IsWindow(frame))
    {
        ::SetWindowLong(frame, GWL_STYLE, ::GetWindowLong(frame, GWL_STYLE) | (style & FWS_ADDTOTITLE));
        if (auto * const object = DYNAMIC_DOWNCAST(CFrameWnd, CWnd::FromHandlePermanent(frame)))
            object->OnUpdateFrameTitle(TRUE);
    }
    return TRUE;
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG * pMsg)
{
    // Without the frame's shortcuts, which come later. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    // The commands go to the frame around, as from its menu.
    HACCEL const accelerators = GetDefaultAccelerator();
    return accelerators != nullptr && ::TranslateAccelerator(::GetParent(::GetParent(m_hWnd)), accelerators, pMsg);
}

CWnd * CMDIChildWnd::GetMessageBar()
{
    if (CWnd * const own = CFrameWnd::GetMessageBar())
        return own;
    return GetMDIFrame()->GetMessageBar();
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    WindowGuard const guard(this);
    GetMDIFrame()->OnUpdateFrameTitle(bAddToTitle);
    if (!guard.Alive() || (GetStyle() & FWS_ADDTOTITLE) == 0 || !bAddToTitle)
        return;
    CDocument const * const document = GetActiveDocument();
    CString title = document != nullptr ? document->GetTitle() : m_title;
    if (m_number > 0)
        title.AppendFormat(L":%d", m_number);
    framework::ChangeWindowText(m_hWnd, title);
}

void CMDIChildWnd::ActivateFrame(int nCmdShow)
{
    WindowGuard const guard(this);
    bool const wasVisible = (GetStyle() & WS_VISIBLE) != 0;
    CMDIFrameWnd * const frame = GetMDIFrame();
    WindowGuard const frameGuard(frame);
    if (nCmdShow == -1)
    {
        BOOL maximized = FALSE;
        frame->MDIGetActive(&maximized);
        DWORD const style = GetStyle();
        if (maximized || (style & WS_MAXIMIZE) != 0)
            nCmdShow = SW_SHOWMAXIMIZED;
        else if ((style & WS_MINIMIZE) != 0)
            nCmdShow = SW_SHOWMINIMIZED;
        else
            nCmdShow = SW_SHOWNORMAL;
    }
    CFrameWnd::ActivateFrame(nCmdShow);
    if (!guard.Alive() || !frameGuard.Alive())
        return;
    HWND const client = ::GetParent(m_hWnd);
    ::SendMessage(client, WM_MDIREFRESHMENU, 0, 0);
    if (!guard.Alive() || !frameGuard.Alive())
        return;
    bool const visible = (GetStyle() & WS_VISIBLE) != 0;
    if (visible == wasVisible)
        return;
    auto const active = [client] { return reinterpret_cast<HWND>(::SendMessage(client, WM_MDIGETACTIVE, 0, 0)); };
    if (!visible)
    {
        if (active() != m_hWnd)
            return;
        frame->MDINext();
        if (guard.Alive() && active() == m_hWnd)
        {
            // There is no other: it is told that it isn't active all the same.
            OnMDIActivate(FALSE, nullptr, this);
            if (guard.Alive())
                m_pseudoInactive = true;
        }
    }
    else if (m_pseudoInactive)
        OnMDIActivate(TRUE, this, this);
}

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CFrameWnd::OnSize(nType, cx, cy);
    if (!guard.Alive())
        return;
    // It may be maximised now, or no longer.
    if (auto * const frame = DYNAMIC_DOWNCAST(CMDIFrameWnd, GetMDIFrame()))
        frame->OnUpdateFrameTitle(TRUE);
}

int CMDIChildWnd::OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message)
{
    WindowGuard const guard(this);
    int const result = CFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (result == MA_NOACTIVATE || result == MA_NOACTIVATEANDEAT || !guard.Alive())
        return result;
    if (GetMDIFrame()->MDIGetActive() != this)
        MDIActivate();
    return result;
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd * pActivateWnd, CWnd *)
{
    WindowGuard const guard(this);
    HWND const frame = GetMDIFrame()->GetSafeHwnd();
    m_pseudoInactive = false;
    CView * view = GetActiveView();
    if (!bActivate && view != nullptr)
        view->OnActivateView(FALSE, view, view);
    if (!guard.Alive())
        return;
    OnUpdateFrameTitle(bActivate || pActivateWnd != nullptr);
    if (!guard.Alive())
        return;
    view = GetActiveView();
    if (bActivate && view != nullptr && ::GetActiveWindow() == frame)
        view->OnActivateView(TRUE, view, view);
    if (!guard.Alive())
        return;
    UpdateMenu(bActivate, pActivateWnd, nullptr);
    if (::IsWindow(frame))
        ::DrawMenuBar(frame);
}

void CMDIChildWnd::UpdateMenu(BOOL bActivate, CWnd * pActivateWnd, HMENU hNewMenu)
{
    HMENU menu = hNewMenu;
    if (bActivate && menu == nullptr)
        menu = m_sharedMenu;
    if (bActivate || pActivateWnd == nullptr)
        SetMenuOfFrame(menu); // the last one's end brings back the frame's own menu, which null stands for
    else
        ::SendMessage(::GetParent(m_hWnd), WM_MDIREFRESHMENU, 0, 0);
}

void CMDIChildWnd::SetMenuOfFrame(HMENU hMenu)
{
    CMDIFrameWnd * const frame = GetMDIFrame();
    if (framework::MenuMode::BarOf(frame->m_hWnd) != nullptr)
    {
        // The bar has the menu; the client area has the one that lists its windows.
        HMENU const shown = hMenu != nullptr ? hMenu : framework::MenuOfBar(frame->m_hWnd);
        ::SendMessage(frame->m_hWndMDIClient, WM_MDISETMENU, 0,
                      reinterpret_cast<LPARAM>(frame->GetWindowMenuPopup(shown)));
        framework::ShowMenuInBar(frame->m_hWnd, hMenu);
        return;
    }
    if (hMenu == nullptr)
        hMenu = frame->m_defaultMenu;
    if (hMenu != nullptr && hMenu != ::GetMenu(frame->m_hWnd))
    {
        ::SendMessage(frame->m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(hMenu),
                      reinterpret_cast<LPARAM>(frame->GetWindowMenuPopup(hMenu)));
    }
    else
        ::SendMessage(frame->m_hWndMDIClient, WM_MDIREFRESHMENU, 0, 0);
}
