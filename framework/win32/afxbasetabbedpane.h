#pragma once
// Panes that share a place by tabs.

#include "afxdockablepane.h"
#include <afxcoll.h>

class FRAMEWORK_API CBaseTabbedPane : public CDockablePane
{
    DECLARE_DYNAMIC(CBaseTabbedPane)

public:
    /// Puts a pane among the tabs. Only panes can be there.
    virtual BOOL AddTab(CWnd * pNewBar, BOOL bVisible = TRUE, BOOL bSetActive = TRUE, BOOL bDetachable = TRUE);
    /// Takes it away; it keeps its window, hidden if wanted.
    virtual BOOL DetachPane(CWnd * pBar, BOOL bHide = FALSE);
    virtual BOOL RemovePane(CWnd * pBar);
    virtual BOOL FloatTab(CWnd * pBar, int nTabID, AFX_DOCK_METHOD dockMethod, BOOL bHide = FALSE);
    virtual BOOL ShowTab(CWnd * pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    virtual CWnd * FindPaneByID(UINT uBarID);
    virtual CWnd * FindBarByTabNumber(int nTabNum, BOOL bGetWrappedBar = FALSE);
    virtual CWnd * GetFirstVisibleTab(int & iTabNum);
    virtual void GetPaneList(CObList & lst, CRuntimeClass * pRTCFilter = nullptr);
    virtual int GetTabsNum() const;
    virtual int GetVisibleTabsNum() const;
    virtual BOOL IsHideSingleTab() const;
    virtual BOOL AllowDestroyEmptyTabbedPane() const;

    void GetMinSize(CSize & size) const override;
    void GetTabArea(CRect & rectTabAreaTop, CRect & rectTabAreaBottom) const override = 0;
    BOOL HasAutoHideMode() const override;
    void RecalcLayout() override;

protected:
    CBaseTabbedPane();

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    UINT m_group; // the layout's number of its place
};
