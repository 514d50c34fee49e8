#include "DialogsGroup.h"

#include <cmath>

#include "logic/NumberSigns.h"
#include "logic/Texts.h"
#include "resource.h"

using workbench::Settings;
using workbench::Text;

namespace
{

constexpr int opacities[] = {25, 50, 75, 100}; // percent

/// The number that a text is, -1 if it is none.
int NumberOf(CString const & text)
{
    std::optional<double> const number = workbench::ParseNumber(text.GetString());
    return number && *number >= 0 && *number <= 1000 ? static_cast<int>(std::lround(*number)) : -1;
}

} // namespace

BEGIN_MESSAGE_MAP(CDialogsGroup, CSettingsGroup)
    ON_BN_CLICKED(IDC_FADE_IN, &CDialogsGroup::OnChange)
    ON_BN_CLICKED(IDC_DRAG_BACKGROUND, &CDialogsGroup::OnChange)
    ON_CBN_SELCHANGE(IDC_OPACITY, &CDialogsGroup::OnChange)
    ON_CBN_EDITCHANGE(IDC_OPACITY, &CDialogsGroup::OnChange)
END_MESSAGE_MAP()

CDialogsGroup::CDialogsGroup() : CSettingsGroup(IDD_SETTINGS_DIALOGS) {}

void CDialogsGroup::DoDataExchange(CDataExchange * exchange)
{
    CSettingsGroup::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_OPACITY, m_opacity);
}

BOOL CDialogsGroup::OnInitDialog()
{
    CSettingsGroup::OnInitDialog();
    for (int const opacity : opacities)
    {
        m_opacity.AddItem(std::to_wstring(opacity).c_str(), opacity);
    }
    return TRUE;
}

void CDialogsGroup::Show(Settings const & settings)
{
    CheckDlgButton(IDC_FADE_IN, settings.fadeIn ? BST_CHECKED : BST_UNCHECKED);
    CheckDlgButton(IDC_DRAG_BACKGROUND, settings.dragByBackground ? BST_CHECKED : BST_UNCHECKED);
    if (m_opacity.SelectItemData(settings.inactiveOpacity) < 0)
    {
        m_opacity.SetWindowText(std::to_wstring(settings.inactiveOpacity).c_str());
    }
}

bool CDialogsGroup::Take(Settings & settings)
{
    CString text;
    m_opacity.GetWindowText(text);
    int const opacity = NumberOf(text.Trim());
    if (opacity < Settings::least_opacity || opacity > Settings::most_opacity)
    {
        AfxMessageBox(Text(L"The opacity must be between 20 and 100 percent."), MB_ICONEXCLAMATION);
        if (m_opacity.m_hWnd != nullptr) // the sheet can be closed meanwhile
        {
            m_opacity.SetFocus();
            m_opacity.SetEditSel(0, -1);
        }
        return false;
    }
    settings.inactiveOpacity = opacity;
    settings.fadeIn = IsDlgButtonChecked(IDC_FADE_IN) == BST_CHECKED;
    settings.dragByBackground = IsDlgButtonChecked(IDC_DRAG_BACKGROUND) == BST_CHECKED;
    return true;
}

void CDialogsGroup::OnChange()
{
    Changed();
}
