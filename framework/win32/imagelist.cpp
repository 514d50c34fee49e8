#include "detail/imagelist.h"

#include "detail/GdiHandles.h"
#include "detail/ThreadState.h"

using framework::HandleOf;
using framework::ImageListMap;
using framework::MaybeNull;

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace framework
{
CImageList * MakeTemporaryImageList(void * handle)
{
    CImageList * const list = new CImageList;
    list->m_hImageList = static_cast<HIMAGELIST>(handle);
    return list;
}

void ReleaseTemporaryImageList(CImageList * list)
{
    list->m_hImageList = nullptr;
}
} // namespace framework

namespace
{
HBITMAP BitmapOf(CBitmap const * bitmap)
{
    return static_cast<HBITMAP>(HandleOf(bitmap));
}
} // namespace

CImageList::CImageList() : m_hImageList(nullptr) {}

CImageList::~CImageList()
{
    DeleteImageList();
}

CImageList * PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return ImageListMap().FromHandle(hImageList);
}

CImageList * PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return ImageListMap().LookupPermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    ImageListMap().DeleteTemporaries();
}

CImageList::operator HIMAGELIST() const
{
    return GetSafeHandle();
}

HIMAGELIST CImageList::GetSafeHandle() const
{
    CImageList const * const list = MaybeNull(this);
    return list == nullptr ? nullptr : list->m_hImageList;
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    ASSERT(m_hImageList == nullptr);
    if (hImageList == nullptr)
        return FALSE;
    m_hImageList = hImageList;
    ImageListMap().SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    HIMAGELIST const handle = m_hImageList;
    if (handle != nullptr && ImageListMap().LookupPermanent(handle) == this)
        ImageListMap().RemovePermanent(handle);
    m_hImageList = nullptr;
    return handle;
}

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    HINSTANCE const module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImage(module, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList & imagelist1, int nImage1, CImageList & imagelist2, int nImage2, int dx, int dy)
{
    return Attach(::ImageList_Merge(imagelist1.m_hImageList, nImage1, imagelist2.m_hImageList, nImage2, dx, dy));
}

BOOL CImageList::Create(CImageList * pImageList)
{
    return pImageList != nullptr && Attach(::ImageList_Duplicate(pImageList->m_hImageList));
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

int CImageList::GetImageCount() const
{
    return ::ImageList_GetImageCount(m_hImageList);
}

BOOL CImageList::SetImageCount(UINT uNewCount)
{
    return ::ImageList_SetImageCount(m_hImageList, uNewCount);
}

COLORREF CImageList::SetBkColor(COLORREF cr)
{
    return ::ImageList_SetBkColor(m_hImageList, cr);
}

COLORREF CImageList::GetBkColor() const
{
    return ::ImageList_GetBkColor(m_hImageList);
}

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO * pImageInfo) const
{
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

int CImageList::Add(CBitmap * pbmImage, CBitmap * pbmMask)
{
    return ::ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Add(CBitmap * pbmImage, COLORREF crMask)
{
    return ::ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
}

int CImageList::Add(HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon);
}

BOOL CImageList::Remove(int nImage)
{
    return ::ImageList_Remove(m_hImageList, nImage);
}

BOOL CImageList::Replace(int nImage, CBitmap * pbmImage, CBitmap * pbmMask)
{
    return ::ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Replace(int nImage, HICON hIcon)
{
    return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList * pSrc, int iSrc, UINT uFlags)
{
    return pSrc != nullptr && ::ImageList_Copy(m_hImageList, iDst, pSrc->m_hImageList, iSrc, uFlags);
}

HICON CImageList::ExtractIcon(int nImage)
{
    return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL);
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Draw(CDC * pDC, int nImage, POINT pt, UINT nStyle)
{
    return ::ImageList_Draw(m_hImageList, nImage, HandleOf(pDC), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC * pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
{
    return ::ImageList_DrawEx(m_hImageList, nImage, HandleOf(pDC), pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS * pimldp)
{
    pimldp->cbSize = sizeof *pimldp;
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC * pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle, DWORD dwRop,
                              COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame, COLORREF crEffect)
{
    IMAGELISTDRAWPARAMS parameters = {};
    parameters.i = nImage;
    parameters.hdcDst = HandleOf(pDC);
    parameters.x = pt.x;
    parameters.y = pt.y;
    parameters.cx = sz.cx;
    parameters.cy = sz.cy;
    parameters.xBitmap = ptOrigin.x;
    parameters.yBitmap = ptOrigin.y;
    parameters.rgbBk = rgbBack;
    parameters.rgbFg = rgbFore;
    parameters.fStyle = fStyle;
    parameters.dwRop = dwRop;
    parameters.fState = fState;
    parameters.Frame = Frame;
    parameters.crEffect = crEffect;
    return DrawIndirect(&parameters);
}

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

void PASCAL CImageList::EndDrag()
{
    ::ImageList_EndDrag();
}

BOOL PASCAL CImageList::DragEnter(CWnd * pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(HandleOf(pWndLock), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd * pWndLock)
{
    return ::ImageList_DragLeave(HandleOf(pWndLock));
}

BOOL PASCAL CImageList::DragMove(CPoint pt)
{
    return ::ImageList_DragMove(pt.x, pt.y);
}

BOOL PASCAL CImageList::DragShowNolock(BOOL bShow)
{
    return ::ImageList_DragShowNolock(bShow);
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

CImageList * PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}
