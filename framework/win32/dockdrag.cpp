// Drags of panes and dividers.

#include "detail/DockDrag.h"

#include "afxcontrolbars.h"

#include <algorithm>

#include "detail/FrameSupport.h"

namespace framework
{
namespace
{
constexpr UINT cancel_message = WM_USER + 1;
DockDrag * withKeys = nullptr; // of the drag that runs; there is one mouse

CPoint CursorPosition()
{
    // The message's place, not where the mouse is by now.
    DWORD const position = ::GetMessagePos();
    return CPoint(static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position)));
}
} // namespace

DockDrag::DockDrag(DockHost & host) : m_host(host) {}

DockDrag::~DockDrag()
{
    Stop();
    if (m_hWnd != nullptr)
        DestroyWindow();
}

bool DockDrag::Start(Kind kind, CPoint screen)
{
    Stop();
    LPCTSTR const className = AfxRegisterWndClass(CS_SAVEBITS, ::LoadCursor(nullptr, IDC_ARROW));
    if (m_hWnd == nullptr && !CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, className, L"", WS_POPUP, 0,
                                       0, 1, 1, m_host.Frame().m_hWnd, nullptr))
        return false;
    m_kind = kind;
    m_start = screen;
    m_moved = false;
    m_landing = DockLanding();
    m_shape = DockLanding::Kind::none;
    withKeys = this;
    m_keys = ::SetWindowsHookEx(WH_KEYBOARD, OnKey, nullptr, ::GetCurrentThreadId());
    return true;
}

void DockDrag::StartPanes(DockContent const & content, CPoint screen)
{
    if (!Start(Kind::panes, screen))
        return;
    m_content = content;
    CRect rect(screen, CSize(0, 0));
    if (content.frame != 0)
    {
        if (CPaneFrameWnd const * const frame = m_host.MiniFrame(content.frame))
            frame->GetWindowRect(&rect);
    }
    else if (CDockablePane const * const pane = m_host.Pane(content.panes.front()))
        pane->GetWindowRect(&rect);
    m_grip = screen - rect.TopLeft();
    m_grip.x = std::max<LONG>(m_grip.x, 0);
    m_grip.y = std::max<LONG>(m_grip.y, 0);
    SetCapture(); // whoever loses it may end the host
}

void DockDrag::StartDivider(CPaneDivider & divider, CPoint screen)
{
    if (!Start(Kind::divider, screen))
        return;
    m_divider = &divider;
    ::SetCursor(::LoadCursor(nullptr, divider.IsHorizontal() ? IDC_SIZENS : IDC_SIZEWE));
    SetCapture();
}

void DockDrag::StartButton(CDockablePane & pane, UINT hit)
{
    if (!Start(Kind::button, CursorPosition()))
        return;
    m_button = pane.m_hWnd;
    m_hit = hit;
    SetCapture();
}

void DockDrag::PaneEnds(UINT pane)
{
    bool const moved = m_kind == Kind::panes && m_content.frame == 0 &&
                       std::find(m_content.panes.begin(), m_content.panes.end(), pane) != m_content.panes.end();
    if (moved || m_kind == Kind::divider)
        Cancel();
}

void DockDrag::Stop()
{
    m_kind = Kind::none;
    m_divider = nullptr;
    if (m_keys != nullptr)
        ::UnhookWindowsHookEx(std::exchange(m_keys, nullptr));
    if (withKeys == this)
        withKeys = nullptr;
    if (m_hWnd == nullptr)
        return;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
    ::ShowWindow(m_hWnd, SW_HIDE);
}

void DockDrag::Cancel()
{
    Stop();
}

LRESULT CALLBACK DockDrag::OnKey(int code, WPARAM wParam, LPARAM lParam)
{
    constexpr LPARAM released = LPARAM{1} << 31;
    if (code != HC_ACTION || withKeys == nullptr)
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    if (wParam == VK_ESCAPE)
    {
        if ((lParam & released) == 0)
            ::PostMessage(withKeys->m_hWnd, cancel_message, 0, 0);
        return 1;
    }
    if (wParam == VK_CONTROL)
        ::PostMessage(withKeys->m_hWnd, WM_MOUSEMOVE, 0, 0); // it changes where the drag ends
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT DockDrag::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_MOUSEMOVE: {
        CPoint screen;
        ::GetCursorPos(&screen);
        Follow(screen);
        return 0;
    }
    case WM_LBUTTONUP:
        Finish(CursorPosition());
        return 0; // the object may have ended
    case WM_CAPTURECHANGED:
        if (reinterpret_cast<HWND>(lParam) != m_hWnd)
            Cancel();
        return 0;
    case cancel_message:
    case WM_RBUTTONDOWN:
        Cancel();
        return 0;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ERASEBKGND: {
        CRect rect;
        GetClientRect(&rect);
        HBRUSH const brush = ::GetSysColorBrush(COLOR_HIGHLIGHT);
        ::FillRect(reinterpret_cast<HDC>(wParam), &rect, brush);
        return 1;
    }
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
}

