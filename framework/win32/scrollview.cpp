// CScrollView: views that are larger than their window.

#include "afxpriv.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

IMPLEMENT_DYNAMIC(CScrollView, CView)

// clang-format off
BEGIN_MESSAGE_MAP(CScrollView, CView)
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()
// clang-format on

const SIZE CScrollView::sizeDefault = {0, 0};

namespace
{
constexpr int scale_to_fit = -1;
constexpr int no_mode = 0;
constexpr int lines_a_wheel_step = 3;

/// A size of logical units in pixels.
CSize Pixels(HDC dc, SIZE const & size)
{
    POINT points[] = {{0, 0}, {size.cx, size.cy}};
    ::LPtoDP(dc, points, 2);
    return CSize(std::abs(points[1].x - points[0].x), std::abs(points[1].y - points[0].y));
}
} // namespace

CScrollView::CScrollView()
    : m_mapMode(no_mode),
      m_totalLogical(0, 0),
      m_total(0, 0),
      m_page(0, 0),
      m_line(0, 0),
      m_updating(false)
{
}

CScrollView::~CScrollView() = default;

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE & sizePage, const SIZE & sizeLine)
{
    ASSERT(sizeTotal.cx >= 0 && sizeTotal.cy >= 0);
    ASSERT(nMapMode > 0 && nMapMode != MM_ISOTROPIC && nMapMode != MM_ANISOTROPIC);
    int const former = m_mapMode;
    m_mapMode = nMapMode;
    m_totalLogical = sizeTotal;
    HDC const dc = ::GetDC(nullptr);
    int const saved = ::SetMapMode(dc, nMapMode);
    m_total = Pixels(dc, sizeTotal);
    m_page = Pixels(dc, sizePage);
    m_line = Pixels(dc, sizeLine);
    ::SetMapMode(dc, saved);
    ::ReleaseDC(nullptr, dc);
    if (m_page.cx == 0)
        m_page.cx = m_total.cx / 10;
    if (m_page.cy == 0)
        m_page.cy = m_total.cy / 10;
    if (m_line.cx == 0)
        m_line.cx = m_page.cx / 10;
    if (m_line.cy == 0)
        m_line.cy = m_page.cy / 10;
    if (m_hWnd == nullptr)
        return;
    WindowGuard const guard(this);
    UpdateBars();
    if (guard.Alive() && former != m_mapMode)
        Invalidate(TRUE);
}

void CScrollView::SetScaleToFitSize(SIZE sizeTotal)
{
    m_mapMode = scale_to_fit;
    m_totalLogical = sizeTotal;
    if (m_hWnd == nullptr)
        return;
    if ((GetStyle() & (WS_HSCROLL | WS_VSCROLL)) != 0)
    {
        SetScrollPos(SB_HORZ, 0);
        SetScrollPos(SB_VERT, 0);
        ShowScrollBar(SB_BOTH, FALSE);
    }
    CRect client;
    GetClientRect(&client);
    m_total = client.Size();
    Invalidate(TRUE);
}

CPoint CScrollView::GetDeviceScrollPosition() const
{
    if (m_mapMode == scale_to_fit)
        return CPoint(0, 0);
    return CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
}

CPoint CScrollView::GetScrollPosition() const
{
    CPoint point = GetDeviceScrollPosition();
    if (m_mapMode <= 0 || m_mapMode == MM_TEXT)
        return point;
    HDC const dc = ::GetDC(nullptr);
    int const saved = ::SetMapMode(dc, m_mapMode);
    ::DPtoLP(dc, &point, 1);
    ::SetMapMode(dc, saved);
    ::ReleaseDC(nullptr, dc);
    return point;
}

CSize CScrollView::GetTotalSize() const
{
    return m_totalLogical;
}

void CScrollView::GetDeviceScrollSizes(int & nMapMode, SIZE & sizeTotal, SIZE & sizePage, SIZE & sizeLine) const
{
    nMapMode = m_mapMode;
    sizeTotal = m_total;
    sizePage = m_page;
    sizeLine = m_line;
}

