#pragma once
// Status bars that draw their panes themselves.

#include <afxpane.h>

#include <vector>

/// One pane, as OnDrawPane is given it.
class FRAMEWORK_API CMFCStatusBarPaneInfo
{
public:
    UINT nID = 0;
    UINT nStyle = 0; // SBPS_...
    int cxText = 0;  // its width without padding
    CString strText;
    CString strToolTip;
    COLORREF clrText = static_cast<COLORREF>(-1); // -1: the system's
    COLORREF clrBackground = static_cast<COLORREF>(-1);
    HICON hIcon = nullptr; // the program's
    CRect rect;
    long nProgressTotal = 0; // 0: no progress is shown
    long nProgressCurr = 0;
    BOOL bProgressText = FALSE;
    COLORREF clrProgressBar = static_cast<COLORREF>(-1);
    COLORREF clrProgressBarDest = static_cast<COLORREF>(-1);
    COLORREF clrProgressText = static_cast<COLORREF>(-1);
};

/// A row of panes with texts, colours, icons and progress, at the bottom of a frame.
class FRAMEWORK_API CMFCStatusBar : public CPane
{
    DECLARE_DYNCREATE(CMFCStatusBar)

public:
    CMFCStatusBar();
    ~CMFCStatusBar() override;

    using CPane::Create;
    using CPane::CreateEx;
    BOOL Create(CWnd * pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, UINT nID = AFX_IDW_STATUS_BAR);
    BOOL CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle = 0, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_BOTTOM,
                  UINT nID = AFX_IDW_STATUS_BAR);

    /// A pane for each identifier, with its string and as wide as that; 0 for a pane without one. The first takes what
    /// the others leave. Null gives empty panes.
    BOOL SetIndicators(const UINT * lpIDArray, int nIDCount);

    // Outside the panes, these do nothing and give 0 or an empty text.
    int GetCount() const;
    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    void GetItemRect(int nIndex, LPRECT lpRect) const;
    void GetPaneInfo(int nIndex, UINT & nID, UINT & nStyle, int & cxWidth) const;
    void SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth);
    UINT GetPaneStyle(int nIndex) const;
    void SetPaneStyle(int nIndex, UINT nStyle);
    int GetPaneWidth(int nIndex) const;
    void SetPaneWidth(int nIndex, int cx);
    void GetPaneText(int nIndex, CString & s) const;
    CString GetPaneText(int nIndex) const;
    virtual BOOL SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate = TRUE);
    void SetPaneTextColor(int nIndex, COLORREF clrText = static_cast<COLORREF>(-1), BOOL bUpdate = TRUE);
    void SetPaneBackgroundColor(int nIndex, COLORREF clrBackground = static_cast<COLORREF>(-1), BOOL bUpdate = TRUE);
    /// The icon stays the caller's.
    void SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate = TRUE);
    CString GetTipText(int nIndex) const;
    void SetTipText(int nIndex, LPCTSTR pszTipText);
    /// nTotal: what counts as done; 0 or less ends the progress.
    void EnablePaneProgressBar(int nIndex, long nTotal = 100, BOOL bDisplayText = FALSE,
                               COLORREF clrBar = static_cast<COLORREF>(-1),
                               COLORREF clrBarDest = static_cast<COLORREF>(-1),
                               COLORREF clrProgressText = static_cast<COLORREF>(-1));
    void SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate = TRUE);
    long GetPaneProgress(int nIndex) const;
    /// A double click on a pane sends its identifier as a command to the owner.
    void EnablePaneDoubleClick(BOOL bEnable = TRUE);
    void InvalidatePaneContent(int nIndex);
    BOOL GetDrawExtendedArea() const;
    void SetDrawExtendedArea(BOOL bSet = TRUE);
    virtual BOOL GetExtendedArea(CRect & rect) const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    BOOL DoesAllowDynInsertBefore() const override;
    void DoPaint(CDC * pDC) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * pTI) const override;
    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

protected:
    virtual void OnDrawPane(CDC * pDC, CMFCStatusBarPaneInfo * pPane);

    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);

private:
    bool Has(int index) const { return index >= 0 && index < GetCount(); }
    int At(CPoint point) const;
    void Arrange();
    bool HasGrip() const;
    void DrawGrip(CDC & dc, CRect const & client) const;
    LRESULT HandleIdleUpdate(WPARAM wParam, LPARAM lParam);
    LRESULT HandleSetText(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetText(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetTextLength(WPARAM wParam, LPARAM lParam);
    LRESULT HandleGetFont(WPARAM wParam, LPARAM lParam);
    BOOL HandleToolTipText(UINT id, NMHDR * header, LRESULT * result);

    std::vector<CMFCStatusBarPaneInfo> m_panes;
    bool m_doubleClicks;
    bool m_extendedArea;

    DECLARE_MESSAGE_MAP()
};
