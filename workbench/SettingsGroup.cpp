#include "SettingsGroup.h"

#include <uxtheme.h>

#include "BrowseKey.h"
#include "logic/ReadableColours.h"

BEGIN_MESSAGE_MAP(CSettingsGroup, CDialog)
    ON_WM_SIZE()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

CSettingsGroup::CSettingsGroup(UINT templateId) : m_template(templateId) {}

bool CSettingsGroup::CreateGroup(CWnd & parent)
{
    m_layout.reset();
    if (!Create(m_template, &parent))
    {
        return false;
    }
    SetDlgCtrlID(static_cast<int>(m_template));
    return true;
}

BOOL CSettingsGroup::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_layout = std::make_unique<CDialogResizer>(*this, CString());
    // Titles of groups have the visual style's colour, which is made for a light ground.
    if (workbench::ContrastRatio(::GetSysColor(COLOR_BTNFACE), RGB(0, 0, 0)) < workbench::c_textContrast)
    {
        for (auto * child = GetWindow(GW_CHILD); child != nullptr; child = child->GetNextWindow())
        {
            if ((child->SendMessage(WM_GETDLGCODE) & DLGC_STATIC) != 0 &&
                (child->GetStyle() & BS_TYPEMASK) == BS_GROUPBOX)
            {
                ::SetWindowTheme(child->m_hWnd, L"", L"");
            }
        }
    }
    return FALSE; // the focus is the whole dialog's affair
}

void CSettingsGroup::Follow(int id, CEdges const & edges)
{
    m_layout->PositionChild(id, edges, nullptr);
}

void CSettingsGroup::Changed()
{
    // A copy, as what it does may replace it.
    if (auto const onChanged = m_onChanged)
    {
        onChanged();
    }
}

void CSettingsGroup::OnSize(UINT type, int width, int height)
{
    CDialog::OnSize(type, width, height);
    if (m_layout)
    {
        m_layout->OnSize();
    }
}

/// The background is the dialog's, which can be moved by it.
LRESULT CSettingsGroup::OnNcHitTest(CPoint point)
{
    auto const hit = CDialog::OnNcHitTest(point);
    return hit == HTCLIENT ? HTTRANSPARENT : hit;
}

/// Leaves the keys to the dialog that the group stands in, but for those that press a button of the group's or open its
/// drop-downs.
BOOL CSettingsGroup::PreTranslateMessage(MSG * message)
{
    auto * const focus = GetFocus();
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN && focus != nullptr && IsChild(focus) &&
        (focus->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0)
    {
        auto const style = focus->GetStyle() & BS_TYPEMASK;
        if (style == BS_PUSHBUTTON || style == BS_DEFPUSHBUTTON || style == BS_OWNERDRAW)
        {
            focus->PostMessage(BM_CLICK);
            return TRUE;
        }
    }
    return workbench::BrowseByKey(*message) || CWnd::PreTranslateMessage(message);
}

void CSettingsGroup::OnOK()
{
    GetParent()->SendMessage(WM_COMMAND, IDOK);
}

void CSettingsGroup::OnCancel()
{
    GetParent()->SendMessage(WM_COMMAND, IDCANCEL);
}
