#include <cmath>
#include <set>
#include <utility>

#include "list_PaintTest.h"

namespace
{
using Pixels = std::set<std::pair<int, int>>;

class ListPaintCells : public tests::ListPaintTest
{
protected:
    static constexpr COLORREF ink = RGB(200, 0, 100);
    static constexpr COLORREF paper = RGB(240, 250, 230);

    /// Gives the cell a text in a colour that nothing else has.
    void Write(int row, int col, wchar_t const * text) { m_list.SetItemText(row, col, text, ink, paper); }
    void SetWidth(int col, int width) { m_list.CListCtrl::SetColumnWidth(col, width); }

    Pixels PixelsOf(COLORREF colour, CRect const & rect) const
    {
        Pixels pixels;
        for (int y = rect.top; y < rect.bottom; ++y)
        {
            for (int x = rect.left; x < rect.right; ++x)
            {
                if (m_canvas.Pixel(x, y) == colour)
                    pixels.insert({x - rect.left, y - rect.top});
            }
        }
        return pixels;
    }

    /// The box of a check cell without a text, in the middle of the cell.
    static CRect CentredBox(CRect const & cell)
    {
        CPoint const corner(cell.left + cell.Width() / 2 - 6 - 1, cell.top + (cell.Height() - box_size) / 2);
        return CRect(corner, CSize(box_size, box_size));
    }

