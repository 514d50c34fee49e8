// Header, table, edit frame, slider and colour button in the sets of colours.

#include <memory>

#include "Bitmap.h"
#include "colours_ColorsTest.h"
#include "controls/ColorButton.h"
#include "controls/LevelSliderCtrl.h"
#include "GdiHandleCount.h"
#include "list_HeaderTest.h"
#include "ListTestHost.h"
#include "Pump.h"
#include "table_TableTest.h"

namespace
{
using tests::Canvas;

constexpr COLORREF yellow = RGB(255, 255, 160);

std::unique_ptr<Canvas> ShotOf(CWnd & window)
{
    tests::PumpPosted();
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CRect client;
    window.GetClientRect(&client);
    auto shot = std::make_unique<Canvas>(client.Width(), client.Height());
    shot->CopyFromScreen(window.m_hWnd);
    return shot;
}

class ColorsHeader : public list_header::HeaderTest
{
protected:
    ColorsHeader() : HeaderTest(m_header) {}

    list_header::TestHeader m_header;
};

TEST_F(ColorsHeader, TitlesAndMarksAreTheSets)
{
    AddTitle(80, L"HHHH");
    Add(30, XHC_CHECKED);
    Add(30, XHC_MIXED);
    Add(30, XHC_SORT_ASCENDING);
    for (ControlColorSet const set : colours_tests::adapting_sets)
    {
        SCOPED_TRACE(testing::PrintToString(set));
        control_colors::UseFor(m_host.m_hWnd, set);
        ControlColors const colors = control_colors::Of(set);
        Canvas canvas(list_header::header_width, list_header::header_height, yellow);
        Paint(canvas);
        EXPECT_EQ(canvas.Pixel(190, 12), colors.headerFace);
        EXPECT_EQ(canvas.Count(yellow), 0);
        EXPECT_GT(canvas.Count(colors.headerText, Item(0)), 20);
        EXPECT_GE(canvas.Count(colors.checkFrame, Box(1)), 4 * (list_header::box_size - 1));
        EXPECT_GT(canvas.Count(colors.checkMark, Box(1)), 10);
        CPoint const inside = Box(2).CenterPoint();
        EXPECT_EQ(canvas.Pixel(inside.x, inside.y), colors.headerMixed);
        EXPECT_GT(canvas.Count(colors.headerArrow, Item(3)), 15);
    }
}

TEST_F(ColorsHeader, TitlesColourOfTheHostStays)
{
    AddTitle(80, L"HHHH");
    m_header.SetTextColor(RGB(250, 80, 80));
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
    Canvas canvas(list_header::header_width, list_header::header_height);
    Paint(canvas);
    EXPECT_GT(canvas.Count(RGB(250, 80, 80)), 20);
    EXPECT_EQ(canvas.Count(control_colors::Dark().headerText), 0);
}

class ColorsTable : public tests::TableTest
{
protected:
    void SetUp() override
    {
        TableTest::SetUp();
        Show({50, 60, 70});
        tests::PumpPosted();
    }
    CRect CellRect(TableRow row, int place) const
    {
        CRect rect(0, 0, 0, 0);
        m_table->GetItemRect(static_cast<int>(row), &rect, LVIR_BOUNDS);
        CRect const title = TitleRect(place);
        return CRect(title.left, rect.top, title.right, rect.bottom);
    }
};

TEST_F(ColorsTable, CellsAndTitlesAreTheSets)
{
    std::unique_ptr<Canvas> const before = ShotOf(*m_table);
    for (ControlColorSet const set : colours_tests::adapting_sets)
    {
        SCOPED_TRACE(testing::PrintToString(set));
        control_colors::UseFor(m_host.m_hWnd, set);
        ControlColors const colors = control_colors::Of(set);
        std::unique_ptr<Canvas> const shot = ShotOf(*m_table);
        CRect const name = CellRect(1, 0);
        EXPECT_EQ(shot->Pixel(name.right - 3, name.bottom - 2), colors.window);
        EXPECT_GT(shot->Count(colors.windowText, name), 5);
        EXPECT_GT(shot->Count(colors.checkFrame, CellRect(1, 2)), 20);
        EXPECT_GT(shot->Count(colors.tableBar, CellRect(1, 3)), 100);
        EXPECT_GT(shot->Count(colors.trough, CellRect(1, 3)), 100);
        EXPECT_EQ(shot->Pixel(200, 180), colors.window) << "below the rows";
        CRect const title = TitleRect(0);
        EXPECT_EQ(shot->Pixel(title.right - 4, title.top + 3), colors.headerFace);
        EXPECT_GT(shot->Count(colors.headerText, title), 5);
    }
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::standard);
    EXPECT_TRUE(SamePixels(*ShotOf(*m_table), *before));
}

