#pragma once
// CScrollView: views that are larger than their window. Included by afxwin.h, after the views.

#include "view.h"

class FRAMEWORK_API CScrollView : public CView
{
    DECLARE_DYNAMIC(CScrollView)

public:
    ~CScrollView() override;

    static const SIZE sizeDefault; // a tenth of the whole for a page, of the page for a line

    CPoint GetScrollPosition() const;
    CSize GetTotalSize() const;
    CPoint GetDeviceScrollPosition() const;
    void GetDeviceScrollSizes(int & nMapMode, SIZE & sizeTotal, SIZE & sizePage, SIZE & sizeLine) const;
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE & sizePage = sizeDefault,
                        const SIZE & sizeLine = sizeDefault);
    /// The whole is shown, as large as the window.
    void SetScaleToFitSize(SIZE sizeTotal);
    void ScrollToPosition(POINT pt);
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    void FillOutsideRect(CDC * pDC, CBrush * pBrush);
    void CheckScrollBars(BOOL & bHasHorzBar, BOOL & bHasVertBar) const;

    BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE) override;
    BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE) override;
    void OnPrepareDC(CDC * pDC, CPrintInfo * pInfo = nullptr) override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

protected:
    CScrollView();

    void OnDraw(CDC * pDC) override = 0;

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar * pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

private:
    friend class CFormView;
    friend class CPreviewView;

    void UpdateBars();
    void MoveTo(CPoint position);
    CSize WindowWithoutBars() const;

    int m_mapMode; // 0: not set yet; scaleToFit
    CSize m_totalLogical;
    CSize m_total; // in pixels, as the two below
    CSize m_page;
    CSize m_line;
    bool m_updating;

    DECLARE_MESSAGE_MAP()
};
