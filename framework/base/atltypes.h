#pragma once
// CSize, CPoint and CRect.

#include "afxver_.h"

class CPoint;
class CRect;

// TopLeft and BottomRight show halves of a rectangle as points.
#define FRAMEWORK_MAY_ALIAS __attribute__((__may_alias__))

// Beside each comparison with the plain structure stands one with the class itself: the comparison of two objects
// would otherwise be ambiguous with its own reversed form.

class FRAMEWORK_MAY_ALIAS CSize : public tagSIZE
{
public:
    CSize() noexcept : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) noexcept : tagSIZE{initCX, initCY} {}
    CSize(SIZE initSize) noexcept : tagSIZE(initSize) {}
    CSize(POINT initPt) noexcept : tagSIZE{initPt.x, initPt.y} {}
    CSize(DWORD dwSize) noexcept : tagSIZE{static_cast<short>(LOWORD(dwSize)), static_cast<short>(HIWORD(dwSize))} {}

    BOOL operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator==(CSize const & size) const noexcept { return cx == size.cx && cy == size.cy; }
    BOOL operator!=(SIZE size) const noexcept { return cx != size.cx || cy != size.cy; }
    BOOL operator!=(CSize const & size) const noexcept { return cx != size.cx || cy != size.cy; }
    void operator+=(SIZE size) noexcept
    {
        cx += size.cx;
        cy += size.cy;
    }
    void operator-=(SIZE size) noexcept
    {
        cx -= size.cx;
        cy -= size.cy;
    }

    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(RECT const * lpRect) const noexcept;
    CRect operator-(RECT const * lpRect) const noexcept;
};

class FRAMEWORK_MAY_ALIAS CPoint : public tagPOINT
{
public:
    CPoint() noexcept : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) noexcept : tagPOINT{initX, initY} {}
    CPoint(POINT initPt) noexcept : tagPOINT(initPt) {}
    CPoint(SIZE initSize) noexcept : tagPOINT{initSize.cx, initSize.cy} {}
    CPoint(LPARAM dwPoint) noexcept : tagPOINT{static_cast<short>(LOWORD(dwPoint)), static_cast<short>(HIWORD(dwPoint))}
    {
    }

    void Offset(int xOffset, int yOffset) noexcept
    {
        x += xOffset;
        y += yOffset;
    }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }

    BOOL operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator==(CPoint const & point) const noexcept { return x == point.x && y == point.y; }
    BOOL operator!=(POINT point) const noexcept { return x != point.x || y != point.y; }
    BOOL operator!=(CPoint const & point) const noexcept { return x != point.x || y != point.y; }
    void operator+=(SIZE size) noexcept { Offset(size); }
    void operator+=(POINT point) noexcept { Offset(point); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }

    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CRect operator+(RECT const * lpRect) const noexcept;
    CRect operator-(RECT const * lpRect) const noexcept;
};

class FRAMEWORK_MAY_ALIAS CRect : public tagRECT
{
public:
    CRect() noexcept : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) noexcept : tagRECT{l, t, r, b} {}
    CRect(RECT const & srcRect) noexcept : tagRECT(srcRect) {}
    CRect(LPCRECT lpSrcRect) noexcept : tagRECT(*lpSrcRect) {}
    CRect(POINT point, SIZE size) noexcept : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) noexcept : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}
    CRect(CRect const &) noexcept = default;

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(right - left, bottom - top); }
    CPoint & TopLeft() noexcept { return *reinterpret_cast<CPoint *>(this); }
    CPoint & BottomRight() noexcept { return *(reinterpret_cast<CPoint *>(this) + 1); }
    CPoint const & TopLeft() const noexcept { return *reinterpret_cast<CPoint const *>(this); }
    CPoint const & BottomRight() const noexcept { return *(reinterpret_cast<CPoint const *>(this) + 1); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }
    void SetRect(int x1, int y1, int x2, int y2) noexcept { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept
    {
        ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { ::CopyRect(this, lpSrcRect); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) noexcept { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept { InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void InflateRect(int l, int t, int r, int b) noexcept
    {
        left -= l;
        top -= t;
        right += r;
        bottom += b;
    }
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) noexcept { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept { DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    void DeflateRect(int l, int t, int r, int b) noexcept
    {
        left += l;
        top += t;
        right -= r;
        bottom -= b;
    }
    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) noexcept { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { ::OffsetRect(this, point.x, point.y); }
    void NormalizeRect() noexcept
    {
        if (left > right)
            Swap(left, right);
        if (top > bottom)
            Swap(top, bottom);
    }
    void MoveToY(int y) noexcept
    {
        bottom = Height() + y;
        top = y;
    }
    void MoveToX(int x) noexcept
    {
        right = Width() + x;
        left = x;
    }
    void MoveToXY(int x, int y) noexcept
    {
        MoveToX(x);
        MoveToY(y);
    }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::IntersectRect(this, lpRect1, lpRect2); }
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(RECT const & srcRect) noexcept { static_cast<tagRECT &>(*this) = srcRect; }
    CRect & operator=(CRect const &) noexcept = default;
    BOOL operator==(RECT const & rect) const noexcept { return ::EqualRect(this, &rect); }
    BOOL operator==(CRect const & rect) const noexcept { return ::EqualRect(this, &rect); }
    BOOL operator!=(RECT const & rect) const noexcept { return !::EqualRect(this, &rect); }
    BOOL operator!=(CRect const & rect) const noexcept { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) noexcept { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(RECT const & rect) noexcept { ::IntersectRect(this, this, &rect); }
    void operator|=(RECT const & rect) noexcept { ::UnionRect(this, this, &rect); }

    CRect operator+(POINT point) const noexcept
    {
        return With(*this, [&](CRect & r) { r += point; });
    }
    CRect operator+(SIZE size) const noexcept
    {
        return With(*this, [&](CRect & r) { r += size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept
    {
        return With(*this, [&](CRect & r) { r += lpRect; });
    }
    CRect operator-(POINT point) const noexcept
    {
        return With(*this, [&](CRect & r) { r -= point; });
    }
    CRect operator-(SIZE size) const noexcept
    {
        return With(*this, [&](CRect & r) { r -= size; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept
    {
        return With(*this, [&](CRect & r) { r -= lpRect; });
    }
    CRect operator&(RECT const & rect2) const noexcept
    {
        return With(*this, [&](CRect & r) { r &= rect2; });
    }
    CRect operator|(RECT const & rect2) const noexcept
    {
        return With(*this, [&](CRect & r) { r |= rect2; });
    }

private:
    static void Swap(LONG & a, LONG & b) noexcept
    {
        LONG const old = a;
        a = b;
        b = old;
    }
    template <class Change> static CRect With(CRect rect, Change change)
    {
        change(rect);
        return rect;
    }
};

inline CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(cx + point.x, cy + point.y);
}

inline CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(cx - point.x, cy - point.y);
}

inline CRect CSize::operator+(RECT const * lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CSize::operator-(RECT const * lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

inline CRect CPoint::operator+(RECT const * lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

inline CRect CPoint::operator-(RECT const * lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

#undef FRAMEWORK_MAY_ALIAS
