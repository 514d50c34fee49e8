// Splitters on real windows.

#include "views_FramesTest.h"

using frames::TestView;

namespace
{
/// A frame with a splitter that can be split by the user.
class SplitFrame : public CMDIChildWndEx
{
public:
    CSplitterWnd m_splitter;
    bool m_dynamic = true;
    bool m_refuse = false;

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext *) override
    {
        CCreateContext context;
        context.m_pNewViewClass = m_refuse ? RUNTIME_CLASS(frames::RefusingView) : RUNTIME_CLASS(TestView);
        if (m_dynamic)
            return m_splitter.Create(this, 2, 2, CSize(20, 30), &context);
        return m_splitter.CreateStatic(this, 2, 3);
    }
};

class Splitters : public frames::FramesTest
{
protected:
    SplitFrame * Open(bool dynamic)
    {
        auto * const frame = new SplitFrame;
        frame->m_dynamic = dynamic;
        if (!frame->Create(nullptr, L"Split", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400)))
            return nullptr;
        frame->InitialUpdateFrame(nullptr, TRUE);
        return frame;
    }
    static CRect PlaceOf(CWnd const & window)
    {
        CRect place;
        window.GetWindowRect(&place);
        CWnd::FromHandle(::GetParent(window.m_hWnd))->ScreenToClient(&place);
        return place;
    }
};
} // namespace

TEST_F(Splitters, PanesHaveIdentifiersByRowAndColumn)
{
    SplitFrame * const frame = Open(false);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_EQ(splitter.GetColumnCount(), 3);
    EXPECT_EQ(splitter.IdFromRowCol(1, 2), AFX_IDW_PANE_FIRST + 16 + 2);
    EXPECT_EQ(splitter.GetPane(1, 2), nullptr);
    ASSERT_TRUE(splitter.CreateView(1, 2, RUNTIME_CLASS(TestView), CSize(50, 60), nullptr));
    EXPECT_FALSE(splitter.CreateView(1, 2, RUNTIME_CLASS(TestView), CSize(50, 60), nullptr)); // it is there
    EXPECT_FALSE(splitter.CreateView(2, 0, RUNTIME_CLASS(TestView), CSize(50, 60), nullptr));
    EXPECT_FALSE(splitter.CreateView(0, 0, RUNTIME_CLASS(frames::RefusingView), CSize(50, 60), nullptr));
    CWnd * const pane = splitter.GetPane(1, 2);
    ASSERT_NE(pane, nullptr);
    int row = -1;
    int column = -1;
    EXPECT_TRUE(splitter.IsChildPane(pane, &row, &column));
    EXPECT_EQ(row, 1);
    EXPECT_EQ(column, 2);
    EXPECT_FALSE(splitter.IsChildPane(frame, &row, &column));
    EXPECT_EQ(splitter.GetPane(-1, 0), nullptr);
    EXPECT_EQ(splitter.GetPane(0, 3), nullptr);
    splitter.DeleteView(1, 2);
    EXPECT_EQ(splitter.GetPane(1, 2), nullptr);
}

TEST_F(Splitters, LinesHaveTheirIdealSizeAndTheLastTheRest)
{
    SplitFrame * const frame = Open(false);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    for (int row = 0; row < 2; ++row)
    {
        for (int column = 0; column < 3; ++column)
            ASSERT_TRUE(splitter.CreateView(row, column, RUNTIME_CLASS(TestView), CSize(90, 80), nullptr));
    }
    splitter.SetColumnInfo(0, 120, 10);
    splitter.SetRowInfo(0, 70, 10);
    splitter.RecalcLayout();
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Size(), CSize(120, 70));
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 1)).Width(), 90);
    CRect client;
    splitter.GetClientRect(&client);
    EXPECT_EQ(PlaceOf(*splitter.GetPane(1, 2)).right, client.right - 2);
    EXPECT_EQ(PlaceOf(*splitter.GetPane(1, 2)).bottom, client.bottom - 2);
    int current = 0;
    int minimum = 0;
    splitter.GetColumnInfo(0, current, minimum);
    EXPECT_EQ(current, 120);
    EXPECT_EQ(minimum, 10);
    splitter.SetColumnInfo(0, 5, 10); // too small to be seen
    splitter.RecalcLayout();
    splitter.GetColumnInfo(0, current, minimum);
    EXPECT_EQ(current, 0);
}

