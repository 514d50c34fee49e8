// Dialog bars, bars of bands, and frames with all of them many times over.

#include "bars_BarTest.h"
#include "GdiHandleCount.h"
#include "ThreadWindows.h"

namespace
{
class OtherBars : public bars::BarTest
{
};

TEST_F(OtherBars, DialogBarIsAsLargeAsItsTemplate)
{
    m_frame->AddDialogBar(CBRS_TOP);
    m_frame->AddClient();
    CRect wanted(0, 0, 200, 20);
    ::MapDialogRect(m_frame->m_dialog.m_hWnd, &wanted);
    EXPECT_EQ(m_frame->m_dialog.CalcFixedLayout(FALSE, TRUE), wanted.Size());
    Show();
    EXPECT_EQ(m_frame->Place(m_frame->m_dialog).Height(), wanted.Height());
    EXPECT_EQ(m_frame->Place(m_frame->m_dialog).Width(), m_frame->Inside().Width());
    EXPECT_EQ(m_frame->m_dialog.GetDlgCtrlID(), AFX_IDW_DIALOGBAR);
    ExpectCovered();
}

TEST_F(OtherBars, DialogBarsButtonIsTheFramesCommand)
{
    m_frame->AddDialogBar();
    Show();
    tests::Click(tests::Centre(m_frame->m_dialog.GetDlgItem(ID_BAR_GO)->m_hWnd));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_frame->m_commands.empty(); }));
    EXPECT_EQ(m_frame->m_commands, std::vector<UINT>{ID_BAR_GO});
}

TEST_F(OtherBars, DialogBarsButtonsAreUpdatedInIdleTime)
{
    m_frame->AddDialogBar();
    m_frame->m_updates[ID_BAR_GO] = [](CCmdUI * state) { state->Enable(FALSE); };
    Show();
    EXPECT_FALSE(m_frame->m_dialog.GetDlgItem(ID_BAR_GO)->IsWindowEnabled());
    EXPECT_FALSE(m_frame->m_dialog.GetDlgItem(ID_BAR_LOST)->IsWindowEnabled()); // nobody handles it
    EXPECT_TRUE(m_frame->m_dialog.GetDlgItem(IDC_BAR_TEXT)->IsWindowEnabled());
}

TEST_F(OtherBars, TabKeyGoesThroughADialogBar)
{
    m_frame->AddDialogBar();
    m_frame->m_updates[ID_BAR_LOST] = [](CCmdUI * state) { state->Enable(TRUE); };
    Show();
    m_frame->m_dialog.GetDlgItem(IDC_BAR_TEXT)->SetFocus();
    tests::Key(VK_TAB);
    EXPECT_TRUE(tests::PumpUntil([&] { return ::GetFocus() == m_frame->m_dialog.GetDlgItem(ID_BAR_GO)->m_hWnd; }));
}

TEST_F(OtherBars, MissingTemplateIsRefused)
{
    CDialogBar bar;
    EXPECT_FALSE(bar.Create(m_frame, 9999u, CBRS_TOP, AFX_IDW_DIALOGBAR));
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

TEST_F(OtherBars, BandsStandInARowAndTakeTheirHeight)
{
    m_frame->AddRebar();
    m_frame->AddClient();
    Show();
    CReBarCtrl & control = m_frame->m_rebar.GetReBarCtrl();
    EXPECT_EQ(control.GetBandCount(), 2u);
    EXPECT_EQ(m_frame->m_inRebar.GetParent(), &m_frame->m_rebar);
    EXPECT_GE(m_frame->Place(m_frame->m_rebar).Height(), 22);
    EXPECT_EQ(m_frame->Place(m_frame->m_rebar).Width(), m_frame->Inside().Width());
    ExpectCovered();
    tests::Click(ButtonCentre(m_frame->m_inRebar, ID_TOOL_B));
    ASSERT_TRUE(tests::PumpUntil([&] { return !m_frame->m_commands.empty(); }));
    EXPECT_EQ(m_frame->m_commands, std::vector<UINT>{ID_TOOL_B});
}

TEST_F(OtherBars, BandGoesAndComesWithItsBar)
{
    m_frame->AddRebar();
    m_frame->AddClient();
    Show();
    auto const hidden = [&] {
        REBARBANDINFO band{};
        band.cbSize = REBARBANDINFO_V6_SIZE;
        band.fMask = RBBIM_STYLE;
        m_frame->m_rebar.GetReBarCtrl().GetBandInfo(0, &band);
        return (band.fStyle & RBBS_HIDDEN) != 0;
    };
    EXPECT_FALSE(hidden());
    m_frame->ShowControlBar(&m_frame->m_inRebar, FALSE, FALSE);
    EXPECT_TRUE(hidden());
    EXPECT_FALSE(m_frame->m_inRebar.IsWindowVisible());
    m_frame->ShowControlBar(&m_frame->m_inRebar, TRUE, TRUE);
    Idle();
    EXPECT_FALSE(hidden());
    EXPECT_TRUE(m_frame->m_inRebar.IsWindowVisible());
    ExpectCovered();
}

TEST_F(OtherBars, BandOnALineOfItsOwnMakesTheFrameLayOutAnew)
{
    m_frame->AddRebar();
    m_frame->AddClient();
    Show();
    int const before = m_frame->Place(m_frame->m_rebar).Height();
    REBARBANDINFO band{};
    band.cbSize = REBARBANDINFO_V6_SIZE;
    band.fMask = RBBIM_STYLE;
    CReBarCtrl & control = m_frame->m_rebar.GetReBarCtrl();
    ASSERT_TRUE(control.GetBandInfo(1, &band));
    band.fStyle |= RBBS_BREAK;
    ASSERT_TRUE(control.SetBandInfo(1, &band));
    Idle();
    EXPECT_EQ(control.GetRowCount(), 2u);
    EXPECT_GT(m_frame->Place(m_frame->m_rebar).Height(), before + 10);
    ExpectCovered();
}

TEST(BarCycles, FramesWithAllBarsLeaveNothing)
{
    constexpr int before = 20;
    constexpr int cycles = 200;
    int gdiObjects = 0;
    int windows = 0;
    for (int cycle = 0; cycle < before + cycles; ++cycle)
    {
        if (cycle == before)
        {
            gdiObjects = tests::GdiHandleCount();
            windows = tests::ThreadWindows();
        }
        auto * const frame = new bars::BarFrame;
        ASSERT_TRUE(frame->CreateFrame(CRect(60, 60, 660, 460)));
        tests::App().m_pMainWnd = frame;
        frame->AddAll();
        ASSERT_FALSE(testing::Test::HasFailure()) << "in cycle " << cycle;
        frame->ShowWindow(SW_SHOWNOACTIVATE);
        frame->UpdateWindow();
        tests::PumpPosted();
        tests::App().OnIdle(0);
        tests::App().OnIdle(1);
        if (cycle % 2 == 0)
            frame->m_tools.DestroyWindow();
        frame->DestroyWindow();
        tests::App().m_pMainWnd = nullptr;
        tests::PumpPosted();
    }
    EXPECT_EQ(tests::ThreadWindows(), windows);
    EXPECT_LE(tests::GdiHandleCount(), gdiObjects + 4);
}
} // namespace
