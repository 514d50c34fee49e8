// Many operations on real windows, panes that end at the worst moments, and handles that come back.

#include <random>

#include "docking_DockTest.h"
#include "GdiHandleCount.h"
#include "GuardedHeap.h"

using namespace docking;

namespace
{
/// The windows of this thread, hidden ones and children too.
int WindowCount()
{
    int count = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            auto & sum = *reinterpret_cast<int *>(result);
            ++sum;
            ::EnumChildWindows(
                window,
                [](HWND, LPARAM inner) -> BOOL {
                    ++*reinterpret_cast<int *>(inner);
                    return TRUE;
                },
                result);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&count));
    return count;
}
} // namespace

class DockWalk : public DockTest
{
protected:
    std::mt19937 m_random{7};

    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    Pane & Any() { return *m_panes[static_cast<size_t>(Below(static_cast<int>(m_panes.size())))]; }
    DWORD Side()
    {
        static DWORD const sides[] = {CBRS_ALIGN_LEFT, CBRS_ALIGN_TOP, CBRS_ALIGN_RIGHT, CBRS_ALIGN_BOTTOM};
        return sides[Below(4)];
    }

    /// The children of a window that show lie inside, none over another, but for one that has slid out.
    void CheckChildren(HWND parent)
    {
        CRect inside;
        ::GetClientRect(parent, &inside);
        std::vector<CRect> rects;
        for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        {
            if ((::GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) == 0)
                continue;
            auto * const pane = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(child));
            if (pane != nullptr && pane->IsAutoHideMode())
                continue;
            CRect rect = Screen(child);
            ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT *>(&rect), 2);
            if (rect.IsRectEmpty())
                continue;
            ASSERT_TRUE(rect.left >= 0 && rect.top >= 0 && rect.right <= inside.right && rect.bottom <= inside.bottom);
            for (CRect const & other : rects)
            {
                CRect common;
                ASSERT_FALSE(common.IntersectRect(&rect, &other));
            }
            rects.push_back(rect);
        }
    }
    void Check()
    {
        ASSERT_NO_FATAL_FAILURE(CheckChildren(m_window));
        for (std::unique_ptr<Pane> const & pane : m_panes)
        {
            if (CPaneFrameWnd * const mini = pane->GetParentMiniFrame())
            {
                ASSERT_NO_FATAL_FAILURE(CheckChildren(mini->m_hWnd));
                ASSERT_EQ(mini->IsWindowVisible(), mini->GetVisiblePaneCount() > 0);
            }
            ASSERT_EQ(pane->IsFloating(), pane->GetParentMiniFrame() != nullptr);
            ASSERT_EQ(pane->IsDocked(), !pane->IsFloating());
            if (pane->IsTabbed())
            {
                ASSERT_GE(static_cast<CTabbedPane *>(pane->GetParentTabbedPane())->GetTabsNum(), 2);
            }
            else if (!pane->IsAutoHideMode())
            {
                ASSERT_EQ(pane->IsVisible(), pane->IsPaneVisible());
            }
        }
    }
    void Step()
    {
        Pane & pane = Any();
        switch (Below(12))
        {
        case 0:
            pane.DockToFrameWindow(Side());
            break;
        case 1:
        case 2:
            pane.DockToWindow(&Any(), Side());
            break;
        case 3:
        case 4:
            pane.AttachToTabWnd(&Any(), DM_SHOW, Below(2));
            break;
        case 5:
            pane.FloatPane(CRect(CPoint(Below(800), Below(600)), CSize(150 + Below(300), 120 + Below(200))));
            break;
        case 6:
            pane.DockToRecentPos();
            break;
        case 7:
            pane.ShowPane(Below(3) != 0, FALSE, Below(2));
            break;
        case 8:
            pane.SetAutoHideMode(Below(2), Below(2) * Side());
            break;
        case 9:
            m_frame->SetWindowPos(nullptr, 0, 0, 300 + Below(900), 200 + Below(700), SWP_NOMOVE | SWP_NOZORDER);
            break;
        case 10:
            pane.Slide(Below(2));
            break;
        case 11:
            for (HWND child = ::GetTopWindow(m_window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
            {
                auto * const divider = DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(child));
                if (divider == nullptr || !divider->IsWindowVisible() || Below(2) == 0)
                    continue;
                CPoint offset(Below(200) - 100, Below(200) - 100);
                divider->Move(offset);
                break;
            }
            break;
        }
    }
};