TEST_F(Splitters, TheNextPaneIsActivatedInTurn)
{
    SplitFrame * const frame = Open(true);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    EXPECT_FALSE(splitter.CanActivateNext());
    ASSERT_TRUE(splitter.SplitColumn(150));
    ASSERT_TRUE(splitter.SplitRow(120));
    EXPECT_TRUE(splitter.CanActivateNext());
    splitter.SetActivePane(0, 0);
    int row = -1;
    int column = -1;
    std::vector<std::pair<int, int>> seen;
    for (int step = 0; step < 4; ++step)
    {
        m_main->SendMessage(WM_COMMAND, ID_NEXT_PANE);
        ASSERT_NE(splitter.GetActivePane(&row, &column), nullptr);
        seen.emplace_back(row, column);
    }
    EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{0, 1}, {1, 0}, {1, 1}, {0, 0}}));
    m_main->SendMessage(WM_COMMAND, ID_PREV_PANE);
    splitter.GetActivePane(&row, &column);
    EXPECT_EQ(std::pair(row, column), std::pair(1, 1));
}

TEST_F(Splitters, SplitAndJoin)
{
    SplitFrame * const frame = Open(true);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    EXPECT_EQ(splitter.GetScrollStyle(), static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL));
    EXPECT_FALSE(splitter.SplitRow(10)); // smaller than a row may be
    EXPECT_EQ(frames::g_views, 1);
    ASSERT_TRUE(splitter.SplitRow(122));
    EXPECT_EQ(splitter.GetRowCount(), 2);
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Height(), 120);
    EXPECT_NE(::GetDlgItem(splitter.m_hWnd, AFX_IDW_VSCROLL_FIRST + 1), nullptr);
    EXPECT_FALSE(splitter.SplitRow(60)); // no more than two
    ASSERT_TRUE(splitter.SplitColumn(152));
    EXPECT_EQ(frames::g_views, 4);
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Width(), 150);
    auto * const lower = static_cast<TestView *>(splitter.GetPane(1, 0));
    EXPECT_NE(lower->GetScrollBarCtrl(SB_VERT), nullptr);
    splitter.DeleteRow(0);
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), lower);
    EXPECT_EQ(frames::g_views, 2);
    splitter.DeleteColumn(1);
    EXPECT_EQ(frames::g_views, 1);
    EXPECT_EQ(splitter.GetActivePane(), lower);
    splitter.DeleteColumn(0); // the last one stays
    EXPECT_EQ(frames::g_views, 1);
}

TEST_F(Splitters, BarsFollowTheMouse)
{
    SplitFrame * const frame = Open(true);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    ASSERT_TRUE(splitter.SplitColumn(152));
    auto const send = [&](UINT message, int x, int y) { splitter.SendMessage(message, MK_LBUTTON, MAKELPARAM(x, y)); };
    send(WM_LBUTTONDOWN, 154, 100); // on the bar
    EXPECT_TRUE(splitter.IsTracking());
    send(WM_MOUSEMOVE, 204, 100);
    send(WM_LBUTTONUP, 204, 100);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Width(), 200);
    // Too far to the left, and the pane goes.
    send(WM_LBUTTONDOWN, 204, 100);
    send(WM_MOUSEMOVE, 10, 100);
    send(WM_LBUTTONUP, 10, 100);
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    // The box at the end of the scroll bar splits.
    CRect client;
    splitter.GetClientRect(&client);
    send(WM_LBUTTONDOWN, client.right - 6, 4);
    EXPECT_TRUE(splitter.IsTracking());
    send(WM_MOUSEMOVE, client.right - 6, 124);
    send(WM_LBUTTONUP, client.right - 6, 124);
    EXPECT_EQ(splitter.GetRowCount(), 2);
    send(WM_LBUTTONDOWN, 50, 1000); // nothing there
    EXPECT_FALSE(splitter.IsTracking());
    // A capture that is taken away ends it without a change.
    int current = 0;
    int minimum = 0;
    splitter.GetRowInfo(0, current, minimum);
    send(WM_LBUTTONDOWN, 50, 2 + current + 3);
    EXPECT_TRUE(splitter.IsTracking());
    send(WM_MOUSEMOVE, 50, 250);
    splitter.SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(splitter.IsTracking());
    int after = 0;
    splitter.GetRowInfo(0, after, minimum);
    EXPECT_EQ(after, current);
    // A double click on a bar takes the pane behind it away.
    send(WM_LBUTTONDBLCLK, 50, 2 + current + 3);
    EXPECT_EQ(splitter.GetRowCount(), 1);
}

