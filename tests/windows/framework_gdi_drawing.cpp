// Drawing through device contexts, on a picture of our own: geometry and colours of known pixels.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <array>

#include "Bitmap.h"
#include "GdiHandleCount.h"

namespace
{
constexpr COLORREF pure_red = RGB(255, 0, 0);
constexpr COLORREF pure_green = RGB(0, 255, 0);
constexpr COLORREF pure_blue = RGB(0, 0, 255);
constexpr COLORREF pure_white = RGB(255, 255, 255);
constexpr COLORREF pure_black = RGB(0, 0, 0);

TEST(FrameworkGdiDrawing, SolidRectangleFillsAndSetsTheBackgroundColour)
{
    tests::Canvas canvas(20, 20);
    canvas.Dc().FillSolidRect(CRect(2, 3, 7, 9), pure_red);
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(2, 3, 7, 9));
    EXPECT_EQ(canvas.Count(pure_red), 30);
    EXPECT_EQ(canvas.Dc().GetBkColor(), pure_red);
    canvas.Dc().FillSolidRect(10, 11, 2, 3, pure_blue);
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(10, 11, 12, 14));
}

TEST(FrameworkGdiDrawing, PointsOfLinesAndPolygonsMayBeConstant)
{
    tests::Canvas canvas(20, 20);
    CPen pen(PS_SOLID, 1, pure_red);
    CPen * const formerPen = canvas.Dc().SelectObject(&pen);
    CBrush brush(pure_blue);
    CBrush * const formerBrush = canvas.Dc().SelectObject(&brush);
    POINT const line[] = {{1, 1}, {5, 1}, {5, 4}};
    EXPECT_TRUE(canvas.Dc().Polyline(line, 3));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(1, 1, 6, 4));
    POINT const square[] = {{8, 8}, {12, 8}, {12, 12}, {8, 12}};
    EXPECT_TRUE(canvas.Dc().Polygon(square, 4));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(9, 9, 12, 12));
    POINT const squares[] = {{14, 1}, {18, 1}, {18, 5}, {14, 5}, {14, 14}, {18, 14}, {18, 18}, {14, 18}};
    INT const counts[] = {4, 4};
    EXPECT_TRUE(canvas.Dc().PolyPolygon(squares, counts, 2));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(9, 2, 18, 18));
    canvas.Dc().SelectObject(formerPen);
    canvas.Dc().SelectObject(formerBrush);
}

TEST(FrameworkGdiDrawing, RaisedRectangleGivesTheCornersToTheLowerRight)
{
    tests::Canvas canvas(20, 20);
    canvas.Dc().Draw3dRect(CRect(2, 2, 8, 7), pure_red, pure_blue);
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(2, 2, 7, 6));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(2, 2, 8, 7));
    EXPECT_EQ(canvas.Count(pure_red), 5 + 4 - 1);
    EXPECT_EQ(canvas.Count(pure_blue), 6 + 5 - 1);
    EXPECT_EQ(canvas.Pixel(7, 2), pure_blue);
    EXPECT_EQ(canvas.Pixel(2, 6), pure_blue);
    EXPECT_EQ(canvas.Pixel(3, 3), pure_white);

    tests::Canvas same(20, 20);
    same.Dc().Draw3dRect(2, 2, 6, 5, pure_red, pure_blue);
    EXPECT_TRUE(tests::SamePixels(canvas, same));
}

TEST(FrameworkGdiDrawing, FillFrameAndInvertRectangles)
{
    tests::Canvas canvas(20, 20);
    CBrush red(pure_red);
    CBrush blue(pure_blue);
    canvas.Dc().FillRect(CRect(0, 0, 10, 10), &red);
    canvas.Dc().FrameRect(CRect(0, 0, 10, 10), &blue);
    EXPECT_EQ(canvas.Count(pure_blue), 36);
    EXPECT_EQ(canvas.Count(pure_red), 64);
    canvas.Dc().InvertRect(CRect(1, 1, 9, 9));
    EXPECT_EQ(canvas.Count(RGB(0, 255, 255)), 64);
}

