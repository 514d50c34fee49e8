// CMDIFrameWnd: the frame around child frames.

#include "afxpriv.h"

#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::UpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::UpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::UpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::UpdateWindowCommand)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::UpdateWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::HandleWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::HandleWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::HandleWindowCommand)
    ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::HandleWindowCommand)
    ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::NewWindow)
END_MESSAGE_MAP()
// clang-format on

CMDIFrameWnd::CMDIFrameWnd() : m_hWndMDIClient(nullptr) {}

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT & cs)
{
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE); // the client area has it
    return TRUE;
}

BOOL CMDIFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    return CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext);
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext *)
{
    // By the usual order of menus, the window menu is the last but one.
    HMENU const bar = ::GetMenu(m_hWnd);
    HMENU const windows = bar != nullptr ? ::GetSubMenu(bar, ::GetMenuItemCount(bar) - 2) : nullptr;
    return CreateClient(lpcs, windows != nullptr ? CMenu::FromHandle(windows) : nullptr);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu * pWindowMenu)
{
    ASSERT(m_hWnd != nullptr && m_hWndMDIClient == nullptr);
    CLIENTCREATESTRUCT client{};
    client.hWindowMenu = pWindowMenu != nullptr ? pWindowMenu->m_hMenu : nullptr;
    client.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    DWORD style = WS_VISIBLE | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS | MDIS_ALLCHILDSTYLES;
    DWORD const bars = static_cast<DWORD>(lpCreateStruct->style) & (WS_HSCROLL | WS_VSCROLL);
    if (bars != 0)
    {
        // The frame's scroll bars are meant for the client area.
        style |= bars;
        ModifyStyle(WS_HSCROLL | WS_VSCROLL, 0, SWP_NOREDRAW | SWP_FRAMECHANGED);
    }
    m_hWndMDIClient = ::CreateWindowEx(WS_EX_CLIENTEDGE, L"mdiclient", nullptr, style, 0, 0, 0, 0, m_hWnd,
                                       reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                       AfxGetInstanceHandle(), &client);
    if (m_hWndMDIClient == nullptr)
        return FALSE;
    ::BringWindowToTop(m_hWndMDIClient);
    return TRUE;
}

CMDIChildWnd * CMDIFrameWnd::CreateNewChild(CRuntimeClass * pClass, UINT nResource, HMENU hMenu, HACCEL hAccel)
{
    auto * const child = DYNAMIC_DOWNCAST(CMDIChildWnd, pClass->CreateObject());
    if (child == nullptr)
        return nullptr;
    CCreateContext context;
    context.m_pCurrentFrame = this;
    child->SetHandles(hMenu, hAccel);
    if (!child->LoadFrame(nResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context))
        return nullptr;
    CString strings;
    CString title;
    if (strings.LoadString(nResource))
        AfxExtractSubString(title, strings, CDocTemplate::docName);
    child->SetTitle(title);
    WindowGuard const guard(child);
    child->InitialUpdateFrame(nullptr, TRUE);
    return guard.Alive() ? child : nullptr;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefFrameProc(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

void CMDIFrameWnd::OnSize(UINT nType, int, int)
{
    // Not by default, which would give the whole frame to the client area.
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CMDIFrameWnd::OnDestroy()
{
    CFrameWnd::OnDestroy();
}

CMDIChildWnd * CMDIFrameWnd::MDIGetActive(BOOL * pbMaximized) const
{
    if (pbMaximized != nullptr)
        *pbMaximized = FALSE;
    if (m_hWndMDIClient == nullptr)
        return nullptr;
    BOOL maximized = FALSE;
    auto const active = reinterpret_cast<HWND>(
        ::SendMessage(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized)));
    auto * const child = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(active));
    if (child != nullptr && child->m_pseudoInactive && (child->GetStyle() & WS_VISIBLE) == 0)
        return nullptr;
    if (pbMaximized != nullptr)
        *pbMaximized = maximized;
    return child;
}

void CMDIFrameWnd::MDIActivate(CWnd * pWndActivate)
{
    ::SendMessage(m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->m_hWnd), 0);
}

void CMDIFrameWnd::MDICascade()
{
    ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, 0, 0);
}

void CMDIFrameWnd::MDICascade(int nType)
{
    ::SendMessage(m_hWndMDIClient, WM_MDICASCADE, static_cast<WPARAM>(nType), 0);
}

void CMDIFrameWnd::MDITile()
{
    ::SendMessage(m_hWndMDIClient, WM_MDITILE, MDITILE_HORIZONTAL, 0);
}

void CMDIFrameWnd::MDITile(int nType)
{
    ::SendMessage(m_hWndMDIClient, WM_MDITILE, static_cast<WPARAM>(nType), 0);
}

void CMDIFrameWnd::MDIIconArrange()
{
    ::SendMessage(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0);
}

