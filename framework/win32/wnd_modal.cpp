// CWnd: modal loops, and offering messages to objects before they are dispatched.

#include "afxpriv.h"

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
constexpr UINT system_timer_message = 0x0118; // of carets and menus; undocumented by the system
} // namespace

BOOL framework::WalkPreTranslateTree(HWND last, MSG * message)
{
    for (HWND window = message->hwnd; window != nullptr; window = ::GetParent(window))
    {
        CWnd * const object = CWnd::FromHandlePermanent(window);
        if (object != nullptr && object->PreTranslateMessage(message))
            return TRUE;
        if (window == last)
            break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateMessage(MSG * pMsg)
{
    if (framework::CurrentThreadState().toolTipsEnabled)
        FilterToolTipMessage(pMsg);
    return FALSE;
}

int CWnd::RunModalLoop(DWORD dwFlags)
{
    ASSERT(::IsWindow(m_hWnd));
    ASSERT((m_nFlags & framework::wnd_modal_loop) == 0);
    bool showWhenIdle = (dwFlags & MLF_SHOWONIDLE) != 0 && (GetStyle() & WS_VISIBLE) == 0;
    HWND const parent = ::GetParent(m_hWnd);
    MSG & message = framework::CurrentThreadState().pumpedMessage;
    m_nFlags |= framework::wnd_modal_loop | framework::wnd_continue_modal;
    auto const show = [this, &showWhenIdle] {
        showWhenIdle = false;
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    };
    auto const finish = [this] {
        m_nFlags &= ~static_cast<UINT>(framework::wnd_modal_loop | framework::wnd_continue_modal);
        return m_nModalResult;
    };
    bool idle = true;
    LONG idleCount = 0;
    for (;;)
    {
        ASSERT(ContinueModal());
        while (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        {
            ASSERT(ContinueModal());
            if (showWhenIdle)
                show();
            if ((dwFlags & MLF_NOIDLEMSG) == 0 && parent != nullptr && idleCount == 0)
                ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
            if (!ContinueModal())
                break; // the window was destroyed by one of them
            if ((dwFlags & MLF_NOKICKIDLE) != 0 || SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, idleCount++) == 0)
                idle = false;
        }
        if (!ContinueModal())
            return finish();
        do
        {
            if (!AfxPumpMessage())
            {
                AfxPostQuitMessage(static_cast<int>(message.wParam)); // the outer loops end, too
                m_nFlags &= ~static_cast<UINT>(framework::wnd_modal_loop | framework::wnd_continue_modal);
                return -1;
            }
            if (showWhenIdle && (message.message == system_timer_message || message.message == WM_SYSKEYDOWN))
                show();
            if (!ContinueModal())
                return finish();
            if (AfxIsIdleMessage(&message))
            {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWnd::ContinueModal()
{
    return (m_nFlags & framework::wnd_continue_modal) != 0;
}

void CWnd::EndModalLoop(int nResult)
{
    ASSERT(::IsWindow(m_hWnd));
    m_nModalResult = nResult;
    if ((m_nFlags & framework::wnd_continue_modal) == 0)
        return;
    m_nFlags &= ~static_cast<UINT>(framework::wnd_continue_modal);
    PostMessage(WM_NULL); // wakes the loop
}

void CWnd::BeginModalState()
{
    ::EnableWindow(m_hWnd, FALSE);
}

void CWnd::EndModalState()
{
    ::EnableWindow(m_hWnd, TRUE);
}
