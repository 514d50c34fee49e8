#pragma once
// What an application knows of documents. Inside framework.dll only.

#include <memory>
#include <vector>

#include "../afxadv.h"

namespace framework
{
struct AppDocuments
{
    ~AppDocuments();

    CPtrList m_templates; // owned
    std::unique_ptr<CRecentFileList> m_recent;
    UINT m_previewPages = 0;
    bool m_settingsLoaded = false;
    HANDLE m_deviceNames = nullptr; // of the printer, owned
    HANDLE m_deviceMode = nullptr;
    CCommandLineInfo const * m_printCommand = nullptr; // while it is carried out
};

struct DocumentsAccess
{
    /// Null as long as the application has nothing of that.
    static AppDocuments * Get(CWinApp & app) { return app.m_documents; }
};

/// Lets the user choose one of some kinds of documents. -1 if he chooses none.
int ChooseKind(std::vector<CString> const & names);
} // namespace framework
