#pragma once
// The main frame of an application with child frames, as the control bars know it.

#include <afxext.h>
#include <afxwin.h>

class CMFCMenuBar;
class CMFCPopupMenu;

class FRAMEWORK_API CMDIFrameWndEx : public CMDIFrameWnd
{
    DECLARE_DYNCREATE(CMDIFrameWndEx)

public:
    CMDIFrameWndEx();
    ~CMDIFrameWndEx() override;

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
    void RecalcLayout(BOOL bNotify = TRUE) override;

private:
    UINT m_resource;
};
