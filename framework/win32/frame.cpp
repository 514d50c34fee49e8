// CFrameWnd: creation, its active view, its end.

#include "afxpriv.h"

#include <cwchar>

#include "detail/FrameSupport.h"
#include "detail/MenuMode.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

// clang-format off
BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_ACTIVATE()
    ON_WM_ENABLE()
    ON_WM_SETFOCUS()
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_WM_ENTERIDLE()
    ON_WM_DROPFILES()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::HandleSetMessageString)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::HandleIdleUpdate)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXT, 0, 0xFFFF, &CFrameWnd::HandleToolTipText)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_REBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_COMMAND_EX(ID_VIEW_REBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::UpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::UpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::UpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::UpdateKeyIndicator)
END_MESSAGE_MAP()
// clang-format on

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

namespace
{
constexpr wchar_t frame_class_name[] = L"FrameworkFrameOrView";

WNDCLASS FrameClass()
{
    WNDCLASS description{};
    description.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    description.lpfnWndProc = ::DefWindowProc;
    description.hInstance = AfxGetInstanceHandle();
    description.hIcon = ::LoadIcon(nullptr, IDI_APPLICATION);
    description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1));
    description.lpszClassName = frame_class_name;
    return description;
}

/// Not every window that fails while it is created is told of its end.
void LeaveIdleTime(CFrameWnd & frame)
{
    CPtrList & frames = framework::CurrentThreadState().topLevelFrames;
    if (POSITION const at = frames.Find(&frame))
        frames.RemoveAt(at);
}

/// The difference of two coordinates, one of which may stand for "as the system likes".
int Extent(LONG from, LONG to)
{
    return static_cast<int>(static_cast<UINT>(to) - static_cast<UINT>(from));
}
} // namespace

LPCTSTR framework::FrameClassName()
{
    WNDCLASS description = FrameClass();
    return AfxRegisterClass(&description) ? frame_class_name : nullptr;
}

CFrameWnd::CFrameWnd()
    : m_bAutoMenuEnable(TRUE),
      m_hAccelTable(nullptr),
      m_activeView(nullptr),
      m_defaultMenu(nullptr),
      m_number(0),
      m_messageTracking(0),
      m_messageShown(0),
      m_helpId(0),
      m_modalDepth(0),
      m_modalByDisabling(false),
      m_border(0, 0, 0, 0),
      m_inLayout(false),
      m_layoutPending(false),
      m_dockStyle(0),
      m_previewClose(nullptr)
{
}

CFrameWnd::~CFrameWnd()
{
    LeaveIdleTime(*this);
}

BOOL CFrameWnd::IsFrameWnd() const
{
    return TRUE;
}

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT & cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = framework::FrameClassName();
    if ((cs.style & FWS_ADDTOTITLE) != 0)
        cs.style |= FWS_PREFIXTITLE;
    cs.dwExStyle |= WS_EX_CLIENTEDGE; // a view with an edge of its own takes it away
    return cs.lpszClass != nullptr;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT & rect,
                       CWnd * pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext * pContext)
{
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr)
    {
        menu = ::LoadMenu(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr)
        {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_title = lpszWindowName;
    if (!CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, Extent(rect.left, rect.right),
                  Extent(rect.top, rect.bottom), framework::SafeHandle(pParentWnd), menu, pContext))
    {
        if (menu != nullptr && ::IsMenu(menu))
            ::DestroyMenu(menu);
        return FALSE;
    }
    return TRUE;
}

