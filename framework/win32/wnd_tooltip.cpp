// CWnd: tool tips of windows that asked for them. One tip control serves a thread; it has at most one tool, the one
// that the cursor is over.

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
constexpr UINT both_flags = framework::wnd_tool_tips | framework::wnd_tracking_tool_tips;

bool IsMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE || message == WM_LBUTTONUP || message == WM_RBUTTONUP ||
           message == WM_MBUTTONUP;
}

bool IsPress(UINT message)
{
    return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_RBUTTONDOWN ||
           message == WM_RBUTTONDBLCLK || message == WM_MBUTTONDOWN || message == WM_MBUTTONDBLCLK ||
           message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK || message == WM_NCRBUTTONDOWN ||
           message == WM_NCRBUTTONDBLCLK || message == WM_NCMBUTTONDOWN || message == WM_NCMBUTTONDBLCLK;
}

bool IsKey(UINT message)
{
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

bool NoButtonIsDown()
{
    return ::GetKeyState(VK_LBUTTON) >= 0 && ::GetKeyState(VK_RBUTTON) >= 0 && ::GetKeyState(VK_MBUTTON) >= 0;
}

LRESULT Send(framework::ThreadState const & state, UINT message, WPARAM wParam, void const * lParam)
{
    return ::SendMessage(state.toolTip, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

/// As the control of the common controls before version 6 takes it.
TOOLINFOW ForControl(TOOLINFOW tool)
{
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    return tool;
}

void Relay(framework::ThreadState const & state, MSG const & original)
{
    MSG message = original;
    // The control knows its tools by their windows' client coordinates.
    if (message.hwnd != state.toolTipTool.hwnd && message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST)
    {
        POINT point{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
        bool const window = (state.toolTipTool.uFlags & TTF_IDISHWND) != 0;
        if (!window)
        {
            ::MapWindowPoints(message.hwnd, state.toolTipTool.hwnd, &point, 1);
            message.hwnd = state.toolTipTool.hwnd;
            message.lParam = MAKELPARAM(point.x, point.y);
        }
    }
    Send(state, TTM_RELAYEVENT, 0, &message);
}

void DeleteTool(framework::ThreadState & state)
{
    if (state.toolTipTool.cbSize == 0)
        return;
    TOOLINFOW const tool = ForControl(state.toolTipTool);
    if (::IsWindow(state.toolTip))
        Send(state, TTM_DELTOOL, 0, &tool);
    state.toolTipTool = {};
}

void DestroyControl(framework::ThreadState & state)
{
    if (::IsWindow(state.toolTip))
        ::DestroyWindow(state.toolTip);
    state.toolTip = nullptr;
    state.toolTipParent = nullptr;
    state.toolTipTool = {};
    state.toolTipWindow = nullptr;
    state.toolTipHit = -1;
}

bool PrepareControl(framework::ThreadState & state, HWND parent)
{
    if (state.toolTip != nullptr && state.toolTipParent == parent && ::IsWindow(state.toolTip))
        return true;
    DestroyControl(state);
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    state.toolTip =
        ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                         CW_USEDEFAULT, CW_USEDEFAULT, parent, nullptr, AfxGetInstanceHandle(), nullptr);
    if (state.toolTip == nullptr)
        return false;
    state.toolTipParent = parent;
    Send(state, TTM_ACTIVATE, FALSE, nullptr);
    return true;
}

bool IsInActiveWindow(HWND window)
{
    HWND const top = ::GetAncestor(window, GA_ROOT);
    HWND const active = ::GetForegroundWindow();
    return active == top || ::GetLastActivePopup(top) == active;
}

/// The visible child at a point of the window's client area, topmost first. Children with the id -1 are only
/// decoration.
HWND ChildAt(HWND window, POINT point)
{
    ::ClientToScreen(window, &point);
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        RECT place{};
        ::GetWindowRect(child, &place);
        bool const visible = (::GetWindowLongPtr(child, GWL_STYLE) & WS_VISIBLE) != 0;
        if (visible && static_cast<WORD>(::GetDlgCtrlID(child)) != 0xFFFF && ::PtInRect(&place, point))
            return child;
    }
    return nullptr;
}
} // namespace

BOOL CWnd::SetToolTipFlag(BOOL bEnable, UINT flag)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (bEnable)
    {
        m_nFlags |= flag;
        state.toolTipsEnabled = true;
        return TRUE;
    }
    if ((m_nFlags & flag) == 0)
        return TRUE;
    m_nFlags &= ~flag;
    if ((m_nFlags & both_flags) == 0 && (state.toolTipWindow == this || state.toolTipParent == m_hWnd))
        DestroyControl(state);
    return TRUE;
}

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    return SetToolTipFlag(bEnable, framework::wnd_tool_tips);
}