TEST(FrameworkGdiDrawing, ColourIndexBrushIsAcceptedAsBrush)
{
    tests::Canvas canvas(4, 4, pure_red);
    CBrush * const window = CBrush::FromHandle(reinterpret_cast<HBRUSH>(static_cast<UINT_PTR>(COLOR_WINDOW + 1)));
    canvas.Dc().FillRect(CRect(0, 0, 4, 4), window);
    EXPECT_EQ(canvas.Count(::GetSysColor(COLOR_WINDOW)), 16);
    CGdiObject::DeleteTempMap();
}

TEST(FrameworkGdiDrawing, DragRectangleDrawnTwiceIsGone)
{
    tests::Canvas const untouched(30, 30);
    tests::Canvas canvas(30, 30);
    CDC & dc = canvas.Dc();
    CRect const rect(5, 5, 25, 25);
    dc.DrawDragRect(rect, CSize(2, 3), nullptr, CSize(0, 0));
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), rect);
    EXPECT_EQ(canvas.Count(pure_white, CRect(7, 8, 23, 22)), 16 * 14); // nothing inside the frame
    int const framed = 20 * 20 - 16 * 14;
    EXPECT_EQ(canvas.Count(pure_black), framed / 2);
    dc.DrawDragRect(rect, CSize(2, 3), nullptr, CSize(0, 0));
    EXPECT_TRUE(tests::SamePixels(canvas, untouched));
}

TEST(FrameworkGdiDrawing, MovedDragRectangleLeavesOnlyTheNewOne)
{
    tests::Canvas moved(30, 30);
    tests::Canvas fresh(30, 30);
    CSize const thickness(1, 1);
    CRect const first(2, 2, 12, 12);
    CRect const second(4, 4, 20, 20);
    moved.Dc().DrawDragRect(first, thickness, nullptr, thickness);
    moved.Dc().DrawDragRect(second, thickness, first, thickness);
    fresh.Dc().DrawDragRect(second, thickness, nullptr, thickness);
    EXPECT_TRUE(tests::SamePixels(moved, fresh));
}

TEST(FrameworkGdiDrawing, DragRectangleWithAnotherBrushTakesTheLastOneBack)
{
    tests::Canvas canvas(30, 30);
    CBrush white(pure_white);
    CSize const thickness(1, 1);
    CRect const first(2, 2, 12, 12);
    CRect const second(4, 4, 20, 20);
    canvas.Dc().DrawDragRect(first, thickness, nullptr, thickness);
    canvas.Dc().DrawDragRect(second, thickness, first, thickness, &white, nullptr);
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), second);
    EXPECT_EQ(canvas.Count(pure_black), 4 * 15);
}

TEST(FrameworkGdiDrawing, ThickDragRectangleIsFull)
{
    tests::Canvas canvas(10, 10);
    CBrush white(pure_white);
    canvas.Dc().DrawDragRect(CRect(2, 2, 6, 6), CSize(3, 3), nullptr, CSize(0, 0), &white);
    EXPECT_EQ(canvas.Count(pure_black), 16);
}

TEST(FrameworkGdiDrawing, DragRectangleIsInLogicalUnits)
{
    tests::Canvas canvas(30, 30);
    canvas.Dc().SetViewportOrg(10, 10);
    canvas.Dc().DrawDragRect(CRect(0, 0, 8, 8), CSize(1, 1), nullptr, CSize(0, 0));
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), CRect(10, 10, 18, 18));
}

TEST(FrameworkGdiDrawing, HalftoneBrushIsOneForAll)
{
    CBrush * const brush = CDC::GetHalftoneBrush();
    ASSERT_NE(brush, nullptr);
    HGDIOBJ const handle = brush->m_hObject;
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(CDC::GetHalftoneBrush()->m_hObject, handle);
    tests::Canvas canvas(8, 8, pure_red);
    canvas.Dc().FillRect(CRect(0, 0, 8, 8), CDC::GetHalftoneBrush());
    EXPECT_EQ(canvas.Count(pure_black), 32);
    EXPECT_EQ(canvas.Count(pure_white), 32);
}

