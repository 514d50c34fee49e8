// CWinThread: threads with a message loop, and worker threads.

#include "afxpriv.h"
#include <process.h>

#include <vector>

#include "detail/MenuMode.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace framework
{
namespace
{
/// Idle time of the thread's frames beside the main one.
void UpdateFramesBeside(CWnd const * main)
{
    std::vector<HWND> windows;
    CPtrList const & frames = CurrentThreadState().topLevelFrames;
    for (POSITION at = frames.GetHeadPosition(); at != nullptr;)
        windows.push_back(static_cast<CWnd const *>(frames.GetNext(at))->m_hWnd);
    for (HWND const window : windows)
    {
        CWnd * const frame = CWnd::FromHandlePermanent(window);
        if (frame == nullptr || frame == main || !frame->IsWindowVisible())
            continue;
        AfxCallWndProc(frame, window, WM_IDLEUPDATECMDUI, TRUE, 0);
        if (CWnd::FromHandlePermanent(window) == frame)
            frame->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
}
} // namespace

struct ThreadAccess
{
    static const AFX_MSGMAP * Map(CWinThread const & thread) { return thread.GetMessageMap(); }
    static CWinThread * MakeWorker(AFX_THREADPROC procedure, LPVOID parameter)
    {
        return new CWinThread(procedure, parameter);
    }
    static unsigned __stdcall Main(void * parameter);

    static BOOL DispatchThreadMessage(CWinThread & thread, MSG const & message);
};

unsigned __stdcall ThreadAccess::Main(void * parameter)
{
    CWinThread * const thread = static_cast<CWinThread *>(parameter);
    CurrentThreadState().thread = thread;
    UINT result = 0;
    try
    {
        if (thread->m_pfnThreadProc != nullptr)
            result = thread->m_pfnThreadProc(thread->m_pThreadParams);
        else if (!thread->InitInstance())
            result = static_cast<UINT>(thread->ExitInstance());
        else
            result = static_cast<UINT>(thread->Run());
    }
    catch (CException * exception)
    {
        if (!exception->IsKindOf(RUNTIME_CLASS(CUserException)))
            exception->ReportError(MB_ICONSTOP | MB_TASKMODAL);
        exception->Delete();
    }
    AfxEndThread(result);
    return result;
}

BOOL ThreadAccess::DispatchThreadMessage(CWinThread & thread, MSG const & message)
{
    constexpr UINT first_registered = 0xC000;
    using Handler = void (CWinThread::*)(WPARAM, LPARAM);
    for (AFX_MSGMAP const * map = Map(thread); map->pfnGetBaseMap != nullptr; map = map->pfnGetBaseMap())
    {
        if (message.message < first_registered)
        {
            if (AFX_MSGMAP_ENTRY const * const entry = FindEntry(map->lpEntries, message.message, 0, 0))
            {
                (thread.*std::bit_cast<Handler>(entry->pfn))(message.wParam, message.lParam);
                return TRUE;
            }
            continue;
        }
        for (AFX_MSGMAP_ENTRY const * entry = map->lpEntries;
             (entry = FindEntry(entry, first_registered, 0, 0)) != nullptr; ++entry)
        {
            if (*reinterpret_cast<UINT const *>(entry->nSig) != message.message)
                continue;
            (thread.*std::bit_cast<Handler>(entry->pfn))(message.wParam, message.lParam);
            return TRUE;
        }
    }
    return FALSE;
}
} // namespace framework

CWinThread::CWinThread() : CWinThread(nullptr, nullptr) {}

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pMainWnd(nullptr),
      m_pActiveWnd(nullptr),
      m_bAutoDelete(TRUE),
      m_hThread(nullptr),
      m_nThreadID(0),
      m_pfnThreadProc(pfnThreadProc),
      m_pThreadParams(pParam)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.thread == this)
        state.thread = nullptr;
}

CWinThread::operator HANDLE() const
{
    return m_hThread;
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(m_hThread == nullptr);
    // The thread starts only once its handle and id are in place.
    unsigned id = 0;
    uintptr_t const handle = _beginthreadex(lpSecurityAttrs, nStackSize, &framework::ThreadAccess::Main, this,
                                            dwCreateFlags | CREATE_SUSPENDED, &id);
    if (handle == 0)
        return FALSE;
    m_hThread = reinterpret_cast<HANDLE>(handle);
    m_nThreadID = id;
    if ((dwCreateFlags & CREATE_SUSPENDED) == 0)
        ::ResumeThread(m_hThread);
    return TRUE;
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority)
{
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

BOOL CWinThread::InitInstance()
{
    return FALSE;
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(framework::CurrentThreadState().pumpedMessage.wParam);
}

int CWinThread::Run()
{
    MSG & message = framework::CurrentThreadState().pumpedMessage;
    bool idle = true;
    LONG idleCount = 0;
    for (;;)
    {
        while (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        {
            if (!OnIdle(idleCount++))
                idle = false;
        }
        do
        {
            if (!PumpMessage())
                return ExitInstance();
            if (IsIdleMessage(&message))
            {
                idle = true;
                idleCount = 0;
            }
        } while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE));
    }
}

