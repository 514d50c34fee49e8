#pragma once
// What all panes have in common.

#include "detail/panestyles.h"

/// A window along a side of a frame, or in the space that panes share there, or in a frame of its own.
class FRAMEWORK_API CBasePane : public CWnd
{
    DECLARE_DYNAMIC(CBasePane)

public:
    CBasePane();
    ~CBasePane() override;

    using CWnd::CreateEx;
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT & rect, CWnd * pParentWnd, UINT nID, DWORD dwControlBarStyle = 0,
                          CCreateContext * pContext = nullptr);
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

    // Styles
    /// CBRS_...
    virtual DWORD GetPaneStyle() const;
    virtual void SetPaneStyle(DWORD dwNewStyle);
    /// AFX_CBRS_...
    virtual DWORD GetControlBarStyle() const;
    virtual void SetControlBarStyle(DWORD dwNewStyle);
    /// CBRS_ALIGN_...: the side that the pane is at.
    virtual DWORD GetCurrentAlignment() const;
    virtual void SetPaneAlignment(DWORD dwAlignment);
    virtual BOOL IsHorizontal() const;
    /// The sides that it may be docked at; all, unless EnableDocking says otherwise.
    virtual DWORD GetEnabledAlignment() const;
    virtual void EnableDocking(DWORD dwAlignment);
    virtual AFX_DOCK_TYPE GetDockingMode() const;
    void SetDockingMode(AFX_DOCK_TYPE dockModeNew);
    virtual void EnableGripper(BOOL bEnable);
    virtual int GetCaptionHeight() const;

    // What it can do
    virtual BOOL CanAcceptPane(const CBasePane * pBar) const;
    virtual BOOL CanAutoHide() const;
    virtual BOOL CanBeAttached() const;
    virtual BOOL CanBeClosed() const;
    virtual BOOL CanBeDocked(CBasePane * pDockBar) const;
    virtual BOOL CanBeResized() const;
    virtual BOOL CanBeTabbedDocument() const;
    virtual BOOL CanFloat() const;
    virtual BOOL CanFocus() const;
    virtual BOOL IsResizable() const;
    virtual BOOL DoesAllowDynInsertBefore() const;
    virtual BOOL HideInPrintPreviewMode() const;

    // Where it is
    virtual BOOL IsAutoHideMode() const;
    virtual BOOL IsDocked() const;
    virtual BOOL IsFloating() const;
    virtual BOOL IsTabbed() const;
    virtual BOOL IsMDITabbed() const;
    virtual BOOL IsInFloatingMultiPaneFrameWnd() const;
    virtual BOOL IsVisible() const;
    BOOL IsPaneVisible() const;
    virtual BOOL GetRecentVisibleState() const;
    virtual BOOL IsRestoredFromRegistry() const;
    virtual CWnd * GetDockSiteFrameWnd() const;
    virtual CPaneFrameWnd * GetParentMiniFrame(BOOL bNoAssert = FALSE) const;
    CBaseTabbedPane * GetParentTabbedPane() const;

    // Placing it
    virtual BOOL DockPane(CBasePane * pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = nullptr, DWORD dwDockFlags = DT_DOCK_LAST,
                                   CBasePane * pRelativeBar = nullptr, int nRelativeIndex = -1,
                                   BOOL bOuterEdge = FALSE);
    virtual BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true);
    virtual void UndockPane(BOOL bDelay = FALSE);
    virtual void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate);
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual CSize StretchPane(int nLength, BOOL bVert);
    virtual HDWP MoveWindow(CRect & rect, BOOL bRepaint = TRUE, HDWP hdwp = nullptr);
    virtual HDWP SetWindowPos(const CWnd * pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags,
                              HDWP hdwp = nullptr);
    virtual void AdjustDockingLayout(HDWP hdwp = nullptr);
    virtual void AdjustLayout();
    virtual void RecalcLayout();
    virtual void OnBeforeChangeParent(CWnd * pWndNewParent, BOOL bDelay = FALSE);
    virtual void OnAfterChangeParent(CWnd * pWndOldParent);
    virtual void OnPaneContextMenu(CWnd * pParentFrame, CPoint point);

    virtual void DoPaint(CDC * pDC);
    virtual void OnDrawCaption();
    CFont * SelectDefaultFont(CDC * pDC);
    virtual HICON GetPaneIcon(BOOL bBigIcon);

    virtual BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1, UINT uiID = static_cast<UINT>(-1));
    virtual BOOL SaveState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1, UINT uiID = static_cast<UINT>(-1));

protected:
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);

private:
    friend class CDockablePane;
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    LRESULT HandleSizeParent(WPARAM wParam, LPARAM lParam);

    DWORD m_style;           // CBRS_...
    DWORD m_controlBarStyle; // AFX_CBRS_...
    DWORD m_enabledAlignment;
    AFX_DOCK_TYPE m_dockingMode;
    bool m_gripper;
    bool m_restored;      // placed as the workspace has it
    bool m_recentVisible; // as the workspace has it

    DECLARE_MESSAGE_MAP()
};
