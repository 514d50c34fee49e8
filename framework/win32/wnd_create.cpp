// CWnd: objects and handles, creation, subclassing, window classes.

#include <cwchar>

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace
{
constexpr wchar_t plain_class_name[] = L"FrameworkWnd";

bool IsPlaceInZOrder(CWnd const * window)
{
    return window == &CWnd::wndTop || window == &CWnd::wndBottom || window == &CWnd::wndTopMost ||
           window == &CWnd::wndNoTopMost;
}

/// The input method's window is made along with the first window of a thread, and isn't meant.
bool IsInputMethodWindow(HWND window)
{
    wchar_t name[8] = {};
    ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return _wcsicmp(name, L"ime") == 0;
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    auto const window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.creating != nullptr && !IsInputMethodWindow(window))
    {
        CWnd * const object = state.creating;
        state.creating = nullptr;
        framework::WndAccess::SubclassCreated(*object, window);
    }
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}
} // namespace

CWnd::CWnd() : CWnd(nullptr) {}

CWnd::CWnd(HWND hWnd) : m_hWnd(hWnd), m_hWndOwner(nullptr), m_nFlags(0), m_pfnSuper(nullptr), m_nModalResult(0) {}

CWnd::~CWnd()
{
    if (m_hWnd == nullptr || IsPlaceInZOrder(this))
        return;
    TRACE(L"A window's object is deleted before its window.\n");
    CWnd::DestroyWindow();
}

CWnd::operator HWND() const
{
    return GetSafeHwnd();
}

BOOL CWnd::operator==(const CWnd & wnd) const
{
    return wnd.m_hWnd == m_hWnd;
}

BOOL CWnd::operator!=(const CWnd & wnd) const
{
    return wnd.m_hWnd != m_hWnd;
}

HWND CWnd::GetSafeHwnd() const
{
    // A program may ask a null pointer; the compiler must not take it for impossible.
    CWnd const * volatile const window = this;
    CWnd const * const object = window;
    return object != nullptr ? object->m_hWnd : nullptr;
}

CWnd * PASCAL CWnd::FromHandle(HWND hWnd)
{
    return framework::WindowMap().FromHandle(hWnd);
}

CWnd * PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    return framework::WindowMap().LookupPermanent(hWnd);
}

void PASCAL CWnd::DeleteTempMap()
{
    framework::WindowMap().DeleteTemporaries();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    ASSERT(m_hWnd == nullptr);
    ASSERT(FromHandlePermanent(hWndNew) == nullptr);
    if (hWndNew == nullptr)
        return FALSE;
    framework::WindowMap().SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach()
{
    HWND const handle = m_hWnd;
    if (handle != nullptr && FromHandlePermanent(handle) == this)
        framework::WindowMap().RemovePermanent(handle);
    m_hWnd = nullptr;
    return handle;
}

CWnd * framework::MakeTemporaryWnd(void * handle)
{
    CWnd * const window = new CWnd;
    window->m_hWnd = static_cast<HWND>(handle);
    return window;
}

void framework::ReleaseTemporaryWnd(CWnd * window)
{
    window->m_hWnd = nullptr;
}

void CWnd::PreSubclassWindow() {}

WNDPROC * CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}

BOOL CWnd::IsFrameWnd() const
{
    return FALSE;
}

void CWnd::SubclassCreated(HWND hWnd)
{
    Attach(hWnd);
    PreSubclassWindow();
    auto const previous =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (previous != &AfxWndProc)
        *GetSuperWndProcAddr() = previous;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    auto const previous =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    ASSERT(previous != &AfxWndProc);
    WNDPROC * const super = GetSuperWndProcAddr();
    if (*super == nullptr)
        *super = previous;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd * pParent)
{
    HWND const control = ::GetDlgItem(framework::SafeHandle(pParent), static_cast<int>(nID));
    return control != nullptr && SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow()
{
    ASSERT(::IsWindow(m_hWnd));
    WNDPROC * const super = GetSuperWndProcAddr();
    ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

void AFXAPI AfxHookWindowCreate(CWnd * pWnd)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.creating == pWnd)
        return;
    if (state.creationHook == nullptr)
    {
        state.creationHook = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
        if (state.creationHook == nullptr)
            AfxThrowMemoryException();
    }
    ASSERT(pWnd != nullptr && pWnd->m_hWnd == nullptr);
    ASSERT(state.creating == nullptr);
    state.creating = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.creationHook != nullptr)
    {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    if (state.creating == nullptr)
        return TRUE;
    state.creating = nullptr;
    return FALSE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd,
                  UINT nID, CCreateContext * pContext)
{
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT & rect,
                    CWnd * pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, framework::SafeHandle(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    CREATESTRUCT cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND const handle = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                                         cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    DWORD const error = ::GetLastError();
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came into being, so nothing else says that it is gone
    ::SetLastError(error);
    return handle != nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT & cs)
{
    if (cs.lpszClass != nullptr)
        return TRUE;
    ASSERT((cs.style & WS_CHILD) != 0);
    WNDCLASS plain{};
    plain.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    plain.lpfnWndProc = ::DefWindowProc;
    plain.hInstance = AfxGetInstanceHandle();
    plain.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    plain.lpszClassName = plain_class_name;
    if (!AfxRegisterClass(&plain))
        return FALSE;
    cs.lpszClass = plain_class_name;
    return TRUE;
}

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    bool const permanent = FromHandlePermanent(m_hWnd) != nullptr;
    BOOL const destroyed = ::DestroyWindow(m_hWnd);
    // A permanent object has been detached by WM_NCDESTROY, and may be deleted.
    if (!permanent)
        Detach();
    return destroyed;
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS * lpWndClass)
{
    WNDCLASS present{};
    if (::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &present))
        return TRUE;
    return ::RegisterClass(lpWndClass) != 0;
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    auto & name = framework::CurrentThreadState().className;
    HINSTANCE const instance = AfxGetInstanceHandle();
    if (hCursor == nullptr && hbrBackground == nullptr && hIcon == nullptr)
        std::swprintf(name, std::size(name), L"Afx:%p:%x", static_cast<void *>(instance), nClassStyle);
    else
    {
        std::swprintf(name, std::size(name), L"Afx:%p:%x:%p:%p:%p", static_cast<void *>(instance), nClassStyle,
                      static_cast<void *>(hCursor), static_cast<void *>(hbrBackground), static_cast<void *>(hIcon));
    }
    WNDCLASS description{};
    description.style = nClassStyle;
    description.lpfnWndProc = ::DefWindowProc;
    description.hInstance = instance;
    description.hIcon = hIcon;
    description.hCursor = hCursor;
    description.hbrBackground = hbrBackground;
    description.lpszClassName = name;
    if (!AfxRegisterClass(&description))
        AfxThrowResourceException();
    return name;
}
