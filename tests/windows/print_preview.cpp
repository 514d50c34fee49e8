// The print preview: how it fills the frame and leaves it, its pages and buttons, hosts that end it.

#include "GdiHandleCount.h"
#include "GuardedHeap.h"
#include "print_PrintTest.h"
#include "ThreadWindows.h"

namespace
{
using Log = std::vector<std::string>;
using printing::page_colour;
using printing::red_a_page;

COLORREF ColourOfPage(int page)
{
    return RGB(GetRValue(page_colour) - red_a_page * (page - 1), GetGValue(page_colour), GetBValue(page_colour));
}

class Preview : public printing::PrintTest
{
protected:
    void Open()
    {
        Command(ID_FILE_PRINT_PREVIEW);
        ASSERT_NE(PrintTest::Preview(), nullptr);
        Idle();
    }
    CPreviewView & View() { return *PrintTest::Preview(); }
    COLORREF Pixel(CPoint place)
    {
        CClientDC dc(&View());
        return dc.GetPixel(place);
    }
    CPoint Middle()
    {
        CRect client;
        View().GetClientRect(&client);
        return client.CenterPoint();
    }
    bool Enabled(UINT id) { return Button(id)->IsWindowEnabled() != FALSE; }
    std::wstring Message() { return CString(m_frame->m_status.GetPaneText(0)).GetString(); }
};

TEST_F(Preview, FillsTheFrameAndLeavesItAsItWas)
{
    HMENU const menu = ::GetMenu(m_window);
    Open();
    EXPECT_FALSE(m_view->IsWindowVisible());
    EXPECT_FALSE(m_frame->m_tools.IsWindowVisible());
    EXPECT_TRUE(m_frame->m_status.IsWindowVisible());
    EXPECT_EQ(::GetMenu(m_window), nullptr);
    EXPECT_EQ(View().GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_EQ(m_view->GetDlgCtrlID(), AFX_IDW_PANE_SAVE);
    CRect bar;
    m_frame->GetControlBar(AFX_IDW_PREVIEW_BAR)->GetWindowRect(&bar);
    CRect place;
    View().GetWindowRect(&place);
    CRect status;
    m_frame->m_status.GetWindowRect(&status);
    EXPECT_EQ(place.top, bar.bottom);
    EXPECT_EQ(place.bottom, status.top);
    EXPECT_EQ(Message(), L"Page 1");
    Command(ID_FILE_PRINT_PREVIEW); // there is one already
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 1"}));

    Command(AFX_ID_PREVIEW_CLOSE);
    Idle();
    EXPECT_EQ(m_view->m_log, (Log{"prepare", "begin", "page 1", "end"}));
    EXPECT_EQ(m_view->m_previewPoint.x, 0);
    EXPECT_EQ(m_frame->GetActiveView(), m_view);
    EXPECT_TRUE(m_view->IsWindowVisible());
    EXPECT_TRUE(m_frame->m_tools.IsWindowVisible());
    EXPECT_EQ(m_frame->GetControlBar(AFX_IDW_PREVIEW_BAR), nullptr);
    EXPECT_EQ(::GetMenu(m_window), menu);
    EXPECT_EQ(m_view->GetDlgCtrlID(), AFX_IDW_PANE_FIRST);
    EXPECT_EQ(Message(), L"Ready");
}

TEST_F(Preview, ShowsThePageAsItIsPrinted)
{
    Open();
    EXPECT_TRUE(tests::PumpUntil([&] { return Pixel(Middle()) == ColourOfPage(1); }));
    EXPECT_TRUE(m_view->m_printing);
    // Around it is the background.
    EXPECT_EQ(Pixel(CPoint(2, 2)), ::GetSysColor(COLOR_APPWORKSPACE));
    tests::Click(tests::Centre(Button(AFX_ID_PREVIEW_NEXT)->m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return Pixel(Middle()) == ColourOfPage(2); }));
    EXPECT_EQ(Message(), L"Page 2");
}

TEST_F(Preview, ButtonsFollowThePages)
{
    Open();
    EXPECT_TRUE(Enabled(AFX_ID_PREVIEW_NEXT));
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_PREV));
    EXPECT_TRUE(Enabled(AFX_ID_PREVIEW_PRINT));
    View().SetFocus();
    tests::Key(VK_NEXT);
    tests::Key(VK_NEXT);
    EXPECT_TRUE(tests::PumpUntil([&] { return Message() == L"Page 3"; }));
    Idle();
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_NEXT));
    EXPECT_TRUE(Enabled(AFX_ID_PREVIEW_PREV));
    tests::Key(VK_PRIOR);
    EXPECT_TRUE(tests::PumpUntil([&] { return Message() == L"Page 2"; }));
    tests::Key(VK_ESCAPE);
    EXPECT_TRUE(tests::PumpUntil([&] { return PrintTest::Preview() == nullptr; }));
}

