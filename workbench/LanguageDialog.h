#pragma once

#include "dialogs/SprachauswahlDlg.h"

/// The toolkit's choice of a language, with the languages that the workbench has texts in and no others.
class CLanguageDialog : public CSprachauswahlDlg
{
public:
    /// languageId: the present language.
    CLanguageDialog(unsigned short languageId, CWnd & owner);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    CComboBox & List();
};
