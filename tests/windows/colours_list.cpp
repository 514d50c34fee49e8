// The report list and its cells in the sets of colours.

#include <functional>
#include <memory>

#include "Bitmap.h"
#include "colours_ColorsTest.h"
#include "list_PaintTest.h"
#include "Pump.h"

namespace
{
using control_colors::ContrastOf;

constexpr COLORREF yellow = RGB(255, 255, 160);
constexpr COLORREF dark_red = RGB(120, 10, 10);

class ColorsList : public tests::ListPaintTest
{
protected:
    void Choose(ControlColorSet set)
    {
        control_colors::UseFor(m_list.m_hWnd, set);
        // As every paint begins.
        NMLVCUSTOMDRAW draw = Notification(CDDS_PREPAINT, 0, 0);
        LRESULT result = 0;
        m_list.OnCustomDraw(&draw.nmcd.hdr, &result);
    }
    /// Calls the check for every set that adapts, with its colours.
    void InEachSet(std::function<void(ControlColors const &)> const & check)
    {
        for (ControlColorSet const set : colours_tests::adapting_sets)
        {
            SCOPED_TRACE(testing::PrintToString(set));
            Choose(set);
            check(control_colors::Of(set));
        }
    }
    /// The cell's own ground, beside whatever stands in it.
    COLORREF Ground(int row, int col)
    {
        CRect const cell = Cell(row, col);
        return m_canvas.Pixel(cell.right - 2, cell.bottom - 2);
    }
};

TEST_F(ColorsList, TextsStandOnTheWindowsGround)
{
    m_list.SetItemText(1, 0, L"HH");
    m_list.SetItemText(1, 1, L"HH");
    InEachSet([this](ControlColors const & colors) {
        for (int const col : {0, 1})
        {
            Paint(1, col);
            EXPECT_EQ(Ground(1, col), colors.window);
            EXPECT_GT(Count(colors.windowText, Cell(1, col)), 10);
        }
    });
}

TEST_F(ColorsList, SelectedRowsHaveTheSetsSelection)
{
    m_list.SetItemText(1, 1, L"HH");
    InEachSet([this](ControlColors const & colors) {
        Select(1, true);
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), colors.selection);
        EXPECT_GT(Count(colors.selectionText, Cell(1, 1)), 10);
    });
    m_list.ModifyStyle(0, LVS_SHOWSELALWAYS);
    InEachSet([this](ControlColors const & colors) {
        Select(1, false);
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), colors.inactiveSelection);
        EXPECT_GT(Count(colors.windowText, Cell(1, 1)), 10);
    });
}

TEST_F(ColorsList, SelectedTextIsReadOnAWash)
{
    constexpr COLORREF brown = RGB(120, 110, 90);
    constexpr COLORREF ivory = RGB(250, 250, 240);
    m_list.ModifyStyle(0, LVS_SHOWSELALWAYS);
    for (COLORREF const wash : {brown, ivory})
    {
        m_list.SetItemColors(1, 1, RGB(1, 2, 3), RGB(4, 5, 6), wash);
        InEachSet([this, wash](ControlColors const & colors) {
            CRect const cell = Cell(1, 1);
            auto const solid = [&] { return m_canvas.Pixel(cell.left + 6, cell.CenterPoint().y); };
            Select(1, true);
            Paint(1, 1);
            EXPECT_GE(control_colors::ContrastOf(solid(), colors.selectionText), 4.4); // the wash begins to fade
            Select(1, false);
            Paint(1, 1);
            EXPECT_GE(control_colors::ContrastOf(solid(), colors.windowText), 4.4);
            m_list.SetItemState(1, 0, LVIS_SELECTED);
            Paint(1, 1);
            EXPECT_LT(control_colors::ContrastOf(solid(), wash), 1.2) << "as the host has chosen it";
        });
    }
}

TEST_F(ColorsList, DisabledCellsAreReadable)
{
    m_list.SetItemText(1, 1, L"HH");
    m_list.SetItemText(2, 1, L"HH");
    m_list.SetItemColors(2, 1, 0, yellow, XLISTCTRLDATA::no_gradient);
    m_list.SetEnabled(1, false);
    m_list.SetEnabled(2, false);
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), colors.inactiveSelection);
        EXPECT_GT(Count(colors.disabled, Cell(1, 1)), 10);
        Paint(2, 1);
        EXPECT_EQ(Ground(2, 1), yellow);
        COLORREF ink = yellow;
        m_canvas.BoundsOf([&ink](COLORREF color) {
            if (color != yellow && color != untouched)
                ink = color;
            return false;
        });
        EXPECT_GE(ContrastOf(ink, yellow), control_colors::least_contrast);
    });
}

