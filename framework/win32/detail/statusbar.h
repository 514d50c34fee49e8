#pragma once
// Status bars. Included by afxext.h.

#include <afxcmn.h>

#include "controlbar.h"

// Styles of panes
#define SBPS_NORMAL 0x0000
#define SBPS_NOBORDERS SBT_NOBORDERS
#define SBPS_POPOUT SBT_POPOUT
#define SBPS_OWNERDRAW SBT_OWNERDRAW
#define SBPS_DISABLED 0x04000000 // shows no text
#define SBPS_STRETCH 0x08000000  // takes what the others leave

/// A row of panes on the native control.
class FRAMEWORK_API CStatusBar : public CControlBar
{
    DECLARE_DYNAMIC(CStatusBar)

public:
    CStatusBar();
    ~CStatusBar() override;

    virtual BOOL Create(CWnd * pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                        UINT nID = AFX_IDW_STATUS_BAR);
    virtual BOOL CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                          UINT nID = AFX_IDW_STATUS_BAR);

    /// A pane for each identifier, with its string and as wide as that; ID_SEPARATOR for a pane without one. The first
    /// takes what the others leave. Null gives empty panes.
    BOOL SetIndicators(const UINT * lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    void GetPaneInfo(int nIndex, UINT & nID, UINT & nStyle, int & cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    CString GetPaneText(int nIndex) const;
    void GetPaneText(int nIndex, CString & rString) const;
    BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    /// The bar's window as the native control.
    CStatusBarCtrl & GetStatusBarCtrl() const;

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) override;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT * pResult) override;

    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT nType, int cx, int cy);

private:
    struct Pane
    {
        UINT id = 0;
        UINT style = 0;
        int width = 0;
        CString text;
        bool stale = false; // the control has another text
    };

    void UpdateParts();
    void UpdateTexts();
    void ShowText(int index);
    LRESULT HandleSetText(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetText(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetTextLength(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSetMinHeight(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);

    mutable CStatusBarCtrl m_control; // has the window's handle while it is asked for, and does not own it
    CArray<Pane, Pane const &> m_panes;
    int m_minHeight;

    DECLARE_MESSAGE_MAP()
};
