#pragma once
// Views that are a dialog template or an edit field. Included by afxext.h.

#include <afxwin.h>

class CArchive;

/// A view with the controls of a dialog template, which must be a child without a border.
class FRAMEWORK_API CFormView : public CScrollView
{
    DECLARE_DYNAMIC(CFormView)

public:
    ~CFormView() override;

    BOOL IsInitDlgCompleted() const;
    void OnInitialUpdate() override;
    BOOL PreTranslateMessage(MSG * pMsg) override;

protected:
    explicit CFormView(LPCTSTR lpszTemplateName);
    explicit CFormView(UINT nIDTemplate);

    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT & rect, CWnd * pParentWnd,
                UINT nID, CCreateContext * pContext = nullptr) override;
    void OnDraw(CDC * pDC) override;
    void OnActivateView(BOOL bActivate, CView * pActivateView, CView * pDeactiveView) override;
    void OnActivateFrame(UINT nState, CFrameWnd * pFrameWnd) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnSetFocus(CWnd * pOldWnd);

private:
    LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    bool SaveFocus();

    CString m_templateName; // empty where the template has an identifier
    UINT m_templateId;
    CCreateContext * m_context; // while it is created
    HWND m_focus;               // of the controls, while another view is active
    bool m_initialized;

    DECLARE_MESSAGE_MAP()
};

/// A view that is an edit field of many lines.
class FRAMEWORK_API CEditView : public CCtrlView
{
    DECLARE_DYNCREATE(CEditView)

public:
    CEditView();
    ~CEditView() override;

    static const DWORD dwStyleDefault;

    CEdit & GetEditCtrl() const;
    UINT GetBufferLength() const;
    /// The text until UnlockBuffer; not to be changed.
    LPCTSTR LockBuffer() const;
    void UnlockBuffer() const;
    void GetSelectedText(CString & strResult) const;
    void SetTabStops(int nTabStops);
    /// The text with its length.
    void Serialize(CArchive & ar) override;
    /// The text alone, which is all of the file.
    void SerializeRaw(CArchive & ar);

    CFont * GetPrinterFont() const;
    /// Null: like the one on the screen. The font stays the caller's.
    void SetPrinterFont(CFont * pFont);
    /// Prints from one character to another, as much as fits. Gives the first that didn't; the rectangle's lower edge
    /// is where the text ends.
    UINT PrintInsideRect(CDC * pDC, RECT & rectLayout, UINT nIndexStart, UINT nIndexStop);
    /// Selects the next or previous place of the text. FALSE if there is none.
    BOOL FindText(LPCTSTR lpszFind, BOOL bNext = TRUE, BOOL bCase = TRUE);

    BOOL PreCreateWindow(CREATESTRUCT & cs) override;

protected:
    virtual void OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase);
    virtual void OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace);
    virtual void OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase);
    virtual void OnTextNotFound(LPCTSTR lpszFind);

    BOOL OnPreparePrinting(CPrintInfo * pInfo) override;
    void OnBeginPrinting(CDC * pDC, CPrintInfo * pInfo) override;
    void OnPrint(CDC * pDC, CPrintInfo * pInfo) override;
    void OnEndPrinting(CDC * pDC, CPrintInfo * pInfo) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);

private:
    UINT LayOut(CDC & dc, CString const & text, RECT & layout, UINT start, UINT stop, bool output) const;
    bool SameAsSelected(LPCTSTR text, BOOL matchCase) const;
    BOOL HandleChange();
    void UpdateNeedsSelection(CCmdUI * pCmdUI);
    void UpdateNeedsText(CCmdUI * pCmdUI);
    void UpdateNeedsClipboard(CCmdUI * pCmdUI);
    void UpdateNeedsUndo(CCmdUI * pCmdUI);
    BOOL HandleEditCommand(UINT nID);

    mutable CEdit m_edit; // speaks to the view's window, and isn't attached to it
    int m_tabStops;
    mutable CString m_locked; // what LockBuffer gave
    CFont * m_printerFont;    // the program's
    CFont m_pageFont;         // while it is printed: like the one on the screen
    CString m_pageText;       // and what is printed
    CArray<UINT> m_pageStarts;

    DECLARE_MESSAGE_MAP()
};
