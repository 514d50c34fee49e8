// How the list's header paints itself: dividers, relief and marks.

#include <map>
#include <utility>

#include "GoldenImage.h"
#include "list_HeaderTest.h"

namespace
{
using namespace list_header;
using tests::Canvas;

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF mixed_color = RGB(90, 192, 90);
constexpr COLORREF tick_color = 0x339933;
constexpr COLORREF cross_color = 0x333399;

COLORREF Face()
{
    return ::GetSysColor(COLOR_BTNFACE);
}
COLORREF Highlight()
{
    return ::GetSysColor(COLOR_BTNHIGHLIGHT);
}
COLORREF Shadow()
{
    return ::GetSysColor(COLOR_BTNSHADOW);
}

using Pixels = std::map<std::pair<int, int>, COLORREF>;

/// A closed outline of lines that are level, upright or at 45 degrees, the last point being the first again.
void AddOutline(Pixels & pixels, std::vector<CPoint> const & points, CPoint offset, COLORREF color)
{
    for (size_t i = 0; i + 1 < points.size(); ++i)
    {
        auto const sign = [](int value) { return (value > 0) - (value < 0); };
        CPoint const step(sign(points[i + 1].x - points[i].x), sign(points[i + 1].y - points[i].y));
        for (CPoint at = points[i]; at != points[i + 1]; at += step)
        {
            pixels[{at.x + offset.x, at.y + offset.y}] = color;
        }
    }
}

testing::AssertionResult Shows(Canvas const & canvas, CRect const & area, Pixels const & pixels, COLORREF elsewhere)
{
    for (int y = area.top; y < area.bottom; ++y)
    {
        for (int x = area.left; x < area.right; ++x)
        {
            auto const found = pixels.find({x, y});
            COLORREF const expected = found != pixels.end() ? found->second : elsewhere;
            if (canvas.Pixel(x, y) != expected)
            {
                return testing::AssertionFailure() << "at (" << x << ", " << y << ") " << std::hex << canvas.Pixel(x, y)
                                                   << " instead of " << expected;
            }
        }
    }
    return testing::AssertionSuccess();
}

class ListHeaderPaint : public HeaderPaintTest
{
};

TEST_F(ListHeaderPaint, WithoutItemsOnlyTheFaceShows)
{
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(Face()), header_width * header_height);
}

TEST_F(ListHeaderPaint, OnlyTheClipBoxIsPainted)
{
    Add(100, XHC_CHECKED);
    m_canvas.Dc().IntersectClipRect(CRect(10, 5, 50, 15));
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOfOther(white) | CRect(10, 5, 50, 15), CRect(10, 5, 50, 15));
    EXPECT_EQ(m_canvas.Pixel(49, 14), Face());
}

TEST_F(ListHeaderPaint, WithoutClipBoxNothingIsDrawn)
{
    Add(100, XHC_CHECKED);
    m_canvas.Dc().IntersectClipRect(CRect(0, 0, 0, 0));
    Paint(m_canvas);
    EXPECT_TRUE(m_header.m_drawn.empty());
    EXPECT_EQ(m_canvas.Count(white), header_width * header_height);
}

TEST_F(ListHeaderPaint, NoItemIsSkippedOutsideTheClipBox)
{
    Add(50);
    Add(50);
    Add(50);
    m_canvas.Dc().IntersectClipRect(CRect(60, 0, 90, header_height));
    Paint(m_canvas);
    EXPECT_EQ(m_header.m_drawn.size(), 3u);
}

TEST_F(ListHeaderPaint, ReliefRunsAroundTheItemsTogether)
{
    Add(60);
    Add(40);
    Paint(m_canvas);
    for (int x = 0; x < 99; ++x)
    {
        EXPECT_EQ(m_canvas.Pixel(x, 0), Highlight()) << x;
    }
    for (int y = 0; y < header_height - 1; ++y)
    {
        EXPECT_EQ(m_canvas.Pixel(0, y), Highlight()) << y;
        EXPECT_EQ(m_canvas.Pixel(99, y), Shadow()) << y;
    }
    for (int x = 0; x < 100; ++x)
    {
        EXPECT_EQ(m_canvas.Pixel(x, header_height - 1), Shadow()) << x;
    }
    EXPECT_EQ(m_canvas.Count(Face(), CRect(100, 0, header_width, header_height)), 100 * header_height);
}

TEST_F(ListHeaderPaint, ItemsWithoutWidthHaveNoRelief)
{
    Add(0);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(Face()), header_width * header_height);
}

