#include "list/table/XTableEdit.h"

#include "frame/InternalMessages.h"

BOOL CXTableEdit::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN && message->hwnd == m_hWnd && TakesKey(message->wParam))
        return TRUE;
    return CXEdit::PreTranslateMessage(message);
}

LRESULT CXTableEdit::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_GETDLGCODE:
        // In a dialog, too, these keys are the edit's.
        return CXEdit::WindowProc(message, wParam, lParam) | DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
        if (TakesKey(wParam))
            return 0;
        break;
    case WM_CHAR:
        if (wParam == VK_TAB)
            return 0;
        break;
    default:
        break;
    }
    return CXEdit::WindowProc(message, wParam, lParam);
}

bool CXTableEdit::TakesKey(WPARAM key)
{
    switch (key)
    {
    case VK_TAB:
        m_way = ::GetKeyState(VK_SHIFT) < 0 ? Way::back : Way::forth;
        SendClosing(WM_XEDIT_KILL_FOCUS);
        return true;
    case VK_RETURN:
        m_way = Way::stay;
        SendClosing(WM_XEDIT_KILL_FOCUS);
        return true;
    case VK_ESCAPE:
        SendClosing(WM_XEDIT_VK_ESCAPE);
        return true;
    default:
        // Another end than by Tab leads nowhere.
        m_way = Way::stay;
        return false;
    }
}
