#include <map>
#include <utility>
#include <vector>

#include "GdiHandleCount.h"
#include "list_PaintTest.h"
#include "Pump.h"
#include "TestApp.h"

namespace
{
COLORREF Sys(int index)
{
    return ::GetSysColor(index);
}

class ListPaintStates : public tests::ListPaintTest
{
protected:
    static constexpr COLORREF ink = RGB(200, 0, 100);
    static constexpr COLORREF paper = RGB(240, 250, 230);

    explicit ListPaintStates(DWORD style = list_style) : ListPaintTest(style) {}

    void SetUp() override
    {
        ListPaintTest::SetUp();
        for (int col = 0; col < 3; ++col)
            m_list.SetItemText(1, col, L"XX", ink, paper);
    }

    /// Whether the cell, when painted, is of these two colours alone and has both.
    testing::AssertionResult IsOf(int row, int col, COLORREF text, COLORREF background)
    {
        Paint(row, col);
        CRect const cell = Cell(row, col);
        int const texts = Count(text, cell);
        int const backgrounds = Count(background, cell);
        if (texts > 0 && backgrounds > 0 && texts + backgrounds == cell.Width() * cell.Height())
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << std::hex << texts << " pixels have the text's colour " << text << ", "
                                           << backgrounds << " the background's " << background;
    }
    testing::AssertionResult IsSelected(int col)
    {
        return IsOf(1, col, Sys(COLOR_HIGHLIGHTTEXT), Sys(COLOR_HIGHLIGHT));
    }
    bool Erase()
    {
        return m_list.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(m_canvas.Dc().GetSafeHdc())) != 0;
    }
    void SetFullRow(bool on)
    {
        ::SendMessageW(m_list.m_hWnd, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT,
                       on ? LVS_EX_FULLROWSELECT : 0);
    }
};

class ListPaintStatesShown : public ListPaintStates
{
protected:
    ListPaintStatesShown() : ListPaintStates(list_style | LVS_SHOWSELALWAYS) {}
};

TEST_F(ListPaintStates, ASelectedRowHasTheHighlightsColours)
{
    EXPECT_TRUE(IsOf(1, 1, ink, paper));
    Select(1, true);
    for (int col = 0; col < 3; ++col)
        EXPECT_TRUE(IsSelected(col)) << col;
}

TEST_F(ListPaintStates, WithoutFullRowSelectionOnlyColumnZeroShowsIt)
{
    SetFullRow(false);
    Select(1, true);
    EXPECT_TRUE(IsSelected(0));
    EXPECT_TRUE(IsOf(1, 1, ink, paper));
    EXPECT_TRUE(IsOf(1, 2, ink, paper));
    m_list.SetCheckbox(1, 0, XLC_CHECKED);
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    Paint(1, 0);
    EXPECT_GT(Count(Sys(COLOR_HIGHLIGHT), Cell(1, 0)), 100);
    EXPECT_GT(Count(check_mark, Cell(1, 0)), 0);
    EXPECT_EQ(Count(paper, Cell(1, 0)), 0);
    Paint(1, 1);
    EXPECT_EQ(Count(Sys(COLOR_HIGHLIGHT), Cell(1, 1)), 0);
    EXPECT_GT(Count(paper, Cell(1, 1)), 100);
}

TEST_F(ListPaintStates, WithoutTheFocusARowHasItsOwnColours)
{
    Select(1, true);
    EXPECT_TRUE(IsSelected(1));
    Select(1, false);
    EXPECT_TRUE(IsOf(1, 0, ink, paper));
    EXPECT_TRUE(IsOf(1, 1, ink, paper));
}

TEST_F(ListPaintStatesShown, WithoutTheFocusASelectionThatAlwaysShowsIsOnFaceColour)
{
    Select(1, true);
    EXPECT_TRUE(IsSelected(1));
    Select(1, false);
    EXPECT_TRUE(IsOf(1, 1, Sys(COLOR_WINDOWTEXT), Sys(COLOR_BTNFACE)));
    SetFullRow(false);
    EXPECT_TRUE(IsOf(1, 0, Sys(COLOR_WINDOWTEXT), Sys(COLOR_BTNFACE)));
    EXPECT_TRUE(IsOf(1, 1, ink, paper));
}

