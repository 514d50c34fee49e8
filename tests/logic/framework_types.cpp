// CPoint, CSize, CRect, and the plain types and functions they stand on.

#include <atltypes.h>

#include "framework_Support.h"

TEST(FrameworkTypes, SizesAreFixed)
{
    EXPECT_EQ(4U, sizeof(BOOL));
    EXPECT_EQ(4U, sizeof(DWORD));
    EXPECT_EQ(4U, sizeof(LONG));
    EXPECT_EQ(4U, sizeof(COLORREF));
    EXPECT_EQ(2U, sizeof(WORD));
    EXPECT_EQ(sizeof(void *), sizeof(LPARAM));
    EXPECT_EQ(sizeof(void *), sizeof(WPARAM));
    EXPECT_EQ(44U, sizeof(WINDOWPLACEMENT));
    EXPECT_EQ(sizeof(POINT), sizeof(CPoint));
    EXPECT_EQ(sizeof(SIZE), sizeof(CSize));
    EXPECT_EQ(sizeof(RECT), sizeof(CRect));
}

TEST(FrameworkTypes, WordsAndColours)
{
    EXPECT_EQ(0x00030201U, RGB(1, 2, 3));
    EXPECT_EQ(1, GetRValue(RGB(1, 2, 3)));
    EXPECT_EQ(2, GetGValue(RGB(1, 2, 3)));
    EXPECT_EQ(3, GetBValue(RGB(1, 2, 3)));
    EXPECT_EQ(0x56781234, MAKELONG(0x1234, 0x5678));
    EXPECT_EQ(0x1234, LOWORD(0x56781234));
    EXPECT_EQ(0x5678, HIWORD(0x56781234));
    EXPECT_EQ(0xFFFFFFFFULL, static_cast<ULONGLONG>(MAKELPARAM(0xFFFF, 0xFFFF)));
}

TEST(FrameworkTypes, MulDivRoundsToTheNearest)
{
    EXPECT_EQ(3, MulDiv(5, 1, 2));
    EXPECT_EQ(-3, MulDiv(-5, 1, 2));
    EXPECT_EQ(2, MulDiv(7, 1, 3));
    EXPECT_EQ(-1, MulDiv(1, 1, 0));
    EXPECT_EQ(-1, MulDiv(0x7fffffff, 2, 1));
    EXPECT_EQ(0x7fffffff, MulDiv(0x7fffffff, 96, 96));
}

TEST(FrameworkPoint, Construction)
{
    EXPECT_TRUE(CPoint() == CPoint(0, 0));
    EXPECT_TRUE(CPoint(POINT{1, 2}) == CPoint(1, 2));
    EXPECT_TRUE(CPoint(SIZE{3, 4}) == CPoint(3, 4));
    EXPECT_TRUE(CPoint(static_cast<LPARAM>(MAKELPARAM(5, -6))) == CPoint(5, -6));
}

TEST(FrameworkPoint, Operators)
{
    CPoint point(1, 2);
    point.Offset(1, 1);
    point.Offset(POINT{1, 1});
    point.Offset(SIZE{1, 1});
    EXPECT_TRUE(point == CPoint(4, 5));
    EXPECT_TRUE(point != CPoint(4, 6));
    POINT const plain{4, 5};
    EXPECT_TRUE(point == plain);
    EXPECT_FALSE(point != plain);
    point += CSize(1, 2);
    point += CPoint(1, 1);
    point -= CSize(2, 2);
    point -= CPoint(1, 1);
    EXPECT_TRUE(point == CPoint(3, 5));
    EXPECT_TRUE(point + CSize(1, 1) == CPoint(4, 6));
    EXPECT_TRUE(point + CPoint(1, 1) == CPoint(4, 6));
    EXPECT_TRUE(point - CPoint(1, 1) == CSize(2, 4));
    EXPECT_TRUE(point - CSize(1, 1) == CPoint(2, 4));
    EXPECT_TRUE(-point == CPoint(-3, -5));
    CRect const rect(0, 0, 10, 20);
    EXPECT_TRUE(point + &rect == CRect(3, 5, 13, 25));
    EXPECT_TRUE(point - &rect == CRect(-3, -5, 7, 15));
}