TEST_F(ListHeaderPaint, DividersStandBehindEveryItemButTheLast)
{
    Add(60);
    Add(40);
    Paint(m_canvas);
    for (int y = 1; y < header_height - 1; ++y)
    {
        bool const divider = y >= 2 && y < header_height - 2;
        EXPECT_EQ(m_canvas.Pixel(58, y), Face()) << y;
        EXPECT_EQ(m_canvas.Pixel(59, y), divider ? Shadow() : Face()) << y;
        EXPECT_EQ(m_canvas.Pixel(60, y), divider ? Highlight() : Face()) << y;
        EXPECT_EQ(m_canvas.Pixel(61, y), Face()) << y;
        EXPECT_EQ(m_canvas.Pixel(98, y), Face()) << y;
        EXPECT_EQ(m_canvas.Pixel(100, y), Face()) << y;
    }
}

TEST_F(ListHeaderPaint, TheLastItemIsThatOfTheDisplayOrder)
{
    Add(60);
    Add(40);
    int order[] = {1, 0};
    ASSERT_TRUE(m_header.SetOrderArray(2, order));
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Pixel(39, 10), Shadow());
    EXPECT_EQ(m_canvas.Pixel(40, 10), Highlight());
    EXPECT_EQ(m_canvas.Pixel(59, 10), Face());
    EXPECT_EQ(m_canvas.Pixel(100, 10), Face());
    ASSERT_EQ(m_header.m_drawn.size(), 2u);
    EXPECT_EQ(m_header.m_drawn[0].item.cxy, 40);
    EXPECT_EQ(m_header.m_drawn[1].item.cxy, 60);
}

TEST_F(ListHeaderPaint, AnItemIsHandedOverWithItsPartsInASmallerRectangle)
{
    AddTitle(60, L"first");
    AddTitle(40, std::wstring(200, L'w'), HDF_RIGHT);
    SetState(0, XHC_MIXED);
    Paint(m_canvas);
    ASSERT_EQ(m_header.m_drawn.size(), 2u);
    RecordingHeader::Drawn const & first = m_header.m_drawn[0];
    EXPECT_EQ(first.rect, CRect(spacing, 0, 60 - spacing, header_height));
    EXPECT_EQ(first.item.mask, 0x37u);
    EXPECT_EQ(first.item.cxy, 60);
    EXPECT_EQ(first.item.iImage, XHC_MIXED);
    EXPECT_EQ(first.item.cchTextMax, 160);
    EXPECT_EQ(first.text, L"first");
    RecordingHeader::Drawn const & second = m_header.m_drawn[1];
    EXPECT_EQ(second.rect, CRect(60 + spacing, 0, 100 - spacing, header_height));
    EXPECT_EQ(second.item.fmt & HDF_JUSTIFYMASK, HDF_RIGHT);
    EXPECT_EQ(second.text, std::wstring(159, L'w'));
}

TEST_F(ListHeaderPaint, AnOwnerDrawnItemGoesToTheFirstOperation)
{
    Add(30);
    Add(70, XHC_CHECKED, HDF_OWNERDRAW);
    Paint(m_canvas);
    ASSERT_EQ(m_header.m_ownerDrawn.size(), 1u);
    DRAWITEMSTRUCT const & item = m_header.m_ownerDrawn[0];
    EXPECT_EQ(item.CtlType, 4u);
    EXPECT_EQ(item.CtlID, 3u);
    EXPECT_EQ(item.itemID, 1u);
    EXPECT_EQ(item.itemAction, 1u);
    EXPECT_EQ(item.itemState, 0u);
    EXPECT_EQ(item.hwndItem, m_header.m_hWnd);
    EXPECT_EQ(item.hDC, m_canvas.Dc().m_hDC);
    EXPECT_EQ(CRect(item.rcItem), CRect(30, 0, 100, header_height));
    EXPECT_EQ(item.itemData, 0u);
    EXPECT_EQ(m_header.m_drawn.size(), 1u);
    EXPECT_EQ(m_canvas.Count(frame_color), 0);
}

TEST_F(ListHeaderPaint, FontAndPenAreRestored)
{
    Add(60, XHC_CHECKED);
    Add(60, XHC_SORT_ASCENDING);
    HGDIOBJ const font = ::GetCurrentObject(m_canvas.Dc(), OBJ_FONT);
    HGDIOBJ const pen = ::GetCurrentObject(m_canvas.Dc(), OBJ_PEN);
    CFont own;
    ASSERT_TRUE(own.CreatePointFont(90, L"Tahoma"));
    m_header.SetFont(&own);
    Paint(m_canvas);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc(), OBJ_FONT), font);
    EXPECT_EQ(::GetCurrentObject(m_canvas.Dc(), OBJ_PEN), pen);
}