TEST(FrameworkGdiDrawing, FocusRectangleEdgeAndFrameControl)
{
    tests::Canvas canvas(30, 30);
    CDC & dc = canvas.Dc();
    dc.DrawFocusRect(CRect(1, 1, 11, 11));
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), CRect(1, 1, 11, 11));
    dc.DrawFocusRect(CRect(1, 1, 11, 11));
    EXPECT_EQ(canvas.Count(pure_white), 900);

    CRect edge(0, 0, 10, 10);
    EXPECT_TRUE(dc.DrawEdge(edge, EDGE_SUNKEN, BF_RECT | BF_ADJUST));
    EXPECT_EQ(edge, CRect(2, 2, 8, 8));
    EXPECT_TRUE(dc.DrawFrameControl(CRect(12, 12, 28, 28), DFC_BUTTON, DFCS_BUTTONPUSH));
    EXPECT_NE(canvas.Pixel(20, 20), pure_white);
}

TEST(FrameworkGdiDrawing, LinesAndShapes)
{
    tests::Canvas canvas(40, 40);
    CDC & dc = canvas.Dc();
    CPen pen(PS_SOLID, 1, pure_red);
    CBrush brush(pure_blue);
    CPen * const oldPen = dc.SelectObject(&pen);
    CBrush * const oldBrush = dc.SelectObject(&brush);
    dc.MoveTo(0, 0);
    EXPECT_TRUE(dc.LineTo(10, 0));
    EXPECT_EQ(canvas.Count(pure_red), 10); // the end point is not drawn
    EXPECT_TRUE(dc.LineTo(CPoint(10, 5)));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(10, 5));

    canvas.Fill(pure_white);
    EXPECT_TRUE(dc.Rectangle(CRect(5, 5, 15, 15)));
    EXPECT_EQ(canvas.Count(pure_red), 36);
    EXPECT_EQ(canvas.Count(pure_blue), 64);
    EXPECT_TRUE(dc.Rectangle(20, 20, 22, 22));
    EXPECT_EQ(canvas.Count(pure_red), 40);

    canvas.Fill(pure_white);
    EXPECT_TRUE(dc.Ellipse(CRect(0, 0, 21, 21)));
    EXPECT_EQ(canvas.Pixel(0, 0), pure_white);
    EXPECT_EQ(canvas.Pixel(10, 10), pure_blue);
    EXPECT_TRUE(dc.RoundRect(CRect(20, 20, 40, 40), CPoint(10, 10)));
    EXPECT_EQ(canvas.Pixel(20, 20), pure_white);
    EXPECT_EQ(canvas.Pixel(30, 20), pure_red);

    canvas.Fill(pure_white);
    POINT square[] = {{2, 2}, {12, 2}, {12, 12}, {2, 12}};
    EXPECT_TRUE(dc.Polygon(square, 4));
    EXPECT_EQ(canvas.Pixel(7, 7), pure_blue);
    int const counts[] = {4};
    EXPECT_TRUE(dc.PolyPolygon(square, const_cast<int *>(counts), 1));
    canvas.Fill(pure_white);
    EXPECT_TRUE(dc.Polyline(square, 4));
    EXPECT_EQ(canvas.Pixel(7, 7), pure_white);
    EXPECT_EQ(canvas.Pixel(7, 2), pure_red);
    DWORD const lineCounts[] = {2, 2};
    EXPECT_TRUE(dc.PolyPolyline(square, lineCounts, 2));

    canvas.Fill(pure_white);
    CRect const circle(0, 0, 31, 31);
    EXPECT_TRUE(dc.Arc(circle, CPoint(30, 15), CPoint(0, 15))); // the upper half
    EXPECT_EQ(canvas.BoundsOf(pure_red).top, 0);
    EXPECT_LE(canvas.BoundsOf(pure_red).bottom, 17);
    EXPECT_TRUE(dc.Pie(circle, CPoint(30, 15), CPoint(0, 15)));
    EXPECT_EQ(canvas.Pixel(15, 8), pure_blue);
    EXPECT_TRUE(dc.Chord(circle, CPoint(0, 15), CPoint(30, 15)));
    EXPECT_EQ(canvas.Pixel(15, 23), pure_blue);
    EXPECT_TRUE(dc.ArcTo(circle, CPoint(30, 15), CPoint(0, 15)));
    EXPECT_TRUE(dc.AngleArc(15, 15, 5, 0, 90));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(15, 10));
    POINT const curve[] = {{0, 0}, {10, 0}, {10, 10}, {20, 10}};
    EXPECT_TRUE(dc.PolyBezier(curve, 4));
    EXPECT_TRUE(dc.PolyBezierTo(curve + 1, 3));
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(20, 10));
    BYTE const types[] = {PT_MOVETO, PT_LINETO, PT_LINETO, PT_LINETO};
    EXPECT_TRUE(dc.PolyDraw(curve, types, 4));
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
}

