// CMFCStatusBar: panes.

#include "GdiHandleCount.h"
#include "mfcbars_MfcBarTest.h"

namespace
{
class MfcStatusBars : public mfcbars::MfcBarTest
{
protected:
    CMFCStatusBar & Bar() { return m_frame->m_status; }
    CRect Pane(int index)
    {
        CRect rect;
        Bar().GetItemRect(index, &rect);
        return rect;
    }
    COLORREF PixelAt(CPoint point)
    {
        Bar().UpdateWindow();
        HDC const dc = ::GetDC(Bar().m_hWnd);
        COLORREF const colour = ::GetPixel(dc, point.x, point.y);
        ::ReleaseDC(Bar().m_hWnd, dc);
        return colour;
    }
};
} // namespace

TEST_F(MfcStatusBars, PanesShareTheBarAndTheFirstTakesTheRest)
{
    ASSERT_EQ(Bar().GetCount(), 3);
    EXPECT_EQ(Bar().GetItemID(1), static_cast<UINT>(ID_INDICATOR_CAPS));
    EXPECT_EQ(Bar().CommandToIndex(ID_MFC_PANE), 2);
    EXPECT_EQ(Bar().CommandToIndex(12345), -1);
    EXPECT_EQ(Bar().GetPaneText(1), L"CAP");
    EXPECT_EQ(Bar().GetPaneText(9), L"");
    CRect client;
    Bar().GetClientRect(&client);
    EXPECT_GT(Pane(0).Width(), client.Width() / 2);
    EXPECT_LT(Pane(0).right, Pane(1).left);
    EXPECT_LT(Pane(1).right, Pane(2).left);
    EXPECT_LE(Pane(2).right, client.right);
    CRect bar;
    Bar().GetWindowRect(&bar);
    m_frame->ScreenToClient(&bar);
    CRect frame;
    m_frame->GetClientRect(&frame);
    EXPECT_EQ(bar.bottom, frame.bottom);
    int const width = Pane(1).Width();
    Bar().SetPaneWidth(1, Bar().GetPaneWidth(1) + 40);
    EXPECT_EQ(Pane(1).Width(), width + 40);
    EXPECT_EQ(Bar().SetPaneText(7, L"none"), FALSE);
}

TEST_F(MfcStatusBars, TheBarsTextIsTheFirstPanes)
{
    EXPECT_EQ(m_frame->StatusText(), L"Ready");
    m_frame->SetMessageText(L"Busy");
    EXPECT_EQ(m_frame->StatusText(), L"Busy");
    CString text;
    Bar().GetWindowText(text);
    EXPECT_EQ(text, L"Busy");
}

TEST_F(MfcStatusBars, HandlersGiveTextsAndStates)
{
    m_frame->m_updates[ID_MFC_PANE] = [](CCmdUI * state) {
        state->SetText(L"48 kHz");
        state->Enable();
    };
    Idle();
    EXPECT_EQ(Bar().GetPaneText(2), L"48 kHz");
    EXPECT_EQ(Bar().GetPaneStyle(2) & SBPS_DISABLED, 0u);
    m_frame->m_updates[ID_MFC_PANE] = [](CCmdUI * state) { state->Enable(FALSE); };
    Idle();
    EXPECT_NE(Bar().GetPaneStyle(2) & SBPS_DISABLED, 0u);
}

TEST_F(MfcStatusBars, PanesHaveColours)
{
    Bar().SetPaneWidth(2, 60);
    Bar().SetPaneBackgroundColor(2, RGB(10, 200, 30));
    Bar().SetPaneText(2, L"");
    EXPECT_EQ(PixelAt(Pane(2).CenterPoint()), RGB(10, 200, 30));
    Bar().SetPaneBackgroundColor(2);
    EXPECT_EQ(PixelAt(Pane(2).CenterPoint()), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(MfcStatusBars, PanesShowProgress)
{
    Bar().SetPaneWidth(2, 100);
    Bar().EnablePaneProgressBar(2, 200, FALSE, RGB(200, 10, 10));
    Bar().SetPaneProgress(2, 100);
    EXPECT_EQ(Bar().GetPaneProgress(2), 100);
    CRect const pane = Pane(2);
    EXPECT_EQ(PixelAt({pane.left + pane.Width() / 4, pane.CenterPoint().y}), RGB(200, 10, 10));
    EXPECT_EQ(PixelAt({pane.left + pane.Width() * 3 / 4, pane.CenterPoint().y}), ::GetSysColor(COLOR_BTNFACE));
    Bar().SetPaneProgress(2, 5000); // no more than all
    EXPECT_EQ(Bar().GetPaneProgress(2), 200);
    Bar().SetPaneProgress(2, -5);
    EXPECT_EQ(Bar().GetPaneProgress(2), 0);
    Bar().EnablePaneProgressBar(2, -1);
    Bar().SetPaneProgress(2, 50);
    EXPECT_EQ(Bar().GetPaneProgress(2), 0);
}

TEST_F(MfcStatusBars, ADoubleClickOnAPaneIsACommand)
{
    Bar().EnablePaneDoubleClick();
    CPoint const point = tests::ClientPoint(Bar().m_hWnd, Pane(2).CenterPoint());
    ASSERT_TRUE(tests::MoveMouse(point));
    tests::DoubleClick(point);
    EXPECT_TRUE(tests::PumpUntil([&] { return Commanded(ID_MFC_PANE); }));
}

TEST_F(MfcStatusBars, PanesHaveToolTips)
{
    Bar().SetTipText(2, L"The rate");
    EXPECT_EQ(Bar().GetTipText(2), L"The rate");
    TOOLINFO tool{};
    tool.cbSize = sizeof tool;
    EXPECT_EQ(Bar().OnToolHitTest(Pane(2).CenterPoint(), &tool), 2);
    EXPECT_EQ(Bar().OnToolHitTest(Pane(1).CenterPoint(), &tool), -1);
    NMTTDISPINFO asked{};
    asked.hdr.hwndFrom = m_window;
    asked.hdr.idFrom = 2;
    asked.hdr.code = static_cast<UINT>(TTN_NEEDTEXT);
    Bar().SendMessage(WM_NOTIFY, 2, reinterpret_cast<LPARAM>(&asked));
    ASSERT_NE(asked.lpszText, nullptr);
    EXPECT_STREQ(asked.lpszText, L"The rate");
}

TEST_F(MfcStatusBars, AHandlerMayEndTheFrame)
{
    m_frame->m_updates[ID_MFC_PANE] = [this](CCmdUI * state) {
        ::DestroyWindow(m_window);
        state->SetText(L"late");
    };
    tests::App().OnIdle(0);
    EXPECT_FALSE(::IsWindow(m_window));
}
