#pragma once
// Panes with a caption, which share the space around a frame's client area or float in frames of their own.

#include "afxpane.h"

/// The object may be deleted at any time; it leaves its place to the others. Its frame must be one with docking.
class FRAMEWORK_API CDockablePane : public CPane
{
    DECLARE_DYNCREATE(CDockablePane)

public:
    CDockablePane();
    ~CDockablePane() override;

    using CPane::Create;
    using CPane::CreateEx;
    /// The pane has its window, and no place yet, unless the workspace that was loaded has one for its identifier.
    virtual BOOL Create(LPCTSTR lpszCaption, CWnd * pParentWnd, const RECT & rect, BOOL bHasGripper, UINT nID,
                        DWORD dwStyle, DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                        DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE, CCreateContext * pContext = nullptr);
    virtual BOOL Create(LPCTSTR lpszWindowName, CWnd * pParentWnd, CSize sizeDefault, BOOL bHasGripper, UINT nID,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_HIDE_INPLACE,
                        DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                        DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE);
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszCaption, CWnd * pParentWnd, const RECT & rect, BOOL bHasGripper,
                          UINT nID, DWORD dwStyle, DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                          DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE,
                          CCreateContext * pContext = nullptr);

    /// Makes this pane a tab beside another; gives the pane that is attached, or null.
    virtual CDockablePane * AttachToTabWnd(CDockablePane * pTabControlBarAttachTo, AFX_DOCK_METHOD dockMethod,
                                           BOOL bSetActive = TRUE, CDockablePane ** ppTabbedControlBar = nullptr);
    /// Docks it at that side of another pane.
    virtual BOOL DockToWindow(CDockablePane * pTargetWindow, DWORD dwAlignment, LPCRECT lpRect = nullptr);
    /// Back to where it was docked last.
    BOOL DockToRecentPos();
    /// Folds it away to the strip at that side of the frame, with the tabs beside it, or brings it back.
    virtual CMFCAutoHideBar * SetAutoHideMode(BOOL bMode, DWORD dwAlignment,
                                              CMFCAutoHideBar * pCurrAutoHideBar = nullptr, BOOL bUseTimer = TRUE);
    /// Shows a pane that is folded away, or hides it again.
    virtual void Slide(BOOL bSlideOut, BOOL bUseTimer = TRUE);
    virtual void OnSlide(BOOL bSlideOut);

    static BOOL m_bDisableAnimation;
    static BOOL m_bHideInAutoHideMode; // hiding a pane that is folded away takes it from the strip
    static int m_nSlideSteps;

    virtual CTabbedPane * CreateTabbedPane();
    CRuntimeClass * GetTabbedPaneRTC() const;
    void SetTabbedPaneRTC(CRuntimeClass * pRTC);
    virtual void DrawCaption(CDC * pDC, CRect rectCaption);
    virtual int HitTest(CPoint point, BOOL bDetectCaption = FALSE);
    virtual void OnPressButtons(UINT nHit);
    virtual void GetTabArea(CRect & rectTabAreaTop, CRect & rectTabAreaBottom) const;
    virtual BOOL HasAutoHideMode() const;
    virtual BOOL IsHideInAutoHideMode() const;
    virtual BOOL IsTabLocationBottom() const;
    BOOL IsTracked() const;

    BOOL CanAcceptPane(const CBasePane * pBar) const override;
    BOOL CanAutoHide() const override;
    BOOL CanBeAttached() const override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void EnableGripper(BOOL bEnable) override;
    int GetCaptionHeight() const override;
    BOOL IsAutoHideMode() const override;
    BOOL IsDocked() const override;
    BOOL IsInFloatingMultiPaneFrameWnd() const override;
    BOOL IsResizable() const override;
    BOOL IsVisible() const override;
    BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1, UINT uiID = static_cast<UINT>(-1)) override;
    void OnAfterChangeParent(CWnd * pWndOldParent) override;
    void OnBeforeChangeParent(CWnd * pWndNewParent, BOOL bDelay = FALSE) override;
    BOOL OnBeforeFloat(CRect & rectFloat, AFX_DOCK_METHOD dockMethod) override;
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    void ToggleAutoHide() override;
    void UndockPane(BOOL bDelay = FALSE) override;

protected:
    afx_msg void OnContextMenu(CWnd * pWnd, CPoint point);
    afx_msg void OnDestroy();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnNcRButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcRButtonUp(UINT nHitTest, CPoint point);

private:
    friend class CBaseTabbedPane;
    friend class CTabbedPane;
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    LRESULT HandleSetText(WPARAM wParam, LPARAM lParam);

    framework::DockHost * m_host; // null while it belongs to no frame with docking
    UINT m_dockId;                // by which the layout knows it
    CRuntimeClass * m_tabbedPaneClass;
    CSize m_defaultSize;
    bool m_captionShown; // as the place wants it
    bool m_active;       // as the caption was painted

    DECLARE_MESSAGE_MAP()
};
