#pragma once
// The view of a print preview. Included by afxpriv.h.

#include <afxext.h>

#include <memory>
#include <vector>

/// Shows the pages that another view prints, one or two at a time. It belongs to the main frame while it is there, and
/// ends with the view that it shows.
class FRAMEWORK_API CPreviewView : public CScrollView
{
    DECLARE_DYNCREATE(CPreviewView)

public:
    ~CPreviewView() override;

protected:
    CPreviewView();

    void OnDraw(CDC * pDC) override;
    void OnActivateView(BOOL bActivate, CView * pActivateView, CView * pDeactiveView) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDestroy();

private:
    friend class CView;

    enum class Zoom
    {
        pages, // whole ones
        middle,
        paper // as large as on it
    };
    /// A page as it was printed.
    struct Page
    {
        UINT number = 0;
        HENHMETAFILE picture = nullptr;
        CRect place; // in the view, from the corner of all of it
    };

    CView * PrintView() const;
    bool Begin(CView & printView);
    bool ShowFrom(UINT first);
    bool Record(UINT number, Page & page);
    void Forget();
    void LayOut();
    void ZoomTo(Zoom zoom, CPoint const * point);
    CSize PageSize(Zoom zoom, CSize room) const;
    void ShowMessage();
    bool HasNext() const;

    void ClosePreview();
    void PrintPages();
    void NextPage();
    void PreviousPage();
    void ChangeNumberOfPages();
    void ZoomIn();
    void ZoomOut();
    void UpdateNext(CCmdUI * state);
    void UpdatePrevious(CCmdUI * state);
    void UpdateNumberOfPages(CCmdUI * state);
    void UpdateZoomIn(CCmdUI * state);
    void UpdateZoomOut(CCmdUI * state);

    CView * m_printView; // null once it is told of the end
    HWND m_printWindow;
    HWND m_oldView; // the one that was active before
    CPrintPreviewState m_state;
    std::unique_ptr<CPrintInfo> m_info;
    std::unique_ptr<CDC> m_dc; // the printer's, or one that stands in for it
    HWND m_barWindow;
    std::vector<Page> m_pages; // those shown
    Zoom m_zoom;
    UINT m_count; // of pages side by side
    UINT m_first; // the page at the left
    bool m_ending;
    bool m_layingOut;

    DECLARE_MESSAGE_MAP()
};
