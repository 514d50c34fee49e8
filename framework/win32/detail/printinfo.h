#pragma once
// What is passed along while a view is printed or previewed. Included by afxext.h.

#include <afxwin.h>

class CPrintDialog;

/// A print job or preview. m_pPD holds the printer and its device context, which end with this.
struct FRAMEWORK_API CPrintInfo
{
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(CPrintInfo const &) = delete;
    CPrintInfo & operator=(CPrintInfo const &) = delete;

    CPrintDialog * m_pPD;
    BOOL m_bDocObject;        // always FALSE: documents inside others aren't offered
    BOOL m_bPreview;          // shown on the screen
    BOOL m_bDirect;           // printed without a dialog
    BOOL m_bContinuePrinting; // set to FALSE by OnPrepareDC where the page isn't there any more
    UINT m_nCurPage;
    UINT m_nNumPreviewPages; // 1 or 2 side by side; 0: as it was last
    CString m_strPageDesc;   // the message for one page and, behind \n, for two
    LPVOID m_lpUserData;     // the program's
    CRect m_rectDraw;        // the page, in logical units
    UINT m_nOffsetPage;
    DWORD m_dwFlags;

    void SetMinPage(UINT nMinPage);
    /// 0xFFFF: not known; the view's OnPrepareDC says where it ends.
    void SetMaxPage(UINT nMaxPage);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const;
};

/// What a frame looked like before a preview.
struct CPrintPreviewState
{
    UINT nIDMainPane = AFX_IDW_PANE_FIRST; // what the preview covers
    HMENU hMenu = nullptr;
    DWORD dwStates = 0; // the bars that are to be visible, by their identifiers
    CView * pViewActiveOld = nullptr;
    BOOL(CALLBACK * lpfnCloseProc)(CFrameWnd *) = nullptr; // asked when the frame is to be closed
    HACCEL hAccelTable = nullptr;
};