CRect DockDrag::DividerAt(CPoint screen) const
{
    CRect rect;
    m_divider->GetWindowRect(&rect);
    CPoint const offset = screen - m_start;
    int const length = m_divider->IsHorizontal() ? offset.y : offset.x;
    int const moved = m_host.TryDivider(*m_divider, length);
    rect.OffsetRect(m_divider->IsHorizontal() ? 0 : moved, m_divider->IsHorizontal() ? moved : 0);
    return rect;
}

void DockDrag::Follow(CPoint screen)
{
    if (m_kind == Kind::none || m_kind == Kind::button)
        return;
    if (!m_moved && std::abs(screen.x - m_start.x) < ::GetSystemMetrics(SM_CXDRAG) &&
        std::abs(screen.y - m_start.y) < ::GetSystemMetrics(SM_CYDRAG))
        return;
    m_moved = true;
    if (m_kind == Kind::divider)
    {
        ShowAt(DividerAt(screen), DockLanding::Kind::none);
        return;
    }
    m_landing = m_host.FindLanding(m_content, screen, m_grip, ::GetKeyState(VK_CONTROL) < 0);
    if (m_landing.kind == DockLanding::Kind::none)
        ::ShowWindow(m_hWnd, SW_HIDE);
    else
        ShowAt(m_landing.rect, m_landing.kind);
}

void DockDrag::ShowAt(CRect const & rect, DockLanding::Kind shape)
{
    if (rect == m_shown && shape == m_shape && IsWindowVisible())
        return;
    m_shown = rect;
    m_shape = shape;
    // A hollow frame shows what is below it, also where windows can't be blended; a divider is a bar.
    CRect const whole(CPoint(0, 0), rect.Size());
    int const line = std::max(2, m_host.Sizes().gap);
    HRGN const region = ::CreateRectRgn(0, 0, whole.right, whole.bottom);
    if (shape != DockLanding::Kind::none)
    {
        CRect body(whole);
        int const tab = std::min(m_host.Sizes().tabs, whole.Height() / 3);
        HRGN const part = ::CreateRectRgn(0, 0, 0, 0);
        if (shape == DockLanding::Kind::tab)
        {
            // With a tab at its lower edge.
            body.bottom -= tab;
            int const width = std::min(4 * tab, whole.Width() / 2);
            ::SetRectRgn(part, width, body.bottom, whole.right, whole.bottom);
            ::CombineRgn(region, region, part, RGN_DIFF);
            ::SetRectRgn(part, line, body.bottom - line, width - line, whole.bottom - line);
            ::CombineRgn(region, region, part, RGN_DIFF);
        }
        ::SetRectRgn(part, line, line, whole.right - line, body.bottom - line);
        ::CombineRgn(region, region, part, RGN_DIFF);
        ::DeleteObject(part);
    }
    ::SetWindowRgn(m_hWnd, region, FALSE);
    ::SetWindowPos(m_hWnd, HWND_TOPMOST, rect.left, rect.top, rect.Width(), rect.Height(),
                   SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOCOPYBITS);
    ::InvalidateRect(m_hWnd, nullptr, TRUE);
    ::UpdateWindow(m_hWnd);
}

void DockDrag::Finish(CPoint screen)
{
    Kind const kind = m_kind;
    if (kind == Kind::none)
        return;
    Follow(screen);
    bool const moved = m_moved;
    DockContent const content = m_content;
    DockLanding const landing = m_landing;
    CPaneDivider * const divider = m_divider;
    HWND const button = m_button;
    UINT const hit = m_hit;
    CPoint const offset = screen - m_start;
    DockHost & host = m_host;
    Stop();
    switch (kind)
    {
    case Kind::panes:
        if (moved)
            host.Land(content, landing);
        break;
    case Kind::divider:
        if (moved && divider != nullptr)
            host.MoveDivider(*divider, divider->IsHorizontal() ? offset.y : offset.x);
        break;
    case Kind::button: {
        auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(button));
        if (pane != nullptr && static_cast<UINT>(pane->HitTest(screen)) == hit)
            pane->OnPressButtons(hit);
        break;
    }
    default:
        break;
    }
}
} // namespace framework