TEST(FrameworkSize, ConstructionAndOperators)
{
    EXPECT_TRUE(CSize() == CSize(0, 0));
    EXPECT_TRUE(CSize(SIZE{1, 2}) == CSize(1, 2));
    EXPECT_TRUE(CSize(POINT{3, 4}) == CSize(3, 4));
    EXPECT_TRUE(CSize(static_cast<DWORD>(MAKELONG(5, -6))) == CSize(5, -6));
    CSize size(10, 20);
    size += CSize(1, 1);
    size -= CSize(2, 3);
    EXPECT_TRUE(size == CSize(9, 18));
    SIZE const plain{9, 18};
    EXPECT_TRUE(size == plain);
    EXPECT_FALSE(size != plain);
    EXPECT_TRUE(size != CSize(9, 19));
    EXPECT_TRUE(size + CSize(1, 2) == CSize(10, 20));
    EXPECT_TRUE(size - CSize(1, 2) == CSize(8, 16));
    EXPECT_TRUE(-size == CSize(-9, -18));
    EXPECT_TRUE(size + CPoint(1, 1) == CPoint(10, 19));
    EXPECT_TRUE(size - CPoint(1, 1) == CPoint(8, 17));
    CRect const rect(0, 0, 10, 20);
    EXPECT_TRUE(size + &rect == CRect(9, 18, 19, 38));
    EXPECT_TRUE(size - &rect == CRect(-9, -18, 1, 2));
}

TEST(FrameworkRect, Construction)
{
    RECT const plain{1, 2, 3, 4};
    EXPECT_TRUE(CRect() == CRect(0, 0, 0, 0));
    EXPECT_TRUE(CRect(plain) == CRect(1, 2, 3, 4));
    EXPECT_TRUE(CRect(&plain) == CRect(1, 2, 3, 4));
    EXPECT_TRUE(CRect(POINT{1, 2}, SIZE{10, 20}) == CRect(1, 2, 11, 22));
    EXPECT_TRUE(CRect(POINT{1, 2}, POINT{10, 20}) == CRect(1, 2, 10, 20));
}

TEST(FrameworkRect, Measures)
{
    CRect const rect(10, 20, 40, 60);
    EXPECT_EQ(30, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_TRUE(rect.Size() == CSize(30, 40));
    EXPECT_TRUE(rect.TopLeft() == CPoint(10, 20));
    EXPECT_TRUE(rect.BottomRight() == CPoint(40, 60));
    EXPECT_TRUE(rect.CenterPoint() == CPoint(25, 40));
    EXPECT_TRUE(CRect(0, 0, 3, 5).CenterPoint() == CPoint(1, 2));
    EXPECT_FALSE(rect.IsRectEmpty());
    EXPECT_FALSE(rect.IsRectNull());
    EXPECT_TRUE(CRect(5, 5, 5, 10).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 4, 10).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 10).IsRectNull());
    EXPECT_TRUE(CRect().IsRectNull());
}

TEST(FrameworkRect, CornersAreReferences)
{
    CRect rect(10, 20, 40, 60);
    rect.TopLeft() = CPoint(1, 2);
    rect.BottomRight().Offset(5, 5);
    EXPECT_EQ(1, rect.left);
    EXPECT_EQ(2, rect.top);
    EXPECT_EQ(45, rect.right);
    EXPECT_EQ(65, rect.bottom);
}

TEST(FrameworkRect, PointsInsideExcludeRightAndBottom)
{
    CRect const rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
    EXPECT_FALSE(CRect(10, 10, 0, 0).PtInRect(CPoint(5, 5)));
}

