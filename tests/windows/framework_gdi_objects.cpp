// Pens, brushes, fonts, bitmaps, palettes and regions: making, owning, sharing and describing them.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <thread>

#include "Bitmap.h"
#include "GdiHandleCount.h"
#include "resource.h"

namespace
{
constexpr COLORREF pure_red = RGB(255, 0, 0);
constexpr COLORREF pure_blue = RGB(0, 0, 255);
constexpr COLORREF pure_white = RGB(255, 255, 255);
constexpr COLORREF pure_black = RGB(0, 0, 0);

template <class Action> bool ThrowsResourceException(Action action)
{
    try
    {
        action();
    }
    catch (CResourceException * exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}

TEST(FrameworkGdiObjects, NewObjectHasNoHandle)
{
    CPen pen;
    EXPECT_EQ(pen.m_hObject, nullptr);
    EXPECT_EQ(pen.GetSafeHandle(), nullptr);
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_FALSE(pen.Attach(nullptr));
}

[[gnu::no_sanitize("null")]] HGDIOBJ SafeHandleThroughNull(CGdiObject * object)
{
    CGdiObject * volatile const hidden = object; // or the compiler takes it for an error
    return hidden->GetSafeHandle();
}

TEST(FrameworkGdiObjects, SafeHandleThroughNullPointerIsNull)
{
    EXPECT_EQ(SafeHandleThroughNull(nullptr), nullptr);
    CBrush brush(pure_red);
    EXPECT_EQ(SafeHandleThroughNull(&brush), brush.m_hObject);
}

TEST(FrameworkGdiObjects, DestructorDeletesTheObject)
{
    tests::GdiBalance const balance;
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(pure_red);
        handle = brush.m_hObject;
        EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(FrameworkGdiObjects, DetachedObjectOutlivesIt)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush(pure_red);
        handle = brush.Detach();
        EXPECT_EQ(brush.m_hObject, nullptr);
        EXPECT_EQ(brush.Detach(), nullptr);
    }
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST(FrameworkGdiObjects, AttachedObjectIsTheOneOfItsHandle)
{
    HBRUSH const handle = ::CreateSolidBrush(pure_red);
    CBrush brush;
    EXPECT_TRUE(brush.Attach(handle));
    EXPECT_EQ(CGdiObject::FromHandle(handle), &brush);
    EXPECT_EQ(CBrush::FromHandle(handle), &brush);
    EXPECT_EQ(static_cast<HBRUSH>(brush), handle);
    brush.Detach();
    EXPECT_NE(CBrush::FromHandle(handle), &brush);
    CGdiObject::DeleteTempMap();
    ::DeleteObject(handle);
}

TEST(FrameworkGdiObjects, ObjectsWithOneStockHandleDoNotTouchEachOther)
{
    CFont first;
    CFont second;
    EXPECT_TRUE(first.CreateStockObject(SYSTEM_FONT));
    EXPECT_TRUE(second.CreateStockObject(SYSTEM_FONT));
    EXPECT_TRUE(first == second);
    first.DeleteObject();
    EXPECT_EQ(CFont::FromHandle(second), &second);
    LOGFONT font = {};
    EXPECT_NE(second.GetLogFont(&font), 0);
}

TEST(FrameworkGdiObjects, ComparisonIsThatOfTheHandles)
{
    CBrush const red(pure_red);
    CBrush const alsoRed(pure_red);
    EXPECT_TRUE(red == red);
    EXPECT_FALSE(red == alsoRed);
    EXPECT_TRUE(red != alsoRed);
}

TEST(FrameworkGdiObjects, TemporaryObjectHasTheClassOfItsHandle)
{
    CGdiObject::DeleteTempMap();
    HPEN const plain = ::CreatePen(PS_DOT, 1, pure_red);
    LOGBRUSH const solid = {BS_SOLID, pure_red, 0};
    HPEN const wide = ::ExtCreatePen(PS_GEOMETRIC, 3, &solid, 0, nullptr);
    HBRUSH const brush = ::CreateSolidBrush(pure_red);
    HFONT const font = ::CreateFont(-12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma");
    HBITMAP const bitmap = ::CreateBitmap(2, 2, 1, 1, nullptr);
    HRGN const region = ::CreateRectRgn(0, 0, 1, 1);
    HGDIOBJ const palette = ::GetStockObject(DEFAULT_PALETTE);
    EXPECT_TRUE(CGdiObject::FromHandle(plain)->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(CGdiObject::FromHandle(wide)->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(CGdiObject::FromHandle(brush)->IsKindOf(RUNTIME_CLASS(CBrush)));
    EXPECT_TRUE(CGdiObject::FromHandle(font)->IsKindOf(RUNTIME_CLASS(CFont)));
    EXPECT_TRUE(CGdiObject::FromHandle(bitmap)->IsKindOf(RUNTIME_CLASS(CBitmap)));
    EXPECT_TRUE(CGdiObject::FromHandle(region)->IsKindOf(RUNTIME_CLASS(CRgn)));
    EXPECT_TRUE(CGdiObject::FromHandle(palette)->IsKindOf(RUNTIME_CLASS(CPalette)));
    EXPECT_EQ(CPen::FromHandle(plain)->m_hObject, plain);
    CGdiObject::DeleteTempMap();
    for (HGDIOBJ const handle : std::initializer_list<HGDIOBJ>{plain, wide, brush, font, bitmap, region})
        EXPECT_TRUE(::DeleteObject(handle));
}

TEST(FrameworkGdiObjects, TemporaryObjectStaysTheSameAndLeavesTheHandleAlone)
{
    HBRUSH const handle = ::CreateSolidBrush(pure_red);
    CBrush * const temporary = CBrush::FromHandle(handle);
    EXPECT_EQ(CBrush::FromHandle(handle), temporary);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    ::DeleteObject(handle);
    EXPECT_EQ(CBrush::FromHandle(nullptr), nullptr);
}

TEST(FrameworkGdiObjects, EachThreadHasItsOwnMap)
{
    CBrush brush(pure_red);
    CBrush * elsewhere = nullptr;
    std::thread([&] {
        elsewhere = CBrush::FromHandle(brush);
        CGdiObject::DeleteTempMap();
    }).join();
    EXPECT_NE(elsewhere, nullptr);
    EXPECT_NE(elsewhere, &brush);
    EXPECT_EQ(CBrush::FromHandle(brush), &brush);
}

TEST(FrameworkGdiObjects, PenTellsItsStyleWidthAndColour)
{
    CPen pen(PS_DASH, 1, pure_blue);
    LOGPEN description = {};
    EXPECT_NE(pen.GetLogPen(&description), 0);
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(description.lopnWidth.x, 1);
    EXPECT_EQ(description.lopnColor, pure_blue);

    CPen same;
    EXPECT_TRUE(same.CreatePenIndirect(&description));
    EXPECT_EQ(same.GetObjectType(), static_cast<UINT>(OBJ_PEN));
}

TEST(FrameworkGdiObjects, GeometricPenTellsItsExtendedDescription)
{
    LOGBRUSH const brush = {BS_SOLID, pure_red, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID, 5, &brush);
    EXTLOGPEN description = {};
    EXPECT_NE(pen.GetExtLogPen(&description), 0);
    EXPECT_EQ(description.elpWidth, 5u);
    EXPECT_EQ(description.elpColor, pure_red);
}

TEST(FrameworkGdiObjects, PenThatCannotBeMadeThrows)
{
    LOGBRUSH const brush = {BS_SOLID, pure_red, 0};
    EXPECT_TRUE(ThrowsResourceException([&] { CPen pen(PS_COSMETIC | PS_SOLID, 7, &brush); }));
    CPen pen;
    EXPECT_FALSE(pen.CreatePen(PS_COSMETIC | PS_SOLID, 7, &brush));
    EXPECT_EQ(pen.m_hObject, nullptr);
}

TEST(FrameworkGdiObjects, BrushTellsItsDescription)
{
    CBrush solid(pure_blue);
    CBrush hatched(HS_CROSS, pure_red);
    LOGBRUSH description = {};
    EXPECT_NE(solid.GetLogBrush(&description), 0);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(description.lbColor, pure_blue);
    EXPECT_NE(hatched.GetLogBrush(&description), 0);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(description.lbColor, pure_red);
    EXPECT_EQ(description.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));
    CBrush same;
    EXPECT_TRUE(same.CreateBrushIndirect(&description));
}

TEST(FrameworkGdiObjects, BrushThatCannotBeMadeThrows)
{
    EXPECT_TRUE(ThrowsResourceException([] { CBrush brush(static_cast<CBitmap *>(nullptr)); }));
    CBrush brush;
    EXPECT_FALSE(brush.CreatePatternBrush(nullptr));
    EXPECT_FALSE(brush.CreateDIBPatternBrush(static_cast<HGLOBAL>(nullptr), DIB_RGB_COLORS));
}

TEST(FrameworkGdiObjects, PatternBrushFillsWithItsBitmap)
{
    WORD const rows[8] = {0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    CBitmap pattern;
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, rows));
    CBrush brush(&pattern);
    tests::Canvas canvas(16, 16, pure_red);
    canvas.Dc().FillRect(CRect(0, 0, 16, 16), &brush);
    EXPECT_EQ(canvas.Count(pure_white), 128);
    EXPECT_EQ(canvas.Count(pure_black), 128);
    EXPECT_NE(canvas.Pixel(0, 0), canvas.Pixel(1, 0));
    EXPECT_EQ(canvas.Pixel(0, 0), canvas.Pixel(1, 1));
}

struct PackedPattern
{
    BITMAPINFOHEADER header;
    DWORD pixels[64];
};

PackedPattern PatternOf(COLORREF upper, COLORREF lower)
{
    PackedPattern pattern = {};
    pattern.header.biSize = sizeof pattern.header;
    pattern.header.biWidth = 8;
    pattern.header.biHeight = 8;
    pattern.header.biPlanes = 1;
    pattern.header.biBitCount = 32;
    for (int index = 0; index < 64; ++index)
    {
        COLORREF const colour = index < 32 ? lower : upper; // the first row is the bottom one
        pattern.pixels[index] =
            static_cast<DWORD>(GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour));
    }
    return pattern;
}

TEST(FrameworkGdiObjects, DibPatternBrushFillsFromMemoryAndFromGlobalHandle)
{
    PackedPattern const pattern = PatternOf(pure_red, pure_blue);
    HGLOBAL const global = ::GlobalAlloc(GMEM_MOVEABLE, sizeof pattern);
    std::memcpy(::GlobalLock(global), &pattern, sizeof pattern);
    ::GlobalUnlock(global);
    CBrush fromGlobal;
    CBrush fromMemory;
    ASSERT_TRUE(fromGlobal.CreateDIBPatternBrush(global, DIB_RGB_COLORS));
    ASSERT_TRUE(fromMemory.CreateDIBPatternBrush(static_cast<void const *>(&pattern), DIB_RGB_COLORS));
    ::GlobalFree(global);
    for (CBrush * const brush : {&fromGlobal, &fromMemory})
    {
        tests::Canvas canvas(8, 8, pure_white);
        canvas.Dc().FillRect(CRect(0, 0, 8, 8), brush);
        EXPECT_EQ(canvas.Count(pure_red, CRect(0, 0, 8, 4)), 32);
        EXPECT_EQ(canvas.Count(pure_blue, CRect(0, 4, 8, 8)), 32);
    }
}

TEST(FrameworkGdiObjects, SystemColourBrushFillsWithTheSystemColour)
{
    for (int round = 0; round < 2; ++round) // the second brush shows that the first left the system's alone
    {
        CBrush brush;
        ASSERT_TRUE(brush.CreateSysColorBrush(COLOR_HIGHLIGHT));
        tests::Canvas canvas(4, 4, ~::GetSysColor(COLOR_HIGHLIGHT) & 0xFFFFFF);
        canvas.Dc().FillRect(CRect(0, 0, 4, 4), &brush);
        EXPECT_EQ(canvas.Count(::GetSysColor(COLOR_HIGHLIGHT)), 16);
    }
}

TEST(FrameworkGdiObjects, FontTellsItsDescription)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-17, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                                CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, L"Tahoma"));
    LOGFONT description = {};
    EXPECT_NE(font.GetLogFont(&description), 0);
    EXPECT_EQ(description.lfHeight, -17);
    EXPECT_EQ(description.lfWeight, FW_BOLD);
    EXPECT_NE(description.lfItalic, 0);
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
    CFont same;
    EXPECT_TRUE(same.CreateFontIndirect(&description));
}

