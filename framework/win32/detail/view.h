#pragma once
// Views: windows in a frame that show a document. Included by afxwin.h, after the frames.

#include <functional>

#include "frame.h"

class CPreviewView;
class CSplitterWnd;
struct CPrintInfo;

namespace framework
{
struct ViewAccess;
} // namespace framework

/// Lives on the heap and deletes itself with its window.
class FRAMEWORK_API AFX_NOVTABLE CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    CDocument * GetDocument() const;

    virtual BOOL IsSelected(const CObject * pDocItem) const;
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);
    virtual void OnPrepareDC(CDC * pDC, CPrintInfo * pInfo = nullptr);
    virtual void OnInitialUpdate();

    /// Asks for the printer and the pages, without a dialog for a preview. For OnPreparePrinting.
    BOOL DoPreparePrinting(CPrintInfo * pInfo);
    // Not in the message map; views that print name them in theirs
    afx_msg void OnFilePrint();
    afx_msg void OnFilePrintPreview();

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void * pExtra, AFX_CMDHANDLERINFO * pHandlerInfo) override;
    CScrollBar * GetScrollBarCtrl(int nBar) const override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

    ~CView() override;

protected:
    CView();

    virtual void OnActivateView(BOOL bActivate, CView * pActivateView, CView * pDeactiveView);
    virtual void OnActivateFrame(UINT nState, CFrameWnd * pFrameWnd);
    virtual void OnUpdate(CView * pSender, LPARAM lHint, CObject * pHint);
    virtual void OnDraw(CDC * pDC) = 0;
    /// Says what is printed. FALSE: nothing.
    virtual BOOL OnPreparePrinting(CPrintInfo * pInfo);
    virtual void OnBeginPrinting(CDC * pDC, CPrintInfo * pInfo);
    /// Prints pInfo->m_nCurPage; what is drawn, unless overridden.
    virtual void OnPrint(CDC * pDC, CPrintInfo * pInfo);
    virtual void OnEndPrinting(CDC * pDC, CPrintInfo * pInfo);
    /// Ends the preview; point is where it was scrolled to.
    virtual void OnEndPrintPreview(CDC * pDC, CPrintInfo * pInfo, POINT point, CPreviewView * pView);
    void PostNcDestroy() override;

    CDocument * m_pDocument; // null if there is none

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd * pDesktopWnd, UINT nHitTest, UINT message);

private:
    friend class CDocument;
    friend class CFrameWnd;
    friend class CMDIChildWnd;
    friend class CPreviewView;
    friend class CSplitterWnd;
    friend struct framework::ViewAccess;

    LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);
    BOOL HandleNextPane(UINT nID);
    void UpdateNextPane(CCmdUI * pCmdUI);
    BOOL HandleSplit(UINT nID);
    void UpdateSplit(CCmdUI * pCmdUI);
    bool PrintPages(CDC & dc, CPrintInfo & info, std::function<void(UINT)> const & tell);

    DECLARE_MESSAGE_MAP()
};

/// A view whose window is of a control's class.
class FRAMEWORK_API CCtrlView : public CView
{
    DECLARE_DYNAMIC(CCtrlView)

public:
    CCtrlView(LPCTSTR lpszClass, DWORD dwStyle);
    ~CCtrlView() override;

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

protected:
    CString m_strClass;
    DWORD m_dwDefaultStyle;

    void OnDraw(CDC * pDC) override;

    afx_msg void OnPaint();

private:
    DECLARE_MESSAGE_MAP()
};