TEST(FrameworkRect, SettersAndConversions)
{
    CRect rect;
    rect.SetRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(1, 2, 3, 4));
    RECT const plain{5, 6, 7, 8};
    rect.CopyRect(&plain);
    EXPECT_TRUE(rect == plain);
    EXPECT_FALSE(rect != plain);
    EXPECT_TRUE(rect.EqualRect(&plain));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
    rect = plain;
    LPRECT const pointer = rect;
    pointer->left = 9;
    LPCRECT const constant = rect;
    EXPECT_EQ(9, constant->left);
    EXPECT_TRUE(rect != CRect(5, 6, 7, 8));
}

TEST(FrameworkRect, InflateAndDeflate)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(9, 8, 21, 22));
    rect.DeflateRect(1, 2);
    EXPECT_TRUE(rect == CRect(10, 10, 20, 20));
    rect.InflateRect(CSize(1, 1));
    rect.DeflateRect(CSize(2, 2));
    EXPECT_TRUE(rect == CRect(11, 11, 19, 19));
    CRect const sides(1, 2, 3, 4);
    rect.InflateRect(&sides);
    EXPECT_TRUE(rect == CRect(10, 9, 22, 23));
    rect.DeflateRect(&sides);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(10, 9, 22, 23));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_TRUE(rect == CRect(11, 11, 19, 19));
}

TEST(FrameworkRect, Moving)
{
    CRect rect(10, 20, 30, 50);
    rect.OffsetRect(1, 2);
    rect.OffsetRect(CSize(1, 1));
    rect.OffsetRect(CPoint(1, 1));
    EXPECT_TRUE(rect == CRect(13, 24, 33, 54));
    rect.MoveToX(0);
    EXPECT_TRUE(rect == CRect(0, 24, 20, 54));
    rect.MoveToY(0);
    EXPECT_TRUE(rect == CRect(0, 0, 20, 30));
    rect.MoveToXY(5, 6);
    EXPECT_TRUE(rect == CRect(5, 6, 25, 36));
    rect.MoveToXY(CPoint(1, 1));
    EXPECT_TRUE(rect == CRect(1, 1, 21, 31));
}

TEST(FrameworkRect, Normalize)
{
    CRect rect(30, 50, 10, 20);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
}

TEST(FrameworkRect, Intersection)
{
    CRect result(9, 9, 9, 9);
    CRect const a(0, 0, 10, 10);
    CRect const b(5, 6, 20, 20);
    EXPECT_TRUE(result.IntersectRect(&a, &b));
    EXPECT_TRUE(result == CRect(5, 6, 10, 10));
    CRect const apart(10, 0, 20, 10);
    EXPECT_FALSE(result.IntersectRect(&a, &apart));
    EXPECT_TRUE(result.IsRectNull());
    CRect const empty(5, 5, 5, 8);
    EXPECT_FALSE(result.IntersectRect(&a, &empty));
    EXPECT_TRUE((a & b) == CRect(5, 6, 10, 10));
    result = a;
    result &= b;
    EXPECT_TRUE(result == CRect(5, 6, 10, 10));
}

TEST(FrameworkRect, UnionIgnoresEmptyRectangles)
{
    CRect result;
    CRect const a(0, 0, 10, 10);
    CRect const b(20, 20, 30, 30);
    CRect const empty(100, 100, 100, 200);
    EXPECT_TRUE(result.UnionRect(&a, &b));
    EXPECT_TRUE(result == CRect(0, 0, 30, 30));
    EXPECT_TRUE(result.UnionRect(&a, &empty));
    EXPECT_TRUE(result == a);
    EXPECT_TRUE(result.UnionRect(&empty, &b));
    EXPECT_TRUE(result == b);
    EXPECT_FALSE(result.UnionRect(&empty, &empty));
    EXPECT_TRUE(result.IsRectNull());
    EXPECT_TRUE((a | b) == CRect(0, 0, 30, 30));
    result = CRect(100, 0, 200, 300);
    result |= CRect(0, 100, 300, 200);
    EXPECT_TRUE(result == CRect(0, 0, 300, 300));
}

