// Bars at a frame's sides: their places, showing and hiding, where they are kept.

#include "bars_BarTest.h"

namespace
{
class BarLayout : public bars::BarTest
{
};

TEST_F(BarLayout, BarsTakeTheirSidesInTheOrderOfTheirCreation)
{
    m_frame->AddTools();
    m_frame->AddSide(CBRS_LEFT);
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    CRect const inside = m_frame->Inside();
    CRect const tools = m_frame->Place(m_frame->m_tools);
    CRect const side = m_frame->Place(m_frame->m_side);
    CRect const status = m_frame->Place(m_frame->m_status);
    EXPECT_EQ(tools.TopLeft(), inside.TopLeft());
    EXPECT_EQ(tools.right, inside.right);
    // A button's height and the borders; the line below, as the bar's borders are none.
    EXPECT_EQ(tools.Height(), 22 + 2 * ::GetSystemMetrics(SM_CYBORDER));
    EXPECT_EQ(side.top, tools.bottom);
    EXPECT_EQ(side.left, inside.left);
    EXPECT_EQ(side.bottom, inside.bottom); // it was there before the status bar
    EXPECT_EQ(status.left, side.right);
    EXPECT_EQ(status.BottomRight(), inside.BottomRight());
    ExpectCovered();
}

TEST_F(BarLayout, FourSidesAreCoveredAfterEachChangeOfSize)
{
    m_frame->AddTools();
    m_frame->AddDialogBar(CBRS_BOTTOM);
    m_frame->AddSide(CBRS_RIGHT);
    CToolBar left;
    ASSERT_TRUE(left.CreateEx(m_frame, 0, WS_CHILD | WS_VISIBLE | CBRS_LEFT, CRect(2, 3, 4, 5), bars::id_side_bar + 7));
    ASSERT_TRUE(left.LoadToolBar(IDR_BARS));
    m_frame->AddClient();
    Show();
    ExpectCovered();
    for (CSize const size : {CSize(900, 700), CSize(320, 300), CSize(700, 500)})
    {
        m_frame->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        Idle();
        SCOPED_TRACE(testing::Message() << size.cx << " by " << size.cy);
        ExpectCovered();
        EXPECT_EQ(m_frame->Place(m_frame->m_side).right, m_frame->Inside().right);
        EXPECT_EQ(m_frame->Place(m_frame->m_dialog).bottom, m_frame->Inside().bottom);
        EXPECT_EQ(m_frame->Place(left).left, 0);
    }
    left.DestroyWindow();
}

TEST_F(BarLayout, HiddenBarsLeaveTheirPlaceAndTakeItAgain)
{
    m_frame->AddTools();
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    CRect const before = m_frame->Place(m_frame->m_client);
    m_frame->ShowControlBar(&m_frame->m_tools, FALSE, FALSE);
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
    EXPECT_EQ(m_frame->Place(m_frame->m_client).top, 0);
    ExpectCovered();
    m_frame->ShowControlBar(&m_frame->m_tools, TRUE, FALSE);
    EXPECT_EQ(m_frame->Place(m_frame->m_client), before);
    ExpectCovered();
}

TEST_F(BarLayout, DelayedShowingIsDoneInIdleTime)
{
    m_frame->AddTools();
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    m_frame->ShowControlBar(&m_frame->m_tools, FALSE, TRUE);
    m_frame->ShowControlBar(&m_frame->m_status, FALSE, TRUE);
    EXPECT_TRUE(m_frame->m_tools.IsWindowVisible());
    EXPECT_TRUE(m_frame->m_status.IsWindowVisible());
    Idle();
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
    EXPECT_FALSE(m_frame->m_status.IsWindowVisible());
    EXPECT_EQ(m_frame->Place(m_frame->m_client), m_frame->Inside());
    m_frame->ShowControlBar(&m_frame->m_tools, TRUE, TRUE);
    m_frame->ShowControlBar(&m_frame->m_tools, FALSE, TRUE); // the last word counts
    Idle();
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
}

TEST_F(BarLayout, MenuCommandsShowHideAndCheck)
{
    m_frame->AddTools();
    m_frame->AddStatusBar();
    Show();
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (UINT const id : {ID_VIEW_TOOLBAR, ID_VIEW_STATUS_BAR, ID_VIEW_REBAR})
        menu.AppendMenu(MF_STRING, id, L"bar");
    auto const update = [&] { m_frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu)); };
    update();
    EXPECT_NE(menu.GetMenuState(ID_VIEW_TOOLBAR, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_NE(menu.GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED, 0u);
    EXPECT_EQ(menu.GetMenuState(ID_VIEW_REBAR, MF_BYCOMMAND) & MF_CHECKED, 0u); // there is none
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(m_frame->m_status.IsWindowVisible());
    update();
    EXPECT_EQ(menu.GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED, 0u);
    m_frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(m_frame->m_status.IsWindowVisible());
    EXPECT_FALSE(m_frame->OnBarCheck(ID_VIEW_REBAR));
}

TEST_F(BarLayout, BarsAreFoundByTheirIdentifierAlsoInABarOfBands)
{
    m_frame->AddAll();
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_TOOLBAR), &m_frame->m_tools);
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_STATUS_BAR), &m_frame->m_status);
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_REBAR), &m_frame->m_rebar);
    EXPECT_EQ(m_frame->GetControlBar(bars::id_tools_in_rebar), &m_frame->m_inRebar);
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_PANE_FIRST), nullptr);
    EXPECT_EQ(m_frame->GetControlBar(0), nullptr);
    EXPECT_EQ(m_frame->m_inRebar.GetDockingFrame(), m_frame);
}

