// CRectTracker: a rectangle that the user moves and resizes.

#include <afxext.h>

#include <algorithm>

#include "detail/FrameSupport.h"
#include "detail/WndAccess.h"

using framework::WindowGuard;

namespace
{
/// The sides of the rectangle that move with each handle. The middle moves all.
struct Sides
{
    bool left;
    bool top;
    bool right;
    bool bottom;
};

constexpr Sides sides_of[] = {
    {true, true, false, false},  // top left
    {false, true, true, false},  // top right
    {false, false, true, true},  // bottom right
    {true, false, false, true},  // bottom left
    {false, true, false, false}, // top
    {false, false, true, false}, // right
    {false, false, false, true}, // bottom
    {true, false, false, false}, // left
    {true, true, true, true}     // middle
};

constexpr int handle_count = CRectTracker::hitLeft + 1;
constexpr int default_handle_size = 4;

/// The handle with these sides mirrored.
int Mirrored(int handle, bool horizontally, bool vertically)
{
    Sides sides = sides_of[handle];
    if (horizontally)
        std::swap(sides.left, sides.right);
    if (vertically)
        std::swap(sides.top, sides.bottom);
    for (int at = 0; at < handle_count; ++at)
    {
        Sides const & other = sides_of[at];
        if (other.left == sides.left && other.top == sides.top && other.right == sides.right &&
            other.bottom == sides.bottom)
            return at;
    }
    return handle;
}

LPCTSTR CursorOf(int handle)
{
    switch (handle)
    {
    case CRectTracker::hitTopLeft:
    case CRectTracker::hitBottomRight:
        return IDC_SIZENWSE;
    case CRectTracker::hitTopRight:
    case CRectTracker::hitBottomLeft:
        return IDC_SIZENESW;
    case CRectTracker::hitTop:
    case CRectTracker::hitBottom:
        return IDC_SIZENS;
    case CRectTracker::hitLeft:
    case CRectTracker::hitRight:
        return IDC_SIZEWE;
    default:
        return IDC_SIZEALL;
    }
}
} // namespace

CRectTracker::CRectTracker() : CRectTracker(CRect(0, 0, 0, 0), 0) {}

CRectTracker::CRectTracker(LPCRECT lpSrcRect, UINT nStyle)
    : m_nStyle(nStyle),
      m_rect(lpSrcRect),
      m_sizeMin(2 * default_handle_size, 2 * default_handle_size),
      m_nHandleSize(default_handle_size),
      m_allowInvert(false),
      m_erase(false),
      m_rectLast(0, 0, 0, 0),
      m_drawn(false)
{
}

CRectTracker::~CRectTracker() = default;

int CRectTracker::HandleSize(LPCRECT rect) const
{
    if (rect == nullptr)
        rect = &m_rect;
    if ((m_nStyle & resizeOutside) != 0)
        return m_nHandleSize;
    // Handles inside leave a third of a small rectangle to be moved by.
    int const width = std::abs(rect->right - rect->left);
    int const height = std::abs(rect->bottom - rect->top);
    return std::min(m_nHandleSize, std::max(std::min(width, height) / 3, 1));
}

CRect CRectTracker::HandleRect(int handle) const
{
    CRect outer;
    GetTrueRect(&outer);
    if ((m_nStyle & (resizeInside | resizeOutside)) == 0)
        outer.InflateRect(m_nHandleSize - 1, m_nHandleSize - 1);
    int const size = HandleSize(nullptr);
    Sides const & sides = sides_of[handle];
    int const x = sides.left ? outer.left : sides.right ? outer.right - size : (outer.left + outer.right - size) / 2;
    int const y = sides.top ? outer.top : sides.bottom ? outer.bottom - size : (outer.top + outer.bottom - size) / 2;
    return CRect(x, y, x + size, y + size);
}

void CRectTracker::GetTrueRect(LPRECT lpTrueRect) const
{
    CRect rect(m_rect);
    rect.NormalizeRect();
    int inflate = 0;
    if ((m_nStyle & (resizeOutside | hatchedBorder)) != 0)
        inflate = HandleSize(nullptr) - 1;
    rect.InflateRect(inflate, inflate);
    *lpTrueRect = rect;
}