TEST(FrameworkGdiObjects, PointFontHasItsHeightInTenthsOfAPoint)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    LOGFONT description = {};
    font.GetLogFont(&description);
    HDC const screen = ::GetDC(nullptr);
    EXPECT_EQ(description.lfHeight, -::MulDiv(12, ::GetDeviceCaps(screen, LOGPIXELSY), 72));
    ::ReleaseDC(nullptr, screen);
    EXPECT_STREQ(description.lfFaceName, L"Tahoma");
}

TEST(FrameworkGdiObjects, PointFontIsScaledToTheMappingOfItsContext)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(100, 100);
    dc.SetViewportExt(50, 50); // two logical units a pixel
    dc.SetViewportOrg(7, 7);
    LOGFONT wanted = {};
    wanted.lfHeight = 720; // one inch
    ::lstrcpy(wanted.lfFaceName, L"Tahoma");
    CFont font;
    ASSERT_TRUE(font.CreatePointFontIndirect(&wanted, &dc));
    LOGFONT description = {};
    font.GetLogFont(&description);
    EXPECT_EQ(description.lfHeight, -2 * dc.GetDeviceCaps(LOGPIXELSY));
    EXPECT_EQ(wanted.lfHeight, 720);
}

TEST(FrameworkGdiObjects, BitmapKeepsItsBitsAndDimension)
{
    std::array<BYTE, 8> const bits = {1, 2, 3, 4, 5, 6, 7, 8};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(2, 1, 1, 32, bits.data()));
    BITMAP description = {};
    EXPECT_NE(bitmap.GetBitmap(&description), 0);
    EXPECT_EQ(description.bmWidth, 2);
    EXPECT_EQ(description.bmHeight, 1);
    EXPECT_EQ(description.bmBitsPixel, 32);

    std::array<BYTE, 8> read = {};
    EXPECT_EQ(bitmap.GetBitmapBits(8, read.data()), 8u);
    EXPECT_EQ(read, bits);
    std::array<BYTE, 8> const other = {9, 9, 9, 9, 8, 8, 8, 8};
    EXPECT_EQ(bitmap.SetBitmapBits(8, other.data()), 8u);
    EXPECT_EQ(bitmap.GetBitmapBits(8, read.data()), 8u);
    EXPECT_EQ(read, other);

    EXPECT_EQ(bitmap.SetBitmapDimension(30, 20), CSize(0, 0));
    EXPECT_EQ(bitmap.SetBitmapDimension(31, 21), CSize(30, 20));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize(31, 21));

    CBitmap same;
    description.bmBits = nullptr;
    EXPECT_TRUE(same.CreateBitmapIndirect(&description));
    CBitmap compatible;
    CBitmap discardable;
    CClientDC screen(nullptr);
    EXPECT_TRUE(compatible.CreateCompatibleBitmap(&screen, 3, 4));
    EXPECT_TRUE(discardable.CreateDiscardableBitmap(&screen, 3, 4));
    compatible.GetBitmap(&description);
    EXPECT_EQ(CSize(description.bmWidth, description.bmHeight), CSize(3, 4));
}

