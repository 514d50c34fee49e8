#include "LanguageDialog.h"

#include "Settings.h"
#include "logic/Texts.h"

using workbench::Text;

CLanguageDialog::CLanguageDialog(unsigned short languageId, CWnd & owner) : CSprachauswahlDlg(languageId, &owner) {}

/// The dialog's one combo box.
CComboBox & CLanguageDialog::List()
{
    return static_cast<CComboBox &>(*CWnd::FromHandle(::FindWindowExW(m_hWnd, nullptr, WC_COMBOBOXW, nullptr)));
}

BOOL CLanguageDialog::OnInitDialog()
{
    auto const result = CSprachauswahlDlg::OnInitDialog();
    auto & list = List();
    for (int item = list.GetCount() - 1; item >= 0; --item)
    {
        auto const id = static_cast<unsigned short>(list.GetItemData(item));
        if (id != workbench::users_default_language && !workbench::SpeaksLanguage(id))
        {
            list.DeleteString(item);
        }
    }
    // The module has this dialog in two languages only.
    SetWindowText(Text(L"Choose Display Language"));
    SetDlgItemText(IDCANCEL, Text(L"Cancel"));
    auto * const prompt = ::FindWindowExW(m_hWnd, nullptr, WC_STATICW, nullptr);
    ::SetWindowTextW(prompt, Text(L"Choose the language of the workbench:"));
    ::SetWindowTextW(::FindWindowExW(m_hWnd, prompt, WC_STATICW, nullptr),
                     Text(L"All windows of the workbench speak it at once."));
    return result;
}

void CLanguageDialog::OnOK()
{
    auto & list = List();
    CString typed;
    list.GetWindowText(typed);
    typed.Trim();
    if (list.GetCurSel() == CB_ERR && !typed.IsEmpty())
    {
        auto const item = list.FindStringExact(-1, typed);
        if (item == CB_ERR)
        {
            AfxMessageBox(Text(L"Choose one of the languages in the list."), MB_ICONEXCLAMATION);
            GotoDlgCtrl(&List());
            return;
        }
        list.SetCurSel(item);
    }
    CSprachauswahlDlg::OnOK();
}
