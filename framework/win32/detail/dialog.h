#pragma once
// CDialog and the dialog data exchange. Included by afxwin.h, after the windows and the application.

#include "../afxdd_.h"

namespace framework
{
struct DataExchangeAccess;
struct DialogAccess;

/// What a dialog knows of its template and of its modal life.
struct DialogState
{
    DialogState() = default;
    DialogState(DialogState const &) = delete;
    DialogState & operator=(DialogState const &) = delete;
    ~DialogState()
    {
        if (creation != nullptr)
            *creation = false;
    }

    CString templateName;                    // empty where the template has an identifier or is in memory
    UINT templateId = 0;                     // resource identifier, 0 = none
    LPCDLGTEMPLATE memoryTemplate = nullptr; // InitModalIndirect; the caller keeps it
    HGLOBAL globalTemplate = nullptr;        // InitModalIndirect with a memory handle
    void * initData = nullptr;               // in the form of an RT_DLGINIT resource
    CWnd * parent = nullptr;                 // as given to the constructor
    UINT helpId = 0;
    INT_PTR result = -1;
    bool modal = false;
    bool * creation = nullptr; // while the window is created; becomes false if the object ends therein
    bool ended = false;
    bool centre = false; // the template leaves the position open
};
} // namespace framework

/// Carries one exchange of values between a window's controls and its members; see CWnd::UpdateData.
class FRAMEWORK_API CDataExchange
{
public:
    CDataExchange(CWnd * pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd * m_pDlgWnd;

    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    void Fail();

private:
    friend struct framework::DataExchangeAccess;

    HWND m_lastControl = nullptr;
    bool m_lastIsEdit = false;
};

class FRAMEWORK_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd * pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd * pParentWnd = nullptr);
    ~CDialog() override;

    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd * pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd * pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd * pParentWnd = nullptr,
                                void * lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd * pParentWnd = nullptr);
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd * pParentWnd = nullptr, void * lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd * pParentWnd = nullptr);

    virtual INT_PTR DoModal();
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const;
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd * pWndCtrl);
    void SetDefID(UINT nID);
    DWORD GetDefID() const;
    void SetHelpID(UINT nIDR);

    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont * pFont);

    BOOL PreTranslateMessage(MSG * pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    BOOL ContinueModal() override;
    void EndModalLoop(int nResult) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();

private:
    friend struct framework::DialogAccess;

    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);

    framework::DialogState m_state;

    DECLARE_MESSAGE_MAP()
};