UINT CRectTracker::GetHandleMask() const
{
    UINT mask = 0x0F; // the corners, and sides that are long enough for a handle between them
    int const needed = 3 * HandleSize(nullptr);
    if (std::abs(m_rect.Width()) - needed > 4)
        mask |= (1U << hitTop) | (1U << hitBottom);
    if (std::abs(m_rect.Height()) - needed > 4)
        mask |= (1U << hitLeft) | (1U << hitRight);
    return mask;
}

int CRectTracker::HitHandle(CPoint point) const
{
    UINT const mask = GetHandleMask();
    for (int handle = 0; handle < handle_count; ++handle)
    {
        if ((mask & (1U << handle)) != 0 && HandleRect(handle).PtInRect(point))
            return handle;
    }
    return hitNothing;
}

int CRectTracker::HitTest(CPoint point) const
{
    CRect rect;
    GetTrueRect(&rect);
    if ((m_nStyle & (resizeInside | resizeOutside)) != 0)
    {
        int const handle = HitHandle(point);
        if (handle != hitNothing)
            return handle;
    }
    return rect.PtInRect(point) ? hitMiddle : hitNothing;
}

int CRectTracker::NormalizeHit(int nHandle) const
{
    if (nHandle < 0 || nHandle >= handle_count)
        return nHandle;
    return Mirrored(nHandle, m_rect.Width() < 0, m_rect.Height() < 0);
}

BOOL CRectTracker::SetCursor(CWnd * pWnd, UINT nHitTest) const
{
    if (nHitTest != HTCLIENT)
        return FALSE;
    CPoint point;
    ::GetCursorPos(&point);
    pWnd->ScreenToClient(&point);
    int const handle = HitTest(point);
    if (handle == hitNothing)
        return FALSE;
    // A hit by the place needs no turning: the handles are those of the upright rectangle.
    ::SetCursor(::LoadCursor(nullptr, CursorOf(handle)));
    return TRUE;
}

void CRectTracker::Draw(CDC * pDC) const
{
    int const state = pDC->SaveDC();
    CRect rect(m_rect);
    rect.NormalizeRect();
    if ((m_nStyle & (solidLine | dottedLine)) != 0)
    {
        CPen pen((m_nStyle & dottedLine) != 0 ? PS_DOT : PS_SOLID, 0, ::GetSysColor(COLOR_WINDOWTEXT));
        CPen * const oldPen = pDC->SelectObject(&pen);
        CGdiObject * const oldBrush = pDC->SelectStockObject(NULL_BRUSH);
        pDC->SetBkMode(TRANSPARENT);
        CRect line(rect);
        line.InflateRect(1, 1);
        pDC->Rectangle(&line);
        pDC->SelectObject(oldBrush);
        pDC->SelectObject(oldPen);
    }
    if ((m_nStyle & (hatchInside | hatchedBorder)) != 0)
    {
        CBrush hatch;
        hatch.CreateHatchBrush(HS_BDIAGONAL, ::GetSysColor(COLOR_WINDOWTEXT));
        pDC->SetBkMode(TRANSPARENT);
        int const hatched = pDC->SaveDC();
        if ((m_nStyle & hatchInside) == 0)
            pDC->ExcludeClipRect(&rect);
        CRect outer;
        GetTrueRect(&outer);
        pDC->FillRect((m_nStyle & hatchedBorder) != 0 ? &outer : &rect, &hatch);
        pDC->RestoreDC(hatched);
    }
    if ((m_nStyle & (resizeInside | resizeOutside)) != 0)
    {
        UINT const mask = GetHandleMask();
        for (int handle = 0; handle < handle_count; ++handle)
        {
            if ((mask & (1U << handle)) != 0)
                pDC->FillSolidRect(HandleRect(handle), ::GetSysColor(COLOR_WINDOWTEXT));
        }
    }
    pDC->RestoreDC(state);
}

BOOL CRectTracker::Track(CWnd * pWnd, CPoint point, BOOL bAllowInvert, CWnd * pWndClipTo)
{
    int const handle = HitTest(point);
    if (handle == hitNothing)
        return FALSE;
    m_allowInvert = bAllowInvert != FALSE;
    return TrackHandle(handle, pWnd, point, pWndClipTo);
}

BOOL CRectTracker::TrackRubberBand(CWnd * pWnd, CPoint point, BOOL bAllowInvert)
{
    m_allowInvert = bAllowInvert != FALSE;
    m_rect.SetRect(point, point);
    return TrackHandle(hitBottomRight, pWnd, point, nullptr);
}

