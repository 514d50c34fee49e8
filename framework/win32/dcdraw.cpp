// Filling, frames, icons, bitmaps and pixels of device contexts.

#include <cstddef>
#include <vector>

#include "detail/GdiHandles.h"

using framework::HandleOf;

namespace
{
HBRUSH BrushOf(CBrush const * brush)
{
    return static_cast<HBRUSH>(HandleOf(brush));
}

BOOL DrawStateOf(CDC const & dc, HBRUSH brush, DRAWSTATEPROC proc, LPARAM data, WPARAM size, CPoint at, CSize extent,
                 UINT flags)
{
    return ::DrawState(dc.m_hDC, brush, proc, data, size, at.x, at.y, extent.cx, extent.cy, flags);
}

BOOL DrawStateText(CDC const & dc, HBRUSH brush, LPCTSTR text, int length, BOOL prefix, CPoint at, CSize extent,
                   UINT flags)
{
    return DrawStateOf(dc, brush, nullptr, reinterpret_cast<LPARAM>(text), static_cast<WPARAM>(length), at, extent,
                       flags | (prefix ? DST_PREFIXTEXT : DST_TEXT));
}

// Made at its first use and deleted with the module.
class HalftoneBrush
{
public:
    HalftoneBrush()
    {
        constexpr int side = 8;
        WORD rows[side];
        for (int row = 0; row < side; ++row)
            rows[row] = row % 2 == 0 ? 0x5555 : 0xAAAA;
        if (HBITMAP const pattern = ::CreateBitmap(side, side, 1, 1, rows))
        {
            m_handle = ::CreatePatternBrush(pattern);
            ::DeleteObject(pattern);
        }
    }
    HalftoneBrush(HalftoneBrush const &) = delete;
    HalftoneBrush & operator=(HalftoneBrush const &) = delete;
    ~HalftoneBrush() { ::DeleteObject(m_handle); }

    HBRUSH Handle() const { return m_handle; }

private:
    HBRUSH m_handle = nullptr;
};

// The frame of a rectangle, thickness.cx wide at the sides and thickness.cy high above and below; the whole rectangle
// where the frame leaves no room inside.
void MakeFrame(CRgn & frame, LPCRECT rect, SIZE thickness)
{
    frame.CreateRectRgnIndirect(rect);
    CRect inside(rect);
    inside.DeflateRect(thickness.cx, thickness.cy);
    if (inside.IsRectEmpty())
        return;
    CRgn hole;
    hole.CreateRectRgnIndirect(inside);
    frame.CombineRgn(&frame, &hole, RGN_DIFF);
}

// Inverts with the brush's pattern: a second call with the same arguments takes the first one back. The region is in
// logical units, which a clip region could not be.
void InvertWithBrush(CDC & dc, CRgn const & region, CBrush * brush)
{
    int const size = region.GetRegionData(nullptr, 0);
    if (size <= 0)
        return;
    std::vector<std::byte> bytes(static_cast<size_t>(size));
    auto * const data = reinterpret_cast<RGNDATA *>(bytes.data());
    if (region.GetRegionData(data, size) == 0)
        return;
    CBrush * const previous = dc.SelectObject(brush);
    auto const * const parts = reinterpret_cast<RECT const *>(data->Buffer);
    for (DWORD index = 0; index < data->rdh.nCount; ++index)
    {
        CRect const part(parts[index]);
        dc.PatBlt(part.left, part.top, part.Width(), part.Height(), PATINVERT);
    }
    dc.SelectObject(previous);
}
} // namespace

CBrush * PASCAL CDC::GetHalftoneBrush()
{
    static HalftoneBrush const brush;
    return CBrush::FromHandle(brush.Handle());
}

