#pragma once
// Image lists.

#include <afx.h>
#include <atltypes.h>
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include "FrameworkExport.h"

class CBitmap;
class CDC;
class CWnd;

class FRAMEWORK_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    ~CImageList() override;

    static CImageList * PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList * PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();

    operator HIMAGELIST() const;
    HIMAGELIST GetSafeHandle() const;

    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(CImageList & imagelist1, int nImage1, CImageList & imagelist2, int nImage2, int dx, int dy);
    BOOL Create(CImageList * pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const;
    BOOL GetImageInfo(int nImage, IMAGEINFO * pImageInfo) const;
    int Add(CBitmap * pbmImage, CBitmap * pbmMask);
    int Add(CBitmap * pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap * pbmImage, CBitmap * pbmMask);
    int Replace(int nImage, HICON hIcon);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList * pSrc, int iSrc, UINT uFlags = ILCF_MOVE);
    HICON ExtractIcon(int nImage);
    BOOL SetOverlayImage(int nImage, int nOverlay);

    BOOL Draw(CDC * pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC * pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS * pimldp);
    BOOL DrawIndirect(CDC * pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag();
    static BOOL PASCAL DragEnter(CWnd * pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd * pWndLock);
    static BOOL PASCAL DragMove(CPoint pt);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static CImageList * PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);

    /// The attached image list, or null.
    HIMAGELIST m_hImageList;
};