void CScrollView::CheckScrollBars(BOOL & bHasHorzBar, BOOL & bHasVertBar) const
{
    DWORD const style = GetStyle();
    CScrollBar const * bar = GetScrollBarCtrl(SB_HORZ);
    bHasHorzBar = (bar != nullptr && bar->IsWindowEnabled()) || (style & WS_HSCROLL) != 0;
    bar = GetScrollBarCtrl(SB_VERT);
    bHasVertBar = (bar != nullptr && bar->IsWindowEnabled()) || (style & WS_VSCROLL) != 0;
}

/// The room in the window once its own scroll bars are away.
CSize CScrollView::WindowWithoutBars() const
{
    CRect client;
    GetClientRect(&client);
    CSize size = client.Size();
    DWORD const style = GetStyle();
    if ((style & WS_VSCROLL) != 0)
        size.cx += ::GetSystemMetrics(SM_CXVSCROLL);
    if ((style & WS_HSCROLL) != 0)
        size.cy += ::GetSystemMetrics(SM_CYHSCROLL);
    return size;
}

void CScrollView::UpdateBars()
{
    if (m_updating || m_mapMode <= 0)
        return;
    m_updating = true;
    WindowGuard const guard(this);
    CPoint position = GetDeviceScrollPosition();
    CSize room = WindowWithoutBars();
    bool const sharedHorizontal = GetScrollBarCtrl(SB_HORZ) != nullptr;
    bool const sharedVertical = GetScrollBarCtrl(SB_VERT) != nullptr;
    // A bar in one direction may make one in the other necessary.
    bool horizontal = m_total.cx > room.cx;
    bool vertical = m_total.cy > room.cy;
    int const width = sharedVertical ? 0 : ::GetSystemMetrics(SM_CXVSCROLL);
    int const height = sharedHorizontal ? 0 : ::GetSystemMetrics(SM_CYHSCROLL);
    if (vertical && !horizontal)
        horizontal = m_total.cx > room.cx - width;
    if (horizontal && !vertical)
        vertical = m_total.cy > room.cy - height;
    if (vertical && !horizontal)
        horizontal = m_total.cx > room.cx - width;
    room.cx -= vertical ? width : 0;
    room.cy -= horizontal ? height : 0;

    auto const set = [&](int bar, bool needed, int total, int page, LONG & place) {
        if (!guard.Alive())
            return;
        place = needed ? std::clamp<LONG>(place, 0, std::max(total - page, 0)) : 0;
        // A bar of the window's own comes and goes; a shared one is enabled and disabled.
        CScrollBar * const control = GetScrollBarCtrl(bar);
        if (!needed)
            SetScrollPos(bar, 0, FALSE);
        if (control != nullptr)
            control->EnableWindow(needed);
        else if (guard.Alive())
            ::ShowScrollBar(m_hWnd, bar, needed);
        if (!needed || !guard.Alive())
            return;
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = std::max(total - 1, 0);
        info.nPage = static_cast<UINT>(std::max(page, 0));
        info.nPos = place;
        SetScrollInfo(bar, &info, TRUE);
    };
    CPoint const former = position;
    set(SB_HORZ, horizontal, m_total.cx, room.cx, position.x);
    set(SB_VERT, vertical, m_total.cy, room.cy, position.y);
    if (!guard.Alive())
        return;
    m_updating = false;
    if (position != former)
        ScrollWindow(former.x - position.x, former.y - position.y);
}

void CScrollView::OnSize(UINT nType, int cx, int cy)
{
    WindowGuard const guard(this);
    CView::OnSize(nType, cx, cy);
    if (!guard.Alive())
        return;
    if (m_mapMode == scale_to_fit)
        SetScaleToFitSize(m_totalLogical);
    else
        UpdateBars();
}