void CDC::FillRect(LPCRECT lpRect, CBrush * pBrush)
{
    ::FillRect(m_hDC, lpRect, BrushOf(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush * pBrush)
{
    ::FrameRect(m_hDC, lpRect, BrushOf(pBrush));
}

void CDC::InvertRect(LPCRECT lpRect)
{
    ::InvertRect(m_hDC, lpRect);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    // The background colour stays changed: programs count on it.
    SetBkColor(clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
               clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush * pBrush,
                       CBrush * pBrushLast)
{
    CBrush * const brush = pBrush == nullptr ? GetHalftoneBrush() : pBrush;
    CBrush * const brushLast = pBrushLast == nullptr ? GetHalftoneBrush() : pBrushLast;
    CRgn frame;
    MakeFrame(frame, lpRect, size);
    if (lpRectLast == nullptr)
    {
        InvertWithBrush(*this, frame, brush);
        return;
    }
    CRgn frameLast;
    MakeFrame(frameLast, lpRectLast, sizeLast);
    if (brush->m_hObject == brushLast->m_hObject)
    {
        // What both frames cover is left alone, so that it does not flicker.
        frame.CombineRgn(&frame, &frameLast, RGN_XOR);
        InvertWithBrush(*this, frame, brush);
        return;
    }
    InvertWithBrush(*this, frameLast, brushLast);
    InvertWithBrush(*this, frame, brush);
}

void CDC::DrawFocusRect(LPCRECT lpRect)
{
    ::DrawFocusRect(m_hDC, lpRect);
}

BOOL CDC::DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags)
{
    return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

BOOL CDC::DrawIcon(int x, int y, HICON hIcon)
{
    return ::DrawIcon(m_hDC, x, y, hIcon);
}

BOOL CDC::DrawIcon(POINT point, HICON hIcon)
{
    return DrawIcon(point.x, point.y, hIcon);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(*this, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt, size, nFlags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap * pBitmap, UINT nFlags, CBrush * pBrush)
{
    return DrawState(pt, size, static_cast<HBITMAP>(HandleOf(pBitmap)), nFlags, BrushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(*this, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt, size, nFlags | DST_ICON);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush * pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, BrushOf(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen, HBRUSH hBrush)
{
    return DrawStateText(*this, hBrush, lpszText, nTextLen, bPrefixText, pt, size, nFlags);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush * pBrush)
{
    return DrawStateText(*this, BrushOf(pBrush), lpszText, nTextLen, bPrefixText, pt, size, nFlags);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(*this, hBrush, lpDrawProc, lData, 0, pt, size, nFlags | DST_COMPLEX);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush * pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, BrushOf(pBrush));
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn * pRgnUpdate, LPRECT lpRectUpdate)
{
    HRGN const update = static_cast<HRGN>(HandleOf(pRgnUpdate));
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, update, lpRectUpdate);
}

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC * pSrcDC, int xSrc, int ySrc, CBitmap & maskBitmap,
                  int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, HandleOf(pSrcDC), xSrc, ySrc,
                     static_cast<HBITMAP>(maskBitmap.m_hObject), xMask, yMask, dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC * pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight, CBitmap & maskBitmap,
                 int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, HandleOf(pSrcDC), xSrc, ySrc, nWidth, nHeight,
                    static_cast<HBITMAP>(maskBitmap.m_hObject), xMask, yMask);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC * pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, blend);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC * pSrcDC, int xSrc, int ySrc,
                         int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, HandleOf(pSrcDC), xSrc, ySrc, nSrcWidth,
                            nSrcHeight, clrTransparent);
}

BOOL CDC::GradientFill(TRIVERTEX * pVertices, ULONG nVertices, void * pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

COLORREF CDC::GetPixel(int x, int y) const
{
    return ::GetPixel(m_hDC, x, y);
}

COLORREF CDC::GetPixel(POINT point) const
{
    return GetPixel(point.x, point.y);
}

COLORREF CDC::SetPixel(int x, int y, COLORREF crColor)
{
    return ::SetPixel(m_hDC, x, y, crColor);
}

COLORREF CDC::SetPixel(POINT point, COLORREF crColor)
{
    return SetPixel(point.x, point.y, crColor);
}

BOOL CDC::SetPixelV(int x, int y, COLORREF crColor)
{
    return ::SetPixelV(m_hDC, x, y, crColor);
}

BOOL CDC::SetPixelV(POINT point, COLORREF crColor)
{
    return SetPixelV(point.x, point.y, crColor);
}

BOOL CDC::FloodFill(int x, int y, COLORREF crColor)
{
    return ::FloodFill(m_hDC, x, y, crColor);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}
