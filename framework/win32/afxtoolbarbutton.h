#pragma once
// The buttons of tool bars.

#include <afxext.h>
#include <afxwin.h>

class CMFCToolBar;
class CMFCToolBarImages;
class CMFCToolBarMenuButton;

/// A button of a tool bar, which owns it. What it looks like and does is its own.
class FRAMEWORK_API CMFCToolBarButton : public CObject
{
    DECLARE_DYNCREATE(CMFCToolBarButton)

public:
    CMFCToolBarButton();
    CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText = nullptr, BOOL bUserButton = FALSE,
                      BOOL bLocked = FALSE);
    CMFCToolBarButton(CMFCToolBarButton const &) = delete;
    CMFCToolBarButton & operator=(CMFCToolBarButton const &) = delete;
    ~CMFCToolBarButton() override;

    UINT m_nID;    // the command
    UINT m_nStyle; // TBBS_...
    BOOL m_bText;  // the text is shown
    BOOL m_bImage; // the picture is shown
    BOOL m_bUserButton;
    BOOL m_bTextBelow; // the text stands below the picture
    BOOL m_bWholeText;
    BOOL m_bWrap; // a row ends with it
    CString m_strText;

    virtual void CopyFrom(const CMFCToolBarButton & src);
    virtual BOOL CompareWith(const CMFCToolBarButton & other) const;

    int GetImage() const;
    virtual void SetImage(int iImage);
    virtual void SetStyle(UINT nStyle);
    virtual void SetRadio();
    BOOL IsDrawImage() const;
    BOOL IsDrawText() const;
    /// Whether it is shown where there is room for it.
    BOOL IsVisible() const;
    void SetVisible(BOOL bShow = TRUE);
    BOOL IsHidden() const;
    void Show(BOOL bShow);
    BOOL IsLocked() const;
    BOOL IsHorizontal() const;
    SIZE GetTextSize() const;
    CWnd * GetParentWnd() const;
    const CRect & Rect() const;
    void SetRect(const CRect rect);
    virtual const CRect GetInvalidateRect() const;

    virtual BOOL HasFocus() const;
    virtual BOOL IsDroppedDown() const;
    virtual BOOL IsEditable() const;
    virtual BOOL IsExtraSize() const;
    virtual BOOL CanBeStretched() const;
    virtual BOOL CanBeStored() const;
    virtual BOOL CanBeDropped(CMFCToolBar * pToolbar);
    virtual HWND GetHwnd();
    virtual BOOL ExportToMenuButton(CMFCToolBarMenuButton & menuButton) const;

    virtual SIZE OnCalculateSize(CDC * pDC, const CSize & sizeDefault, BOOL bHorz);
    virtual void OnDraw(CDC * pDC, const CRect & rect, CMFCToolBarImages * pImages, BOOL bHorz = TRUE,
                        BOOL bCustomizeMode = FALSE, BOOL bHighlight = FALSE, BOOL bDrawBorder = TRUE,
                        BOOL bGrayDisabledButtons = TRUE);
    /// TRUE if the press is dealt with. Otherwise the button is let go above it, or not.
    virtual BOOL OnClick(CWnd * pWnd, BOOL bDelay = TRUE);
    /// TRUE if the command is not to be sent.
    virtual BOOL OnClickUp();
    virtual void OnDblClk(CWnd * pWnd);
    virtual void OnCancelMode();
    virtual void OnChangeParentWnd(CWnd * pWndParent);
    virtual void OnMove();
    virtual void OnShow(BOOL bShow);
    virtual void OnSize(int iSize);
    virtual BOOL OnGetCustomToolTipText(CString & strToolTip);

private:
    friend class CMFCToolBar;
    friend class CMFCToolBarMenuButton;

    int m_iImage;
    CWnd * m_pWndParent;
    CRect m_rect;
    SIZE m_sizeText;
    bool m_visible;
    bool m_locked;
};