TEST_F(ListPaintStates, MarksStayAsTheyAreInASelectedRow)
{
    m_list.SetItemText(1, 1, L"");
    m_list.SetCheckbox(1, 1, XLC_CROSSED);
    Paint(1, 1);
    int const frame = Count(check_frame, Cell(1, 1));
    int const cross = Count(cross_mark, Cell(1, 1));
    Select(1, true);
    Paint(1, 1);
    EXPECT_EQ(Count(check_frame, Cell(1, 1)), frame);
    EXPECT_EQ(Count(cross_mark, Cell(1, 1)), cross);
}

TEST_F(ListPaintStates, ADisabledCellOnTheWindowsColourIsGreyOnFaceColour)
{
    m_list.SetItemColors(1, 1, ink, Sys(COLOR_WINDOW), XLISTCTRLDATA::no_gradient);
    m_list.SetEnabled(1, 1, false);
    EXPECT_TRUE(IsOf(1, 1, Sys(COLOR_GRAYTEXT), Sys(COLOR_BTNFACE)));
    NMLVCUSTOMDRAW draw = Notification(CDDS_ITEMPREPAINT | CDDS_SUBITEM, 1, 1);
    LRESULT result = 0;
    m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    EXPECT_EQ(draw.clrText, Sys(COLOR_GRAYTEXT));
    EXPECT_EQ(draw.clrTextBk, Sys(COLOR_BTNFACE));
}

TEST_F(ListPaintStates, ADisabledCellKeepsABackgroundOfItsOwn)
{
    m_list.SetEnabled(1, 1, false);
    EXPECT_TRUE(IsOf(1, 1, Sys(COLOR_GRAYTEXT), paper));
}

TEST_F(ListPaintStates, DisabledMarksAreGrey)
{
    m_list.SetItemText(1, 1, L"");
    for (int const state : {XLC_UNCHECKED, XLC_CHECKED, XLC_CROSSED})
    {
        m_list.SetCheckbox(1, 1, state);
        m_list.SetEnabled(1, 1, true);
        Paint(1, 1);
        CRect const cell = Cell(1, 1);
        int const enabled = cell.Width() * cell.Height() - Count(paper, cell);
        m_list.SetEnabled(1, 1, false);
        Paint(1, 1);
        EXPECT_EQ(Count(Sys(COLOR_GRAYTEXT), cell), enabled) << state;
        EXPECT_EQ(Count(paper, cell), cell.Width() * cell.Height() - enabled) << state;
    }
}

TEST_F(ListPaintStates, ADisabledRadioButtonDoesNotTellWhetherItIsOn)
{
    m_list.SetRadioButton(1, 1, XLC_RADIO_ON);
    m_list.SetEnabled(1, 1, false);
    Paint(1, 1);
    std::unique_ptr<tests::Canvas> const on = Copy(Cell(1, 1));
    m_list.SetRadioButton(1, 1, XLC_RADIO_OFF);
    Paint(1, 1);
    EXPECT_TRUE(tests::SamePixels(*on, *Copy(Cell(1, 1))));
}

TEST_F(ListPaintStates, ALinkIsAnUnderlinedText)
{
    Paint(1, 1);
    CRect const plain = Bounds(ink, Cell(1, 1));
    m_list.SetHyperlink(1, 1, true, false);
    Paint(1, 1);
    EXPECT_GT(Bounds(ink, Cell(1, 1)).bottom, plain.bottom);
    m_list.SetHyperlink(1, 1, true, true);
    EXPECT_TRUE(IsOf(1, 1, 0xFF0000, paper));
}

TEST_F(ListPaintStates, AnImageStandsOnTheDrawingColour)
{
    m_list.SetItemImage(1, 1, 0);
    m_list.SetItemText(1, 1, L"");
    Select(1, true);
    Paint(1, 1);
    CRect const cell = Cell(1, 1);
    EXPECT_EQ(Count(pure_red, cell) + Count(Sys(COLOR_HIGHLIGHT), cell), cell.Width() * cell.Height());
}

TEST_F(ListPaintStates, RowsAreNotErased)
{
    m_canvas.Fill(untouched);
    EXPECT_TRUE(Erase());
    CRect const first = Cell(0, 0);
    CRect const last = Cell(3, 2);
    CRect const rows(first.left, first.top, last.right, last.bottom);
    EXPECT_EQ(Count(untouched, rows), rows.Width() * rows.Height());
    EXPECT_EQ(m_canvas.Count(untouched), rows.Width() * rows.Height());
    EXPECT_EQ(m_canvas.Count(Sys(COLOR_WINDOW)), m_canvas.Width() * m_canvas.Height() - rows.Width() * rows.Height());
}