void CScrollView::OnPrepareDC(CDC * pDC, CPrintInfo * pInfo)
{
    switch (m_mapMode)
    {
    case scale_to_fit: {
        pDC->SetMapMode(MM_ANISOTROPIC);
        pDC->SetWindowExt(m_totalLogical);
        pDC->SetViewportExt(m_total);
        break;
    }
    case no_mode:
        break;
    default:
        pDC->SetMapMode(m_mapMode);
        break;
    }
    CPoint origin(0, 0);
    if (pInfo == nullptr)
        origin = -GetDeviceScrollPosition();
    pDC->SetViewportOrg(origin);
    CView::OnPrepareDC(pDC, pInfo);
}

void CScrollView::MoveTo(CPoint position)
{
    CPoint const former = GetDeviceScrollPosition();
    WindowGuard const guard(this);
    SetScrollPos(SB_HORZ, position.x);
    if (guard.Alive())
        SetScrollPos(SB_VERT, position.y);
    if (!guard.Alive())
        return;
    // What the bars took is where it goes.
    CPoint const taken = GetDeviceScrollPosition();
    ScrollWindow(former.x - taken.x, former.y - taken.y);
}

void CScrollView::ScrollToPosition(POINT pt)
{
    if (m_mapMode <= 0)
        return;
    if (m_mapMode != MM_TEXT)
    {
        HDC const dc = ::GetDC(nullptr);
        int const saved = ::SetMapMode(dc, m_mapMode);
        ::LPtoDP(dc, &pt, 1);
        ::SetMapMode(dc, saved);
        ::ReleaseDC(nullptr, dc);
    }
    MoveTo(
        CPoint(std::clamp<LONG>(pt.x, 0, GetScrollLimit(SB_HORZ)), std::clamp<LONG>(pt.y, 0, GetScrollLimit(SB_VERT))));
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar)
{
    // Of the bar that is this view's alone, or shared with others; no other control's.
    if (pScrollBar != nullptr && pScrollBar->SendChildNotifyLastMsg())
        return;
    if (pScrollBar == GetScrollBarCtrl(SB_HORZ))
        OnScroll(MAKEWORD(nSBCode, 0xFF), nPos);
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar)
{
    if (pScrollBar != nullptr && pScrollBar->SendChildNotifyLastMsg())
        return;
    if (pScrollBar == GetScrollBarCtrl(SB_VERT))
        OnScroll(MAKEWORD(0xFF, nSBCode), nPos);
}

BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint)
{
    if ((nFlags & (MK_SHIFT | MK_CONTROL)) != 0 || m_mapMode <= 0)
        return FALSE;
    BOOL horizontal = FALSE;
    BOOL vertical = FALSE;
    CheckScrollBars(horizontal, vertical);
    if (!horizontal && !vertical)
        return FALSE;
    int const way = -zDelta * lines_a_wheel_step / WHEEL_DELTA;
    return OnScrollBy(vertical ? CSize(0, way * m_line.cy) : CSize(way * m_line.cx, 0));
}

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll)
{
    auto const place = [&](int bar, UINT code, int line, int page) {
        int at = GetScrollPos(bar);
        switch (code)
        {
        case SB_TOP:
            return 0;
        case SB_BOTTOM:
            return std::numeric_limits<int>::max();
        case SB_LINEUP:
            return at - line;
        case SB_LINEDOWN:
            return at + line;
        case SB_PAGEUP:
            return at - page;
        case SB_PAGEDOWN:
            return at + page;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION: {
            // The message's own number has 16 bits.
            SCROLLINFO info{};
            info.cbSize = sizeof info;
            return GetScrollInfo(bar, &info, SIF_TRACKPOS) && info.nTrackPos != 0 ? info.nTrackPos
                                                                                  : static_cast<int>(nPos);
        }
        default:
            return at;
        }
    };
    CPoint const former(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    CPoint const wanted(place(SB_HORZ, LOBYTE(nScrollCode), m_line.cx, m_page.cx),
                        place(SB_VERT, HIBYTE(nScrollCode), m_line.cy, m_page.cy));
    WindowGuard const guard(this);
    BOOL const result = OnScrollBy(CSize(wanted.x - former.x, wanted.y - former.y), bDoScroll);
    if (result && bDoScroll && guard.Alive())
        UpdateWindow();
    return result;
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll)
{
    // A view's own bar that isn't there leaves its direction alone.
    DWORD const style = GetStyle();
    auto const usable = [&](int bar, DWORD own) {
        CScrollBar const * const control = GetScrollBarCtrl(bar);
        return control != nullptr ? control->IsWindowEnabled() != FALSE : (style & own) != 0;
    };
    if (!usable(SB_HORZ, WS_HSCROLL))
        sizeScroll.cx = 0;
    if (!usable(SB_VERT, WS_VSCROLL))
        sizeScroll.cy = 0;
    CPoint const former(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    auto const along = [](LONG from, LONG way, int limit) {
        return static_cast<LONG>(std::clamp<long long>(static_cast<long long>(from) + way, 0, std::max(limit, 0)));
    };
    CPoint const place(along(former.x, sizeScroll.cx, GetScrollLimit(SB_HORZ)),
                       along(former.y, sizeScroll.cy, GetScrollLimit(SB_VERT)));
    if (place == former)
        return FALSE;
    if (!bDoScroll)
        return TRUE;
    WindowGuard const guard(this);
    ScrollWindow(former.x - place.x, former.y - place.y);
    if (guard.Alive() && place.x != former.x)
        SetScrollPos(SB_HORZ, place.x);
    if (guard.Alive() && place.y != former.y)
        SetScrollPos(SB_VERT, place.y);
    return TRUE;
}

void CScrollView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    if (nAdjustType != adjustOutside)
    {
        // A view would add scroll bars. NOLINTNEXTLINE(bugprone-parent-virtual-call)
        CWnd::CalcWindowRect(lpClientRect, nAdjustType);
        return;
    }
    // Only scroll bars that the whole needs in that room.
    CSize const room(lpClientRect->right - lpClientRect->left, lpClientRect->bottom - lpClientRect->top);
    ::AdjustWindowRectEx(lpClientRect, 0, FALSE, GetExStyle());
    if (m_mapMode <= 0)
        return;
    if (m_total.cy > room.cy)
        lpClientRect->right += ::GetSystemMetrics(SM_CXVSCROLL);
    if (m_total.cx > room.cx)
        lpClientRect->bottom += ::GetSystemMetrics(SM_CYHSCROLL);
}

void CScrollView::ResizeParentToFit(BOOL bShrinkOnly)
{
    ASSERT(m_mapMode != no_mode);
    CFrameWnd * const frame = GetParentFrame();
    if (frame == nullptr)
        return;
    CRect client;
    frame->GetClientRect(&client);
    CRect outer;
    frame->GetWindowRect(&outer);
    CRect own;
    GetWindowRect(&own);
    CRect inner;
    GetClientRect(&inner);
    // All that is around the view's client area stays.
    CSize const around(
        outer.Width() - inner.Width() - ((GetStyle() & WS_VSCROLL) != 0 ? ::GetSystemMetrics(SM_CXVSCROLL) : 0),
        outer.Height() - inner.Height() - ((GetStyle() & WS_HSCROLL) != 0 ? ::GetSystemMetrics(SM_CYHSCROLL) : 0));
    CSize wanted = m_total + around;
    if (bShrinkOnly)
    {
        wanted.cx = std::min<LONG>(wanted.cx, outer.Width());
        wanted.cy = std::min<LONG>(wanted.cy, outer.Height());
    }
    frame->SetWindowPos(nullptr, 0, 0, wanted.cx, wanted.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::FillOutsideRect(CDC * pDC, CBrush * pBrush)
{
    ASSERT_VALID(pDC);
    CRect client;
    GetClientRect(&client);
    CRect rect = client;
    rect.left = m_total.cx;
    if (!rect.IsRectEmpty())
        pDC->FillRect(&rect, pBrush);
    rect = client;
    rect.right = std::min<LONG>(m_total.cx, client.right);
    rect.top = m_total.cy;
    if (!rect.IsRectEmpty())
        pDC->FillRect(&rect, pBrush);
}
