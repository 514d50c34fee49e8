#pragma once
// What keeps the panes of a frame in their places.

#include <afxcoll.h>

#include "detail/panestyles.h"

class CFrameImpl;

/// One for each frame with docking, which owns it. Panes belong to the program.
class FRAMEWORK_API CDockingManager : public CObject
{
    DECLARE_DYNCREATE(CDockingManager)

public:
    CDockingManager();
    ~CDockingManager() override;

    static int m_nDockSensitivity; // how near the edge of a pane the mouse has to be for a landing there, at 96 dpi

    BOOL Create(CFrameWnd * pParentWnd);
    CFrameWnd * GetDockSiteFrameWnd() const;

    BOOL AddPane(CBasePane * pWnd, BOOL bTail = TRUE, BOOL bAutoHide = FALSE, BOOL bInsertForOuterEdge = FALSE);
    BOOL InsertPane(CBasePane * pControlBar, CBasePane * pTarget, BOOL bAfter = TRUE);
    void RemovePaneFromDockManager(CBasePane * pWnd, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide = FALSE,
                                   CBasePane * pBarReplacement = nullptr);
    virtual CBasePane * FindPaneByID(UINT uBarID, BOOL bSearchMiniFrames = FALSE);
    void GetPaneList(CObList & lstBars, BOOL bIncludeAutohide = FALSE, CRuntimeClass * pRTCFilter = nullptr,
                     BOOL bIncludeTabs = FALSE);

    BOOL EnableDocking(DWORD dwStyle);
    BOOL EnableAutoHidePanes(DWORD dwStyle);
    DWORD GetEnabledAutoHideAlignment() const;
    void DockPane(CBasePane * pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    BOOL DockPaneLeftOf(CPane * pBarToDock, CPane * pTargetBar);
    /// Slides back what has slid out of the strips.
    void HideAutoHidePanes(CDockablePane * pBarToExclude = nullptr, BOOL bImmediately = FALSE);
    virtual BOOL ShowPanes(BOOL bShow);

    virtual void AdjustDockingLayout(HDWP hdwp = nullptr);
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    BOOL IsInAdjustLayout() const;
    /// Nothing is laid out while it is locked; the last call that unlocks does it.
    void LockUpdate(BOOL bLock);
    CRect GetClientAreaBounds() const;
    void GetClientAreaBounds(CRect & rcClient);
    CRect GetOuterEdgeBounds() const;
    virtual CBasePane * PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar = false,
                                      CRuntimeClass * pRTCBarType = nullptr, BOOL bCheckVisibility = FALSE,
                                      const CBasePane * pBarToIgnore = nullptr) const;

    /// The frame's panes and their places, below "Workspace" in the application's registry key or below what is given.
    virtual BOOL LoadState(LPCTSTR lpszProfileName = nullptr, UINT uiID = static_cast<UINT>(-1));
    virtual BOOL SaveState(LPCTSTR lpszProfileName = nullptr, UINT uiID = static_cast<UINT>(-1));
    void DisableRestoreDockState(BOOL bDisable = TRUE);

    static AFX_DOCK_TYPE GetDockingMode();

private:
    friend class CFrameImpl;
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    framework::DockHost * m_host; // null until Create
};
