#pragma once
// A dialog with a background colour or picture.

#include <afxwin.h>

class FRAMEWORK_API CDialogEx : public CDialog
{
    DECLARE_DYNAMIC(CDialogEx)

public:
    enum BackgroundLocation
    {
        BACKGR_TILE,
        BACKGR_TOPLEFT,
        BACKGR_TOPRIGHT,
        BACKGR_BOTTOMLEFT,
        BACKGR_BOTTOMRIGHT
    };

    CDialogEx();
    CDialogEx(UINT nIDTemplate, CWnd * pParent = nullptr);
    CDialogEx(LPCTSTR lpszTemplateName, CWnd * pParentWnd = nullptr);
    ~CDialogEx() override;

    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);
    void SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location = BACKGR_TILE, BOOL bAutoDestroy = TRUE,
                            BOOL bRepaint = TRUE);
    BOOL SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location = BACKGR_TILE, BOOL bRepaint = TRUE);

private:
    BOOL OnEraseBkgnd(CDC * pDC);
    HBRUSH OnCtlColor(CDC * pDC, CWnd * pWnd, UINT nCtlColor);
    void ReleaseImage();

    CBrush m_brush;
    HBITMAP m_image = nullptr;
    CSize m_imageSize;
    BackgroundLocation m_location = BACKGR_TILE;
    bool m_ownsImage = false;

    DECLARE_MESSAGE_MAP()
};
