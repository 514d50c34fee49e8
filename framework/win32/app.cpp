// CWinApp: the application's start, end and message boxes.

#include <shlwapi.h>
#include <shobjidl.h>

#include <array>

#include "detail/AppDocuments.h"
#include "detail/ThreadState.h"
#include "detail/WndAccess.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::HandleExit)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::UpdateRecentFiles)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FILE1, ID_FILE_MRU_FILE16, &CWinApp::OpenRecentFile)
END_MESSAGE_MAP()

namespace framework
{
struct AppAccess
{
    static void SetCurrentHandles(CWinApp & app) { app.SetCurrentHandles(); }
};
} // namespace framework

namespace
{
void FreeText(LPCTSTR & text)
{
    std::free(const_cast<LPTSTR>(text));
    text = nullptr;
}

/// What the framework says itself, where the program has no string of its own for it.
LPCTSTR BuiltInText(UINT id)
{
    switch (id)
    {
    case AFX_IDP_INTERNAL_FAILURE:
        return L"Encountered an unexpected error.";
    case AFX_IDP_COMMAND_FAILURE:
        return L"The command failed.";
    default:
        return L"";
    }
}

LRESULT CALLBACK MessageFilter(int code, WPARAM wParam, LPARAM lParam)
{
    CWinThread * const thread = AfxGetThread();
    if (thread != nullptr && code >= 0)
    {
        try
        {
            if (thread->ProcessMessageFilter(code, reinterpret_cast<LPMSG>(lParam)))
                return 1;
        }
        catch (CException * exception)
        {
            exception->ReportError();
            exception->Delete();
        }
    }
    return ::CallNextHookEx(framework::CurrentThreadState().messageFilterHook, code, wParam, lParam);
}
} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(nullptr),
      m_lpCmdLine(nullptr),
      m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(lpszAppName != nullptr ? _tcsdup(lpszAppName) : nullptr),
      m_pszRegistryKey(nullptr),
      m_pszExeName(nullptr),
      m_pszHelpFilePath(nullptr),
      m_pszProfileName(nullptr),
      m_pszAppID(nullptr),
      m_bHelpMode(FALSE),
      m_nWaitCursorCount(0),
      m_hcurWaitCursorRestore(nullptr),
      m_documents(nullptr)
{
    m_hThread = nullptr;
    m_nThreadID = ::GetCurrentThreadId();
    m_bAutoDelete = FALSE;
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.thread == nullptr)
        state.thread = this;
    AFX_MODULE_STATE * const module = AfxGetModuleState();
    ASSERT(module->m_pCurrentWinApp == nullptr); // one application a module
    module->m_pCurrentWinApp = this;
    m_hInstance = module->m_hCurrentInstanceHandle;
}

CWinApp::~CWinApp()
{
    delete m_documents;
    AFX_MODULE_STATE * const module = AfxGetModuleState();
    if (module->m_lpszCurrentAppName == m_pszAppName)
        module->m_lpszCurrentAppName = nullptr;
    if (module->m_pCurrentWinApp == this)
        module->m_pCurrentWinApp = nullptr;
    for (LPCTSTR * const text : std::array{&m_pszAppName, &m_pszRegistryKey, &m_pszExeName, &m_pszHelpFilePath,
                                           &m_pszProfileName, &m_pszAppID})
        FreeText(*text);
}

