// Segment characters painted on a device context and on a graphics object.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "Bitmap.h"
#include "frame/GdiplusModule.h"
#include "GdiHandleCount.h"
#include "GoldenImage.h"
#include "ImportPatch.h"
#include "segments/DigiChar.h"

namespace
{
using DigiStatic::CDigiChar;
using DigiStatic::CDigiCharOwner;

constexpr COLORREF background = RGB(0, 30, 80);
constexpr COLORREF off_fill = RGB(0, 80, 0);
constexpr COLORREF on_fill = RGB(0, 255, 0);
constexpr COLORREF off_edge = RGB(200, 0, 0);
constexpr COLORREF on_edge = RGB(255, 255, 0);

/// One design unit is two pixels.
constexpr int scale = 2;
constexpr int cell_width = 49 * scale;
constexpr int cell_height = 83 * scale;

CDigiCharOwner Make(wchar_t character, unsigned long style = 0)
{
    return CDigiCharOwner(DigiStatic::CreateDigiChar(character, style));
}

/// The drawing library for the life of the object.
class GdiplusSession
{
public:
    GdiplusSession()
    {
        Gdiplus::GdiplusStartupInput const input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }
    GdiplusSession(GdiplusSession const &) = delete;
    GdiplusSession & operator=(GdiplusSession const &) = delete;

private:
    ULONG_PTR m_token = 0;
};

Gdiplus::Color Opaque(COLORREF colour)
{
    return Gdiplus::Color(255, GetRValue(colour), GetGValue(colour), GetBValue(colour));
}

/// Pens and brushes of a device context, with what was selected before put back at the end.
class ContextTools
{
public:
    explicit ContextTools(CDC & dc)
        : m_dc(dc),
          offPen(PS_SOLID, 1, off_edge),
          onPen(PS_SOLID, 1, on_edge),
          offBrush(off_fill),
          onBrush(on_fill),
          m_state(dc.SaveDC())
    {
    }
    ~ContextTools() { m_dc.RestoreDC(m_state); }
    ContextTools(ContextTools const &) = delete;
    ContextTools & operator=(ContextTools const &) = delete;

