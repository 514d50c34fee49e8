#pragma once

#include "dialogs/SprachauswahlDlg.h"

/// The toolkit's choice of a language, with the languages that the workbench has texts in and no others. Letters that
/// are typed choose the first one that begins with them.
class CLanguageDialog : public CSprachauswahlDlg
{
public:
    /// languageId: the present language.
    CLanguageDialog(unsigned short languageId, CWnd & owner);

    BOOL PreTranslateMessage(MSG * message) override;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wide, LPARAM parameter) override;
    void OnOK() override;

private:
    CComboBox & List();
    void CompleteTyped();

    bool m_completes = false; ///< the last key was none that takes letters away
};