void CWinApp::SetCurrentHandles()
{
    AFX_MODULE_STATE * const module = AfxGetModuleState();
    module->m_hCurrentInstanceHandle = m_hInstance;
    module->m_hCurrentResourceHandle = m_hInstance;

    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileName(m_hInstance, path, MAX_PATH);
    ::PathRemoveExtension(path);
    CString const name(::PathFindFileName(path));
    if (m_pszExeName == nullptr)
        m_pszExeName = _tcsdup(name);
    if (m_pszAppName == nullptr)
    {
        CString title;
        m_pszAppName = _tcsdup(title.LoadString(AFX_IDS_APP_TITLE) ? title : name);
    }
    module->m_lpszCurrentAppName = m_pszAppName;
    if (m_pszHelpFilePath == nullptr)
        m_pszHelpFilePath = _tcsdup(CString(path) + L".HLP");
    if (m_pszProfileName == nullptr)
        m_pszProfileName = _tcsdup(name + L".INI");
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::Run()
{
    // Without a main window nothing would ever end the loop.
    if (m_pMainWnd == nullptr && AfxGetMainWnd() == nullptr)
        AfxPostQuitMessage(0);
    return CWinThread::Run();
}

int CWinApp::ExitInstance()
{
    SaveStandardSettings();
    return CWinThread::ExitInstance();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    if (lCount <= 1)
        CWinThread::OnIdle(lCount);
    return lCount < 1;
}

BOOL CWinApp::PreTranslateMessage(MSG * pMsg)
{
    return CWinThread::PreTranslateMessage(pMsg);
}

BOOL CWinApp::ProcessMessageFilter(int code, LPMSG lpMsg)
{
    return CWinThread::ProcessMessageFilter(code, lpMsg);
}

LRESULT CWinApp::ProcessWndProcException(CException * e, const MSG * pMsg)
{
    framework::ReportHandlerException(*e, *pMsg);
    return CWinThread::ProcessWndProcException(e, pMsg);
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT)
{
    if ((nType & MB_ICONMASK) == 0)
    {
        switch (nType & MB_TYPEMASK)
        {
        case MB_OK:
        case MB_OKCANCEL:
        case MB_YESNO:
        case MB_YESNOCANCEL:
            nType |= MB_ICONEXCLAMATION;
            break;
        default:
            break;
        }
    }
    HWND top = nullptr;
    HWND const owner = framework::FindSafeOwner(nullptr, &top);
    int const answer = ::MessageBox(owner, lpszPrompt, AfxGetAppName(), nType);
    if (top != nullptr)
        ::EnableWindow(top, TRUE);
    return answer;
}

void CWinApp::DoWaitCursor(int nCode)
{
    m_nWaitCursorCount += nCode;
    if (m_nWaitCursorCount > 0)
    {
        HCURSOR const previous = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (nCode > 0 && m_nWaitCursorCount == 1)
            m_hcurWaitCursorRestore = previous;
        return;
    }
    m_nWaitCursorCount = 0;
    ::SetCursor(m_hcurWaitCursorRestore);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const
{
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const
{
    return ::LoadCursor(nullptr, lpszCursorName);
}

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const
{
    return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor));
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const
{
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

HICON CWinApp::LoadStandardIcon(LPCTSTR lpszIconName) const
{
    return ::LoadIcon(nullptr, lpszIconName);
}

HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const
{
    return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon));
}

void CWinApp::SetAppID(LPCTSTR lpcszAppID)
{
    FreeText(m_pszAppID);
    m_pszAppID = _tcsdup(lpcszAppID);
    ::SetCurrentProcessExplicitAppUserModelID(m_pszAppID);
}

void CWinApp::HideApplication()
{
    ASSERT(m_pMainWnd != nullptr);
    m_pMainWnd->ShowOwnedPopups(FALSE);
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

CWinApp * AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

CWnd * AFXAPI AfxGetMainWnd()
{
    CWinThread * const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    LPCTSTR const name = AfxGetModuleState()->m_lpszCurrentAppName;
    return name != nullptr ? name : L"";
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, [[maybe_unused]] HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    ASSERT(hPrevInstance == nullptr);
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    AFX_MODULE_STATE * const module = AfxGetModuleState();
    module->m_hCurrentInstanceHandle = hInstance;
    module->m_hCurrentResourceHandle = hInstance;
    if (CWinApp * const app = AfxGetApp())
    {
        app->m_hInstance = hInstance;
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        framework::AppAccess::SetCurrentHandles(*app);
        framework::CurrentThreadState().thread = app;
        app->m_nThreadID = ::GetCurrentThreadId();
    }
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.messageFilterHook == nullptr)
        state.messageFilterHook = ::SetWindowsHookEx(WH_MSGFILTER, MessageFilter, nullptr, ::GetCurrentThreadId());
    return TRUE;
}

void AFXAPI AfxWinTerm()
{
    framework::ThreadState & state = framework::CurrentThreadState();
    if (state.messageFilterHook != nullptr)
        ::UnhookWindowsHookEx(std::exchange(state.messageFilterHook, nullptr));
    framework::DeleteTemporaryObjects();
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    int result = -1;
    if (AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow))
    {
        CWinThread * const thread = AfxGetThread();
        ASSERT(thread != nullptr);
        if (thread->InitInstance())
            result = thread->Run();
        else
        {
            if (thread->m_pMainWnd != nullptr)
                thread->m_pMainWnd->DestroyWindow();
            result = thread->ExitInstance();
        }
    }
    AfxWinTerm();
    return result;
}

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    if (CWinApp * const app = AfxGetApp())
        return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBox(framework::FindSafeOwner(nullptr, nullptr), lpszText, AfxGetAppName(), nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        text = BuiltInText(nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

void AFXAPI AfxFormatStrings(CString & rString, LPCTSTR lpszFormat, LPCTSTR const * rglpsz, int nString)
{
    CString text;
    for (LPCTSTR at = lpszFormat; *at != 0; ++at)
    {
        if (*at != L'%' || at[1] == 0)
        {
            text += *at;
            continue;
        }
        // %1 to %9, then %A to %Z; anything else stands for itself.
        wchar_t const mark = *++at;
        int index = -1;
        if (mark > L'9')
            index = 9 + (mark - L'A');
        else
            index = mark - L'1';
        bool const insert = (mark >= L'1' && mark <= L'9') || (mark >= L'A' && mark <= L'Z');
        if (!insert)
            text += mark;
        else if (index < nString)
        {
            if (rglpsz[index] != nullptr)
                text += rglpsz[index];
        }
        else
            text += L'?';
    }
    rString = text;
}

void AFXAPI AfxFormatStrings(CString & rString, UINT nIDS, LPCTSTR const * rglpsz, int nString)
{
    CString format;
    if (!format.LoadString(nIDS))
        return;
    AfxFormatStrings(rString, format, rglpsz, nString);
}

void AFXAPI AfxFormatString1(CString & rString, UINT nIDS, LPCTSTR lpsz1)
{
    AfxFormatStrings(rString, nIDS, &lpsz1, 1);
}

void AFXAPI AfxFormatString2(CString & rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2)
{
    LPCTSTR const texts[] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, nIDS, texts, 2);
}
