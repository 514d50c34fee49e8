#pragma once
// Tool bars. Included by afxext.h.

#include <afxcmn.h>

#include "controlbar.h"

// Styles of a tool bar's buttons: the control's style below, its state above. A button is enabled without
// TBBS_DISABLED.
#define TBBS_BUTTON MAKELONG(TBSTYLE_BUTTON, 0)
#define TBBS_SEPARATOR MAKELONG(TBSTYLE_SEP, 0)
#define TBBS_CHECKBOX MAKELONG(TBSTYLE_CHECK, 0)
#define TBBS_GROUP MAKELONG(TBSTYLE_GROUP, 0)
#define TBBS_CHECKGROUP (TBBS_GROUP | TBBS_CHECKBOX)
#define TBBS_DROPDOWN MAKELONG(TBSTYLE_DROPDOWN, 0)
#define TBBS_AUTOSIZE MAKELONG(TBSTYLE_AUTOSIZE, 0)
#define TBBS_NOPREFIX MAKELONG(TBSTYLE_NOPREFIX, 0)
#define TBBS_CHECKED MAKELONG(0, TBSTATE_CHECKED)
#define TBBS_PRESSED MAKELONG(0, TBSTATE_PRESSED)
#define TBBS_DISABLED MAKELONG(0, TBSTATE_ENABLED)
#define TBBS_INDETERMINATE MAKELONG(0, TBSTATE_INDETERMINATE)
#define TBBS_HIDDEN MAKELONG(0, TBSTATE_HIDDEN)
#define TBBS_WRAPPED MAKELONG(0, TBSTATE_WRAP)
#define TBBS_ELLIPSES MAKELONG(0, TBSTATE_ELLIPSES)
#define TBBS_MARKED MAKELONG(0, TBSTATE_MARKED)

/// A bar of buttons on the native control. Its commands go to the frame.
class FRAMEWORK_API CToolBar : public CControlBar
{
    DECLARE_DYNAMIC(CToolBar)

public:
    CToolBar();
    ~CToolBar() override;

    virtual BOOL Create(CWnd * pParentWnd, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP,
                        UINT nID = AFX_IDW_TOOLBAR);
    virtual BOOL CreateEx(CWnd * pParentWnd, DWORD dwCtrlStyle = TBSTYLE_FLAT,
                          DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, CRect rcBorders = CRect(0, 0, 0, 0),
                          UINT nID = AFX_IDW_TOOLBAR);

    /// The size of a button and of its picture.
    void SetSizes(SIZE sizeButton, SIZE sizeImage);
    /// The bar's height in place of what follows from the buttons' size.
    void SetHeight(int cyHeight);
    /// Size, buttons and pictures from a resource of the kind RT_TOOLBAR and the bitmap of the same name.
    BOOL LoadToolBar(LPCTSTR lpszResourceName);
    BOOL LoadToolBar(UINT nIDResource);
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    /// The bitmap belongs to the bar from here on.
    BOOL SetBitmap(HBITMAP hbmImageWell);
    /// lpIDArray: commands, ID_SEPARATOR for a separator. Null gives empty buttons.
    BOOL SetButtons(const UINT * lpIDArray, int nIDCount);

    int CommandToIndex(UINT nIDFind) const;
    UINT GetItemID(int nIndex) const;
    /// Empty for a button that is hidden.
    virtual void GetItemRect(int nIndex, LPRECT lpRect) const;
    UINT GetButtonStyle(int nIndex) const;
    void SetButtonStyle(int nIndex, UINT nStyle);
    /// iImage: the picture's number; a separator's width.
    void GetButtonInfo(int nIndex, UINT & nID, UINT & nStyle, int & iImage) const;
    void SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage);
    BOOL SetButtonText(int nIndex, LPCTSTR lpszText);
    CString GetButtonText(int nIndex) const;
    void GetButtonText(int nIndex, CString & rString) const;
    /// The bar's window as the native control.
    CToolBarCtrl & GetToolBarCtrl() const;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    void OnUpdateCmdUI(CFrameWnd * pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO * pTI) const override;

protected:
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS * lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcPaint();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC * pDC);
    afx_msg void OnSysColorChange();

private:
    void Arrange(DWORD mode) override;
    /// The width to wrap at, or nothing if the buttons are to stay as they are.
    bool WrapWidth(DWORD mode, int length, int & width) const;
    CSize CalcLayout(DWORD mode, int length);
    BOOL PutBitmap(HBITMAP bitmap);

    mutable CToolBarCtrl m_control; // has the window's handle while it is asked for, and does not own it
    CSize m_sizeButton;
    CSize m_sizeImage;
    HBITMAP m_bitmap;
    HINSTANCE m_bitmapModule; // where the bitmap comes from, to fetch it again when the system's colours change
    CString m_bitmapName;
    UINT m_bitmapId;
    int m_lastWidth; // what it was wrapped at last, for LM_MRUWIDTH

    DECLARE_MESSAGE_MAP()
};
