#include "SettingsDialog.h"

#include <algorithm>

#include "dialogs/FolderDialog.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Settings;
using workbench::Text;

namespace
{

constexpr int c_opacities[] = {25, 50, 75, 100}; // percent
constexpr int c_textRoom = 8;                    // pixels beside a folder in the list

} // namespace

BEGIN_MESSAGE_MAP(CSettingsDialog, CWorkbenchDialog)
    ON_BN_CLICKED(IDC_ADD_FOLDER, &CSettingsDialog::OnAddFolder)
    ON_BN_CLICKED(IDC_REMOVE_FOLDER, &CSettingsDialog::OnRemoveFolder)
    ON_LBN_SELCHANGE(IDC_START_FOLDERS, &CSettingsDialog::OnFolderChosen)
END_MESSAGE_MAP()

CSettingsDialog::CSettingsDialog(CWnd & owner) : CWorkbenchDialog(IDD_SETTINGS, L"Settings", owner) {}

bool CSettingsDialog::OpenWith(Settings const & settings)
{
    if (!IsOpen())
    {
        m_settings = settings;
        Follow(settings);
    }
    return Open(Text(L"Settings"));
}

BOOL CSettingsDialog::OnInitDialog()
{
    CWorkbenchDialog::OnInitDialog();
    FillFolders();
    for (auto const id : {IDC_START_GROUP, IDC_START_FOLDERS})
    {
        D3dLayoutChild(id, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutChild(IDC_START_NOTE, CEdges::TOP_LEFT_RIGHT(), nullptr);
    for (auto const id : {IDC_ADD_FOLDER, IDC_REMOVE_FOLDER})
    {
        D3dLayoutChild(id, CEdges::TOP_RIGHT(), nullptr);
    }
    D3dLayoutChild(IDC_DIALOG_GROUP, CEdges::BOTTOM_LEFT_RIGHT(), nullptr);
    for (auto const id : {IDC_FADE_IN, IDC_DRAG_BACKGROUND, IDC_OPACITY_NOTE, IDC_OPACITY})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_LEFT(), nullptr);
    }
    for (auto const id : {IDOK, IDCANCEL})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    return TRUE;
}

void CSettingsDialog::DoDataExchange(CDataExchange * exchange)
{
    CWorkbenchDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_START_FOLDERS, m_folders);
    if (!exchange->m_bSaveAndValidate)
    {
        m_fadeIn = m_settings.fadeIn;
        m_dragByBackground = m_settings.dragByBackground;
        auto & box = *static_cast<CComboBox *>(GetDlgItem(IDC_OPACITY));
        for (auto const opacity : c_opacities)
        {
            CString text;
            text.Format(L"%d", opacity);
            box.AddString(text);
        }
    }
    DDX_Check(exchange, IDC_FADE_IN, m_fadeIn);
    DDX_Check(exchange, IDC_DRAG_BACKGROUND, m_dragByBackground);
    auto opacity = exchange->m_bSaveAndValidate ? 0 : m_settings.inactiveOpacity;
    DDX_CBInt(exchange, IDC_OPACITY, opacity);
    if (exchange->m_bSaveAndValidate)
    {
        exchange->PrepareCtrl(IDC_OPACITY);
        if (opacity < Settings::least_opacity || opacity > Settings::most_opacity)
        {
            AfxMessageBox(Text(L"The opacity must be between 20 and 100 percent."), MB_ICONEXCLAMATION);
            exchange->Fail();
        }
        m_settings.inactiveOpacity = opacity;
        m_settings.fadeIn = m_fadeIn != FALSE;
        m_settings.dragByBackground = m_dragByBackground != FALSE;
    }
}

void CSettingsDialog::OnOK()
{
    if (!UpdateData())
    {
        return;
    }
    m_settings.startFolders.clear();
    for (int i = 0; i < m_folders.GetCount(); ++i)
    {
        CString folder;
        m_folders.GetText(i, folder);
        m_settings.startFolders.emplace_back(folder.GetString());
    }
    if (m_onAccepted)
    {
        m_onAccepted(m_settings);
    }
    CWorkbenchDialog::OnOK();
}

void CSettingsDialog::FillFolders()
{
    for (auto const & folder : m_settings.startFolders)
    {
        AddFolder(folder.wstring().c_str());
    }
    ShowRemovable();
}

void CSettingsDialog::AddFolder(CString const & folder)
{
    m_folders.AddString(folder);
    CClientDC dc(&m_folders);
    auto * const font = dc.SelectObject(m_folders.GetFont());
    auto const width = dc.GetTextExtent(folder).cx + c_textRoom;
    dc.SelectObject(font);
    m_folders.SetHorizontalExtent(std::max(m_folders.GetHorizontalExtent(), static_cast<int>(width)));
}

void CSettingsDialog::OnAddFolder()
{
    CFolderDialog dialog(m_hWnd);
    dialog.SetTitleMessage(Text(L"Choose a folder that is opened at the start:"));
    if (dialog.DoModal() == IDOK && m_folders.FindStringExact(-1, dialog.GetPathName()) == LB_ERR)
    {
        AddFolder(dialog.GetPathName());
        m_folders.SetCurSel(m_folders.GetCount() - 1);
        ShowRemovable();
    }
}

void CSettingsDialog::OnRemoveFolder()
{
    auto const chosen = m_folders.GetCurSel();
    if (chosen == LB_ERR)
    {
        return;
    }
    m_folders.DeleteString(static_cast<UINT>(chosen));
    m_folders.SetCurSel(std::min(chosen, m_folders.GetCount() - 1));
    ShowRemovable();
}

void CSettingsDialog::OnFolderChosen()
{
    ShowRemovable();
}

void CSettingsDialog::ShowRemovable()
{
    auto & button = *GetDlgItem(IDC_REMOVE_FOLDER);
    auto const removable = m_folders.GetCurSel() != LB_ERR;
    if (!removable && GetFocus() == &button)
    {
        NextDlgCtrl();
    }
    button.EnableWindow(removable);
}
