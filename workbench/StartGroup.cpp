#include "StartGroup.h"

#include <algorithm>
#include <filesystem>
#include <list>
#include <system_error>

#include "frame/RegisteredMessages.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

BEGIN_MESSAGE_MAP(CStartGroup, CSettingsGroup)
    ON_BN_CLICKED(IDC_ADD_FOLDER, &CStartGroup::OnAddFolder)
    ON_BN_CLICKED(IDC_REMOVE_FOLDER, &CStartGroup::OnRemoveFolder)
    ON_LBN_SELCHANGE(IDC_START_FOLDERS, &CStartGroup::OnFolderChosen)
    ON_REGISTERED_MESSAGE(WM_XEDITBROWSE_COMPLETED, &CStartGroup::OnBrowsed)
END_MESSAGE_MAP()

CStartGroup::CStartGroup() : CSettingsGroup(IDD_SETTINGS_START) {}

void CStartGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_START_FOLDERS, m_folders);
    DDX_Control(exchange, IDC_NEW_FOLDER, m_newFolder);
}

BOOL CStartGroup::OnInitDialog()
{
    CSettingsGroup::OnInitDialog();
    m_newFolder.PrepareFolderBrowser(Text(L"Choose a folder that is opened at the start:"));
    Follow(IDC_START_FOLDERS, CEdges::TOP_LEFT_BOTTOM_RIGHT());
    Follow(IDC_START_NOTE, CEdges::TOP_LEFT_RIGHT());
    Follow(IDC_REMOVE_FOLDER, CEdges::TOP_RIGHT());
    Follow(IDC_NEW_FOLDER_NOTE, CEdges::BOTTOM_LEFT());
    Follow(IDC_NEW_FOLDER, CEdges::BOTTOM_LEFT_RIGHT());
    Follow(IDC_ADD_FOLDER, CEdges::BOTTOM_RIGHT());
    return TRUE;
}

void CStartGroup::ShowTexts()
{
    CSettingsGroup::ShowTexts();
    if (m_hWnd != nullptr)
    {
        m_newFolder.PrepareFolderBrowser(Text(L"Choose a folder that is opened at the start:"));
    }
}

void CStartGroup::Show(workbench::Settings const & settings)
{
    std::list<CString> folders;
    for (std::filesystem::path const & folder : settings.startFolders)
    {
        folders.emplace_back(folder.wstring().c_str());
    }
    m_folders.FillItems(folders, 0, true);
    m_newFolder.SetWindowText(CString());
    EnableButtons();
}

bool CStartGroup::Take(workbench::Settings & settings)
{
    settings.startFolders.clear();
    for (int i = 0; i < m_folders.GetCount(); ++i)
    {
        CString folder;
        m_folders.GetText(i, folder);
        settings.startFolders.emplace_back(folder.GetString());
    }
    return true;
}

/// What stands in the field, without blanks around it.
CString CStartGroup::NewFolder() const
{
    CString folder;
    m_newFolder.GetWindowText(folder);
    return folder.Trim();
}

void CStartGroup::OnAddFolder()
{
    CString const folder = NewFolder();
    if (folder.IsEmpty())
    {
        m_newFolder.BrowseNow();
        return;
    }
    std::error_code error;
    if (!std::filesystem::is_directory(folder.GetString(), error))
    {
        AfxMessageBox(Text(L"There is no folder of this name.") + (L"\n\n" + folder), MB_ICONEXCLAMATION);
        m_newFolder.SetFocus();
        return;
    }
    int const present = m_folders.FindStringExact(-1, folder);
    m_folders.SetCurSel(present != LB_ERR ? present : m_folders.AddItem(folder, m_folders.GetCount()));
    m_newFolder.SetWindowText(CString());
    m_newFolder.SetFocus();
    EnableButtons();
    Changed();
}

void CStartGroup::OnRemoveFolder()
{
    int const chosen = m_folders.GetCurSel();
    if (chosen == LB_ERR)
    {
        return;
    }
    m_folders.DeleteString(static_cast<UINT>(chosen));
    m_folders.SetCurSel(std::min(chosen, m_folders.GetCount() - 1));
    EnableButtons();
    Changed();
}

void CStartGroup::OnFolderChosen()
{
    EnableButtons();
}

/// What was chosen is meant to be added.
LRESULT CStartGroup::OnBrowsed(WPARAM, LPARAM)
{
    if (!NewFolder().IsEmpty())
    {
        OnAddFolder();
    }
    return 0;
}

void CStartGroup::EnableButtons()
{
    CWnd & button = *GetDlgItem(IDC_REMOVE_FOLDER);
    bool const removable = m_folders.GetCurSel() != LB_ERR;
    if (!removable && GetFocus() == &button)
    {
        m_folders.SetFocus();
    }
    button.EnableWindow(removable);
}
