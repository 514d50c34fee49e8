#include <climits>

#include "list_PaintTest.h"

namespace
{
class ListPaintProgress : public tests::ListPaintTest
{
protected:
    static constexpr COLORREF bar_colour = RGB(30, 90, 160);
    static constexpr COLORREF ink = RGB(200, 0, 100);
    static constexpr int row = 1;
    static constexpr int column = 1;

    void SetUp() override
    {
        ListPaintTest::SetUp();
        Make(false, nullptr);
        m_frame = ::GetSysColor(COLOR_BTNSHADOW);
    }

    void Make(bool text, wchar_t const * format)
    {
        m_list.SetProgress(row, column, text, format);
        m_list.SetItemColors(row, column, ink, bar_colour, XLISTCTRLDATA::no_gradient);
    }
    void Show(int value, int displayValue = 0)
    {
        m_list.UpdateProgress(row, column, value, displayValue);
        Paint(row, column);
    }
    std::unique_ptr<tests::Canvas> Shown(int value, int displayValue = 0)
    {
        Show(value, displayValue);
        return Copy(Cell(row, column));
    }
    COLORREF Pixel(int x, int y)
    {
        CRect const cell = Cell(row, column);
        return m_canvas.Pixel(cell.left + x, cell.top + y);
    }

    COLORREF m_frame = 0;
};

TEST_F(ListPaintProgress, TheTroughLeavesTheLeftColumnAndTheLowestRow)
{
    Show(0);
    CRect const cell = Cell(row, column);
    EXPECT_EQ(m_canvas.BoundsOfOther(untouched), CRect(cell.left + 1, cell.top, cell.right, cell.bottom - 1));
    EXPECT_EQ(Bounds(trough, cell), CRect(2, 1, column_width - 1, row_height - 2));
}

TEST_F(ListPaintProgress, TheTroughsFrameIsBlackAboveAndLeft)
{
    Show(0);
    int const right = column_width - 1;
    int const bottom = row_height - 2;
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
    CRect const cell = Cell(row, column);
    // The bar's room is 58 pixels wide and begins at 2.
    for (auto const & [value, fill] : {std::pair(30, 17), std::pair(50, 29), std::pair(99, 57), std::pair(100, 58)})
    {
        Show(value);
        EXPECT_EQ(Bounds(bar_colour, cell), CRect(2, 1, 2 + fill - 1, row_height - 2)) << value;
        EXPECT_EQ(Count(bar_colour, cell), (fill - 1) * (row_height - 3)) << value;
    }
}

TEST_F(ListPaintProgress, ABarTooShortToShowLeavesTheTroughAsItIs)
{
    std::unique_ptr<tests::Canvas> const none = Shown(0);
    EXPECT_TRUE(tests::SamePixels(*Shown(1), *none));
    EXPECT_TRUE(tests::SamePixels(*Shown(3), *none));
    EXPECT_FALSE(tests::SamePixels(*Shown(4), *none));
}

TEST_F(ListPaintProgress, ABarAboveAHundredLeavesTheCell)
{
    Show(150);
    CRect const cell = Cell(row, column);
    CRect const bar = m_canvas.BoundsOf(bar_colour);
    EXPECT_EQ(bar, CRect(cell.left + 2, cell.top + 1, cell.left + 2 + 87 - 1, cell.bottom - 2));
    EXPECT_GT(bar.right, cell.right);
    EXPECT_EQ(m_canvas.Count(bar_colour), bar.Width() * bar.Height());
}

TEST_F(ListPaintProgress, ABarOfAnyValueReachesToTheEdge)
{
    Show(INT_MAX);
    EXPECT_EQ(m_canvas.BoundsOf(bar_colour).right, m_canvas.Width());
}

TEST_F(ListPaintProgress, TheTextChangesItsColourAtTheBarsEdge)
{
    Make(true, L"XXXXXXXXXXXX");
    Show(50);
    CRect const cell = Cell(row, column);
    int const edge = 2 + 29 - 1;
    CRect const bar(cell.left + 2, cell.top + 1, cell.left + edge, cell.bottom - 2);
    CRect const rest(cell.left + edge, cell.top + 1, cell.right - 1, cell.bottom - 2);
    EXPECT_GT(Count(trough, bar), 0);
    EXPECT_EQ(Count(trough, bar) + Count(bar_colour, bar), bar.Width() * bar.Height());
    EXPECT_GT(Count(ink, rest), 0);
    EXPECT_EQ(Count(trough, rest) + Count(ink, rest), rest.Width() * rest.Height());
}

TEST_F(ListPaintProgress, NoColumnOfTheTextIsLostAtTheBarsEdge)
{
    // Underscores join to a line across the cell.
    Make(true, L"____________");
    Show(50);
    CRect const line = Bounds(ink, Cell(row, column));
    ASSERT_FALSE(line.IsRectEmpty());
    int const edge = 2 + 29 - 1;
    EXPECT_EQ(line.left, edge);
    EXPECT_EQ(Pixel(edge - 1, line.top), trough);
    EXPECT_EQ(Pixel(edge - 1, line.top - 1), bar_colour);
}

TEST_F(ListPaintProgress, TheTextIsCentred)
{
    Make(true, L"X");
    m_list.UpdateProgress(row, column, 4, 0);
    Show(4);
    EXPECT_NEAR(Bounds(ink, Cell(row, column)).CenterPoint().x, column_width / 2.0, 2);
}

TEST_F(ListPaintProgress, ABarAtZeroShowsNoText)
{
    Make(true, nullptr);
    Show(0);
    EXPECT_EQ(m_canvas.Count(ink), 0);
    Show(1);
    EXPECT_GT(m_canvas.Count(ink), 0);
}

TEST_F(ListPaintProgress, WithoutItsFlagThereIsNoText)
{
    Make(false, L"XX");
    Show(20);
    EXPECT_EQ(m_canvas.Count(ink), 0);
}

TEST_F(ListPaintProgress, PercentIsTheText)
{
    Make(true, nullptr);
    std::unique_ptr<tests::Canvas> const usual = Shown(37);
    Make(true, L"37%%");
    EXPECT_TRUE(tests::SamePixels(*Shown(37), *usual));
    Make(true, L"38%%");
    EXPECT_FALSE(tests::SamePixels(*Shown(37), *usual));
}

TEST_F(ListPaintProgress, AFormatOfItsOwnShowsTheDisplayValueWhateverThePercentage)
{
    Make(true, L"%d of 9");
    std::unique_ptr<tests::Canvas> const byFormat = Shown(60, 5);
    std::unique_ptr<tests::Canvas> const other = Shown(60, 6);
    Make(true, L"5 of 9");
    EXPECT_TRUE(tests::SamePixels(*Shown(60, 77), *byFormat));
    EXPECT_FALSE(tests::SamePixels(*byFormat, *other));
}

TEST_F(ListPaintProgress, AFormatMayGiveATextOfAnyLength)
{
    Make(true, L"%020000d");
    Show(50, 7);
    EXPECT_GT(m_canvas.Count(ink), 0);
    EXPECT_TRUE(OnlyWithin(Cell(row, column)));
}

TEST_F(ListPaintProgress, TheClipIsAsBefore)
{
    Make(true, nullptr);
    Show(50);
    CRgn region;
    region.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(::GetClipRgn(m_canvas.Dc().GetSafeHdc(), region), 0);
}

TEST_F(ListPaintProgress, AnImageStandsLeftOfTheBar)
{
    m_list.SetItemImage(row, column, 0);
    Show(100);
    CRect const cell = Cell(row, column);
    EXPECT_EQ(Bounds(pure_red, cell).left, spacing);
    EXPECT_EQ(Bounds(pure_red, cell).right, spacing + image_width);
    EXPECT_EQ(Pixel(spacing + image_width + 1, 5), RGB(0, 0, 0));
    EXPECT_EQ(Pixel(spacing + image_width + 2, 5), bar_colour);
}

TEST_F(ListPaintProgress, SelectionDoesNotShow)
{
    Make(true, nullptr);
    std::unique_ptr<tests::Canvas> const normal = Shown(50);
    Select(row, true);
    EXPECT_TRUE(tests::SamePixels(*Shown(50), *normal));
}

TEST_F(ListPaintProgress, ADisabledBarHasGreyTextOnTheTrough)
{
    Make(true, L"XXXXXXXXXXXX");
    m_list.SetEnabled(row, column, false);
    Show(50);
    EXPECT_EQ(m_canvas.Count(ink), 0);
    CRect rest = Cell(row, column);
    rest.left += 2 + 29 - 1;
    EXPECT_GT(Count(::GetSysColor(COLOR_GRAYTEXT), rest), 10);
    EXPECT_GT(m_canvas.Count(bar_colour), 0);
}
} // namespace