void CRectTracker::Follow(int handle, CPoint point, CRect const & start, CPoint from)
{
    CSize const moved = point - from;
    Sides const & sides = sides_of[handle];
    CRect rect(start);
    if (sides.left)
        rect.left += moved.cx;
    if (sides.right)
        rect.right += moved.cx;
    if (sides.top)
        rect.top += moved.cy;
    if (sides.bottom)
        rect.bottom += moved.cy;
    if (!m_allowInvert && handle != hitMiddle)
    {
        // It keeps its least size; the side that moves stops.
        if (sides.left)
            rect.left = std::min<LONG>(rect.left, rect.right - m_sizeMin.cx);
        if (sides.right)
            rect.right = std::max<LONG>(rect.right, rect.left + m_sizeMin.cx);
        if (sides.top)
            rect.top = std::min<LONG>(rect.top, rect.bottom - m_sizeMin.cy);
        if (sides.bottom)
            rect.bottom = std::max<LONG>(rect.bottom, rect.top + m_sizeMin.cy);
    }
    m_rect = rect;
    AdjustRect(handle, &m_rect);
}

BOOL CRectTracker::TrackHandle(int handle, CWnd * window, CPoint point, CWnd * clipTo)
{
    if (::GetCapture() != nullptr)
        return FALSE;
    CRect const start(m_rect);
    WindowGuard const guard(window);
    WindowGuard const clip(clipTo != nullptr ? clipTo : window);
    HWND const handleOfWindow = window->m_hWnd;
    m_drawn = false;
    bool moved = false;
    bool finished = false;
    window->SetCapture();
    window->UpdateWindow();
    if (clipTo != nullptr && clip.Alive())
        clipTo->UpdateWindow();
    // A device context lives no longer than its window, and messages can end that; so each drawing takes its own.
    auto const show = [&](bool erase) {
        if (!guard.Alive() || !clip.Alive())
            return;
        CWnd * const target = clipTo != nullptr ? clipTo : window;
        CClientDC dc(target);
        m_erase = erase;
        DrawTrackerRect(&m_rect, clipTo, &dc, window);
    };
    while (::GetCapture() == handleOfWindow)
    {
        MSG message{};
        if (::GetMessage(&message, nullptr, 0, 0) <= 0)
        {
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
            break;
        }
        bool ended = false;
        switch (message.message)
        {
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE: {
            if (!guard.Alive())
                break;
            CPoint at(static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam)));
            if (message.hwnd != handleOfWindow)
                ::MapWindowPoints(message.hwnd, handleOfWindow, &at, 1);
            CRect const before(m_rect);
            Follow(handle, at, start, point);
            CRect const now(m_rect);
            finished = message.message == WM_LBUTTONUP;
            ended = finished;
            if (now != before || ended)
            {
                if (moved)
                {
                    m_rect = before;
                    show(true);
                    m_rect = now;
                }
                if (now != before)
                {
                    OnChangedRect(before);
                    moved = true;
                }
                if (!ended)
                    show(false);
            }
            break;
        }
        case WM_KEYDOWN:
            if (message.wParam != VK_ESCAPE)
                break;
            [[fallthrough]];
        case WM_RBUTTONDOWN:
            ended = true;
            break;
        default:
            ::DispatchMessage(&message);
            break;
        }
        if (ended)
            break;
    }
    bool const captured = ::GetCapture() == handleOfWindow;
    if (moved && m_drawn)
        show(true);
    if (captured)
        ::ReleaseCapture();
    // Escape, another button and a capture that was taken away leave it as it was.
    if (!finished || !moved)
    {
        m_rect = start;
        return FALSE;
    }
    return m_rect != start;
}

void CRectTracker::DrawTrackerRect(LPCRECT lpRect, CWnd * pWndClipTo, CDC * pDC, CWnd * pWnd)
{
    CRect rect(lpRect);
    rect.NormalizeRect();
    if (pWndClipTo != nullptr)
        pWnd->MapWindowPoints(pWndClipTo, &rect);
    // The drawing is its own eraser.
    if (m_drawn)
    {
        pDC->DrawFocusRect(&m_rectLast);
        m_drawn = false;
    }
    if (m_erase || rect.IsRectEmpty())
        return;
    pDC->DrawFocusRect(&rect);
    m_rectLast = rect;
    m_drawn = true;
}

void CRectTracker::AdjustRect(int, LPRECT) {}

void CRectTracker::OnChangedRect(const CRect &) {}
