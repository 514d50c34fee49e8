#pragma once
// What users drag to share the space between panes anew.

#include "afxbasepane.h"

class FRAMEWORK_API CPaneDivider : public CBasePane
{
    DECLARE_DYNCREATE(CPaneDivider)

public:
    CPaneDivider();
    ~CPaneDivider() override;

    static int m_nDefaultWidth;
    static int __stdcall GetDefaultWidth();
    int GetWidth() const;
    /// Whether it lies across, between panes above each other.
    BOOL IsHorizontal() const override;
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    /// Moves it as far as the panes' least sizes allow.
    virtual void Move(CPoint & ptOffset, BOOL bAdjustLayout = TRUE);

private:
    friend class framework::DockHost;
    friend struct framework::PaneAccess;

    void PostNcDestroy() override;

    afx_msg void OnDestroy();
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnPaint();
    afx_msg BOOL OnSetCursor(CWnd * pWnd, UINT nHitTest, UINT message);

    framework::DockHost * m_host;
    UINT m_splitId; // the layout's number of what it divides
    int m_index;    // among the dividers there
    UINT m_floatId; // of the floating frame that it is in, or 0
    bool m_horizontal;

    DECLARE_MESSAGE_MAP()
};
