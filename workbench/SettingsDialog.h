#pragma once

#include <functional>

#include "WorkbenchDialog.h"

/// Lets the user change the settings. OK hands them over and closes the dialog.
class CSettingsDialog : public CWorkbenchDialog
{
public:
    explicit CSettingsDialog(CWnd & owner);

    /// Opens the dialog with these settings; if it is open, it is brought to the front and keeps what it shows.
    bool OpenWith(workbench::Settings const & settings);

    /// Called with what OK hands over.
    std::function<void(workbench::Settings const &)> m_onAccepted;

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnAddFolder();
    afx_msg void OnRemoveFolder();
    afx_msg void OnFolderChosen();

    void FillFolders();
    void AddFolder(CString const & folder);
    void ShowRemovable();

    workbench::Settings m_settings;
    CListBox m_folders;
    BOOL m_fadeIn = FALSE;
    BOOL m_dragByBackground = FALSE;
};
