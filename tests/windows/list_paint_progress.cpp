#include "list_PaintTest.h"

#include <climits>

namespace
{
class ListPaintProgress : public tests::ListPaintTest
{
protected:
    static constexpr COLORREF Bar = RGB(30, 90, 160);
    static constexpr COLORREF Ink = RGB(200, 0, 100);
    static constexpr int Row = 1;
    static constexpr int Column = 1;

    void SetUp() override
    {
        ListPaintTest::SetUp();
        Make(false, nullptr);
        m_frame = ::GetSysColor(COLOR_BTNSHADOW);
    }

    void Make(bool text, wchar_t const * format)
    {
        list.SetProgress(Row, Column, text, format);
        list.SetItemColors(Row, Column, Ink, Bar, XLISTCTRLDATA::no_gradient);
    }
    void Show(int value, int displayValue = 0)
    {
        list.UpdateProgress(Row, Column, value, displayValue);
        Paint(Row, Column);
    }
    std::unique_ptr<tests::Canvas> Shown(int value, int displayValue = 0)
    {
        Show(value, displayValue);
        return Copy(Cell(Row, Column));
    }
    COLORREF Pixel(int x, int y)
    {
        CRect const cell = Cell(Row, Column);
        return canvas.Pixel(cell.left + x, cell.top + y);
    }

    COLORREF m_frame = 0;
};

TEST_F(ListPaintProgress, TheTroughLeavesTheLeftColumnAndTheLowestRow)
{
    Show(0);
    CRect const cell = Cell(Row, Column);
    EXPECT_EQ(canvas.BoundsOfOther(Untouched), CRect(cell.left + 1, cell.top, cell.right, cell.bottom - 1));
    EXPECT_EQ(Bounds(Trough, cell), CRect(2, 1, ColumnWidth - 1, RowHeight - 2));
}

TEST_F(ListPaintProgress, TheTroughsFrameIsBlackAboveAndLeft)
{
    Show(0);
    int const right = ColumnWidth - 1;
    int const bottom = RowHeight - 2;
    for (int x = 1; x < right; ++x)
    {
        EXPECT_EQ(Pixel(x, 0), RGB(0, 0, 0)) << x;
        EXPECT_EQ(Pixel(x, bottom), m_frame) << x;
    }
    for (int y = 1; y < bottom; ++y)
    {
        EXPECT_EQ(Pixel(1, y), RGB(0, 0, 0)) << y;
        EXPECT_EQ(Pixel(right, y), m_frame) << y;
    }
}

TEST_F(ListPaintProgress, TheBarIsItsShareLessOnePixel)
{
    CRect const cell = Cell(Row, Column);
    // The bar's room is 58 pixels wide and begins at 2.
    for (auto const & [value, fill] : {std::pair(30, 17), std::pair(50, 29), std::pair(99, 57), std::pair(100, 58)})
    {
        Show(value);
        EXPECT_EQ(Bounds(Bar, cell), CRect(2, 1, 2 + fill - 1, RowHeight - 2)) << value;
        EXPECT_EQ(Count(Bar, cell), (fill - 1) * (RowHeight - 3)) << value;
    }
}

TEST_F(ListPaintProgress, ABarTooShortToShowLeavesTheTroughAsItIs)
{
    auto const none = Shown(0);
    EXPECT_TRUE(tests::SamePixels(*Shown(1), *none));
    EXPECT_TRUE(tests::SamePixels(*Shown(3), *none));
    EXPECT_FALSE(tests::SamePixels(*Shown(4), *none));
}

TEST_F(ListPaintProgress, ABarAboveAHundredLeavesTheCell)
{
    Show(150);
    CRect const cell = Cell(Row, Column);
    CRect const bar = canvas.BoundsOf(Bar);
    EXPECT_EQ(bar, CRect(cell.left + 2, cell.top + 1, cell.left + 2 + 87 - 1, cell.bottom - 2));
    EXPECT_GT(bar.right, cell.right);
    EXPECT_EQ(canvas.Count(Bar), bar.Width() * bar.Height());
}

TEST_F(ListPaintProgress, ABarOfAnyValueReachesToTheEdge)
{
    Show(INT_MAX);
    EXPECT_EQ(canvas.BoundsOf(Bar).right, canvas.Width());
}

TEST_F(ListPaintProgress, TheTextChangesItsColourAtTheBarsEdge)
{
    Make(true, L"XXXXXXXXXXXX");
    Show(50);
    CRect const cell = Cell(Row, Column);
    int const edge = 2 + 29 - 1;
    CRect const bar(cell.left + 2, cell.top + 1, cell.left + edge, cell.bottom - 2);
    CRect const rest(cell.left + edge, cell.top + 1, cell.right - 1, cell.bottom - 2);
    EXPECT_GT(Count(Trough, bar), 0);
    EXPECT_EQ(Count(Trough, bar) + Count(Bar, bar), bar.Width() * bar.Height());
    EXPECT_GT(Count(Ink, rest), 0);
    EXPECT_EQ(Count(Trough, rest) + Count(Ink, rest), rest.Width() * rest.Height());
}

TEST_F(ListPaintProgress, NoColumnOfTheTextIsLostAtTheBarsEdge)
{
    // Underscores join to a line across the cell.
    Make(true, L"____________");
    Show(50);
    CRect const line = Bounds(Ink, Cell(Row, Column));
    ASSERT_FALSE(line.IsRectEmpty());
    int const edge = 2 + 29 - 1;
    EXPECT_EQ(line.left, edge);
    EXPECT_EQ(Pixel(edge - 1, line.top), Trough);
    EXPECT_EQ(Pixel(edge - 1, line.top - 1), Bar);
}

TEST_F(ListPaintProgress, TheTextIsCentred)
{
    Make(true, L"X");
    list.UpdateProgress(Row, Column, 4, 0);
    Show(4);
    EXPECT_NEAR(Bounds(Ink, Cell(Row, Column)).CenterPoint().x, ColumnWidth / 2, 2);
}

TEST_F(ListPaintProgress, ABarAtZeroShowsNoText)
{
    Make(true, nullptr);
    Show(0);
    EXPECT_EQ(canvas.Count(Ink), 0);
    Show(1);
    EXPECT_GT(canvas.Count(Ink), 0);
}

TEST_F(ListPaintProgress, WithoutItsFlagThereIsNoText)
{
    Make(false, L"XX");
    Show(20);
    EXPECT_EQ(canvas.Count(Ink), 0);
}

TEST_F(ListPaintProgress, PercentIsTheText)
{
    Make(true, nullptr);
    auto const usual = Shown(37);
    Make(true, L"37%%");
    EXPECT_TRUE(tests::SamePixels(*Shown(37), *usual));
    Make(true, L"38%%");
    EXPECT_FALSE(tests::SamePixels(*Shown(37), *usual));
}

TEST_F(ListPaintProgress, AFormatOfItsOwnShowsTheDisplayValueWhateverThePercentage)
{
    Make(true, L"%d of 9");
    auto const byFormat = Shown(60, 5);
    auto const other = Shown(60, 6);
    Make(true, L"5 of 9");
    EXPECT_TRUE(tests::SamePixels(*Shown(60, 77), *byFormat));
    EXPECT_FALSE(tests::SamePixels(*byFormat, *other));
}

TEST_F(ListPaintProgress, AFormatMayGiveATextOfAnyLength)
{
    Make(true, L"%020000d");
    Show(50, 7);
    EXPECT_GT(canvas.Count(Ink), 0);
    EXPECT_TRUE(OnlyWithin(Cell(Row, Column)));
}

TEST_F(ListPaintProgress, TheClipIsAsBefore)
{
    Make(true, nullptr);
    Show(50);
    CRgn region;
    region.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetClipRgn(canvas.Dc().GetSafeHdc(), region), 0);
}

