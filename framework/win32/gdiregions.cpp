// Palettes and regions.

#include "detail/GdiHandles.h"

using framework::HandleOf;
using framework::MaybeNull;

IMPLEMENT_DYNAMIC(CPalette, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
HPALETTE PaletteOf(CPalette const & palette)
{
    return static_cast<HPALETTE>(palette.m_hObject);
}

HRGN RegionOf(CRgn const * region)
{
    return static_cast<HRGN>(HandleOf(region));
}
} // namespace

CPalette::CPalette() = default;

CPalette * PASCAL CPalette::FromHandle(HPALETTE hPalette)
{
    return static_cast<CPalette *>(CGdiObject::FromHandle(hPalette));
}

CPalette::operator HPALETTE() const
{
    return static_cast<HPALETTE>(HandleOf(MaybeNull(this)));
}

BOOL CPalette::CreatePalette(LPLOGPALETTE lpLogPalette)
{
    return Attach(::CreatePalette(lpLogPalette));
}

BOOL CPalette::CreateHalftonePalette(CDC * pDC)
{
    return Attach(::CreateHalftonePalette(HandleOf(pDC)));
}

int CPalette::GetEntryCount()
{
    WORD count = 0;
    ::GetObject(m_hObject, sizeof count, &count);
    return count;
}

UINT CPalette::GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const
{
    return ::GetPaletteEntries(PaletteOf(*this), nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    return ::SetPaletteEntries(PaletteOf(*this), nStartIndex, nNumEntries, lpPaletteColors);
}

void CPalette::AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors)
{
    ::AnimatePalette(PaletteOf(*this), nStartIndex, nNumEntries, lpPaletteColors);
}

UINT CPalette::GetNearestPaletteIndex(COLORREF crColor) const
{
    return ::GetNearestPaletteIndex(PaletteOf(*this), crColor);
}

BOOL CPalette::ResizePalette(UINT nNumEntries)
{
    return ::ResizePalette(PaletteOf(*this), nNumEntries);
}

CRgn::CRgn() = default;

CRgn * PASCAL CRgn::FromHandle(HRGN hRgn)
{
    return static_cast<CRgn *>(CGdiObject::FromHandle(hRgn));
}

CRgn::operator HRGN() const
{
    return RegionOf(MaybeNull(this));
}

BOOL CRgn::CreateRectRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateRectRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateRectRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateRectRgnIndirect(lpRect));
}

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreateEllipticRgnIndirect(LPCRECT lpRect)
{
    return Attach(::CreateEllipticRgnIndirect(lpRect));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
{
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode)
{
    return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC * pDC)
{
    return Attach(::PathToRegion(HandleOf(pDC)));
}

BOOL CRgn::CreateFromData(XFORM const * lpXForm, int nCount, RGNDATA const * pRgnData)
{
    return Attach(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
}

void CRgn::SetRectRgn(int x1, int y1, int x2, int y2)
{
    ::SetRectRgn(RegionOf(this), x1, y1, x2, y2);
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(CRgn * pRgn1, CRgn * pRgn2, int nCombineMode)
{
    return ::CombineRgn(RegionOf(this), RegionOf(pRgn1), RegionOf(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(CRgn * pRgnSrc)
{
    return CombineRgn(pRgnSrc, nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(CRgn * pRgn) const
{
    return ::EqualRgn(RegionOf(this), RegionOf(pRgn));
}

int CRgn::OffsetRgn(int x, int y)
{
    return ::OffsetRgn(RegionOf(this), x, y);
}

int CRgn::OffsetRgn(POINT point)
{
    return OffsetRgn(point.x, point.y);
}

int CRgn::GetRgnBox(LPRECT lpRect) const
{
    return ::GetRgnBox(RegionOf(this), lpRect);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(RegionOf(this), x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(LPCRECT lpRect) const
{
    return ::RectInRegion(RegionOf(this), lpRect);
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nCount) const
{
    return static_cast<int>(::GetRegionData(RegionOf(this), static_cast<DWORD>(nCount), lpRgnData));
}