BOOL CWinThread::PumpMessage()
{
    return AfxPumpMessage();
}

BOOL AFXAPI AfxPumpMessage()
{
    MSG & message = framework::CurrentThreadState().pumpedMessage;
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
        return FALSE;
    if (!AfxPreTranslateMessage(&message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return TRUE;
}

BOOL AFXAPI AfxPreTranslateMessage(MSG * pMsg)
{
    if (CWinThread * const thread = AfxGetThread())
        return thread->PreTranslateMessage(pMsg);
    return framework::WalkPreTranslateTree(nullptr, pMsg);
}

BOOL CWinThread::PreTranslateMessage(MSG * pMsg)
{
    if (framework::MenuMode::Current().PreTranslate(*pMsg))
        return TRUE;
    if (pMsg->hwnd == nullptr && framework::ThreadAccess::DispatchThreadMessage(*this, *pMsg))
        return TRUE;
    CWnd * const main = AfxGetMainWnd();
    if (framework::WalkPreTranslateTree(framework::SafeHandle(main), pMsg))
        return TRUE;
    // A modeless window beside the main one: the main window's accelerators count there, too.
    if (main == nullptr || pMsg->hwnd == nullptr)
        return FALSE;
    if (CWnd::FromHandle(pMsg->hwnd)->GetTopLevelParent() == main)
        return FALSE;
    return main->PreTranslateMessage(pMsg);
}

BOOL AFXAPI AfxIsIdleMessage(MSG * pMsg)
{
    if (CWinThread * const thread = AfxGetThread())
        return thread->IsIdleMessage(pMsg);
    return pMsg->message != WM_PAINT;
}

BOOL CWinThread::IsIdleMessage(MSG * pMsg)
{
    constexpr UINT system_timer = 0x0118;
    framework::ThreadState & state = framework::CurrentThreadState();
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE)
    {
        // Moves without a change of place come whenever windows move below the cursor.
        bool const same = state.lastMousePoint.x == pMsg->pt.x && state.lastMousePoint.y == pMsg->pt.y &&
                          state.lastMouseMessage == pMsg->message;
        state.lastMousePoint = pMsg->pt;
        state.lastMouseMessage = pMsg->message;
        return !same;
    }
    return pMsg->message != WM_PAINT && pMsg->message != system_timer;
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        CWnd * const main = m_pMainWnd;
        if (main != nullptr && main->m_hWnd != nullptr && main->IsWindowVisible())
        {
            HWND const window = main->m_hWnd;
            AfxCallWndProc(main, window, WM_IDLEUPDATECMDUI, TRUE, 0);
            if (CWnd::FromHandlePermanent(window) == main)
                main->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
        framework::UpdateFramesBeside(main);
    }
    else
    {
        AfxLockTempMaps();
        AfxUnlockTempMaps(); // the last unlocking deletes them
    }
    return lCount < 0;
}

BOOL CWinThread::ProcessMessageFilter(int code, LPMSG lpMsg)
{
    if (lpMsg == nullptr || code != MSGF_MENU || m_pMainWnd == nullptr)
        return FALSE;
    // Menus don't go through the loop, so the tool tips are taken away here.
    if (lpMsg->message == WM_LBUTTONDOWN || lpMsg->message == WM_KEYDOWN)
        CWnd::CancelToolTips();
    return FALSE;
}

LRESULT CWinThread::ProcessWndProcException(CException *, const MSG * pMsg)
{
    if (pMsg->message == WM_CREATE)
        return -1;
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr); // else the system asks again and again
    return 0;
}

CWnd * CWinThread::GetMainWnd()
{
    if (m_pActiveWnd != nullptr)
        return m_pActiveWnd;
    if (m_pMainWnd != nullptr)
        return m_pMainWnd;
    return CWnd::GetActiveWindow();
}

CWinThread * AFXAPI AfxGetThread()
{
    return framework::CurrentThreadState().thread;
}

namespace
{
CWinThread * Start(CWinThread * thread, int priority, UINT stackSize, DWORD flags, LPSECURITY_ATTRIBUTES attributes)
{
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, attributes))
    {
        delete thread;
        return nullptr;
    }
    VERIFY(thread->SetThreadPriority(priority));
    if ((flags & CREATE_SUSPENDED) == 0)
        thread->ResumeThread();
    return thread;
}
} // namespace

CWinThread * AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                                   DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    return Start(framework::ThreadAccess::MakeWorker(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags,
                 lpSecurityAttrs);
}

CWinThread * AFXAPI AfxBeginThread(CRuntimeClass * pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                                   LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    auto * const thread = static_cast<CWinThread *>(pThreadClass->CreateObject());
    if (thread == nullptr)
        AfxThrowMemoryException();
    return Start(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    framework::ThreadState & state = framework::CurrentThreadState();
    CWinThread * const thread = std::exchange(state.thread, nullptr);
    if (thread != nullptr)
    {
        framework::DeleteTemporaryObjects();
        if (bDelete && thread->m_bAutoDelete)
            delete thread;
    }
    _endthreadex(nExitCode);
}
