#pragma once
// An edit control with a button at its right end.

#include <afxwin.h>
#include <commdlg.h>

class FRAMEWORK_API CMFCEditBrowseCtrl : public CEdit
{
    DECLARE_DYNAMIC(CMFCEditBrowseCtrl)

public:
    enum BrowseMode
    {
        BrowseMode_None,
        BrowseMode_Default,
        BrowseMode_File,
        BrowseMode_Folder
    };

    CMFCEditBrowseCtrl();
    ~CMFCEditBrowseCtrl() override;

    /// A button whose press calls OnBrowse, which does nothing here.
    void EnableBrowseButton(BOOL bEnable = TRUE, LPCTSTR szLabel = _T("..."));
    /// A button that asks for a file.
    void EnableFileBrowseButton(LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFilter = nullptr,
                                DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    /// A button that asks for a folder.
    void EnableFolderBrowseButton();
    BrowseMode GetMode() const;

    /// The picture takes the label's place.
    void SetBrowseButtonImage(HICON hIcon, BOOL bAutoDestroy = TRUE);
    void SetBrowseButtonImage(HBITMAP hBitmap, BOOL bAutoDestroy = TRUE);
    void SetBrowseButtonImage(UINT uiBmpResId);

    virtual void OnBrowse();
    /// The text has been replaced by what was chosen.
    virtual void OnAfterUpdate();
    /// Finds the button's place anew.
    virtual void OnChangeLayout();
    virtual void OnDrawBrowseButton(CDC * pDC, CRect rect, BOOL bIsButtonPressed, BOOL bIsButtonHot);
    /// The name in the field can't be a file's. TRUE: it has been put right.
    virtual BOOL OnIllegalFileName(CString & strFileName);

protected:
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd * pWnd);
    afx_msg void OnEnable(BOOL bEnable);
    DECLARE_MESSAGE_MAP()

private:
    int ButtonWidth() const;
    CRect ButtonRect() const;
    bool IsOnButton(CPoint screen) const;
    void Press();
    void Redraw();
    void ReleaseImage();

    BrowseMode m_mode = BrowseMode_None;
    CString m_label;
    CString m_defaultExtension;
    CString m_filter;
    DWORD m_fileFlags = 0;
    HICON m_icon = nullptr;
    HBITMAP m_bitmap = nullptr;
    BOOL m_ownsImage = FALSE;
    CSize m_imageSize;
    bool m_tracking = false; // the button has the mouse
    bool m_pressed = false;
    bool m_hot = false;
};