LPCTSTR CFrameWnd::GetIconWndClass(DWORD dwDefaultStyle, UINT nIDResource)
{
    LPCTSTR const name = MAKEINTRESOURCE(nIDResource);
    HICON const icon = ::LoadIcon(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    if (icon == nullptr)
        return nullptr; // the default class
    CREATESTRUCT cs{};
    cs.style = static_cast<LONG>(dwDefaultStyle);
    PreCreateWindow(cs);
    WNDCLASS description{};
    if (cs.lpszClass == nullptr || !::GetClassInfo(AfxGetInstanceHandle(), cs.lpszClass, &description) ||
        description.hIcon == icon)
        return nullptr;
    return AfxRegisterWndClass(description.style, description.hCursor, description.hbrBackground, icon);
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd * pParentWnd, CCreateContext * pContext)
{
    ASSERT(m_hWnd == nullptr);
    m_helpId = nIDResource;
    CString strings;
    if (strings.LoadString(nIDResource))
        AfxExtractSubString(m_title, strings, CDocTemplate::windowTitle);
    CString const title = m_title; // Create stores what it is given
    if (!Create(GetIconWndClass(dwDefaultStyle, nIDResource), title, dwDefaultStyle, rectDefault, pParentWnd,
                MAKEINTRESOURCE(nIDResource), 0, pContext))
        return FALSE;
    m_defaultMenu = ::GetMenu(m_hWnd);
    LoadAccelTable(MAKEINTRESOURCE(nIDResource));
    if (pContext == nullptr)
    {
        WindowGuard const guard(this);
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        return guard.Alive();
    }
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName)
{
    ASSERT(m_hAccelTable == nullptr);
    m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

HACCEL CFrameWnd::GetDefaultAccelerator()
{
    return m_hAccelTable;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    return CreateContents(lpCreateStruct, static_cast<CCreateContext *>(lpCreateStruct->lpCreateParams));
}

int CFrameWnd::CreateContents(LPCREATESTRUCT lpcs, CCreateContext * pContext)
{
    WindowGuard const guard(this);
    if (CWnd::OnCreate(lpcs) == -1)
        return -1;
    if ((lpcs->style & WS_CHILD) == 0)
        framework::CurrentThreadState().topLevelFrames.AddTail(this);
    if (!OnCreateClient(lpcs, pContext) || !guard.Alive())
        return -1;
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    RecalcLayout();
    return guard.Alive() ? 0 : -1;
}

BOOL CFrameWnd::OnCreateClient(LPCREATESTRUCT, CCreateContext * pContext)
{
    if (pContext == nullptr || pContext->m_pNewViewClass == nullptr)
        return TRUE;
    return CreateView(pContext, AFX_IDW_PANE_FIRST) != nullptr;
}

CWnd * CFrameWnd::CreateView(CCreateContext * pContext, UINT nID)
{
    ASSERT(m_hWnd != nullptr && pContext != nullptr && pContext->m_pNewViewClass != nullptr);
    auto * const view = DYNAMIC_DOWNCAST(CWnd, pContext->m_pNewViewClass->CreateObject());
    if (view == nullptr)
        return nullptr;
    WindowGuard const guard(this);
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW, CRect(0, 0, 0, 0), this, nID, pContext) || !guard.Alive())
        return nullptr;
    WindowGuard const viewGuard(view);
    if (!viewGuard.Alive())
        return nullptr;
    if ((view->GetExStyle() & WS_EX_CLIENTEDGE) != 0)
        ModifyStyleEx(WS_EX_CLIENTEDGE, 0, SWP_FRAMECHANGED);
    return guard.Alive() && viewGuard.Alive() ? view : nullptr;
}