TEST(FrameworkRect, SubtractionNeedsAWholeSide)
{
    CRect const a(10, 10, 100, 100);
    CRect result;
    CRect const corner(50, 50, 150, 150);
    EXPECT_TRUE(result.SubtractRect(&a, &corner));
    EXPECT_TRUE(result == a);
    CRect const right(50, 10, 150, 150);
    EXPECT_TRUE(result.SubtractRect(&a, &right));
    EXPECT_TRUE(result == CRect(10, 10, 50, 100));
    CRect const left(0, 0, 50, 150);
    EXPECT_TRUE(result.SubtractRect(&a, &left));
    EXPECT_TRUE(result == CRect(50, 10, 100, 100));
    CRect const top(0, 0, 150, 50);
    EXPECT_TRUE(result.SubtractRect(&a, &top));
    EXPECT_TRUE(result == CRect(10, 50, 100, 100));
    CRect const bottom(0, 50, 150, 150);
    EXPECT_TRUE(result.SubtractRect(&a, &bottom));
    EXPECT_TRUE(result == CRect(10, 10, 100, 50));
    CRect const middle(40, 0, 60, 150);
    EXPECT_TRUE(result.SubtractRect(&a, &middle));
    EXPECT_TRUE(result == a);
    CRect const all(0, 0, 200, 200);
    EXPECT_FALSE(result.SubtractRect(&a, &all));
    EXPECT_TRUE(result.IsRectNull());
    CRect const apart(200, 200, 300, 300);
    EXPECT_TRUE(result.SubtractRect(&a, &apart));
    EXPECT_TRUE(result == a);
}

TEST(FrameworkRect, SubtractInPlace)
{
    CRect rect(10, 10, 100, 100);
    CRect const right(50, 0, 200, 200);
    EXPECT_TRUE(rect.SubtractRect(&rect, &right));
    EXPECT_TRUE(rect == CRect(10, 10, 50, 100));
}

TEST(FrameworkRect, Arithmetic)
{
    CRect const rect(10, 20, 30, 40);
    CRect const sides(1, 2, 3, 4);
    EXPECT_TRUE(rect + CPoint(1, 2) == CRect(11, 22, 31, 42));
    EXPECT_TRUE(rect + CSize(1, 2) == CRect(11, 22, 31, 42));
    EXPECT_TRUE(rect - CPoint(1, 2) == CRect(9, 18, 29, 38));
    EXPECT_TRUE(rect - CSize(1, 2) == CRect(9, 18, 29, 38));
    EXPECT_TRUE(rect + static_cast<LPCRECT>(sides) == CRect(9, 18, 33, 44));
    EXPECT_TRUE(rect - static_cast<LPCRECT>(sides) == CRect(11, 22, 27, 36));
    CRect changed = rect;
    changed += CPoint(1, 1);
    changed -= CSize(2, 2);
    changed += CSize(1, 1);
    changed -= CPoint(1, 1);
    EXPECT_TRUE(changed == CRect(9, 19, 29, 39));
    changed += &sides;
    changed -= &sides;
    EXPECT_TRUE(changed == CRect(9, 19, 29, 39));
}

TEST(FrameworkRect, PlainFunctionsRefuseNull)
{
    RECT rect{1, 2, 3, 4};
    EXPECT_FALSE(::SetRect(nullptr, 0, 0, 0, 0));
    EXPECT_FALSE(::CopyRect(&rect, nullptr));
    EXPECT_TRUE(::IsRectEmpty(nullptr));
    EXPECT_FALSE(::PtInRect(nullptr, POINT{0, 0}));
    EXPECT_FALSE(::EqualRect(&rect, nullptr));
    EXPECT_EQ(1, rect.left);
}