BOOL CWnd::EnableTrackingToolTips(BOOL bEnable)
{
    return SetToolTipFlag(bEnable, framework::wnd_tracking_tool_tips);
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    framework::ThreadState const & state = framework::CurrentThreadState();
    if (state.toolTip != nullptr && ::IsWindow(state.toolTip))
        Send(state, TTM_ACTIVATE, FALSE, nullptr);
}

void CWnd::FilterToolTipMessage(MSG * pMsg)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (!IsMove(pMsg->message) || !NoButtonIsDown())
    {
        bool const ends = IsKey(pMsg->message) || IsPress(pMsg->message);
        if ((m_nFlags & framework::wnd_tool_tips) != 0 && ends)
            CancelToolTips(IsKey(pMsg->message));
        return;
    }
    HWND enabled = pMsg->hwnd;
    CWnd * window = nullptr;
    for (; enabled != nullptr; enabled = ::GetParent(enabled))
    {
        window = FromHandlePermanent(enabled);
        if (window != nullptr && (window->m_nFlags & both_flags) != 0)
            break;
        window = nullptr;
    }
    if (window == nullptr)
    {
        state.toolTipWindow = nullptr;
        state.toolTipHit = -1;
    }
    if (window != this)
        return;

    CPoint point(pMsg->pt);
    ::ScreenToClient(m_hWnd, &point);
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    INT_PTR const hit = OnToolHitTest(point, &tool);
    bool const tracking = (m_nFlags & framework::wnd_tracking_tool_tips) != 0;
    if (hit == state.toolTipHit && state.toolTipWindow == this)
    {
        if (hit == -1)
            return;
        if (tracking)
            Send(state, TTM_TRACKPOSITION, 0, reinterpret_cast<void *>(MAKELPARAM(pMsg->pt.x, pMsg->pt.y)));
        else
            Relay(state, *pMsg);
        return;
    }
    if (hit == -1)
    {
        if (state.toolTip != nullptr)
        {
            Send(state, TTM_ACTIVATE, FALSE, nullptr);
            DeleteTool(state);
        }
    }
    else if (PrepareControl(state, m_hWnd))
    {
        DeleteTool(state);
        tool.uFlags &= ~static_cast<UINT>(TTF_SUBCLASS);
        if (tracking)
            tool.uFlags |= TTF_TRACK | TTF_ABSOLUTE;
        TOOLINFOW const added = ForControl(tool);
        Send(state, TTM_ADDTOOL, 0, &added);
        state.toolTipTool = tool;
        if (IsInActiveWindow(m_hWnd))
        {
            Send(state, TTM_ACTIVATE, TRUE, nullptr);
            ::SetWindowPos(state.toolTip, HWND_TOP, 0, 0, 0, 0,
                           SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
        }
        if (tracking)
        {
            Send(state, TTM_TRACKPOSITION, 0, reinterpret_cast<void *>(MAKELPARAM(pMsg->pt.x, pMsg->pt.y)));
            Send(state, TTM_TRACKACTIVATE, TRUE, &added);
        }
        else
            Relay(state, *pMsg);
    }
    state.toolTipWindow = this;
    state.toolTipHit = hit;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO * pTI) const
{
    HWND const child = ChildAt(m_hWnd, point);
    if (child == nullptr)
        return -1;
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE)
    {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        if ((::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
            pTI->uFlags |= TTF_CENTERTIP;
    }
    return static_cast<WORD>(::GetDlgCtrlID(child));
}