    std::unique_ptr<tests::Canvas> Painted(int row, int col)
    {
        Paint(row, col);
        return Copy(Cell(row, col));
    }
};

TEST_F(ListPaintCells, StagesBeforeTheCellsAskForTheCells)
{
    LRESULT result = -1;
    NMLVCUSTOMDRAW draw = Notification(CDDS_PREPAINT, 0, 0);
    m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    EXPECT_EQ(result, CDRF_NOTIFYSUBITEMDRAW);
    draw = Notification(CDDS_ITEMPREPAINT, 0, 0);
    m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    EXPECT_EQ(result, CDRF_NOTIFYSUBITEMDRAW);
    draw = Notification(CDDS_ITEMPOSTPAINT, 0, 0);
    m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    EXPECT_EQ(result, CDRF_DODEFAULT);
    EXPECT_EQ(Paint(0, 1), CDRF_SKIPDEFAULT);
}

TEST_F(ListPaintCells, ARowWithoutCellsIsDrawnByTheNativeList)
{
    int const row = m_list.InsertForeignItem(0, L"x");
    EXPECT_EQ(Paint(row, 0), CDRF_DODEFAULT);
    EXPECT_TRUE(m_canvas.BoundsOfOther(untouched).IsRectEmpty());
}

TEST_F(ListPaintCells, AColumnBeyondTheRowsCellsIsDrawnByTheNativeList)
{
    m_list.AddColumns(6);
    EXPECT_EQ(Paint(0, 8), CDRF_DODEFAULT);
    EXPECT_TRUE(m_canvas.BoundsOfOther(untouched).IsRectEmpty());
}

TEST_F(ListPaintCells, TheColoursGoToTheNotification)
{
    m_list.SetItemColors(0, 1, ink, paper, XLISTCTRLDATA::no_gradient);
    NMLVCUSTOMDRAW draw = Notification(CDDS_ITEMPREPAINT | CDDS_SUBITEM, 0, 1);
    LRESULT result = 0;
    m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    EXPECT_EQ(draw.clrText, ink);
    EXPECT_EQ(draw.clrTextBk, paper);
}

TEST_F(ListPaintCells, ATextCellIsFilledWhollyAndPadded)
{
    Write(0, 1, L"XXXXXXXXXXXXXXXXXXXXXX");
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    EXPECT_EQ(m_canvas.BoundsOfOther(untouched), cell);
    EXPECT_EQ(Count(untouched, cell), 0);
    CRect const text = Bounds(ink, cell);
    EXPECT_GE(text.left, padding);
    EXPECT_LE(text.left, padding + 2);
    EXPECT_LE(text.right, column_width - padding);
}

TEST_F(ListPaintCells, PaddingThatLeavesNoRoomShowsNoText)
{
    Write(0, 1, L"XXXXXXXXXXXX");
    m_list.SetCellPadding(200);
    Paint(0, 1);
    EXPECT_EQ(m_canvas.Count(ink), 0);
    EXPECT_TRUE(OnlyWithin(Cell(0, 1)));
}

TEST_F(ListPaintCells, TheDrawOperationLeavesTheCallersRectangleAlone)
{
    Write(0, 1, L"X");
    CRect rect = Cell(0, 1);
    m_list.DrawTextW(0, 1, &m_canvas.Dc(), ink, paper, rect, m_list.GetRowData(0));
    EXPECT_EQ(rect, Cell(0, 1));
    EXPECT_GT(m_canvas.Count(ink), 0);
}

TEST_F(ListPaintCells, TextFollowsTheColumnsAlignment)
{
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    for (int col = 0; col < 3; ++col)
        Write(0, col, L"X");
    for (auto const & [col, format] : {std::pair(1, HDF_RIGHT), std::pair(2, HDF_CENTER)})
    {
        item.fmt = format | HDF_STRING;
        ::SendMessageW(m_list.Header(), HDM_SETITEMW, static_cast<WPARAM>(col), reinterpret_cast<LPARAM>(&item));
    }
    Paint(0, 0);
    EXPECT_LE(Bounds(ink, Cell(0, 0)).left, padding + 2);
    Paint(0, 1);
    CRect const right = Bounds(ink, Cell(0, 1));
    EXPECT_GE(right.right, column_width - padding - 2);
    EXPECT_LE(right.right, column_width - padding);
    Paint(0, 2);
    EXPECT_NEAR(Bounds(ink, Cell(0, 2)).CenterPoint().x, column_width / 2.0, 2);
}

TEST_F(ListPaintCells, TooLongATextEndsInAnEllipsisIfThatIsOn)
{
    Write(0, 1, L"XXXXXXXXXXXXXXXXXXXXXX");
    std::unique_ptr<tests::Canvas> const withEllipsis = Painted(0, 1);
    EXPECT_TRUE(m_list.SetEllipsis(false));
    std::unique_ptr<tests::Canvas> const without = Painted(0, 1);
    EXPECT_FALSE(tests::SamePixels(*withEllipsis, *without));
    // The dots stand at the bottom of the line only.
    EXPECT_LT(withEllipsis->Count(ink), without->Count(ink));

    Write(0, 1, L"X");
    std::unique_ptr<tests::Canvas> const shortText = Painted(0, 1);
    m_list.SetEllipsis(true);
    EXPECT_TRUE(tests::SamePixels(*Painted(0, 1), *shortText));
}

TEST_F(ListPaintCells, BoldAndUnderlineShow)
{
    Write(0, 1, L"IlI");
    CRect const cell = Cell(0, 1);
    Paint(0, 1);
    int const plainInk = Count(ink, cell);
    CRect const plain = Bounds(ink, cell);
    m_list.SetBold(0, 1, true);
    Paint(0, 1);
    EXPECT_GT(Count(ink, cell), plainInk);
    m_list.SetBold(0, 1, false);
    m_list.SetItemProperty(0, 1, XLP_UNDERLINE, true);
    Paint(0, 1);
    EXPECT_GT(Bounds(ink, cell).bottom, plain.bottom);
    // The font of the device context is as before.
    m_list.SetItemProperty(0, 1, XLP_UNDERLINE, false);
    Paint(0, 1);
    EXPECT_EQ(Count(ink, cell), plainInk);
}

TEST_F(ListPaintCells, ATextOfAnyLengthIsDrawn)
{
    CString text(L' ', 700);
    text += L"XX";
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_RIGHT | HDF_STRING;
    ::SendMessageW(m_list.Header(), HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    m_list.SetEllipsis(false);
    Write(0, 1, text);
    Paint(0, 1);
    EXPECT_GT(m_canvas.Count(ink), 0);
    EXPECT_TRUE(OnlyWithin(Cell(0, 1)));
}

TEST_F(ListPaintCells, AnAmpersandIsAnAmpersandInTextAndAMnemonicBesideABox)
{
    m_list.AddColumns(1, 100);
    Write(0, 1, L"&X");
    std::unique_ptr<tests::Canvas> const text = Painted(0, 1);
    Write(0, 1, L"X");
    EXPECT_LT(Painted(0, 1)->Count(ink), text->Count(ink));
    CRect const plain = Bounds(ink, Cell(0, 1));

    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    Write(0, 1, L"&X");
    Paint(0, 1);
    CRect const mnemonic = Bounds(ink, Cell(0, 1));
    EXPECT_LE(mnemonic.Width(), plain.Width() + 2);
    EXPECT_GT(mnemonic.bottom, plain.bottom);
}

TEST_F(ListPaintCells, TheBoxStandsNinePixelsInAndTheTextFourBehind)
{
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    Write(0, 1, L"XXXXXXXXX");
    m_list.SetCellPadding(20);
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    EXPECT_EQ(Bounds(check_frame, cell), CRect(CPoint(9, (row_height - box_size) / 2), CSize(box_size, box_size)));
    CRect const text = Bounds(ink, cell);
    EXPECT_GE(text.left, 9 + box_size + 4);
    EXPECT_LE(text.left, 9 + box_size + 4 + 2);
    EXPECT_GT(text.right, column_width - 15);
}

TEST_F(ListPaintCells, TheBoxIsCentredWithoutText)
{
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    CRect const cell = Cell(0, 1);
    Paint(0, 1);
    CRect box = CentredBox(cell);
    box.OffsetRect(-cell.TopLeft());
    EXPECT_EQ(box.left, 23);
    EXPECT_EQ(Bounds(check_frame, cell), box);
}

TEST_F(ListPaintCells, TheFrameIsOnePixelWideAndTheInteriorIsTheCells)
{
    m_list.SetCheckbox(0, 1, XLC_UNCHECKED);
    m_list.SetItemColors(0, 1, ink, paper, XLISTCTRLDATA::no_gradient);
    Paint(0, 1);
    CRect box = CentredBox(Cell(0, 1));
    EXPECT_EQ(Count(check_frame, box), 4 * (box_size - 1));
    box.DeflateRect(1, 1);
    EXPECT_EQ(Count(paper, box), box.Width() * box.Height());
}

TEST_F(ListPaintCells, TheTickIsSevenLinesOfThreePixels)
{
    Pixels const expected = {
        {9, 3}, {9, 4}, {9, 5}, {8, 4}, {8, 5}, {8, 6}, {7, 5}, {7, 6}, {7, 7}, {6, 6}, {6, 7},
        {6, 8}, {5, 7}, {5, 8}, {5, 9}, {4, 6}, {4, 7}, {4, 8}, {3, 5}, {3, 6}, {3, 7},
    };
    m_list.SetCheckbox(0, 1, XLC_CHECKED);
    Paint(0, 1);
    EXPECT_EQ(PixelsOf(check_mark, CentredBox(Cell(0, 1))), expected);
}

TEST_F(ListPaintCells, TheCrossIsFourDiagonals)
{
    Pixels expected;
    for (int i = 0; i < 7; ++i)
    {
        for (int x : {3 + i, 4 + i, 9 - i, 10 - i})
            expected.insert({x, 3 + i});
    }
    m_list.SetCheckbox(0, 1, XLC_CROSSED);
    Paint(0, 1);
    EXPECT_EQ(PixelsOf(cross_mark, CentredBox(Cell(0, 1))), expected);
}

TEST_F(ListPaintCells, AnUnknownCheckStateHasTextButNoBox)
{
    m_list.SetCheckbox(0, 1, XLC_CHECKED);
    Write(0, 1, L"XX");
    m_list.SetItemCheckedState(0, 1, 5);
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    EXPECT_EQ(Count(check_frame, cell), 0);
    EXPECT_EQ(Count(check_mark, cell), 0);
    EXPECT_GT(Count(ink, cell), 0);
    EXPECT_EQ(Count(ink, cell) + Count(paper, cell), cell.Width() * cell.Height());
}

TEST_F(ListPaintCells, ACheckCellShowsNoImage)
{
    m_list.SetCheckbox(0, 1, XLC_CHECKED);
    std::unique_ptr<tests::Canvas> const without = Painted(0, 1);
    m_list.SetItemImage(0, 1, 0);
    EXPECT_TRUE(tests::SamePixels(*Painted(0, 1), *without));
}

TEST_F(ListPaintCells, ARadioButtonOnIsALitBallAndOffIsWhite)
{
    m_list.SetRadioButton(0, 1, XLC_RADIO_OFF);
    Data(0, 1).backgroundColor = paper;
    CRect const cell = Cell(0, 1);
    CRect const box = CentredBox(cell);
    CPoint const middle = box.CenterPoint();
    Paint(0, 1);
    EXPECT_EQ(m_canvas.Pixel(middle.x, middle.y), RGB(255, 255, 255));
    EXPECT_GT(Count(check_frame, box), 0);

    m_list.SetRadioButton(0, 1, XLC_RADIO_ON);
    Paint(0, 1);
    COLORREF const lit = m_canvas.Pixel(box.left + 1 + 3, box.top + 1 + 3);
    COLORREF const dark = m_canvas.Pixel(box.left + 10, box.top + 9);
    EXPECT_GT(GetGValue(lit), 230);
    EXPECT_LT(GetGValue(dark), GetGValue(lit) - 30);
    EXPECT_GT(GetGValue(dark), 140);

    // Nothing but the background outside of the box without its outermost pixels.
    CRect ring = box;
    ring.DeflateRect(1, 1);
    CRect painted = m_canvas.BoundsOf([](COLORREF pixel) { return pixel != paper && pixel != untouched; });
    CRect both;
    both.UnionRect(painted, ring);
    EXPECT_GE(both.left, box.left);
    EXPECT_LE(both.right, box.right);
    EXPECT_GE(both.top, box.top);
    EXPECT_LE(both.bottom, box.bottom);
}

TEST_F(ListPaintCells, AnImageStandsTheSpacingInAndItsTextRightBehind)
{
    m_list.SetItemImage(0, 1, 0);
    Write(0, 1, L"XXXXXXXXX");
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    EXPECT_EQ(Bounds(pure_red, cell), CRect(spacing, 10 - (image_height >> 1), spacing + image_width, 20));
    EXPECT_EQ(Count(pure_red, cell), image_width * image_height);
    CRect const text = Bounds(ink, cell);
    EXPECT_GE(text.left, spacing + image_width + padding);
    EXPECT_LE(text.left, spacing + image_width + padding + 2);
}

TEST_F(ListPaintCells, AnImageIsCutToANarrowCell)
{
    m_list.SetItemImage(0, 1, 0);
    SetWidth(1, 15);
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    EXPECT_EQ(Bounds(pure_red, cell).left, spacing);
    EXPECT_EQ(Bounds(pure_red, cell).right, 15);
    EXPECT_TRUE(OnlyWithin(cell));

    SetWidth(1, spacing);
    Paint(0, 1);
    EXPECT_EQ(m_canvas.Count(pure_red), 0);
    EXPECT_TRUE(OnlyWithin(Cell(0, 1)));
}

TEST_F(ListPaintCells, TheWidthOfAnImageIsThatAndTheSpacing)
{
    CRect const cell = Cell(0, 1);
    XLISTCTRLDATA * const cells = m_list.GetRowData(0);
    auto const width = [&] { return m_list.DrawImage(0, 1, &m_canvas.Dc(), ink, paper, cell, cells); };
    EXPECT_EQ(width(), 0);
    cells[1].imageIndex = 1;
    EXPECT_EQ(width(), image_width + spacing);
    EXPECT_EQ(Count(pure_green, cell), image_width * image_height);
    cells[1].imageIndex = 99;
    EXPECT_EQ(width(), spacing);
    EXPECT_EQ(Count(pure_green, cell), 0);
    m_list.SetImageList(nullptr, LVSIL_SMALL);
    EXPECT_EQ(width(), 0);
}

TEST_F(ListPaintCells, AnImageListKeepsItsBackgroundColour)
{
    CImageList * const images = m_list.GetImageList(LVSIL_SMALL);
    images->SetBkColor(ink);
    m_list.SetItemImage(0, 1, 0);
    Paint(0, 1);
    EXPECT_EQ(images->GetBkColor(), ink);
    images->SetBkColor(CLR_NONE);
}

TEST_F(ListPaintCells, AComboHasAnArrowAtItsRight)
{
    m_list.SetComboBox(0, 1, std::map<int, wchar_t const *>{{1, L""}}, 1, 1);
    Data(0, 1).backgroundColor = paper;
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    CRect arrow = m_canvas.BoundsOf([](COLORREF pixel) { return pixel != paper && pixel != untouched; });
    arrow.OffsetRect(-cell.TopLeft());
    // Its box begins 5 pixels of padding and 13 of its own left of the edge, and 4 below the top.
    EXPECT_NEAR(arrow.left, column_width - 18 + 3, 1);
    EXPECT_NEAR(arrow.right, column_width - 18 + 3 + 8, 1);
    EXPECT_NEAR(arrow.top, 4 + 3, 1);
    EXPECT_NEAR(arrow.bottom, 4 + 3 + 7, 1);
    // Darker towards its tip.
    int const x = static_cast<int>(cell.left) + column_width - 18 + 3 + 4;
    EXPECT_GT(GetRValue(m_canvas.Pixel(x, cell.top + 4 + 3 + 2)), GetRValue(m_canvas.Pixel(x, cell.top + 4 + 3 + 5)));
}

TEST_F(ListPaintCells, TheTextOfAComboEndsBeforeTheArrowAndADisabledOneHasNeitherArrowNorPadding)
{
    m_list.SetEllipsis(false);
    m_list.SetComboBox(0, 1, std::map<int, wchar_t const *>{{1, L"XXXXXXXXXXXXXXXX"}}, 1, 1);
    Data(0, 1).textColor = ink;
    CRect const cell = Cell(0, 1);
    Paint(0, 1);
    CRect text = Bounds(ink, cell);
    EXPECT_GE(text.left, padding);
    EXPECT_LE(text.left, padding + 2);
    EXPECT_LE(text.right, column_width - padding - 13);
    EXPECT_GE(text.right, column_width - padding - 13 - 3);

    m_list.SetEnabled(0, 1, false);
    Paint(0, 1);
    text = Bounds(::GetSysColor(COLOR_GRAYTEXT), cell);
    EXPECT_LT(text.left, padding - 1);
    EXPECT_GE(text.right, column_width - 2);
    EXPECT_EQ(m_canvas.BoundsOf([](COLORREF pixel) { return GetGValue(pixel) > GetRValue(pixel) + 20; }),
              CRect(0, 0, 0, 0));
}

TEST_F(ListPaintCells, ACombosTextIsNeitherBoldNorUnderlined)
{
    m_list.SetComboBox(0, 1, std::map<int, wchar_t const *>{{1, L"Xx"}}, 1, 1);
    std::unique_ptr<tests::Canvas> const plain = Painted(0, 1);
    m_list.SetItemProperty(0, 1, XLP_BOLD | XLP_UNDERLINE, true);
    EXPECT_TRUE(tests::SamePixels(*Painted(0, 1), *plain));
}

TEST_F(ListPaintCells, AWashFadesOutToTheRight)
{
    COLORREF const wash = RGB(10, 60, 200);
    m_list.SetItemColors(0, 1, 0, RGB(255, 255, 255), wash);
    Paint(0, 1);
    CRect const cell = Cell(0, 1);
    CRect const painted = m_canvas.BoundsOf([](COLORREF pixel) { return pixel != 0xFFFFFF && pixel != untouched; });
    EXPECT_EQ(painted, CRect(cell.left + 1, cell.top + 2, cell.right - 1, cell.bottom - 2));
    int const y = cell.CenterPoint().y;
    EXPECT_NEAR(GetRValue(m_canvas.Pixel(cell.left + 1, y)), 10, 2);
    int former = 0;
    for (int x = cell.left + 1; x < cell.right - 1; ++x)
    {
        int const red = GetRValue(m_canvas.Pixel(x, y));
        EXPECT_GE(red, former) << x;
        former = red;
    }
    EXPECT_GT(former, 200);
    EXPECT_LT(former, 255);
    // At 0.3 of 1.05 widths the colour still covers 240 of 255 parts.
    int const bend = cell.left + 1 + static_cast<int>(0.3 * 1.05 * (column_width - 2));
    EXPECT_NEAR(GetRValue(m_canvas.Pixel(bend, y)), 10 + 245 * 15 / 255.0, 5);
}

TEST_F(ListPaintCells, ACustomCellIsPaintedByItsOwnAlone)
{
    CRect seen;
    int row = -1;
    int col = -1;
    m_list.SetCustomDraw(2, 1, [&](int atRow, int atCol, CDC * dc, CRect const & rect) {
        row = atRow;
        col = atCol;
        seen = rect;
        dc->SetPixel(rect.left + 1, rect.top + 1, ink);
    });
    EXPECT_EQ(Paint(2, 1), CDRF_SKIPDEFAULT);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(col, 1);
    EXPECT_EQ(seen, Cell(2, 1));
    EXPECT_EQ(m_canvas.BoundsOfOther(untouched), CRect(CPoint(seen.left + 1, seen.top + 1), CSize(1, 1)));
}

TEST_F(ListPaintCells, AnEmptyPainterIsABadFunctionCall)
{
    m_list.SetCustomDraw(0, 1, {});
    EXPECT_THROW(Paint(0, 1), std::bad_function_call);
    m_list.RemoveCustomDraw(0, 1);
    EXPECT_EQ(Paint(0, 1), CDRF_SKIPDEFAULT);
}

TEST_F(ListPaintCells, KindsAreTriedInOrder)
{
    // A progress cell with a check state, a combo's bit and a painter is a bar.
    m_list.SetProgress(0, 1, false, nullptr);
    std::unique_ptr<tests::Canvas> const bar = Painted(0, 1);
    XLISTCTRLDATA & cell = Data(0, 1);
    cell.checkedState = XLC_CHECKED;
    cell.properties |= XLP_COMBO | XLP_CUSTOMDRAW;
    bool custom = false;
    cell.customDraw = [&](int, int, CDC *, CRect const &) { custom = true; };
    EXPECT_TRUE(tests::SamePixels(*Painted(0, 1), *bar));
    cell.properties &= ~XLP_PROGRESS;
    Paint(0, 1);
    EXPECT_EQ(Count(check_mark, Cell(0, 1)), 21);
    cell.checkedState = XLC_NONE;
    EXPECT_FALSE(tests::SamePixels(*Painted(0, 1), *bar));
    EXPECT_FALSE(custom);
    cell.properties &= ~XLP_COMBO;
    Paint(0, 1);
    EXPECT_TRUE(custom);
}

TEST_F(ListPaintCells, NothingIsDrawnIntoNothing)
{
    m_list.SetItemImage(0, 1, 0);
    XLISTCTRLDATA * const cells = m_list.GetRowData(0);
    CDC * const dc = &m_canvas.Dc();
    CRect const cell = Cell(0, 1);
    CRect const empty(cell.left, cell.top, cell.left, cell.bottom);
    EXPECT_EQ(m_list.DrawImage(0, 1, dc, 0, 0, empty, cells), 0);
    for (auto const draw :
         {&tests::TestList::DrawTextW, &tests::TestList::DrawCheckbox, &tests::TestList::DrawComboBox})
    {
        CRect rect = empty;
        (m_list.*draw)(0, 1, dc, 0, 0, rect, cells);
        rect = cell;
        (m_list.*draw)(0, 1, nullptr, 0, 0, rect, cells);
        (m_list.*draw)(0, 1, dc, 0, 0, rect, nullptr);
    }
    CRect rect = cell;
    m_list.DrawProgress(0, 1, nullptr, 0, 0, rect, cells);
    m_list.DrawProgress(0, 1, dc, 0, 0, rect, nullptr);
    for (int state = XLC_UNCHECKED; state <= XLC_RADIO_OFF; ++state)
    {
        for (auto const draw : {&tests::TestList::DrawCheckboxBox, &tests::TestList::DrawRadioBox})
        {
            CRect box(cell.TopLeft(), CSize(box_size, box_size));
            (m_list.*draw)(box, state, true, nullptr);
            CRect noWidth(cell.left, cell.top, cell.left, cell.top + box_size);
            (m_list.*draw)(noWidth, state, true, dc);
            CRect noHeight(cell.left, cell.top, cell.left + box_size, cell.top);
            (m_list.*draw)(noHeight, state, false, dc);
        }
    }
    EXPECT_TRUE(m_canvas.BoundsOfOther(untouched).IsRectEmpty());
}

TEST_F(ListPaintCells, ColumnZeroEndsWhereTheNextColumnBegins)
{
    Write(0, 0, L"XXXXXXXXXXXXXXXXXXXXXX");
    Paint(0, 0);
    CRect const next = Cell(0, 1);
    EXPECT_EQ(m_canvas.BoundsOfOther(untouched), CRect(0, next.top, next.left, next.bottom));
}

TEST_F(ListPaintCells, AMarkKeepsItsSizeAndPlaceInACellThatIsSmaller)
{
    SetWidth(1, 5);
    m_list.SetCheckbox(0, 1, XLC_CHECKED);
    CRect cell = Cell(0, 1);
    m_list.SetItemText(0, 1, L"Text");
    Paint(0, 1);
    EXPECT_EQ(m_canvas.BoundsOf(check_frame), CRect(CPoint(cell.left + 9, cell.top + 3), CSize(box_size, box_size)));
    EXPECT_EQ(m_canvas.Count(check_mark), 21);
    m_list.SetItemText(0, 1, L"");
    Paint(0, 1);
    EXPECT_EQ(m_canvas.BoundsOf(check_frame),
              CRect(CPoint(cell.left + 2 - 7, cell.top + 3), CSize(box_size, box_size)));

    CRect low(cell.left, cell.top, cell.left + 40, cell.top + 8);
    m_canvas.Fill(untouched);
    m_list.DrawCheckbox(0, 1, &m_canvas.Dc(), 0, 0xFFFFFF, low, m_list.GetRowData(0));
    EXPECT_EQ(m_canvas.BoundsOf(check_frame), CRect(CPoint(cell.left + 20 - 7, cell.top), CSize(box_size, box_size)));
}

TEST_F(ListPaintCells, AComboArrowKeepsItsPlaceInACellThatIsSmaller)
{
    m_list.SetComboBox(0, 1, std::map<int, wchar_t const *>{{1, L""}}, 1, 1);
    SetWidth(1, 5);
    CRect const cell = Cell(0, 1);
    Paint(0, 1);
    // The arrow starts 3 pixels into its box, which ends the padding ahead of the cell's right edge.
    CRect const painted = m_canvas.BoundsOfOther(untouched);
    EXPECT_LE(painted.left, cell.right - padding - box_size + 4);
    EXPECT_GE(painted.left, cell.right - padding - box_size + 2);
}

TEST_F(ListPaintCells, AnImageStandsInTheMiddleOfACellThatIsLower)
{
    m_list.SetItemImage(0, 1, 0);
    CRect const cell = Cell(0, 1);
    m_canvas.Fill(untouched);
    m_list.DrawImage(0, 1, &m_canvas.Dc(), 0, 0xFFFFFF, CRect(cell.left, cell.top + 10, cell.right, cell.top + 20),
                     m_list.GetRowData(0));
    EXPECT_EQ(m_canvas.BoundsOf(pure_red),
              CRect(cell.left + spacing, cell.top + 15 - (image_height >> 1), cell.left + spacing + image_width,
                    cell.top + 25 - (image_height >> 1)));
}

TEST_F(ListPaintCells, TextsAndBarsStayInTheirCellHoweverNarrow)
{
    constexpr int all_kinds = 2;
    for (int width : {1, 2, 3, 5, 8, 12, 14, 18, 23, 30, 60})
    {
        SetWidth(1, width);
        for (int kind = 0; kind < all_kinds; ++kind)
        {
            Data(0, 1) = XLISTCTRLDATA();
            Data(0, 1).gradientColor = kind % 2 == 0 ? 0x804020 : XLISTCTRLDATA::no_gradient;
            m_list.SetItemText(0, 1, L"Text");
            switch (kind)
            {
            case 0:
                m_list.SetProgress(0, 1, true, L"%d of 100");
                m_list.UpdateProgress(0, 1, 40, 40);
                break;
            default:
                m_list.SetBold(0, 1, true);
                break;
            }
            Paint(0, 1);
            EXPECT_TRUE(OnlyWithin(Cell(0, 1))) << "width " << width << ", kind " << kind;
        }
    }
}
} // namespace
