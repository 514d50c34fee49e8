// Pens, brushes, fonts and bitmaps.

#include <cstdlib>

#include "detail/GdiHandles.h"

using framework::HandleOf;
using framework::MaybeNull;

IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CPen::CPen() = default;

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, LOGBRUSH const * pLogBrush, int nStyleCount, DWORD const * lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

CPen * PASCAL CPen::FromHandle(HPEN hPen)
{
    return static_cast<CPen *>(CGdiObject::FromHandle(hPen));
}

CPen::operator HPEN() const
{
    return static_cast<HPEN>(HandleOf(MaybeNull(this)));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, LOGBRUSH const * pLogBrush, int nStyleCount, DWORD const * lpStyle)
{
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen)
{
    return Attach(::CreatePenIndirect(lpLogPen));
}

int CPen::GetLogPen(LOGPEN * pLogPen)
{
    return ::GetObject(m_hObject, sizeof(LOGPEN), pLogPen);
}

int CPen::GetExtLogPen(EXTLOGPEN * pLogPen)
{
    return ::GetObject(m_hObject, sizeof(EXTLOGPEN), pLogPen);
}

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap * pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

CBrush * PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush *>(CGdiObject::FromHandle(hBrush));
}

CBrush::operator HBRUSH() const
{
    return static_cast<HBRUSH>(HandleOf(MaybeNull(this)));
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor)
{
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(LOGBRUSH const * lpLogBrush)
{
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap * pBitmap)
{
    return Attach(::CreatePatternBrush(static_cast<HBITMAP>(HandleOf(pBitmap))));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    void const * const packed = ::GlobalLock(hPackedDIB);
    if (packed == nullptr)
        return FALSE;
    BOOL const created = Attach(::CreateDIBPatternBrushPt(packed, nUsage));
    ::GlobalUnlock(hPackedDIB);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(void const * lpPackedDIB, UINT nUsage)
{
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

BOOL CBrush::CreateSysColorBrush(int nIndex)
{
    return Attach(::GetSysColorBrush(nIndex));
}

int CBrush::GetLogBrush(LOGBRUSH * pLogBrush)
{
    return ::GetObject(m_hObject, sizeof(LOGBRUSH), pLogBrush);
}

CFont::CFont() = default;

CFont * PASCAL CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont *>(CGdiObject::FromHandle(hFont));
}

CFont::operator HFONT() const
{
    return static_cast<HFONT>(HandleOf(MaybeNull(this)));
}

BOOL CFont::CreateFontIndirect(LOGFONT const * lpLogFont)
{
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                               nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC * pDC)
{
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    if (lpszFaceName != nullptr)
        ::lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(LOGFONT const * lpLogFont, CDC * pDC)
{
    constexpr int decipoints_per_inch = 720;
    HDC const dc = pDC == nullptr ? ::GetDC(nullptr) : pDC->m_hAttribDC;
    POINT size = {
        0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), static_cast<int>(lpLogFont->lfHeight), decipoints_per_inch)};
    POINT origin = {0, 0};
    ::DPtoLP(dc, &size, 1);
    ::DPtoLP(dc, &origin, 1);
    if (pDC == nullptr)
        ::ReleaseDC(nullptr, dc);

    LOGFONT font = *lpLogFont;
    font.lfHeight = -std::abs(size.y - origin.y);
    return CreateFontIndirect(&font);
}

int CFont::GetLogFont(LOGFONT * pLogFont)
{
    return ::GetObject(m_hObject, sizeof(LOGFONT), pLogFont);
}

CBitmap::CBitmap() = default;

CBitmap * PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap *>(CGdiObject::FromHandle(hBitmap));
}

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(HandleOf(MaybeNull(this)));
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadBitmap(UINT nIDResource)
{
    return LoadBitmap(MAKEINTRESOURCE(nIDResource));
}

BOOL CBitmap::LoadOEMBitmap(UINT nIDBitmap)
{
    return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap)));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    HINSTANCE const module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, void const * lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap)
{
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC * pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(HandleOf(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC * pDC, int nWidth, int nHeight)
{
    return Attach(::CreateDiscardableBitmap(HandleOf(pDC), nWidth, nHeight));
}

int CBitmap::GetBitmap(BITMAP * pBitMap)
{
    return ::GetObject(m_hObject, sizeof(BITMAP), pBitMap);
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, void const * lpBits)
{
    return static_cast<DWORD>(::SetBitmapBits(static_cast<HBITMAP>(m_hObject), dwCount, lpBits));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return static_cast<DWORD>(::GetBitmapBits(static_cast<HBITMAP>(m_hObject), static_cast<LONG>(dwCount), lpBits));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    SIZE previous = {};
    ::SetBitmapDimensionEx(static_cast<HBITMAP>(m_hObject), nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {};
    ::GetBitmapDimensionEx(static_cast<HBITMAP>(m_hObject), &size);
    return size;
}
