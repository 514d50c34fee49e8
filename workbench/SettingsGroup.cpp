#include "SettingsGroup.h"

#include <uxtheme.h>

#include "BrowseKey.h"
#include "dialogs/Dialog3d.h"
#include "logic/ReadableColours.h"
#include "TemplateTexts.h"

CSettingsGroup::CSettingsGroup(UINT templateId)
    : CPropertyPage3d(CDialog3d::NO_DLL, templateId, 0U),
      m_template(templateId)
{
}

void CSettingsGroup::ShowTexts()
{
    if (m_hWnd != nullptr)
    {
        workbench::ShowTemplateTexts(*this, m_template);
    }
}

CString CSettingsGroup::Caption() const
{
    return workbench::TemplateCaption(m_template);
}

bool CSettingsGroup::HasDarkGround()
{
    return workbench::ContrastRatio(::GetSysColor(COLOR_BTNFACE), RGB(0, 0, 0)) < workbench::text_contrast;
}

BOOL CSettingsGroup::OnInitDialog()
{
    m_filled = false;
    m_changed = false;
    return CPropertyPage3d::OnInitDialog();
}

void CSettingsGroup::Follow(int id, CEdges const & edges)
{
    D3dLayoutChild(id, edges, nullptr);
}

void CSettingsGroup::Changed()
{
    // Controls tell also of what the program does to them.
    if (m_filled)
    {
        m_changed = true;
        SetModified();
    }
}

BOOL CSettingsGroup::OnSetActive()
{
    if (!m_filled)
    {
        if (HasDarkGround())
        {
            ::EnableThemeDialogTexture(m_hWnd, ETDT_DISABLE);
        }
        Show(m_current());
        D3dLayoutComplete();
        m_filled = true;
    }
    return CPropertyPage3d::OnSetActive();
}

BOOL CSettingsGroup::OnKillActive()
{
    workbench::Settings settings;
    return (!m_changed || Take(settings)) && CPropertyPage3d::OnKillActive();
}

BOOL CSettingsGroup::OnApply()
{
    if (!m_changed)
    {
        return TRUE;
    }
    workbench::Settings settings = m_current();
    if (!Take(settings))
    {
        return FALSE;
    }
    m_changed = false;
    m_onAccepted(settings);
    return TRUE;
}

/// Leaves the keys to the sheet, but for those that press a button of the page's or open its drop-downs.
BOOL CSettingsGroup::PreTranslateMessage(MSG * message)
{
    CWnd * const focus = GetFocus();
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN && focus != nullptr && IsChild(focus) &&
        (focus->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0)
    {
        unsigned long const style = focus->GetStyle() & BS_TYPEMASK;
        if (style == BS_PUSHBUTTON || style == BS_DEFPUSHBUTTON || style == BS_OWNERDRAW)
        {
            focus->PostMessage(BM_CLICK);
            return TRUE;
        }
    }
    return workbench::BrowseByKey(*message) || CPropertyPage3d::PreTranslateMessage(message);
}