TEST_F(ColorsTable, SelectionsAreTheSets)
{
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
    ControlColors const colors = control_colors::Dark();
    m_table->SetFocus();
    Press(1, 1);
    CRect const name = CellRect(1, 0);
    EXPECT_EQ(ShotOf(*m_table)->Pixel(name.right - 3, name.bottom - 4), colors.selection);
    m_host.SetFocus();
    EXPECT_EQ(ShotOf(*m_table)->Pixel(name.right - 3, name.bottom - 4), colors.inactiveSelection);
}

TEST_F(ColorsTable, TextIsReadOnTheHostsGround)
{
    m_table->m_columnColours = true;
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
    ControlColors const colors = control_colors::Dark();
    COLORREF const ground = tests::TestTable::Colour(0);
    std::unique_ptr<Canvas> const shot = ShotOf(*m_table);
    CRect const name = CellRect(1, 0);
    EXPECT_EQ(shot->Pixel(name.right - 3, name.bottom - 2), ground);
    EXPECT_GT(shot->Count(control_colors::MarkOn(ground, colors.windowText, colors.window), name), 5);
}

TEST(ColorsEdit, EditOverACellIsTheSets)
{
    tests::ListHost host;
    host.Fill(2, 2);
    host.list.SetEdit(1, 1, true);
    control_colors::UseFor(host.parent.m_hWnd, ControlColorSet::dark);
    host.list.DrawEditControl(1, 1);
    HWND const edit = tests::OpenEditOf(host.list);
    ASSERT_NE(edit, nullptr);
    ::SetWindowTextW(edit, L"HHH");
    ::SendMessageW(edit, EM_SETSEL, 3, 3);
    tests::PumpPosted();
    ControlColors const colors = control_colors::Dark();
    std::unique_ptr<Canvas> const shot = ShotOf(host.list);
    CRect rect;
    ::GetWindowRect(edit, &rect);
    host.list.ScreenToClient(&rect);
    EXPECT_GT(shot->Count(colors.window, rect), rect.Width() * rect.Height() / 2);
    EXPECT_GT(shot->Count(colors.windowText, rect), 10);
    rect.InflateRect(1, 1);
    EXPECT_GT(shot->Count(colors.editFrame, rect), rect.Width());
}

class ColorsSlider : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_slider.Create(WS_CHILD | WS_VISIBLE | TBS_HORZ, CRect(20, 20, 220, 50), m_host, 44));
        m_slider.SetRange(0, 100);
        m_slider.SetPos(50);
        tests::PumpPosted();
    }
    void TearDown() override { m_slider.DestroyWindow(); }

    class Slider : public CLevelSliderCtrl
    {
    public:
        using CLevelSliderCtrl::m_mainColor;
        using CLevelSliderCtrl::m_secondColor;
    };

    tests::ScopedWindow m_host;
    Slider m_slider;
};

TEST_F(ColorsSlider, WhatNobodyHasChosenIsTheSets)
{
    COLORREF const face = ::GetSysColor(COLOR_BTNFACE);
    std::unique_ptr<Canvas> const before = ShotOf(m_slider);
    for (ControlColorSet const set : colours_tests::adapting_sets)
    {
        SCOPED_TRACE(testing::PrintToString(set));
        control_colors::UseFor(m_host.m_hWnd, set);
        ControlColors const colors = control_colors::Of(set);
        std::unique_ptr<Canvas> const shot = ShotOf(m_slider);
        EXPECT_EQ(m_slider.m_mainColor, colors.sliderMain);
        EXPECT_EQ(m_slider.m_secondColor, colors.sliderSecond);
        EXPECT_FALSE(SamePixels(*shot, *before));
    }
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::standard);
    EXPECT_TRUE(SamePixels(*ShotOf(m_slider), *before));
    EXPECT_EQ(m_slider.m_mainColor, 0xC8B4B4u);
    EXPECT_EQ(m_slider.m_secondColor, face);
}

