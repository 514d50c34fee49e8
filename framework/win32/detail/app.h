#pragma once
// Threads and the application. Included by afxwin.h, after the windows.

#include "cmdtarget.h"
#include "ModuleState.h"

class CCommandLineInfo;
class CDocTemplate;
class CDocument;

typedef UINT(AFX_CDECL * AFX_THREADPROC)(LPVOID);

namespace framework
{
struct AppAccess;
struct DocumentsAccess;
struct AppDocuments;
struct ThreadAccess;
} // namespace framework

class FRAMEWORK_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    CWnd * m_pMainWnd;   // its end ends the thread's message loop
    CWnd * m_pActiveWnd; // the container's window while an object is active in place
    BOOL m_bAutoDelete;  // the object deletes itself when the thread ends
    HANDLE m_hThread;
    DWORD m_nThreadID;

    operator HANDLE() const;
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    virtual BOOL InitInstance();
    virtual int Run();
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG * pMsg);
    virtual BOOL PumpMessage();
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG * pMsg);
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    virtual LRESULT ProcessWndProcException(CException * e, const MSG * pMsg);
    virtual CWnd * GetMainWnd();

private:
    friend struct framework::ThreadAccess;

    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);

    AFX_THREADPROC m_pfnThreadProc; // of a worker thread
    LPVOID m_pThreadParams;

    DECLARE_MESSAGE_MAP()
};

#define _AFX_MRU_COUNT 4 // files used last that a menu shows by default

class FRAMEWORK_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance;
    LPTSTR m_lpCmdLine;
    int m_nCmdShow;
    LPCTSTR m_pszAppName;     // for message boxes; allocated with _tcsdup, like the four below, and freed at the end
    LPCTSTR m_pszRegistryKey; // the company's key, or null: settings are kept in an .INI file
    LPCTSTR m_pszExeName;
    LPCTSTR m_pszHelpFilePath;
    LPCTSTR m_pszProfileName; // the application's key below the company's, or the name of the .INI file
    LPCTSTR m_pszAppID;
    BOOL m_bHelpMode;

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;

    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE * ppData, UINT * pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    LONG DelRegTree(HKEY hParentKey, const CString & strKeyName);

    void ParseCommandLine(CCommandLineInfo & rCmdInfo);
    /// Does what the command line asks for. FALSE: the program is done.
    BOOL ProcessShellCommand(CCommandLineInfo & rCmdInfo);
    void SetAppID(LPCTSTR lpcszAppID);
    void HideApplication();

    /// The template is the application's from then on.
    void AddDocTemplate(CDocTemplate * pTemplate);
    POSITION GetFirstDocTemplatePosition() const;
    CDocTemplate * GetNextDocTemplate(POSITION & pos) const;
    void CloseAllDocuments(BOOL bEndSession);
    virtual BOOL SaveAllModified();
    virtual CDocument * OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU = TRUE);
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    /// Files that the shell opens come on the command line; conversations with a running program (DDE) are not offered,
    /// so there is nothing to prepare.
    void EnableShellOpen();
    /// Makes the program the one that opens its templates' files, for the present user. bCompat: for printing, too.
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();
    virtual BOOL Register();
    virtual BOOL Unregister();
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    /// The printer of the system, or the one that the user has chosen. FALSE if there is none. What is given stays the
    /// application's.
    BOOL GetPrinterDeviceDefaults(struct tagPDW * pPrintDlg);
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    BOOL CreatePrinterDC(CDC & dc);

    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();
    afx_msg void OnContextHelp();
    // Not in the message map; programs name them in theirs
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnFilePrintSetup();

    BOOL InitInstance() override;
    int Run() override;
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override;
    LRESULT ProcessWndProcException(CException * e, const MSG * pMsg) override;
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    virtual void DoWaitCursor(int nCode);

protected:
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /// Reads the list of files used last, which ExitInstance writes.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);

private:
    friend struct framework::AppAccess;
    friend struct framework::DocumentsAccess;

    void SetCurrentHandles();
    framework::AppDocuments & Documents();
    void SaveStandardSettings();
    void HandleExit();
    void UpdateRecentFiles(CCmdUI * pCmdUI);
    BOOL OpenRecentFile(UINT nID);

    int m_nWaitCursorCount;
    HCURSOR m_hcurWaitCursorRestore;
    framework::AppDocuments * m_documents; // null as long as there are none

    DECLARE_MESSAGE_MAP()
};

class FRAMEWORK_API CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();
    ~CCommandLineInfo() override;

    virtual void ParseParam(const TCHAR * pszParam, BOOL bFlag, BOOL bLast);
    virtual void ParseParam(const char * pszParam, BOOL bFlag, BOOL bLast);

    BOOL m_bShowSplash;
    BOOL m_bRunEmbedded;
    BOOL m_bRunAutomated;
    enum
    {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        RestartByRestartManager,
        FileNothing = -1
    } m_nShellCommand;

    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;
    CString m_strRestartIdentifier;

private:
    void ParseFlag(LPCTSTR flag);
    void ParseValue(LPCTSTR value);
    void ParseLast();
};

FRAMEWORK_API CWinThread * AFXAPI AfxGetThread();
FRAMEWORK_API CWinApp * AFXAPI AfxGetApp();
FRAMEWORK_API CWnd * AFXAPI AfxGetMainWnd();
FRAMEWORK_API LPCTSTR AFXAPI AfxGetAppName();
FRAMEWORK_API CWinThread * AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                                 int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                                 DWORD dwCreateFlags = 0,
                                                 LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
FRAMEWORK_API CWinThread * AFXAPI AfxBeginThread(CRuntimeClass * pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                                 UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                                 LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
FRAMEWORK_API void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

FRAMEWORK_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
FRAMEWORK_API void AFXAPI AfxWinTerm();
FRAMEWORK_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
FRAMEWORK_API void AFXAPI AfxPostQuitMessage(int nExitCode);
FRAMEWORK_API BOOL AFXAPI AfxPumpMessage();
FRAMEWORK_API BOOL AFXAPI AfxPreTranslateMessage(MSG * pMsg);
FRAMEWORK_API BOOL AFXAPI AfxIsIdleMessage(MSG * pMsg);

/// While temporary maps are locked, idle time doesn't delete the temporary objects. Locks count.
FRAMEWORK_API void AFXAPI AfxLockTempMaps();
FRAMEWORK_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);

FRAMEWORK_API void AFXAPI AfxFormatStrings(CString & rString, UINT nIDS, LPCTSTR const * rglpsz, int nString);
FRAMEWORK_API void AFXAPI AfxFormatStrings(CString & rString, LPCTSTR lpszFormat, LPCTSTR const * rglpsz, int nString);

FRAMEWORK_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                 HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
FRAMEWORK_API BOOL AFXAPI AfxRegisterClass(WNDCLASS * lpWndClass);
FRAMEWORK_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
FRAMEWORK_API LRESULT AFXAPI AfxCallWndProc(CWnd * pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);

/// The next window that this thread creates gets this object, before it receives its first message.
FRAMEWORK_API void AFXAPI AfxHookWindowCreate(CWnd * pWnd);
/// FALSE if the hooked creation never came to a window.
FRAMEWORK_API BOOL AFXAPI AfxUnhookWindowCreate();
