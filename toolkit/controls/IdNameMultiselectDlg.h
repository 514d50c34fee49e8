#pragma once

#include <afxdialogex.h>
#include <afxwin.h>

#include "controls/IdNameMultiselectCtrl.h"
#include "frame/Export.h"

/// A small modal dialog that holds one id-name multiselect with buttons for OK and cancel. Fill m_control, then call
/// DoModal; after IDOK its selection is what the user has ticked. It can be opened again.
class INSTRUMENT_UI_API CIdNameMultiselectDlg : public CDialogEx
{
    DECLARE_DYNAMIC(CIdNameMultiselectDlg)

public:
    /// parent: the owner of the drop-down; may be null.
    explicit CIdNameMultiselectDlg(CWnd * parent = nullptr);

    /// The toolkit's module is the current resource module while the dialog is open.
    INT_PTR DoModal() override;

    /// Where the dialog opens, in screen pixels; where the system puts it while this is empty.
    CRect m_placement;
    CIdNameMultiselectCtrl m_control;

protected:
    void DoDataExchange(CDataExchange * exchange) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    /// The control fills the client area, unless that is below 100 by 70 pixels.
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnIdNameMultiselectEvent(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};
