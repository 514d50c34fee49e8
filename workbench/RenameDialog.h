#pragma once

#include <filesystem>

#include "dialogs/Dialog3d.h"
#include "Settings.h"

/// Asks for another name for a recording's file.
class CRenameDialog : public CDialog3d
{
public:
    CRenameDialog(std::filesystem::path file, workbench::Settings const & settings, CWnd & owner);

    /// The file with its new name, once the dialog has ended with IDOK.
    std::filesystem::path const & File() const { return m_file; }

    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    void OnOK() override;

private:
    std::filesystem::path m_file;
    CEdit m_name;
};