TEST_F(ListPaintStates, ErasingStaysWithinTheClip)
{
    m_canvas.Fill(untouched);
    CRect const clip(100, 30, 300, 120);
    CRgn region;
    region.CreateRectRgnIndirect(clip);
    m_canvas.Dc().SelectClipRgn(&region);
    EXPECT_TRUE(Erase());
    m_canvas.Dc().SelectClipRgn(nullptr);
    CRect rows(0, Cell(0, 0).top, Cell(3, 2).right, Cell(3, 2).bottom);
    rows.IntersectRect(rows, clip);
    EXPECT_EQ(m_canvas.Count(Sys(COLOR_WINDOW)), clip.Width() * clip.Height() - rows.Width() * rows.Height());
    EXPECT_TRUE(OnlyWithin(clip));
}

TEST_F(ListPaintStates, AnEmptyListIsErasedByTheNativeList)
{
    m_list.DeleteAllItems();
    m_canvas.Fill(untouched);
    Erase();
    CRect const below(0, 40, m_canvas.Width(), m_canvas.Height());
    EXPECT_EQ(Count(m_list.GetBkColor(), below), below.Width() * below.Height());
}

/// What the list shows on the screen, painted anew.
void Show(tests::TestList & list, tests::Canvas & canvas)
{
    list.Invalidate();
    list.UpdateWindow();
    canvas.CopyFromScreen(list.m_hWnd);
}

TEST_F(ListPaintStates, AnEmptyListShowsItsTextBelowTheHeader)
{
    CRect header;
    ::SendMessageW(m_list.Header(), HDM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&header));
    m_list.DeleteAllItems();
    Show(m_list, m_canvas);
    CRect const below(0, header.bottom, m_canvas.Width(), m_canvas.Height());
    EXPECT_EQ(Count(Sys(COLOR_WINDOW), below), below.Width() * below.Height());

    m_list.SetEmptyListText(L"HHHHHH HHHHHH");
    Show(m_list, m_canvas);
    EXPECT_LT(Count(Sys(COLOR_WINDOW), below), below.Width() * below.Height());
    m_canvas.Dc().FillSolidRect(header.left, 0, m_canvas.Width(), header.bottom, Sys(COLOR_WINDOW));
    CRect const text = m_canvas.BoundsOfOther(Sys(COLOR_WINDOW));
    EXPECT_GE(text.top, header.bottom + 10);
    EXPECT_LE(text.top, header.bottom + 10 + 8);
    EXPECT_NEAR(text.CenterPoint().x, m_canvas.Width() / 2.0, 3);
}

TEST_F(ListPaintStates, AListWithRowsShowsNoEmptyText)
{
    Show(m_list, m_canvas);
    tests::Canvas with(m_canvas.Width(), m_canvas.Height());
    m_list.SetEmptyListText(L"HHHHHH");
    Show(m_list, with);
    EXPECT_TRUE(tests::SamePixels(m_canvas, with));
}

TEST_F(ListPaintStates, TheScreenShowsWhatTheCellsPaint)
{
    m_list.SetItemText(1, 1, L"");
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    Show(m_list, m_canvas);
    CRect const cell = Cell(1, 1);
    EXPECT_EQ(Count(check_mark, cell), 21);
    EXPECT_EQ(Count(check_frame, cell), 48);
    EXPECT_EQ(Count(paper, cell) + 21 + 48, cell.Width() * cell.Height());
}

TEST_F(ListPaintStates, AChangedCellAloneIsToBePainted)
{
    m_list.SetProgress(1, 2, true, nullptr);
    m_list.SetCheckbox(1, 1, XLC_UNCHECKED);
    m_list.UpdateWindow();
    CRect around = Cell(1, 1);
    around.InflateRect(2, 2);
    m_list.TakeUpdateRect();
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    EXPECT_EQ(m_list.TakeUpdateRect(), around);
    m_list.SetEnabled(1, 1, false);
    EXPECT_EQ(m_list.TakeUpdateRect(), around);
    m_list.SetBold(1, 1, true);
    EXPECT_EQ(m_list.TakeUpdateRect(), around);
    around = Cell(1, 2);
    around.InflateRect(2, 2);
    m_list.UpdateProgress(1, 2, 30, 30);
    EXPECT_EQ(m_list.TakeUpdateRect(), around);
}