TEST(FrameworkGdiDrawing, RegionsAreFilledFramedInvertedAndPainted)
{
    tests::Canvas canvas(20, 20);
    CDC & dc = canvas.Dc();
    CRgn region;
    region.CreateRectRgn(5, 5, 15, 15);
    CBrush red(pure_red);
    CBrush blue(pure_blue);
    EXPECT_TRUE(dc.FillRgn(&region, &red));
    EXPECT_EQ(canvas.Count(pure_red), 100);
    EXPECT_TRUE(dc.FrameRgn(&region, &blue, 1, 1));
    EXPECT_EQ(canvas.Count(pure_blue), 36);
    EXPECT_TRUE(dc.InvertRgn(&region));
    EXPECT_EQ(canvas.Count(RGB(0, 255, 255)), 64);
    CBrush * const previous = dc.SelectObject(&red);
    EXPECT_TRUE(dc.PaintRgn(&region));
    EXPECT_EQ(canvas.Count(pure_red), 100);
    dc.SelectObject(previous);
}

TEST(FrameworkGdiDrawing, PathsAreFilledStrokedAndBecomeRegions)
{
    tests::Canvas canvas(20, 20);
    CDC & dc = canvas.Dc();
    CBrush blue(pure_blue);
    CPen red(PS_SOLID, 1, pure_red);
    CBrush * const oldBrush = dc.SelectObject(&blue);
    CPen * const oldPen = dc.SelectObject(&red);
    auto const outline = [&] {
        EXPECT_TRUE(dc.BeginPath());
        dc.MoveTo(5, 5);
        dc.LineTo(15, 5);
        dc.LineTo(15, 15);
        dc.LineTo(5, 15);
        EXPECT_TRUE(dc.CloseFigure());
        EXPECT_TRUE(dc.EndPath());
    };
    outline();
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 4);
    std::array<POINT, 4> points = {};
    std::array<BYTE, 4> types = {};
    EXPECT_EQ(dc.GetPath(points.data(), types.data(), 4), 4);
    EXPECT_EQ(CPoint(points[2]), CPoint(15, 15));
    EXPECT_EQ(types[3], PT_LINETO | PT_CLOSEFIGURE);
    EXPECT_TRUE(dc.FillPath());
    EXPECT_EQ(canvas.Count(pure_blue), 100);
    EXPECT_EQ(canvas.Count(pure_red), 0);
    outline();
    EXPECT_TRUE(dc.StrokePath());
    EXPECT_EQ(canvas.Count(pure_red), 40);
    canvas.Fill(pure_white);
    outline();
    EXPECT_TRUE(dc.StrokeAndFillPath());
    EXPECT_EQ(canvas.Count(pure_red), 40);
    EXPECT_EQ(canvas.Pixel(10, 10), pure_blue);
    CRgn gone;
    EXPECT_FALSE(gone.CreateFromPath(&dc)); // drawing used the path up
    EXPECT_EQ(gone.m_hObject, nullptr);
    outline();
    EXPECT_TRUE(dc.FlattenPath());
    CRgn region;
    ASSERT_TRUE(region.CreateFromPath(&dc));
    CRect box;
    region.GetRgnBox(box);
    EXPECT_EQ(box, CRect(5, 5, 15, 15));
    outline();
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_FALSE(dc.FillPath());
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
}