TEST_F(Preview, TwoPagesStandSideBySide)
{
    Open();
    CString text;
    Button(AFX_ID_PREVIEW_NUMPAGE)->GetWindowText(text);
    EXPECT_EQ(text, L"&Two Page");
    Command(AFX_ID_PREVIEW_NUMPAGE);
    Idle();
    Button(AFX_ID_PREVIEW_NUMPAGE)->GetWindowText(text);
    EXPECT_EQ(text, L"&One Page");
    EXPECT_EQ(Message(), L"Pages 1-2");
    CRect client;
    View().GetClientRect(&client);
    EXPECT_TRUE(
        tests::PumpUntil([&] { return Pixel(CPoint(client.Width() / 4, client.Height() / 2)) == ColourOfPage(1); }));
    EXPECT_EQ(Pixel(CPoint(client.Width() * 3 / 4, client.Height() / 2)), ColourOfPage(2));
    EXPECT_TRUE(Enabled(AFX_ID_PREVIEW_NEXT));
    Command(AFX_ID_PREVIEW_NEXT);
    Idle();
    EXPECT_EQ(Message(), L"Pages 2-3");
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_NEXT));
    // It is kept for the next time.
    Command(AFX_ID_PREVIEW_CLOSE);
    Open();
    EXPECT_EQ(Message(), L"Pages 1-2");
    Command(AFX_ID_PREVIEW_NUMPAGE);
}

TEST_F(Preview, ZoomGoesInTwoStepsAndScrolls)
{
    Open();
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_ZOOMOUT));
    CSize const whole = View().GetTotalSize();
    Command(AFX_ID_PREVIEW_ZOOMIN);
    CSize const middle = View().GetTotalSize();
    EXPECT_GT(middle.cx, whole.cx);
    Command(AFX_ID_PREVIEW_ZOOMIN);
    Idle();
    CSize const real = View().GetTotalSize();
    EXPECT_GT(real.cy, middle.cy);
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_ZOOMIN));
    EXPECT_NE(View().GetStyle() & WS_VSCROLL, 0u);
    // As large as on paper.
    CClientDC dc(&View());
    EXPECT_NEAR(static_cast<double>(real.cx) / dc.GetDeviceCaps(LOGPIXELSX), 8.6, 0.4);
    View().SetFocus();
    tests::Key(VK_DOWN);
    EXPECT_TRUE(tests::PumpUntil([&] { return View().GetScrollPosition().y > 0; }));
    // A click on the page shows it whole again.
    tests::Click(tests::ClientPoint(View().m_hWnd, Middle()));
    EXPECT_TRUE(tests::PumpUntil([&] { return View().GetTotalSize() == whole; }));
    EXPECT_EQ(View().GetStyle() & WS_VSCROLL, 0u);
    // The next one goes to the place that was clicked.
    tests::Click(tests::ClientPoint(View().m_hWnd, Middle()));
    EXPECT_TRUE(tests::PumpUntil([&] { return View().GetTotalSize() == middle; }));
    Idle();
    Command(AFX_ID_PREVIEW_ZOOMOUT);
    EXPECT_EQ(View().GetTotalSize(), whole);
}

