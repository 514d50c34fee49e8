// Walks over the children of a window whose handlers end children, or the window itself.

#include <afxpriv.h>

#include "bars_BarTest.h"
#include "GuardedHeap.h"

namespace
{
constexpr UINT first_child = 2000;

/// A child that runs an action at a message, and counts what it got of it.
class ActingChild : public CWnd
{
public:
    UINT m_message = 0;
    int m_got = 0;
    std::function<void()> m_action;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_message)
        {
            ++m_got;
            if (auto const action = std::exchange(m_action, {}))
            {
                HWND const window = m_hWnd;
                action();
                if (!::IsWindow(window))
                    return 0;
            }
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A bar at the top, of a height, that runs an action when it is asked for its size.
class ActingBar : public CControlBar
{
public:
    std::function<void()> m_action;

    BOOL CreateBar(CWnd & parent, UINT id)
    {
        SetBarStyle(CBRS_ALIGN_TOP);
        return Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &parent, id);
    }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override
    {
        CSize size = CControlBar::CalcFixedLayout(bStretch, bHorz);
        size.cy = 30;
        if (auto const action = std::exchange(m_action, {}))
            action();
        return size;
    }
    void OnUpdateCmdUI(CFrameWnd *, BOOL) override {}
};

class HostileWalks : public bars::BarTest
{
protected:
    /// Three children that act at a message, below the frame.
    void AddChildren(UINT message)
    {
        UINT id = first_child;
        for (ActingChild & child : m_children)
        {
            child.m_message = message;
            ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), m_frame, id++));
        }
    }
    /// A dialog bar's buttons, with handlers in the frame.
    CWnd & Button(UINT id) { return *m_frame->m_dialog.GetDlgItem(static_cast<int>(id)); }

    ActingChild m_children[3];
};

TEST_F(HostileWalks, MessagesReachTheSiblingsOfAChildThatEndsItself)
{
    AddChildren(WM_APP);
    m_children[0].m_action = [this] { m_children[0].DestroyWindow(); };
    m_children[1].m_action = [this] { m_children[2].DestroyWindow(); };
    m_frame->SendMessageToDescendants(WM_APP);
    EXPECT_EQ(m_children[0].m_got, 1);
    EXPECT_EQ(m_children[1].m_got, 1);
    EXPECT_EQ(m_children[2].m_got, 0);
}

TEST_F(HostileWalks, MessagesReachEachSiblingOnceWhenTheOnesBeforeEnd)
{
    AddChildren(WM_APP);
    m_children[1].m_action = [this] {
        m_children[0].DestroyWindow();
        m_children[1].DestroyWindow();
    };
    m_frame->SendMessageToDescendants(WM_APP);
    EXPECT_EQ(m_children[0].m_got, 1);
    EXPECT_EQ(m_children[1].m_got, 1);
    EXPECT_EQ(m_children[2].m_got, 1);
}

TEST_F(HostileWalks, MessagesEndWithTheWindow)
{
    AddChildren(WM_APP);
    m_children[1].m_action = [this] { ::DestroyWindow(m_window); };
    m_frame->SendMessageToDescendants(WM_APP);
    EXPECT_EQ(m_children[2].m_got, 0);
}

TEST_F(HostileWalks, WhatTheSystemTellsAllWindowsMayEndTheFrame)
{
    UINT const messages[] = {WM_SYSCOLORCHANGE, WM_SETTINGCHANGE, WM_DISPLAYCHANGE};
    tests::GuardedHeap heap; // a fault ends the program
    for (UINT const message : messages)
    {
        auto * const frame = new bars::BarFrame;
        ASSERT_TRUE(frame->CreateFrame(CRect(60, 60, 760, 560)));
        HWND const window = frame->m_hWnd;
        ActingChild child;
        child.m_message = message;
        ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), frame, first_child));
        child.m_action = [window] { ::DestroyWindow(window); };
        ::SendMessage(window, message, 0, 0);
        EXPECT_EQ(child.m_got, 1);
        EXPECT_FALSE(::IsWindow(window));
        EXPECT_EQ(heap.Check(), 0u);
    }
}

TEST_F(HostileWalks, ToolBarMayEndWhenColoursChange)
{
    tests::GuardedHeap heap;
    m_frame->AddTools();
    ActingChild child;
    child.m_message = WM_SYSCOLORCHANGE;
    ASSERT_TRUE(child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 10, 10), &m_frame->m_tools, first_child));
    child.m_action = [this] { ::DestroyWindow(m_window); };
    m_frame->SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(HostileWalks, ControlsAreUpdatedThoughOneEndsItself)
{
    m_frame->AddDialogBar();
    bool updated = false;
    m_frame->m_updates[ID_BAR_GO] = [this](CCmdUI *) { Button(ID_BAR_GO).DestroyWindow(); };
    m_frame->m_updates[ID_BAR_LOST] = [&updated](CCmdUI *) { updated = true; };
    m_frame->m_dialog.UpdateDialogControls(m_frame, TRUE);
    EXPECT_EQ(m_frame->m_dialog.GetDlgItem(ID_BAR_GO), nullptr);
    EXPECT_TRUE(updated);
}

