#pragma once
// The frames of panes that float.

#include <memory>

#include "detail/panestyles.h"

/// A small frame that belongs to the main frame. Made and ended as panes float and leave it; deletes itself with its
/// window.
class FRAMEWORK_API CPaneFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CPaneFrameWnd)

public:
    CPaneFrameWnd();
    ~CPaneFrameWnd() override;

    virtual int GetPaneCount() const;
    virtual int GetVisiblePaneCount() const;
    virtual CWnd * GetPane() const;
    virtual CWnd * GetFirstVisiblePane() const;
    virtual CString GetCaptionText();
    virtual int GetCaptionHeight() const;
    virtual void GetCaptionRect(CRect & rectCaption) const;
    CDockingManager * GetDockingManager() const;
    CRect GetRecentFloatingRect() const;
    virtual void AdjustLayout();
    virtual void OnPaneRecalcLayout();
    virtual void SizeToContent();
    /// Back to where its panes were docked last.
    virtual void OnDockToRecentPos();
    static CBasePane * FindFloatingPaneByID(UINT nID);

protected:
    void PostNcDestroy() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;

    afx_msg void OnActivate(UINT nState, CWnd * pWndOther, BOOL bMinimized);
    afx_msg void OnClose();
    afx_msg void OnContextMenu(CWnd * pWnd, CPoint point);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO * lpMMI);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMove(int x, int y);

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    framework::DockHost * m_host;
    UINT m_floatId; // the layout's number of the frame

    DECLARE_MESSAGE_MAP()
};
