// Clipping, regions, lines, shapes and paths of device contexts.

#include "detail/GdiHandles.h"

using framework::HandleOf;
using framework::OnBoth;

namespace
{
HRGN RegionOf(CRgn const * region)
{
    return static_cast<HRGN>(HandleOf(region));
}

HBRUSH BrushOf(CBrush const * brush)
{
    return static_cast<HBRUSH>(HandleOf(brush));
}

// Drawing moved the output context's current position: the attribute context, if it is another one, follows.
void FollowPosition(CDC const & dc)
{
    POINT position = {};
    if (dc.m_hAttribDC != nullptr && dc.m_hAttribDC != dc.m_hDC && ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, nullptr);
}
} // namespace

int CDC::GetClipBox(LPRECT lpRect) const
{
    return ::GetClipBox(m_hDC, lpRect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(LPCRECT lpRect) const
{
    return ::RectVisible(m_hDC, lpRect);
}

int CDC::SelectClipRgn(CRgn * pRgn)
{
    return OnBoth(*this, [=](HDC dc) { return ::SelectClipRgn(dc, RegionOf(pRgn)); });
}

int CDC::SelectClipRgn(CRgn * pRgn, int nMode)
{
    return OnBoth(*this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, RegionOf(pRgn), nMode); });
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd * pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, HandleOf(pWnd));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return OnBoth(*this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); });
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}

BOOL CDC::FillRgn(CRgn * pRgn, CBrush * pBrush)
{
    return ::FillRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush));
}

BOOL CDC::FrameRgn(CRgn * pRgn, CBrush * pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn * pRgn)
{
    return ::InvertRgn(m_hDC, RegionOf(pRgn));
}

BOOL CDC::PaintRgn(CRgn * pRgn)
{
    return ::PaintRgn(m_hDC, RegionOf(pRgn));
}

CPoint CDC::GetCurrentPosition() const
{
    POINT position = {};
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    POINT previous = {};
    OnBoth(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &previous); });
    return previous;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    BOOL const drawn = ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    BOOL const drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::PolyDraw(POINT const * lpPoints, BYTE const * lpTypes, int nCount)
{
    BOOL const drawn = ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::Polyline(POINT const * lpPoints, int nCount)
{
    return ::Polyline(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolylineTo(POINT const * lpPoints, int nCount)
{
    BOOL const drawn = ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::PolyPolyline(POINT const * lpPoints, DWORD const * lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyBezier(POINT const * lpPoints, int nCount)
{
    return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
}

BOOL CDC::PolyBezierTo(POINT const * lpPoints, int nCount)
{
    BOOL const drawn = ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    FollowPosition(*this);
    return drawn;
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Ellipse(int x1, int y1, int x2, int y2)
{
    return ::Ellipse(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Ellipse(LPCRECT lpRect)
{
    return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
}

BOOL CDC::Polygon(POINT const * lpPoints, int nCount)
{
    return ::Polygon(m_hDC, lpPoints, nCount);
}

BOOL CDC::PolyPolygon(POINT const * lpPoints, INT const * lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(int x1, int y1, int x2, int y2)
{
    return ::Rectangle(m_hDC, x1, y1, x2, y2);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::BeginPath()
{
    return ::BeginPath(m_hDC);
}

BOOL CDC::EndPath()
{
    return ::EndPath(m_hDC);
}

BOOL CDC::AbortPath()
{
    return ::AbortPath(m_hDC);
}

BOOL CDC::CloseFigure()
{
    return ::CloseFigure(m_hDC);
}

BOOL CDC::FillPath()
{
    return ::FillPath(m_hDC);
}

BOOL CDC::StrokePath()
{
    return ::StrokePath(m_hDC);
}

BOOL CDC::StrokeAndFillPath()
{
    return ::StrokeAndFillPath(m_hDC);
}

BOOL CDC::FlattenPath()
{
    return ::FlattenPath(m_hDC);
}

BOOL CDC::WidenPath()
{
    return ::WidenPath(m_hDC);
}

BOOL CDC::SelectClipPath(int nMode)
{
    if (!::SelectClipPath(m_hDC, nMode))
        return FALSE;
    if (m_hAttribDC == nullptr || m_hAttribDC == m_hDC)
        return TRUE;
    // Only the output context had the path; the attribute context gets the clip region that came of it.
    CRgn clip;
    return clip.CreateRectRgn(0, 0, 0, 0) && ::GetClipRgn(m_hDC, clip) > 0 &&
           ::ExtSelectClipRgn(m_hAttribDC, clip, RGN_COPY) != ERROR;
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}
