#pragma once
// The main frame of an application with one document, as the control bars know it.

#include <afxext.h>
#include <afxwin.h>

class CMFCMenuBar;
class CMFCPopupMenu;

class FRAMEWORK_API CFrameWndEx : public CFrameWnd
{
    DECLARE_DYNCREATE(CFrameWndEx)

public:
    CFrameWndEx();
    ~CFrameWndEx() override;

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd * pParentWnd = nullptr, CCreateContext * pContext = nullptr) override;
    /// What LoadFrame was given.
    UINT GetDefaultResId() const;
    /// The bar that shows the frame's menu, or null.
    const CMFCMenuBar * GetMenuBar() const;
    /// The innermost popup menu that is open, or null.
    CMFCPopupMenu * GetActivePopup() const;
    /// A popup menu has its items and is about to show; FALSE keeps it from it.
    virtual BOOL OnShowPopupMenu(CMFCPopupMenu * pMenuPopup);
    virtual void OnClosePopupMenu(CMFCPopupMenu * pMenuPopup);
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void RecalcLayout(BOOL bNotify = TRUE) override;

private:
    UINT m_resource;
};