TEST_F(ListPaintProgress, AnImageStandsLeftOfTheBar)
{
    list.SetItemImage(Row, Column, 0);
    Show(100);
    CRect const cell = Cell(Row, Column);
    EXPECT_EQ(Bounds(Red, cell).left, Spacing);
    EXPECT_EQ(Bounds(Red, cell).right, Spacing + ImageWidth);
    EXPECT_EQ(Pixel(Spacing + ImageWidth + 1, 5), RGB(0, 0, 0));
    EXPECT_EQ(Pixel(Spacing + ImageWidth + 2, 5), Bar);
}

TEST_F(ListPaintProgress, SelectionDoesNotShow)
{
    Make(true, nullptr);
    auto const normal = Shown(50);
    Select(Row, true);
    EXPECT_TRUE(tests::SamePixels(*Shown(50), *normal));
}

TEST_F(ListPaintProgress, ADisabledBarHasGreyTextOnTheTrough)
{
    Make(true, L"XXXXXXXXXXXX");
    list.SetEnabled(Row, Column, false);
    Show(50);
    EXPECT_EQ(canvas.Count(Ink), 0);
    CRect rest = Cell(Row, Column);
    rest.left += 2 + 29 - 1;
    EXPECT_GT(Count(::GetSysColor(COLOR_GRAYTEXT), rest), 10);
    EXPECT_GT(canvas.Count(Bar), 0);
}
} // namespace