TEST_F(ColorsSlider, WhatTheHostHasChosenStays)
{
    m_slider.SetMainColor(yellow);
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
    ShotOf(m_slider);
    EXPECT_EQ(m_slider.m_mainColor, yellow);
    EXPECT_EQ(m_slider.m_secondColor, control_colors::Dark().sliderSecond);
    m_slider.SetSecondColor(RGB(1, 2, 3));
    ShotOf(m_slider);
    EXPECT_EQ(m_slider.m_secondColor, RGB(1, 2, 3));
}

TEST_F(ColorsSlider, ChangesLeaveNoHandles)
{
    auto const change = [this] {
        for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::standard})
        {
            control_colors::UseFor(m_host.m_hWnd, set);
            m_slider.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
    };
    change();
    int const before = tests::GdiHandleCount();
    for (int i = 0; i < 20; ++i)
        change();
    EXPECT_EQ(tests::GdiHandleCount(), before);
}

class ColorsButton : public testing::Test
{
protected:
    static constexpr int width = 100;
    static constexpr int height = 40;

    void SetUp() override
    {
        ASSERT_TRUE(m_button.Create(L"HHHH", WS_CHILD | WS_VISIBLE, CRect(20, 20, 20 + width, 20 + height), m_host, 5));
        tests::PumpPosted();
    }
    void TearDown() override { m_button.DestroyWindow(); }

    tests::ScopedWindow m_host;
    CColorButton m_button;
};

TEST_F(ColorsButton, ButtonIsReadable)
{
    std::unique_ptr<Canvas> const before = ShotOf(m_button);
    for (bool const framed : {true, false})
    {
        m_button.DrawFrame(framed);
        control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
        ControlColors const colors = control_colors::Dark();
        std::unique_ptr<Canvas> const shot = ShotOf(m_button);
        EXPECT_EQ(shot->Pixel(8, 8), colors.face);
        EXPECT_GT(shot->Count(colors.buttonText), 10);
        m_button.EnableWindow(FALSE);
        std::unique_ptr<Canvas> const disabled = ShotOf(m_button);
        EXPECT_EQ(disabled->Pixel(8, 8), colors.face);
        EXPECT_GT(disabled->Count(colors.buttonDisabled), 10);
        m_button.EnableWindow(TRUE);
    }
    m_button.DrawFrame(true);
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::standard);
    EXPECT_TRUE(SamePixels(*ShotOf(m_button), *before));
}

TEST_F(ColorsButton, FrameWhilePointedAtIsTheSetsUnlessTheHostHasChosenIt)
{
    m_button.DrawFrame(false);
    m_button.DrawFocusFrame(true);
    m_button.SetRolloverDelay(USER_TIMER_MAXIMUM); // it stays hot, wherever the mouse is
    m_button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(ShotOf(m_button)->Pixel(0, 0), RGB(0, 255, 0));
    for (ControlColorSet const set : {ControlColorSet::dark, ControlColorSet::high_contrast})
    {
        control_colors::UseFor(m_host.m_hWnd, set);
        ControlColors const colors = control_colors::Of(m_button.m_hWnd);
        std::unique_ptr<Canvas> const shot = ShotOf(m_button);
        EXPECT_EQ(shot->Pixel(0, 0), colors.buttonHotFrame);
        EXPECT_EQ(shot->Pixel(width - 1, height - 1), colors.buttonHotFrame);
        EXPECT_EQ(shot->Pixel(1, 1), colors.face) << "the ground stays";
    }
    m_button.SetHotFgColor(RGB(200, 0, 200));
    EXPECT_EQ(ShotOf(m_button)->Pixel(0, 0), RGB(200, 0, 200));
}

TEST_F(ColorsButton, ColoursOfTheHostStay)
{
    m_button.SetBgColor(yellow);
    control_colors::UseFor(m_host.m_hWnd, ControlColorSet::dark);
    std::unique_ptr<Canvas> shot = ShotOf(m_button);
    EXPECT_EQ(shot->Pixel(8, 8), yellow);
    // A text that nobody has chosen is read on it.
    EXPECT_GT(shot->Count(control_colors::Dark().window), 10);
    m_button.SetFgColor(RGB(200, 0, 200));
    shot = ShotOf(m_button);
    EXPECT_GT(shot->Count(RGB(200, 0, 200)), 10);
}
} // namespace
