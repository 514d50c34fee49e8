#pragma once
// A child frame, as the control bars know it.

#include <afxext.h>
#include <afxwin.h>

class FRAMEWORK_API CMDIChildWndEx : public CMDIChildWnd
{
    DECLARE_DYNCREATE(CMDIChildWndEx)

public:
    CMDIChildWndEx();
    ~CMDIChildWndEx() override;

    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void RecalcLayout(BOOL bNotify = TRUE) override;

    /// Text and icon for tabs and lists of windows.
    virtual CString GetFrameText() const;
    virtual HICON GetFrameIcon() const;
    virtual BOOL CanShowOnMDITabs();
    virtual BOOL CanShowOnWindowsList();
    /// The document's path, or null; pObj stays as it is.
    virtual LPCTSTR GetDocumentName(CObject ** pObj);
    virtual BOOL IsReadOnly();
    virtual void ActivateTopLevelFrame();
};
