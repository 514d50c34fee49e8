// Drawing attributes, mapping and clipping of device contexts.

#include <afxwin.h>

#include <gtest/gtest.h>

#include "Bitmap.h"

namespace
{
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);

TEST(FrameworkGdiAttributes, DrawingAttributesGiveTheirPreviousValue)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    dc.SetBkColor(red);
    EXPECT_EQ(dc.SetBkColor(blue), red);
    EXPECT_EQ(dc.GetBkColor(), blue);
    EXPECT_EQ(dc.SetROP2(R2_XORPEN), R2_COPYPEN);
    EXPECT_EQ(dc.GetROP2(), R2_XORPEN);
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_EQ(dc.GetPolyFillMode(), WINDING);
    EXPECT_EQ(dc.SetStretchBltMode(COLORONCOLOR), BLACKONWHITE);
    EXPECT_EQ(dc.GetStretchBltMode(), COLORONCOLOR);
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.SetTextCharacterExtra(3), 0);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 3);
    EXPECT_TRUE(dc.SetMiterLimit(4.5f));
    EXPECT_EQ(dc.GetMiterLimit(), 4.5f);
    EXPECT_EQ(dc.SetBrushOrg(3, 4), CPoint(0, 0));
    EXPECT_EQ(dc.SetBrushOrg(CPoint(5, 6)), CPoint(3, 4));
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(5, 6));
    EXPECT_EQ(dc.GetNearestColor(red), red);
    EXPECT_EQ(dc.SetGraphicsMode(GM_ADVANCED), GM_COMPATIBLE);
    EXPECT_EQ(dc.GetGraphicsMode(), GM_ADVANCED);
    XFORM const shifted = {1, 0, 0, 1, 5, 6};
    EXPECT_TRUE(dc.SetWorldTransform(shifted));
    XFORM read = {};
    EXPECT_TRUE(dc.GetWorldTransform(read));
    EXPECT_EQ(read.eDx, 5);
    EXPECT_TRUE(dc.ModifyWorldTransform(shifted, MWT_LEFTMULTIPLY));
    dc.GetWorldTransform(read);
    EXPECT_EQ(read.eDy, 12);
}

TEST(FrameworkGdiAttributes, MappingConvertsPointsRectanglesAndSizes)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    EXPECT_EQ(dc.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    EXPECT_EQ(dc.GetMapMode(), MM_ANISOTROPIC);
    EXPECT_EQ(dc.SetWindowExt(10, 10), CSize(1, 1));
    EXPECT_EQ(dc.SetViewportExt(CSize(20, -30)), CSize(1, 1));
    EXPECT_EQ(dc.GetWindowExt(), CSize(10, 10));
    EXPECT_EQ(dc.GetViewportExt(), CSize(20, -30));
    EXPECT_EQ(dc.SetWindowOrg(5, 5), CPoint(0, 0));
    EXPECT_EQ(dc.SetViewportOrg(CPoint(100, 100)), CPoint(0, 0));
    CPoint point(6, 7);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(102, 94));
    dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(6, 7));
    CRect rect(5, 5, 6, 6);
    dc.LPtoDP(rect);
    EXPECT_EQ(rect, CRect(100, 100, 102, 97));
    dc.DPtoLP(rect);
    EXPECT_EQ(rect, CRect(5, 5, 6, 6));
    CSize size(3, 3);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(6, 9)); // a size has no direction
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(3, 3));
    EXPECT_EQ(dc.OffsetWindowOrg(1, 1), CPoint(5, 5));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(6, 6));
    EXPECT_EQ(dc.OffsetViewportOrg(1, 1), CPoint(100, 100));
    EXPECT_EQ(dc.ScaleWindowExt(2, 1, 3, 1), CSize(10, 10));
    EXPECT_EQ(dc.GetWindowExt(), CSize(20, 30));
    EXPECT_EQ(dc.ScaleViewportExt(1, 2, 1, 3), CSize(20, -30));
    EXPECT_EQ(dc.GetViewportExt(), CSize(10, -10));
    EXPECT_EQ(dc.SetWindowExt(CSize(1, 1)), CSize(20, 30));
    EXPECT_EQ(dc.SetWindowOrg(CPoint(0, 0)), CPoint(6, 6));
}

