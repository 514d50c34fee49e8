#pragma once
// Panes that users may move.

#include "afxbasepane.h"

class FRAMEWORK_API CPane : public CBasePane
{
    DECLARE_DYNCREATE(CPane)

public:
    CPane();
    ~CPane() override;

    using CBasePane::CreateEx;
    virtual BOOL Create(LPCTSTR lpszClassName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd, UINT nID,
                        DWORD dwControlBarStyle = AFX_DEFAULT_PANE_STYLE, CCreateContext * pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd,
                          UINT nID, DWORD dwControlBarStyle = AFX_DEFAULT_PANE_STYLE,
                          CCreateContext * pContext = nullptr);

    /// The space around its contents.
    CRect GetBorders() const;
    void SetBorders(int cxLeft = 0, int cyTop = 0, int cxRight = 0, int cyBottom = 0);
    void SetBorders(LPCRECT lpRect);
    void CalcInsideRect(CRect & rect, BOOL bHorz) const;

    /// Where there is room, the pane gets no smaller; by default what its caption takes.
    virtual void GetMinSize(CSize & size) const;
    void SetMinSize(const CSize & size);

    virtual void GetPaneName(CString & strName) const;
    virtual BOOL AllowShowOnPaneMenu() const;
    virtual void OnPressCloseButton();
    virtual BOOL OnShowControlBarMenu(CPoint point);
    virtual void ToggleAutoHide();
    virtual BOOL IsDragMode() const;

    virtual BOOL OnBeforeDock(CBasePane ** ppDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual void OnAfterDock(CBasePane * pBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual BOOL OnBeforeFloat(CRect & rectFloat, AFX_DOCK_METHOD dockMethod);
    virtual void OnAfterFloat();

    BOOL CanBeDocked(CBasePane * pDockBar) const override;
    BOOL CanBeTabbedDocument() const override;
    BOOL DockPane(CBasePane * pDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod) override;
    BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = nullptr, DWORD dwDockFlags = DT_DOCK_LAST,
                           CBasePane * pRelativeBar = nullptr, int nRelativeIndex = -1,
                           BOOL bOuterEdge = FALSE) override;
    BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true) override;
    BOOL IsInFloatingMultiPaneFrameWnd() const override;
    BOOL IsResizable() const override;
    BOOL IsTabbed() const override;
    void OnAfterChangeParent(CWnd * pWndOldParent) override;
    void OnBeforeChangeParent(CWnd * pWndNewParent, BOOL bDelay = FALSE) override;
    void RecalcLayout() override;
    void UndockPane(BOOL bDelay = FALSE) override;
    BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1, UINT uiID = static_cast<UINT>(-1)) override;
    BOOL SaveState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1, UINT uiID = static_cast<UINT>(-1)) override;

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    CRect m_borders;
    CSize m_minSize;
};
