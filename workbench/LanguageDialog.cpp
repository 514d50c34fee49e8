#include "LanguageDialog.h"

#include "logic/Texts.h"
#include "Settings.h"

using workbench::Text;

CLanguageDialog::CLanguageDialog(unsigned short languageId, CWnd & owner) : CSprachauswahlDlg(languageId, &owner) {}

/// The dialog's one combo box.
CComboBox & CLanguageDialog::List()
{
    return static_cast<CComboBox &>(*CWnd::FromHandle(::FindWindowExW(m_hWnd, nullptr, WC_COMBOBOXW, nullptr)));
}

BOOL CLanguageDialog::OnInitDialog()
{
    BOOL const result = CSprachauswahlDlg::OnInitDialog();
    CComboBox & list = List();
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

BOOL CLanguageDialog::PreTranslateMessage(MSG * message)
{
    if (message->message == WM_KEYDOWN)
    {
        m_completes = message->wParam != VK_BACK && message->wParam != VK_DELETE && ::GetKeyState(VK_CONTROL) >= 0;
    }
    return CSprachauswahlDlg::PreTranslateMessage(message);
}

BOOL CLanguageDialog::OnCommand(WPARAM wide, LPARAM parameter)
{
    if (HIWORD(wide) == CBN_EDITCHANGE && reinterpret_cast<HWND>(parameter) == List().m_hWnd && m_completes)
    {
        CompleteTyped();
    }
    return CSprachauswahlDlg::OnCommand(wide, parameter);
}

/// Chooses the first language that begins with what is typed. The rest of its name is selected, so that the next letter
/// takes its place.
void CLanguageDialog::CompleteTyped()
{
    CComboBox & list = List();
    CString typed;
    list.GetWindowText(typed);
    int const item = typed.IsEmpty() ? CB_ERR : list.FindString(-1, typed);
    if (item != CB_ERR)
    {
        m_completes = false; // what follows is no key
        list.SetCurSel(item);
        list.SetEditSel(typed.GetLength(), -1);
    }
}

void CLanguageDialog::OnOK()
{
    CComboBox & list = List();
    CString typed;
    list.GetWindowText(typed);
    typed.Trim();
    if (list.GetCurSel() == CB_ERR && !typed.IsEmpty())
    {
        int const item = list.FindStringExact(-1, typed);
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
