#include "OpenFolderDialog.h"

#include <list>
#include <system_error>

#include "dialogs/FolderDialog.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

BEGIN_MESSAGE_MAP(COpenFolderDialog, CDialog3d)
    ON_BN_CLICKED(IDC_BROWSE, &COpenFolderDialog::OnBrowse)
END_MESSAGE_MAP()

COpenFolderDialog::COpenFolderDialog(workbench::Settings const & settings, CWnd & owner)
    : CDialog3d(NO_DLL, IDD_OPEN_FOLDER, &owner),
      m_recent(settings.recentFolders)
{
    SetDialogTitle(Text(L"Open Folder"));
    SetGenuineTitle(L"Open Folder");
    m_fadeInOnCreate = settings.fadeIn;
    SetGrabAndMove(settings.dragByBackground);
}

void COpenFolderDialog::DoDataExchange(CDataExchange * exchange)
{
    CDialog3d::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_FOLDER, m_folders);
}

BOOL COpenFolderDialog::OnInitDialog()
{
    CDialog3d::OnInitDialog();
    std::list<CString> folders;
    for (std::filesystem::path const & folder : m_recent)
    {
        folders.emplace_back(folder.c_str());
    }
    m_folders.FillItems(folders, 0, true);
    m_folders.AutoComplete(true);
    m_folders.SetCurSel(folders.empty() ? -1 : 0);
    D3dLayoutChild(IDC_FOLDER, CEdges::TOP_LEFT_RIGHT(), nullptr);
    D3dLayoutChild(IDC_BROWSE, CEdges::TOP_RIGHT(), nullptr);
    for (int const id : {IDOK, IDCANCEL})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutComplete(CDialogResizer::RESIZE_HORIZONTAL);
    m_folders.SetFocus();
    m_folders.SetEditSel(0, -1);
    return FALSE;
}

/// What stands in the field, without blanks and quotes around it.
CString COpenFolderDialog::Typed()
{
    CString folder;
    m_folders.GetWindowText(folder);
    folder.Trim();
    folder.Trim(L'"');
    return folder;
}

void COpenFolderDialog::OnBrowse()
{
    CFolderDialog dialog(m_hWnd);
    dialog.SetTitleMessage(Text(L"Choose a folder with recordings:"));
    if (CString const typed = Typed(); !typed.IsEmpty() && typed.GetLength() < MAX_PATH)
    {
        dialog.SetInitialDir(typed);
    }
    if (dialog.DoModal() == IDOK && ::IsWindow(m_folders.m_hWnd))
    {
        m_folders.SetWindowText(dialog.GetPathName());
        GotoDlgCtrl(GetDlgItem(IDOK));
    }
}

void COpenFolderDialog::OnOK()
{
    CString const folder = Typed();
    std::error_code error;
    if (folder.IsEmpty() || !std::filesystem::is_directory(folder.GetString(), error))
    {
        if (folder.IsEmpty())
        {
            AfxMessageBox(Text(L"Type the name of a folder, or choose one."), MB_ICONEXCLAMATION);
        }
        else
        {
            AfxMessageBox(Text(L"There is no folder of this name.") + (L"\n\n" + folder), MB_ICONEXCLAMATION);
        }
        m_folders.SetFocus();
        m_folders.SetEditSel(0, -1);
        return;
    }
    m_folder = folder.GetString();
    CDialog3d::OnOK();
}
