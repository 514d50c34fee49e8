#include "RenameDialog.h"

#include <utility>

#include "logic/RecordingFilter.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Text;

CRenameDialog::CRenameDialog(std::filesystem::path file, workbench::Settings const & settings, CWnd & owner)
    : CDialog3d(NO_DLL, IDD_RENAME, &owner),
      m_file(std::move(file))
{
    SetDialogTitle(Text(L"Rename"));
    SetGenuineTitle(L"Rename");
    m_fadeInOnCreate = settings.fadeIn;
    SetGrabAndMove(settings.dragByBackground);
}

void CRenameDialog::DoDataExchange(CDataExchange * exchange)
{
    CDialog3d::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_NEW_NAME, m_name);
}

BOOL CRenameDialog::OnInitDialog()
{
    CDialog3d::OnInitDialog();
    D3dLayoutChild(IDC_NEW_NAME, CEdges::TOP_LEFT_RIGHT(), nullptr);
    for (int const id : {IDOK, IDCANCEL})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutComplete(CDialogResizer::RESIZE_HORIZONTAL);
    m_name.SetWindowText(m_file.filename().c_str());
    m_name.SetFocus();
    // What it ends in stays mostly.
    m_name.SetSel(0, static_cast<int>(m_file.stem().wstring().size()));
    return FALSE;
}

void CRenameDialog::OnOK()
{
    CString typed;
    m_name.GetWindowText(typed);
    if (!workbench::IsFileName(typed.GetString()))
    {
        AfxMessageBox(Text(L"A file cannot have this name."), MB_ICONEXCLAMATION);
        m_name.SetFocus();
        return;
    }
    m_file.replace_filename(typed.GetString());
    CDialog3d::OnOK();
}