TEST(FrameworkGdiDrawing, BitsAreCopiedStretchedAndMasked)
{
    tests::Canvas source(4, 4, pure_red);
    source.Dc().FillSolidRect(0, 0, 2, 4, pure_blue);
    tests::Canvas canvas(8, 8);
    CDC & dc = canvas.Dc();
    EXPECT_TRUE(dc.BitBlt(1, 1, 4, 4, &source.Dc(), 0, 0, SRCCOPY));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(1, 1, 3, 5));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(3, 1, 5, 5));
    EXPECT_TRUE(dc.BitBlt(0, 0, 8, 8, nullptr, 0, 0, WHITENESS));
    EXPECT_EQ(canvas.Count(pure_white), 64);
    dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(dc.StretchBlt(0, 0, 8, 8, &source.Dc(), 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(canvas.BoundsOf(pure_blue), CRect(0, 0, 4, 8));

    BYTE const rows[8] = {0xF0, 0, 0xF0, 0, 0x00, 0, 0x00, 0}; // the upper two rows
    CBitmap mask;
    ASSERT_TRUE(mask.CreateBitmap(4, 4, 1, 1, rows));
    canvas.Fill(pure_white);
    EXPECT_TRUE(dc.MaskBlt(0, 0, 4, 4, &source.Dc(), 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), CRect(0, 0, 4, 2));
    canvas.Fill(pure_white);
    POINT corners[] = {{0, 0}, {4, 0}, {0, 4}};
    EXPECT_TRUE(dc.PlgBlt(corners, &source.Dc(), 0, 0, 4, 4, mask, 0, 0));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(2, 0, 4, 2));
}

TEST(FrameworkGdiDrawing, BlendingTransparencyAndGradients)
{
    tests::Canvas source(4, 4, pure_black);
    source.Dc().FillSolidRect(0, 0, 2, 4, pure_green);
    tests::Canvas canvas(8, 8);
    CDC & dc = canvas.Dc();
    EXPECT_TRUE(dc.TransparentBlt(0, 0, 4, 4, &source.Dc(), 0, 0, 4, 4, pure_green));
    EXPECT_EQ(canvas.BoundsOfOther(pure_white), CRect(2, 0, 4, 4));

    canvas.Fill(pure_white);
    BLENDFUNCTION const half = {AC_SRC_OVER, 0, 128, 0};
    EXPECT_TRUE(dc.AlphaBlend(0, 0, 2, 2, &source.Dc(), 2, 0, 2, 2, half));
    EXPECT_NEAR(GetRValue(canvas.Pixel(0, 0)), 127, 1);
    EXPECT_EQ(canvas.Pixel(2, 2), pure_white);

    TRIVERTEX corners[] = {{0, 0, 0xFF00, 0, 0, 0}, {8, 8, 0, 0, 0xFF00, 0}};
    GRADIENT_RECT rect = {0, 1};
    EXPECT_TRUE(dc.GradientFill(corners, 2, &rect, 1, GRADIENT_FILL_RECT_H));
    EXPECT_GT(GetRValue(canvas.Pixel(0, 4)), 200);
    EXPECT_GT(GetBValue(canvas.Pixel(7, 4)), 200);
    EXPECT_EQ(canvas.Pixel(3, 0), canvas.Pixel(3, 7));
}

TEST(FrameworkGdiDrawing, SinglePixelsAndFloods)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    EXPECT_EQ(dc.SetPixel(1, 2, pure_red), pure_red);
    EXPECT_EQ(dc.SetPixel(CPoint(2, 2), pure_red), pure_red);
    EXPECT_TRUE(dc.SetPixelV(3, 2, pure_red));
    EXPECT_TRUE(dc.SetPixelV(CPoint(4, 2), pure_red));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(1, 2, 5, 3));
    EXPECT_EQ(dc.GetPixel(1, 2), pure_red);
    EXPECT_EQ(dc.GetPixel(CPoint(0, 2)), pure_white);
    EXPECT_EQ(dc.GetPixel(100, 100), CLR_INVALID);

    CBrush blue(pure_blue);
    CBrush * const previous = dc.SelectObject(&blue);
    CBrush frame(pure_red);
    canvas.Fill(pure_white);
    dc.FrameRect(CRect(2, 2, 8, 8), &frame);
    EXPECT_TRUE(dc.FloodFill(4, 4, pure_red));
    EXPECT_EQ(canvas.Count(pure_blue), 16);
    EXPECT_TRUE(dc.ExtFloodFill(0, 0, pure_white, FLOODFILLSURFACE));
    EXPECT_EQ(canvas.Count(pure_white), 0);
    dc.SelectObject(previous);
}