TEST(FrameworkGdiObjects, BitmapIsLoadedFromTheResources)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_BACKGROUND));
    BITMAP description = {};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(CSize(description.bmWidth, description.bmHeight), CSize(4, 2));

    CBitmap byName;
    EXPECT_TRUE(byName.LoadBitmap(MAKEINTRESOURCE(IDB_BACKGROUND)));
    CBitmap missing;
    EXPECT_FALSE(missing.LoadBitmap(64999));
    EXPECT_EQ(missing.m_hObject, nullptr);
    CBitmap ofTheSystem;
    EXPECT_TRUE(ofTheSystem.LoadOEMBitmap(32760)); // OBM_CHECK
}

TEST(FrameworkGdiObjects, PaletteEntriesCanBeReadChangedAndResized)
{
    struct
    {
        LOGPALETTE palette;
        PALETTEENTRY second;
    } description = {{0x300, 2, {{255, 0, 0, 0}}}, {0, 0, 255, 0}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&description.palette));
    EXPECT_EQ(palette.GetEntryCount(), 2);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(10, 0, 240)), 1u);
    PALETTEENTRY entry = {};
    EXPECT_EQ(palette.GetPaletteEntries(0, 1, &entry), 1u);
    EXPECT_EQ(entry.peRed, 255);
    PALETTEENTRY green = {0, 255, 0, 0};
    EXPECT_EQ(palette.SetPaletteEntries(0, 1, &green), 1u);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(0, 250, 0)), 0u);
    EXPECT_TRUE(palette.ResizePalette(5));
    EXPECT_EQ(palette.GetEntryCount(), 5);

    CClientDC screen(nullptr);
    CPalette halftone;
    EXPECT_TRUE(halftone.CreateHalftonePalette(&screen));
    EXPECT_GT(halftone.GetEntryCount(), 16);
}

