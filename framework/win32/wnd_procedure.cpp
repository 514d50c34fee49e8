// CWnd: the window procedure, its exceptions, and the end of a window.

#include "afxpriv.h"

#include <exception>

#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

namespace
{
/// An exception of the standard library, as the framework passes exceptions on.
class ForeignException : public CException
{
public:
    explicit ForeignException(char const * text) : m_text(text) {}

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const override
    {
        if (pnHelpContext != nullptr)
            *pnHelpContext = 0;
        if (nMaxError == 0)
            return FALSE;
        ::lstrcpyn(lpszError, m_text, static_cast<int>(nMaxError));
        return !m_text.IsEmpty();
    }
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) override
    {
        return static_cast<ForeignException const *>(this)->GetErrorMessage(lpszError, nMaxError, pnHelpContext);
    }

private:
    CString m_text;
};

/// What the window procedure answers after its handler threw. The exception is deleted.
LRESULT AnswerException(CException * exception, MSG const & message)
{
    LRESULT result = 0;
    try
    {
        CWinThread * thread = AfxGetThread();
        if (thread == nullptr)
            thread = AfxGetApp();
        if (thread != nullptr)
            result = thread->ProcessWndProcException(exception, &message);
        else
            framework::ReportHandlerException(*exception, message);
        exception->Delete();
    }
    catch (...)
    {
        // An exception while reporting one: nothing may leave a window procedure.
    }
    return result;
}

LRESULT AnswerForeignException(char const * text, MSG const & message)
{
    return AnswerException(new ForeignException(text), message);
}
} // namespace

void framework::ReportHandlerException(CException & exception, MSG const & message)
{
    // A failed creation is reported by who creates, and a box over a window that can't paint would only ask it again.
    if (message.message == WM_CREATE || message.message == WM_PAINT)
        return;
    if (exception.IsKindOf(RUNTIME_CLASS(CUserException)))
        return; // the user has been told
    bool const command = message.message == WM_COMMAND && message.lParam == 0;
    UINT const type =
        exception.IsKindOf(RUNTIME_CLASS(CMemoryException)) ? MB_ICONEXCLAMATION | MB_SYSTEMMODAL : MB_ICONSTOP;
    exception.ReportError(type, command ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
}

LRESULT AFXAPI AfxCallWndProc(CWnd * pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    MSG const outer = state.lastSentMessage;
    MSG message{};
    message.hwnd = hWnd;
    message.message = nMsg;
    message.wParam = wParam;
    message.lParam = lParam;
    state.lastSentMessage = message;
    LRESULT result = 0;
    try
    {
        result = framework::WndAccess::CallWindowProc(*pWnd, nMsg, wParam, lParam);
    }
    catch (CException * exception)
    {
        result = AnswerException(exception, message);
    }
    catch (std::exception const & exception)
    {
        result = AnswerForeignException(exception.what(), message);
    }
    catch (...)
    {
        result = AnswerForeignException("An unknown error occurred.", message);
    }
    state.lastSentMessage = outer;
    return result;
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd * const window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr || window->m_hWnd != hWnd)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
}

const MSG * PASCAL CWnd::GetCurrentMessage()
{
    MSG & message = framework::CurrentThreadState().lastSentMessage;
    DWORD const position = ::GetMessagePos();
    message.time = static_cast<DWORD>(::GetMessageTime());
    message.pt.x = static_cast<short>(LOWORD(position));
    message.pt.y = static_cast<short>(HIWORD(position));
    return &message;
}

LRESULT CWnd::Default()
{
    MSG const & message = framework::CurrentThreadState().lastSentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (WNDPROC const super = *GetSuperWndProcAddr())
        return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

void CWnd::OnNcDestroy()
{
    if (CWinThread * const thread = AfxGetThread())
    {
        if (thread->m_pMainWnd == this)
        {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this)
            thread->m_pActiveWnd = nullptr;
    }
    SetToolTipFlag(FALSE, framework::wnd_tool_tips | framework::wnd_tracking_tool_tips);

    LONG_PTR const procedure = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    WNDPROC * const super = GetSuperWndProcAddr();
    if (*super != nullptr && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == procedure)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}