TEST_F(DockWalk, TwoThousandOperationsLeaveEveryPaneInItsPlace)
{
    for (int count = 0; count < 10; ++count)
    {
        NewPane();
        m_panes.back()->DockToFrameWindow(Side());
    }
    for (int step = 0; step < 2000; ++step)
    {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(Check()) << "step " << step;
        if (step % 50 == 0)
            tests::PumpPosted();
    }
}

TEST_F(DockWalk, HandlesComeBackAfterManyCycles)
{
    EndFrame();
    auto const cycle = [this] {
        MakeFrame();
        m_frame->ShowWindow(SW_SHOWNOACTIVATE);
        for (int count = 0; count < 4; ++count)
            NewPane().DockToFrameWindow(CBRS_ALIGN_LEFT);
        m_panes[1]->AttachToTabWnd(m_panes[0].get(), DM_SHOW);
        m_panes[2]->FloatPane(CRect(100, 100, 300, 300));
        m_panes[3]->DockToWindow(m_panes[2].get(), CBRS_ALIGN_BOTTOM);
        m_panes[0]->SetAutoHideMode(TRUE, 0);
        m_panes[0]->Slide(TRUE);
        m_frame->UpdateWindow();
        m_panes[0]->SetAutoHideMode(FALSE, 0);
        m_panes[3]->DockToFrameWindow(CBRS_ALIGN_BOTTOM);
        m_panes[2]->ShowPane(FALSE, FALSE, FALSE);
        tests::PumpPosted();
        EndFrame();
        tests::PumpPosted();
    };
    for (int warm = 0; warm < 3; ++warm)
        cycle();
    int const gdi = tests::GdiHandleCount();
    int const windows = WindowCount();
    for (int count = 0; count < 200; ++count)
        cycle();
    EXPECT_EQ(tests::GdiHandleCount(), gdi);
    EXPECT_EQ(WindowCount(), windows);
}

class HostilePanes : public DockWalk
{
protected:
    tests::GuardedHeap m_heap;

    void TearDown() override
    {
        DockWalk::TearDown();
        EXPECT_EQ(m_heap.Check(), 0u);
    }
    void Delete(Pane & pane)
    {
        std::erase_if(m_panes, [&](auto const & owned) { return owned.get() == &pane; });
    }
    void Settled()
    {
        EXPECT_TRUE(tests::PumpUntil([&] { return ::GetCapture() == nullptr; }));
        tests::PumpPosted();
    }
};

TEST_F(HostilePanes, APaneThatEndsWithinItsOwnSizing)
{
    Docked(CBRS_ALIGN_LEFT);
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    pane.m_onSize = [&] { pane.DestroyWindow(); };
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pane.m_hWnd, nullptr);
    Settled();
    EXPECT_EQ(Centre().left, 200 + CPaneDivider::GetDefaultWidth());
}

TEST_F(HostilePanes, APaneThatIsDeletedWithinItsOwnSizing)
{
    Docked(CBRS_ALIGN_LEFT);
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    pane.m_onSize = [&] { Delete(*m_panes.front()); };
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    Settled();
    EXPECT_EQ(m_panes.size(), 1u);
    EXPECT_EQ(Place(pane).left, 0);
}