TEST(FrameworkGdiObjects, RegionsAreMadeAndCombined)
{
    CRgn left;
    CRgn right;
    CRgn both;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(right.CreateRectRgnIndirect(CRect(5, 0, 20, 10)));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_OR), SIMPLEREGION);
    CRect box;
    EXPECT_EQ(both.GetRgnBox(box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(0, 0, 20, 10));
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_DIFF), SIMPLEREGION);
    both.GetRgnBox(box);
    EXPECT_EQ(box, CRect(0, 0, 5, 10));

    EXPECT_EQ(both.CopyRgn(&right), SIMPLEREGION);
    EXPECT_TRUE(both.EqualRgn(&right));
    EXPECT_FALSE(both.EqualRgn(&left));
    EXPECT_EQ(both.OffsetRgn(1, 2), SIMPLEREGION);
    EXPECT_EQ(both.OffsetRgn(CPoint(1, 1)), SIMPLEREGION);
    both.GetRgnBox(box);
    EXPECT_EQ(box, CRect(7, 3, 22, 13));
    EXPECT_TRUE(both.PtInRegion(7, 3));
    EXPECT_FALSE(both.PtInRegion(CPoint(6, 3)));
    EXPECT_TRUE(both.RectInRegion(CRect(20, 10, 40, 40)));
    EXPECT_FALSE(both.RectInRegion(CRect(22, 13, 40, 40)));
    both.SetRectRgn(1, 2, 3, 4);
    both.GetRgnBox(box);
    EXPECT_EQ(box, CRect(1, 2, 3, 4));
    both.SetRectRgn(CRect(2, 2, 4, 4));
    both.GetRgnBox(box);
    EXPECT_EQ(box, CRect(2, 2, 4, 4));
}

