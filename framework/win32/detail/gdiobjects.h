#pragma once
// The graphics objects: pens, brushes, fonts, bitmaps, palettes and regions.

#include <afx.h>
#include <atltypes.h>
#include <windows.h>
#include <commctrl.h>

#include "FrameworkExport.h"

class CBitmap;
class CDC;

class FRAMEWORK_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)

public:
    HGDIOBJ m_hObject;

    CGdiObject();
    ~CGdiObject() override;

    static CGdiObject * PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();

    operator HGDIOBJ() const;
    HGDIOBJ GetSafeHandle() const;
    BOOL operator==(CGdiObject const & obj) const;
    BOOL operator!=(CGdiObject const & obj) const;

    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    BOOL CreateStockObject(int nIndex);

    int GetObject(int nCount, LPVOID lpObject) const;
    UINT GetObjectType() const;
    BOOL UnrealizeObject();
};

class FRAMEWORK_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, LOGBRUSH const * pLogBrush, int nStyleCount = 0, DWORD const * lpStyle = nullptr);

    static CPen * PASCAL FromHandle(HPEN hPen);
    operator HPEN() const;

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, LOGBRUSH const * pLogBrush, int nStyleCount = 0,
                   DWORD const * lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    int GetLogPen(LOGPEN * pLogPen);
    int GetExtLogPen(EXTLOGPEN * pLogPen);
};

class FRAMEWORK_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap * pBitmap);

    static CBrush * PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const;

    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(LOGBRUSH const * lpLogBrush);
    BOOL CreatePatternBrush(CBitmap * pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(void const * lpPackedDIB, UINT nUsage);
    BOOL CreateSysColorBrush(int nIndex);
    int GetLogBrush(LOGBRUSH * pLogBrush);
};

class FRAMEWORK_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont();

    static CFont * PASCAL FromHandle(HFONT hFont);
    operator HFONT() const;

    BOOL CreateFontIndirect(LOGFONT const * lpLogFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC * pDC = nullptr);
    BOOL CreatePointFontIndirect(LOGFONT const * lpLogFont, CDC * pDC = nullptr);
    int GetLogFont(LOGFONT * pLogFont);
};

class FRAMEWORK_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();

    static CBitmap * PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const;

    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource);
    BOOL LoadOEMBitmap(UINT nIDBitmap);
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, void const * lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC * pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC * pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP * pBitMap);
    DWORD SetBitmapBits(DWORD dwCount, void const * lpBits);
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};

class FRAMEWORK_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette();

    static CPalette * PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const;

    BOOL CreatePalette(LPLOGPALETTE lpLogPalette);
    BOOL CreateHalftonePalette(CDC * pDC);

    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const;
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors);
    UINT GetNearestPaletteIndex(COLORREF crColor) const;
    BOOL ResizePalette(UINT nNumEntries);
};

class FRAMEWORK_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    static CRgn * PASCAL FromHandle(HRGN hRgn);
    operator HRGN() const;

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect);
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode);
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL CreateFromPath(CDC * pDC);
    BOOL CreateFromData(XFORM const * lpXForm, int nCount, RGNDATA const * pRgnData);

    void SetRectRgn(int x1, int y1, int x2, int y2);
    void SetRectRgn(LPCRECT lpRect);
    int CombineRgn(CRgn * pRgn1, CRgn * pRgn2, int nCombineMode);
    int CopyRgn(CRgn * pRgnSrc);
    BOOL EqualRgn(CRgn * pRgn) const;
    int OffsetRgn(int x, int y);
    int OffsetRgn(POINT point);
    int GetRgnBox(LPRECT lpRect) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    BOOL RectInRegion(LPCRECT lpRect) const;
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const;
};