void CMDIFrameWnd::MDIMaximize(CWnd * pWnd)
{
    ::SendMessage(m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDIRestore(CWnd * pWnd)
{
    ::SendMessage(m_hWndMDIClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}

void CMDIFrameWnd::MDINext()
{
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 0);
}

void CMDIFrameWnd::MDIPrev()
{
    ::SendMessage(m_hWndMDIClient, WM_MDINEXT, 0, 1);
}

CMenu * CMDIFrameWnd::MDISetMenu(CMenu * pFrameMenu, CMenu * pWindowMenu)
{
    return CMenu::FromHandle(reinterpret_cast<HMENU>(::SendMessage(
        m_hWndMDIClient, WM_MDISETMENU, reinterpret_cast<WPARAM>(pFrameMenu != nullptr ? pFrameMenu->m_hMenu : nullptr),
        reinterpret_cast<LPARAM>(pWindowMenu != nullptr ? pWindowMenu->m_hMenu : nullptr))));
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar)
{
    for (int at = hMenuBar != nullptr ? ::GetMenuItemCount(hMenuBar) - 1 : -1; at >= 0; --at)
    {
        HMENU const popup = ::GetSubMenu(hMenuBar, at);
        int const count = popup != nullptr ? ::GetMenuItemCount(popup) : 0;
        for (int item = 0; item < count; ++item)
        {
            UINT const id = ::GetMenuItemID(popup, item);
            if (id >= AFX_IDM_WINDOW_FIRST && id <= AFX_IDM_WINDOW_LAST)
                return popup;
        }
    }
    return nullptr;
}

CFrameWnd * CMDIFrameWnd::GetActiveFrame()
{
    CMDIChildWnd * const child = MDIGetActive();
    return child != nullptr ? static_cast<CFrameWnd *>(child) : this;
}

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle)
{
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    // A maximised child's title is added by the system.
    CMDIChildWnd * child = MDIGetActive();
    if (child != nullptr && (child->GetStyle() & WS_MAXIMIZE) != 0)
        child = nullptr;
    if (child == nullptr)
    {
        UpdateFrameTitleForDocument(nullptr);
        return;
    }
    CDocument const * document = GetActiveDocument();
    if (document == nullptr)
        document = child->GetActiveDocument();
    CString const title = bAddToTitle && document != nullptr ? document->GetTitle() : child->GetTitle();
    UpdateFrameTitleForDocument(title.IsEmpty() && (!bAddToTitle || document == nullptr) ? nullptr : title.GetString());
}

void CMDIFrameWnd::OnUpdateFrameMenu(HMENU hMenuAlt)
{
    if (CMDIChildWnd * const child = MDIGetActive())
        child->UpdateMenu(TRUE, child, hMenuAlt);
    else if (!framework::ShowMenuInBar(m_hWnd, hMenuAlt))
    {
        ::SendMessage(m_hWndMDIClient, WM_MDISETMENU,
                      reinterpret_cast<WPARAM>(hMenuAlt != nullptr ? hMenuAlt : m_defaultMenu), 0);
    }
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG * pMsg)
{
    WindowGuard const guard(this);
    CMDIChildWnd * const child = MDIGetActive();
    if (child != nullptr && child->PreTranslateMessage(pMsg))
        return TRUE;
    if (!guard.Alive() || CFrameWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message != WM_KEYDOWN && pMsg->message != WM_SYSKEYDOWN)
        return FALSE;
    return m_hWndMDIClient != nullptr && GetActiveView() == nullptr && ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo)
{
    if (CMDIChildWnd * const child = MDIGetActive())
    {
        WindowGuard const guard(this);
        if (child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) || !guard.Alive())
            return TRUE;
    }
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    constexpr UINT default_commands = 0xF000; // the system's and the choice of a child are left to the default
    WindowGuard const guard(this);
    CMDIChildWnd * const child = MDIGetActive();
    if (child != nullptr && AfxCallWndProc(child, child->m_hWnd, WM_COMMAND, wParam, lParam) != 0)
        return TRUE;
    if (!guard.Alive() || CFrameWnd::OnCommand(wParam, lParam))
        return TRUE;
    if (lParam == 0 && (LOWORD(wParam) & default_commands) == default_commands)
    {
        DefWindowProc(WM_COMMAND, wParam, lParam);
        return TRUE;
    }
    return FALSE;
}

BOOL CMDIFrameWnd::HandleWindowCommand(UINT nID)
{
    ASSERT(m_hWndMDIClient != nullptr);
    switch (nID)
    {
    case ID_WINDOW_ARRANGE:
        MDIIconArrange();
        return TRUE;
    case ID_WINDOW_CASCADE:
        MDICascade();
        return TRUE;
    case ID_WINDOW_TILE_HORZ:
        MDITile(MDITILE_HORIZONTAL);
        return TRUE;
    case ID_WINDOW_TILE_VERT:
        MDITile(MDITILE_VERTICAL);
        return TRUE;
    default:
        return FALSE;
    }
}

void CMDIFrameWnd::UpdateWindowCommand(CCmdUI * pCmdUI)
{
    pCmdUI->Enable(MDIGetActive() != nullptr);
}

void CMDIFrameWnd::NewWindow()
{
    CMDIChildWnd * const child = MDIGetActive();
    CDocument * const document = child != nullptr ? child->GetActiveDocument() : nullptr;
    CDocTemplate * const docTemplate = document != nullptr ? document->GetDocTemplate() : nullptr;
    if (docTemplate == nullptr)
    {
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
        return;
    }
    framework::DocumentWatch const watch(document);
    if (CFrameWnd * const frame = docTemplate->CreateNewFrame(document, child))
        docTemplate->InitialUpdateFrame(frame, watch.Alive() ? document : nullptr);
}