TEST_F(ColorsList, BoxesAndMarksAreSeen)
{
    m_list.SetCheckbox(1, 0, XLC_CHECKED);
    m_list.SetCheckbox(1, 1, XLC_CROSSED);
    m_list.SetRadioButton(1, 2, XLC_RADIO_OFF);
    InEachSet([this](ControlColors const & colors) {
        m_list.SetItemState(-1, 0, LVIS_SELECTED);
        Paint(1, 0);
        EXPECT_GE(Count(colors.checkFrame, Cell(1, 0)), 4 * (box_size - 1));
        EXPECT_GT(Count(colors.checkMark, Cell(1, 0)), 10);
        Paint(1, 1);
        EXPECT_GT(Count(colors.crossMark, Cell(1, 1)), 10);
        Paint(1, 2);
        CPoint const inside = Cell(1, 2).CenterPoint();
        EXPECT_EQ(m_canvas.Pixel(inside.x - 1, inside.y - 1), colors.radioGround);

        Select(1, true);
        Paint(1, 0);
        COLORREF const frame = control_colors::MarkOn(colors.selection, colors.checkFrame, colors.selectionText);
        EXPECT_GE(Count(frame, Cell(1, 0)), 4 * (box_size - 1));
        Paint(1, 2);
        EXPECT_EQ(m_canvas.Pixel(inside.x - 1, inside.y - 1), colors.selection) << "neither on nor filled";
    });
}

TEST_F(ColorsList, BarsHaveTheSetsTroughAndBar)
{
    m_list.SetProgress(1, 1, true, nullptr);
    m_list.UpdateProgress(1, 1, 100, 0);
    m_list.SetProgress(2, 1, true, nullptr);
    m_list.UpdateProgress(2, 1, 10, 0);
    m_list.SetProgress(3, 1, true, nullptr);
    m_list.UpdateProgress(3, 1, 100, 0);
    m_list.SetItemColors(3, 1, 0, yellow, XLISTCTRLDATA::no_gradient);
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_GT(Count(colors.bar, Cell(1, 1)), 300);
        EXPECT_GT(Count(colors.barText, Cell(1, 1)), 10);
        Paint(2, 1);
        EXPECT_GT(Count(colors.trough, Cell(2, 1)), 300);
        EXPECT_GT(Count(colors.windowText, Cell(2, 1)), 10);
        Paint(3, 1);
        EXPECT_GT(Count(yellow, Cell(3, 1)), 300) << "the host's bar";
        EXPECT_EQ(Count(colors.barText, Cell(3, 1)) > 10,
                  ContrastOf(colors.barText, yellow) >= control_colors::least_contrast);
    });
}

TEST_F(ColorsList, LinksHaveTheSetsColour)
{
    m_list.SetItemText(1, 1, L"HH");
    m_list.SetHyperlink(1, 1, true, true);
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_GT(Count(colors.link, Cell(1, 1)), 10);
    });
}

TEST_F(ColorsList, ArrowsOfCombosAreSolid)
{
    m_list.SetComboBox(1, 1, {{1, L"a"}}, 1, 1);
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), colors.window);
        EXPECT_GE(Count(colors.comboArrow, Cell(1, 1)), 1);
    });
}

TEST_F(ColorsList, WhatTheHostHasChosenStays)
{
    m_list.SetItemText(1, 1, L"HH", dark_red, yellow);
    m_list.SetItemText(2, 1, L"HH", RGB(255, 0, 255), static_cast<COLORREF>(-1));
    m_list.SetItemText(3, 1, L"HH", static_cast<COLORREF>(-1), yellow);
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), yellow);
        EXPECT_GT(Count(dark_red, Cell(1, 1)), 10);
        Paint(2, 1);
        EXPECT_EQ(Ground(2, 1), colors.window);
        EXPECT_GT(Count(RGB(255, 0, 255), Cell(2, 1)), 10);
        // A text that nobody has chosen is read on it.
        Paint(3, 1);
        EXPECT_EQ(Ground(3, 1), yellow);
        EXPECT_GT(Count(control_colors::MarkOn(yellow, colors.windowText, colors.window), Cell(3, 1)), 10);
    });
}

