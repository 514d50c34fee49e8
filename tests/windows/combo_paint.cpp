// What combo and drop window paint, with visual styles and without, compared by pixel; texts only by whether there are
// any.

#include "Bitmap.h"
#include "combo_ComboTest.h"
#include "combo_FakeStyles.h"
#include "GdiHandleCount.h"

using namespace combo_test;

namespace
{
class ComboPaint : public ComboTest
{
protected:
    /// The combo as it is on the screen.
    std::unique_ptr<tests::Canvas> Shot() { return ShotOf(*m_combo); }
    static std::unique_ptr<tests::Canvas> ShotOf(CWnd & window)
    {
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        CRect client;
        window.GetClientRect(client);
        auto canvas = std::make_unique<tests::Canvas>(client.Width(), client.Height(), RGB(1, 2, 3));
        canvas->CopyFromScreen(window.m_hWnd);
        return canvas;
    }
    static COLORREF Color(int index) { return ::GetSysColor(index); }
    int ButtonWidth() { return ::GetSystemMetrics(SM_CXHSCROLL); }
};
} // namespace

TEST_F(ComboPaint, PlainFrameIsSunken)
{
    MakeCombo();
    std::unique_ptr<tests::Canvas> const shot = Shot();
    int const right = shot->Width() - 1;
    int const bottom = shot->Height() - 1;
    EXPECT_EQ(shot->Pixel(0, 0), Color(COLOR_BTNSHADOW));
    EXPECT_EQ(shot->Pixel(5, 0), Color(COLOR_BTNSHADOW));
    EXPECT_EQ(shot->Pixel(right, 5), Color(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(shot->Pixel(5, bottom), Color(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(shot->Pixel(1, 1), Color(COLOR_3DDKSHADOW));
    EXPECT_EQ(shot->Pixel(right - 1, 5), Color(COLOR_3DLIGHT));
    EXPECT_EQ(shot->Pixel(right - 6, bottom - 1), Color(COLOR_3DLIGHT)); // elsewhere the text covers it
    EXPECT_EQ(shot->Pixel(5, 5), Color(COLOR_WINDOW));
}

TEST_F(ComboPaint, PlainButtonIsTheSystems)
{
    MakeCombo();
    tests::Canvas expected(m_place.Width(), m_place.Height());
    for (UINT const state : {UINT(DFCS_SCROLLDOWN), UINT(0x4201), UINT(DFCS_SCROLLDOWN | DFCS_INACTIVE)})
    {
        m_combo->EnableWindow(state != (DFCS_SCROLLDOWN | DFCS_INACTIVE));
        m_combo->ShowDropDown(state == 0x4201);
        CRect button(m_place.Width() - ButtonWidth() - 2, 2, m_place.Width() - 2, m_place.Height() - 2);
        CRect drawn = button;
        expected.Dc().DrawFrameControl(drawn, DFC_SCROLL, state);
        std::unique_ptr<tests::Canvas> const shot = Shot();
        int different = 0;
        for (int y = button.top; y < button.bottom; ++y)
        {
            for (int x = button.left; x < button.right; ++x)
                different += shot->Pixel(x, y) != expected.Pixel(x, y);
        }
        EXPECT_EQ(different, 0) << state;
    }
}

TEST_F(ComboPaint, FocusHighlightsTheTextOfAClosedList)
{
    MakeCombo();
    m_combo->SetCurSel(1);
    CRect const field(2, 1, m_place.Width() - ButtonWidth() - 2, m_place.Height() - 1);
    auto shot = Shot();
    EXPECT_EQ(shot->Count(Color(COLOR_HIGHLIGHT)), 0);
    EXPECT_EQ(shot->Pixel(field.right - 1, 5), Color(COLOR_WINDOW));
    EXPECT_GT(shot->Count(Color(COLOR_BTNTEXT), CRect(3, 3, 60, 19)), 10);

    m_combo->SetFocus();
    shot = Shot();
    // From the frame to the button; top and bottom one pixel off the edge.
    CRect const highlight = shot->BoundsOf(Color(COLOR_HIGHLIGHT));
    EXPECT_EQ(highlight, field);
    EXPECT_GT(shot->Count(Color(COLOR_HIGHLIGHTTEXT), CRect(3, 3, 60, 19)), 10);

    ASSERT_TRUE(Open());
    EXPECT_EQ(Shot()->Count(Color(COLOR_HIGHLIGHT)), 0);
}

TEST_F(ComboPaint, OpeningAndClosingByCallRepaintsTheText)
{
    MakeCombo();
    m_combo->SetCurSel(1);
    for (bool const open : {true, false})
    {
        m_combo->UpdateWindow();
        ASSERT_FALSE(m_combo->GetUpdateRect(nullptr));
        m_combo->ShowDropDown(open);
        CRect rect;
        EXPECT_TRUE(m_combo->GetUpdateRect(rect));
        EXPECT_EQ(rect.left, 0) << open;
    }
}

TEST_F(ComboPaint, DisabledComboIsGrey)
{
    MakeCombo();
    m_combo->SetCurSel(1);
    m_combo->EnableWindow(FALSE);
    std::unique_ptr<tests::Canvas> const shot = Shot();
    EXPECT_EQ(shot->Pixel(3, 4), Color(COLOR_BTNFACE));
    EXPECT_EQ(shot->Pixel(m_place.Width() - ButtonWidth() - 6, 8), Color(COLOR_BTNFACE));
    EXPECT_GT(shot->Count(Color(COLOR_GRAYTEXT), CRect(3, 3, 60, 19)), 10);
}

TEST_F(ComboPaint, StyledFrameHasTheThemesColourAndElseBlack)
{
    Styled const styled;
    MakeCombo();
    g_colorsFail = true;
    auto const shot = Shot();
    for (CPoint const point : {CPoint(0, 0), CPoint(50, 0), CPoint(0, 10), CPoint(m_place.Width() - 1, 10),
                               CPoint(50, m_place.Height() - 1)})
    {
        EXPECT_EQ(shot->Pixel(point.x, point.y), RGB(0, 0, 0));
    }
    EXPECT_EQ(shot->Pixel(3, 4), Color(COLOR_WINDOW));
    EXPECT_EQ(g_use.opened, g_use.closed);
    EXPECT_GT(g_use.opened, 0);
}

TEST_F(ComboPaint, StyledButtonHasTheCombosState)
{
    Styled const styled;
    MakeCombo();
    auto const stateNow = [this] {
        g_use = {};
        Shot();
        EXPECT_EQ(g_use.drawn.size(), 1u);
        EXPECT_EQ(g_use.drawn.at(0).first, 1);
        return g_use.drawn.at(0).second;
    };
    EXPECT_EQ(stateNow(), 1);
    m_combo->m_hot = true;
    EXPECT_EQ(stateNow(), 2);
    m_combo->EnableWindow(FALSE);
    EXPECT_EQ(stateNow(), 4);
    m_combo->EnableWindow(TRUE);
    m_combo->m_hot = false;
    ASSERT_TRUE(Open());
    g_use = {};
    Shot();
    ASSERT_FALSE(g_use.drawn.empty());
    EXPECT_EQ(g_use.drawn.front(), std::make_pair(1, 3));
}

TEST_F(ComboPaint, DisabledStyledComboHasAnOutline)
{
    Styled const styled;
    MakeCombo(CBS_DROPDOWN);
    g_colorsFail = true;
    m_combo->EnableWindow(FALSE);
    auto const shot = Shot();
    int const buttonLeft = m_place.Width() - ButtonWidth() - 1;
    EXPECT_EQ(shot->Pixel(1, 1), RGB(255, 255, 255));
    EXPECT_EQ(shot->Pixel(60, 1), RGB(255, 255, 255));
    EXPECT_EQ(shot->Pixel(60, m_place.Height() - 2), RGB(255, 255, 255));
    EXPECT_EQ(shot->Pixel(buttonLeft - 1, 8), RGB(255, 255, 255));
    EXPECT_EQ(shot->Pixel(2, 2), Color(COLOR_BTNFACE));
}

TEST_F(ComboPaint, DropWindowHasAFrameAndNothingUnpainted)
{
    for (bool const on : {false, true})
    {
        Styled const styled(on);
        MakeCombo(CBS_DROPDOWNLIST, Numbered(30));
        m_combo->SetMaxVisible(6);
        ASSERT_TRUE(Open());
        CWnd & drop = *m_combo->GetDropWnd();
        std::unique_ptr<tests::Canvas> const shot = ShotOf(drop);
        int const right = shot->Width() - 1;
        int const bottom = shot->Height() - 1;
        COLORREF const frame = Color(COLOR_3DDKSHADOW);
        for (CPoint const point : {CPoint(0, 0), CPoint(right, 0), CPoint(0, bottom), CPoint(right, bottom),
                                   CPoint(40, 0), CPoint(right, 40), CPoint(40, bottom), CPoint(0, 40)})
        {
            EXPECT_EQ(shot->Pixel(point.x, point.y), frame) << point.x << ", " << point.y;
        }
        // Between list and scroll bar, and between scroll bar and grip.
        int const arrow = ::GetSystemMetrics(SM_CXVSCROLL);
        EXPECT_EQ(shot->Pixel(right - arrow, 30), Color(COLOR_BTNFACE));
        EXPECT_EQ(shot->Pixel(right - 5, bottom - ::GetSystemMetrics(SM_CYVSCROLL)), Color(COLOR_BTNFACE));
        if (on)
        {
            EXPECT_NE(std::find(g_use.drawn.begin(), g_use.drawn.end(), std::make_pair(6, 1)), g_use.drawn.end());
            EXPECT_NE(std::find(g_use.drawn.begin(), g_use.drawn.end(), std::make_pair(10, 1)), g_use.drawn.end());
            EXPECT_EQ(g_use.opened, g_use.closed);
        }
        m_combo->ShowDropDown(false);
    }
}

TEST_F(ComboPaint, PlainGripIsTheSystems)
{
    MakeCombo();
    ASSERT_TRUE(Open());
    std::unique_ptr<tests::Canvas> const shot = ShotOf(*m_combo->GetDropWnd());
    tests::Canvas expected(shot->Width(), shot->Height());
    CRect grip(shot->Width() - ::GetSystemMetrics(SM_CXVSCROLL), shot->Height() - ::GetSystemMetrics(SM_CYVSCROLL),
               shot->Width(), shot->Height());
    grip.DeflateRect(1, 1);
    CRect drawn = grip;
    expected.Dc().DrawFrameControl(drawn, DFC_SCROLL, DFCS_SCROLLSIZEGRIP);
    for (int y = grip.top; y < grip.bottom; ++y)
    {
        for (int x = grip.left; x < grip.right; ++x)
            ASSERT_EQ(shot->Pixel(x, y), expected.Pixel(x, y)) << x << ", " << y;
    }
}

TEST_F(ComboPaint, PaintingLeavesNoObjectBehind)
{
    for (bool const on : {false, true})
    {
        Styled const styled(on);
        MakeCombo();
        m_combo->EnableWindow(FALSE);
        ASSERT_TRUE(Open());
        EXPECT_EQ(tests::GdiGrowth(
                      [this] {
                          Shot();
                          ShotOf(*m_combo->GetDropWnd());
                      },
                      20),
                  0);
        m_combo->ShowDropDown(false);
    }
}