TEST(FrameworkGdiAttributes, HimetricSizesFollowTheLogicalInch)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    int const perInch = dc.GetDeviceCaps(LOGPIXELSX);
    CSize size(2540, 5080);
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size, CSize(perInch, 2 * perInch));
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080));
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(2, 2);
    dc.SetViewportExt(1, 1);
    dc.HIMETRICtoLP(&size);
    EXPECT_EQ(size, CSize(2 * perInch, 4 * perInch));
    dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080));
}

TEST(FrameworkGdiAttributes, HimetricSizesFollowThePhysicalInchOfAPhysicalMode)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    dc.SetMapMode(MM_HIMETRIC);
    CSize mapped(2540, 2540);
    dc.LPtoDP(&mapped);
    dc.SetMapMode(MM_LOENGLISH);
    CSize size(2540, 2540);
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size, mapped);
    EXPECT_EQ(dc.GetMapMode(), MM_LOENGLISH);
    dc.DPtoHIMETRIC(&size);
    EXPECT_NEAR(size.cx, 2540, 30);
}

TEST(FrameworkGdiAttributes, ClippingNarrowsAndWidens)
{
    tests::Canvas canvas(20, 20);
    CDC & dc = canvas.Dc();
    CRgn region;
    region.CreateRectRgn(5, 5, 15, 15);
    EXPECT_EQ(dc.SelectClipRgn(&region), SIMPLEREGION);
    CRect box;
    EXPECT_EQ(dc.GetClipBox(box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(5, 5, 15, 15));
    EXPECT_TRUE(dc.PtVisible(5, 5));
    EXPECT_FALSE(dc.PtVisible(CPoint(4, 5)));
    EXPECT_TRUE(dc.RectVisible(CRect(0, 0, 6, 6)));
    EXPECT_FALSE(dc.RectVisible(CRect(0, 0, 5, 5)));
    dc.FillSolidRect(0, 0, 20, 20, red);
    EXPECT_EQ(canvas.Count(red), 100);
    EXPECT_EQ(dc.IntersectClipRect(5, 5, 10, 10), SIMPLEREGION);
    EXPECT_EQ(dc.OffsetClipRgn(1, 1), SIMPLEREGION);
    EXPECT_EQ(dc.OffsetClipRgn(CSize(1, 1)), SIMPLEREGION);
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(7, 7, 12, 12));
    EXPECT_EQ(dc.ExcludeClipRect(CRect(7, 7, 9, 9)), COMPLEXREGION);
    EXPECT_EQ(dc.SelectClipRgn(&region, RGN_OR), SIMPLEREGION);
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    EXPECT_NE(dc.SelectClipRgn(nullptr), ERROR);
    dc.GetClipBox(box);
    EXPECT_EQ(box, CRect(0, 0, 20, 20));
}

TEST(FrameworkGdiAttributes, LayoutAndBoundsAreKept)
{
    tests::Canvas canvas(20, 20);
    CDC & dc = canvas.Dc();
    EXPECT_EQ(dc.GetLayout(), 0u);
    EXPECT_EQ(dc.SetLayout(LAYOUT_RTL), 0u);
    EXPECT_EQ(dc.GetLayout(), static_cast<DWORD>(LAYOUT_RTL));
    dc.SetLayout(0);
    dc.SetBoundsRect(nullptr, DCB_ENABLE | DCB_RESET);
    dc.FillSolidRect(3, 4, 5, 6, red);
    CRect bounds;
    EXPECT_EQ(dc.GetBoundsRect(bounds, DCB_RESET), static_cast<UINT>(DCB_SET));
    EXPECT_TRUE(bounds.PtInRect(CPoint(3, 4)));
    EXPECT_FALSE(bounds.PtInRect(CPoint(15, 15)));
}
} // namespace
