#include "WorkbenchApp.h"

#include <afxcmn.h>
#include <shellapi.h>

#include <filesystem>
#include <string>
#include <vector>

#include "frame/PreferenceStore.h"
#include "MainWindow.h"
#include "Settings.h"
#include "Walk.h"

namespace
{

constexpr wchar_t company[] = L"Instrument Suite";
constexpr wchar_t application_name[] = L"Instrument Workbench";

constexpr UINT message_start_walk = WM_APP + 1;

std::vector<std::wstring> Arguments()
{
    std::vector<std::wstring> arguments;
    int count = 0;
    LPWSTR * const texts = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; texts != nullptr && i < count; ++i)
    {
        arguments.emplace_back(texts[i]);
    }
    ::LocalFree(texts);
    return arguments;
}

} // namespace

CWorkbenchApp theApp;

BEGIN_MESSAGE_MAP(CWorkbenchApp, CWinAppEx)
    ON_THREAD_MESSAGE(message_start_walk, &CWorkbenchApp::OnStartWalk)
END_MESSAGE_MAP()

// A desktop that is not MFC's names the application only so.
CWorkbenchApp::CWorkbenchApp()
{
    m_pszAppName = _wcsdup(application_name);
}

CWorkbenchApp::~CWorkbenchApp() = default;

BOOL CWorkbenchApp::InitInstance()
{
    INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    CWinAppEx::InitInstance();

    m_commandLine = workbench::ParseCommandLine(Arguments());
    if (!m_commandLine.error.empty())
    {
        AfxMessageBox(m_commandLine.error.c_str());
        m_exitCode = 2;
        return FALSE;
    }
    SetRegistryKey(company);
    m_preferences = std::make_unique<RegistryPreferenceStore>(CString(company), CString(application_name));
    CVeskBase::SetPreferenceVesk(m_preferences.get());
    // Windows may stand on any screen that there is.
    CFensterManager::SetNurEinMonitor(false);
    CFensterManager::KeepWithinReach(true);

    m_graphics = std::make_unique<workbench::GraphicsScope>();
    workbench::UseLanguage(workbench::ReadLanguage());
    std::vector<std::filesystem::path> targets(m_commandLine.targets.begin(), m_commandLine.targets.end());
    if (targets.empty())
    {
        workbench::Settings const settings = workbench::ReadSettings();
        targets = settings.startFolders.empty() ? settings.lastTargets : settings.startFolders;
    }
    m_mainWindow = std::make_unique<CMainWindow>();
    m_pMainWnd = m_mainWindow.get();
    if (!m_mainWindow->CreateMainWindow())
    {
        m_exitCode = 1;
        return FALSE;
    }
    m_mainWindow->ShowAsBefore(m_nCmdShow);
    m_mainWindow->UpdateWindow();
    m_mainWindow->ShowTargets(std::move(targets));
    if (m_commandLine.mode != workbench::RunMode::interactive)
    {
        PostThreadMessage(message_start_walk, 0, 0);
    }
    return TRUE;
}

void CWorkbenchApp::OnStartWalk(WPARAM, LPARAM)
{
    CWalk walk(*m_mainWindow, m_commandLine.walkFolder);
    bool const restarted = m_commandLine.mode == workbench::RunMode::walk_restart;
    if (!(restarted ? walk.RunAfterRestart() : walk.Run()))
    {
        m_exitCode = 1;
    }
    if (::IsWindow(m_mainWindow->GetSafeHwnd()))
    {
        m_mainWindow->PostMessage(WM_CLOSE);
    }
}

int CWorkbenchApp::ExitInstance()
{
    m_mainWindow.reset();
    m_pMainWnd = nullptr;
    m_graphics.reset();
    CVeskBase::SetPreferenceVesk(nullptr);
    int const result = CWinAppEx::ExitInstance();
    return m_exitCode != 0 ? m_exitCode : result;
}