TEST(FrameworkGdiDrawing, IconsAndDisabledStates)
{
    tests::Canvas canvas(40, 40);
    CDC & dc = canvas.Dc();
    HICON const icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_TRUE(dc.DrawIcon(CPoint(2, 2), icon));
    EXPECT_GT(canvas.BoundsOfOther(pure_white).Width(), 8);

    canvas.Fill(pure_white);
    BYTE const rows[16] = {};
    CBitmap black;
    ASSERT_TRUE(black.CreateBitmap(8, 8, 1, 1, rows));
    EXPECT_TRUE(dc.DrawState(CPoint(1, 1), CSize(8, 8), &black, DSS_NORMAL));
    EXPECT_EQ(canvas.Count(pure_black), 64);
    EXPECT_TRUE(dc.DrawState(CPoint(10, 1), CSize(0, 0), L"text", DSS_NORMAL, TRUE, 0, static_cast<HBRUSH>(nullptr)));
    EXPECT_TRUE(dc.DrawState(CPoint(10, 10), CSize(16, 16), icon, DSS_DISABLED, static_cast<CBrush *>(nullptr)));
    canvas.Fill(pure_white);
    auto const paint = [](HDC handle, LPARAM colour, WPARAM, int cx, int cy) -> BOOL {
        CDC::FromHandle(handle)->FillSolidRect(0, 0, cx, cy, static_cast<COLORREF>(colour));
        return TRUE;
    };
    DRAWSTATEPROC const proc = paint;
    EXPECT_TRUE(dc.DrawState(CPoint(3, 4), CSize(5, 6), proc, static_cast<LPARAM>(pure_red), DSS_NORMAL,
                             static_cast<CBrush *>(nullptr)));
    EXPECT_EQ(canvas.BoundsOf(pure_red), CRect(3, 4, 8, 10));
    CDC::DeleteTempMap();
}

TEST(FrameworkGdiDrawing, ScrollingMovesThePicture)
{
    tests::Canvas canvas(10, 10);
    CDC & dc = canvas.Dc();
    dc.FillSolidRect(0, 0, 2, 2, pure_red);
    CRect uncovered;
    CRgn region;
    region.CreateRectRgn(0, 0, 0, 0);
    EXPECT_TRUE(dc.ScrollDC(3, 0, nullptr, CRect(0, 0, 10, 10), &region, uncovered));
    EXPECT_EQ(canvas.Pixel(4, 1), pure_red);
    EXPECT_EQ(uncovered, CRect(0, 0, 3, 10));
}

TEST(FrameworkGdiDrawing, PaletteIsSelectedAndRealized)
{
    LOGPALETTE description = {0x300, 1, {{255, 0, 0, 0}}};
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(&description));
    tests::Canvas canvas(4, 4);
    CPalette * const previous = canvas.Dc().SelectPalette(&palette, FALSE);
    ASSERT_NE(previous, nullptr);
    EXPECT_TRUE(previous->IsKindOf(RUNTIME_CLASS(CPalette)));
    EXPECT_EQ(canvas.Dc().GetCurrentPalette(), &palette);
    EXPECT_NE(canvas.Dc().RealizePalette(), static_cast<UINT>(GDI_ERROR));
    EXPECT_EQ(canvas.Dc().SelectPalette(previous, FALSE), &palette);
}

TEST(FrameworkGdiDrawing, DrawingLeavesNoHandleBehind)
{
    EXPECT_EQ(tests::GdiGrowth([] {
                  tests::Canvas canvas(30, 30);
                  CDC & dc = canvas.Dc();
                  dc.Draw3dRect(CRect(0, 0, 10, 10), pure_red, pure_blue);
                  dc.DrawDragRect(CRect(5, 5, 20, 20), CSize(2, 2), CRect(1, 1, 9, 9), CSize(1, 1));
                  CPen pen(PS_SOLID, 1, pure_red);
                  CPen * const previous = dc.SelectObject(&pen);
                  dc.Rectangle(1, 1, 9, 9);
                  dc.SelectObject(previous);
                  CFont font;
                  font.CreatePointFont(80, L"Tahoma");
                  CFont * const previousFont = dc.SelectObject(&font);
                  dc.TextOut(0, 0, L"text");
                  dc.SelectObject(previousFont);
                  CGdiObject::DeleteTempMap();
              }),
              0);
}
} // namespace
