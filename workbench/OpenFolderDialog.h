#pragma once

#include <filesystem>
#include <vector>

#include "controls/ComboBoxX.h"
#include "dialogs/Dialog3d.h"
#include "Settings.h"

/// Asks for a folder: typed, with those opened before to complete it, chosen among these, or looked for.
class COpenFolderDialog : public CDialog3d
{
public:
    COpenFolderDialog(workbench::Settings const & settings, CWnd & owner);

    /// The folder chosen, once the dialog has ended with IDOK.
    std::filesystem::path const & Folder() const { return m_folder; }

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    void OnOK() override;

    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnBrowse();

    CString Typed();

    std::vector<std::filesystem::path> m_recent;
    CComboBoxX m_folders;
    std::filesystem::path m_folder;
};