TEST_F(ColorsList, BlackAndWhiteAreChosenWhereTheHostSaysSo)
{
    m_list.SetItemText(1, 1, L"HH", PALETTERGB(0, 0, 0), static_cast<COLORREF>(-1));
    m_list.SetItemText(2, 1, L"HH", static_cast<COLORREF>(-1), PALETTERGB(255, 255, 255));
    m_list.SetItemText(3, 1, L"HH", RGB(0, 0, 0), RGB(255, 255, 255));
    InEachSet([this](ControlColors const & colors) {
        Paint(1, 1);
        EXPECT_EQ(Ground(1, 1), colors.window);
        EXPECT_GT(Count(RGB(0, 0, 0), Cell(1, 1)), 10);
        EXPECT_EQ(Count(colors.windowText, Cell(1, 1)) == 0, colors.windowText != RGB(0, 0, 0));
        Paint(2, 1);
        EXPECT_EQ(Ground(2, 1), RGB(255, 255, 255));
        EXPECT_GT(Count(control_colors::TextOn(RGB(255, 255, 255), colors.windowText, colors.window), Cell(2, 1)), 10);
        Paint(3, 1);
        EXPECT_EQ(Ground(3, 1), colors.window) << "what the list itself gives";
        EXPECT_GT(Count(colors.windowText, Cell(3, 1)), 10);
    });
}

TEST_F(ColorsList, WashIsWhatTheHostHasChosenItFor)
{
    m_list.SetItemText(1, 1, L"HH");
    m_list.SetItemColors(1, 1, 0, RGB(255, 255, 255), RGB(200, 220, 255));
    Paint(1, 1);
    std::unique_ptr<tests::Canvas> const before = Copy(Cell(1, 1));
    InEachSet([&, this](ControlColors const &) {
        Paint(1, 1);
        EXPECT_TRUE(SamePixels(*Copy(Cell(1, 1)), *before));
    });
}

