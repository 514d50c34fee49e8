#pragma once

#include "controls/ListBoxX.h"
#include "FolderField.h"
#include "SettingsGroup.h"

/// The folders that are opened when the program starts without others.
class CStartGroup : public CSettingsGroup
{
public:
    CStartGroup();

    void Show(workbench::Settings const & settings) override;
    bool Take(workbench::Settings & settings) override;

    void ShowTexts() override;
    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    DECLARE_MESSAGE_MAP()

private:
    afx_msg void OnAddFolder();
    afx_msg void OnRemoveFolder();
    afx_msg void OnFolderChosen();
    afx_msg LRESULT OnBrowsed(WPARAM tag, LPARAM);

    CString NewFolder() const;
    void EnableButtons();

    CListBoxX m_folders;
    CFolderField m_newFolder;
};
