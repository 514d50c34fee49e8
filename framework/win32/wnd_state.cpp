// CWnd: style, state, size and position, text.

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
BOOL ChangeStyle(HWND window, int which, DWORD remove, DWORD add, UINT positionFlags)
{
    auto const present = static_cast<DWORD>(::GetWindowLongPtr(window, which));
    DWORD const wanted = (present & ~remove) | add;
    if (wanted == present)
        return FALSE;
    ::SetWindowLongPtr(window, which, static_cast<LONG_PTR>(wanted));
    if (positionFlags != 0)
    {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | positionFlags);
    }
    return TRUE;
}

void ReadText(HWND window, CString & text)
{
    int const length = ::GetWindowTextLength(window);
    ::GetWindowText(window, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
}

/// Whether no part of the dialog that the window stands in is hidden or disabled.
bool CanBeReached(HWND dialog, HWND window)
{
    for (HWND part = window; part != dialog && part != nullptr; part = ::GetAncestor(part, GA_PARENT))
    {
        auto const style = static_cast<DWORD>(::GetWindowLongPtr(part, GWL_STYLE));
        if (part != window && (style & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE)
            return false;
    }
    return true;
}
} // namespace

DWORD CWnd::GetStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const
{
    return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ChangeStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowVisible() const
{
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::ShowWindow(int nCmdShow)
{
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsIconic() const
{
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const
{
    return ::IsZoomed(m_hWnd);
}

BOOL CWnd::IsTouchWindow() const
{
    ULONG flags = 0;
    return ::IsTouchWindow(m_hWnd, &flags);
}

BOOL CWnd::RegisterTouchWindow(BOOL bRegister, ULONG ulFlags)
{
    return bRegister ? ::RegisterTouchWindow(m_hWnd, ulFlags) : ::UnregisterTouchWindow(m_hWnd);
}

CWnd * PASCAL CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd * CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

CWnd * PASCAL CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

CWnd * PASCAL CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}

CWnd * CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

CWnd * PASCAL CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd * CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd * PASCAL CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}

DWORD CWnd::GetWindowContextHelpId() const
{
    return ::GetWindowContextHelpId(m_hWnd);
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd * pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, framework::SafeHandle(pWndInsertAfter), x, y, cx, cy, nFlags);
}

void CWnd::GetWindowRect(LPRECT lpRect) const
{
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const
{
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT * lpwndpl) const
{
    lpwndpl->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT * lpwndpl)
{
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof placement;
    return ::SetWindowPlacement(m_hWnd, &placement);
}

int CWnd::GetWindowRgn(HRGN hRgn) const
{
    return ::GetWindowRgn(m_hWnd, hRgn);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw)
{
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

UINT CWnd::ArrangeIconicWindows()
{
    return ::ArrangeIconicWindows(m_hWnd);
}

void CWnd::BringWindowToTop()
{
    ::BringWindowToTop(m_hWnd);
}

void CWnd::CloseWindow()
{
    ::CloseWindow(m_hWnd);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const
{
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const
{
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd * pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, framework::SafeHandle(pwndTo), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd * pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, framework::SafeHandle(pwndTo), reinterpret_cast<LPPOINT>(lpRect), 2);
}

BOOL CWnd::GetWindowInfo(PWINDOWINFO pwi) const
{
    return ::GetWindowInfo(m_hWnd, pwi);
}

BOOL CWnd::GetTitleBarInfo(PTITLEBARINFO pti) const
{
    return ::GetTitleBarInfo(m_hWnd, pti);
}

BOOL CWnd::GetMenuBarInfo(LONG idObject, LONG idItem, PMENUBARINFO pmbi) const
{
    return ::GetMenuBarInfo(m_hWnd, idObject, idItem, pmbi);
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    DWORD const removed = nAdjustType == adjustBorder ? WS_EX_CLIENTEDGE : 0;
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, GetExStyle() & ~removed);
}

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString & rString) const
{
    ReadText(m_hWnd, rString);
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

CFont * CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

void CWnd::SetFont(CFont * pFont, BOOL bRedraw)
{
    HGDIOBJ const font = pFont != nullptr ? pFont->m_hObject : nullptr;
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg)
{
    // Some systems look for a mnemonic's control for ever where they can't come back to the window that has the focus:
    // in a part of the dialog that has been hidden or disabled under it. From the dialog itself they find all there
    // are.
    if ((lpMsg->message == WM_CHAR || lpMsg->message == WM_SYSCHAR) && !CanBeReached(m_hWnd, lpMsg->hwnd))
    {
        MSG message = *lpMsg;
        message.hwnd = m_hWnd;
        return ::IsDialogMessage(m_hWnd, &message);
    }
    return ::IsDialogMessage(m_hWnd, lpMsg);
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK * lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

BOOL CWnd::DragDetect(POINT pt) const
{
    return ::DragDetect(m_hWnd, pt);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

void CWnd::NotifyWinEvent(DWORD event, LONG idObjectType, LONG idObject)
{
    ::NotifyWinEvent(event, m_hWnd, idObjectType, idObject);
}