TEST_F(BarLayout, DockingMovesABarToASideThatBothAllow)
{
    m_frame->AddTools();
    m_frame->AddSide(CBRS_TOP);
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    m_frame->m_side.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    m_frame->EnableDocking(CBRS_ALIGN_ANY);
    m_frame->DockControlBar(&m_frame->m_side, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(m_frame->Place(m_frame->m_side).right, m_frame->Inside().right);
    EXPECT_GT(m_frame->Place(m_frame->m_side).Height(), m_frame->Place(m_frame->m_side).Width());
    ExpectCovered();
    CRect const before = m_frame->Place(m_frame->m_side);
    m_frame->DockControlBar(&m_frame->m_side, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(m_frame->Place(m_frame->m_side), before);
    EXPECT_FALSE(m_frame->m_side.IsFloating());
}

TEST_F(BarLayout, StateOfTheBarsIsKeptInTheProfile)
{
    m_frame->AddTools();
    m_frame->AddSide(CBRS_LEFT);
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    m_frame->EnableDocking(CBRS_ALIGN_ANY);
    m_frame->m_side.EnableDocking(CBRS_ALIGN_ANY);
    m_frame->ShowControlBar(&m_frame->m_status, FALSE, FALSE);
    m_frame->DockControlBar(&m_frame->m_side, AFX_IDW_DOCKBAR_RIGHT);
    m_frame->SaveBarState(L"BarTest");
    m_frame->ShowControlBar(&m_frame->m_status, TRUE, FALSE);
    m_frame->ShowControlBar(&m_frame->m_tools, FALSE, FALSE);
    m_frame->DockControlBar(&m_frame->m_side, AFX_IDW_DOCKBAR_LEFT);
    m_frame->LoadBarState(L"BarTest");
    EXPECT_FALSE(m_frame->m_status.IsWindowVisible());
    EXPECT_TRUE(m_frame->m_tools.IsWindowVisible());
    EXPECT_EQ(m_frame->Place(m_frame->m_side).right, m_frame->Inside().right);
    ExpectCovered();
    m_frame->LoadBarState(L"NoSuchState"); // changes nothing
    EXPECT_TRUE(m_frame->m_tools.IsWindowVisible());
    for (wchar_t const * const section : {L"BarTest-Summary", L"BarTest-Bar0", L"BarTest-Bar1", L"BarTest-Bar2"})
        AfxGetApp()->WriteProfileString(section, nullptr, nullptr);
}

/// A bar whose contents are painted by itself.
class PlainBar : public CControlBar
{
public:
    explicit PlainBar(bool & gone) : m_gone(gone) {}
    ~PlainBar() override { m_gone = true; }

    int m_paints = 0;
    CRect m_painted;

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override
    {
        CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
        size.cy = 30;
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd *, BOOL) override {}
    void DoPaint(CDC * pDC) override
    {
        ++m_paints;
        CControlBar::DoPaint(pDC);
        pDC->GetClipBox(&m_painted);
    }

private:
    bool & m_gone;
};

TEST_F(BarLayout, BarThatDeletesItselfGoesWithItsWindow)
{
    bool gone = false;
    auto * const bar = new PlainBar(gone);
    bar->m_bAutoDelete = TRUE;
    bar->SetBarStyle(CBRS_TOP);
    ASSERT_TRUE(bar->Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), m_frame, 0xE830));
    m_frame->AddClient();
    Show();
    EXPECT_EQ(m_frame->Place(*bar).Height(), 30);
    ExpectCovered();
    EXPECT_FALSE(gone);
    bar->DestroyWindow();
    EXPECT_TRUE(gone);
}

TEST_F(BarLayout, BordersTakeSpaceAndTurnWithTheBar)
{
    bool gone = false;
    PlainBar bar(gone);
    bar.SetBarStyle(CBRS_TOP);
    bar.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(bar.GetBorders(), CRect(1, 2, 3, 4));
    int const line = 2 * ::GetSystemMetrics(SM_CYBORDER);
    CRect rect(0, 0, 100, 100);
    bar.CalcInsideRect(rect, TRUE);
    EXPECT_EQ(rect, CRect(1, 2, 97, 96 - line));
    rect.SetRect(0, 0, 100, 100);
    bar.SetBarStyle(CBRS_LEFT);
    bar.CalcInsideRect(rect, FALSE);
    EXPECT_EQ(rect, CRect(2, 1, 96 - 2 * ::GetSystemMetrics(SM_CXBORDER), 97));
    EXPECT_EQ(bar.GetBarStyle(), static_cast<DWORD>(CBRS_LEFT));
}

TEST_F(BarLayout, FramesBorderSpaceIsWhatTheBarsLeave)
{
    m_frame->AddTools();
    m_frame->AddStatusBar();
    m_frame->AddClient();
    Show();
    CRect left;
    m_frame->NegotiateBorderSpace(CFrameWnd::borderGet, &left);
    EXPECT_EQ(left, m_frame->Place(m_frame->m_client));
}
} // namespace
