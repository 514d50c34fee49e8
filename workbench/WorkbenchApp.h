#pragma once

#include <afxcontrolbars.h>
#include <afxwin.h>

#include <memory>

#include "Graphics.h"
#include "logic/CommandLine.h"
#include "RegistryPreferenceStore.h"

class CMainWindow;

/// The program: sets the preference store up and opens the main window.
class CWorkbenchApp : public CWinAppEx
{
public:
    CWorkbenchApp();
    ~CWorkbenchApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    afx_msg void OnStartWalk(WPARAM, LPARAM);

    workbench::CommandLine m_commandLine;
    std::unique_ptr<workbench::GraphicsScope> m_graphics;
    std::unique_ptr<RegistryPreferenceStore> m_preferences;
    std::unique_ptr<CMainWindow> m_mainWindow;
    int m_exitCode = 0;

    DECLARE_MESSAGE_MAP()
};