TEST_F(ListHeaderPaint, TheHeadersFontIsUsed)
{
    class FontHeader : public TestHeader
    {
    public:
        using TestHeader::DrawHeaderItem;
        void DrawHeaderItem(CDC * dc, CRect, LPHDITEM) override
        {
            m_font = ::GetCurrentObject(dc->m_hDC, OBJ_FONT);
            m_background = dc->GetBkColor();
            m_text = dc->GetTextColor();
        }
        HGDIOBJ m_font = nullptr;
        COLORREF m_background = 0;
        COLORREF m_text = 0;
    };
    CFont own;
    ASSERT_TRUE(own.CreatePointFont(90, L"Tahoma"));
    FontHeader header;
    ASSERT_TRUE(header.Create(WS_CHILD | HDS_HORZ, CRect(0, 0, 100, header_height), m_host, 4));
    header.SetFont(&own);
    HDITEM item = {};
    item.mask = HDI_WIDTH;
    item.cxy = 50;
    ASSERT_EQ(header.InsertItem(0, &item), 0);
    header.PaintHeader(&m_canvas.Dc());
    EXPECT_EQ(header.m_font, static_cast<HGDIOBJ>(own.m_hObject));
    EXPECT_EQ(header.m_background, Face());
    EXPECT_EQ(header.m_text, ::GetSysColor(COLOR_BTNTEXT));
    header.DestroyWindow();
}

// --- Marks ---

class ListHeaderMarks : public ListHeaderPaint, public testing::WithParamInterface<int>
{
};

TEST_P(ListHeaderMarks, LooksAsKept)
{
    Canvas canvas(40, header_height);
    Add(40, GetParam());
    Paint(canvas);
    tests::ExpectGolden(canvas, ("header_state_" + std::to_string(GetParam())).c_str());
}
INSTANTIATE_TEST_SUITE_P(States, ListHeaderMarks, testing::Range(0, 8));

TEST_F(ListHeaderPaint, ABoxIsFramedAndFilled)
{
    Add(60, XHC_UNCHECKED);
    Paint(m_canvas);
    CRect const box = Box(0);
    EXPECT_EQ(box, CRect(6, 5, 19, 18));
    EXPECT_EQ(m_canvas.BoundsOf(frame_color), box);
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
    CRect inside = box;
    inside.DeflateRect(1, 1);
    EXPECT_EQ(m_canvas.Count(::GetSysColor(COLOR_WINDOW), inside), 11 * 11);
}

TEST_F(ListHeaderPaint, BoxOfAnItemFurtherRightStandsThere)
{
    Add(60);
    Add(60, XHC_UNCHECKED);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(frame_color), CRect(66, 5, 79, 18));
}

TEST_F(ListHeaderPaint, TheTickHasThisShape)
{
    Add(60, XHC_CHECKED);
    Paint(m_canvas);
    CRect inside = Box(0);
    CPoint const origin = inside.TopLeft();
    inside.DeflateRect(1, 1);
    Pixels tick;
    for (auto const & [x, y] : {std::pair(9, 3), {8, 4}, {7, 5}, {6, 6}, {5, 7}, {4, 6}, {3, 5}})
    {
        for (int line = y; line < y + 3; ++line)
        {
            tick[{origin.x + x, origin.y + line}] = tick_color;
        }
    }
    EXPECT_TRUE(Shows(m_canvas, inside, tick, ::GetSysColor(COLOR_WINDOW)));
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
}

TEST_F(ListHeaderPaint, TheMixedMarkIsASquare)
{
    Add(60, XHC_MIXED);
    Paint(m_canvas);
    CRect square = Box(0);
    square.DeflateRect(3, 3);
    EXPECT_EQ(m_canvas.BoundsOf(mixed_color), square);
    EXPECT_EQ(m_canvas.Count(mixed_color), 7 * 7);
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
}

