#pragma once

#include <afxdialogex.h>
#include <afxwin.h>

#include "frame/Export.h"

/// Lets the user choose the display language. OK switches the calling thread to it at once; storing the choice is the
/// caller's business. Windows that are open already keep their language.
class INSTRUMENT_UI_API CSprachauswahlDlg : public CDialogEx
{
    DECLARE_DYNAMIC(CSprachauswahlDlg)

public:
    /// languageId: the present language, which is selected at first; with one that the list lacks nothing is selected.
    /// parent: null for the application's main window.
    CSprachauswahlDlg(unsigned short languageId, CWnd * parent);

    /// IDOK or IDCANCEL. The toolkit's module is the current resource module while the dialog is open.
    INT_PTR DoModal() override;

    /// The language given, or the one chosen once OK was pressed.
    unsigned short SprachId() const;
    /// Whether OK changed the language.
    bool SpracheGeaendert() const;

protected:
    void DoDataExchange(CDataExchange * pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;

    /// Adds a language at the end of the list.
    void SpracheAufnehmen(wchar_t const * name, unsigned int languageId);

    DECLARE_MESSAGE_MAP()

private:
    unsigned short m_sprachId;
    bool m_spracheGeaendert;
    CComboBox m_sprachListe;
};