TEST_F(HostilePanes, APaneThatFloatsOrHidesAnotherWhileItIsSized)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = Docked(CBRS_ALIGN_RIGHT);
    one.m_onSize = [&] {
        one.m_onSize = nullptr;
        two.FloatPane(CRect(100, 100, 300, 300));
    };
    m_frame->SetWindowPos(nullptr, 0, 0, 800, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_TRUE(two.IsFloating());
    EXPECT_EQ(Centre().right, Inside().right);
    two.m_onSize = [&] {
        two.m_onSize = nullptr;
        one.ShowPane(FALSE, FALSE, FALSE);
    };
    two.DockToFrameWindow(CBRS_ALIGN_TOP);
    EXPECT_FALSE(one.IsVisible());
    EXPECT_EQ(Place(two), CRect(0, 0, Inside().right, 200));
}

TEST_F(HostilePanes, APaneThatEndsWhileItIsTabbed)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    two.m_onParent = [&] { two.DestroyWindow(); };
    two.AttachToTabWnd(&one, DM_SHOW);
    Settled();
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_FALSE(one.IsTabbed());
    EXPECT_TRUE(one.IsPaneVisible());
}

TEST_F(HostilePanes, APaneThatEndsTheFrameWhileItIsPlaced)
{
    Docked(CBRS_ALIGN_LEFT);
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    pane.m_onParent = [&] { ::DestroyWindow(m_window); };
    pane.FloatPane(CRect(100, 100, 300, 300));
    EXPECT_FALSE(::IsWindow(m_window));
    MakeFrame();
    Pane & other = Docked(CBRS_ALIGN_LEFT);
    other.m_onSize = [&] { ::DestroyWindow(m_window); };
    m_frame->SetWindowPos(nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(::IsWindow(m_window));
}

TEST_F(HostilePanes, APaneThatEndsWhileItIsDragged)
{
    ShowFrame();
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CPoint const from = CaptionOf(pane);
    ASSERT_TRUE(tests::MoveMouse(from));
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() != nullptr; }));
    ASSERT_TRUE(tests::MoveMouse(from + CSize(200, 100)));
    m_panes.clear();
    EXPECT_TRUE(tests::PumpUntil([] { return ::GetCapture() == nullptr; }));
    tests::Release();
    Settled();
    EXPECT_EQ(Centre(), Inside());
}

TEST_F(HostilePanes, AFrameThatEndsWhileAPaneIsDragged)
{
    ShowFrame();
    Pane & pane = Docked(CBRS_ALIGN_LEFT);
    CPoint const from = CaptionOf(pane);
    ASSERT_TRUE(tests::MoveMouse(from));
    tests::Press();
    ASSERT_TRUE(tests::PumpUntil([] { return ::GetCapture() != nullptr; }));
    ASSERT_TRUE(tests::MoveMouse(from + CSize(200, 100)));
    ::DestroyWindow(m_window);
    EXPECT_EQ(::GetCapture(), nullptr);
    tests::Release();
    Settled();
}

TEST_F(HostilePanes, TabsAndFramesThatSomebodyElseEnds)
{
    Pane & one = Docked(CBRS_ALIGN_LEFT);
    Pane & two = NewPane();
    Pane & three = NewPane();
    two.AttachToTabWnd(&one, DM_SHOW);
    three.FloatPane(CRect(100, 100, 300, 300));
    three.GetParentMiniFrame()->DestroyWindow();
    one.GetParentTabbedPane()->DestroyWindow();
    Settled();
    EXPECT_EQ(one.m_hWnd, nullptr);
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_EQ(three.m_hWnd, nullptr);
    EXPECT_EQ(Centre(), Inside());
}

TEST_F(HostilePanes, AWalkOfPanesThatComeAndGo)
{
    UINT id = first_pane;
    for (int step = 0; step < 400; ++step)
    {
        if (m_panes.size() < 3 || Below(6) == 0)
        {
            Pane & pane = NewPane(++id);
            pane.m_onSize = [this] {
                if (m_panes.size() > 2 && Below(40) == 0)
                    Any().DestroyWindow();
            };
            if (m_panes.size() > 8)
                m_panes.erase(m_panes.begin());
            m_panes.back()->DockToFrameWindow(Side());
            continue;
        }
        Step();
        if (Below(20) == 0)
            tests::PumpPosted();
        ASSERT_EQ(m_heap.Check(), 0u) << "step " << step;
    }
}
