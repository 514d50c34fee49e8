// CWnd: painting, scrolling, caret, clipboard, menus.

#include <algorithm>

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
HRGN Handle(CRgn const * region)
{
    return region != nullptr ? static_cast<HRGN>(region->m_hObject) : nullptr;
}

HDC Handle(CDC const * dc)
{
    return dc != nullptr ? dc->m_hDC : nullptr;
}

HMENU Handle(CMenu const * menu)
{
    return menu != nullptr ? menu->m_hMenu : nullptr;
}

/// One of a window's own scroll bars, or the control that stands for it.
struct Bar
{
    HWND window;
    int which;
};

Bar BarOf(CWnd const & window, int which)
{
    if (CScrollBar const * const control = window.GetScrollBarCtrl(which))
        return {control->m_hWnd, SB_CTL};
    return {window.m_hWnd, which};
}
} // namespace

CDC * CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC * CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC * CWnd::GetDCEx(CRgn * prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, Handle(prgnClip), flags));
}

CDC * CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

int CWnd::ReleaseDC(CDC * pDC)
{
    return ::ReleaseDC(m_hWnd, pDC->m_hDC);
}

void CWnd::Print(CDC * pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC * pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->m_hDC), static_cast<LPARAM>(dwFlags));
}

BOOL CWnd::PrintWindow(CDC * pDC, UINT nFlags) const
{
    return ::PrintWindow(m_hWnd, pDC->m_hDC, nFlags);
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    ::SendMessage(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn * pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, Handle(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn * pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, Handle(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn * pRgn)
{
    ::ValidateRgn(m_hWnd, Handle(pRgn));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn * prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, Handle(prgnUpdate), flags);
}

BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(nullptr);
}

void CWnd::ShowOwnedPopups(BOOL bShow)
{
    ::ShowOwnedPopups(m_hWnd, bShow);
}

BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT * lprcFrom, CONST RECT * lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

BOOL CWnd::DrawCaption(CDC * pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, pDC->m_hDC, lprc, uFlags);
}

BOOL CWnd::AnimateWindow(DWORD dwTime, DWORD dwFlags)
{
    return ::AnimateWindow(m_hWnd, dwTime, dwFlags);
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO info{sizeof info, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}

BOOL CWnd::GetLayeredWindowAttributes(COLORREF * pcrKey, BYTE * pbAlpha, DWORD * pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC * pDCDst, POINT * pptDst, SIZE * psize, CDC * pDCSrc, POINT * pptSrc, COLORREF crKey,
                               BLENDFUNCTION * pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, Handle(pDCDst), pptDst, psize, Handle(pDCSrc), pptSrc, crKey, pblend, dwFlags);
}

int CWnd::GetScrollPos(int nBar) const
{
    Bar const bar = BarOf(*this, nBar);
    return ::GetScrollPos(bar.window, bar.which);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    Bar const bar = BarOf(*this, nBar);
    return ::SetScrollPos(bar.window, bar.which, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    Bar const bar = BarOf(*this, nBar);
    ::GetScrollRange(bar.window, bar.which, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    Bar const bar = BarOf(*this, nBar);
    ::SetScrollRange(bar.window, bar.which, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    Bar const bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(bar.window, bar.which, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    Bar const bar = BarOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof *lpScrollInfo;
    ::SetScrollInfo(bar.window, bar.which, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetScrollLimit(int nBar)
{
    int first = 0;
    int last = 0;
    GetScrollRange(nBar, &first, &last);
    SCROLLINFO info{};
    if (GetScrollInfo(nBar, &info, SIF_PAGE))
        last -= std::max(static_cast<int>(info.nPage) - 1, 0);
    return last;
}

CScrollBar * CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn * prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, Handle(prgnUpdate), lpRectUpdate, flags);
}

void CWnd::CreateCaret(CBitmap * pBitmap)
{
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->m_hObject), 0, 0);
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(static_cast<UINT_PTR>(1)), nWidth, nHeight);
}

CPoint PASCAL CWnd::GetCaretPos()
{
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

void PASCAL CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

BOOL CWnd::ChangeClipboardChain(HWND hWndNext)
{
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}

HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}

CWnd * PASCAL CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}

CWnd * PASCAL CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}

CWnd * PASCAL CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}

CMenu * CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu * pMenu)
{
    return ::SetMenu(m_hWnd, Handle(pMenu));
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CMenu * CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu * pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, Handle(pMenu), nIDHiliteItem, nHilite);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    if (nBar == SB_BOTH)
    {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
    }
    else if (CScrollBar * const control = GetScrollBarCtrl(nBar))
        control->EnableWindow(bEnable);
    else
        EnableScrollBar(nBar, bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    if (IsWindowVisible() || lpRect != nullptr || lpClipRect != nullptr)
    {
        ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
        return;
    }
    // The system doesn't scroll a hidden window; its children are to move all the same.
    for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect place;
        ::GetWindowRect(child, &place);
        ScreenToClient(&place);
        ::SetWindowPos(child, nullptr, place.left + xAmount, place.top + yAmount, 0, 0,
                       SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOZORDER);
    }
}