    void Draw(CDigiChar const & character, const double (&rect)[4], CRgn * region = nullptr)
    {
        character.DrawGdi(&m_dc, rect, &offPen, &onPen, &offBrush, &onBrush, region);
    }

private:
    CDC & m_dc;

public:
    CPen offPen;
    CPen onPen;
    CBrush offBrush;
    CBrush onBrush;

private:
    int m_state;
};

void DrawGdi(tests::Canvas & canvas, CDigiChar const & character, const double (&rect)[4], CRgn * region = nullptr)
{
    ContextTools(canvas.Dc()).Draw(character, rect, region);
}

void DrawGdiPlus(tests::Canvas & canvas, CDigiChar const & character, const double (&rect)[4],
                 Gdiplus::REAL offPenWidth = 1)
{
    GdiplusSession const session;
    Gdiplus::Graphics graphics(canvas.Dc());
    Gdiplus::Pen offPen(Opaque(off_edge), offPenWidth);
    Gdiplus::Pen onPen(Opaque(on_edge), 1);
    Gdiplus::SolidBrush offBrush(Opaque(off_fill));
    Gdiplus::SolidBrush onBrush(Opaque(on_fill));
    character.DrawGdiPlus(graphics, rect, offPen, onPen, offBrush, onBrush);
}

constexpr double whole_cell[4] = {0, 0, cell_width, cell_height};

class Cell : public tests::Canvas
{
public:
    Cell() : tests::Canvas(cell_width, cell_height, background) {}
    /// The pixel of a place of the design grid.
    COLORREF At(double x, double y) const { return Pixel(static_cast<int>(x * scale), static_cast<int>(y * scale)); }
    bool IsUntouched() const { return Count(background) == cell_width * cell_height; }
};

TEST(SegmentPaintersGdi, LitAndUnlitSegmentsHavePensAndBrushesOfTheirOwn)
{
    Cell cell;
    DrawGdi(cell, *Make(L'1'), whole_cell);
    EXPECT_EQ(cell.At(41, 25), on_fill);  // upper right
    EXPECT_EQ(cell.At(41, 60), on_fill);  // lower right
    EXPECT_EQ(cell.At(7, 25), off_fill);  // upper left
    EXPECT_EQ(cell.At(24, 41), off_fill); // middle
    EXPECT_EQ(cell.At(24, 25), background);
    EXPECT_GT(cell.Count(on_edge), 0);
    EXPECT_GT(cell.Count(off_edge), 0);
    EXPECT_EQ(cell.At(44, 20), on_edge);
    EXPECT_EQ(cell.At(4, 20), off_edge);
}

TEST(SegmentPaintersGdi, HiddenSegmentsAreNotPainted)
{
    Cell cell;
    DrawGdi(cell, *Make(L'1', DigiStyleHideOff), whole_cell);
    EXPECT_EQ(cell.At(41, 25), on_fill);
    EXPECT_EQ(cell.Count(off_fill) + cell.Count(off_edge), 0);
}

TEST(SegmentPaintersGdi, HiddenBlankPaintsNothingAndItsRegionStaysEmpty)
{
    for (unsigned long const style : {DigiStyleHideOff, DigiStyleHideOff | DigiStyleAlways14 | DigiStyleRounded})
    {
        Cell cell;
        CRgn region;
        DrawGdi(cell, *Make(L' ', style), whole_cell, &region);
        EXPECT_TRUE(cell.IsUntouched());
        EXPECT_EQ(region.GetSafeHandle(), nullptr);
    }
}

TEST(SegmentPaintersGdi, PenAndBrushOfTheLastSegmentStaySelected)
{
    Cell cell;
    ContextTools tools(cell.Dc());
    tools.Draw(*Make(L'.'), whole_cell);
    EXPECT_EQ(::GetCurrentObject(cell.Dc(), OBJ_PEN), tools.onPen.GetSafeHandle());
    EXPECT_EQ(::GetCurrentObject(cell.Dc(), OBJ_BRUSH), tools.onBrush.GetSafeHandle());
    tools.Draw(*Make(L':', DigiStyleHideOff), whole_cell);
    EXPECT_EQ(::GetCurrentObject(cell.Dc(), OBJ_PEN), tools.offPen.GetSafeHandle());
    EXPECT_EQ(::GetCurrentObject(cell.Dc(), OBJ_BRUSH), tools.offBrush.GetSafeHandle());
}

TEST(SegmentPaintersGdi, DiagonalsDoNotReachTheEdge)
{
    Cell cell;
    DrawGdi(cell, *Make(L'X', DigiStyleHideOff), whole_cell);
    EXPECT_EQ(cell.At(16, 30), on_fill);
    for (int const y : {23, 59})
    {
        for (int const x : {4, 44})
            EXPECT_EQ(cell.At(x, y), background) << x << ", " << y;
    }
    // Left of the line from (5,5) to (18,25), the shape's edge, nothing is painted at its height.
    EXPECT_EQ(cell.At(7, 20), background);
}

TEST(SegmentPaintersGdi, RoundedOutlinesAreCurves)
{
    Cell cell;
    DrawGdi(cell, *Make(L'_', DigiStyleRounded | DigiStyleAlways14 | DigiStyleHideOff), whole_cell);
    Cell plain;
    DrawGdi(plain, *Make(L'_', DigiStyleAlways14 | DigiStyleHideOff), whole_cell);
    EXPECT_EQ(plain.At(24, 74), on_fill);
    EXPECT_NE(cell.At(24, 72), on_fill);
    EXPECT_EQ(cell.At(24, 77), on_fill);
    EXPECT_FALSE(tests::SamePixels(cell, plain));
}

// The path is used up by the painting, so that the platform has no region to give.
TEST(SegmentPaintersGdi, RegionStaysAsItIsOnThisPlatform)
{
    Cell cell;
    CRgn none;
    DrawGdi(cell, *Make(L'8'), whole_cell, &none);
    EXPECT_EQ(none.GetSafeHandle(), nullptr);

    CRgn some;
    some.CreateRectRgn(1, 2, 3, 4);
    DrawGdi(cell, *Make(L'8'), whole_cell, &some);
    CRect box;
    EXPECT_EQ(some.GetRgnBox(&box), SIMPLEREGION);
    EXPECT_EQ(box, CRect(1, 2, 3, 4));
}

int region_calls = 0;

/// Gives a region ten pixels to the right of the last one.
HRGN WINAPI RegionOfCall(HDC)
{
    int const left = 10 * region_calls++;
    return ::CreateRectRgn(left, 0, left + 5, 5);
}

TEST(SegmentPaintersGdi, OutlinesThatThePlatformGivesAreGathered)
{
    tests::ImportPatch const patch(nullptr, "PathToRegion", &RegionOfCall);
    ASSERT_TRUE(patch.Done());
    Cell cell;

    region_calls = 0;
    CRgn region;
    DrawGdi(cell, *Make(L'7'), whole_cell, &region);
    EXPECT_EQ(region_calls, 7);
    ASSERT_NE(region.GetSafeHandle(), nullptr);
    for (int i = 0; i < 7; ++i)
    {
        EXPECT_TRUE(region.PtInRegion(10 * i + 2, 2)) << i;
        EXPECT_FALSE(region.PtInRegion(10 * i + 7, 2)) << i;
    }

    region_calls = 0;
    CRgn ofLit;
    DrawGdi(cell, *Make(L'7', DigiStyleHideOff), whole_cell, &ofLit);
    EXPECT_EQ(region_calls, 3);

    region_calls = 0;
    DrawGdi(cell, *Make(L'7'), whole_cell);
    EXPECT_EQ(region_calls, 0);
}

TEST(SegmentPaintersGdi, LeavesNoHandlesBehind)
{
    EXPECT_EQ(tests::GdiGrowth([] {
                  tests::ImportPatch const patch(nullptr, "PathToRegion", &RegionOfCall);
                  Cell cell;
                  CRgn region;
                  DrawGdi(cell, *Make(L'8', DigiStyleRounded), whole_cell, &region);
              }),
              0);
    EXPECT_EQ(tests::GdiGrowth([] {
                  Cell cell;
                  CRgn region;
                  DrawGdi(cell, *Make(L'W', DigiStyleRounded), whole_cell, &region);
              }),
              0);
}

TEST(SegmentPaintersGdi, CopyWithoutOutlinesPaintsNothing)
{
    Cell cell;
    CDigiChar const copy(*Make(L'8'));
    DrawGdi(cell, copy, whole_cell);
    DrawGdiPlus(cell, copy, whole_cell);
    EXPECT_TRUE(cell.IsUntouched());
}

TEST(SegmentPaintersGdi, EmptyAndNegativeRectanglesArePainted)
{
    Cell cell;
    DrawGdi(cell, *Make(L'8', DigiStyleRounded), {10, 10, 10, 10});
    EXPECT_LE(cell.BoundsOfOther(background).Width(), 2);
    cell.Fill(background);
    DrawGdi(cell, *Make(L'7', DigiStyleHideOff), {cell_width, cell_height, 0, 0});
    EXPECT_EQ(cell.At(24, 75), on_fill); // the top bar, now at the bottom
    EXPECT_EQ(cell.At(24, 7), background);
}

TEST(SegmentPaintersGdiPlus, LitSegmentsHaveAnEdgeAndUnlitOnesHaveNone)
{
    Cell cell;
    DrawGdiPlus(cell, *Make(L'1'), whole_cell, 6);
    EXPECT_EQ(cell.At(41, 25), on_fill);
    EXPECT_EQ(cell.At(7, 25), off_fill);
    EXPECT_EQ(cell.At(24, 41), off_fill);
    EXPECT_EQ(cell.At(24, 25), background);
    EXPECT_GT(cell.Count(on_edge), 0);
    EXPECT_EQ(cell.Count(off_edge), 0);
}

TEST(SegmentPaintersGdiPlus, HiddenSegmentsAreNotPainted)
{
    Cell cell;
    DrawGdiPlus(cell, *Make(L'1', DigiStyleHideOff), whole_cell);
    EXPECT_EQ(cell.At(41, 25), on_fill);
    EXPECT_EQ(cell.Count(off_fill), 0);

    Cell blank;
    DrawGdiPlus(blank, *Make(L' ', DigiStyleHideOff), whole_cell);
    EXPECT_TRUE(blank.IsUntouched());
}

TEST(SegmentPaintersGdiPlus, DiagonalsRunToTheEdge)
{
    Cell cell;
    DrawGdiPlus(cell, *Make(L'X', DigiStyleHideOff), whole_cell);
    for (int const y : {23, 59})
    {
        for (int const x : {4, 44})
            EXPECT_NE(cell.At(x, y), background) << x << ", " << y;
    }
    EXPECT_EQ(cell.At(7, 21), on_fill);
}

TEST(SegmentPaintersGdiPlus, EdgeIsNotClosed)
{
    // The dot's last side, from its top right corner back to the first point, has no edge of its own.
    Cell cell;
    DrawGdiPlus(cell, *Make(L'.', DigiStyleHideOff), {0, 0, 18 * scale, cell_height});
    EXPECT_EQ(cell.At(4, 72), on_fill); // the area lies over the edge on its left ...
    EXPECT_EQ(cell.At(8, 77), on_edge); // ... and leaves it at the bottom and on the right
    EXPECT_EQ(cell.At(13, 72), on_edge);
    EXPECT_EQ(cell.At(8, 67.5), background);
}

TEST(SegmentPaintersGdiPlus, RoundedOutlinesArePolygons)
{
    // The half bars of a rounded cell have no curves, so that both painters agree on their area; the top has some, and
    // its polygon goes through the point (24, 7), which the curve passes by.
    Cell cell;
    DrawGdiPlus(cell, *Make(L'_', DigiStyleRounded | DigiStyleAlways14 | DigiStyleHideOff), whole_cell);
    EXPECT_EQ(cell.At(24, 76), on_fill);
    EXPECT_EQ(cell.At(24, 73), background);
    EXPECT_EQ(cell.At(16, 72.5), on_fill);
}

struct Sheet
{
    char const * name;
    unsigned long style;
    std::wstring_view text;
};

constexpr std::wstring_view signs = L"0123456789-_\u00B0.: ";
constexpr std::wstring_view letters_too = L"0123456789-_\u00B0.: ABCDEFGHIJKLMNOPQRSTUVWXYZ*+()\\/'\u00B2%\u00B5\u00C4";

Sheet const sheets[] = {
    {"seven_plain", 0, signs},
    {"seven_rounded", DigiStyleRounded, signs},
    {"fourteen_plain", DigiStyleAlways14, letters_too},
    {"fourteen_rounded", DigiStyleAlways14 | DigiStyleRounded, letters_too},
};

void PrintTo(Sheet const & sheet, std::ostream * out)
{
    *out << sheet.name;
}

class SegmentPaintersGolden : public testing::TestWithParam<Sheet>
{
protected:
    static constexpr double paint_scale = 0.5;
    static constexpr int line_length = 14;
    static constexpr double line_height = 83 * paint_scale;