TEST_F(ListPaintStates, PaintingTheChangedCellPaintsItAlone)
{
    std::vector<std::pair<int, int>> painted;
    auto const note = [&](int row, int col, CDC * dc, CRect const & rect) {
        if (dc->RectVisible(rect))
            painted.emplace_back(row, col);
    };
    for (int row = 0; row < 4; ++row)
    {
        for (int col = 0; col < 3; ++col)
            m_list.SetCustomDraw(row, col, note);
    }
    m_list.UpdateWindow();
    m_list.TakeUpdateRect();
    painted.clear();
    m_list.InvalidateRect(Cell(2, 1));
    m_list.UpdateWindow();
    EXPECT_EQ(painted, (std::vector<std::pair<int, int>>{{2, 1}}));
}

TEST_F(ListPaintStates, OnePaintFillsEveryCellWithItsOwnColours)
{
    auto const colour = [](int row, int col) { return RGB(40 * row + 20, 60 * col + 20, 90); };
    for (int row = 0; row < 4; ++row)
    {
        for (int col = 0; col < 3; ++col)
        {
            m_list.SetItemText(row, col, L"");
            m_list.SetItemColors(row, col, RGB(0, 0, 0), colour(row, col), 0xFFFFFF);
        }
    }
    m_list.SetCurSel(2, false);
    ::SetFocus(m_list.m_hWnd);
    // Twice, with other columns: nothing of one paint may be left for the next.
    for (int const width : {80, 55})
    {
        static_cast<CListCtrl &>(m_list).SetColumnWidth(0, width);
        m_list.RedrawWindow();
        CClientDC dc(&m_list);
        for (int row = 0; row < 4; ++row)
        {
            for (int col = 0; col < 3; ++col)
            {
                COLORREF const expected = row == 2 ? ::GetSysColor(COLOR_HIGHLIGHT) : colour(row, col);
                CRect const cell = Cell(row, col);
                EXPECT_EQ(dc.GetPixel(cell.left + 3, cell.top + 1), expected) << row << ", " << col;
                EXPECT_EQ(dc.GetPixel(cell.right - 1, cell.bottom - 2), expected) << row << ", " << col;
            }
        }
    }
}

TEST_F(ListPaintStates, AnEmptyPainterIsReportedAndTheProgramGoesOn)
{
    m_list.SetCustomDraw(1, 1, {});
    m_list.UpdateWindow();
    tests::PumpPosted();
    EXPECT_FALSE(tests::App().TakeMessages().empty());
    m_list.RemoveCustomDraw(1, 1);
    Show(m_list, m_canvas);
    EXPECT_GT(Count(paper, Cell(1, 1)), 0);
    EXPECT_TRUE(tests::App().TakeMessages().empty());
}

TEST_F(ListPaintStates, NewSystemColoursAreTakenUp)
{
    int const element = COLOR_HIGHLIGHT;
    COLORREF const former = Sys(element);
    COLORREF const other = RGB(1, 120, 60);
    Select(1, true);
    ::SetSysColors(1, &element, &other);
    m_list.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(IsOf(1, 1, Sys(COLOR_HIGHLIGHTTEXT), other));
    ::SetSysColors(1, &element, &former);
    m_list.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(IsSelected(1));
}

class ListPaintHandles : public ListPaintStates, public testing::WithParamInterface<int>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, ListPaintHandles, testing::Range(0, 9));

TEST_P(ListPaintHandles, PaintingLeavesNone)
{
    constexpr int cells = 20000;
    switch (GetParam())
    {
    case 0:
        break;
    case 1:
        m_list.SetItemProperty(1, 1, XLP_BOLD | XLP_UNDERLINE, true);
        break;
    case 2:
        m_list.SetItemColors(1, 1, ink, paper, RGB(40, 80, 200));
        break;
    case 3:
        m_list.SetCheckbox(1, 1, XLC_CHECKED);
        break;
    case 4:
        m_list.SetCheckbox(1, 1, XLC_CROSSED);
        break;
    case 5:
        m_list.SetRadioButton(1, 1, XLC_RADIO_ON);
        break;
    case 6:
        m_list.SetComboBox(1, 1, std::map<int, wchar_t const *>{{1, L"XX"}}, 1, 1);
        break;
    case 7:
        m_list.SetProgress(1, 1, true, nullptr);
        m_list.UpdateProgress(1, 1, 50, 50);
        break;
    default:
        m_list.SetItemImage(1, 1, 0);
        break;
    }
    EXPECT_EQ(tests::GdiGrowth([&] { PaintOver(1, 1); }, cells, 10), 0);
}
} // namespace