TEST_F(Preview, FollowsTheSizeOfTheFrame)
{
    Open();
    CSize const before = View().GetTotalSize();
    m_frame->SetWindowPos(nullptr, 0, 0, 400, 350, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_LT(View().GetTotalSize().cy, before.cy);
    EXPECT_EQ(View().GetStyle() & (WS_VSCROLL | WS_HSCROLL), 0u);
    m_frame->SetWindowPos(nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 600, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(View().GetTotalSize(), before);
}

TEST_F(Preview, PagesThatAreNotCountedEndWhereTheViewSaysSo)
{
    m_view->m_lastPage = 0;
    m_view->m_endsAfter = 2;
    Open();
    EXPECT_TRUE(Enabled(AFX_ID_PREVIEW_NEXT));
    Command(AFX_ID_PREVIEW_NEXT);
    EXPECT_EQ(Message(), L"Page 2");
    Command(AFX_ID_PREVIEW_NEXT); // there is none
    EXPECT_EQ(Message(), L"Page 2");
    Idle();
    EXPECT_FALSE(Enabled(AFX_ID_PREVIEW_NEXT));
}

TEST_F(Preview, ThatIsNotPreparedDoesNotCome)
{
    m_view->m_prepare = [](CPrintInfo &) { return FALSE; };
    Command(ID_FILE_PRINT_PREVIEW);
    EXPECT_EQ(PrintTest::Preview(), nullptr);
    EXPECT_EQ(m_frame->GetActiveView(), m_view);
    EXPECT_TRUE(m_view->IsWindowVisible());
    EXPECT_NE(::GetMenu(m_window), nullptr);
    EXPECT_EQ(m_view->m_log, Log{"prepare"});
}

TEST_F(Preview, ClosingTheFrameEndsItFirst)
{
    Open();
    m_frame->SendMessage(WM_CLOSE);
    EXPECT_TRUE(::IsWindow(m_window));
    EXPECT_EQ(PrintTest::Preview(), nullptr);
    m_frame->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(Preview, PrintingFromItEndsItFirst)
{
    Open();
    PrintToMetafile();
    m_view->m_log.clear();
    tests::Click(tests::Centre(Button(AFX_ID_PREVIEW_PRINT)->m_hWnd));
    EXPECT_TRUE(tests::PumpUntil([&] { return m_paper != nullptr; }));
    EXPECT_EQ(PrintTest::Preview(), nullptr);
    EXPECT_EQ(m_view->m_log, (Log{"end", "prepare", "begin", "page 1", "page 2", "page 3", "end"}));
}

TEST_F(Preview, EndsWithItsFrame)
{
    tests::GuardedHeap heap;
    Open();
    ::DestroyWindow(m_window);
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(Preview, ThePageMayEndTheFrame)
{
    tests::GuardedHeap heap;
    HWND const window = m_window;
    m_view->m_print = [window](CPrintInfo &) { ::DestroyWindow(window); };
    Command(ID_FILE_PRINT_PREVIEW);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(Preview, ThePageMayEndItsView)
{
    tests::GuardedHeap heap;
    Open();
    HWND const view = m_view->m_hWnd;
    m_view->m_print = [view](CPrintInfo &) { ::DestroyWindow(view); };
    Command(AFX_ID_PREVIEW_NEXT);
    EXPECT_FALSE(::IsWindow(view));
    Idle();
    // Without it the preview goes.
    EXPECT_TRUE(tests::PumpUntil([&] { return PrintTest::Preview() == nullptr; }));
    EXPECT_TRUE(::IsWindow(m_window));
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(Preview, ThePageMayCloseThePreview)
{
    tests::GuardedHeap heap;
    Open();
    m_view->m_print = [this](CPrintInfo &) { Command(AFX_ID_PREVIEW_CLOSE); };
    Command(AFX_ID_PREVIEW_NEXT);
    EXPECT_EQ(PrintTest::Preview(), nullptr);
    EXPECT_TRUE(m_view->IsWindowVisible());
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(Preview, ManyTimesLeavesNothing)
{
    auto const cycle = [this] {
        Open();
        Command(AFX_ID_PREVIEW_NEXT);
        Command(AFX_ID_PREVIEW_ZOOMIN);
        View().UpdateWindow();
        Command(AFX_ID_PREVIEW_CLOSE);
        Idle();
    };
    cycle();
    int const windows = tests::ThreadWindows();
    EXPECT_EQ(tests::GdiGrowth(cycle, 50, 3), 0);
    EXPECT_EQ(tests::ThreadWindows(), windows);
}
} // namespace