TEST_F(HostileWalks, ControlsAreUpdatedUntilTheirWindowEnds)
{
    tests::GuardedHeap heap;
    auto * const dialog = new CDialogBar;
    dialog->m_bAutoDelete = TRUE;
    ASSERT_TRUE(dialog->Create(m_frame, IDD_BAR, CBRS_TOP | WS_VISIBLE, AFX_IDW_DIALOGBAR));
    bool updated = false;
    m_frame->m_updates[ID_BAR_GO] = [dialog](CCmdUI *) { dialog->DestroyWindow(); };
    m_frame->m_updates[ID_BAR_LOST] = [&updated](CCmdUI *) { updated = true; };
    dialog->UpdateDialogControls(m_frame, TRUE);
    EXPECT_FALSE(updated);
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(HostileWalks, ControlsAreUpdatedUntilTheFrameEnds)
{
    tests::GuardedHeap heap;
    m_frame->AddDialogBar();
    bool updated = false;
    HWND const window = m_window;
    m_frame->m_updates[ID_BAR_GO] = [window](CCmdUI *) { ::DestroyWindow(window); };
    m_frame->m_updates[ID_BAR_LOST] = [&updated](CCmdUI *) { updated = true; };
    m_frame->m_dialog.UpdateDialogControls(m_frame, TRUE);
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_FALSE(updated);
    EXPECT_EQ(heap.Check(), 0u);
}

TEST_F(HostileWalks, ATemporaryObjectUpdatesItsControls)
{
    m_frame->AddDialogBar();
    HWND const window = m_frame->m_dialog.Detach();
    int updates = 0;
    m_frame->m_updates[ID_BAR_GO] = [&updates](CCmdUI *) { ++updates; };
    CWnd::FromHandle(window)->UpdateDialogControls(m_frame, TRUE);
    m_frame->m_dialog.Attach(window);
    EXPECT_EQ(updates, 1);
}

TEST_F(HostileWalks, BarThatEndsWhileItIsLaidOutLeavesItsPlace)
{
    ActingBar bars[3];
    UINT id = AFX_IDW_CONTROLBAR_FIRST + 40;
    for (ActingBar & bar : bars)
        ASSERT_TRUE(bar.CreateBar(*m_frame, id++));
    m_frame->AddClient();
    Show();
    bars[1].m_action = [&bars] { bars[1].DestroyWindow(); };
    m_frame->RecalcLayout();
    ExpectCovered();
    EXPECT_EQ(m_frame->Place(m_frame->m_client).top, 60);
}

TEST_F(HostileWalks, BarThatEndsAnotherWhileItIsLaidOutLeavesItsPlace)
{
    ActingBar bars[3];
    UINT id = AFX_IDW_CONTROLBAR_FIRST + 40;
    for (ActingBar & bar : bars)
        ASSERT_TRUE(bar.CreateBar(*m_frame, id++));
    m_frame->AddClient();
    Show();
    m_frame->SetWindowPos(nullptr, 0, 0, 600, 400, SWP_NOMOVE | SWP_NOREDRAW);
    bars[2].m_action = [&bars] { bars[0].DestroyWindow(); };
    bars[0].SetWindowPos(nullptr, 0, 100, 50, 30, SWP_NOZORDER);
    bars[1].SetWindowPos(nullptr, 0, 200, 50, 30, SWP_NOZORDER);
    m_frame->RecalcLayout();
    ExpectCovered();
    EXPECT_EQ(m_frame->Place(m_frame->m_client).top, 60);
}

TEST_F(HostileWalks, WindowThatFillsTheRestMayEndWhileBarsAreLaidOut)
{
    m_frame->AddClient(); // before the bar
    ActingBar bar;
    ASSERT_TRUE(bar.CreateBar(*m_frame, AFX_IDW_CONTROLBAR_FIRST + 40));
    Show();
    bar.SetWindowPos(nullptr, 0, 100, 50, 30, SWP_NOZORDER);
    bar.m_action = [this] { m_frame->m_client.DestroyWindow(); };
    m_frame->RecalcLayout();
    EXPECT_EQ(m_frame->Place(bar), CRect(0, 0, m_frame->Inside().Width(), 30));
}

TEST_F(HostileWalks, BarThatEndsTheFrameWhileItIsLaidOut)
{
    tests::GuardedHeap heap;
    ActingBar bar;
    ASSERT_TRUE(bar.CreateBar(*m_frame, AFX_IDW_CONTROLBAR_FIRST + 40));
    Show();
    bar.m_action = [this] { ::DestroyWindow(m_window); };
    m_frame->RecalcLayout();
    EXPECT_FALSE(::IsWindow(m_window));
    EXPECT_EQ(heap.Check(), 0u);
}

/// A frame that ends itself when its state is brought up to date.
class ShortLivedFrame : public bars::BarFrame
{
protected:
    afx_msg LRESULT OnIdle(WPARAM, LPARAM)
    {
        DestroyWindow();
        return 0;
    }

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ShortLivedFrame, bars::BarFrame)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &ShortLivedFrame::OnIdle)
END_MESSAGE_MAP()

TEST_F(HostileWalks, MainFrameMayEndInIdleTime)
{
    tests::GuardedHeap heap;
    auto * const frame = new ShortLivedFrame;
    ASSERT_TRUE(frame->CreateFrame(CRect(60, 60, 300, 200)));
    frame->ShowWindow(SW_SHOWNA);
    HWND const window = frame->m_hWnd;
    tests::App().m_pMainWnd = frame;
    tests::App().OnIdle(0);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(tests::App().m_pMainWnd, nullptr);
    MSG quit;
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
    {
    }
    EXPECT_EQ(heap.Check(), 0u);
}
} // namespace
