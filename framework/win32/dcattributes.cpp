// Colours, drawing attributes and mapping of device contexts.

#include <cstdlib>

#include "detail/GdiHandles.h"

using framework::OnBoth;

namespace
{
constexpr int himetric_per_inch = 2540;

// The mapping modes below MM_ISOTROPIC, other than MM_TEXT, map to physical lengths.
bool IsPhysical(int mapMode)
{
    return mapMode != MM_TEXT && mapMode < MM_ISOTROPIC;
}

int Scaled(LONG length, int numerator, int denominator)
{
    return ::MulDiv(static_cast<int>(length), numerator, denominator);
}
} // namespace

CPoint CDC::GetBrushOrg() const
{
    POINT origin = {};
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    POINT previous = {};
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::SetBrushOrg(POINT point)
{
    return SetBrushOrg(point.x, point.y);
}

COLORREF CDC::GetNearestColor(COLORREF crColor) const
{
    return ::GetNearestColor(m_hAttribDC, crColor);
}

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return OnBoth(
        *this, [=](HDC dc) { return ::SetBkColor(dc, crColor); }, CLR_INVALID);
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::SetBkMode(int nBkMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return OnBoth(
        *this, [=](HDC dc) { return ::SetTextColor(dc, crColor); }, CLR_INVALID);
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hDC);
}

COLORREF CDC::SetDCBrushColor(COLORREF crColor)
{
    return ::SetDCBrushColor(m_hDC, crColor);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hDC);
}

COLORREF CDC::SetDCPenColor(COLORREF crColor)
{
    return ::SetDCPenColor(m_hDC, crColor);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::SetROP2(int nDrawMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(COLORADJUSTMENT const * lpColorAdjust)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int nArcDirection)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hAttribDC, &limit);
    return limit;
}

BOOL CDC::SetMiterLimit(float fMiterLimit)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetMiterLimit(dc, fMiterLimit, nullptr); });
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hDC);
}

int CDC::SetGraphicsMode(int iMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetGraphicsMode(dc, iMode); });
}

BOOL CDC::GetWorldTransform(XFORM & rXform) const
{
    return ::GetWorldTransform(m_hAttribDC, &rXform);
}

BOOL CDC::SetWorldTransform(XFORM const & rXform)
{
    return OnBoth(*this, [&](HDC dc) { return ::SetWorldTransform(dc, &rXform); });
}

BOOL CDC::ModifyWorldTransform(XFORM const & rXform, DWORD iMode)
{
    return OnBoth(*this, [&](HDC dc) { return ::ModifyWorldTransform(dc, &rXform, iMode); });
}

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

int CDC::SetMapMode(int nMapMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::GetViewportOrg() const
{
    POINT origin = {};
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    POINT previous = {};
    OnBoth(*this, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    POINT previous = {};
    OnBoth(*this, [&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetViewportExt() const
{
    SIZE extent = {};
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    SIZE previous = {};
    OnBoth(*this, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    SIZE previous = {};
    OnBoth(*this, [&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

CPoint CDC::GetWindowOrg() const
{
    POINT origin = {};
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    POINT previous = {};
    OnBoth(*this, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    POINT previous = {};
    OnBoth(*this, [&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &previous); });
    return previous;
}

CSize CDC::GetWindowExt() const
{
    SIZE extent = {};
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    SIZE previous = {};
    OnBoth(*this, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &previous); });
    return previous;
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    SIZE previous = {};
    OnBoth(*this, [&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &previous); });
    return previous;
}

void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const
{
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}

void CDC::DPtoLP(LPRECT lpRect) const
{
    ::DPtoLP(m_hAttribDC, reinterpret_cast<POINT *>(lpRect), 2);
}

void CDC::DPtoLP(LPSIZE lpSize) const
{
    CSize const window = GetWindowExt();
    CSize const viewport = GetViewportExt();
    lpSize->cx = std::abs(Scaled(lpSize->cx, window.cx, viewport.cx));
    lpSize->cy = std::abs(Scaled(lpSize->cy, window.cy, viewport.cy));
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const
{
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}

void CDC::LPtoDP(LPRECT lpRect) const
{
    ::LPtoDP(m_hAttribDC, reinterpret_cast<POINT *>(lpRect), 2);
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    CSize const window = GetWindowExt();
    CSize const viewport = GetViewportExt();
    lpSize->cx = std::abs(Scaled(lpSize->cx, viewport.cx, window.cx));
    lpSize->cy = std::abs(Scaled(lpSize->cy, viewport.cy, window.cy));
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    int const mapMode = GetMapMode();
    if (IsPhysical(mapMode))
    {
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        DPtoLP(lpSize);
        ::SetMapMode(m_hAttribDC, mapMode);
        return;
    }
    lpSize->cx = Scaled(lpSize->cx, himetric_per_inch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = Scaled(lpSize->cy, himetric_per_inch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    int const mapMode = GetMapMode();
    if (IsPhysical(mapMode))
    {
        ::SetMapMode(m_hAttribDC, MM_HIMETRIC);
        LPtoDP(lpSize);
        ::SetMapMode(m_hAttribDC, mapMode);
        return;
    }
    lpSize->cx = Scaled(lpSize->cx, GetDeviceCaps(LOGPIXELSX), himetric_per_inch);
    lpSize->cy = Scaled(lpSize->cy, GetDeviceCaps(LOGPIXELSY), himetric_per_inch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}