TEST_F(Splitters, BarsFollowTheKeys)
{
    SplitFrame * const frame = Open(true);
    ASSERT_NE(frame, nullptr);
    CSplitterWnd & splitter = frame->m_splitter;
    ASSERT_TRUE(splitter.SplitColumn(152));
    m_main->SendMessage(WM_COMMAND, ID_WINDOW_SPLIT);
    EXPECT_TRUE(splitter.IsTracking());
    splitter.SendMessage(WM_KEYDOWN, VK_RIGHT);
    splitter.SendMessage(WM_KEYDOWN, VK_RIGHT);
    splitter.SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Width(), 160);
    splitter.DoKeyboardSplit();
    splitter.SendMessage(WM_KEYDOWN, VK_LEFT);
    splitter.SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(PlaceOf(*splitter.GetPane(0, 0)).Width(), 160);
}

TEST_F(Splitters, ThatFailLeaveNothing)
{
    auto * const frame = new SplitFrame;
    frame->m_refuse = true;
    EXPECT_FALSE(frame->Create(nullptr, L"Split"));
    EXPECT_EQ(frames::g_views, 0);
    EXPECT_EQ(m_main->MDIGetActive(), nullptr);
}

namespace
{
/// A view that notes how it is scrolled, and moves the bar that it shares.
class ScrolledView : public TestView
{
    DECLARE_DYNCREATE(ScrolledView)

public:
    std::vector<UINT> m_codes;
    std::vector<int> m_places; // of the shared bar, before it was moved
    std::vector<CSize> m_sizes;
    std::function<void()> m_action;

    BOOL OnScroll(UINT nScrollCode, UINT, BOOL bDoScroll) override
    {
        m_codes.push_back(nScrollCode);
        return Scroll(HIBYTE(nScrollCode) != 0xFF ? SB_VERT : SB_HORZ, bDoScroll);
    }
    BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll) override
    {
        m_sizes.push_back(sizeScroll);
        return Scroll(sizeScroll.cy != 0 ? SB_VERT : SB_HORZ, bDoScroll);
    }

private:
    BOOL Scroll(int bar, BOOL bDoScroll)
    {
        CScrollBar * const control = GetScrollBarCtrl(bar);
        m_places.push_back(control->GetScrollPos());
        if (bDoScroll)
            control->SetScrollPos(m_places.back() + 5);
        if (auto const action = std::exchange(m_action, {}))
            action();
        return bDoScroll;
    }
};
IMPLEMENT_DYNCREATE(ScrolledView, TestView)

class ScrolledFrame : public CMDIChildWndEx
{
public:
    CSplitterWnd m_splitter;

    ScrolledView & Pane(int row, int column) { return *static_cast<ScrolledView *>(m_splitter.GetPane(row, column)); }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext *) override
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(ScrolledView);
        return m_splitter.Create(this, 2, 2, CSize(20, 30), &context);
    }
};

class ScrolledSplitters : public frames::FramesTest
{
protected:
    void SetUp() override
    {
        FramesTest::SetUp();
        m_frame = new ScrolledFrame;
        ASSERT_TRUE(
            m_frame->Create(nullptr, L"Split", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400)));
        m_frame->InitialUpdateFrame(nullptr, TRUE);
        ASSERT_TRUE(m_frame->m_splitter.SplitRow(150));
        ASSERT_TRUE(m_frame->m_splitter.SplitColumn(200));
        for (int line = 0; line < 2; ++line)
        {
            Bar(AFX_IDW_VSCROLL_FIRST + line)->SetScrollRange(0, 100);
            Bar(AFX_IDW_HSCROLL_FIRST + line)->SetScrollRange(0, 100);
        }
    }
    CScrollBar * Bar(int id) { return static_cast<CScrollBar *>(m_frame->m_splitter.GetDlgItem(id)); }

    ScrolledFrame * m_frame = nullptr;
};
} // namespace

