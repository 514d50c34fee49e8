#include "SettingsDialog.h"

#include "logic/Texts.h"
#include "resource.h"

using workbench::Settings;
using workbench::Text;

namespace
{

// Lengths in dialog units.
constexpr int c_marginX = 7;
constexpr int c_marginY = 5;
constexpr int c_gap = 4;

} // namespace

BEGIN_MESSAGE_MAP(CSettingsDialog, CWorkbenchDialog)
    ON_BN_CLICKED(IDC_APPLY, &CSettingsDialog::OnApply)
END_MESSAGE_MAP()

CSettingsDialog::CSettingsDialog(CWnd & owner) : CWorkbenchDialog(IDD_SETTINGS, L"Settings", owner) {}

std::array<CSettingsGroup *, 4> CSettingsDialog::Groups()
{
    return {&m_start, &m_waveform, &m_list, &m_dialogs};
}

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
    PlaceGroups();
    D3dLayoutChild(IDD_SETTINGS_START, CEdges::TOP_LEFT_BOTTOM_RIGHT(), nullptr);
    for (auto const id : {IDD_SETTINGS_WAVEFORM, IDD_SETTINGS_LIST, IDD_SETTINGS_DIALOGS})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_LEFT_RIGHT(), nullptr);
    }
    for (auto const id : {IDOK, IDCANCEL, IDC_APPLY})
    {
        D3dLayoutChild(id, CEdges::BOTTOM_RIGHT(), nullptr);
    }
    D3dLayoutComplete(CDialogResizer::RESIZE_BOTH);
    EnableApply(false);
    GotoDlgCtrl(GetNextDlgTabItem(nullptr));
    return FALSE;
}

/// Puts the groups below one another, in front of the buttons for the tab key.
void CSettingsDialog::PlaceGroups()
{
    CRect margins(c_marginX, c_marginY, c_marginX, c_marginY + c_gap);
    MapDialogRect(&margins);
    CPoint corner = margins.TopLeft();
    HWND before = HWND_TOP;
    for (auto * const group : Groups())
    {
        if (!group->CreateGroup(*this))
        {
            continue;
        }
        CRect place;
        group->GetWindowRect(&place);
        ::SetWindowPos(group->m_hWnd, before, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
        group->Show(m_settings);
        group->m_onChanged = [this] { EnableApply(true); };
        group->ShowWindow(SW_SHOWNA);
        corner.y += place.Height() + margins.bottom - margins.top;
        before = group->m_hWnd;
    }
}

bool CSettingsDialog::Apply()
{
    auto settings = m_current ? m_current() : m_settings;
    for (auto * const group : Groups())
    {
        if (!group->Take(settings))
        {
            return false;
        }
    }
    m_settings = settings;
    EnableApply(false);
    // A copy, as what it does may replace it.
    if (auto const onAccepted = m_onAccepted)
    {
        onAccepted(settings);
    }
    return true;
}

void CSettingsDialog::EnableApply(bool enabled)
{
    auto & button = *GetDlgItem(IDC_APPLY);
    if (!enabled && GetFocus() == &button)
    {
        GotoDlgCtrl(GetDlgItem(IDOK));
    }
    button.EnableWindow(enabled);
}

void CSettingsDialog::OnApply()
{
    Apply();
}

void CSettingsDialog::OnOK()
{
    if (Apply())
    {
        CWorkbenchDialog::OnOK();
    }
}
