#pragma once
// Bars of bands. Included by afxext.h.

#include <afxcmn.h>

#include "controlbar.h"

/// A bar of bands that the user can move, each with a window: a tool bar, a dialog bar or a control.
class FRAMEWORK_API CReBar : public CControlBar
{
    DECLARE_DYNAMIC(CReBar)

public:
    CReBar();
    ~CReBar() override;

    virtual BOOL Create(CWnd * pParentWnd, DWORD dwCtrlStyle = RBS_BANDBORDERS,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_TOP,
                        UINT nID = AFX_IDW_REBAR);
    BOOL AddBar(CWnd * pBar, LPCTSTR pszText = nullptr, CBitmap * pbmp = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS | RBBS_FIXEDBMP);
    BOOL AddBar(CWnd * pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR pszText = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS);
    /// The bar's window as the native control.
    CReBarCtrl & GetReBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) override;

protected:
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();

private:
    BOOL InsertBand(CWnd * bar, REBARBANDINFO & band);
    void HandleHeightChange(NMHDR * header, LRESULT * result);

    mutable CReBarCtrl m_control; // has the window's handle while it is asked for, and does not own it

    DECLARE_MESSAGE_MAP()
};
