#pragma once
// The strip at a side of the frame with the names of panes that are folded away there.

#include "afxpane.h"

#include <vector>

class FRAMEWORK_API CMFCAutoHideBar : public CPane
{
    DECLARE_DYNCREATE(CMFCAutoHideBar)

public:
    CMFCAutoHideBar();
    ~CMFCAutoHideBar() override;

    static int m_nShowAHWndDelay; // ms from when the mouse comes to when a pane slides out

    CDockablePane * GetFirstAHWindow();
    int GetVisibleCount();
    BOOL AllowShowOnPaneMenu() const override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    BOOL OnShowControlBarMenu(CPoint point) override;

protected:
    void PostNcDestroy() override;

    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR nIDEvent);

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    framework::DockHost * m_host;
    UINT m_pointed;            // the pane whose name the mouse is over, or 0
    std::vector<UINT> m_shown; // as it is painted
    UINT m_shownSlid;

    DECLARE_MESSAGE_MAP()
};