TEST_F(ListHeaderPaint, TheCrossEndsOnePixelFurtherLeftThanACells)
{
    Add(60, XHC_CROSSED);
    Paint(m_canvas);
    CRect const box = Box(0);
    CRect const cross = m_canvas.BoundsOf(cross_color);
    EXPECT_EQ(cross, CRect(box.left + 3, box.top + 3, box.right - 3, box.bottom - 3));
    // The lines begin at 3 and 4 from the left and at 8 and 9, which is 4 from the right.
    EXPECT_EQ(m_canvas.Count(cross_color, CRect(box.left, box.top + 3, box.right, box.top + 4)), 4);
    for (int x : {3, 4, 8, 9})
    {
        EXPECT_EQ(m_canvas.Pixel(box.left + x, box.top + 3), cross_color) << x;
    }
    EXPECT_EQ(m_canvas.Count(frame_color), 4 * box_size - 4);
}

TEST_F(ListHeaderPaint, TheArrowDownIsAReliefOfFourOutlines)
{
    Add(60, XHC_SORT_ASCENDING);
    Paint(m_canvas);
    CRect const box = Box(0);
    int const l = box.left - 1;
    int const t = box.top;
    int const r = box.right - 4;
    int const b = box.bottom - 2;
    std::vector<CPoint> const points = {{l + 3, t}, {l + 3, b - 5}, {l, b - 5}, {l + 5, b},
                                        {r, b - 5}, {r - 3, b - 5}, {r - 3, t}, {l + 3, t}};
    Pixels pixels;
    AddOutline(pixels, points, {-1, -1}, Highlight());
    AddOutline(pixels, points, {1, 0}, Shadow());
    AddOutline(pixels, points, {0, 1}, Shadow());
    AddOutline(pixels, points, {0, 0}, frame_color);
    EXPECT_TRUE(Shows(m_canvas, CRect(1, 1, 58, header_height - 1), pixels, Face()));
}

TEST_F(ListHeaderPaint, TheArrowUpIsAReliefOfFourOutlines)
{
    Add(60, XHC_SORT_DESCENDING);
    Paint(m_canvas);
    CRect const box = Box(0);
    int const l = box.left - 1;
    int const t = box.top;
    int const r = box.right - 4;
    int const b = box.bottom - 2;
    std::vector<CPoint> const points = {{l, t + 5},     {l + 3, t + 5}, {l + 3, b}, {r - 3, b},
                                        {r - 3, t + 5}, {r, t + 5},     {l + 5, t}, {l, t + 5}};
    Pixels pixels;
    AddOutline(pixels, points, {-1, -1}, Highlight());
    AddOutline(pixels, points, {1, 0}, Shadow());
    AddOutline(pixels, points, {0, 1}, Shadow());
    AddOutline(pixels, points, {0, 0}, frame_color);
    EXPECT_TRUE(Shows(m_canvas, CRect(1, 1, 58, header_height - 1), pixels, Face()));
}

TEST_F(ListHeaderPaint, StatesFromSevenOnShowNothing)
{
    Add(60);
    Canvas plain(header_width, header_height);
    Paint(plain);
    for (int state : {7, 8, 100, 0x7FFFFFFF})
    {
        SetState(0, state);
        Paint(m_canvas);
        EXPECT_TRUE(SamePixels(m_canvas, plain)) << state;
    }
}

TEST_F(ListHeaderPaint, AnItemWithoutRoomShowsNoMark)
{
    Add(2 * spacing, XHC_CHECKED);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.Count(frame_color), 0);
}

TEST_F(ListHeaderPaint, OnePixelOfRoomShowsTheWholeMark)
{
    Add(2 * spacing + 1, XHC_UNCHECKED);
    Paint(m_canvas);
    EXPECT_EQ(m_canvas.BoundsOf(frame_color), CRect(6, 5, 19, 18));
}

TEST_F(ListHeaderPaint, AMarkUsesItsWidth)
{
    HDITEM item = {};
    for (auto const & [state, width] : {std::pair(0, 0), {1, 13}, {2, 13}, {3, 13}, {4, 13}, {5, 13}, {6, 13}, {7, 0}})
    {
        item.iImage = state;
        EXPECT_EQ(m_header.DrawItemImage(&m_canvas.Dc(), CRect(0, 0, 40, 20), &item, false), width) << state;
    }
}

TEST_F(ListHeaderPaint, ANegativeStateKeepsTheRoomOfAMark)
{
    HDITEM item = {};
    item.iImage = -1;
    EXPECT_EQ(m_header.DrawItemImage(&m_canvas.Dc(), CRect(0, 0, 40, 20), &item, false), box_size);
    EXPECT_EQ(m_canvas.Count(white), header_width * header_height);
}
} // namespace