void CFrameWnd::InitialUpdateFrame(CDocument * pDoc, BOOL bMakeVisible)
{
    WindowGuard const guard(this);
    framework::DocumentWatch const document(pDoc);
    CView * view = nullptr;
    if (GetActiveView() == nullptr)
    {
        view = DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE));
        if (view != nullptr)
            SetActiveView(view, FALSE);
    }
    WindowGuard const viewGuard(view);
    if (bMakeVisible)
    {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        if (guard.Alive() && viewGuard.Alive())
            view->OnActivateFrame(WA_INACTIVE, this);
        if (!guard.Alive())
            return;
        int command = -1;
        CWinApp * const app = AfxGetApp();
        if (app != nullptr && app->m_pMainWnd == this)
        {
            command = app->m_nCmdShow; // as the program was started
            app->m_nCmdShow = -1;
        }
        ActivateFrame(command);
        if (guard.Alive() && viewGuard.Alive())
            view->OnActivateView(TRUE, view, view);
    }
    if (pDoc != nullptr && document.Alive())
        pDoc->UpdateFrameCounts();
    if (guard.Alive())
        OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::ActivateFrame(int nCmdShow)
{
    WindowGuard const guard(this);
    if (nCmdShow == -1)
    {
        if (!IsWindowVisible())
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    BringToTop(nCmdShow);
    if (nCmdShow == -1 || !guard.Alive())
        return;
    ShowWindow(nCmdShow);
    if (guard.Alive())
        BringToTop(nCmdShow);
}

void CFrameWnd::BringToTop(int nCmdShow)
{
    switch (nCmdShow)
    {
    case SW_HIDE:
    case SW_MINIMIZE:
    case SW_SHOWMINNOACTIVE:
    case SW_SHOWNA:
    case SW_SHOWNOACTIVATE:
        return; // none of them is to come to the top
    default:
        ::BringWindowToTop(::GetLastActivePopup(m_hWnd));
        break;
    }
}

CView * CFrameWnd::GetActiveView() const
{
    return m_activeView;
}

void CFrameWnd::SetActiveView(CView * pViewNew, BOOL bNotify)
{
    CView * const old = m_activeView;
    if (pViewNew == old)
        return;
    WindowGuard const guard(this);
    WindowGuard const oldGuard(old);
    WindowGuard const newGuard(pViewNew);
    m_activeView = nullptr;
    if (old != nullptr)
        old->OnActivateView(FALSE, pViewNew, old);
    // It may have chosen another view, or ended the frame or the new view.
    if (!guard.Alive() || m_activeView != nullptr || (pViewNew != nullptr && !newGuard.Alive()))
        return;
    m_activeView = pViewNew;
    if (pViewNew != nullptr && bNotify)
        pViewNew->OnActivateView(TRUE, pViewNew, oldGuard.Alive() ? old : nullptr);
}

CDocument * CFrameWnd::GetActiveDocument()
{
    CView * const view = GetActiveView();
    return view != nullptr ? view->GetDocument() : nullptr;
}

CFrameWnd * CFrameWnd::GetActiveFrame()
{
    return this;
}

void CFrameWnd::OnSetFocus(CWnd * pOldWnd)
{
    if (m_activeView != nullptr)
        m_activeView->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CFrameWnd::OnActivate(UINT nState, CWnd * pWndOther, BOOL bMinimized)
{
    WindowGuard const guard(this);
    if (nState == WA_INACTIVE)
        framework::EndMenuMode();
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    if (!guard.Alive())
        return;
    CView * view = GetActiveView();
    if (view == nullptr)
        view = GetActiveFrame()->GetActiveView();
    if (view == nullptr)
        return;
    WindowGuard const viewGuard(view);
    if (nState != WA_INACTIVE && !bMinimized)
        view->OnActivateView(TRUE, view, view);
    if (guard.Alive() && viewGuard.Alive())
        view->OnActivateFrame(nState, this);
}

bool CFrameWnd::IsLastFrameOf(CDocument & document) const
{
    for (POSITION at = document.GetFirstViewPosition(); at != nullptr;)
    {
        CView const * const view = document.GetNextView(at);
        if (view->GetParentFrame() != this)
            return false;
    }
    return true;
}

void CFrameWnd::OnClose()
{
    if (m_previewClose != nullptr && !m_previewClose(this))
        return;
    WindowGuard const guard(this);
    CDocument * const document = GetActiveDocument();
    framework::DocumentWatch const watch(document);
    if (document != nullptr && !document->CanCloseFrame(this))
        return;
    if (!guard.Alive())
        return;
    CWinApp * const app = AfxGetApp();
    if (app != nullptr && app->m_pMainWnd == this)
    {
        if (document == nullptr && !app->SaveAllModified())
            return;
        if (!guard.Alive())
            return;
        app->HideApplication();
        app->CloseAllDocuments(FALSE);
        if (app->m_pMainWnd == nullptr) // went with its document
        {
            AfxPostQuitMessage(0);
            return;
        }
        if (!guard.Alive())
            return;
    }
    if (document != nullptr && watch.Alive() && document->m_autoDelete)
    {
        if (IsLastFrameOf(*document))
        {
            document->OnCloseDocument(); // ends this frame as well
            return;
        }
        document->PreCloseFrame(this);
        if (!guard.Alive())
            return;
    }
    DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession()
{
    CWinApp * const app = AfxGetApp();
    return app == nullptr || app->m_pMainWnd != this || app->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding)
{
    CWinApp * const app = AfxGetApp();
    if (bEnding && app != nullptr && app->m_pMainWnd == this)
        app->CloseAllDocuments(TRUE);
}

void CFrameWnd::OnDestroy()
{
    // Another menu in the frame's place belongs to who made it, and must not end with the window.
    if (m_defaultMenu != nullptr && ::GetMenu(m_hWnd) != m_defaultMenu)
        ::SetMenu(m_hWnd, m_defaultMenu);
    LeaveIdleTime(*this);
    CWnd::OnDestroy();
}

void CFrameWnd::PostNcDestroy()
{
    delete this;
}

BOOL CFrameWnd::InModalState() const
{
    return m_modalDepth != 0;
}

void CFrameWnd::BeginModalState()
{
    if (m_modalDepth++ != 0)
        return;
    // All windows of the program that belong to this one, this one included, are disabled; popups of its own too.
    HWND const top = framework::SafeHandle(GetTopLevelParent());
    CArray<HWND> windows;
    for (HWND window = ::GetWindow(::GetDesktopWindow(), GW_CHILD); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT))
    {
        if (!::IsWindowEnabled(window) || CWnd::FromHandlePermanent(window) == nullptr)
            continue;
        HWND owner = window;
        while (owner != nullptr && owner != top)
            owner = ::GetWindow(owner, GW_OWNER);
        if (owner == top)
            windows.Add(window);
    }
    WindowGuard const guard(this);
    for (INT_PTR at = 0; at < windows.GetSize() && guard.Alive(); ++at)
    {
        HWND const window = windows[at];
        if (!::IsWindow(window) || ::SendMessage(window, WM_DISABLEMODAL, 0, 0) != 0 || !guard.Alive())
            continue;
        m_disabled.Add(window);
        ::EnableWindow(window, FALSE);
    }
}

void CFrameWnd::EndModalState()
{
    if (m_modalDepth == 0 || --m_modalDepth != 0)
        return;
    CArray<HWND> windows;
    windows.Copy(m_disabled);
    m_disabled.RemoveAll();
    for (INT_PTR at = 0; at < windows.GetSize(); ++at)
    {
        if (::IsWindow(windows[at]))
            ::EnableWindow(windows[at], TRUE);
    }
}

void CFrameWnd::OnEnable(BOOL bEnable)
{
    if (GetParent() != nullptr)
        return;
    if (!bEnable && !InModalState())
    {
        m_modalByDisabling = true;
        BeginModalState();
    }
    else if (bEnable && m_modalByDisabling)
    {
        m_modalByDisabling = false;
        WindowGuard const guard(this);
        EndModalState();
        if (guard.Alive() && ::GetActiveWindow() == m_hWnd)
            SendMessage(WM_ACTIVATE, WA_ACTIVE);
    }
}

void CFrameWnd::ShowOwnedWindows(BOOL bShow)
{
    // What is hidden here is marked, so that only that is shown again.
    static wchar_t const mark[] = L"FrameworkHiddenWithOwner";
    HWND const top = framework::SafeHandle(GetTopLevelParent());
    CArray<HWND> windows;
    for (HWND window = ::GetWindow(::GetDesktopWindow(), GW_CHILD); window != nullptr;
         window = ::GetWindow(window, GW_HWNDNEXT))
    {
        HWND owner = ::GetWindow(window, GW_OWNER);
        while (owner != nullptr && owner != top)
            owner = ::GetWindow(owner, GW_OWNER);
        if (owner != nullptr)
            windows.Add(window);
    }
    for (INT_PTR at = 0; at < windows.GetSize(); ++at)
    {
        HWND const window = windows[at];
        if (!::IsWindow(window))
            continue;
        bool const visible = (::GetWindowLong(window, GWL_STYLE) & WS_VISIBLE) != 0;
        if (!bShow && visible)
        {
            ::SetProp(window, mark, reinterpret_cast<HANDLE>(1));
            ::ShowWindow(window, SW_HIDE);
        }
        else if (bShow && !visible && ::RemoveProp(window, mark) != nullptr)
            ::ShowWindow(window, SW_SHOWNOACTIVATE);
    }
}