TEST(FrameworkGdiObjects, RegionOfEachShapeHasItsBox)
{
    CRect box;
    CRgn ellipse;
    ASSERT_TRUE(ellipse.CreateEllipticRgn(0, 0, 20, 10));
    EXPECT_FALSE(ellipse.PtInRegion(0, 0));
    EXPECT_TRUE(ellipse.PtInRegion(10, 5));
    CRgn sameEllipse;
    ASSERT_TRUE(sameEllipse.CreateEllipticRgnIndirect(CRect(0, 0, 20, 10)));
    EXPECT_TRUE(ellipse.EqualRgn(&sameEllipse));

    CRgn round;
    ASSERT_TRUE(round.CreateRoundRectRgn(0, 0, 20, 20, 10, 10));
    EXPECT_FALSE(round.PtInRegion(0, 0));
    EXPECT_TRUE(round.PtInRegion(10, 0));

    POINT corners[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {20, 20}, {30, 20}, {30, 30}, {20, 30}};
    CRgn polygon;
    ASSERT_TRUE(polygon.CreatePolygonRgn(corners, 4, ALTERNATE));
    polygon.GetRgnBox(box);
    EXPECT_EQ(box, CRect(0, 0, 10, 10));
    int counts[] = {4, 4};
    CRgn polygons;
    ASSERT_TRUE(polygons.CreatePolyPolygonRgn(corners, counts, 2, WINDING));
    polygons.GetRgnBox(box);
    EXPECT_EQ(box, CRect(0, 0, 30, 30));
    EXPECT_FALSE(polygons.PtInRegion(15, 15));

    std::array<std::byte, 256> data = {};
    int const size = polygons.GetRegionData(nullptr, 0);
    ASSERT_GT(size, 0);
    ASSERT_LE(size, static_cast<int>(data.size()));
    auto * const description = reinterpret_cast<RGNDATA *>(data.data());
    EXPECT_EQ(polygons.GetRegionData(description, size), size);
    CRgn copy;
    ASSERT_TRUE(copy.CreateFromData(nullptr, size, description));
    EXPECT_TRUE(copy.EqualRgn(&polygons));
}
} // namespace
