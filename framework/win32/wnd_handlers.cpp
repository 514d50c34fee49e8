// CWnd: the handlers of the single messages.

#include "afxpriv.h"

#include "detail/FrameSupport.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
constexpr UINT max_touch_inputs = 256;
} // namespace

void CWnd::HandleActivate(WPARAM wParam, LPARAM lParam)
{
    if ((GetStyle() & WS_CHILD) != 0)
        return;
    CWnd * const top = GetTopLevelParent();
    CWnd * const other = FromHandle(reinterpret_cast<HWND>(lParam));
    if (top == nullptr)
        return;
    if (other != nullptr && ::IsWindow(other->m_hWnd) && top == other->GetTopLevelParent())
        return;
    HWND windows[2] = {m_hWnd, framework::SafeHandle(other)};
    top->SendMessage(WM_ACTIVATETOPLEVEL, LOWORD(wParam), reinterpret_cast<LPARAM>(windows));
}

BOOL CWnd::HandleSetCursor(LPARAM lParam)
{
    // A press on a window that a modal one disables brings the modal one to the top.
    UINT const mouse = HIWORD(lParam);
    bool const press = mouse == WM_LBUTTONDOWN || mouse == WM_MBUTTONDOWN || mouse == WM_RBUTTONDOWN;
    if (static_cast<short>(LOWORD(lParam)) != HTERROR || !press)
        return FALSE;
    CWnd * const top = GetTopLevelParent();
    CWnd * const popup = top != nullptr ? top->GetLastActivePopup() : nullptr;
    if (popup == nullptr || popup->m_hWnd == ::GetActiveWindow() || popup->m_hWnd == top->m_hWnd ||
        !popup->IsWindowEnabled())
        return FALSE;
    popup->SetForegroundWindow();
    return TRUE;
}

void CWnd::ForwardToDescendants()
{
    if ((GetStyle() & WS_CHILD) != 0)
        return;
    MSG const message = *GetCurrentMessage();
    SendMessageToDescendants(message.message, message.wParam, message.lParam, TRUE, TRUE);
}

LRESULT CWnd::OnDisplayChange(WPARAM, LPARAM)
{
    framework::WindowGuard const guard(this);
    ForwardToDescendants();
    return guard.Alive() ? Default() : 0;
}

void CWnd::OnSysColorChange()
{
    framework::WindowGuard const guard(this);
    ForwardToDescendants();
    if (guard.Alive())
        Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    framework::WindowGuard const guard(this);
    ForwardToDescendants();
    if (guard.Alive())
        Default();
}

void CWnd::OnWinIniChange(LPCTSTR)
{
    Default();
}

BOOL CWnd::OnHelpInfo(HELPINFO *)
{
    if ((GetStyle() & WS_CHILD) == 0)
    {
        CWnd * const main = AfxGetMainWnd();
        bool const plain =
            ::GetKeyState(VK_SHIFT) >= 0 && ::GetKeyState(VK_CONTROL) >= 0 && ::GetKeyState(VK_MENU) >= 0;
        if (main != nullptr && plain)
        {
            main->SendMessage(WM_COMMAND, ID_HELP);
            return TRUE;
        }
    }
    return static_cast<BOOL>(Default());
}

LRESULT CWnd::OnTouchMessage(WPARAM wParam, LPARAM lParam)
{
    UINT const count = LOWORD(wParam);
    TOUCHINPUT inputs[max_touch_inputs];
    auto const handle = reinterpret_cast<HTOUCHINPUT>(lParam);
    if (count == 0 || count > max_touch_inputs ||
        !::GetTouchInputInfo(handle, count, inputs, static_cast<int>(sizeof(TOUCHINPUT))))
        return Default();
    if (!OnTouchInputs(count, inputs))
        return Default();
    ::CloseTouchInputHandle(handle);
    return 0;
}

BOOL CWnd::OnTouchInputs(UINT nInputsCount, PTOUCHINPUT pInputs)
{
    BOOL handled = TRUE;
    for (UINT input = 0; input < nInputsCount; ++input)
    {
        // Touch coordinates are hundredths of a pixel, on the screen.
        CPoint point(pInputs[input].x / 100, pInputs[input].y / 100);
        ScreenToClient(&point);
        if (!OnTouchInput(point, static_cast<int>(input), static_cast<int>(nInputsCount), pInputs + input))
            handled = FALSE;
    }
    return handled;
}

BOOL CWnd::OnTouchInput(CPoint, int, int, PTOUCHINPUT)
{
    return FALSE;
}

void CWnd::OnPaint()
{
    Default();
}