TEST_F(ScrolledSplitters, PanesAlongABarScrollTogether)
{
    Bar(AFX_IDW_VSCROLL_FIRST + 1)->SetScrollPos(40);
    UINT const down = MAKEWORD(0xFF, SB_LINEDOWN);
    EXPECT_TRUE(m_frame->m_splitter.DoScroll(&m_frame->Pane(1, 0), down));
    EXPECT_EQ(m_frame->Pane(1, 0).m_codes, std::vector<UINT>{down});
    EXPECT_EQ(m_frame->Pane(1, 1).m_codes, std::vector<UINT>{down});
    EXPECT_TRUE(m_frame->Pane(0, 0).m_codes.empty());
    EXPECT_TRUE(m_frame->Pane(0, 1).m_codes.empty());
    // The second finds the bar where the first found it, and it has been moved once.
    EXPECT_EQ(m_frame->Pane(1, 0).m_places, std::vector<int>{40});
    EXPECT_EQ(m_frame->Pane(1, 1).m_places, std::vector<int>{40});
    EXPECT_EQ(Bar(AFX_IDW_VSCROLL_FIRST + 1)->GetScrollPos(), 45);
    EXPECT_EQ(Bar(AFX_IDW_VSCROLL_FIRST)->GetScrollPos(), 0);
}

TEST_F(ScrolledSplitters, BothDirectionsScrollInOneCall)
{
    UINT const both = MAKEWORD(SB_LINERIGHT, SB_LINEDOWN);
    EXPECT_TRUE(m_frame->m_splitter.DoScroll(&m_frame->Pane(0, 1), both));
    UINT const right = MAKEWORD(SB_LINERIGHT, 0xFF);
    UINT const down = MAKEWORD(0xFF, SB_LINEDOWN);
    EXPECT_EQ(m_frame->Pane(0, 1).m_codes, (std::vector<UINT>{right, down}));
    EXPECT_EQ(m_frame->Pane(1, 1).m_codes, std::vector<UINT>{right});
    EXPECT_EQ(m_frame->Pane(0, 0).m_codes, std::vector<UINT>{down});
    EXPECT_TRUE(m_frame->Pane(1, 0).m_codes.empty());
    EXPECT_FALSE(m_frame->m_splitter.DoScroll(&m_frame->Pane(0, 1), both, FALSE)); // asks only
    EXPECT_EQ(Bar(AFX_IDW_VSCROLL_FIRST)->GetScrollPos(), 5);
    EXPECT_EQ(Bar(AFX_IDW_HSCROLL_FIRST + 1)->GetScrollPos(), 5);
}

TEST_F(ScrolledSplitters, PanesAlongABarScrollByTheSameSize)
{
    EXPECT_TRUE(m_frame->m_splitter.DoScrollBy(&m_frame->Pane(0, 0), CSize(3, 0)));
    EXPECT_EQ(m_frame->Pane(0, 0).m_sizes, std::vector<CSize>{CSize(3, 0)});
    EXPECT_EQ(m_frame->Pane(1, 0).m_sizes, std::vector<CSize>{CSize(3, 0)});
    EXPECT_TRUE(m_frame->Pane(0, 1).m_sizes.empty());
    EXPECT_EQ(Bar(AFX_IDW_HSCROLL_FIRST)->GetScrollPos(), 5);
    EXPECT_FALSE(m_frame->m_splitter.DoScrollBy(&m_frame->Pane(0, 0), CSize(0, 0)));
}

TEST_F(ScrolledSplitters, WhatIsNoPaneIsNotScrolled)
{
    TestView & pane = m_frame->Pane(0, 0);
    CSplitterWnd other;
    EXPECT_FALSE(other.DoScroll(&pane, MAKEWORD(0xFF, SB_LINEDOWN)));
    EXPECT_FALSE(m_frame->m_splitter.DoScroll(nullptr, MAKEWORD(0xFF, SB_LINEDOWN)));
    EXPECT_TRUE(m_frame->Pane(0, 0).m_codes.empty());
}

TEST_F(ScrolledSplitters, ScrolledPaneMayEndTheFrame)
{
    HWND const window = m_frame->m_hWnd;
    m_frame->Pane(0, 0).m_action = [this] { m_frame->DestroyWindow(); };
    m_frame->m_splitter.DoScroll(&m_frame->Pane(0, 1), MAKEWORD(SB_LINERIGHT, SB_LINEDOWN));
    EXPECT_FALSE(::IsWindow(window));
}
