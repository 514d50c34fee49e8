#pragma once
// The main frame of an application with one document, as the control bars know it.

#include <afxext.h>
#include <afxwin.h>

#include "detail/frameimpl.h"

class CMFCMenuBar;
class CMFCPopupMenu;

class FRAMEWORK_API CFrameWndEx : public CFrameWnd
{
    DECLARE_DYNCREATE(CFrameWndEx)

public:
    CFrameWndEx();
    ~CFrameWndEx() override;

    /// Brings the workspace back, too, if the application is a CWinAppEx.
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

    /// The sides that panes may be docked at; none before this call.
    BOOL EnableDocking(DWORD dwDockStyle);
    BOOL EnableAutoHidePanes(DWORD dwDockStyle);
    void EnableLoadDockState(BOOL bEnable = TRUE);
    CDockingManager * GetDockingManager();
    BOOL AddPane(CBasePane * pControlBar, BOOL bTail = TRUE);
    BOOL InsertPane(CBasePane * pControlBar, CBasePane * pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane * pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane * pBarReplacement);
    /// At the side of the identifier (AFX_IDW_DOCKBAR_...), or of the pane's style, or as the rectangle lies.
    void DockPane(CBasePane * pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    BOOL DockPaneLeftOf(CPane * pBar, CPane * pLeftOf);
    void ShowPane(CBasePane * pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    CBasePane * GetPane(UINT nID);
    CBasePane * PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar, CRuntimeClass * pRTCBarType) const;
    virtual void AdjustDockingLayout(HDWP hdwp = nullptr);
    virtual BOOL OnCloseDockingPane(CDockablePane * pPane);
    virtual BOOL OnCloseMiniFrame(CPaneFrameWnd * pWnd);
    virtual BOOL OnShowPanes(BOOL bShow);

    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG * pMsg) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    void RecalcLayout(BOOL bNotify = TRUE) override;

protected:
    afx_msg void OnClose();
    afx_msg void OnDestroy();

private:
    friend class CWinAppEx;
    friend class framework::DockHost;

    LRESULT HandleArrange(WPARAM wParam, LPARAM lParam);
    LRESULT HandleIdleUpdate(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSettingChange(WPARAM wParam, LPARAM lParam);

    UINT m_resource;
    CFrameImpl m_impl;

    DECLARE_MESSAGE_MAP()
};