TEST_F(ColorsList, CellsKeepTheColoursOfTheStandardSet)
{
    COLORREF const window = ::GetSysColor(COLOR_WINDOW);
    COLORREF const windowText = ::GetSysColor(COLOR_WINDOWTEXT);
    Choose(ControlColorSet::dark);
    int const row = m_list.AddItem(L"later", nullptr, 0);
    m_list.SetItemText(row, 1, L"", static_cast<COLORREF>(-1), static_cast<COLORREF>(-1));
    for (int const col : {0, 1})
    {
        COLORREF text = 0;
        COLORREF background = 0;
        ASSERT_TRUE(m_list.GetItemColors(row, col, text, background));
        EXPECT_EQ(text, windowText);
        EXPECT_EQ(background, window);
    }
    m_list.SetProgress(row, 1, false, nullptr);
    EXPECT_EQ(Data(row, 1).backgroundColor, ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST_F(ColorsList, BackInTheStandardSetNothingIsLeft)
{
    m_list.SetItemText(0, 0, L"HH");
    m_list.SetCheckbox(1, 1, XLC_CHECKED);
    m_list.SetProgress(2, 1, true, nullptr);
    m_list.UpdateProgress(2, 1, 40, 0);
    m_list.SetComboBox(3, 2, {{1, L"a"}}, 1, 1);
    auto const paintAll = [this] {
        m_canvas.Fill(untouched);
        for (int row = 0; row < 4; ++row)
        {
            for (int col = 0; col < 3; ++col)
                PaintOver(row, col);
        }
        return Copy(CRect(0, 0, m_canvas.Width(), m_canvas.Height()));
    };
    auto const before = paintAll();
    for (ControlColorSet const set : colours_tests::adapting_sets)
        Choose(set);
    EXPECT_FALSE(SamePixels(*paintAll(), *before));
    Choose(ControlColorSet::standard);
    EXPECT_TRUE(SamePixels(*paintAll(), *before));
}

/// A list on the screen.
class ColorsListOnScreen : public testing::Test
{
protected:
    static constexpr int width = 360;
    static constexpr int height = 200;

    void Show()
    {
        tests::PumpPosted();
        m_host.list.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        m_screen = std::make_unique<tests::Canvas>(width, height);
        m_screen->CopyFromScreen(m_host.list.m_hWnd);
    }
    COLORREF At(int x, int y) const { return m_screen->Pixel(x, y); }

    tests::ListHost m_host;
    std::unique_ptr<tests::Canvas> m_screen;
};

TEST_F(ColorsListOnScreen, ChoiceIsShownAtOnce)
{
    m_host.Fill(2, 3);
    control_colors::UseFor(m_host.parent.m_hWnd, ControlColorSet::dark);
    Show();
    ControlColors const colors = control_colors::Dark();
    EXPECT_EQ(At(340, 150), colors.window) << "below the rows";
    EXPECT_EQ(At(340, 30), colors.window) << "beside the rows";
    EXPECT_EQ(At(340, 8), colors.headerFace);
    EXPECT_GT(m_screen->Count(colors.windowText), 20);
    EXPECT_GT(m_screen->Count(colors.headerText), 20);

    control_colors::UseFor(m_host.parent.m_hWnd, ControlColorSet::standard);
    Show();
    EXPECT_EQ(At(340, 150), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(m_screen->Count(colors.window), 0);
}

TEST_F(ColorsListOnScreen, EmptyListHasTheSetsGround)
{
    m_host.Fill(2, 0);
    m_host.list.SetEmptyListText(L"empty");
    control_colors::UseFor(m_host.list.m_hWnd, ControlColorSet::dark);
    Show();
    ControlColors const colors = control_colors::Dark();
    EXPECT_EQ(At(340, 150), colors.window);
    EXPECT_GT(m_screen->Count(colors.windowText), 20);
}

TEST_F(ColorsListOnScreen, RowsOfTheNativeListAloneAreReadable)
{
    m_host.Fill(2, 1);
    m_host.list.InsertForeignItem(1, L"HHHH");
    control_colors::UseFor(m_host.list.m_hWnd, ControlColorSet::dark);
    Show();
    CRect rect;
    m_host.list.GetItemRect(1, &rect, LVIR_BOUNDS);
    EXPECT_GT(m_screen->Count(control_colors::Dark().windowText, rect), 10);
}

TEST_F(ColorsListOnScreen, TextIsReadOnTheHostsBar)
{
    constexpr COLORREF white = RGB(255, 255, 255);
    constexpr COLORREF bar = RGB(34, 98, 180); // on which black is hardly read
    m_host.Fill(2, 2);
    m_host.list.SetProgress(0, 1, true, L"HHH");
    m_host.list.UpdateProgress(0, 1, 100, 0);
    m_host.list.SetItemColors(0, 1, 0, bar, XLISTCTRLDATA::no_gradient);
    control_colors::UseFor(m_host.parent.m_hWnd, ControlColorSet::high_contrast);
    int const elements[] = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT};
    COLORREF former[4] = {};
    for (int i = 0; i < 4; ++i)
        former[i] = ::GetSysColor(elements[i]);
    COLORREF const scheme[] = {RGB(0, 0, 0), white, RGB(26, 235, 255), RGB(0, 0, 0)};
    ASSERT_TRUE(::SetSysColors(4, elements, scheme));
    Show();
    CRect cell;
    m_host.list.GetSubItemRect(0, 1, LVIR_BOUNDS, cell);
    cell.DeflateRect(3, 3);
    EXPECT_GT(m_screen->Count(white, cell), 10);
    ::SetSysColors(4, elements, former);
    Show();
}

TEST_F(ColorsListOnScreen, CellCursorHasTheColourOfTexts)
{
    m_host.Fill(2, 3);
    m_host.list.EnableCellCursor();
    m_host.list.SetFocus();
    ASSERT_TRUE(m_host.list.SetCellCursor(1, 1));
    control_colors::UseFor(m_host.parent.m_hWnd, ControlColorSet::dark);
    Show();
    CRect cell;
    m_host.list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell);
    EXPECT_GE(m_screen->Count(control_colors::Dark().selectionText, cell), 2 * (cell.Width() + cell.Height()) - 4);
}

TEST_F(ColorsListOnScreen, HighContrastFollowsTheSystemsColours)
{
    m_host.Fill(2, 3);
    control_colors::UseFor(m_host.parent.m_hWnd, ControlColorSet::high_contrast);
    int const elements[] = {COLOR_WINDOW, COLOR_WINDOWTEXT};
    COLORREF const former[] = {::GetSysColor(COLOR_WINDOW), ::GetSysColor(COLOR_WINDOWTEXT)};
    COLORREF const black_scheme[] = {RGB(0, 0, 0), RGB(255, 255, 0)};
    ASSERT_TRUE(::SetSysColors(2, elements, black_scheme));
    Show();
    EXPECT_EQ(At(340, 150), RGB(0, 0, 0));
    // Cells that were given the former colours, too.
    EXPECT_EQ(At(150, 30), RGB(0, 0, 0));
    EXPECT_GT(m_screen->Count(RGB(255, 255, 0)), 20);
    ::SetSysColors(2, elements, former);
    Show();
    EXPECT_EQ(At(340, 150), former[0]);
    EXPECT_EQ(At(150, 30), former[0]);
}
} // namespace