    /// Calls draw(canvas, character, rect) for all characters and compares what it has painted.
    template <class Draw> static void Compare(char const * painter, Draw const & draw)
    {
        std::wstring_view const text = GetParam().text;
        int const lineCount = (static_cast<int>(text.size()) + line_length - 1) / line_length;
        tests::Canvas canvas(static_cast<int>(line_length * 49 * paint_scale) + 1,
                             static_cast<int>(lineCount * line_height) + 1, background);
        double x = 0;
        double y = 0;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            if (i != 0 && i % line_length == 0)
            {
                x = 0;
                y += line_height;
            }
            CDigiCharOwner const character = Make(text[i], GetParam().style);
            double const right = x + character->GetWidth() * paint_scale;
            draw(canvas, *character, {x, y, right, y + line_height});
            x = right;
        }
        tests::ExpectGolden(canvas, (std::string("segments_") + painter + "_" + GetParam().name).c_str());
    }
};

INSTANTIATE_TEST_SUITE_P(Styles, SegmentPaintersGolden, testing::ValuesIn(sheets),
                         [](auto const & info) { return std::string(info.param.name); });

TEST_P(SegmentPaintersGolden, ContextLooksAsKept)
{
    Compare("gdi", [](tests::Canvas & canvas, CDigiChar const & character, double const(&rect)[4]) {
        DrawGdi(canvas, character, rect);
    });
}

TEST_P(SegmentPaintersGolden, GraphicsLooksAsKept)
{
    Compare("gdiplus", [](tests::Canvas & canvas, CDigiChar const & character, double const(&rect)[4]) {
        DrawGdiPlus(canvas, character, rect);
    });
}
} // namespace
