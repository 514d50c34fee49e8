#include "SettingsSheet.h"

#include <uxtheme.h>

#include "logic/Texts.h"
#include "WorkbenchDialog.h"

using workbench::Settings;
using workbench::Text;

namespace
{

// No theme has a class of this name. An empty one would be refused by some systems.
constexpr wchar_t no_theme[] = L" ";

} // namespace

BEGIN_MESSAGE_MAP(CSettingsSheet, CPropertySheet3d)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

// The title is also the name of the place, which is the same in all languages.
CSettingsSheet::CSettingsSheet() : CPropertySheet3d(L"Settings", nullptr, 0)
{
    SetResizable(true);
    for (CSettingsGroup * const group : Groups())
    {
        group->m_current = [this] { return m_current ? m_current() : Settings(); };
        group->m_onAccepted = [this](Settings const & settings) {
            // A copy, as what it does may replace it.
            if (auto const onAccepted = m_onAccepted)
            {
                onAccepted(settings);
            }
        };
        AddPage(group);
    }
}

std::array<CSettingsGroup *, 5> CSettingsSheet::Groups()
{
    return {&m_start, &m_waveform, &m_spectrogram, &m_list, &m_dialogs};
}

bool CSettingsSheet::Open(CWnd & owner)
{
    bool const opens = !IsOpen();
    if (opens)
    {
        int const page = workbench::ReadSettingsPage();
        SetActivePage(page < GetPageCount() ? page : 0);
    }
    if (DisplayDialog(&owner) == 0)
    {
        return false;
    }
    if (opens)
    {
        BringOntoScreen(*this);
    }
    SetActiveWindow();
    if (opens && m_onOpened)
    {
        m_onOpened(true);
    }
    return true;
}

BOOL CSettingsSheet::OnInitDialog()
{
    BOOL const result = CPropertySheet3d::OnInitDialog();
    ShowOwnTexts();
    // Visual styles are made for a light ground.
    if (CSettingsGroup::HasDarkGround())
    {
        ::SetWindowTheme(GetTabControl()->m_hWnd, no_theme, no_theme);
    }
    StretchTabs();
    return result;
}

void CSettingsSheet::ShowOwnTexts()
{
    SetWindowText(Text(L"Settings"));
    // The system has them in its own language.
    SetDlgItemText(IDCANCEL, Text(L"Cancel"));
    SetDlgItemText(ID_APPLY_NOW, Text(L"&Apply"));
}

void CSettingsSheet::ShowTexts()
{
    if (!IsOpen())
    {
        return;
    }
    ShowOwnTexts();
    int index = 0;
    for (CSettingsGroup * const group : Groups())
    {
        CString caption = group->Caption();
        TCITEM item{};
        item.mask = TCIF_TEXT;
        item.pszText = caption.GetBuffer();
        GetTabControl()->SetItem(index++, &item);
        group->ShowTexts();
    }
}

void CSettingsSheet::FollowColumns(std::vector<int> const & order)
{
    if (IsOpen())
    {
        m_list.FollowColumns(order);
    }
}

/// Lets the frame around the pages follow the sheet's height, too.
void CSettingsSheet::StretchTabs()
{
    MINMAXINFO design{};
    SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&design));
    CRect present;
    GetWindowRect(&present);
    CRect tabs;
    GetTabControl()->GetWindowRect(&tabs);
    ScreenToClient(&tabs);
    tabs.right -= present.Width() - design.ptMinTrackSize.x; // the height has not grown yet
    D3dLayoutChild(GetTabControl(), CEdges::TOP_LEFT_BOTTOM_RIGHT(), &tabs);
    D3dLayoutComplete();
}

/// The button that applies is disabled then and loses the focus; without one, no key would be heard any more.
LRESULT CSettingsSheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT const result = CPropertySheet3d::WindowProc(message, wParam, lParam);
    if (message == WM_COMMAND && LOWORD(wParam) == ID_APPLY_NOW && m_hWnd != nullptr)
    {
        HWND const focus = ::GetFocus();
        if (::GetActiveWindow() == m_hWnd && (focus == nullptr || !::IsWindowEnabled(focus)))
        {
            SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(::GetDlgItem(m_hWnd, IDOK)), TRUE);
        }
    }
    return result;
}

void CSettingsSheet::OnActivatePage(CPropertyPage * page)
{
    m_shownPage = GetPageIndex(page);
    CPropertySheet3d::OnActivatePage(page);
}

void CSettingsSheet::OnDestroy()
{
    workbench::StoreSettingsPage(m_shownPage);
    if (m_onOpened)
    {
        m_onOpened(false);
    }
    CPropertySheet3d::OnDestroy();
}
