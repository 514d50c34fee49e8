// CMiniFrameWnd.

#include "detail/miniframe.h"

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

CMiniFrameWnd::CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::Create(LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle, const RECT & rect,
                           CWnd * pParentWnd, UINT nID)
{
    // The inherited ones take as many arguments.
    BOOL(CMiniFrameWnd::*const create)
    (DWORD, LPCTSTR, LPCTSTR, DWORD, RECT const &, CWnd *, UINT) = &CMiniFrameWnd::CreateEx;
    return (this->*create)(0, lpClassName, lpWindowName, dwStyle, rect, pParentWnd, nID);
}

BOOL CMiniFrameWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpClassName, LPCTSTR lpWindowName, DWORD dwStyle,
                             const RECT & rect, CWnd * pParentWnd, UINT nID)
{
    SetTitle(lpWindowName);
    if ((dwStyle & WS_CAPTION) == WS_CAPTION)
        dwExStyle |= WS_EX_TOOLWINDOW;
    bool const anywhere = rect.left == CW_USEDEFAULT;
    return CWnd::CreateEx(dwExStyle, lpClassName, lpWindowName, dwStyle, rect.left, rect.top,
                          anywhere ? CW_USEDEFAULT : rect.right - rect.left,
                          anywhere ? CW_USEDEFAULT : rect.bottom - rect.top, framework::SafeHandle(pParentWnd),
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)));
}
