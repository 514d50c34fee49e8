#pragma once
// Panes that share a place by tabs along its lower edge.

#include "afxbasetabbedpane.h"

#include <vector>

/// Made and ended by the frame as panes get together and leave each other.
class FRAMEWORK_API CTabbedPane : public CBaseTabbedPane
{
    DECLARE_DYNCREATE(CTabbedPane)

public:
    explicit CTabbedPane(BOOL bAutoDestroy = FALSE);
    ~CTabbedPane() override;

    static BOOL m_bTabsAlwaysTop;

    void GetTabArea(CRect & rectTabAreaTop, CRect & rectTabAreaBottom) const override;
    BOOL IsTabLocationBottom() const override;

protected:
    void PostNcDestroy() override;

    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnPaint();

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    std::vector<UINT> m_shownTabs; // as they are painted
    UINT m_shownFront;

    DECLARE_MESSAGE_MAP()
};
